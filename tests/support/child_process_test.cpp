#include "support/child_process.h"

#include "common/stand_in_tool.h"

#include <QThread>
using Started = Child_Process::Started;
using Read = Child_Process::Read;

/// All that a script prints, until its output ends.
static QByteArray Run_Script(Child_Process& child, const Test_Program& test, const QByteArray& body)
{
    EXPECT_EQ(child.Start(Write_Stand_In(test, u"script"_s, body + '\n'), {}), Started::Yes);
    constexpr std::size_t most = 4096;
    QByteArray output;
    QByteArray chunk;
    for (Read read = Read::Nothing_Yet; read != Read::Ended;) {
        read = child.Read_Chunk(chunk, most);
        EXPECT_LE(chunk.size(), static_cast<qsizetype>(most));
        output += chunk;
    }
    child.Wait([] { return true; });
    return output;
}

TEST(ChildProcess, BothStreamsArriveInOrderAndTheStatusIsKnown)
{
    const std::tuple<QByteArray, QByteArray, int> claims[] = {
        {"echo one; echo two >&2; echo three; exit 2", "one\ntwo\nthree\n", 2},
        {"cat; echo end", "end\n", 0}, // standard input is empty, not ours
        {"printf 'half\\nline'", "half\nline", 0},
    };
    for (const auto& [body, output, exit] : claims) {
        const Test_Program test;
        Child_Process child;
        EXPECT_EQ(Run_Script(child, test, body), output);
        EXPECT_EQ(child.Exit_Status(), exit) << body.data();
        EXPECT_EQ(child.Process_Number(), 0);
    }
    EXPECT_EQ(Children_Left(), 0);
}

TEST(ChildProcess, ASilentChildGivesTheReaderItsTurnAndDiesWithItsGroup)
{
    const Test_Program test;
    const QString script = Write_Stand_In(test, u"silent"_s, "sleep 1000 & echo $!; wait\n");
    const int descriptors = Open_Descriptors();
    long grandchild = 0;
    {
        Child_Process child;
        ASSERT_EQ(child.Start(script, {}), Started::Yes);
        QByteArray chunk;
        while (child.Read_Chunk(chunk, 100) == Read::Nothing_Yet) {}
        grandchild = chunk.trimmed().toLong();
        EXPECT_TRUE(Is_Running_In_Script(grandchild));
        EXPECT_EQ(child.Read_Chunk(chunk, 100), Read::Nothing_Yet);
        EXPECT_TRUE(chunk.isEmpty());
    }
    for (int waited = 0; waited < 5000 && Is_Running_In_Script(grandchild); waited += 10)
        QThread::msleep(10);
    EXPECT_FALSE(Is_Running_In_Script(grandchild));
    EXPECT_EQ(Children_Left(), 0);
    EXPECT_EQ(Open_Descriptors(), descriptors);
}

TEST(ChildProcess, OutputsApartStayApartAndEveryArgumentArrivesAsItIs)
{
    const Test_Program test;
    const QString script = Write_Stand_In(test, u"apart"_s, "printf '%s\\n' \"$@\"; echo $# >&2\n");
    Child_Process child;
    ASSERT_EQ(child.Start(script, {u""_s, u"a b"_s, u"\"c\\"_s, u"%d *"_s, u"ü\n"_s}, Child_Process::Outputs::Apart),
              Started::Yes);
    QByteArray output;
    QByteArray messages;
    QByteArray both[2];
    while (child.Read_Chunks(both[0], both[1], 4096) != Read::Ended) {
        output += both[0];
        messages += both[1];
    }
    EXPECT_EQ(output, "\na b\n\"c\\\n%d *\nü\n\n");
    EXPECT_EQ(messages, "5\n");
}
