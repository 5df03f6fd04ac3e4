#include "support/child_process.h"

#include "common/stand_in_tool.h"

#include <QFile>
#include <cerrno>
#include <csignal>
#include <unistd.h>
using Started = Child_Process::Started;
using Read = Child_Process::Read;

/// All that the child prints, until its output ends.
static QByteArray Output_Of(Child_Process& child, std::size_t most = 4096)
{
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

static QByteArray Run_Shell(Child_Process& child, const QString& body)
{
    EXPECT_EQ(child.Start(u"/bin/sh"_s, {u"-c"_s, body}), Started::Yes);
    return Output_Of(child);
}

TEST(ChildProcess, BothStreamsArriveInOrderAndTheStatusIsKnown)
{
    const std::tuple<QString, QByteArray, int> claims[] = {
        {u"echo one; echo two >&2; echo three; exit 2"_s, "one\ntwo\nthree\n", 2},
        {u"kill -9 $$"_s, "", -SIGKILL},
        {u"cat; echo end"_s, "end\n", 0}, // standard input is empty, not ours
        {u"printf 'half\\nline'"_s, "half\nline", 0},
    };
    for (const auto& [body, output, exit] : claims) {
        Child_Process child;
        EXPECT_EQ(Run_Shell(child, body), output);
        EXPECT_EQ(child.Exit_Status(), exit) << body.toStdString();
        EXPECT_EQ(child.Process_Number(), 0);
    }
    EXPECT_EQ(Children_Left(), 0);
}

TEST(ChildProcess, AProgramThatCannotBeExecutedIsAFailedStart)
{
    const Test_Program test;
    const QString plain = test.Write(u"plain"_s, "echo no\n");
    const QString garbage = Write_Stand_In(test, u"bad_interpreter"_s, "");
    QFile(garbage).remove();
    test.Write(u"bad_interpreter"_s, "#!/nowhere/sh\n");
    QFile::setPermissions(garbage, QFile::ReadOwner | QFile::ExeOwner);

    const std::tuple<QString, int> claims[] = {
        {u""_s, ENOENT},
        {u"sh"_s, ENOENT},
        {test.Path(u"missing"_s), ENOENT},
        {plain, EACCES},
        {test.Path(u""_s), EACCES},
        {garbage, ENOENT},
        {plain + u"/x"_s, ENOTDIR},
    };
    const int descriptors = Open_Descriptors();
    for (const auto& [executable, error] : claims) {
        Child_Process child;
        EXPECT_EQ(child.Start(executable, {}), Started::No_Process) << executable.toStdString();
        EXPECT_EQ(child.System_Error(), error) << executable.toStdString();
    }
    EXPECT_EQ(Open_Descriptors(), descriptors);
    EXPECT_EQ(Children_Left(), 0);
}

TEST(ChildProcess, ASilentChildGivesTheReaderItsTurnAndDiesWithItsGroup)
{
    const int descriptors = Open_Descriptors();
    long grandchild = 0;
    {
        Child_Process child;
        ASSERT_EQ(child.Start(u"/bin/sh"_s, {u"-c"_s, u"sleep 1000 & echo $!; wait"_s}), Started::Yes);
        QByteArray chunk;
        while (child.Read_Chunk(chunk, 100) == Read::Nothing_Yet) {}
        grandchild = chunk.trimmed().toLong();
        EXPECT_TRUE(Is_Running(grandchild));
        EXPECT_EQ(child.Read_Chunk(chunk, 100), Read::Nothing_Yet);
        EXPECT_TRUE(chunk.isEmpty());
    }
    for (int waited = 0; waited < 5000 && Is_Running(grandchild); waited += 10)
        ::usleep(10000);
    EXPECT_FALSE(Is_Running(grandchild));
    EXPECT_EQ(Children_Left(), 0);
    EXPECT_EQ(Open_Descriptors(), descriptors);
}

TEST(ChildProcess, AChildThatClosedItsOutputIsWaitedForAsLongAsTheCallerWants)
{
    Child_Process child;
    EXPECT_EQ(Run_Shell(child, u"exit 3"_s), "");
    EXPECT_EQ(child.Exit_Status(), 3);

    ASSERT_EQ(child.Start(u"/bin/sh"_s, {u"-c"_s, u"exec sleep 1000 >&- 2>&-"_s}), Started::Yes);
    QByteArray chunk;
    while (child.Read_Chunk(chunk, 100) != Read::Ended) {}
    int turns = 0;
    EXPECT_FALSE(child.Wait([&turns] { return ++turns < 3; }));
    EXPECT_EQ(turns, 3);
    EXPECT_TRUE(Is_Running(child.Process_Number()));
    child.Kill();
    EXPECT_EQ(child.Exit_Status(), -SIGKILL);
}

TEST(ChildProcess, ChildrenSpeakEnglishInUtf8AndLeadAGroupOfTheirOwn)
{
    qputenv("LC_ALL", "xx_XX");
    qputenv("LANGUAGE", "de");
    Child_Process child;
    const QByteArray output = Run_Shell(child, u"echo \"$LC_ALL,$LANGUAGE,$(locale charmap)\""_s);
    qunsetenv("LC_ALL");
    qunsetenv("LANGUAGE");
    EXPECT_EQ(output, "C.UTF-8,,UTF-8\n");

    ASSERT_EQ(child.Start(u"/bin/sh"_s, {u"-c"_s, u"read -r stat < /proc/$$/stat; echo $stat"_s}), Started::Yes);
    const QByteArray number = QByteArray::number(static_cast<qlonglong>(child.Process_Number()));
    const QByteArray stat = Output_Of(child);
    EXPECT_EQ(stat.mid(stat.lastIndexOf(')') + 2).split(' ').value(2), number);
}
