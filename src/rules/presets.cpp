#include "rules/presets.h"

#include "rules/folders.h"
#include "rules/option_rules.h"
#include "rules/preset_dialogs.h"
#include "settings/preset_file.h"
#include "settings/preset_names.h"
#include "state/program.h"
#include "support/drop_data.h"
#include "support/failure_box.h"
#include "support/paths.h"
#include "support/shown_text.h"
#include "tools/tool_discovery.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

void List_Presets(Program& program)
{
    program.Presets_Dialog.Names = Preset_Names(program.Settings.App_Folder);
}

static void Note_Loaded(Program& program, const QString& path)
{
    program.Settings.Preset = {.Name = Preset_Name_Of(path), .Values = Preset_Values(program)};
}

static QString In_Quotes(const QString& name)
{
    return u'"' + Printable(name) + u'"';
}

/// Folders, tools and buttons follow the options, as they do behind clicks on the boxes.
static void Follow_Options(Program& program)
{
    const JobOptions& options = program.Options;
    const std::pair<const Check_Box&, QString> folders[] = {{options.chk_AudioPath, u"AudioPath"_s},
                                                            {options.chk_SubsPath, u"SubsPath"_s},
                                                            {options.chk_ChaptersPath, u"ChaptersPath"_s}};
    Show_Folder_Panels(options, program.Form);
    for (const auto& [box, folder] : folders)
        if (box.Value == 1)
            Check_Paths(program, folder);
    Follow_Folders(program);
    Enable_Video_Info_Button(program);
}

bool Load_Preset_File(Program& program, const QString& path)
{
    if (program.Run.Press_In_Work)
        return false;
    Label& notice = program.Form.lbl_Notice;
    notice.Caption.clear();
    try {
        const Ini_Document preset = Read_Preset(path, program.Person);
        Take_Preset(program, preset);
        Follow_Options(program);
        Note_Loaded(program, path);
        notice.Caption = u"The preset "_s + In_Quotes(program.Settings.Preset.Name) + u" is loaded."_s;
        if (const QStringList off = What_Stays_Off(program, preset); !off.isEmpty())
            notice.Caption += u" Stays off, as a folder or a choice is missing for it: "_s + off.join(u", "_s) + u'.';
    } catch (const Run_Time_Error& error) {
        program.Person.Show_Message(Failure_Box(u"The preset was not loaded"_s, error,
                                                u"Nothing has changed; all options are as they were."_s));
        return false;
    }
    Default_Run(program);
    return true;
}

bool Choose_Preset(Program& program, const QString& name)
{
    return Load_Preset_File(program, Preset_Path(program.Settings.App_Folder, name));
}

/// False: the operator was told why not.
static bool Save_Preset(Program& program, const QString& path)
{
    const QString title = u"The preset was not saved"_s;
    try {
        QDir().mkpath(Presets_Folder(program.Settings.App_Folder));
        Ini_Document preset = Load_Ini_File(path);
        if (const Settings_Row* const row = Write_Preset_To(program, preset)) {
            program.Person.Show_Message({.Title = title,
                                         .Text = u"A box is neither on nor off: [%1] \"%2\". Tick or untick it, then "
                                                 u"save again."_s.arg(row->Section, row->Key)});
            return false;
        }
        Save_Ini_File(path, preset);
    } catch (const Run_Time_Error& error) {
        program.Person.Show_Message(
            Failure_Box(title, error,
                        u"What was there stays as it was. Make the folder writable, make room on the disk, then save "
                        "again."_s));
        return false;
    }
    Note_Loaded(program, path);
    program.Form.lbl_Notice.Caption =
        u"The options are saved as preset "_s + In_Quotes(program.Settings.Preset.Name) + u'.';
    return true;
}

static bool May_Replace(Program& program, const QString& path)
{
    const QFileInfo there(path);
    if (!there.exists() && !there.isSymLink())
        return true;
    return program.Person.Show_Message(
               {.Title = u"Replace the preset?"_s,
                .Text = u"There is a preset "_s + In_Quotes(Preset_Name_Of(path)) +
                        u" already. \"OK\" puts the options of the window in place of its own."_s,
                .Buttons = Message_Buttons::Ok_Cancel}) == Message_Answer::Ok;
}

void mnu_SavePreset_Click(Program& program)
{
    if (program.Run.Press_In_Work)
        return;
    QString name = program.Settings.Preset.Name;
    // Whoever doesn't want to replace one, or couldn't save, is asked for another name.
    while (true) {
        name = Ask_Preset_Name(program, name, Why_Named::Save);
        if (name.isEmpty())
            break;
        const QString path = Preset_Path(program.Settings.App_Folder, name);
        if (May_Replace(program, path) && Save_Preset(program, path))
            break;
        if (program.Form.Asked_To_Go || program.Form.Display_Lost)
            break;
    }
    Default_Run(program);
}

bool Is_Preset_Drop(const Drop_Data& data)
{
    return data.Paths.size() == 1 && !Preset_Name_Of(data.Paths.constFirst()).isEmpty() &&
           File_Exists(data.Paths.constFirst());
}

void mnu_ManagePresets_Click(Program& program)
{
    if (program.Run.Press_In_Work)
        return;
    Open_Presets_Dialog(program);
    Show_Dialog(program, u"frm_Presets"_s);
    program.Presets_Dialog.Visible = false;
    Default_Run(program);
}
