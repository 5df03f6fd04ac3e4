#include "life/video_commands.h"

#include "life/menu_commands.h"
#include "rules/option_rules.h"
#include "rules/video_list.h"
#include "run/list_runs.h"
#include "state/program.h"
#include "support/command_line.h"
#include "support/paths.h"

#include <algorithm>

using namespace Qt::StringLiterals;

static const Video_Row* First_Marked(const Program& program)
{
    const Video_List& list = program.Videos;
    return list.Selected.empty() ? nullptr : &list.Rows[static_cast<std::size_t>(list.Selected.front())];
}

/// A form that opens in a run would hold it up.
static void Show_Viewer(Program& program, const QString& form)
{
    const Video_Row* row = First_Marked(program);
    if (row == nullptr || program.Run.Press_In_Work)
        return;
    program.Videos.To_Show = program.Videos.Folder + row->Path();
    Show_Dialog(program, form);
    program.Videos.To_Show.clear();
}

void Show_Video_Info(Program& program)
{
    if (program.Form.btn_ViewVidInfo.Enabled)
        Show_Viewer(program, u"frm_ViewVFI"_s);
}

void Show_Video_Log(Program& program)
{
    Show_Viewer(program, u"frm_ProcessLog"_s);
}

/// Copies a line of each marked row that has one.
template <typename Line>
static void Copy_Lines(Program& program, const Line& line)
{
    QStringList lines;
    for (const int number : program.Videos.Selected)
        if (const QString text = line(program.Videos.Rows[static_cast<std::size_t>(number)]); !text.isEmpty())
            lines += text;
    if (!lines.isEmpty())
        program.Person.Copy_Text(lines.join(u'\n'));
}

static QString Command_Of(const Video_Row& row)
{
    return row.Command.isEmpty() ? QString() : Shell_Quoted(row.Command);
}

static QString Reasons_Of(const Video_Row& row)
{
    QStringList reasons = QStringList{row.Reason} + row.Warnings + row.Problems;
    reasons.removeAll(QString());
    return reasons.isEmpty() ? QString() : row.Path() + u": "_s + reasons.join(u"; "_s);
}

void Copy_Video_Commands(Program& program)
{
    Copy_Lines(program, Command_Of);
}

void Copy_Video_Reasons(Program& program)
{
    Copy_Lines(program, Reasons_Of);
}

void Open_Video_Folder(Program& program)
{
    const Video_Row* row = First_Marked(program);
    if (row == nullptr)
        return;
    const QString folder = program.Videos.Folder + row->Sub_Path;
    if (!program.Person.Open_Document(folder))
        program.Form.lbl_Notice.Caption = u"Nothing on this desktop opens folders. It is "_s + folder;
}

const std::vector<Video_Command>& Video_Commands()
{
    static const std::vector<Video_Command> commands = {
        {u"mnu_TakeIn"_s, u"Take In / Leave Out"_s, u"Space"_s, Take_In_Or_Leave_Out},
        {u"mnu_RunOnlyThese"_s, u"Run Only These"_s, u"Ctrl+Return"_s, Run_Only_These},
        {u"mnu_VideoInfo"_s, u"Video Info"_s, u"Return"_s, Show_Video_Info},
        {u"mnu_VideoLog"_s, u"Its Lines In The Log"_s, u"Ctrl+Shift+L"_s, Show_Video_Log},
        {u"mnu_VideoCommand"_s, u"Copy Its Command"_s, u"Ctrl+Shift+C"_s, Copy_Video_Commands},
        {u"mnu_VideoReason"_s, u"Copy The Reason"_s, u"Ctrl+C"_s, Copy_Video_Reasons},
        {u"mnu_VideoFolder"_s, u"Open Its Folder"_s, u"Ctrl+Shift+O"_s, Open_Video_Folder},
    };
    return commands;
}

bool Is_Possible(const Program& program, const QString& name)
{
    const Video_List& list = program.Videos;
    const bool idle = !program.Run.Press_In_Work;
    const auto any = [&list](QString (*line)(const Video_Row&)) {
        return std::any_of(list.Selected.begin(), list.Selected.end(),
                           [&](int number) { return !line(list.Rows[static_cast<std::size_t>(number)]).isEmpty(); });
    };
    if (list.Selected.empty())
        return false;
    if (name == "mnu_TakeIn"_L1)
        return idle && list.Takes_Ticks;
    if (name == "mnu_RunOnlyThese"_L1)
        return idle && list.Takes_Ticks && program.Form.btn_RunVantorra.Enabled;
    if (name == "mnu_VideoInfo"_L1)
        return idle && program.Form.btn_ViewVidInfo.Enabled;
    if (name == "mnu_VideoLog"_L1)
        return idle;
    if (name == "mnu_VideoCommand"_L1)
        return any(Command_Of);
    if (name == "mnu_VideoReason"_L1)
        return any(Reasons_Of);
    return true;
}
