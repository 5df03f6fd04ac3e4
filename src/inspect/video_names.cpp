#include "inspect/video_names.h"

#include "state/program.h"
#include "support/disk_steps.h"
#include "support/files.h"
#include "support/paths.h"

using namespace Qt::StringLiterals;

bool Is_Working_Name(const QString& name)
{
    return name.startsWith(".vantorra-"_L1);
}

std::vector<Folder_Entry> Video_Entries(const QString& folder, int& error)
{
    std::vector<Folder_Entry> entries = List_Entries(folder, error);
    std::erase_if(entries, [](const Folder_Entry& entry) {
        return Is_Working_Name(entry.Name) || !Match_File_Masks(entry.Name, Video_Extensions);
    });
    return entries;
}

bool Is_Video_File(const QString& path, QString& out)
{
    out = Get_Extension(path);
    if (out.isEmpty() || !Video_Extensions.contains(out))
        return false;
    out = Get_Base_Name(path);
    return true;
}

bool Find_Video_Files(Program& program, const QString& folder, const QString& patterns, QStringList& list)
{
    list = {QString()};
    for (const QString& name : List_Files(folder)) {
        if (Match_File_Masks(name.toLower(), patterns) && !Is_Working_Name(name)) {
            if (!list.constLast().isEmpty())
                list += QString();
            list.last() = name;
        }
        program.Person.Pump_Events();
    }
    return !list.constFirst().isEmpty();
}
