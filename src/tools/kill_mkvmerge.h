#pragma once

#include <QString>

/// Kills every process of this user whose executable's file name is that of `executable` ("mkvmerge" if that is
/// empty), whoever started it. Nothing happens where a process can't be looked at or is gone already.
void Kill_By_Executable_Name(const QString& executable);
