#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

/// Files and folders on disk: listing, and reading whole.

/// The names of the regular files in a folder (and links to them), hidden ones and names that aren't valid UTF-8
/// included (Text_Of_Name); no folder, pipe, socket or device. They come by name, as the system's home platform lists
/// them: compared by UTF-16 code unit after raising letters to upper case, equal ones by the plain name. A folder that
/// can't be opened gives an empty list.
QStringList List_Files(const QString& folder);

/// `path` if something is there by just that name; else the path of what stands in the same folder under that name but
/// for the case of its letters, the first by name, as the system's home platform would find it; else `path` again.
QString As_On_Disk(const QString& path);

/// Why a folder's content can't be listed, in the system's words; empty if it can.
QString Why_Unreadable(const QString& folder);

/// How many subfolders and files (of any kind) a folder holds.
struct Folder_Counts
{
    int Folders = 0;
    int Files = 0;
};

Folder_Counts Count_Folder(const QString& folder);

/// The whole file as bytes; the run-time error of the file operation, naming the file, if it can't be read. That is so
/// for what is no plain file, and for one above 64 MB.
QByteArray Read_File(const QString& path);
/// A text file's lines, ended by CR LF, LF or CR alike, the ends cut off; UTF-8 or, with its mark, UTF-16. A line that
/// isn't UTF-8 is read as Latin-1. The last line counts only if it isn't empty. Errors as for Read_File.
QStringList Read_Lines(const QString& path);
