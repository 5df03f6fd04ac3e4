#include "run/output_guard.h"

#include "support/disk_names.h"
#include "support/disk_steps.h"
#include "support/files.h"
#include "support/link_end.h"
#include "support/paths.h"
#include "support/shown_text.h"

using namespace Qt::StringLiterals;

static QString Input_That_Is_Output(const Command_Line& command, const QString& output)
{
    const QStringList ahead_of_inputs = {u"("_s, u"--attach-file"_s, u"--chapters"_s};
    const QStringList& arguments = command.Arguments();
    for (qsizetype index = 1; index < arguments.size(); ++index)
        if (ahead_of_inputs.contains(arguments[index - 1]) && Same_File(arguments[index], output))
            return arguments[index];
    return {};
}

/// An input of the command, or a file of the videos' folder, that is the same file on disk as the output.
static QString File_That_Is_Output(const Command_Line& command, const QString& output, const QString& videos_folder)
{
    if (!File_Exists(output))
        return {};
    QString file = Input_That_Is_Output(command, output);
    if (!file.isEmpty() || !Has_Other_Names(output))
        return file;
    for (const QString& name : List_Files(videos_folder))
        if (Same_File(videos_folder + name, output))
            return videos_folder + name;
    return {};
}

/// Where an output that is a symbolic link leads to, if that isn't in the target folder or below it.
static QString Outside_Of_Target(const QString& output, const QString& target)
{
    const std::optional<QString> leads_to = End_Of_Links(output);
    if (!leads_to || leads_to->startsWith(With_Separator(Without_Links(target)), Case_Of_Names))
        return {};
    return leads_to->isEmpty() ? output : *leads_to;
}

/// True if the file has hard links that aren't names in the target folder.
static bool Has_Names_Elsewhere(const QString& output, const QString& target)
{
    const auto file = Identity_Of(output);
    if (!file || file->Names < 2)
        return false;
    std::uint64_t names_here = 0;
    int error = 0;
    for (const Folder_Entry& entry : List_Entries(target, error)) {
        // Of the name itself: a symbolic link is no name of the file.
        const auto here = Identity_Of_Name(With_Separator(target) + entry.Name);
        if (here && here->Is_Same_File(*file))
            ++names_here;
    }
    return file->Names > names_here;
}

static QString Why_One_Is_Not_Written(const Command_Line& command, const QString& output,
                                      const Guarded_Folders& folders)
{
    const QString shown = As_One_Line(output);
    if (const QString why = Why_Not_A_Name(File_Name_Of(output)); !why.isEmpty())
        return u"the name of the output \"%1\" %2. Rename the video."_s.arg(shown, why);
    if (const QString file = File_That_Is_Output(command, output, folders.Videos); !file.isEmpty())
        return u"the output \"%1\" is the same file on disk as \"%2\", which would be destroyed. Choose another target "
               u"folder."_s.arg(shown, As_One_Line(file));
    if (const QString outside = Outside_Of_Target(output, folders.Target); !outside.isEmpty())
        return u"the output \"%1\" is a symbolic link that leads out of the target folder, to \"%2\", which would be "
               u"overwritten. Remove the link or choose another target folder."_s.arg(shown, As_One_Line(outside));
    if (Has_Names_Elsewhere(output, folders.Target))
        return u"the output \"%1\" has names outside of the target folder too (hard links), under which it would be "
               u"overwritten. Remove it from there or choose another target folder."_s.arg(shown);
    return {};
}

QString Why_Not_Written(const Command_Line& command, const QStringList& outputs, const Guarded_Folders& folders)
{
    for (const QString& output : outputs)
        if (QString reason = Why_One_Is_Not_Written(command, output, folders); !reason.isEmpty())
            return reason;
    return {};
}

QString Written_Outputs::Writer_Of(const QStringList& outputs) const
{
    for (const QString& output : outputs) {
        if (const auto writer = by_path_.constFind(Key_Of_Name(output)); writer != by_path_.constEnd())
            return *writer;
        const auto file = Identity_Of(output);
        const auto writer = file ? by_file_.constFind({file->Device, file->Number}) : by_file_.constEnd();
        if (writer != by_file_.constEnd())
            return *writer;
    }
    return {};
}

void Written_Outputs::Note(const QString& source, const QStringList& outputs)
{
    for (const QString& output : outputs) {
        by_path_.insert(Key_Of_Name(output), source);
        if (const auto file = Identity_Of(output))
            by_file_.insert({file->Device, file->Number}, source);
    }
}
