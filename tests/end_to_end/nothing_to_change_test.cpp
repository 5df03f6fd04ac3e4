#include "end_to_end/batch_process.h"
#include "end_to_end/library.h"
#include "support/paths.h"

/// A video that mkvmerge made of one of the library's with these options, and what a batch with these arguments does
/// with it.
struct Nearly_Unchanged
{
    const char* Name;
    const char* Library;
    const char* Made = "";
    const char* Arguments = "";
    bool Skipped = false;
};

static const Nearly_Unchanged Videos[] = {
    {.Name = "as it is", .Library = "langs.mkv", .Skipped = true},
    {.Name = "cover", .Library = "cover.mkv", .Skipped = true},
    {.Name = "german picture", .Library = "plain.mkv", .Made = "--language 0:ger", .Skipped = true},
    {.Name = "region", .Library = "plain.mkv", .Made = "--language 1:pt-BR"},
    {.Name = "own aspect", .Library = "plain.mkv", .Made = "--display-dimensions 0:100x48"},
    {.Name = "no default picture", .Library = "plain.mkv", .Made = "--default-track-flag 0:no"},
    {.Name = "no default sound", .Library = "plain.mkv", .Made = "--default-track-flag 1:no", .Skipped = true},
    {.Name = "forced sound", .Library = "plain.mkv", .Made = "--forced-display-flag 1:yes", .Skipped = true},
    {.Name = "name", .Library = "plain.mkv", .Made = "--track-name \"1:a: 'b' --c\"", .Skipped = true},
    {.Name = "sound first", .Library = "plain.mkv", .Made = "--track-order 0:1,0:0"},
    {.Name = "title", .Library = "plain.mkv", .Made = "--title T", .Skipped = true},
    {.Name = "title goes", .Library = "plain.mkv", .Made = "--title T", .Arguments = "RemoveFileTitle"},
    {.Name = "no title", .Library = "plain.mkv", .Arguments = "RemoveFileTitle", .Skipped = true},
    {.Name = "picture named", .Library = "plain.mkv", .Arguments = "RemoveFileTitle SetVideoTitle"},
    {.Name = "chapters go", .Library = "langs.mkv", .Arguments = "StripChaps"},
    {.Name = "no chapters", .Library = "plain.mkv", .Arguments = "StripChaps", .Skipped = true},
    {.Name = "font goes", .Library = "langs.mkv", .Arguments = "RemoveAllAttachments"},
    {.Name = "no font", .Library = "plain.mkv", .Arguments = "RemoveAllAttachments", .Skipped = true},
    {.Name = "tags go", .Library = "plain.mkv", .Arguments = "RemoveAllTags"},
    {.Name = "no tags",
     .Library = "plain.mkv",
     .Made = "--disable-track-statistics-tags --no-track-tags",
     .Arguments = "RemoveAllTags",
     .Skipped = true},
    {.Name = "other languages", .Library = "langs.mkv", .Arguments = "EngAudioOnly"},
    {.Name = "forced subtitles", .Library = "langs.mkv", .Arguments = "SubForces"},
    {.Name = "companion", .Library = "plain.mkv", .Arguments = "AddSubs"},
    {.Name = "without one", .Library = "plain.mkv", .Arguments = "AddSubs", .Skipped = true},
};

TEST(Nothing_To_Change, OnlyWhatWouldComeOutAsItIsIsLeftAlone)
{
    QMap<QString, QList<const Nearly_Unchanged*>> batches;
    for (const Nearly_Unchanged& video : Videos)
        batches[QString::fromLatin1(video.Arguments)] += &video;
    for (auto each = batches.cbegin(); each != batches.cend(); ++each) {
        Batch_Process batch;
        for (const Nearly_Unchanged* video : each.value())
            Output_Of(u"mkvmerge"_s,
                      QStringList{u"--quiet"_s, u"--default-track-flag"_s, u"0:yes"_s, u"-o"_s,
                                  batch.Path(u"videos/"_s + QLatin1StringView(video->Name) + u".mkv"_s)} +
                          QProcess::splitCommand(QString::fromLatin1(video->Made)) +
                          QStringList{Library_File(QString::fromLatin1(video->Library))});
        Place(batch, Library_File(u"c.srt"_s), u"videos/companion.srt"_s);
        QStringList arguments{u"--careful"_s, u"--json"_s, u"--set"_s, u"Extensions/Skip What Would Not Change=On"_s};
        for (const QString& box : each.key().split(u' ', Qt::SkipEmptyParts))
            arguments += {u"--tick"_s, box};
        const Batch_Result result = batch.Run(arguments);
        QMap<QString, QString> reasons;
        for (const QJsonObject& event : result.Events(u"result"_s))
            reasons[File_Name_Of(event[u"source"_s].toString()).chopped(4)] =
                event[u"status"_s].toString() + u' ' + event[u"reason"_s].toString();
        for (const Nearly_Unchanged* video : each.value())
            EXPECT_EQ(reasons.value(QString::fromLatin1(video->Name)),
                      video->Skipped ? u"skipped nothing to change"_s : u"done "_s)
                << video->Name << result.Err.toStdString();
        EXPECT_EQ(batch.Names_In(u"target"_s).size(), std::count_if(each.value().begin(), each.value().end(),
                                                                    [](const auto* video) { return !video->Skipped; }));
    }
}
