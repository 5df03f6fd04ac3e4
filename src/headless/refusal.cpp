#include "headless/refusal.h"

#include "headless/batch_options.h"
#include "state/program.h"
#include "support/files.h"
#include "support/paths.h"

using namespace Qt::StringLiterals;

static QString Missing_Folder(const QString& option, const QString& folder)
{
    return folder.isEmpty() ? u"No folder is remembered: name one with %1."_s.arg(option)
                            : u"%1 \"%2\" is no folder that can be opened."_s.arg(option, folder);
}

/// False after a tool was found missing, which has been reported by then: the folders were not looked into.
static bool Tools_Are_There(const Tool_Paths& tools)
{
    return File_Exists(tools.FFProbe_Path) &&
           (tools.System_MKVMerge_Path.isEmpty() || File_Exists(tools.System_MKVMerge_Path));
}

QString Explain_Refusal(const Program& program, const Batch_Options& options)
{
    const QString& videos = program.Options.Path_Videos;
    if (videos.isEmpty())
        return Missing_Folder(u"--videos"_s, options.Videos);
    if (const QString why = Why_Unreadable(videos); !why.isEmpty())
        return u"\"%1\" can't be read: %2."_s.arg(videos, why);
    if (!program.Options.Path_Target.isEmpty())
        return Tools_Are_There(program.Tools) && program.Run.Video_File_List.constFirst().isEmpty()
                   ? u"\"%1\" holds no file with a video's extension."_s.arg(videos)
                   : QString();
    if (!options.Target.isEmpty() && Same_Folder(videos, options.Target))
        return u"--target \"%1\" is the video folder itself: choose another one."_s.arg(options.Target);
    return Missing_Folder(u"--target"_s, options.Target);
}
