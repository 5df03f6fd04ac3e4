#pragma once

#include <QString>

struct Drop_Data;
struct Program;

/// How the five folders change: something is dropped on a panel, or the operator browses. What is typed stands in
/// typed_folders.

enum class Folder_Box
{
    Videos,
    Audio,
    Subtitles,
    Chapters,
    Target
};

/// An existing file's path becomes that of its folder, with a separator: True. Any other text becomes empty: False.
bool Folder_Of_File(QString& path);

/// The folder that was dropped, or that of the file that was, with a separator; what is neither stays empty. Only the
/// first item counts. False, with `path` empty, if there is no list of files or no drop is allowed now.
bool Drop_Folder(const Drop_Data& data, bool allowed, QString& path);
/// As Drop_Folder, but only an existing file yields its path and True.
bool Drop_File(const Drop_Data& data, bool allowed, QString& path);

/// Something was dropped on a folder's panel. Nothing happens while a run goes on.
void Drop_On_Videos_Panel(Program& program, const Drop_Data& data);
void Drop_On_Audio_Panel(Program& program, const Drop_Data& data);
void Drop_On_Subs_Panel(Program& program, const Drop_Data& data);
void Drop_On_Chapters_Panel(Program& program, const Drop_Data& data);
void Drop_On_Target_Panel(Program& program, const Drop_Data& data);

/// `folder`, an existing one with a separator, was chosen for the box, by the picker or by being typed.
void Choose_Folder(Program& program, Folder_Box box, const QString& folder);

/// The browse commands of the panels' popup menus.
void mnu_PopupVideoBrowse1_Click(Program& program);
void mnu_PopupAudioBrowse1_Click(Program& program);
void mnu_PopupSubsBrowse1_Click(Program& program);
void mnu_PopupChapsBrowse1_Click(Program& program);
void mnu_PopupTargetBrowse1_Click(Program& program);
