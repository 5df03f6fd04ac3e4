#pragma once

#include "support/child_process.h"

#include <QString>
#include <QStringList>
#include <functional>

struct Program;
class Command_Line;

/// Runs an outside tool and appends what it prints to `output`, 10,240 bytes a read. Sets Pipe_Result and
/// Process_Result. After a halt the tool may still end by itself, for a second at most: see Tools_Are_To_End.
void Run_Tool_Capture(Program& program, const QString& executable, const Command_Line& command, QString& output);

/// The same with 30,720 bytes a read and with `output` emptied before the first.
void Run_Tool_Capture_Fresh(Program& program, const QString& executable, const Command_Line& command, QString& output);

/// Runs mkvmerge: drives the percentage from its progress lines, keeps its messages in Log_Console, and kills it when
/// a halt is requested, whether or not it prints. Tool_Error, Tool_Warnings and Tool_Last_Line are what it said.
void Run_Mkvmerge(Program& program, const QString& executable, const Command_Line& command);

/// Those of a command's arguments that don't stay on one line where they are printed as they are. Where mkvmerge's
/// words go into the log, such names are written out, or they would make lines of it.
QStringList Names_Of_Several_Lines(const QStringList& arguments);

/// mkvmerge's words as Run_Mkvmerge_Lines hands them out, joined by line feeds, with each of those `names` on its line.
QString With_Names_On_One_Line(QString words, const QStringList& names);

/// Runs mkvmerge and hands out each line that it prints, whole, as it comes, the empty ones too. A halt ends the run's
/// own child, no other.
void Run_Mkvmerge_Lines(Program& program, const QString& executable, const QStringList& arguments,
                        const std::function<void(const QString& line)>& take);

/// Shows the progress: `percent` of the file at `source`, `fraction` of the whole batch.
void Show_Fraction(Program& program, const QString& source, int percent, double fraction);

/// Shows the progress of the whole batch for `percent` of the current file. 16-bit arithmetic: error 6 above 327
/// videos.
void Show_Progress(Program& program, int percent, int total);

/// True once the person has asked to stop, by a halt or by leaving the program: what a tool has printed may then be
/// half a text, and says nothing against the file.
bool Tools_Are_To_End(const Program& program);
