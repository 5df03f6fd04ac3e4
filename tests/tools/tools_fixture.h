#pragma once

#include "common/stand_in_tool.h"
#include "common/test_installation.h"
#include "support/platform_names.h"
#include "tools/installed_tools.h"
#include "tools/tool_discovery.h"

#include <QDir>
#include <QFile>

namespace {

/// A program whose PATH holds only what the test lays into root/bin, and the shell's own tools.
struct Tools_Test : testing::Test, Test_Program
{
    Tools_Test()
    {
        QDir().mkpath(Path(u"bin"_s));
        Set_Path({u"bin"_s});
    }

    void Set_Path(const QStringList& folders) const
    {
        QStringList path;
        for (const QString& folder : folders)
            path += Path(folder);
        qputenv("PATH", path.join(QDir::listSeparator()).toUtf8());
    }

    QString Says(const QString& relative, const QByteArray& words) const
    {
        return Write_Stand_In(*this, relative, "echo \"" + words + "\"\n");
    }

    QString Says_Nothing(const QString& relative) const { return Write_Stand_In(*this, relative, ""); }

    Test_Installation Installation;
};

} // namespace
