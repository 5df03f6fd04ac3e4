#pragma once

#include "support/controls.h"
#include "workbenches/log_lines.h"

#include <QString>
#include <QStringList>
#include <cstdint>

struct Program;

/// What is looked for in the lines that are shown.
struct Log_Find
{
    bool Open = false;     ///< the bar with the box to type in
    QString Text;          ///< stays when the bar is closed; that of the video whose lines were asked for at first
    std::vector<int> Rows; ///< that hold it
};

/// The form that shows the process log, one line a row: the first 500 lines, which are the newest, or all of them.
/// The text size is kept with the settings (ProcessLog_Font_Size).
struct frm_ProcessLog
{
    QString Caption = QStringLiteral("Vantorra Process Log");
    bool Activated = false;
    bool Visible = false;
    bool Full_Log_Loaded = false;
    int Line_Limit = 499; ///< highest line index that is read
    Form_Place Place;
    QString Focus;
    QStringList lst_ProcessLog;
    int Selected_Row = -1;
    std::vector<Log_Entry_Head> lst_Entries;
    int Entry_Row = -1; ///< which of them the selected row belongs to; -1: none
    Log_Find Find;
    Button btn_LoadFullLog{.Caption = QStringLiteral("Load Full Log ")};
    Button btn_Done{.Caption = QStringLiteral("Done")};
    Label lbl_LoadLog{.Caption = QStringLiteral("Loading Full Log"), .Visible = false}; ///< for the 500 lines too
    Label lbl_LogLines;
    Label lbl_FontSize;
    Label lbl_Place; ///< "Found 3 of 17", "Fault 2 of 5"
};

/// The form is shown. Only the first call after btn_Done places it and loads the log; the lines of a video that the
/// list of videos asks for are looked for.
void ProcessLog_Activate(Program& program, frm_ProcessLog& form);
/// Reads the log up to the line of index `limit` into the list; `loaded` is true at the end. A missing log is an empty
/// list. The lines are counted in 16 bits: the 32,768th is error 6.
void Load_vProcessLog(Program& program, frm_ProcessLog& form, int limit, bool& loaded);
/// From the 500 lines to the full log, and back.
void ProcessLog_btn_LoadFullLog(Program& program, frm_ProcessLog& form);
void ProcessLog_btn_Done(Program& program, frm_ProcessLog& form);
void ProcessLog_img_FontInc(Program& program, frm_ProcessLog& form);
void ProcessLog_img_FontDec(Program& program, frm_ProcessLog& form);
void ProcessLog_img_FontReset(Program& program, frm_ProcessLog& form);
/// Esc and Enter are btn_Done, but Esc closes an open find bar first; F12 centres the form on the main form, Shift+F12
/// lays it over it.
void ProcessLog_KeyDown(Program& program, frm_ProcessLog& form, int key, bool shift);

/// The first lines of a text file, `limit` + 1 of them at most; ends of CR LF, LF and CR alike. Error 6 at the
/// 32,768th, the run-time error of the file operation if the file can't be read.
QStringList Read_Log_Lines(const QString& path, int limit);
