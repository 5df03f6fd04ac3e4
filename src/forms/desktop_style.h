#pragma once

#include <memory>

/// Gives the application the desktop's look, mended by Readable_Style, and keeps to it while the program runs. Made
/// once, behind the application.
class Desktop_Style
{
  public:
    Desktop_Style();
    Desktop_Style(const Desktop_Style&) = delete;
    Desktop_Style& operator=(const Desktop_Style&) = delete;
    ~Desktop_Style();

  private:
    class Watch;
    std::unique_ptr<Watch> watch_;
};
