#pragma once

#include <QString>
#include <QStringList>

/// The full path of the installed graphical program of MKVToolNix, in whose folder mkvmerge lies; empty if none is
/// installed. Where there is no registry PATH is searched for it, then for mkvmerge itself.
QString Installed_MKVToolNix();

/// The first program of the name, which is given without ".exe", in a folder of PATH; where programs bring their tools
/// with them, the folder of this one comes first. `beside`, if given, must lie in the same folder. Empty: none.
QString Find_In_Path(const QString& name, const QString& beside = {});

/// True where a tool of PATH can be linked into the program's folder. Elsewhere that takes rights that few people have,
/// and the tool is used where it lies.
bool Can_Link_Tools();
