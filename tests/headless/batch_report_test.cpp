#include "common/test_program.h"

#include "headless/batch_options.h"
#include "headless/batch_report.h"
#include "headless/memory_stream.h"

/// A report of the kind that the options ask for, over a program whose run is played to it.
struct Played_Run
{
    const QString Folder = Native(u"/v/"_s);
    Memory_Stream Out;
    Memory_Stream Err;
    Test_Operator Person;
    Program Prog{Person};
    std::unique_ptr<Batch_Report> Report;

    explicit Played_Run(const Batch_Options& options) : Report(Batch_Report::Make(options, Out.Stream(), Err.Stream()))
    {
        Prog.Run.Dry_Run = options.Dry_Run;
        Prog.Options.Path_Videos = Folder;
        Prog.Options.Path_Target = u"/t/"_s;
        Prog.Tools.System_MKVMerge_Path = u"/usr/bin/mkvmerge"_s;
        Report->Watch_Over(Prog);
    }

    void File(const QString& name, File_Outcome::Kind status, int exit, const QString& reason = {},
              const QStringList& warnings = {})
    {
        Command_Line command;
        command.Add_Path(u" --output "_s, u"/t/my film.mkv"_s);
        Report->File_Started(1, Folder + name);
        Prog.Run.Mkvmerge_Arguments = command;
        Report->Command_Ready(Prog, Folder + name, u"/t/my film.mkv"_s);
        Report->Progress(Folder + name, 24, 3);
        Report->File_Finished({.Source = Folder + name,
                               .Output = u"/t/my film.mkv"_s,
                               .Status = status,
                               .Exit = exit,
                               .Seconds = 1.2504,
                               .Reason = reason,
                               .Warnings = warnings});
    }
};

TEST(Batch_Report, JsonLinesHaveTheirKeysInTheirOrder)
{
    Played_Run run({.Json = true});
    run.Report->Run_Started(1);
    run.File(u"my \"film\"\n.avi"_s, File_Outcome::Kind::Done, 1, u"R"_s, {u"w"_s});
    run.Report->Show_Message({.Code = 13, .Title = u"T."_s, .Text = u"one\r\ntwo"_s});
    run.Report->Ended(Batch_End::Finished, 0);
    const QString folder = QString(run.Folder).replace(u"\\"_s, u"\\\\"_s);
    EXPECT_EQ(run.Out.Text(), QString(uR"({"event":"run","videos":"/v/","target":"/t/","files":1,"version":"2.5.5"}
{"event":"file","index":1,"source":"/v/my \"film\"\n.avi"}
{"event":"command","source":"/v/my \"film\"\n.avi","output":"/t/my film.mkv","text":" --output \"/t/my film.mkv\"","arguments":["--output","/t/my film.mkv"]}
{"event":"progress","source":"/v/my \"film\"\n.avi","percent":24,"overall":3}
{"event":"result","source":"/v/my \"film\"\n.avi","output":"/t/my film.mkv","status":"done","exit":1,"seconds":1.25,"reason":"R","warnings":["w"]}
{"event":"message","code":13,"title":"T.","text":"one\r\ntwo"}
{"event":"finished","status":"finished","done":0,"warnings":1,"failed":0,"skipped":0,"not_run":0,"exit":0}
)"_s)
                                  .replace(u"/v/"_s, folder));
    EXPECT_EQ(run.Err.Text(), u"vantorra-batch: warning: my \"film\" .avi: w\nvantorra-batch: #13 T. one two\n"_s);
}

TEST(Batch_Report, ATextThatIsNoUnicodeStillGivesALine)
{
    Played_Run run({.Json = true});
    run.Report->File_Started(1, u"/v/"_s + QChar(0xD800) + u".avi"_s);
    EXPECT_TRUE(run.Out.Text().startsWith(uR"({"event":"file","index":1,"source":"/v/)"_s));
    EXPECT_TRUE(run.Out.Text().endsWith(u".avi\"}\n"_s));
}

TEST(Batch_Report, PlainLinesNameEachFileAndCountThem)
{
    Played_Run run({});
    run.Report->Run_Started(3);
    run.File(u"a\x1b[2J.avi"_s, File_Outcome::Kind::Done, 0);
    run.File(u"b.avi"_s, File_Outcome::Kind::Failed, 2, u"b\u009bad"_s);
    run.File(u"c.avi"_s, File_Outcome::Kind::Failed, -1);
    run.File(u"d"_s, File_Outcome::Kind::Skipped, -1);
    run.File(u"e.avi"_s, File_Outcome::Kind::Not_Run, -1, u"halted"_s);
    run.File(u"f.avi"_s, File_Outcome::Kind::Done, 1, {}, {u"w"_s});
    run.Report->Ended(Batch_End::Finished, 2);
    EXPECT_EQ(run.Out.Text(), u"done     a\\x1B[2J.avi -> /t/my film.mkv (1.3 s)\n"
                              "failed   b.avi\n"
                              "failed   c.avi\n"
                              "skipped  d\n"
                              "not run  e.avi (halted)\n"
                              "done     f.avi -> /t/my film.mkv (1.3 s)\n"
                              "FINISHED: 1 done, 1 with warnings, 2 failed, 1 skipped, 1 not run - 0 B in 0:00\n"_s);
    EXPECT_FALSE(run.Err.Text().contains(u'\x1b')) << "nothing that isn't a terminal gets a bar";
    const QString reasons = u"vantorra-batch: b.avi failed: b\\u009Bad\nvantorra-batch: warning: f.avi: w\n"_s;
    EXPECT_EQ(run.Err.Text(), reasons + reasons) << "beside the files, and again under the summary";
}

TEST(Batch_Report, WhatWasWarnedOfIsNotSaidTwiceBesideTheVideo)
{
    Played_Run run({});
    run.Report->Run_Started(2);
    run.Report->Warned(u"T"_s, u"both write one file"_s);
    run.File(u"a.avi"_s, File_Outcome::Kind::Done, 0, {}, {u"both write one file"_s});
    EXPECT_EQ(run.Err.Text(), u"vantorra-batch: warning: both write one file\n"_s);
    run.Report->File_Started(2, run.Folder + u"b.avi"_s);
    run.Report->Show_Message({.Code = 13, .Title = u"T."_s, .Text = u"It failed."_s});
    run.Report->File_Finished(
        {.Source = run.Folder + u"b.avi"_s, .Status = File_Outcome::Kind::Failed, .Reason = u"torn"_s});
    EXPECT_TRUE(run.Err.Text().endsWith(u"one file\nvantorra-batch: b.avi failed: torn (#13)\n"_s));
    run.Report->Ended(Batch_End::Finished, 0);
    EXPECT_TRUE(run.Err.Text().contains(u"vantorra-batch: warning: a.avi: both write one file\n"_s));
}

TEST(Batch_Report, AHabitIsToldOnceInABatchAndOnceAVideoInJson)
{
    for (const bool json : {false, true}) {
        Played_Run run({.Json = json, .Quiet = true});
        for (const QString& name : {u"a.avi"_s, u"b.avi"_s})
            run.File(name, File_Outcome::Kind::Done, 0, {},
                     {u"\"%1\" is odd (\"Sensible Names And Sizes\" changes that)"_s.arg(name), u"w"_s});
        EXPECT_EQ(run.Err.Text().count(u"is odd"), 1);
        EXPECT_EQ(run.Err.Text().count(u".avi: w\n"), 2);
        EXPECT_EQ(run.Out.Text().count(u"is odd"), json ? 2 : 0);
    }
}

TEST(Batch_Report, ACheckTellsWhatWouldComeAndWhatIsWrong)
{
    Played_Run run({.Dry_Run = true, .Check = true});
    FileInfo& sound = run.Prog.Media.FileInfoList.emplace_back();
    sound.StreamType = u"audio"_s;
    sound.CodecName = u"aac"_s;
    sound.Index = u"1"_s;
    sound.Language = u"eng"_s;
    run.Report->Run_Started(2);
    run.File(u"a.avi"_s, File_Outcome::Kind::Not_Run, -1, u"dry run"_s);
    run.File(u"b.avi"_s, File_Outcome::Kind::Failed, -1, u"no track is left"_s, {u"w\x1b"_s});
    run.Report->Ended(Batch_End::Finished, 2);
    EXPECT_EQ(run.Report->Counts().Problems, 1);
    EXPECT_EQ(run.Out.Text(), u"a.avi -> /t/my film.mkv\n    tracks    1 audio aac eng\n    chapters  kept\n"
                              "b.avi -> /t/my film.mkv\n    tracks    1 audio aac eng\n    chapters  kept\n"
                              "    PROBLEM   no track is left\n    PROBLEM   w\\x1B\n"
                              "2 looked at, 1 with problems\n"_s);
}

TEST(Batch_Report, ADryRunPrintsCommandsForAShellAndNothingElse)
{
    for (const bool quiet : {false, true}) {
        Played_Run run({.Dry_Run = true, .Quiet = quiet});
        run.Report->Run_Started(1);
        run.File(u"a.avi"_s, File_Outcome::Kind::Done, 0);
        run.Report->Ended(Batch_End::Finished, 0);
        EXPECT_EQ(run.Out.Text(), Shell_Quoted({u"/usr/bin/mkvmerge"_s, u"--output"_s, u"/t/my film.mkv"_s}) + u'\n');
    }
}

TEST(Batch_Report, AMessageNamesTheFileInWork)
{
    Played_Run run({});
    run.Report->File_Started(1, run.Folder + u"a.avi"_s);
    run.Report->Show_Message(
        {.Code = 12, .Title = u"T."_s, .Text = u"Failed.\r\n\r\nClick OK to continue processing next video file."_s});
    run.Report->Show_Message({.Title = u"T."_s, .Text = u"About "_s + run.Folder + u"a.avi"_s});
    EXPECT_EQ(run.Err.Text(), u"vantorra-batch: T. About "_s + run.Folder + u"a.avi\n"_s)
        << "the other waits for the video's own words";
    run.Report->File_Finished({.Source = run.Folder + u"a.avi"_s, .Status = File_Outcome::Kind::Failed});
    EXPECT_TRUE(run.Err.Text().endsWith(u"\nvantorra-batch: #12 T. Failed. ["_s + run.Folder + u"a.avi]\n"_s))
        << "it has none";
}
