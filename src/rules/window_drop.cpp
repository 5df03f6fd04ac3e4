#include "rules/window_drop.h"

#include "inspect/video_names.h"
#include "rules/folder_changes.h"
#include "rules/presets.h"
#include "rules/run_queue.h"
#include "rules/video_list.h"
#include "state/program.h"
#include "support/drop_data.h"
#include "support/paths.h"

#include <QSet>

using namespace Qt::StringLiterals;

namespace {
/// What was dropped, sorted out.
struct Dropped_Items
{
    QStringList Folders;
    QSet<QString> Homes;  ///< the folders that the files lie in
    QSet<QString> Videos; ///< names
    int Other_Files = 0;
    int Gone = 0;
};
} // namespace

static Dropped_Items Sorted_Out(const Drop_Data& data)
{
    Dropped_Items items;
    for (const QString& path : data.Paths) {
        if (Folder_Exists(path))
            items.Folders += path;
        else if (!File_Exists(path))
            ++items.Gone;
        else {
            items.Homes += Folder_Of(path);
            if (Match_File_Masks(File_Name_Of(path), Video_Extensions))
                items.Videos += File_Name_Of(path);
            else
                ++items.Other_Files;
        }
    }
    return items;
}

/// Why nothing is done with them; empty: it can be taken.
static QString Why_Not_Taken(const Drop_Data& data, const Dropped_Items& items)
{
    if (!data.Has_File_List)
        return u"Only files and folders can be dropped here."_s;
    const bool one_folder = items.Folders.size() == 1 && items.Homes.isEmpty();
    const bool one_home = items.Folders.isEmpty() && items.Homes.size() == 1;
    if (items.Folders.isEmpty() && items.Homes.isEmpty())
        return u"Nothing has changed: what was dropped isn't there."_s;
    if (!one_folder && !one_home)
        return u"Nothing has changed: drop one folder, or videos of one folder."_s;
    if (one_home && items.Videos.isEmpty())
        return u"Nothing has changed: no video is among what was dropped."_s;
    return {};
}

/// Nothing where all that was dropped is taken.
static QStringList What_Is_Left(const Dropped_Items& items)
{
    QStringList words;
    if (items.Other_Files > 0)
        words += items.Other_Files == 1 ? u"One that is no video is left alone."_s
                                        : u"%1 that are no videos are left alone."_s.arg(items.Other_Files);
    if (items.Gone > 0)
        words += items.Gone == 1 ? u"One can't be found."_s : u"%1 can't be found."_s.arg(items.Gone);
    return words;
}

/// Ticks what was dropped, and nothing else. What there is to say about it.
static QString Tick_Dropped(Program& program, const QSet<QString>& names)
{
    if (!Follow_Videos_Folder(program))
        Recount_Videos_Folder(program);
    Video_List& list = program.Videos;
    if (!list.Takes_Ticks)
        return static_cast<qsizetype>(list.Rows.size()) > names.size()
                   ? u"A classic run takes every video of the folder; \"Careful Batch\" can take some."_s
                   : QString();
    Tick_Only(list, names);
    return names.size() == 1 ? u"Only the dropped video is ticked."_s
                             : u"Only the %1 dropped videos are ticked."_s.arg(names.size());
}

/// A folder that is dropped means all of it, also where only some of it was ticked before.
static QString Tick_All(Video_List& list)
{
    const QSet<QString> all(list.Places.keyBegin(), list.Places.keyEnd());
    if (!list.Takes_Ticks || Ticked_Paths(list) == all)
        return {};
    Tick_Only(list, all);
    return u"All videos of the folder are ticked again."_s;
}

void Drop_On_Window(Program& program, const Drop_Data& data)
{
    if (program.Run.Run_In_Progress && !program.Run.Checking)
        return Drop_In_Run(program, data);
    if (program.Run.Press_In_Work)
        return;
    if (Is_Preset_Drop(data)) {
        Load_Preset_File(program, data.Paths.constFirst());
        return;
    }
    Label& notice = program.Form.lbl_Notice;
    const Dropped_Items items = Sorted_Out(data);
    notice.Caption = Why_Not_Taken(data, items);
    if (!notice.Caption.isEmpty())
        return;
    const QString before = program.Options.Path_Videos;
    const QString folder = items.Folders.isEmpty() ? *items.Homes.begin() : items.Folders.constFirst();
    Drop_On_Videos_Panel(program, {.Has_File_List = true, .Paths = {folder}});
    QStringList words;
    if (items.Folders.isEmpty())
        words += Tick_Dropped(program, items.Videos);
    else if (program.Options.Path_Videos == before)
        words += Tick_All(program.Videos);
    words += What_Is_Left(items);
    words.removeAll(QString());
    notice.Caption = words.join(u' ');
}
