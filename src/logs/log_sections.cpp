#include "logs/log_sections.h"

#include "state/program.h"
#include "support/shown_text.h"
#include "support/text.h"

#include <algorithm>
#include <array>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

using Box = Check_Box JobOptions::*;
using Condition = bool (*)(const Program&);
using Value = QString (*)(const Program&);

/// One possible line: written if every box of On is ticked, none of Off is, and the condition, if any, holds.
struct Row
{
    QString Text;
    std::vector<Box> On = {};
    std::vector<Box> Off = {};
    Value Appended = nullptr;
    Condition When = nullptr;
    int Indent = 12;
};

QString Quoted(const QString& text)
{
    return u'"' + text + u'"';
}

QString Keep_Or_Cut(const FilterSettings& filter)
{
    return filter.KeepOrCut == 1 ? u"Keep"_s : u"Cut"_s;
}

QString Title_Word(const Option_Pair& pair)
{
    return pair.Selected == 1 ? u"If Empty)"_s : u"Always)"_s;
}

QString Kind_Word(int video_format_kind)
{
    return video_format_kind == 1 ? u" Aspect Ratio"_s : video_format_kind == 2 ? u" Width/Height"_s : QString();
}

/// mkvmerge's version text without its own name, line end and all.
QString Version_Text(const QString& version)
{
    return version.left(8).toLower() == u"mkvmerge"_s ? version.mid(9) : version;
}

QString Path_Or(const QString& path, const QString& words)
{
    return path.isEmpty() ? words : path;
}

QString Verbosity_Words(const Program& program)
{
    // The section is written from 4 on, so only the last three are ever seen. Deliberate: 7 has no words and no line.
    static const std::array<QString, 7> words{u"Log Process Overview Only"_s,   u"Include Faults and Fails"_s,
                                              u"Include Added Files"_s,         u"Include All Active Checkboxes"_s,
                                              u"Include All Menu Settings"_s,   u"Include MKVMerge Reports"_s,
                                              u"Include ALL MKVMerge Reports"_s};
    const auto level = static_cast<std::size_t>(program.Options.Log_Verbosity);
    return QString::number(level) + u" - "_s + words.at(level);
}

const std::vector<Row>& Menu_Rows()
{
    static const std::vector<Row> rows{
        {.Text = u"-- Keep this program topmost"_s, .When = [](const Program& p) { return p.Form.Topmost_On; }},
        {.Text = u"-- Save Settings on Exit is On"_s, .When = [](const Program& p) { return p.Settings.Save_On_Exit; }},
        {.Text = u"-- Save Settings on Exit is Off"_s,
         .When = [](const Program& p) { return !p.Settings.Save_On_Exit; }},
        {.Text = u"-- Append Vantorra Log(s)"_s, .When = [](const Program& p) { return p.Options.mnu_AppendLogs; }},
        {.Text = u"-- Log Verbosity "_s,
         .Appended = Verbosity_Words,
         .When = [](const Program& p) { return p.Options.Log_Verbosity >= 0 && p.Options.Log_Verbosity <= 6; }},
        {.Text = u"-- Keep English Titled Audio"_s,
         .When = [](const Program& p) { return p.Options.Keep_English_Audio; }},
        {.Text = u"-- Keep English Titled Subtitles"_s,
         .When = [](const Program& p) { return p.Options.Keep_English_Subs; }},
        {.Text = u"-- ffprobe.exe location - "_s, .Appended = [](const Program& p) { return p.Tools.FFProbe_Path; }},
        {.Text = u"-- MKVMerge.exe location - "_s,
         .Appended =
             [](const Program& p) {
                 return p.Tools.System_MKVMerge_Path + u"   "_s + Version_Text(p.Tools.System_MKVMerge_Version);
             }},
    };
    return rows;
}

std::vector<Row> Audio_Rows()
{
    using O = JobOptions;
    return {
        {.Text = u"~~ Strip Existing Audio"_s, .On = {&O::chk_StripOrigAudio}},
        {.Text = u"~~ Strip Existing Audio Title"_s,
         .On = {&O::chk_StripOrigAudioTitle},
         .Off = {&O::chk_StripOrigAudio}},
        {.Text = u"~~ "_s,
         .On = {&O::chk_CustomAudioFilter},
         .Appended = [](const Program& p) { return p.Options.chk_CustomAudioFilter.Caption; }},
        {.Text = u"~~ Original Audio Languages to "_s,
         .On = {&O::chk_CustomAudioFilter},
         .Appended =
             [](const Program& p) {
                 return Keep_Or_Cut(p.Options.AudioFilter) + u" - "_s + p.Options.AudioFilter.Languages;
             },
         .When = [](const Program& p) { return p.Options.Log_Verbosity > 4; },
         .Indent = 15},
        {.Text = u"~~ Filter out NON-English Audio"_s, .On = {&O::chk_EngAudioOnly}, .Off = {&O::chk_StripOrigAudio}},
        {.Text = u"~~ Audio Delay Adjust "_s,
         .On = {&O::chk_AudioDelayAdjust},
         .Appended = [](const Program& p) { return p.Form.txt_AudioDelayValue.Text + u"ms"_s; }},
        {.Text = u"~~ Add Audio Files"_s, .On = {&O::chk_AddAudio}},
        {.Text = u"~~ Use Audio '.opt' (options) files"_s,
         .On = {&O::chk_AddAudio, &O::chk_UseAudioOpts},
         .Indent = 14},
        {.Text = u"~~ Apply Default Audio options"_s,
         .On = {&O::chk_AddAudio, &O::chk_UseAudioOpts, &O::chk_ApplyDefaultAudioOpts},
         .Indent = 16},
        {.Text = u"~~ Alternate Audio File Path - Path= "_s,
         .On = {&O::chk_AudioPath},
         .Appended = [](const Program& p) { return p.Form.ulbl_AudioPath.Caption; }},
    };
}

std::vector<Row> Subtitle_Rows()
{
    using O = JobOptions;
    return {
        {.Text = u"~~ Strip Existing Subtitles"_s, .On = {&O::chk_StripOrigSubs}},
        {.Text = u"~~ Strip Existing Subtitles Title"_s,
         .On = {&O::chk_StripOrigSubsTitle},
         .Off = {&O::chk_StripOrigSubs}},
        {.Text = u"~~ "_s,
         .On = {&O::chk_CustomSubsFilter},
         .Appended = [](const Program& p) { return p.Options.chk_CustomSubsFilter.Caption; }},
        {.Text = u"~~ Original Subtitle Languages to "_s,
         .On = {&O::chk_CustomSubsFilter},
         .Appended =
             [](const Program& p) {
                 return Keep_Or_Cut(p.Options.SubsFilter) + u" - "_s + p.Options.SubsFilter.Languages;
             },
         .When = [](const Program& p) { return p.Options.Log_Verbosity > 4; },
         .Indent = 15},
        {.Text = u"~~ Filter out NON-English Subtitles"_s, .On = {&O::chk_EngSubsOnly}, .Off = {&O::chk_StripOrigSubs}},
        {.Text = u"~~ Set All Subtitles defaults to '"_s,
         .On = {&O::chk_SubDefaults},
         .Appended = [](const Program& p) { return p.Options.chk_SubDefaults.Tag + u'\''; }},
        {.Text = u"~~ Set All Subtitles forces to '"_s,
         .On = {&O::chk_SubForces},
         .Appended = [](const Program& p) { return p.Options.chk_SubForces.Tag + u'\''; }},
        {.Text = u"~~ Add Subtitles"_s, .On = {&O::chk_AddSubs}},
        {.Text = u"~~ Use Subtitle '.opt' (options) files"_s,
         .On = {&O::chk_AddSubs, &O::chk_UseSubOpts},
         .Indent = 14},
        {.Text = u"~~ Apply Default Subtitle options"_s,
         .On = {&O::chk_AddSubs, &O::chk_UseSubOpts, &O::chk_ApplyDefaultSubOpts},
         .Indent = 16},
        {.Text = u"~~ Alternate Subtitle File Path - Path= "_s,
         .On = {&O::chk_SubsPath},
         .Appended = [](const Program& p) { return p.Form.ulbl_SubsPath.Caption; }},
    };
}

std::vector<Row> Chapter_Rows()
{
    using O = JobOptions;
    return {
        {.Text = u"++ Strip Existing Chapters"_s, .On = {&O::chk_StripChaps}},
        {.Text = u"++ Install/Replace Chapters With New XML File"_s, .On = {&O::chk_ReplaceChapters}},
        {.Text = u"++ Convert TXT to XML Chapters "_s,
         .On = {&O::chk_ConvertTXT, &O::chk_ReplaceChapters},
         .Appended = [](const Program& p) { return p.Options.lbl_ChapsFormat.Caption; }},
        {.Text = u"++ Alternate Chapters File Path - Path= "_s,
         .On = {&O::chk_ChaptersPath},
         .Appended = [](const Program& p) { return p.Form.ulbl_ChaptersPath.Caption; }},
    };
}

std::vector<Row> Other_Rows()
{
    using O = JobOptions;
    return {
        {.Text = u"-- Delete Source Video File After Its Processed"_s,
         .When = [](const Program& p) { return p.Options.Delete_Video_After; }},
        {.Text = u"-- Set Video Frame Rate  - "_s,
         .On = {&O::chk_VideoFrameRate},
         .Appended = [](const Program& p) { return Quoted(p.Options.Frame_Rate_Value); },
         .When = [](const Program& p) { return p.Options.chk_VideoFrameRate.Enabled; }},
        {.Text = u"-- Use Video Format Options  - "_s,
         .On = {&O::chk_VideoFormatOptions},
         .Appended =
             [](const Program& p) {
                 return Quoted(p.Options.Video_Format_Value + Kind_Word(p.Options.Video_Format_Kind));
             },
         .When = [](const Program& p) { return p.Options.chk_VideoFormatOptions.Enabled; }},
        {.Text = u"-- Remove File Title"_s, .On = {&O::chk_RemoveFileTitle}},
        {.Text = u"-- "_s,
         .On = {&O::chk_CustomFileTitle},
         .Off = {&O::chk_RemoveFileTitle},
         .Appended = [](const Program& p) { return p.Options.chk_CustomFileTitle.Caption; }},
        {.Text = u"-- Set File Title ("_s,
         .On = {&O::chk_SetFileTitle},
         .Off = {&O::chk_RemoveFileTitle, &O::chk_CustomFileTitle},
         .Appended = [](const Program& p) { return Title_Word(p.Options.opt_SetFileTitle); }},
        {.Text = u"-- Remove Video Title"_s, .On = {&O::chk_RemoveVideoTitle}},
        {.Text = u"-- "_s,
         .On = {&O::chk_CustomVideoTitle},
         .Off = {&O::chk_RemoveVideoTitle},
         .Appended = [](const Program& p) { return p.Options.chk_CustomVideoTitle.Caption; }},
        {.Text = u"-- Set Video Title ("_s,
         .On = {&O::chk_SetVideoTitle},
         .Off = {&O::chk_RemoveVideoTitle, &O::chk_CustomVideoTitle},
         .Appended = [](const Program& p) { return Title_Word(p.Options.opt_SetVideoTitle); }},
        {.Text = u"-- Remove All Original Tags"_s, .On = {&O::chk_RemoveAllTags}},
        {.Text = u"-- Remove All Original Attachments"_s, .On = {&O::chk_RemoveAllAttachments}},
        {.Text = u"-- Add Attachments using Titled Subfolders Path."_s,
         .When = [](const Program& p) { return p.Options.Add_Attachments_On && p.Options.Use_Attachment_Subfolders; }},
        {.Text = u"-- Add Attachments in Videos Path."_s,
         .When = [](const Program& p) { return p.Options.Add_Attachments_On && !p.Options.Use_Attachment_Subfolders; }},
        {.Text = u"-- Split multiple video files is On"_s, .On = {&O::chk_SplitVideos}},
    };
}

/// Deliberate: the alternate paths come twice, in their groups from the labels of the form, here from the variables.
std::vector<Row> Path_Rows()
{
    using O = JobOptions;
    return {
        {.Text = u"~~ Video Files Path= "_s, .Appended = [](const Program& p) { return p.Options.Path_Videos; }},
        {.Text = u"~~ Target Path= "_s, .Appended = [](const Program& p) { return p.Options.Path_Target; }},
        {.Text = u"~~ Alternate Audio File Path - Path= "_s,
         .On = {&O::chk_AudioPath},
         .Appended = [](const Program& p) { return Path_Or(p.Options.Path_Audios, u"(Audio path not set)"_s); }},
        {.Text = u"~~ Alternate Subtitle File Path - Path= "_s,
         .On = {&O::chk_SubsPath},
         .Appended = [](const Program& p) { return Path_Or(p.Options.Path_Subtitles, u"(Subtitle path not set)"_s); }},
        {.Text = u"++ Alternate Chapters File Path - Path= "_s,
         .On = {&O::chk_ChaptersPath},
         .Appended = [](const Program& p) { return Path_Or(p.Options.Path_Chapters, u"(Chapters path not set)"_s); }},
    };
}

bool Is_Written(const Row& row, const Program& program)
{
    const auto ticked = [&](Box box) { return (program.Options.*box).Value == 1; };
    return std::all_of(row.On.begin(), row.On.end(), ticked) && std::none_of(row.Off.begin(), row.Off.end(), ticked) &&
           (row.When == nullptr || row.When(program));
}

/// What stands behind a row's words. A line break in a folder's name makes no line; the one at a version's end does.
QString Appended_Text(const Row& row, const Program& program)
{
    if (row.Appended == nullptr)
        return {};
    const QString text = row.Appended(program);
    return text.endsWith(Line_Break) ? As_One_Line(text.chopped(Line_Break.size())) + Line_Break : As_One_Line(text);
}

void Add_Lines(const std::vector<Row>& rows, const Program& program, QStringList& lines)
{
    for (const Row& row : rows)
        if (Is_Written(row, program))
            lines += QString(row.Indent, u' ') + row.Text + Appended_Text(row, program);
}

} // namespace

QStringList Menu_Selection_Lines(const Program& program)
{
    QStringList lines;
    Add_Lines(Menu_Rows(), program, lines);
    return lines;
}

QStringList Active_Checkbox_Lines(const Program& program)
{
    QStringList lines;
    for (const auto& rows : {Audio_Rows(), Subtitle_Rows(), Chapter_Rows(), Other_Rows(), Path_Rows()})
        Add_Lines(rows, program, lines);
    return lines;
}
