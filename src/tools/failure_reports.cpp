#include "tools/failure_reports.h"

#include "logs/results_digest.h"
#include "state/program.h"
#include "support/shown_text.h"
#include "support/system_identification.h"

#include <algorithm>
#include <iterator>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// One numbered report. In its texts "{1}" stands for text 1, "{error}" for the system's words on the last failed
/// start, "{system}", "{ini}" and "{local}" for the paths of mkvmerge: in use, in the settings file, beside us.
struct Failure_Report
{
    int Code;
    Message_Icon Icon;
    QStringView Title;
    QStringView Text;
    QStringView Log_Line;
};

constexpr Failure_Report Failure_Reports[] = {
    {1, Message_Icon::Stop, u"The 'CreatePipe' function has failed.",
     u"The 'CreatePipe' function has failed with the Error:\r\n"
     u"mkvmerge.exe {error}Vantorra will work without this function, but it\r\n"
     u"cannot read any file information or produce any output!\r\n",
     u"-- The 'CreatePipe' function has failed. Vantorra cannot get file information without this function. Further "
     u"processing of this file is cancelled."},
    {2, Message_Icon::Stop, u"The 'CreateProcess' function has failed.",
     u"The 'CreateProcess' function has failed with the Error:\r\nmkvmerge.exe {error}",
     u"-- The 'CreateProcess' function has failed with the Error: mkvmerge.exe {error}. Further processing of this "
     u"file "
     u"is cancelled."},
    {3, Message_Icon::Exclamation, u"There is a functional error with mkvmerge.exe.",
     u"This mkvmerge.exe version cannot be determined!\r\nmkvmerge.exe will not return any usefull information.",
     u"-- This mkvmerge.exe version cannot be determined as it will not return any usefull information. Further "
     u"processing of this file is cancelled."},
    {5, Message_Icon::Exclamation, u"There is an incompatibility with mkverge.exe and your System OS.",
     u"This version of mkvmerge.exe will not function!\r\n"
     u"You are attempting to run a 64Bit mkvmerge.exe on a 32Bit System OS.",
     u"-- WRONG mkvmerge.exe version! You are attempting to run a 64Bit mkvmerge.exe on a 32Bit System OS."},
    {8, Message_Icon::Exclamation, u"Failed to create pipe.", u"Failed to create a pipe for {1}.",
     u"-- Failed to create a pipe for {1}."},
    {9, Message_Icon::Exclamation, u"Failed to create a process.",
     u"Failed to create process.\r\nCannot process file {1}.",
     u"-- Failed to create process for {1}. Further processing of this file is cancelled."},
    {11, Message_Icon::Exclamation, u"Failed to create pipe.", u"Failed to create a pipe for {1}.",
     u"-- Failed to create a pipe for {1}. Further processing of this file is cancelled."},
    {12, Message_Icon::Exclamation, u"Cannot process file with {1}.",
     u"Failed to create process.\r\nCannot process file with {1}.",
     u"-- Cannot process this file with {1}. Further processing of this is cancelled."},
    {13, Message_Icon::Exclamation, u"Possible functional error with {1}.",
     u"{1} failed to return any useful information.\r\n\r\n"
     u"Further processing of this file is aborted.\r\n\r\n"
     u"NOTE: Filename may contain unicode characters;\r\n"
     u"      ffprobe does not recognize unicode!\r\n\r\n"
     u"Click OK to continue processing next video file.",
     u"-- {1} failed to return any useful information for this file. Further processing of this file is cancelled."},
    {20, Message_Icon::Exclamation, u"FFProbe was not found.",
     u"FFProbe was not found in this applications folder.\r\n"
     u"Without 'FFProbe.exe', Vantorra cannot process any\r\n"
     u"video files, so the 'Run Vantorra' button is disabled.",
     u"-- FFProbe is not found in the applications folder. Video processing is DISALLOWED."},
    {52, Message_Icon::Exclamation, u"mkvmerge.exe was not found in the Registry!",
     u"Mkvmerge.exe install was not found in the Registry!\r\n"
     u"This program will default to the LOCAL copy of mkvmerge.exe",
     u"-- mkvmerge.exe not found at path {system}. Processing cannot proceed."},
    {53, Message_Icon::Exclamation, u"mkvmerge.exe was not found in the Registry!",
     u"Mkvmerge.exe was not found, either in the registry or locally!\r\n"
     u"Please set the 'mkvmerge.exe' location in Settings/Set Executable Paths.\r\n"
     u"This program requires a useable copy of 'mkvmerge.exe' to function.",
     u"-- mkvmerge.exe not found in the Registry or Locally {ini}. Processing cannot proceed."},
    {60, Message_Icon::Exclamation, u"The 'local' mkvmerge.exe copy was not found!",
     u"A local copy of mkvmerge.exe v19.0.0 was not found in this \r\n"
     u"Application's install path! \r\n\r\n"
     u"NOTE: A copy of mkvmerge.exe v19.0.0 is required \r\n"
     u"in this application's install path for the correct functioning \r\n"
     u"of the \"View Video File Info\" function.\r\n\r\n"
     u"Find mkvmerge.exe v19.0.0 on the 'net, download it and place it in the Vantorra install folder. Quit Vantorra "
     u"and start it again. Vantorra will find it automatically.\r\n",
     u"-- local copy of mkvmerge.exe not found at {local} - REQUIRED! Processing cannot proceed."},
    {70, Message_Icon::Exclamation, u"Are you SURE this is a video file!?", u"File name extension is missing!\r\n",
     u"-- Video file name extension is missing. I don't know what to do!"},
    {71, Message_Icon::Exclamation, u"This doesn't look like an acceptable video file!",
     u"This file does NOT have one of the accepted video extensions!\r\n",
     u"-- File name extension is not acceptable for processing. Abandoning this file."},
};

constexpr int First_Codes_With_Words[] = {1, 2};
constexpr int Codes_That_Log_Text_2[] = {11, 12, 13, 70, 71};
constexpr int Unicode_Note_Code = 13;

using Values = std::initializer_list<std::pair<QStringView, QString>>;

/// `text` with its marks replaced in one pass: a value that looks like a mark stays as it is.
QString Filled(QStringView text, Values values)
{
    QString filled;
    while (!text.isEmpty()) {
        const auto* const mark = std::find_if(values.begin(), values.end(),
                                              [text](const auto& value) { return text.startsWith(value.first); });
        const bool found = mark != values.end();
        filled += found ? mark->second : text.first(1).toString();
        text = text.sliced(found ? mark->first.size() : 1);
    }
    return filled;
}

template <std::size_t Size>
bool Holds(const int (&codes)[Size], int code)
{
    return std::find(std::begin(codes), std::end(codes), code) != std::end(codes);
}

/// A run that nobody watches, and a check, wait for nobody: what they meet stands in the list.
bool Waits_For_Nobody(const Program& program)
{
    return program.Listener && program.Run.Run_In_Progress && (program.Run.Checking || program.Run.Careful);
}

} // namespace

int Report_Run_Failure(Program& program, int code, const QString& text_1, const QString& text_2, const QString& beside)
{
    const auto* const report = std::find_if(std::begin(Failure_Reports), std::end(Failure_Reports),
                                            [code](const Failure_Report& candidate) { return candidate.Code == code; });
    if (report == std::end(Failure_Reports))
        return 0;

    Run_State& run = program.Run;
    if (Holds(First_Codes_With_Words, code)) {
        run.Last_Error_Text = Format_System_Error(run.Process_Result);
        if (run.Last_Error_Text.startsWith(u"%1 "_s))
            run.Last_Error_Text.remove(0, 3);
    }
    const auto fill = [&](QStringView text) {
        return Filled(text, {{u"{1}", text_1},
                             {u"{error}", run.Last_Error_Text},
                             {u"{system}", program.Tools.System_MKVMerge_Path},
                             {u"{ini}", program.Settings.Mkvmerge_Path_Ini},
                             {u"{local}", program.Tools.Local_MKVMerge_Path}});
    };

    if (program.Listener)
        program.Listener->Reported(code);
    const QString about = beside.isEmpty() ? QString() : u"\r\n\r\nFile: "_s + As_One_Line(beside);
    if (Waits_For_Nobody(program))
        program.Listener->Warned(fill(report->Title), fill(report->Title) + about.simplified());
    else
        program.Person.Show_Message(
            {.Code = code, .Title = fill(report->Title), .Text = fill(report->Text) + about, .Icon = report->Icon});
    if (Holds(Codes_That_Log_Text_2, code) && !text_2.isEmpty())
        program.Logs.Log_Faults.AppendLine(As_One_Line(text_2));
    program.Logs.Log_Faults.AppendLine(fill(report->Log_Line));
    Digest_Results(program,
                   code == Unicode_Note_Code
                       ? u"NOTE: This filename may contain unicode characters; ffprobe does not recognize unicode!"_s
                       : QString());
    return 0;
}
