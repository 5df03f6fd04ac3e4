#include "common/test_installation.h"

#include <QFileInfo>

/// The folders that programs are found in.
struct Test_Installation::Former
{
    QByteArray Path = qgetenv("PATH");
};

Test_Installation::Test_Installation() : former_(std::make_unique<Former>())
{
    qputenv("PATH", "/nowhere");
}

Test_Installation::~Test_Installation()
{
    qputenv("PATH", former_->Path);
}

void Test_Installation::Install(const QString& graphical_program) const
{
    qputenv("PATH", QFileInfo(graphical_program).path().toUtf8());
}
