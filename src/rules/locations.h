#pragma once

#include "support/controls.h"

#include <QString>

struct Drop_Data;
struct Program;

/// The form on which the operator sees and changes where the tools are. lbl_MKVMerge_Choose, which outlives the form,
/// is kept with the settings.
struct frm_Locations
{
    QString Caption = QStringLiteral("Drop the executable files here to register their paths.");
    bool Activated = false;
    bool Visible = false;
    Form_Place Place;
    QString Focus;
    Label lbl_ffprobe_Loc{.Caption = QStringLiteral("ffprobe.exe path (cannot change)")};
    Label lbl_ffprobe_Path;
    Label lbl_ffprobe_PathFault{.Caption = QStringLiteral("FFProbe NOT FOUND at expected path.        ")};
    Label lbl_ffprobe_Version;
    Label lbl_MKVMerge_Loc{.Caption =
                               QStringLiteral("MKVMerge.exe  path  (drag'n'drop or read location from Registry)  ")};
    Label lbl_MKVMerge_Path;
    Label lbl_MKVMerge_PathFault{.Caption = QStringLiteral("MKVMerge.exe Path Not Found")};
    Label lbl_MKVMerge_Version; ///< "- " and the version text as it came, line end included
    Button btn_PathFromRegistry{.Caption = QStringLiteral("Read path from Registry")};
    Button btn_Clear{.Caption = QStringLiteral("Clear mkvmerge path")};
    Button cmd_Done{.Caption = QStringLiteral("Done")};
};

/// The form is shown. Only the first call after cmd_Done fills it, with all that takes no time.
void Locations_Activate(Program& program, frm_Locations& form);
/// The form is seen: asks the tools for their versions.
void Locations_Try_Tools(Program& program, frm_Locations& form);
void Locations_btn_Clear(Program& program, frm_Locations& form);
void Locations_btn_PathFromRegistry(Program& program, frm_Locations& form);
/// A drop on the box of the mkvmerge path: the first item, or the folder that it lies in, must hold mkvmerge.
void Locations_Drop(Program& program, frm_Locations& form, const Drop_Data& data);
/// Asks for the file; what is no mkvmerge is refused in a box of its own.
void Locations_mnu_PopupMKVMergeBrowse1(Program& program, frm_Locations& form);
void Locations_cmd_Done(Program& program, frm_Locations& form);
/// Enter is cmd_Done, F12 centres the form on the main form.
void Locations_KeyDown(Program& program, frm_Locations& form, int key);
