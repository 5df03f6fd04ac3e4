#pragma once

#include <QString>
#include <vector>

struct Program;

/// What the list of videos offers for the rows that are marked: its context menu and its keys.

/// mkvmerge's words about the first video that is marked, in frm_ViewVFI.
void Show_Video_Info(Program& program);
/// frm_ProcessLog at its lines.
void Show_Video_Log(Program& program);
/// The commands of what is marked, in shell quoting, a line each, are there to be pasted.
void Copy_Video_Commands(Program& program);
/// The reasons and warnings of what is marked, a line each, are there to be pasted.
void Copy_Video_Reasons(Program& program);
/// The folder of the first video that is marked, in the desktop's own program.
void Open_Video_Folder(Program& program);

struct Video_Command
{
    QString Name;
    QString Caption;
    QString Keys; ///< "Ctrl+C"
    void (*Rule)(Program&);
};

const std::vector<Video_Command>& Video_Commands();

/// True if the command of that name has something to do it with, now.
bool Is_Possible(const Program& program, const QString& name);
