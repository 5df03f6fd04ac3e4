#pragma once

#include <QString>
#include <filesystem>

/// Names and paths: taken apart, put together, tested. A path is one literal path: "*" and "?" are letters of a name.

/// The separator that a folder's path ends in.
inline constexpr char16_t Path_Separator = std::filesystem::path::preferred_separator;

/// Whether capitals make another name: for paths that are compared as text.
inline constexpr Qt::CaseSensitivity Case_Of_Names = Path_Separator == u'/' ? Qt::CaseSensitive : Qt::CaseInsensitive;

/// The text under which all spellings of one name or path are one, for the keys of tables: where capitals don't make
/// another name the letters are raised, one by one, as the system does it.
QString Key_Of_Name(const QString& path);

/// True for a path that leads to the same place whatever the current folder is: it begins with "/"; on Windows with a
/// drive, ":" and a backslash, or as a share, with two backslashes.
bool Is_Absolute_Path(const QString& path);
/// `path` as an absolute one with the platform's separators; a relative one goes out from `base`, or from the current
/// folder.
QString Absolute_Path(const QString& path, const QString& base = {});
/// True for "/"; on Windows for a drive or a share by itself, with or without a separator at its end.
bool Is_Root(const QString& folder);

/// True for an existing file. A path that doesn't begin with "/" never exists, nor one that isn't valid UTF-8. On
/// Windows: one that holds no ":" and is no share's, or that isn't valid UTF-16.
bool File_Exists(const QString& path);
/// True for an existing folder; the same paths never exist.
bool Folder_Exists(const QString& path);
/// True for an existing folder; the empty text never exists. Unlike Folder_Exists it takes a relative path too.
bool Path_Exists(const QString& path);

/// `folder` with a separator at its end; the empty text stays empty.
QString With_Separator(const QString& folder);

/// Text between the last separator and the last "." behind it; without a "." there, all that follows the separator.
QString Get_Base_Name(const QString& path);
/// Text after the last "." of the name, its case kept; empty if there is none.
QString Get_Extension(const QString& path);
/// Text after the last separator.
QString File_Name_Of(const QString& path);

/// Wraps a text in double quotes if it holds a blank and doesn't already begin and end with one. Empty stays empty.
QString Quote_Path(const QString& text);

/// Matches a whole name against a list of patterns with "*" and "?", separated by ";", without regard to case; false
/// if either text is empty.
bool Match_File_Masks(const QString& name, const QString& masks);

/// `path` if it is a folder; for a file everything up to and including the last separator; else the empty text.
QString Folder_Of(const QString& path);

/// True if both name the same folder: equal as text with separators added, or one folder on disk by whatever name.
bool Same_Folder(const QString& one, const QString& other);
/// True if both exist and are one file or folder on disk (same device and inode).
bool Same_File(const QString& one, const QString& other);

/// True if other names may lead to the same file on disk: it is a symbolic link, or has several hard links.
bool Has_Other_Names(const QString& path);
