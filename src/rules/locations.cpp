#include "rules/locations.h"

#include "state/program.h"
#include "support/drop_data.h"
#include "support/form_placement.h"
#include "support/paths.h"
#include "support/platform_names.h"
#include "tools/failure_reports.h"
#include "tools/tool_discovery.h"

using namespace Qt::StringLiterals;

static const QString MKVMerge_Name = Executable_Name(u"mkvmerge"_s);

static void Show(Label& label, const QString& caption)
{
    label.Visible = true;
    label.Caption = caption;
}

/// There is a path in use: it can be cleared, and the fault goes.
static void Show_Path_In_Use(const Program& program, frm_Locations& form)
{
    form.lbl_MKVMerge_PathFault.Visible = false;
    form.lbl_MKVMerge_Path.Caption = program.Tools.System_MKVMerge_Path;
    form.btn_Clear.Enabled = true;
}

static void Show_Version(frm_Locations& form, const QString& version)
{
    form.lbl_MKVMerge_Version.Caption = u"- "_s + version;
}

void Locations_Activate(Program& program, frm_Locations& form)
{
    form.Visible = true;
    if (form.Activated)
        return;
    form.Activated = true;

    const bool has_ffprobe = File_Exists(program.Tools.FFProbe_Path);
    form.lbl_ffprobe_PathFault.Visible = !has_ffprobe;
    form.lbl_ffprobe_Path.Visible = has_ffprobe;
    form.lbl_ffprobe_Version.Visible = has_ffprobe;
    if (has_ffprobe)
        form.lbl_ffprobe_Path.Caption = program.Tools.FFProbe_Path;
    form.lbl_ffprobe_Version.Caption.clear();
    form.lbl_MKVMerge_Version.Caption.clear();

    if (!File_Exists(program.Tools.System_MKVMerge_Path)) {
        form.btn_Clear.Enabled = false;
        form.btn_PathFromRegistry.Enabled = true;
        form.lbl_MKVMerge_PathFault.Visible = true;
        return;
    }
    Show_Path_In_Use(program, form);
}

void Locations_Try_Tools(Program& program, frm_Locations& form)
{
    if (File_Exists(program.Tools.FFProbe_Path))
        Get_FFProbe_Version(program, form.lbl_ffprobe_Version.Caption);
    if (!File_Exists(program.Tools.System_MKVMerge_Path))
        return;
    Get_System_MKVMerge_Version(program);
    Show_Version(form, program.Tools.System_MKVMerge_Version);
}

void Locations_btn_Clear(Program& program, frm_Locations& form)
{
    program.Tools.System_MKVMerge_Path.clear();
    form.lbl_MKVMerge_Path.Caption.clear();
    form.lbl_MKVMerge_Version.Caption.clear();
    program.Settings.lbl_MKVMerge_Choose.clear();
    Show(form.lbl_MKVMerge_PathFault, u"MKVMerge.exe Path Not set"_s);
    form.btn_Clear.Enabled = false;
    form.btn_PathFromRegistry.Enabled = true;
    form.Focus = u"cmd_Done"_s;
}

void Locations_btn_PathFromRegistry(Program& program, frm_Locations& form)
{
    Tool_Paths& tools = program.Tools;
    QString path;
    if (Find_MKVMerge_In_Registry(program, path)) {
        tools.System_MKVMerge_Path = path;
        program.Settings.lbl_MKVMerge_Choose = u"Read from Registry"_s;
        form.lbl_MKVMerge_Path.Caption = path;
        Get_System_MKVMerge_Version(program);
        Show_Version(form, tools.System_MKVMerge_Version);
    } else {
        // Deliberate: the operator sees this report twice.
        Report_Run_Failure(program, 52);
        if (!File_Exists(tools.Local_MKVMerge_Path)) {
            Report_Run_Failure(program, 53);
            return;
        }
        tools.System_MKVMerge_Path = tools.Local_MKVMerge_Path;
        program.Settings.lbl_MKVMerge_Choose = u"Using Local mkvmerge"_s;
        form.lbl_MKVMerge_Path.Caption = tools.System_MKVMerge_Path;
        Get_Local_MKVMerge_Version(program);
        Show_Version(form, tools.Local_MKVMerge_Version);
    }
    form.lbl_MKVMerge_PathFault.Visible = false;
    form.btn_PathFromRegistry.Enabled = false;
    form.btn_Clear.Enabled = true;
    form.Focus = u"cmd_Done"_s;
}

void Locations_Drop(Program& program, frm_Locations& form, const Drop_Data& data)
{
    if (!data.Has_File_List || data.Paths.isEmpty())
        return;
    const QString path = With_Separator(Folder_Of(data.Paths.constFirst())) + MKVMerge_Name;
    if (!File_Exists(path)) {
        program.Tools.System_MKVMerge_Path.clear();
        form.lbl_MKVMerge_Path.Caption.clear();
        Show(form.lbl_MKVMerge_PathFault, u"mkvmerge.exe can not be found at the given path!"_s);
        return;
    }
    program.Tools.System_MKVMerge_Path = path;
    Get_System_MKVMerge_Version(program);
    Show_Path_In_Use(program, form);
    form.btn_PathFromRegistry.Enabled = false;
    // Deliberate: asked a second time, so that a report of the first shows twice.
    Get_System_MKVMerge_Version(program);
    program.Settings.lbl_MKVMerge_Choose = u"Set by Operator"_s;
    Show_Version(form, program.Tools.System_MKVMerge_Version);
}

void Locations_mnu_PopupMKVMergeBrowse1(Program& program, frm_Locations& form)
{
    QString& path = program.Tools.System_MKVMerge_Path;
    const QStringList chosen =
        program.Person.Pick_File({.Title = u"Find and select the mkvmerge.exe file."_s,
                                  .Start_Folder = File_Exists(path) ? Folder_Of(path) : program.Settings.App_Folder,
                                  .File_Name = MKVMerge_Name,
                                  .Filter = u"Program Files (%1)|%1|All Files (*)|*|"_s.arg(MKVMerge_Name)});
    int code = 0;
    Check_Path(chosen.value(0), MKVMerge_Name, code);
    if (code == 0) {
        path = chosen.constFirst();
        Show_Path_In_Use(program, form);
    } else if (code == 1 || code == 2) {
        program.Person.Show_Message({.Title = u"An error occurred"_s,
                                     .Text = code == 1 ? u"mkvmerge.exe was not the file selected"_s
                                                       : u"mkvmerge.exe can't be found at the given path!"_s});
    }
}

void Locations_cmd_Done(Program& program, frm_Locations& form)
{
    form.Activated = false;
    form.Visible = false;
    if (program.Form.Topmost_On)
        program.Person.Set_Topmost(true);
    Enable_Video_Info_Button(program);
}

void Locations_KeyDown(Program& program, frm_Locations& form, int key)
{
    if (key == Key_Enter || key == Key_Execute)
        Locations_cmd_Done(program, form);
    else if (key == Key_F12)
        Place_Form(Placement::Centred, form.Place, program.Form.Shown_Place());
}
