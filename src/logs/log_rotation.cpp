#include "logs/log_rotation.h"

#include "support/disk_steps.h"
#include "support/files.h"
#include "support/operator.h"
#include "support/paths.h"
#include "support/plain_file.h"
#include "support/run_time_error.h"
#include "support/trash.h"

#include <QDateTime>
#include <QFile>
#include <QUuid>
#include <chrono>

using namespace Qt::StringLiterals;

QString Process_Log_Path(const QString& app_folder)
{
    return app_folder + u"Vantorra_Process.log"_s;
}

QString Process_Log_Work_Path(const QString& app_folder)
{
    return app_folder + u"Vantorra_ProcessNEW.log"_s;
}

QString Process_Log_Whole_Path(const QString& app_folder)
{
    return app_folder + u"Vantorra_ProcessALL.log"_s;
}

QString Process_Log_Generation(const QString& app_folder, char16_t letter)
{
    return app_folder + u"Vantorra_Process"_s + QChar(letter) + u".log"_s;
}

static const QString Waiting_Entry_Prefix = QStringLiteral("Vantorra_ProcessNEW-");

QString New_Waiting_Entry_Path(const QString& app_folder)
{
    using namespace std::chrono;
    // They go into the log in the order of their names, so that two of one millisecond have to differ, too.
    const auto now = system_clock::now().time_since_epoch();
    const QString second =
        QDateTime::fromSecsSinceEpoch(floor<seconds>(now).count(), Qt::UTC).toString(u"yyyyMMdd-hhmmss-"_s);
    const QString part = QString::number((now % 1s) / 1ns).rightJustified(9, u'0');
    return app_folder + Waiting_Entry_Prefix + second + part + u'-' +
           QUuid::createUuid().toString(QUuid::Id128).left(8) + u".log"_s;
}

QStringList Waiting_Entries(const QString& app_folder)
{
    QStringList names;
    for (const QString& name : List_Files(app_folder))
        if (name.startsWith(Waiting_Entry_Prefix) && name.endsWith(u".log"_s) && Is_Plain_File(app_folder + name))
            names += name;
    names.sort();
    return names;
}

void Rename_Log(const QString& from, const QString& to)
{
    if (const int error = Rename_Onto(from, to); error != 0)
        Raise_File_Error(u"Renaming a process log to "_s + File_Name_Of(to), from, error);
}

static void Pump_Three_Times(Operator& person)
{
    for (int pump = 0; pump < 3; ++pump)
        person.Pump_Events();
}

/// Makes room at A. False: the oldest can't go.
static bool Shift_Generations(const QString& app_folder, Operator& person, clsStringBuilder& faults)
{
    const auto generation = [&](char16_t letter) { return Process_Log_Generation(app_folder, letter); };
    // Deliberate: gaps aren't closed. An E without a D stays where it is.
    if (File_Exists(generation(u'E')) && File_Exists(generation(u'D')) && !Delete_To_Recycle(generation(u'E'), faults))
        return false;
    for (const char16_t letter : {u'D', u'C', u'B', u'A'}) {
        if (!File_Exists(generation(letter)))
            continue;
        Rename_Log(generation(letter), generation(static_cast<char16_t>(letter + 1)));
        Pump_Three_Times(person);
    }
    return true;
}

Rotation Rotate_Logs(const QString& app_folder, Log_Name name, Operator& person, clsStringBuilder& faults)
{
    const QString log = Process_Log_Path(app_folder);
    const QString newest = Process_Log_Generation(app_folder, u'A');
    if (!File_Exists(log))
        return Rotation::No_Log;
    // One file under both names: a run died after its rotation and before the new log took the name.
    if (Same_File(log, newest)) {
        if (name == Log_Name::Freed)
            QFile::remove(log);
        return Rotation::Rotated;
    }
    if (!Shift_Generations(app_folder, person, faults))
        return Rotation::Refused;
    if (name == Log_Name::Freed || Give_Second_Name(log, newest) != 0)
        Rename_Log(log, newest);
    return Rotation::Rotated;
}
