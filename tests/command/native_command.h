#pragma once

#include "common/test_program.h"
#include "support/platform_names.h"

/// A command's text that is written for this platform, with the folders "/in/" and "/out/", as Windows' would be there.
inline QString Native_Command(QString text)
{
    for (const QString& folder : {u"/in/"_s, u"/out/"_s})
        text.replace(folder, Native(folder));
    return text.replace(u"en_US"_s, Tool_Language());
}
