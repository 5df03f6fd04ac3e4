#include "rules/folders.h"
#include "state/program.h"
#include "support/text.h"

#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;

struct Path_Error
{
    int Code;
    QString Title;
    QStringList Lines;
};

/// The four lines of a folder that could not be taken.
static QStringList Processing_Lines(const QString& which)
{
    return {u"When processing the "_s + which + u" Path,"_s, u"this program experienced an error."_s, u" "_s,
            u"The selected path cannot be found."_s};
}

static const std::vector<Path_Error>& Path_Errors()
{
    // Deliberate: the title and the lines of number 25 speak of different things.
    static const QString aborted = u"Operation is aborted."_s;
    static const QString not_allowed = u"To simplify this programs function, it is not allowed."_s;
    static const QString conflict = u" - A path conflict has occurred."_s;
    static const QString processing = u" Path processing error!"_s;
    static const std::vector<Path_Error> errors = {
        {1,
         u"Error #1 - A Source Path cannot be a Destination Path"_s,
         {u"The Target path can not be the same as the Video Files Path."_s, not_allowed}},
        {11,
         u"Error #11 - ffprobe.exe path not set"_s,
         {u"ffprobe.exe path *must* be set to use this program!"_s, u" "_s, aborted}},
        {14,
         u"Error #14 - mkvmerge.exe path not set"_s,
         {u"mkvmerge.exe path *must* be set to use this program!"_s, u" "_s, aborted}},
        {15,
         u"Error #15 - mkvmerge.exe not found"_s,
         {u"mkvmerge.exe cannot be found at the given path"_s, u" "_s, aborted}},
        {25,
         u"Error #25 - ffprobe.exe and mkvmerge.exe paths not set"_s,
         {u"The Destination Path cannot be from a lower path level"_s, u"to an existing source path."_s, u" "_s,
          u"The chosen Destination Path will be ignored."_s}},
        {401, u"Error #401 - Video"_s + processing, Processing_Lines(u"Video"_s)},
        {402, u"Error #402 - Audio"_s + processing, Processing_Lines(u"Audio"_s)},
        {403, u"Error #403 - Subtitles"_s + processing, Processing_Lines(u"Subtitles"_s)},
        {404, u"Error #404 - Chapters"_s + processing, Processing_Lines(u"Chapters"_s)},
        {405, u"Error #405 - Target"_s + processing, Processing_Lines(u"Target"_s)},
        {411,
         u"Error #411"_s + conflict,
         {u"The Video Files path can not be the same as the Target Path."_s, not_allowed}},
        {415,
         u"Error #415"_s + conflict,
         {u"The Target path can not be a the same as the Video Files Path."_s, not_allowed}},
        {440,
         u"Error #440 - Invalid File Name."_s,
         {u"You did not supply a valid file name."_s, u"A valid file name must be dropped here for proper operation."_s,
          u" "_s,
          u"NOTE: The filename may contain non-displayed unicode characters. Change the filename and try again."_s}},
    };
    return errors;
}

void Show_Path_Error(Program& program, int& code)
{
    if (code < 1)
        return;
    const auto error = std::ranges::find(Path_Errors(), code, &Path_Error::Code);
    if (error != Path_Errors().end()) {
        program.Person.Raise_Main_Form();
        program.Person.Show_Message({.Code = code,
                                     .Title = error->Title,
                                     .Text = error->Lines.join(Line_Break) + Line_Break,
                                     .Icon = Message_Icon::Exclamation,
                                     .Buttons = Message_Buttons::Ok});
    }
    code = 0;
}
