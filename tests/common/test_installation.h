#pragma once

#include <QString>
#include <memory>

/// Where this process finds an installed MKVToolNix for as long as this stands: nowhere but where the test has put one.
/// PATH leads nowhere meanwhile, and on Windows the registry's roots are empty ones of the test's own.
class Test_Installation
{
  public:
    Test_Installation();
    Test_Installation(const Test_Installation&) = delete;
    Test_Installation& operator=(const Test_Installation&) = delete;
    ~Test_Installation();

    /// `graphical_program` (an absolute path) counts as installed, as an installer of the platform leaves it.
    void Install(const QString& graphical_program) const;

  private:
    struct Former;
    std::unique_ptr<Former> former_;
};
