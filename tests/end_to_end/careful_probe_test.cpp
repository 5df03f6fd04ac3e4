#include "end_to_end/batch_process.h"
#include "end_to_end/library.h"

/// Source, output and the command's text of each video, as a dry run tells them.
static QStringList Commands_Of(Batch_Process& batch, const QString& kind, const QStringList& options)
{
    const Batch_Result result = batch.Run(QStringList{u"--dry-run"_s, u"--json"_s, kind} + options);
    EXPECT_EQ(result.Exit, 0) << result.Err.toStdString();
    QStringList commands;
    for (const QJsonObject& command : result.Events(u"command"_s))
        commands += command[u"source"_s].toString() + command[u"output"_s].toString() + command[u"text"_s].toString();
    return commands;
}

TEST(Careful_Probe, WhereBothToolsNumberAlikeTheCommandIsTheClassicOneByteForByte)
{
    Batch_Process batch;
    for (const QString& name :
         {u"plain.mkv"_s, u"langs.mkv"_s, u"cover.mkv"_s, u"film.mp4"_s, u"old.avi"_s, u"tv.ts"_s})
        Place(batch, Library_File(name), u"videos/"_s + name);
    for (const QString& extension : {u"webm"_s, u"mov"_s})
        Place(batch, Short_Video(extension), u"videos/from %1.%1"_s.arg(extension));
    for (const QString& extension : {u"mp3"_s, u"ac3"_s, u"flac"_s, u"opus"_s, u"mka"_s, u"ogg"_s, u"srt"_s, u"ass"_s,
                                     u"mks"_s, u"sup"_s, u"idx"_s, u"sub"_s})
        Place(batch, Library_File(u"c."_s + extension), u"videos/plain c."_s + extension);

    const QStringList added = {u"--tick"_s, u"AddSubs"_s,       u"--tick"_s, u"AddAudio"_s,
                               u"--tick"_s, u"SetVideoTitle"_s, u"--tick"_s, u"StripOrigAudioTitle"_s};
    const QStringList filtered = {u"--tick"_s, u"EngAudioOnly"_s, u"--tick"_s, u"EngSubsOnly"_s};
    const QStringList split = {u"--tick"_s, u"SplitVideos"_s, u"--set"_s,
                               u"Other Options/Split multiple video files (minutes)=10"_s};
    for (const QStringList& options : {added, filtered, split}) {
        const QStringList classic = Commands_Of(batch, u"--classic"_s, options);
        EXPECT_EQ(classic.size(), 8) << options.join(u' ').toStdString();
        EXPECT_EQ(Commands_Of(batch, u"--careful"_s, options), classic) << options.join(u' ').toStdString();
    }
}
