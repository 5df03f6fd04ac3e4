#pragma once

#include <QStringList>
#include <cstdio>

struct Program;

/// `vantorra-batch identify FILE...`: what mkvmerge says of each file, as the video info viewer shows it, or with
/// `json` as one object a line. An empty line stands between two files. Codec-private values are marked "XX" unless
/// Show_Codec_Private is set.
///
/// The exit status: 0; 1 if no tool can identify, which a report has told; 2 if some file could not be identified; 130
/// after a halt.
int Print_Identification(Program& program, const QStringList& files, bool json, std::FILE* out);
