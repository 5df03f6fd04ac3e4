#pragma once

#include "common/test_program.h"

#include <QByteArrayList>
#include <QJsonObject>
#include <QList>
#include <QProcess>

/// What one run of the real vantorra-batch came to.
struct Batch_Result
{
    int Exit = -1; ///< exit status, or minus a signal's number
    QString Out;
    QString Err;

    /// The lines of Out as JSON objects; a test failure for a line that is none.
    QList<QJsonObject> Events() const;
    /// The events of that kind, in order.
    QList<QJsonObject> Events(const QString& kind) const;
    /// The value of `key` in each event of that kind.
    QStringList Values(const QString& kind, const QString& key) const;
};

/// The real program over folders of its own: videos/, target/, app/, with the trash in trash/.
struct Batch_Process : Test_Program
{
    QProcess Process;

    Batch_Process();
    ~Batch_Process();

    /// Sets a variable of the environment that the program gets; an empty value takes it away.
    void Set_Environment(const QString& name, const QString& value);

    /// Starts the program over the three folders as a classic run, with `more` behind; Finish waits for its end.
    void Start(const QStringList& more = {});
    /// Starts it with these arguments and no others.
    void Start_With(const QStringList& arguments);
    /// Reads standard output up to and including the next line that holds `text`; false if the program ends first.
    bool Read_Until(const QByteArray& text);
    Batch_Result Finish();

    Batch_Result Run(const QStringList& more = {});

    /// The same with what a person would type; double quotes hold words together.
    Batch_Result Run(const QString& more) { return Run(QProcess::splitCommand(more)); }

    /// Every file and folder below Root with its size, time of change and content, one line each.
    QStringList Tree() const;
    QStringList Names_In(const QString& folder) const;

  private:
    QByteArray out_;
};

/// What has to stand ready before the program is started; on Windows a console of its own, and mkvmerge in the
/// registry.
void Prepare_For_Start(QProcess& process);
/// What a person does who wants the program to stop: SIGINT; on Windows Ctrl-C.
void Ask_To_Halt(QProcess& process);

/// What a stand-in's script, in the test's folder, does to have the program killed or asked to halt.
extern const char* const Kill_It;
extern const char* const Halt_It;
/// Has to be called in the run where a script does that: on Windows it can only leave word. Waits for the end then.
void Do_As_The_Script_Asks(Batch_Process& batch);

/// The children of a process, by number; those that ended and were never reaped, too.
QList<long> Children_Of(qint64 process);
