#include "tools/tool_runner.h"

#include "common/stand_in_tool.h"
#include "support/command_line.h"
#include "support/paths.h"

#include <cerrno>

/// Runs `body` as mkvmerge and returns the lines of Log_Console.
static QString Console_Of(Test_Program& test, const QByteArray& body)
{
    Run_Mkvmerge(test.Prog, Write_Stand_In(test, u"stand_in"_s, body), {});
    return test.Prog.Logs.Log_Console.ToString();
}

/// Reads what the stand-in's second write follows only after the first was taken.
static const QByteArray Pause = "; sleep 0.3; ";

TEST(ToolRunner, AFailedStartLeavesTheSystemsNumber)
{
    Test_Program test;
    QString output = u"old"_s;
    Run_Tool_Capture_Fresh(test.Prog, test.Path(u"missing"_s), {}, output);
    EXPECT_EQ(test.Prog.Run.Process_Result, ENOENT);
    EXPECT_EQ(test.Prog.Run.Exit_Status, std::nullopt);
    // A bare name isn't searched for.
    Run_Mkvmerge(test.Prog, u"mkvmerge"_s, {});
    EXPECT_EQ(test.Prog.Run.Process_Result, ENOENT);
    Run_Mkvmerge(test.Prog, test.Write(u"not_executable"_s, "#!/bin/sh\n"), {});
    constexpr int no_program = Path_Separator == u'/' ? EACCES : 193; // Windows' own number for a bad format
    EXPECT_EQ(test.Prog.Run.Process_Result, no_program);
    EXPECT_TRUE(test.Prog.Logs.Log_Console.Is_Empty());
}

TEST(ToolRunner, ChunksAreKeptOrDroppedWhole)
{
    const std::tuple<QByteArray, QString> claims[] = {
        {"printf '1234567890123456'", u""_s},
        {"printf '12345678901234567'", u"12345678901234567\r\n"_s},
        {"printf '123456789012345\\n'", u"123456789012345\r\n\r\n"_s}, // counted after the line end has grown
        {"printf 'Line one\\nLine two\\nPROGRESS: 5%%\\r'", u""_s},
        {"printf 'A line that is kept\\n'" + Pause + "printf 'Progress: 100%%\\r'" + Pause +
             "printf 'Multiplexing took 1 s'",
         u"A line that is kept\r\n\r\nMultiplexing took 1 s\r\n"_s},
        {"printf 'Half a character \\303'" + Pause + "printf '\\251 and its other half'",
         u"Half a character \r\n\u00e9 and its other half\r\n"_s},
        {"", u""_s},
    };
    for (const auto& [body, console] : claims) {
        Test_Program test;
        EXPECT_EQ(Console_Of(test, body), console) << body.toStdString();
    }
}

TEST(ToolRunner, AChunkIsWhatOneReadDelivered)
{
    Test_Program test;
    // 30,000 bytes at once: three chunks, a line each.
    const QString console = Console_Of(test, "head -c 30000 /dev/zero | tr '\\0' x");
    EXPECT_EQ(console.count(u'x'), 30000);
    EXPECT_LE(console.indexOf(u"\r\n"_s), 10240);
    EXPECT_GE(console.count(u"\r\n"_s), 3);
}

TEST(ToolRunner, ThePercentageIsThatOfTheWholeBatch)
{
    const std::tuple<QByteArray, int, int, QString> claims[] = {
        {"Progress: 50%%\\r", 1, 0, u"50%"_s},
        {"Progress: 100%%\\r", 10, 9, u"100%"_s},
        {"Progress: 24%%\\rProgress: 80%%\\r", 2, 1, u"62%"_s}, // the first of a chunk counts
        {"progress: 5%%\\r", 2, 0, u"2%"_s},                    // 2.5 is rounded to even
        {"Work in progress.mkv\\n", 4, 2, u"50%"_s},            // no number: 0
        {"Progress: -3%%\\r", 4, 2, u""_s},
        {"Progress: 10%%\\r", 327, 326, u"100%"_s},
    };
    for (const auto& [print, videos, index, caption] : claims) {
        Test_Program test;
        test.Prog.Run.Video_File_List = QStringList(QList<QString>(videos, u"v"_s));
        test.Prog.Run.File_Index = static_cast<std::int16_t>(index);
        Console_Of(test, "printf '" + print + "'");
        EXPECT_EQ(test.Prog.Form.lbl_ProgressFinished.Caption, caption) << print.toStdString();
        EXPECT_EQ(test.Prog.Form.lbl_ProgressFinished.Visible, !caption.isEmpty());
    }
}

TEST(ToolRunner, APercentageBeyondSixteenBitsEndsTheRunAndTheChild)
{
    for (const bool many : {true, false}) {
        Test_Program test;
        test.Prog.Run.Video_File_List = QStringList(QList<QString>(many ? 328 : 1, u"v"_s));
        test.Prog.Run.Output_Path = u"/target/half.mkv"_s;
        const QByteArray print = many ? "printf 'Progress: 1%%\\r'" : "printf 'Progress: 40000%%\\r'";
        const Caught_Error error = Error_Of([&] { Console_Of(test, print + "; exec sleep 1000"); });
        EXPECT_EQ(error.Number, 6);
        EXPECT_TRUE(error.Message.contains(u"/target/half.mkv"_s)) << error.Message.toStdString();
        EXPECT_EQ(Children_Left(), 0);
    }
}

TEST(ToolRunner, AHaltEndsTheChildWhateverItDoes)
{
    for (const QByteArray& body : {
             QByteArray("exec sleep 1000"),                       // silent
             QByteArray("exec yes 'A line that is long enough'"), // talking
             QByteArray("exec sleep 1000 >&- 2>&-"),              // has closed its output
             QByteArray("trap '' TERM INT HUP; while :; do sleep 1; done"),
         }) {
        Test_Program test;
        test.Person.On_Pump = [&test] {
            if (test.Person.Pumps == 4)
                test.Prog.Run.Halt_Requested = true;
        };
        Console_Of(test, body);
        EXPECT_LT(test.Prog.Run.Exit_Status, 0) << body.toStdString();
        EXPECT_EQ(test.Person.Waited_Milliseconds, 1200);
        EXPECT_EQ(Children_Left(), 0);
    }
}

TEST(ToolRunner, ACaptureThatDoesNotEndIsLeftAtAHaltOrAtTheEndOfTheProgram)
{
    for (const QByteArray& body : {QByteArray("echo text; exec sleep 1000 >&- 2>&-"), // has closed its output
                                   QByteArray("echo text; exec sleep 1000"),
                                   QByteArray("echo text; sleep 1000 &"), // a grandchild holds the pipe open
                                   QByteArray("echo text; exec yes")})
        for (const bool closing : {false, true}) {
            Test_Program test;
            bool& flag = closing ? test.Prog.Form.Closing : test.Prog.Run.Halt_Requested;
            test.Person.On_Pump = [&] { flag = test.Person.Pumps > 5; };
            QString output;
            Run_Tool_Capture(test.Prog, Write_Stand_In(test, u"tool"_s, body), {}, output);
            EXPECT_TRUE(output.startsWith(u"text\r\n"_s)) << body.toStdString();
            EXPECT_EQ(Children_Left(), 0);
        }
}
