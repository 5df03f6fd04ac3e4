#include "logs/log_rotation.h"

#include "support/files.h"
#include "support/operator.h"
#include "support/paths.h"
#include "support/run_time_error.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <filesystem>

using namespace Qt::StringLiterals;
namespace fs = std::filesystem;

QString Process_Log_Path(const QString& app_folder)
{
    return app_folder + u"Vantorra_Process.log"_s;
}

QString Process_Log_Work_Path(const QString& app_folder)
{
    return app_folder + u"Vantorra_ProcessNEW.log"_s;
}

QString Process_Log_Generation(const QString& app_folder, char16_t letter)
{
    return app_folder + u"Vantorra_Process"_s + QChar(letter) + u".log"_s;
}

static fs::path Native(const QString& path)
{
    return QFileInfo(path).filesystemFilePath();
}

/// Gives a file a second name; false where that can't be.
static bool Link(const QString& file, const QString& second_name)
{
    std::error_code error;
    fs::create_hard_link(Native(file), Native(second_name), error);
    return !error;
}

void Rename_Log(const QString& from, const QString& to)
{
    std::error_code error;
    fs::rename(Native(from), Native(to), error);
    if (error)
        Raise_File_Error(u"Renaming a process log to "_s + File_Name_Of(to), from, error.value());
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
    if (name == Log_Name::Freed || !Link(log, newest))
        Rename_Log(log, newest);
    return Rotation::Rotated;
}

void Trash_Replaced_Log(const QString& app_folder, clsStringBuilder& faults)
{
    const QString log = Process_Log_Path(app_folder);
    const QTemporaryDir beside(app_folder + u".Vantorra_Process-XXXXXX"_s);
    const QString second_name = beside.filePath(File_Name_Of(log));
    const bool linked = beside.isValid() && Link(log, second_name);
    Delete_To_Recycle(linked ? second_name : log, faults);
}
