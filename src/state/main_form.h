#pragma once

#include "support/controls.h"

#include <QString>
#include <cstdint>

/// What the bar and its label look like.
enum class Progress_Look
{
    Idle,
    Running,
    Finished,
    Interrupted
};

/// What the line below the bar has to tell.
enum class Summary_Look
{
    Plain,
    Warnings,
    Failures
};

/// Startform as a record: what it shows beside the options themselves. Rules change it, the window renders it.
struct Main_Form
{
    QString Caption;
    Form_Place Place;
    Form_Place Screen{0, 0, 1920, 1080, 0}; ///< the work area of the form's screen
    Form_Place Whole_Screen;                ///< where it stands while it is maximised; no width while it isn't
    bool Never_Placed = false;              ///< no window has stood anywhere yet: the first one is centred
    std::int16_t Text_Size = 10;            ///< of the form's own text, in points
    int Double_Click_Ms = 400;              ///< two clicks within that time are one double click
    bool Options_Ready = false;             ///< set by the first activation; until then the option rules do nothing
    bool Closing = false;
    bool Topmost_On = false;
    bool Delay_Toggle = false; ///< the state behind chk_AudioDelayAdjust
    QString Picked_Last;       ///< the folder that the picker gave last; empty: none yet
    QString Focus;             ///< name of the control that the logic gave the focus to; "btn_NOP" parks it

    // Buttons and pictures
    Button btn_RunVantorra{.Caption = QStringLiteral("Run Vantorra")};
    Button btn_Halt{.Caption = QStringLiteral("HALT"), .Visible = false};
    Button btn_Check{.Caption = QStringLiteral("Check")};
    Button btn_RunFailed{.Caption = QStringLiteral("Run failed again"), .Visible = false};
    Button btn_Continue{.Caption = QStringLiteral("Continue"), .Visible = false};
    Button btn_ViewVidInfo{.Caption = QStringLiteral("View Video File Info"), .Enabled = false};
    Panel pic_QuitButton;
    Panel pic_ProcessFailed{.Caption = {}, .Visible = false};
    bool img_ProcessFailed_Out = false; ///< the picture's inner image is out of its place: it flashes

    // Progress
    Label lbl_ProgressFinished{.Caption = {}, .Visible = false};
    Progress_Look Progress = Progress_Look::Idle;
    double Progress_Fraction = 0; ///< of the whole batch, 0 to 1
    Label ulbl_Title1;            ///< name of the file in work
    Label lbl_RunSummary;         ///< how the run goes, or how the last one went; empty: there was none
    Summary_Look Summary = Summary_Look::Plain;
    QString Halt_Question;       ///< what the person is asked while the run goes on; empty: nothing
    bool Quit_When_Done = false; ///< the program ends behind a run that finished; never stored
    Label lbl_Notice;            ///< in the status bar: what the last action had to say that belongs to no box

    // Folder panels: the box with its headline, the path, the fault, the mark "Empty"
    Panel pic_VideosPath{.Caption = QStringLiteral("Video Files Path (drag 'n drop)")};
    Panel pic_AudioPath{.Caption = QStringLiteral("Audio Files Path (drag 'n drop)"), .Visible = false};
    Panel pic_SubsPath{.Caption = QStringLiteral("Subtitle Files Path (drag 'n drop)"), .Visible = false};
    Panel pic_ChaptersPath{.Caption = QStringLiteral("Chapter Files Path (drag 'n drop)"), .Visible = false};
    Panel pic_TargetPath{.Caption = QStringLiteral("Target Path (drag 'n drop)")};
    Label ulbl_VideosPath;
    Label ulbl_AudioPath;
    Label ulbl_SubsPath;
    Label ulbl_ChaptersPath;
    Label ulbl_TargetPath;
    Label lbl_VideoPathFault{.Caption = QStringLiteral("Video Path Not Set")};
    Label lbl_AudioPathFault{.Caption = QStringLiteral("Audio Path Not Set")};
    Label lbl_SubsPathFault{.Caption = QStringLiteral("Subtitle Path Not Set")};
    Label lbl_ChapsPathFault{.Caption = QStringLiteral("Chapters Path Not Set")};
    Label lbl_TargetPathFault{.Caption = QStringLiteral("Target Path Not Set")};
    Label lbl_AudipPathEmpty{.Caption = QStringLiteral("Empty"), .Visible = false};
    Label lbl_SubsPathEmpty{.Caption = QStringLiteral("Empty"), .Visible = false};
    Label lbl_ChapsPathEmpty{.Caption = QStringLiteral("Empty"), .Visible = false};

    // Number boxes, and the two lines of each group's diagram (black when on, grey when off)
    Panel pic_AudioDelayValue;
    Text_Box txt_AudioDelayValue;
    QString Audio_Delay_Last_Good; ///< text of the box to return to; null: nothing was typed yet
    Panel pic_SplitVideosValue;
    Text_Box txt_SplitVideosValue;
    QString Split_Minutes_Last_Good;
    bool Audio_Diagram_On = false;
    bool Subs_Diagram_On = false;

    // Menus. The ticks of options are the options' own fields; these carry what only the form knows.
    Menu_Item mnu_File{.Caption = QStringLiteral("&File")};
    Menu_Item mnu_Process_Log{.Caption = QStringLiteral("&Process_Log v0")};
    Menu_Item mnu_Settings{.Caption = QStringLiteral("&Settings")};
    Menu_Item mnu_HiThere1{.Caption = QStringLiteral("&Help")};
    Menu_Item mnu_VerbosityStatus{.Caption = QStringLiteral("Log Verbosity 0 - Log Process Overview Only")};
    Menu_Item mnu_OSVersion;
    bool Asked_To_Go = false;  ///< by a signal: nobody answers a box any more
    bool Display_Lost = false; ///< nothing can be shown any more, and no event comes
    Panel fram_WholeForm;      ///< disabled while a run goes on

    /// What the form takes of the screen now.
    const Form_Place& Shown_Place() const { return Whole_Screen.Width > 0 ? Whole_Screen : Place; }
};
