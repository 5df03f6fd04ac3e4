#pragma once

#include <QString>
#include <vector>

struct frm_ViewVFI;
struct Program;

/// Several videos picked in the video info viewer, and the table of the tracks of what is picked. The tools are asked
/// about one video at a time, and only while the table is in front, so that whoever looks on can do something else in
/// between.

/// These rows of the list are picked; one alone as ViewVFI_lst_VideoFiles_Click has it. The text stays that of the file
/// shown if it is one of them, else it is that of the row `current`.
void ViewVFI_Pick(Program& program, frm_ViewVFI& form, const std::vector<int>& rows, int current);

/// The rows of what is marked in the list of the videos, as far as they are in this one; `row` alone if there are none.
std::vector<int> Marked_In_List(const Program& program, const frm_ViewVFI& form, int row);

/// The table comes to the front, or the text.
void ViewVFI_Show_Table(Program& program, frm_ViewVFI& form, bool in_front);

/// The table is to hold what is picked, or else what was dropped.
void Want_Tracks(const Program& program, frm_ViewVFI& form);

/// The table is in front and lacks a video that the tools haven't been asked about.
bool Is_To_Ask(const frm_ViewVFI& form);

/// Asks about the next video that the table lacks. A video that can't be read has a row that says why.
void ViewVFI_Ask_Next(Program& program, frm_ViewVFI& form);

/// Ends the tool that is asked now, from an event in its midst; what it would have said isn't known then.
void ViewVFI_Stop_Asking(Program& program, frm_ViewVFI& form);

/// Nothing is wanted or known: the form is opened anew.
void Forget_Tracks(frm_ViewVFI& form);
