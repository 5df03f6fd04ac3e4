#pragma once

#include <QString>

struct frm_ProcessLog;

/// Going about in the log viewer's lines: by a text, by faults, by entries. What is looked for is looked for in the
/// lines that are loaded; past the last of them it goes on with the first. None of this changes the lines.

/// Other lines were loaded: finds their entries, and the text anew.
void Look_Through_Lines(frm_ProcessLog& form);

/// Ctrl+F: the bar is there, and takes the focus.
void ProcessLog_Open_Find(frm_ProcessLog& form);
/// The lines get the focus; the text stays, for F3.
void ProcessLog_Close_Find(frm_ProcessLog& form);
/// Each letter that is typed: on to the first line from the selected one on that holds the text.
void ProcessLog_txt_Find_Change(frm_ProcessLog& form, const QString& text);
/// F3, or back. Without a text the bar opens.
void ProcessLog_Find_Next(frm_ProcessLog& form, bool back);

/// F8, or back: on to the next line that tells of a fault.
void ProcessLog_Next_Fault(frm_ProcessLog& form, bool back);

/// An entry of the list at the side is chosen: on to its head line.
void ProcessLog_lst_Entries_Click(frm_ProcessLog& form, int entry);
/// Another row is the selected one.
void ProcessLog_lst_ProcessLog_Click(frm_ProcessLog& form, int row);
