#pragma once

#include <QString>
#include <QStringList>

struct Program;

/// The two lists of recently used folders as the settings file has them. The current folder is the head of the stored
/// list and no item of the drop-down (Settings.Source_MRU, Settings.Target_MRU), which holds the others.

/// Takes the value of the stored list into the path, its caption and the drop-down. "NONE" in any case empties the
/// path; the empty text changes nothing. Items behind the sixteenth are left out.
void Read_Recent_Sources(Program& program, QString value);
void Read_Recent_Targets(Program& program, QString value);

/// The value to store for a path and its drop-down: "NONE", or the folders joined by ";". A folder whose name holds
/// ";" or a line break is never stored, because it would read back as another; the place of such a path stays empty.
QString Recent_Folders_Value(const QString& path, const QStringList& list);

/// Recent_Folders_Value of the source and of the target.
QString Recent_Sources_Value(const Program& program);
QString Recent_Targets_Value(const Program& program);
