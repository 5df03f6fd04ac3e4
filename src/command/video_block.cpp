#include "command/video_block.h"

#include "command/track_names.h"
#include "inspect/stream_parser.h"

using namespace Qt::StringLiterals;

void Append_Switches(Command_Line& command, const JobOptions& options, bool chapters_replaced)
{
    if (options.chk_RemoveAllTags.Value == 1)
        command.Add_Options(u" --no-track-tags"_s);
    if (options.chk_RemoveAllAttachments.Value == 1)
        command.Add_Options(u" --no-attachments"_s);
    if (options.chk_StripChaps.Value == 1 || chapters_replaced)
        command.Add_Options(u" --no-chapters"_s);
}

bool Has_Own_Aspect(const FileInfo& stream)
{
    const QString& aspect = stream.SampleAspect;
    return !aspect.isEmpty() && aspect != "1:1"_L1 && aspect != "0:1"_L1 && aspect != "N/A"_L1;
}

static void Append_Format(Command_Line& command, const FileInfo& stream, const JobOptions& options, bool sensible)
{
    const QString track = stream.Index + u':';
    const bool chosen = options.chk_VideoFormatOptions.Value == 1;
    if (!chosen && sensible && Has_Own_Aspect(stream))
        return;
    if (!chosen)
        // Deliberate: every run pins the display size to the coded size; the source's own aspect isn't carried over.
        command.Add_Option(u" --display-dimensions "_s, track + stream.Width + u'x' + stream.Height);
    else if (options.Video_Format_Kind == 1)
        command.Add_Option(u" --aspect-ratio "_s, track + options.Video_Format_Value);
    else if (options.Video_Format_Kind == 2)
        command.Add_Option(u" --display-dimensions "_s, track + options.Video_Format_Value);
}

void Append_Source_Video(Command_Line& command, FileInfoList& streams, const JobOptions& options,
                         const QString& source_base, bool sensible)
{
    for (FileInfo& stream : streams) {
        if (stream.StreamType != "video"_L1)
            continue;
        stream.Title = Unescape_Title(stream.Title);
        command.Add_Option(u" --language "_s, stream.Index + u':' + stream.Language);
        // Deliberate: track 0, whatever this track's index is.
        command.Add_Options(u" --default-track 0:yes"_s);
        Append_Format(command, stream, options, sensible);
        Append_Video_Name(command, stream, options, source_base);
        if (options.chk_VideoFrameRate.Value == 1 && options.Frame_Rate_Kind == 2 &&
            !options.Frame_Rate_Value.isEmpty())
            command.Add_Option(u" --default-duration "_s, stream.Index + u':' + options.Frame_Rate_Value);
    }
}
