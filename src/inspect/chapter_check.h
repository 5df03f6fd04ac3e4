#pragma once

#include <QString>

struct Program;

/// Why mkvmerge would refuse the chapter file of the assembled video, or the XML that was made of a chapter text, in
/// words; empty: it takes it, there is none, or a halt came. mkvmerge reads it into nothing: no file is written.
QString Why_Chapters_Are_Refused(Program& program);
