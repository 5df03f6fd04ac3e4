#pragma once

#include <QString>

/// Kills every process of this user, on Windows of this logon, whose executable's file name is that of `executable`
/// (mkvmerge's if that is empty), whoever started it. Nothing happens where a process can't be looked at or is gone
/// already.
void Kill_By_Executable_Name(const QString& executable);
