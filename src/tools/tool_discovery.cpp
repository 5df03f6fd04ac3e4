#include "tools/tool_discovery.h"

#include "state/program.h"
#include "support/command_line.h"
#include "support/paths.h"
#include "support/platform_names.h"
#include "support/text.h"
#include "tools/failure_reports.h"
#include "tools/installed_tools.h"
#include "tools/tool_runner.h"

#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

/// The one version whose verbose identification text is known.
static const QString Accepted_Local_Version = u"mkvmerge v19.0.0 ('Brave Captain')"_s;
static const QString FFProbe_Name = Executable_Name(u"ffprobe"_s);
static const QString MKVMerge_Name = Executable_Name(u"mkvmerge"_s);

static void Run_With(Program& program, const QString& tool, const QString& option, QString& output)
{
    Command_Line command;
    command.Add_Options(option);
    Run_Tool_Capture_Fresh(program, tool, command, output);
}

void Discover_Tools(Program& program)
{
    Tool_Paths& tools = program.Tools;
    Link_FFProbe(program);
    if (!Find_FFProbe(program))
        program.Form.btn_RunVantorra.Enabled = false;
    tools.Local_MKVMerge_OK = Find_Local_MKVMerge(program);
    if (Find_System_MKVMerge(program))
        Get_System_MKVMerge_Version(program);
    Enable_Video_Info_Button(program);
}

void Link_FFProbe(Program& program)
{
    const QString wanted = program.Settings.App_Folder + FFProbe_Name;
    const QString found = Find_In_Path(u"ffprobe"_s);
    if (!Can_Link_Tools() || program.Run.Dry_Run || File_Exists(wanted) || found.isEmpty())
        return;
    if (QFileInfo(wanted).isSymLink() && !QFileInfo::exists(wanted))
        QFile::remove(wanted);
    // Another program that starts just now may have been faster.
    if (!QFile::link(found, wanted) && !File_Exists(wanted))
        program.Person.Show_Message({.Title = u"FFProbe could not be linked."_s,
                                     .Text = u"FFProbe was found at \""_s + found +
                                             u"\",\r\nbut it could not be linked to \""_s + wanted +
                                             u"\".\r\nPlease put a copy of it there."_s});
}

/// Where ffprobe lies; the path in the program's folder if it lies nowhere.
static QString FFProbe_Location(const Program& program)
{
    QString own = program.Settings.App_Folder + FFProbe_Name;
    if (File_Exists(own) || (Can_Link_Tools() && !program.Run.Dry_Run))
        return own;
    QString elsewhere = Find_In_Path(u"ffprobe"_s);
    return elsewhere.isEmpty() ? own : elsewhere;
}

bool Find_FFProbe(Program& program)
{
    const QString path = FFProbe_Location(program);
    if (!File_Exists(path)) {
        Report_Run_Failure(program, 20);
        return false;
    }
    QString ignored;
    Run_With(program, path, u" -version"_s, ignored);
    program.Tools.FFProbe_Path = path;
    return true;
}

bool Find_Local_MKVMerge(Program& program)
{
    program.Tools.Local_MKVMerge_Path.clear();
    const QString path = program.Settings.App_Folder + MKVMerge_Name;
    if (!File_Exists(path))
        return false;
    QString version;
    Run_With(program, path, u" -V"_s, version);
    if (!version.contains(Accepted_Local_Version, Qt::CaseInsensitive))
        return false;
    program.Tools.Local_MKVMerge_Path = path;
    return true;
}

bool Find_System_MKVMerge(Program& program)
{
    QString& path = program.Tools.System_MKVMerge_Path;
    path.clear();
    if (File_Exists(program.Settings.Mkvmerge_Path_Ini)) {
        path = program.Settings.Mkvmerge_Path_Ini;
        return true;
    }
    // Deliberate: a look-up that fails leaves the bare name behind, and the run then tries again.
    if (Find_MKVMerge_In_Registry(program, path) && File_Exists(path)) {
        program.Settings.lbl_MKVMerge_Choose = u"Read from Registry"_s;
        return true;
    }
    if (program.Tools.Local_MKVMerge_Path.isEmpty()) {
        Report_Run_Failure(program, 53);
        return false;
    }
    program.Settings.lbl_MKVMerge_Choose = u"Using Local mkvmerge"_s;
    path = program.Tools.Local_MKVMerge_Path;
    return true;
}

bool Find_MKVMerge_In_Registry(Program& program, QString& path)
{
    if (const QString installed = Installed_MKVToolNix(); !installed.isEmpty())
        path = installed;
    path = Folder_Of(path) + MKVMerge_Name;
    if (File_Exists(path))
        return true;
    Report_Run_Failure(program, 52);
    return false;
}

bool Get_FFProbe_Version(Program& program, QString& version)
{
    version.clear();
    const QString path = FFProbe_Location(program);
    if (!File_Exists(path)) {
        Report_Run_Failure(program, 20);
        return false;
    }
    if (program.Tools.FFProbe_Path.isEmpty())
        program.Tools.FFProbe_Path = path;
    QString output;
    Run_With(program, program.Tools.FFProbe_Path, u" -version"_s, output);
    const qsizetype end = output.indexOf(u" the ffmpeg developers"_s, 0, Qt::CaseInsensitive);
    if (end > 0)
        version = Trim_Blanks(output.left(end));
    return true;
}

int Bitness_Of_Version(const QString& version)
{
    const auto says = [&version](const QString& mark) { return version.contains(mark, Qt::CaseInsensitive); };
    if (says(u"64-bit"_s) || says(u"64bit"_s))
        return 64;
    return says(u"32-bit"_s) || says(u"32bit"_s) ? 32 : 0;
}

/// Runs a copy of mkvmerge for its version text; reports 1 to 3 if that can't be had.
static bool Read_Version(Program& program, const QString& path, QString& version)
{
    Run_With(program, path, u" -V"_s, version);
    if (Tools_Are_To_End(program))
        return false;
    int code = 0;
    if (program.Run.Pipe_Result == 0)
        code = 1;
    else if (program.Run.Process_Result != -1)
        code = 2;
    else if (version.isEmpty())
        code = 3;
    if (code != 0)
        Report_Run_Failure(program, code);
    else
        program.Tools.MKVMerge_Bits = Bitness_Of_Version(version);
    return code == 0;
}

bool Get_Local_MKVMerge_Version(Program& program)
{
    Tool_Paths& tools = program.Tools;
    tools.Local_MKVMerge_Version.clear();
    if (tools.Local_MKVMerge_Path.isEmpty())
        tools.Local_MKVMerge_Path = program.Settings.App_Folder + MKVMerge_Name;
    tools.Local_MKVMerge_OK = File_Exists(tools.Local_MKVMerge_Path);
    if (!tools.Local_MKVMerge_OK || !Read_Version(program, tools.Local_MKVMerge_Path, tools.Local_MKVMerge_Version))
        return false;
    // Deliberate: a local copy that is too wide for the system is refused without a report.
    if (tools.MKVMerge_Bits > tools.System_Bits)
        return false;
    tools.Local_MKVMerge_Runs = true;
    return true;
}

bool Get_System_MKVMerge_Version(Program& program)
{
    Tool_Paths& tools = program.Tools;
    tools.System_MKVMerge_Version.clear();
    if (!Read_Version(program, tools.System_MKVMerge_Path, tools.System_MKVMerge_Version))
        return false;
    if (tools.MKVMerge_Bits <= tools.System_Bits)
        return true;
    Report_Run_Failure(program, 5);
    return false;
}

bool Check_Path(const QString& path, const QString& wanted_name, int& code)
{
    if (path.isEmpty())
        code = 4;
    else if (!File_Exists(path))
        code = 2;
    else if (wanted_name.isEmpty())
        code = 3;
    else
        code = File_Name_Of(path).compare(wanted_name, Qt::CaseInsensitive) == 0 ? 0 : 1;
    return code == 3 || code == 0;
}

Identifying_Tool Which_Tool_Identifies(const Program& program)
{
    if (program.Tools.Local_MKVMerge_OK && !program.Tools.Local_MKVMerge_Path.isEmpty())
        return Identifying_Tool::Local_Verbose_Text;
    if (program.Settings.Extensions.Identify_With_Any_Mkvmerge && File_Exists(program.Tools.System_MKVMerge_Path))
        return Identifying_Tool::System_Json;
    return Identifying_Tool::None;
}

void Enable_Video_Info_Button(Program& program)
{
    program.Form.btn_ViewVidInfo.Enabled = Which_Tool_Identifies(program) != Identifying_Tool::None;
}

void pic_ViewVidInfo_Click(Program& program)
{
    const Tool_Paths& tools = program.Tools;
    if (!tools.Local_MKVMerge_OK || !tools.Local_MKVMerge_Runs)
        Report_Run_Failure(program, tools.Local_MKVMerge_OK ? 5 : 60);
}
