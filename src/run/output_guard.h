#pragma once

#include "support/command_line.h"
#include "support/file_identity.h"

#include <QHash>
#include <QString>
#include <QStringList>
#include <utility>
#include <vector>

/// The last net under the folder checks. mkvmerge empties its output before it reads its inputs, so a command must not
/// be run if what stands at its output's place is, by whatever name or link, a file that it reads, another file of the
/// videos' folder, or a file that has a name outside the target.

/// Where a run reads and writes; each ends in a separator.
struct Guarded_Folders
{
    QString Videos;
    QString Target;
};

/// Why none of `outputs`, which the command would overwrite, may be written: a sentence or two for the operator. Empty
/// if they may, as where nothing stands there yet. The folders are only searched for an output that has other names.
QString Why_Not_Written(const Command_Line& command, const QStringList& outputs, const Guarded_Folders& folders);

inline const QString Shared_Output_Title = QStringLiteral("Two videos write the same file");

/// What the sources of one run have written, to tell two that write the same file: by path, or by the file that stands
/// there, as for "Film.mkv" and "film.mkv" where case doesn't count.
class Written_Outputs
{
  public:
    /// The source that has written one of `outputs` in this run; empty if none has.
    QString Writer_Of(const QStringList& outputs) const;
    /// `source` has written `outputs`; in a dry run, would have.
    void Note(const QString& source, const QStringList& outputs);

  private:
    using File_Key = std::pair<std::uint64_t, std::uint64_t>;

    QHash<QString, QString> by_path_;
    QHash<File_Key, QString> by_file_;
};
