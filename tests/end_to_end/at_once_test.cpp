#include "end_to_end/at_once.h"
#include "end_to_end/library.h"
#include "support/paths.h"

#include <QElapsedTimer>
#include <QFile>
#include <QJsonArray>
#include <QThread>

TEST_F(At_Once, WhatGoesWithSeveralVideosGoesOnceAllOfThemAreDone)
{
    for (const bool one_is_bad : {true, false}) {
        for (int number = 1; number <= 8; ++number) {
            QFile::remove(Path(Video(number)));
            Place(*this, Short_Video(), Video(number));
            Write(u"videos/e%1_Track1.srt"_s.arg(number), "1\n00:00:00,000 --> 00:00:00,200\nHello\n");
        }
        if (one_is_bad) {
            Place(*this, Library_File(u"font.ttf"_s), u"fonts/font.ttf"_s); // it stays for the other run
            Write(Video(5), "no video");
        }
        const Batch_Result result = Run_Eight(
            u"--tick AddSubs --tick DeleteVideoAP --set \"Menu/Delete Source Video Sundry Files=True\" --set "
            "\"Paths/Attachments Path=%1\" --set \"Other Options/Add Attachments=On\""_s.arg(Path(u"fonts/"_s)));
        EXPECT_EQ(Ended(result, u"done"_s), one_is_bad ? 7 : 8) << result.Err.toStdString();
        for (const QString& output : Names_In(u"target"_s)) {
            const QJsonObject there = Identify(Path(u"target/"_s + output));
            EXPECT_EQ(there[u"tracks"_s].toArray().size(), 3) << output.toStdString();
            EXPECT_EQ(there[u"attachments"_s].toArray().size(), 1) << output.toStdString();
        }
        EXPECT_EQ(Names_In(u"videos"_s).join(u'|'), one_is_bad ? u"e5.mkv|e5_Track1.srt"_s : QString());
        EXPECT_EQ(Names_In(u"fonts"_s).size(), one_is_bad ? 1 : 0);
    }
}

TEST_F(At_Once, NamesCountsAndTheLogAreAsOneAfterTheOther)
{
    Place(*this, Short_Video(u"mp4"_s), u"videos/e1.mp4"_s);
    const Batch_Result result = Run_Eight();
    QStringList files;
    for (const QJsonObject& file : result.Events(u"file"_s))
        files += QString::number(file[u"index"_s].toInt()) + File_Name_Of(file[u"source"_s].toString());
    EXPECT_EQ(files.join(u' '), u"1e1.mkv 2e1.mp4 3e2.mkv 4e3.mkv 5e4.mkv 6e5.mkv 7e6.mkv 8e7.mkv 9e8.mkv"_s);
    EXPECT_EQ(Ended(result, u"done"_s), 8) << result.Err.toStdString();
    EXPECT_EQ(Ended(result, u"failed"_s), 1);
    EXPECT_TRUE(result.Err.contains(u"e1.mp4 failed: its output would be \"e1.mkv\", as that of \"e1.mkv\""_s));
    int overall = 0;
    for (const QJsonObject& progress : result.Events(u"progress"_s)) {
        EXPECT_TRUE(progress[u"source"_s].toString().startsWith(Path(u"videos/e"_s)));
        EXPECT_GE(progress[u"overall"_s].toInt(), overall);
        overall = progress[u"overall"_s].toInt();
    }
    const QString log = QString::fromUtf8(Read(u"app/Vantorra_Process.log"_s));
    qsizetype at = 0;
    for (int number = 1; number <= 8; ++number) {
        at = log.indexOf(u"-- Processing video file - \"%1\""_s.arg(Path(Video(number))), at);
        EXPECT_GE(at, 0) << number;
        EXPECT_GE(at = log.indexOf(u"Multiplexing took"_s, at), 0) << number;
    }
}

TEST_F(At_Once, ToolsThatCantBeStartedEndTheBatch)
{
    if (!Failed_Starts_Are_Told)
        GTEST_SKIP();
    for (int number = 9; number <= 20; ++number)
        Place(*this, Short_Video(), Video(number));
    Put_Ahead_Of_Mkvmerge("");
    Spoil(mkvmerge_);
    const Batch_Result result = Run_Eight();
    const int failed = Ended(result, u"failed"_s);
    EXPECT_TRUE(failed >= 3 && failed <= 10) << failed;
    EXPECT_EQ(Ended(result, u"not_run"_s), 20 - failed);
    EXPECT_TRUE(Read(u"app/Vantorra_Process.log"_s).contains("*** the run stopped"));
}

TEST_F(At_Once, AHaltEndsAllOfThemWithinTwoSeconds)
{
    Put_Ahead_Of_Mkvmerge("exec sleep 1000");
    Start_Eight();
    QElapsedTimer clock;
    clock.start();
    while (Children_Of(Process.processId()).size() < 8 && clock.elapsed() < 20'000)
        QThread::msleep(10);
    clock.start();
    Ask_To_Halt(Process);
    const Batch_Result result = Finish();
    EXPECT_LT(clock.elapsed(), 10'000);
    EXPECT_EQ(result.Exit, 130);
    EXPECT_EQ(Ended(result, u"not_run"_s), 8) << result.Err.toStdString();
    EXPECT_EQ(Tree().filter(u".vantorra-"_s), QStringList());
}
