#include "workbenches/video_info_viewer.h"

#include "inspect/identification.h"
#include "inspect/video_names.h"
#include "rules/folders.h"
#include "state/program.h"
#include "support/drop_data.h"
#include "support/failure_box.h"
#include "support/form_placement.h"
#include "support/paths.h"
#include "support/shown_text.h"
#include "support/text.h"
#include "support/whole_file.h"
#include "workbenches/video_tracks.h"
#include "workbenches/viewer_place.h"
#include "workbenches/viewer_text_size.h"

#include <utility>

using namespace Qt::StringLiterals;

QString Video_Info_Text(const QStringList& lines)
{
    QString text;
    for (qsizetype line = 0; line < lines.size(); ++line) {
        if (lines[line].isEmpty())
            continue;
        text += lines[line] + u"     "_s;
        if (line + 1 < lines.size())
            text += Line_Break;
    }
    return text;
}

QString Video_Info_File(const QString& path)
{
    const QString folder = path.left(path.lastIndexOf(Path_Separator) + 1);
    return folder + Get_Base_Name(path) + u" Video Info.txt"_s;
}

static void Enable_Buttons(frm_ViewVFI& form, bool enabled)
{
    form.btn_SaveToFile.Enabled = enabled;
    form.btn_ShowCodecData.Enabled = enabled;
}

/// Identifies a file and shows it; false, and what was shown stays, if that can't be.
static bool Show_File(Program& program, frm_ViewVFI& form, const QString& path)
{
    if (!Identify_File(program, path))
        return false;
    form.txt_VideoInfo = Video_Info_Text(program.Media.Video_Info_Lines);
    form.Shown_File = path;
    Enable_Buttons(form, true);
    return true;
}

void ViewVFI_Load(Program& program, frm_ViewVFI& form)
{
    form = frm_ViewVFI();
    program.Media.Show_Codec_Private = 0;
}

void ViewVFI_Activate(Program& program, frm_ViewVFI& form)
{
    form.Visible = true;
    if (form.Activated)
        return;
    form.Activated = true;
    Settings_State& settings = program.Settings;
    Place_Viewer(form.Place, program.Form.Shown_Place(), settings.ViewVFI_Box, settings.ViewVFI_Not_First_Run);
    form.lst_VideoFiles.clear();
    form.List_Index = -1;
    form.Picked.clear();
    Forget_Tracks(form);
    form.txt_VideoInfo.clear();
    form.lbl_FileName.Caption.clear();
    form.shp_VideoInfo.Visible = false;
    if (Find_Video_Files(program, program.Options.Path_Videos, Video_Extensions, program.Run.Video_File_List))
        form.lst_VideoFiles = program.Run.Video_File_List;
    Show_Text_Size(settings.ViewVFI_Font_Size, form.lbl_FontSize);
    form.Focus = u"btn_Done"_s;
    const QString to_show = std::exchange(program.Videos.To_Show, {});
    const qsizetype row = form.lst_VideoFiles.indexOf(to_show.mid(program.Options.Path_Videos.size()));
    if (to_show.isEmpty())
        return;
    if (row >= 0)
        ViewVFI_Pick(program, form, Marked_In_List(program, form, static_cast<int>(row)), static_cast<int>(row));
    else // it lies in a folder below
        ViewVFI_txt_VideoInfo_Drop(program, form, {.Has_File_List = true, .Paths = {to_show}});
}

void ViewVFI_lst_VideoFiles_Click(Program& program, frm_ViewVFI& form, int index)
{
    form.List_Index = index;
    form.Picked.assign(index >= 0 ? 1 : 0, index);
    Want_Tracks(program, form);
    if (!Identifying_Tool_Runs(program))
        return;
    const QString name = form.lst_VideoFiles.value(index);
    if (name.isEmpty()) {
        Enable_Buttons(form, false);
        return;
    }
    if (!Show_File(program, form, program.Options.Path_Videos + name))
        return;
    form.shp_VideoInfo.Visible = false;
    form.lbl_FileName.Caption.clear();
}

void ViewVFI_txt_VideoInfo_Drop(Program& program, frm_ViewVFI& form, const Drop_Data& data)
{
    const QString path = data.Has_File_List ? data.Paths.value(0) : QString();
    if (!File_Exists(path)) {
        int code = 440;
        Show_Path_Error(program, code);
        return;
    }
    if (!Show_File(program, form, path))
        return;
    form.shp_VideoInfo.Visible = true;
    form.lbl_FileName.Caption = path;
    form.List_Index = -1;
    form.Picked.clear();
    Want_Tracks(program, form);
}

void ViewVFI_btn_ShowCodecData(Program& program, frm_ViewVFI& form)
{
    int& shown = program.Media.Show_Codec_Private;
    shown = shown + 1 > 1 ? 0 : shown + 1;
    form.btn_ShowCodecData.Caption = shown == 1 ? u"Hide Codec Private Data"_s : u"Show Codec Private Data"_s;
    Show_File(program, form, form.Shown_File);
    form.Focus = u"btn_Done"_s;
}

void ViewVFI_btn_SaveToFile(Program& program, frm_ViewVFI& form)
{
    const QString file = Video_Info_File(form.Shown_File);
    try {
        Write_Whole_File(file, form.txt_VideoInfo.toUtf8());
        form.lbl_Told.Caption = u"Saved as "_s + Printable(file);
    } catch (const Run_Time_Error& error) {
        program.Person.Show_Message(Failure_Box(
            u"The video info could not be saved"_s, error,
            u"A file of that name stays as it was. Make its folder writable, make room on the disk, then save again."_s));
    }
    form.Focus = u"btn_Done"_s;
}

void ViewVFI_btn_Done(Program& program, frm_ViewVFI& form)
{
    if (program.Form.Topmost_On)
        program.Person.Set_Topmost(true);
    program.Settings.ViewVFI_Box = Viewer_Box(form.Place);
    form.Activated = false;
    // Deliberate: the caption of btn_ShowCodecData stays, as Show_Codec_Private does.
    Enable_Buttons(form, false);
    form.Visible = false;
}

void ViewVFI_img_FontInc(Program& program, frm_ViewVFI& form)
{
    Increase_Text_Size(program.Settings.ViewVFI_Font_Size, form.lbl_FontSize);
}

void ViewVFI_img_FontDec(Program& program, frm_ViewVFI& form)
{
    Decrease_Text_Size(program.Settings.ViewVFI_Font_Size, form.lbl_FontSize);
}

void ViewVFI_img_FontReset(Program& program, frm_ViewVFI& form)
{
    Reset_Text_Size(program.Settings.ViewVFI_Font_Size, program.Form.Text_Size, form.lbl_FontSize);
}

void ViewVFI_KeyDown(Program& program, frm_ViewVFI& form, int key, bool shift)
{
    if (key == Key_Escape || key == Key_Enter || key == Key_Execute)
        ViewVFI_btn_Done(program, form);
    else if (key == Key_F12)
        Place_Form(shift ? Placement::Over_Main_Form : Placement::Centred, form.Place, program.Form.Shown_Place());
}
