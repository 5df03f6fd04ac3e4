#pragma once

#include "state/settings_state.h"
#include "support/disk_steps.h"

#include <QHash>
#include <QString>
#include <QStringList>
#include <optional>

/// How an output that was made and checked gets its name: in one step for each file, never over anything that wasn't in
/// the target folder when the run began, and never through a link.

/// What stood in the target folder when the run began, by name, links not followed.
class Target_Before
{
  public:
    /// Looks at the whole folder.
    explicit Target_Before(const QString& target);

    /// What stood under that name; nothing if nothing did.
    std::optional<File_Identity> At(const QString& name) const;

    /// The name as the folder has it, where capitals don't make another one; empty if nothing stood there.
    QString Name_There(const QString& name) const;

    /// The names that are pieces of a split whose output is `name`: "Film-001.mkv" for "Film.mkv".
    QStringList Pieces_Of(const QString& name) const;

    const QString& Folder() const { return folder_; }

  private:
    struct Entry
    {
        QString Name;
        File_Identity Identity;
    };

    QString folder_;
    QHash<QString, Entry> entries_; ///< by Key_Of_Name
};

/// The names that one video's output is to get.
struct Name_Choice
{
    QString Name;        ///< "Film.mkv"; a split makes those of its pieces from it
    QStringList Old;     ///< names that stand there and make way
    QString Skip_Reason; ///< not empty: the video is left alone
};

/// Chooses by what stood there before. The keys of `taken`, by Key_Of_Name, are the names that this run has given or is
/// about to give, which Output_Exists::Number steps over.
Name_Choice Choose_Name(const Target_Before& before, const QString& name, bool split, Output_Exists choice,
                        const QHash<QString, QString>& taken);

/// "Film-002.mkv": piece 2 of "Film.mkv".
QString Piece_Name(const QString& name, int number);

/// "Film (old 1).mkv": `name` with a word ahead of its extension, the base cut so that it fits into `longest`, as
/// Length_On_Disk counts it.
QString Marked_Name(const QString& name, const QString& word, int longest);

/// What became of the names.
struct Name_Result
{
    QString Failure;      ///< not empty: nothing has changed in the target folder
    QStringList Warnings; ///< in words
    QStringList Old;      ///< paths of the files that made way, under the names that they have now
};

/// Gives each of `made` (paths in the working folder) the name of the same place in `names`. The old files of `choice`
/// make way first, if they are still what they were; if anything fails on the way, every file gets its former name
/// back.
Name_Result Give_Names(const Target_Before& before, const Name_Choice& choice, const QStringList& made,
                       const QStringList& names, Rename_Ways ways = {});
