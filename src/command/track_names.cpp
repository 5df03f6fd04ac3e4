#include "command/track_names.h"

#include "inspect/stream_parser.h"
#include "support/paths.h"

using namespace Qt::StringLiterals;

QString Wrap_Title(const QString& name)
{
    return u"\\\""_s + Unescape_Title(name) + u"\\\""_s;
}

/// "TRACK:NAME", or with `track` empty the name, in backslash-quote pairs. A literal name gets there to the letter.
static void Append_Wrapped(Command_Line& command, const QString& option, const QString& track, const QString& name,
                           bool literal)
{
    if (literal)
        command.Add_Literal(option, Quote_Path(track + u"\\\""_s + name + u"\\\""_s), track + u'"' + name + u'"');
    else
        command.Add_Option(option, Quote_Path(track + Wrap_Title(name)));
}

void Append_Video_Name(Command_Line& command, const FileInfo& stream, const JobOptions& options,
                       const QString& source_base)
{
    const QString option = u" --track-name "_s;
    const QString track = stream.Index + u':';
    if (options.chk_RemoveVideoTitle.Value == 1)
        command.Add_Option(option, track);
    else if (options.chk_CustomVideoTitle.Value == 1 && options.Custom_Video_Title.isEmpty())
        command.Add_Option(option, u'"' + track + u"(empty)\""_s);
    else if (options.chk_CustomVideoTitle.Value == 1)
        command.Add_Option(option, Quote_Path(track + Wrap_Title(options.Custom_Video_Title)));
    else if (options.chk_SetVideoTitle.Value == 1 && options.opt_SetVideoTitle.Selected == 2)
        // Deliberate: two blanks behind this option, and only here.
        Append_Wrapped(command, u" --track-name  "_s, track, source_base, stream.Literal);
    else if (options.chk_SetVideoTitle.Value == 1 && options.opt_SetVideoTitle.Selected == 1 && stream.Title.isEmpty())
        Append_Wrapped(command, option, track, source_base, stream.Literal);
}

/// The name of an audio or subtitle track: none, or the given one.
static void Append_Name(Command_Line& command, const FileInfo& stream, const QString& title, bool strip)
{
    const QString track = stream.Index + u':';
    if (strip)
        command.Add_Option(u" --track-name "_s, track);
    else if (!title.isEmpty() && stream.Literal)
        command.Add_Literal(u" --track-name "_s, Quote_Path(track + title), track + title);
    else if (!title.isEmpty())
        command.Add_Option(u" --track-name "_s, Quote_Path(track + title));
}

void Append_Audio_Name(Command_Line& command, const FileInfo& stream, bool strip_titles)
{
    // Deliberate: an audio title keeps its escapes, a subtitle's are undone.
    Append_Name(command, stream, stream.Title, strip_titles);
}

void Append_Subtitle_Name(Command_Line& command, const FileInfo& stream, bool strip_titles)
{
    Append_Name(command, stream, stream.Literal ? stream.Title : Unescape_Title(stream.Title), strip_titles);
}

void Append_File_Title(Command_Line& command, const JobOptions& options, const QString& video_base_name,
                       const QString& source_title, const QString& first_title, bool literal)
{
    const QString option = u" --title "_s;
    if (options.chk_RemoveFileTitle.Value == 1) {
        command.Add_Option(option, u"\"\""_s);
    } else if (options.chk_CustomFileTitle.Value == 1) {
        const QString& custom = options.Custom_File_Title;
        command.Add_Option(option, custom.isEmpty() ? u"\"(empty)\""_s : Quote_Path(custom));
    } else if (options.chk_SetFileTitle.Value == 1) {
        const int selected = options.opt_SetFileTitle.Selected;
        if (selected == 2 || (selected == 1 && source_title.isEmpty()))
            Append_Wrapped(command, option, {}, video_base_name, literal);
        else if (selected != 1)
            Append_Wrapped(command, option, {}, first_title, literal);
    }
}
