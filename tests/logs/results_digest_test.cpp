#include "logs/results_digest.h"

#include "common/test_program.h"

static const QString Console = u"mkvmerge v74.0.0\r\nThe file 'x' has been opened for writing.\r\n"
                               u"\r\nThe cue entries are being written...\r\nMultiplexing took 1 second.\r\n"_s;

/// A file's digest: one fault line, what mkvmerge said, and, if wanted, a deleted source.
static QStringList Digest(int verbosity, const QString& console, bool deleted = false)
{
    Test_Program test;
    test.Prog.Options.Log_Verbosity = static_cast<std::int16_t>(verbosity);
    test.Prog.Run.Current_Video_Path = u"/v/a.mkv"_s;
    test.Prog.Run.Source_Deleted = deleted;
    test.Prog.Logs.Log_Faults.AppendLine(u"-- Processing video file - \"/v/a.mkv\"");
    test.Prog.Logs.Log_Faults.AppendLine(u"");
    if (!console.isEmpty())
        test.Prog.Logs.Log_Console.AppendLine(console);
    EXPECT_TRUE(Digest_Results(test.Prog));
    EXPECT_TRUE(test.Prog.Logs.Log_Faults.Is_Empty());
    EXPECT_TRUE(test.Prog.Logs.Log_Console.Is_Empty());
    return test.Results();
}

TEST(ResultsDigest, DeletionNotesFollowWhatMkvmergeSaidAndNothingElse)
{
    const QString note = u"-- Source video file DELETED after Processing - \"/v/a.mkv\""_s;
    EXPECT_EQ(Digest(0, Console, true), QStringList{u"              "_s + note});
    EXPECT_EQ(Digest(1, Console, true).mid(6), (QStringList{u"@"_s, u"            "_s + note}));
    EXPECT_EQ(Digest(0, u""_s, true), QStringList());
    EXPECT_EQ(Digest(1, u""_s, true).size(), 4); // faults and "@" only
}

TEST(ResultsDigest, AFailureIsNoticedAtSixAndSevenOnlyAndNeverInTheBanner)
{
    const std::tuple<int, QString, bool> claims[] = {
        {5, u"banner\r\nIt FAILED here"_s, false},
        {6, u"banner\r\nIt FAILED here"_s, true},
        {7, u"banner\r\nIt Failed here"_s, true},
        {6, u"failed banner\r\nall is well"_s, false},
    };
    for (const auto& [verbosity, console, failed] : claims) {
        Test_Program test;
        test.Prog.Options.Log_Verbosity = static_cast<std::int16_t>(verbosity);
        test.Prog.Logs.Log_Console.AppendLine(console);
        Digest_Results(test.Prog);
        EXPECT_EQ(test.Prog.Run.Process_Failed, failed) << console.toStdString();
        Digest_Results(test.Prog);
        EXPECT_FALSE(test.Prog.Run.Process_Failed);
    }
}

TEST(ResultsDigest, TheSeparatorStandsOnceUntilMkvmergeHasSpoken)
{
    Test_Program test;
    test.Prog.Options.Log_Verbosity = 1;
    Digest_Results(test.Prog, u"NOTE: one\r\n\r\nNOTE: two"_s);
    Digest_Results(test.Prog);
    test.Prog.Run.Halt_Requested = true;
    test.Prog.Logs.Log_Faults.AppendLine(u"-- x");
    test.Prog.Logs.Log_Console.AppendLine(u"banner");
    Digest_Results(test.Prog);
    EXPECT_EQ(test.Results(), (QStringList{u"            NOTE: one"_s, u"            NOTE: two"_s, u"@"_s, u"~~~~"_s,
                                           u"        [Vantorra Results]"_s, u"            -- x"_s}));
}

TEST(ResultsDigest, TheFailurePictureFlashesOnceForAFile)
{
    Test_Program test;
    QList<bool> out;
    test.Person.On_Pump = [&] { out += test.Prog.Form.img_ProcessFailed_Out; };
    Flash_Process_Failed(test.Prog);
    EXPECT_EQ(out, (QList<bool>{false, true, false, true})) << "each move comes behind its wait";
    EXPECT_TRUE(test.Prog.Form.pic_ProcessFailed.Visible);
    EXPECT_FALSE(test.Prog.Form.img_ProcessFailed_Out);
    EXPECT_TRUE(test.Prog.Run.Process_Failed);
    EXPECT_EQ(test.Person.Waited_Milliseconds, 600);
    test.Prog.Form.pic_ProcessFailed.Visible = false;
    Flash_Process_Failed(test.Prog);
    EXPECT_FALSE(test.Prog.Form.pic_ProcessFailed.Visible);
}
