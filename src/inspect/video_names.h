#pragma once

#include <QString>
#include <QStringList>
#include <vector>

struct Folder_Entry;
struct Program;

/// The accepted-video patterns, with their duplicates as they stand. Serves as a list of wild-card patterns and as a
/// text that an extension is looked for in.
inline const QString Video_Extensions = QStringLiteral(
    "*.flv;*.h264;*.m2ts;*.ts;*.mts;*.mpg;*.mkv;*.avi;*.mp4;*.m4v;*.ogv;*.mov;*.m2v;*.webm;*.vob;*.264;*.avc;*.x264;"
    "*.265;*.hevc;*.h265;*.x265;*.ivf;*.mpeg;*.mpv;*.evo;*.evob;*.vob;*.m1v;*.m2v;*.mpv;*.mpls;*.mkv;*.mk3d;*.webm;"
    "*.webmv;*.ogv;*.rm;*.rmvb;*.rv;*.vc1;*.webmv");

/// True for the names of a careful batch's working folders and of what is left of them, which are no entries of any
/// run.
bool Is_Working_Name(const QString& name);

/// Every entry of a folder that has a video's extension, whatever it is, in the order of a careful run. `error` as for
/// List_Entries.
std::vector<Folder_Entry> Video_Entries(const QString& folder, int& error);

/// True if the extension stands anywhere in Video_Extensions, in the case it has. `out` becomes the base name then;
/// else the extension, or empty if there is none. Deliberate: a mere fragment of the list ("m") counts as a video, and
/// an extension in capitals doesn't unless the caller has lowered the name.
bool Is_Video_File(const QString& path, QString& out);

/// Fills `list` with the names of the files of `folder` (ending in a separator) that match `patterns`, in the order of
/// List_Files. One empty entry, and false, if there is none or the folder can't be opened.
bool Find_Video_Files(Program& program, const QString& folder, const QString& patterns, QStringList& list);
