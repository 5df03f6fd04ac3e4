#include "run/output_guard.h"

#include "support/files.h"
#include "support/paths.h"
#include "support/shown_text.h"

#include <QStringList>

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

QString File_That_Is_Output(const Command_Line& command, const QString& output, const QString& videos_folder)
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

QString Refused_Output(const QString& file, const QString& output)
{
    return u"*** Not processed: the output \""_s + As_One_Line(output) + u"\" is the same file on disk as \""_s +
           As_One_Line(file) + u"\", which would be destroyed. Choose another target folder."_s;
}
