#include "support/child_process.h"

#include "common/stand_in_tool.h"

#include <QFile>
#include <cerrno>
#include <csignal>
using Started = Child_Process::Started;
using Read = Child_Process::Read;

/// All that the child prints, until its output ends.
static QByteArray All_Output_Of(Child_Process& child)
{
    QByteArray output;
    QByteArray chunk;
    for (Read read = Read::Nothing_Yet; read != Read::Ended;) {
        read = child.Read_Chunk(chunk, 4096);
        output += chunk;
    }
    child.Wait([] { return true; });
    return output;
}

static QByteArray Run_Shell(Child_Process& child, const QString& body)
{
    EXPECT_EQ(child.Start(u"/bin/sh"_s, {u"-c"_s, body}), Started::Yes);
    return All_Output_Of(child);
}

TEST(ChildProcess, ASignalIsItsStatus)
{
    Child_Process child;
    EXPECT_EQ(Run_Shell(child, u"kill -9 $$"_s), "");
    EXPECT_EQ(child.Exit_Status(), -SIGKILL);
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

TEST(ChildProcess, AChildThatClosedItsOutputIsWaitedForAsLongAsTheCallerWants)
{
    const Test_Program test;
    Child_Process child;
    ASSERT_EQ(child.Start(Write_Stand_In(test, u"closed"_s, "exec sleep 1000 >&- 2>&-\n"), {}), Started::Yes);
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
    const QByteArray stat = All_Output_Of(child);
    EXPECT_EQ(stat.mid(stat.lastIndexOf(')') + 2).split(' ').value(2), number);
}
