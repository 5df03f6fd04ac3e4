#pragma once

#include <QString>

/// Windows takes a path of more than 259 letters only where it begins with "\\?\", and takes such a path to the letter:
/// no blank or dot at the end of a name is taken away, no name is a device. Plain text work, on every platform.

/// An absolute Windows path in that form: "\\?\C:\folder", "\\?\UNC\server\share\folder". "/" becomes a backslash; ".",
/// ".." and what is empty between two separators are taken out, as is a separator at the end but for a drive's. One
/// that is in the form already, or is relative, stays as it is.
QString Long_Path(const QString& path);

/// Why Windows would not make a file of that name, or one of another name, in words that go on after the name; empty
/// where it would.
QString Why_Windows_Refuses(const QString& name);

/// A path as a tool is given it: as it is; on Windows in the long form if it is longer than 259 letters, or if the
/// system would take it for another one.
QString Path_For_Tool(const QString& path);
