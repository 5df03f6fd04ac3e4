#pragma once

#include "support/controls.h"
#include "workbenches/track_table.h"

#include <QString>
#include <QStringList>

struct Drop_Data;
struct Program;

/// The tab with the tracks of what is picked.
struct Track_Tab
{
    bool In_Front = false;                  ///< only then the tools are asked
    QStringList Wanted;                     ///< full paths of the videos, in their order
    std::size_t Asked = 0;                  ///< so many of them have an answer
    std::map<QString, Asked_Video> Answers; ///< by path, of all that were asked while the form is open
    Track_Table Table;                      ///< of those that have an answer
    bool Stop = false;                      ///< the tool that is asked now is to end
};

/// The form that shows mkvmerge's identification of one video, picked from the source folder's list or dropped on the
/// text. The text size is kept with the settings (ViewVFI_Font_Size).
struct frm_ViewVFI
{
    QString Caption = QStringLiteral("View Video File Information");
    bool Activated = false;
    bool Visible = false;
    Form_Place Place;
    QString Focus;
    QString Shown_File; ///< full path
    QStringList lst_VideoFiles;
    int List_Index = -1;
    std::vector<int> Picked; ///< rows of the list, from above; List_Index is one of them
    QString txt_VideoInfo;
    Label lbl_FileName; ///< path of a dropped file; empty for one of the list
    Label lbl_DroppedFileName{.Caption = QStringLiteral("Dropped File Path/Name")};
    Panel shp_VideoInfo{.Caption = {}, .Visible = false}; ///< the frame around a dropped file's name
    Button btn_ShowCodecData{.Caption = QStringLiteral("Show Codec Private Data"), .Enabled = false};
    Button btn_SaveToFile{.Caption = QStringLiteral("Save to Text File"), .Enabled = false};
    Button btn_Done{.Caption = QStringLiteral("Done")};
    Label lbl_FontSize;
    Label lbl_Told; ///< where the text was saved; what the tracks' table comes to
    Track_Tab Tracks;
};

/// The form is made: nothing is shown, codec-private values are hidden.
void ViewVFI_Load(Program& program, frm_ViewVFI& form);
/// The form is shown. Only the first call after btn_Done places it and lists the source folder; a video that the list
/// of videos asks for is shown at once.
void ViewVFI_Activate(Program& program, frm_ViewVFI& form);
/// A click on a row of the list; -1 or an empty name shows nothing new.
void ViewVFI_lst_VideoFiles_Click(Program& program, frm_ViewVFI& form, int index);
/// A drop on the text: the first item must be an existing file, whatever its extension; else path error 440.
void ViewVFI_txt_VideoInfo_Drop(Program& program, frm_ViewVFI& form, const Drop_Data& data);
/// Shows or hides the codec-private values of the file shown.
void ViewVFI_btn_ShowCodecData(Program& program, frm_ViewVFI& form);
/// Writes the text to a file beside the one shown, and says where; the run-time error of the file operation if it
/// can't.
void ViewVFI_btn_SaveToFile(Program& program, frm_ViewVFI& form);
void ViewVFI_btn_Done(Program& program, frm_ViewVFI& form);
void ViewVFI_img_FontInc(Program& program, frm_ViewVFI& form);
void ViewVFI_img_FontDec(Program& program, frm_ViewVFI& form);
void ViewVFI_img_FontReset(Program& program, frm_ViewVFI& form);
/// Esc and Enter are btn_Done, F12 centres the form on the main form, Shift+F12 lays it over it.
void ViewVFI_KeyDown(Program& program, frm_ViewVFI& form, int key, bool shift);

/// The lines as they are shown: five blanks behind each, CR LF between them; empty lines are left out.
QString Video_Info_Text(const QStringList& lines);

/// The path up to the last "." of its name, and " Video Info.txt".
QString Video_Info_File(const QString& path);
