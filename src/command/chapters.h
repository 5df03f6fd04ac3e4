#pragma once

#include "state/job_options.h"

#include <QString>
#include <cstdint>

struct Program;
class Command_Line;
class clsStringBuilder;

/// The chapter step of one video: which file replaces its chapters, made from a text file if need be. Empty: none, or
/// chapters aren't replaced. Writes its notes to Log_Faults. `videos_path` ends in a separator; `base_name` is the
/// video's name that companions are looked for by. In a dry run nothing is written or trashed, and a file still to be
/// made is named. In a careful run neither: what was made stands in Run.Video.Chapter_Xml.
QString Find_Chapter_File(Program& program, const QString& videos_path, const QString& base_name);

/// What Convert_Chapters did, bit by bit.
enum Chapter_Bit : std::uint8_t
{
    No_Xml_Either = 2,
    Not_Converted = 4,
    Xml_As_It_Stands = 8,
    Ogg_Style = 16,
    No_Text_File = 32,
    Chapter_Step_Done = 128
};

/// Chooses among `stem` + "_Chapters.ogg", ".ogm", ".txt" and ".xml", the first that is there; turns a text file into
/// `stem` + "_Chapters.xml", whose old copy goes to the trash. `out_path` gets the file to use. `convert` false: a text
/// file is only told of.
///
/// Errors name the text file and leave the old XML in place: those of Read_Ogg_Chapters and Read_Text_Chapters, and the
/// file errors. Error 75 if an old XML can't be moved to the trash: it is never overwritten.
int Convert_Chapters(Program& program, const QString& stem, bool convert, QString& out_path);

/// Replaces `chapter_file` by the first file of `folder` whose name holds `base_name` + "_chapters.xml" at its end,
/// without regard to case; leaves it alone if there is none. `video_bases` as for Find_Companions.
void Find_Chapters_Xml(const QString& folder, const QString& base_name, QString& chapter_file,
                       const QStringList& video_bases = {});

/// The line of a conversion's result, if it has one and the verbosity is above 0.
void Log_Chapter_Result(int result, std::int16_t verbosity, clsStringBuilder& faults);

/// The arguments of the chapter file, if there is one and chapters are replaced.
void Append_Chapter_Arguments(Command_Line& command, const QString& chapter_file, const JobOptions& options);
