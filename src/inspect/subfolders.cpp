#include "inspect/subfolders.h"

#include "inspect/video_names.h"
#include "support/disk_steps.h"
#include "support/paths.h"

using namespace Qt::StringLiterals;

static bool Is_Walked(const QString& path, const QString& name, const std::optional<File_Identity>& target)
{
    if (Is_Working_Name(name) || name.endsWith("_Attachments"_L1, Qt::CaseInsensitive))
        return false;
    // Of the name itself: a link to a folder is no folder here.
    const auto itself = Identity_Of_Name(path);
    const auto behind = Identity_Of(path);
    return itself && behind && itself->Is_Same_File(*behind) && !(target && target->Is_Same_File(*itself));
}

/// Adds what lies below `at`, which is `found`'s last folder.
static void Add_Below(const QString& videos, const QString& at, const std::optional<File_Identity>& target,
                      Subfolders& found)
{
    int error = 0;
    for (const Folder_Entry& entry : List_Entries(videos + at, error)) {
        if (entry.Kind != Entry_Kind::Folder || !Is_Walked(videos + at + entry.Name, entry.Name, target))
            continue;
        const QString below = at + entry.Name + Path_Separator;
        found.Paths += below;
        Add_Below(videos, below, target, found);
    }
    if (error != 0 && !at.isEmpty())
        found.Unread += at + u": "_s + System_Words(error);
}

Subfolders Find_Subfolders(const QString& videos, const QString& target)
{
    Subfolders found;
    Add_Below(With_Separator(videos), {}, Identity_Of(target), found);
    return found;
}
