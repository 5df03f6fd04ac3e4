#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

class clsStringBuilder;

/// Files and folders on disk: listing, reading whole, and the trash.

/// The names of the regular files in a folder (and links to them), hidden ones and names that aren't valid UTF-8
/// included (Text_Of_Name); no folder, pipe, socket or device. They come by name, as the system's home platform lists
/// them: compared by UTF-16 code unit after raising letters to upper case, equal ones by the plain name. A folder that
/// can't be opened gives an empty list.
QStringList List_Files(const QString& folder);

/// `path` if something is there; else the path of what stands in the same folder under that name but for the case of
/// its letters, the first by name, as the system's home platform would find it; else `path` again.
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

/// Moves a file or a folder to the trash. False only if something existed there and stays: then `faults` gets the line
/// "-- Could not be moved to the trash - " and the quoted path. Nothing is ever removed for good.
bool Delete_To_Recycle(const QString& path, clsStringBuilder& faults);
/// Delete_To_Recycle if the path names an existing file.
void Recycle_If_Exists(const QString& path, clsStringBuilder& faults);
/// Moves every file and folder of `folder` whose name begins with `prefix`, taken literally but for the case of its
/// letters, to the trash. False if one stays.
bool Recycle_By_Prefix(const QString& folder, const QString& prefix, clsStringBuilder& faults);
