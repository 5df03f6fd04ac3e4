#include "common/media.h"
#include "end_to_end/batch_process.h"
#include "support/paths.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>

/// The command line that a --dry-run gives for the only video of the folder.
static QStringList Command_Of(Batch_Process& batch, const QString& more)
{
    const Batch_Result result = batch.Run(u"--dry-run --json "_s + more);
    EXPECT_EQ(result.Exit, 0) << result.Err.toStdString();
    return result.Events(u"command"_s).value(0)[u"arguments"_s].toVariant().toStringList();
}

TEST(Vantorra_Batch, AFolderOfVideosBecomesAFolderOfMatroskaFiles)
{
    Batch_Process batch;
    const QStringList extensions{u"mkv"_s, u"mp4"_s, u"avi"_s, u"ts"_s, u"webm"_s, u"mov"_s};
    for (const QString& extension : extensions)
        Place(batch, Short_Video(extension), u"videos/from %1.%1"_s.arg(extension));
    batch.Write(u"videos/readme.txt"_s, "no video");
    batch.Write(u"videos/.vantorra-ours.mkv"_s, "no entry");

    const Batch_Result result = batch.Run({u"--json"_s, u"--set"_s, u"Menu/Log Verbosity=1"_s});
    EXPECT_EQ(result.Exit, 0) << result.Err.toStdString();
    for (const QString& extension : extensions)
        EXPECT_EQ(Tracks_Of(batch.Path(u"target/from %1.mkv"_s.arg(extension))).size(), 2) << extension.toStdString();

    const QList<QJsonObject> events = result.Events();
    ASSERT_GE(events.size(), 2);
    EXPECT_EQ(events.front()[u"event"_s].toString(), u"run"_s);
    EXPECT_EQ(events.front()[u"files"_s].toInt(), 6);
    EXPECT_EQ(events.back()[u"status"_s].toString(), u"finished"_s);
    EXPECT_EQ(events.back()[u"done"_s].toInt(), 6);
    EXPECT_EQ(result.Values(u"file"_s, u"index"_s), (QStringList{u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s, u"6"_s}));
    EXPECT_EQ(result.Values(u"result"_s, u"status"_s), QStringList(6, u"done"_s));
    EXPECT_EQ(result.Values(u"file"_s, u"source"_s), result.Values(u"result"_s, u"source"_s));
    for (const QJsonObject& command : result.Events(u"command"_s)) {
        EXPECT_TRUE(command[u"text"_s].toString().startsWith(u" --ui-language "_s));
        EXPECT_EQ(command[u"arguments"_s][3].toString(), command[u"output"_s].toString());
    }
    for (const QString& overall : result.Values(u"progress"_s, u"overall"_s))
        EXPECT_LE(overall.toInt(), 100);

    EXPECT_EQ(batch.Read(u"app/Vantorra_Process.log"_s).count("-- Processing video file - "), 6);
    EXPECT_TRUE(batch.Names_In(u"app"_s).contains(u"Vantorra.ini"_s));
}

TEST(Vantorra_Batch, ADryRunWritesNothingAtAll)
{
    Batch_Process batch;
    QDir(batch.Path(u"app"_s)).removeRecursively();
    Place(batch, Rich_Video(), u"videos/film.mkv"_s);
    batch.Write(u"videos/film_Chapters.txt"_s, "00:00:00.00 One\r\n00:00:01.00 Two\r\n");
    const QStringList before = batch.Tree();

    const Batch_Result result = batch.Run(u"--dry-run --tick chk_DeleteVideoAP --tick chk_ReplaceChapters --tick "
                                          "chk_ConvertTXT --set \"Menu/Delete Source Video Sundry Files=True\""_s);
    EXPECT_EQ(result.Exit, 0) << result.Err.toStdString();
    EXPECT_EQ(result.Out.count(u'\n'), 1);
    const QString tool = Path_Separator == u'/' ? u"/mkvmerge --ui-language en_US --output "_s
                                                : u"\\mkvmerge.exe\" --ui-language en --output C:"_s;
    EXPECT_TRUE(result.Out.contains(tool)) << result.Out.toStdString();
    EXPECT_TRUE(result.Out.contains(u"film_Chapters.xml"_s)) << "a chapter file still to be made is named";

    // A refusal, the settings and a run-time error leave nothing, either.
    batch.Start_With({u"settings"_s, u"--dry-run"_s, u"--app-folder"_s, batch.Path(u"app"_s)});
    EXPECT_EQ(batch.Finish().Exit, 0);
    const Batch_Result refused = batch.Run(u"--dry-run --target gone"_s);
    EXPECT_EQ(refused.Exit, 1);
    EXPECT_TRUE(refused.Err.contains(u"gone\" is no folder that can be opened."_s)) << refused.Err.toStdString();
    EXPECT_EQ(batch.Run(u"--dry-run --set MainWindow/Left=far"_s).Exit, 64);
    EXPECT_EQ(batch.Tree(), before);
}

TEST(Vantorra_Batch, ACheckTellsEveryProblemAndWritesNothing)
{
    Batch_Process batch;
    for (const QString& name : {u"bad"_s, u"old"_s, u"text"_s, u"xml"_s})
        Place(batch, Short_Video(), u"videos/"_s + name + u".mkv"_s);
    batch.Write(u"videos/bad.srt"_s, "1\n00:00:00,000 --> 00:00:00,200\nHello\n");
    batch.Write(u"videos/bad.srt.opt"_s, "Language=\n");
    batch.Write(u"videos/bad_Chapters.txt"_s, "nought A<B\n");
    batch.Write(u"videos/text_Chapters.txt"_s, "nought begin\n");
    batch.Write(u"videos/xml_Chapters.xml"_s, "<Chapters><Edition");
    batch.Write(u"target/old.mkv"_s, "old");
    batch.Write(u"videos/xml.mp4"_s, "no video");
    const QStringList before = batch.Tree();

    const QString look = u"--json --check --careful"_s;
    Batch_Result result =
        batch.Run(look + u" --tick AddSubs --tick UseSubOpts --tick ReplaceChapters --tick ConvertTXT"_s);
    EXPECT_EQ(result.Exit, 2);
    QStringList problems;
    for (const QJsonObject& check : result.Events(u"check"_s))
        problems += check[u"problems"_s].toVariant().toStringList();
    const QString told[] = {u"bad.srt.opt"_s,      u"bad_Chapters.txt"_s,     u"text_Chapters.txt"_s,
                            u"xml_Chapters.xml"_s, u"its output would be "_s, u"moov atom"_s};
    ASSERT_EQ(problems.size(), std::ssize(told)) << problems.join(u'\n').toStdString();
    for (qsizetype i = 0; i < problems.size(); ++i)
        EXPECT_TRUE(problems[i].contains(told[i])) << problems[i].toStdString();

    result = batch.Run(look + u" --leave-out *.mp4"_s);
    EXPECT_EQ(result.Exit, 0) << "what goes to the trash is no problem";
    EXPECT_EQ(result.Events(u"check"_s)[1][u"replaces"_s].toVariant().toStringList(), QStringList{u"old.mkv"_s});
    result = batch.Run(u"--check --careful --leave-out *.mp4 --set \"Extensions/If The Output Exists=Skip\""_s);
    EXPECT_EQ(result.Exit, 0);
    EXPECT_TRUE(result.Out.contains(u"skipped   The output is there already"_s)) << result.Out.toStdString();
    EXPECT_EQ(batch.Run(u"--check --classic"_s).Exit, 2) << "what would be overwritten is one";
    EXPECT_EQ(batch.Tree(), before);
}

TEST(Vantorra_Batch, PartsAreTogetherAllAndEachMachineKnowsWhatTheOthersDid)
{
    Batch_Process batch;
    for (const QString& name : {u"a.mkv"_s, u"a.mp4"_s, u"b.mkv"_s, u"c.mkv"_s, u"d.mkv"_s, u"Ä e.mkv"_s})
        Place(batch, Short_Video(), u"videos/"_s + name);
    QStringList sources;
    for (int part = 1; part <= 3; ++part) {
        sources += batch.Run(u"--json --careful --shard %1/3"_s.arg(part)).Values(u"result"_s, u"source"_s);
        const QString journal = batch.Names_In(u"app"_s).filter(u"Vantorra_Journal"_s).last();
        QFile::rename(batch.Path(u"app/"_s + journal), batch.Path(u"app/Vantorra_Journal-0%1.jsonl"_s.arg(part)));
    }
    EXPECT_EQ(sources.removeDuplicates(), 0);
    EXPECT_EQ(sources.size(), 6);
    const QStringList left = batch.Run(u"--json --careful --resume"_s).Values(u"result"_s, u"reason"_s);
    ASSERT_EQ(left.size(), 1);
    EXPECT_TRUE(left[0].startsWith(u"its output would replace \"a.mkv\", which was made of \"a.mkv\""_s))
        << left[0].toStdString();

    const auto journal = [&](const QStringList& more) {
        batch.Start_With(QStringList{u"journal"_s, u"--app-folder"_s, batch.Path(u"app"_s)} + more);
        return batch.Finish();
    };
    EXPECT_EQ(journal({}).Out.count(u"\ndone "_s) + 1, 5) << journal({}).Out.toStdString();
    EXPECT_TRUE(journal({}).Out.endsWith(u"\n5 done, 1 failed, 0 skipped, 0 not run\n"_s));
    EXPECT_EQ(journal({u"--failed"_s, u"--json"_s}).Values(u"journal"_s, u"source"_s),
              QStringList(batch.Path(u"videos/a.mp4"_s)));
}

TEST(Vantorra_Batch, WhatIsDoneIsLeftOutUntilSomethingChanges)
{
    Batch_Process batch;
    for (const QString& name : {u"good.mkv"_s, u"LOUD.MKV"_s})
        Place(batch, Short_Video(), u"videos/"_s + name);
    batch.Write(u"videos/none.avi"_s, "no video");
    const auto taken = [&](const QStringList& more) {
        const Batch_Result result = batch.Run(QStringList{u"--json"_s, u"--careful"_s} + more);
        QStringList names;
        for (const QString& source : result.Values(u"result"_s, u"source"_s))
            names += File_Name_Of(source);
        const QStringList told = result.Values(u"message"_s, u"text"_s).filter(u"done before"_s);
        return (names + told).join(u" - "_s);
    };
    const QString one = u" - 1 done before, 1 of them with warnings: LOUD.MKV"_s;
    const QString both = u" - 2 done before, 1 of them with warnings: LOUD.MKV"_s;
    EXPECT_EQ(taken({}), u"good.mkv - LOUD.MKV - none.avi"_s);
    EXPECT_EQ(taken({u"--resume"_s}), u"none.avi"_s + both);
    EXPECT_EQ(taken({u"--failed"_s}), u"none.avi"_s);
    EXPECT_EQ(taken({u"--resume"_s, u"--leave-out"_s, u"n*"_s}), both.mid(3));
    EXPECT_EQ(taken({u"--resume"_s, u"--tick"_s, u"StripChaps"_s}), u"good.mkv - LOUD.MKV - none.avi"_s);
    EXPECT_EQ(taken({}), u"good.mkv - LOUD.MKV - none.avi"_s);
    QFile::remove(batch.Path(u"target/good.mkv"_s));
    EXPECT_EQ(taken({u"--resume"_s, u"--only"_s, u"*.mkv"_s}), u"good.mkv"_s + one);
    batch.Write(u"videos/good.mkv"_s, batch.Read(u"videos/good.mkv"_s));
    EXPECT_EQ(taken({u"--resume"_s, u"--only"_s, u"*.mkv"_s}), u"good.mkv"_s + one);
}

TEST(Vantorra_Batch, TheExitStatusTellsHowItWent)
{
    const QString nowhere = Native(u"/nonexistent"_s);

    const struct
    {
        QStringList Files; ///< written as text; names ending in "!" are real videos, without the "!"
        QString More;
        int Exit;
        QString Told; ///< on standard error
    } cases[] = {
        {{u"a.mkv!"_s, u"readme.txt"_s}, {}, 0, {}},
        {{u"a.mkv!"_s, u"b.avi"_s, u"c.mkv!"_s}, {}, 2, u"b.avi"_s},
        {{u"a.avi!"_s, u"a.mkv!"_s}, {}, 0, u"a.avi and a.mkv write the same file"_s},
        {{u"readme.txt"_s}, {}, 1, u"NO VIDEO FILES FOUND!"_s},
        {{u"a.mkv!"_s}, u"--target "_s + nowhere, 1, u"--target \"%1\" is no folder"_s.arg(nowhere)},
        {{}, u"--videos "_s + nowhere, 1, u"The Video path does not exist!"_s},
        {{u"a.mkv!"_s}, u"--target videos/."_s, 1, u"is the video folder itself"_s},
        {{u"a.mkv!"_s, u"name."_s}, {}, 0, u"#70"_s},
        {{u"a.mkv!"_s}, u"--vidoes"_s, 64, u"vidoes"_s},
        {{u"a.mkv!"_s}, u"--tick chk_Nothing"_s, 64, u"chk_Nothing"_s},
        {{u"a.mkv!"_s}, u"--tick chk_CustomAudioFilter"_s, 64, u"chk_CustomAudioFilter"_s}, // it is disabled
        {{u"a.mkv!"_s}, u"--set Audio/Nothing=On"_s, 64, u"Audio/Nothing"_s},
        {{u"a.mkv!"_s}, u"--set Audio"_s, 64, u"Section/Key=Value"_s},
        {{u"a.mkv!"_s}, u"--set MainWindow/Left=far"_s, 64, u"MainWindow/Left"_s},
    };

    for (const auto& [files, more, exit, told] : cases) {
        SCOPED_TRACE(files.join(u' ').toStdString() + " " + more.toStdString());
        Batch_Process batch;
        for (const QString& file : files)
            if (file.endsWith(u'!'))
                Place(batch, Short_Video(), u"videos/"_s + file.chopped(1));
            else
                batch.Write(u"videos/"_s + file, "text");
        batch.Process.setWorkingDirectory(batch.Path());
        const Batch_Result result = batch.Run(more);
        EXPECT_EQ(result.Exit, exit) << result.Err.toStdString();
        EXPECT_TRUE(result.Err.contains(told)) << result.Err.toStdString();
        EXPECT_EQ(result.Err.isEmpty(), told.isEmpty()) << result.Err.toStdString();
        const QStringList outputs = batch.Names_In(u"target"_s);
        EXPECT_EQ(outputs.contains(u"a.mkv"_s), exit == 0 || exit == 2);
        EXPECT_EQ(outputs.contains(u"c.mkv"_s), exit == 2) << "a bad file doesn't hurt the next";
    }
}

TEST(Vantorra_Batch, ARunTimeErrorNamesItsFile)
{
    Batch_Process batch;
    const QStringList recipe = QStringList{u"-i"_s, Short_Video()} + u"-an -c:v libx264 -f h264"_s.split(u' ');
    const QString raw = Place(batch, Media_File(u"raw.h264"_s, recipe), u"videos/raw.h264"_s);
    const Batch_Result result = batch.Run({u"--json"_s});
    EXPECT_EQ(result.Exit, 70);
    EXPECT_TRUE(result.Err.contains(u"Run-time error '13': Type mismatch"_s)) << result.Err.toStdString();
    EXPECT_TRUE(result.Err.contains(raw)) << result.Err.toStdString();
    const QList<QJsonObject> finished = result.Events(u"finished"_s);
    ASSERT_EQ(finished.size(), 1);
    EXPECT_EQ(finished[0][u"status"_s].toString(), u"error"_s);
    EXPECT_EQ(finished[0][u"exit"_s].toInt(), 70);
}

TEST(Vantorra_Batch, AssignmentsAndClicksHoldForTheRunAndAreNeverSaved)
{
    Batch_Process batch;
    Place(batch, Rich_Video(), u"videos/film.mkv"_s);
    EXPECT_EQ(batch.Run().Exit, 0);
    const QByteArray saved = batch.Read(u"app/Vantorra.ini"_s);
    ASSERT_FALSE(saved.isEmpty());

    const struct
    {
        QString More, Argument;
        bool Expected;
    } cases[] = {
        {{}, u"--no-audio"_s, false},
        {u"--tick chk_StripOrigAudio"_s, u"--no-audio"_s, true},
        {u"--set \"audio/strip existing audio=on\""_s, u"--no-audio"_s, true},
        {u"--set \"Audio/Strip Existing Audio=On\" --untick chk_StripOrigAudio"_s, u"--no-audio"_s, false},
        {u"--tick chk_StripChaps --tick chk_StripChaps"_s, u"--no-chapters"_s, true},
        {u"--tick chk_StripOrigAudio --untick chk_StripOrigAudio --tick chk_EngAudioOnly"_s, u"--audio-tracks"_s, true},
        {u"--set \"Other Options/Set Custom File Title=On\" --set \"Other Options/Set Custom File Title Text=a = b\""_s,
         u"a = b"_s, true},
        {u"--tick chk_SplitVideos --set \"Other Options/Split multiple video files (minutes)=10\""_s,
         u"duration:600s"_s, true},
    };

    for (const auto& [more, argument, expected] : cases)
        EXPECT_EQ(Command_Of(batch, more).contains(argument), expected) << more.toStdString();

    EXPECT_EQ(batch.Run(u"--tick chk_StripOrigAudio --set \"Menu/Append Logs=True\""_s).Exit, 0);
    EXPECT_EQ(Tracks_Of(batch.Path(u"target/film.mkv"_s)).filter(u"audio"_s), QStringList());
    EXPECT_EQ(batch.Read(u"app/Vantorra.ini"_s), saved);
}

TEST(Vantorra_Batch, SettingsListsEveryKeyWithItsValueInForce)
{
    Batch_Process batch;
    const QStringList folder{u"settings"_s, u"--app-folder"_s, batch.Path(u"app"_s)};
    batch.Start_With(folder + QStringList{u"--json"_s, u"--set"_s, u"Menu/Log Verbosity=5"_s});
    const Batch_Result json = batch.Finish();
    EXPECT_EQ(json.Exit, 0);
    EXPECT_GE(json.Events(u"setting"_s).size(), 114);
    const qsizetype at = json.Values(u"setting"_s, u"key"_s).indexOf(u"Log Verbosity"_s);
    EXPECT_EQ(json.Values(u"setting"_s, u"section"_s).value(at), u"Menu"_s);
    EXPECT_EQ(json.Values(u"setting"_s, u"value"_s).value(at), u"5"_s);

    batch.Start_With(folder);
    const QString table = batch.Finish().Out;
    EXPECT_EQ(table.count(u'\n'), json.Events(u"setting"_s).size() + 1);
    EXPECT_TRUE(table.contains(u"\nAudio/Strip Existing Audio "_s));
}
