#pragma once

#include "state/run_listener.h"
#include "support/file_identity.h"

#include <QHash>
#include <QString>
#include <QStringList>
#include <utility>
#include <vector>

struct Program;

/// The journal: one line for each start of a run and for each video's result, in files of the program's folder that are
/// only ever added to. It is kept by both kinds of run; run/journal_results reads it. docs/formats/journal.md.

/// The path of the file that the next line goes to.
QString Journal_Path(const QString& app_folder);

/// Notes the start of a run over `names`. Nothing is written in a dry run. Returns why it couldn't be noted, in words.
QString Note_Start(const Program& program, const QStringList& names);

/// Notes a result; `sync`: it is on the disk when this returns. Returns why it couldn't be noted, in words.
QString Note_Result(const Program& program, const File_Outcome& outcome, const QStringList& outputs,
                    const QString& hash, bool sync);

/// The same for a video of a classic run, whose journal nobody waits for.
void Note_Result(const Program& program, const File_Outcome& outcome, const QString& hash);

/// Notes videos that never had their turn, all at once: there may be thousands, and whoever halts a run waits for them.
void Note_Not_Run(const Program& program, const std::vector<File_Outcome>& outcomes);

/// The options that decide what becomes of a video, one text: another text, another outcome. A run asks once, as the
/// form is locked meanwhile (Run.Options_In_Force).
QString Options_Text(const Program& program);

/// What a result depends on, without looking into any file: the options in force, and name, size and time of change of
/// the source and of every file that may be added to it. Empty in a dry run that asks for nothing of the journal.
QString Hash_Of_Video(const Program& program, const QString& source);

/// What was listed of a folder for hashes, by folder and masks: each name that may go with a video, and the name in
/// lower case. Who hashes many videos at one moment keeps one, so that no folder is listed for each of them anew.
using Known_Listings = QHash<QString, QList<std::pair<QString, QString>>>;
QString Hash_Of_Video(const Program& program, const QString& source, Known_Listings& known);
