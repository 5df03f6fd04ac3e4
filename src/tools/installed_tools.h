#pragma once

#include <QString>
#include <QStringList>

/// The full path of the installed graphical program of MKVToolNix, in whose folder mkvmerge lies; empty if none is
/// installed. Where there is no registry PATH is searched for it, then for mkvmerge itself.
QString Installed_MKVToolNix();

/// The first file of the name in a folder of PATH; `beside`, if given, must lie in the same folder. Empty: none.
QString Find_In_Path(const QString& name, const QString& beside = {});
