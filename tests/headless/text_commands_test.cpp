#include "common/stand_in_tool.h"
#include "common/test_program.h"
#include "common/unreadable_file.h"
#include "headless/batch_program.h"
#include "headless/exit_status.h"
#include "headless/identify_command.h"
#include "headless/log_command.h"
#include "headless/memory_stream.h"
#include "support/run_time_error.h"

#include <QDir>
#include <new>

namespace {

QString Log_Of(const Test_Program& test, bool full)
{
    Memory_Stream out;
    Print_Log(test.Prog.Settings.App_Folder, full, out.Stream());
    return out.Text();
}

TEST(Log_Command, PrintsTheNewestFiveHundredLinesOrAllOfThemWithPlainLineEnds)
{
    const Test_Program test;
    EXPECT_EQ(Log_Of(test, false) + Log_Of(test, true), QString()) << "no log is no error";

    // More than the viewer can count, and a CR LF that lies across the pieces in which it is read.
    QByteArray log =
        QByteArray((1 << 20) - 1, 'x') + "\r\n" + QByteArray("line\r\n").repeated(40'000) + "a\rb\x1b[2J\r";
    test.Write(u"app/Vantorra_Process.log"_s, log);
    EXPECT_EQ(Log_Of(test, false).count(u'\n'), 500);
    EXPECT_EQ(Log_Of(test, true).toUtf8(), log.replace("\r\n", "\n").replace("a\rb\x1b[2J\r", "a\\rb\\x1B[2J\\r"));

    QDir().mkpath(test.Path(u"other/Vantorra_Process.log"_s));
    Memory_Stream out;
    Print_Log(test.Path(u"other/"_s), true, out.Stream());
    EXPECT_EQ(out.Text(), QString()) << "a folder of that name is no log";
    const QString unreadable = test.Path(u"target/Vantorra_Process.log"_s);
    const auto held = Make_Unreadable(unreadable);
    for (const bool full : {false, true}) {
        const Caught_Error error = Error_Of([&] { Print_Log(test.Path(u"target/"_s), full, out.Stream()); });
        EXPECT_TRUE(error.Message.contains(unreadable)) << error.Message.toStdString();
    }
}

TEST(Batch_Program, MemoryThatEndsIsTold)
{
    const Test_Program test;
    Memory_Stream out;
    Memory_Stream err;
    const auto no_memory = []() -> bool { throw std::bad_alloc(); };
    EXPECT_EQ(Run_Batch_Program({u"vantorra-batch"_s, u"--app-folder"_s, test.Path(u"app"_s), u"--videos"_s,
                                 test.Path(u"videos"_s), u"--target"_s, test.Path(u"target"_s)},
                                out.Stream(), err.Stream(), no_memory),
              Exit_Run_Time_Error);
    EXPECT_TRUE(err.Text().contains(u"Run-time error '7': Out of memory"_s)) << err.Text().toStdString();
}

/// Any mkvmerge will do: this one tells the name of the file, and fails for those whose name holds "bad".
struct Identify_Command : testing::Test, Test_Program
{
    Identify_Command()
    {
        Prog.Tools.System_MKVMerge_Path = Write_Stand_In(
            *this, u"mkvmerge"_s,
            "[ \"$1\" = -V ] && echo v74 && exit\n"
            "case $4 in *mute*) ;; *bad*) echo '{\"errors\":[\"no such file\"]}';;\n"
            "*) echo '{\"container\":{\"recognized\":true,\"supported\":true,\"type\":\"T\",\"properties\":"
            "{\"codec_private_data\":\"00\",\"title\":\"a b\"}}}';; esac\n");
    }

    int Exit = -1;

    QString Print(const QStringList& files, bool json = false)
    {
        Memory_Stream out;
        Exit = Print_Identification(Prog, files, json, out.Stream());
        return out.Text();
    }
};

TEST_F(Identify_Command, PrintsWhatTheViewerShowsOfEachFile)
{
    EXPECT_EQ(Print({u"/v/a.mkv"_s, u"/v/b.mkv"_s}),
              u"File '/v/a.mkv': container: T [ codec_private_data:XX title:a b]     \n\n"
              "File '/v/b.mkv': container: T [ codec_private_data:XX title:a b]     \n"_s);
    EXPECT_EQ(Exit, Exit_Finished);
    EXPECT_EQ(Print({u"/v/a.mkv"_s}, true),
              u"{\"event\":\"identification\",\"source\":\"/v/a.mkv\",\"lines\":[\"File '/v/a.mkv': container: T [ "
              "codec_private_data:XX title:a b]\"]}\n"_s);
    Prog.Media.Show_Codec_Private = 1;
    EXPECT_EQ(Print({u"/v/a.mkv"_s}), u"File '/v/a.mkv': container: T [codec_private_data:00 title:a\\sb]     \n"_s);
}

TEST_F(Identify_Command, GoesOnBehindAFileThatFailsAndSaysSoInItsStatus)
{
    EXPECT_EQ(Print({u"/v/bad.mkv"_s, u"/v/b.mkv"_s}).count(u'\n'), 3);
    EXPECT_EQ(Exit, Exit_Some_Failed);
    EXPECT_EQ(Print({u"/v/mute.mkv"_s}), QString());
    EXPECT_EQ(Exit, Exit_Some_Failed);
    ASSERT_EQ(Person.Messages.size(), 1U);
    EXPECT_EQ(Person.Messages[0].Code, 3);
    EXPECT_FALSE(Print({u"/v/esc\u001b[2J.mkv"_s}).contains(u'\u001b'))
        << "a name doesn't reach the terminal's controls";
    Prog.Run.Halt_Requested = true;
    EXPECT_EQ(Print({u"/v/b.mkv"_s}), QString());
    EXPECT_EQ(Exit, Exit_Halted);
}

TEST_F(Identify_Command, WithoutAToolThatIdentifiesItIsRefusedWithTheReport)
{
    Prog.Settings.Extensions.Identify_With_Any_Mkvmerge = false;
    EXPECT_EQ(Print({u"/v/a.mkv"_s}), QString());
    EXPECT_EQ(Exit, Exit_Refused);
    ASSERT_EQ(Person.Messages.size(), 1U);
    EXPECT_EQ(Person.Messages[0].Code, 60);
}

} // namespace
