#include "support/trash.h"

#include "support/disk_steps.h"
#include "support/paths.h"
#include "support/shown_text.h"
#include "support/string_builder.h"

using namespace Qt::StringLiterals;

void Tell_Of_Untrashed(const QString& path, clsStringBuilder& faults)
{
    faults.AppendLine(u"-- Could not be moved to the trash - \""_s + As_One_Line(path) + u'"');
}

void Recycle_If_Exists(const QString& path, clsStringBuilder& faults)
{
    if (File_Exists(path))
        Delete_To_Recycle(path, faults);
}

bool Recycle_By_Prefix(const QString& folder, const QString& prefix, clsStringBuilder& faults)
{
    bool all_gone = true;
    int error = 0;
    for (const Folder_Entry& entry : List_Entries(folder, error))
        if (entry.Name.startsWith(prefix, Qt::CaseInsensitive))
            all_gone = Delete_To_Recycle(With_Separator(folder) + entry.Name, faults) && all_gone;
    return all_gone;
}
