#pragma once

#include "support/paths.h"

#include <QString>
#include <QStringList>

struct Program;

/// How one file of a run ended. A file that is done and has warnings counts as done with warnings.
struct File_Outcome
{
    enum class Kind
    {
        Done,
        Failed,
        Skipped, ///< left alone: it is no video, or an option leaves it out
        Not_Run  ///< mkvmerge never came to its end with it: a halt, a dry run
    };
    QString Source;
    QString Sub_Path = {};     ///< of its folder below the videos' folder, ending in a separator; empty: that itself
    QString Output = {};       ///< of a split run: its first piece
    QStringList Pieces = {};   ///< of a split run: all files that it wrote
    QStringList Replaces = {}; ///< careful: names in the target folder that make way for the output
    Kind Status = Kind::Skipped;
    int Exit = 0; ///< mkvmerge's exit status, minus a signal's number, or -1 if it never ran
    double Seconds = 0;
    QString Reason = {};       ///< in words, one line; empty where the file is plainly done
    QStringList Warnings = {}; ///< in words, one line each
    bool Source_Kept = false;  ///< it was to go to the trash, and stays because of a warning or a failure

    /// What the source is called beside the others of its run.
    QString Name() const { return Sub_Path + File_Name_Of(Source); }
};

/// What a driver may want to hear while a run goes on. The headless driver prints it; the window
/// keeps its list of videos by it. All of it comes on the thread that the run was started on; several files may be in
/// work at a time.
class Run_Listener
{
  public:
    virtual ~Run_Listener() = default;

    /// The run is refused before its loop begins, and why.
    virtual void Refused(const QString& /*reason*/) {}

    /// The loop begins; `files` accepted videos were found.
    virtual void Run_Started(int /*files*/) {}

    /// A careful batch takes these in work, in this order; paths of the sources.
    virtual void Videos_Chosen(const QStringList& /*sources*/) {}

    /// `index` counts from 1.
    virtual void File_Started(int /*index*/, const QString& /*source*/) {}

    /// A command was assembled and is about to be run (or, in a dry run, not): Run.Mkvmerge_Arguments of `video`, the
    /// program that knows the source and what lies beside it. A careful batch has one for each video in work.
    virtual void Command_Ready(const Program& /*video*/, const QString& /*source*/, const QString& /*output*/) {}

    /// Percent of a file in work and of the whole batch.
    virtual void Progress(const QString& /*source*/, int /*percent*/, int /*overall*/) {}

    /// A numbered report was raised.
    virtual void Reported(int /*code*/) {}

    /// Something that the operator should know and that stops nothing.
    virtual void Warned(const QString& /*title*/, const QString& /*text*/) {}

    /// So many videos of the folder are left out, because they were done before and nothing has changed since; the
    /// names of those that were done with warnings.
    virtual void Done_Before(int /*files*/, const QStringList& /*with_warnings*/) {}

    virtual void File_Finished(const File_Outcome&) {}
};
