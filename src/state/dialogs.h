#pragma once

#include "support/controls.h"

#include <QString>
#include <QStringList>
#include <array>
#include <cstdint>
#include <vector>

/// The main form's dialogs as records: what each shows, and what was typed or chosen there. The rules that open and
/// end them stand in rules/, the About box's in life/.

/// frm_CustomTitle: the custom title of the file or of the video track. Opened and ended by Ask_Custom_Title; the view
/// renders the record, puts what is typed into txt_CustomTitle, and closes once Visible is False.
struct Custom_Title_Form
{
    QString Title_Form_Caption; ///< the form's caption
    QString Title_Form_Text;    ///< the title, in and out
    QString Saved_Title;
    Text_Box txt_CustomTitle;
    QString Focus;
    bool Visible = false;
};

/// frm_VideoFrameRate. Opened and ended by Show_Frame_Rate_Dialog; the view renders the record, puts the chosen text
/// into cbo_FrameRate.Text, and closes once Visible is False.
struct Frame_Rate_Form
{
    Option_Pair opt_FrameRate; ///< 1 "Use ffprobe discovered Frame Rate", 2 "Select a Frame Rate:"
    Combo_Box cbo_FrameRate;
    Label lbl_SetFrameRate{.Caption = QStringLiteral("IMPORTANT: See the Help file for instructions on this control.")};
    std::int16_t Working_Kind = 0;
    bool Visible = false;
};

/// frm_VideoFormatOptions: an aspect ratio or a display size. Opened and ended by Show_Video_Format_Dialog; the view
/// renders the record, puts what is typed into its boxes, and closes once Visible is False.
struct Video_Format_Form
{
    Option_Pair opt_AspectRatio; ///< 1 "Aspect Ratio:", 2 "Display width/height:"
    Combo_Box cbo_AspectRatio;
    Panel pic_WidthHeight; ///< holds the two boxes
    Text_Box txt_Width;
    Text_Box txt_Height;
    std::int16_t Saved_Kind = 0;
    QString Saved_Value;
    bool Saved_Usable = false;
    bool Visible = false;
};

/// frm_Attachments: the one folder from which attachments come, and the mode that takes the titled subfolders instead.
/// chk_UseSubfolders lives among the options. The view renders the record and hides the form once Visible is False.
struct Attachments_Form
{
    Label lbl_AttachmentsPath;
    Label lbl_AttachmentsPathFault{.Caption = QStringLiteral("Attachment path not set!")};
    Label lbl_AttachmentsPathBox{.Caption = QStringLiteral("Drop Attachment  folder here:")};
    Label lbl_AttachmentsNotes;
    Label lbl_UseSubfolders{.Caption = QStringLiteral("Attach Contents of Titled Subfolders Instead")};
    Button btn_Clear{.Caption = QStringLiteral("Clear")};
    Button btn_Restore{.Caption = QStringLiteral("Restore")};
    QString Kept_Path; ///< the folder before btn_Clear, for btn_Restore
    QString Focus;     ///< "cmd_Done" once the logic gave it the focus
    bool Visible = false;
};

/// A language that tracks of the listed videos have.
struct Found_Language
{
    QString Line; ///< as the lists of frm_CustomFilter have it: "German (ger)"
    int Videos = 0;
    bool Choosable = true; ///< no filter could hold a tag like "a:b"
};

/// frm_CustomFilter: up to ten languages to cut from, or to keep in, the source's audio or subtitle tracks. It works
/// on Settings.WorkingFilter, which the filter commands fill and take back. The commands open the record before the
/// view shows it and end it afterwards; the view renders it, keeps Place up to date and closes once Visible is False.
/// Neither list shows a selection mark after a click.
struct Language_Filter_Form
{
    QString Caption;
    QStringList lst_LanguageList;          ///< languages not selected, "Name (code)"
    QStringList lst_LanguageSelection;     ///< languages selected
    std::vector<Found_Language> lst_Found; ///< those of the videos' tracks, selected or not, the most frequent first
    int Videos_Known = 0;                  ///< of so many videos of the list the languages are known
    QString txt_Find;                      ///< only lines that hold it are shown of lst_LanguageList; empty: all
    int opt_CustomFilter = 0;              ///< the option chosen: 0 cut, 1 keep
    std::array<QString, 2> opt_CustomFilter_Captions;
    Label lbl_SelLanguages;
    Label lbl_List1Count;
    Label lbl_FoundCount;
    Label lbl_FoundHint; ///< why lst_Found is empty; hidden where it isn't
    Label lbl_MaxLanguages{.Caption = QStringLiteral("(10  max)")};
    Form_Place Place;
    bool Has_Place = false; ///< False: centre the form over the main form; True: at Place, within the screen
    bool Visible = false;
};

/// frm_SourceMRU or frm_TargetMRU: a drop-down laid over the path box. Its items are the list in Settings.
struct Recent_List_Form
{
    QString Text;               ///< the edit line of cmbo_MRU
    bool Visible = false;       ///< the view hides the form once this is False
    bool Arrow_Pressed = false; ///< img_SourceMRU, img_TargetMRU: shifted by half its height
};

/// frm_Presets: the presets there are, to be loaded, renamed and moved to the trash. Opened and ended by
/// mnu_ManagePresets_Click; the view renders the record, keeps Row in step with its list and closes once Visible is
/// False.
struct Presets_Form
{
    QStringList Names; ///< as the disk has them; the menu shows them, too
    int Row = -1;      ///< of Names, the marked one; -1: none
    Label lbl_PresetsNote;
    Button btn_Load{.Caption = QStringLiteral("Load")};
    Button btn_Rename{.Caption = QStringLiteral("Rename...")};
    Button btn_Trash{.Caption = QStringLiteral("Move To Trash")};
    QString Focus;
    bool Visible = false;
};

/// frm_PresetName: asks what a preset is to be called. Opened and ended by the rules of presets; the view renders the
/// record, puts what is typed into txt_PresetName, and closes once Visible is False.
struct Preset_Name_Form
{
    QString Caption;
    Text_Box txt_PresetName;
    Label lbl_PresetNameFault; ///< why it can't be called so
    Button btn_Done;
    QString Keeps;         ///< rename: the present name; empty: a preset is saved
    bool Accepted = false; ///< btn_Done ended the form
    QString Focus;
    bool Visible = false;
};

/// frm_Help: the help file, where the desktop has no program for it.
struct Help_Form
{
    QString File;
};

/// frm_Splash, the About box: shown without waiting, and gone by itself after seven ticks.
struct About_Form
{
    Label lbl_Version;
    Label lblProductName;
    Label lbl_Author;
    Label lblCompany;
    Label lbl_Countdown;
    bool Timer1_Running = false; ///< the view calls Tick_About_Box every 1000 milliseconds while this is True
    bool Visible = false;        ///< the view hides the form once this is False
};
