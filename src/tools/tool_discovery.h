#pragma once

#include <QString>

struct Program;
struct Tool_Paths;

/// Finding ffprobe and the two copies of mkvmerge, and reading their versions. The system copy does the work and may
/// be any version; the local copy beside the program must be 19.0.0, whose verbose identification text can be shown.
/// What can't be found is told in a numbered report.

/// Finds all tools at start-up, in their order, and enables or disables btn_RunVantorra and btn_ViewVidInfo.
void Discover_Tools(Program& program);

/// Puts a link to PATH's ffprobe into the program's folder where none lies there; a link that leads nowhere is
/// replaced. Tells the operator if it can't. Nothing is linked in a dry run, nor where tools are used where they lie.
void Link_FFProbe(Program& program);

/// Sets FFProbe_Path if ffprobe lies in the program's folder (PATH's will do in a dry run, and where it can't be
/// linked), and runs it once; else report 20.
bool Find_FFProbe(Program& program);

/// Sets Local_MKVMerge_Path if the program's folder holds mkvmerge 19.0.0; silent if it doesn't.
bool Find_Local_MKVMerge(Program& program);

/// Sets System_MKVMerge_Path: the settings file's path if it exists, else the installed one, else the local copy.
bool Find_System_MKVMerge(Program& program);

/// Makes `path` the mkvmerge beside the installed graphical program of MKVToolNix; where none is installed, the one
/// beside what `path` names. Report 52 if there is no such file.
bool Find_MKVMerge_In_Registry(Program& program, QString& path);

/// The banner of ffprobe up to its copyright owner; empty, and still true, if it has none. Report 20 without ffprobe.
bool Get_FFProbe_Version(Program& program, QString& version);

/// Local_MKVMerge_Version and the bitness from the local copy. False without a report if there is none, or if it is
/// too wide for the system; reports 1 to 3 if it can't be run.
bool Get_Local_MKVMerge_Version(Program& program);

/// The same for the system copy; report 5 if it is too wide for the system.
bool Get_System_MKVMerge_Version(Program& program);

/// 64, 32 or, without a mark in the version text, 0.
int Bitness_Of_Version(const QString& version);

/// True with code 3 for an existing file, or with code 0 if it also has the wanted name. False: 4 empty path, 2 no such
/// file, 1 another name. Names are compared without regard to case.
bool Check_Path(const QString& path, const QString& wanted_name, int& code);

/// Who can tell what a media file holds.
enum class Identifying_Tool
{
    None,
    Local_Verbose_Text, ///< the local 19.0.0, by its verbose text
    System_Json         ///< any mkvmerge, by JSON: the extension "Identify With Any mkvmerge"
};
Identifying_Tool Which_Tool_Identifies(const Program& program);

/// btn_ViewVidInfo is enabled if some tool identifies.
void Enable_Video_Info_Button(Program& program);

/// A click on the spot of the disabled btn_ViewVidInfo says why it is disabled: report 5 or 60.
void pic_ViewVidInfo_Click(Program& program);
