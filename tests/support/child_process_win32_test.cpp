#include "support/child_process.h"

#include "common/stand_in_tool.h"
#include "support/death_words.h"
#include "support/system_identification.h"
#include "support/windows_quoting.h"

#include <QCoreApplication>
#include <QDir>
#include <windows.h>
using Started = Child_Process::Started;
using Read = Child_Process::Read;

static QString Test_Child()
{
    return QDir::toNativeSeparators(QCoreApplication::applicationDirPath() + u"/test_child.exe"_s);
}

TEST(ChildProcess, ACrashHasItsWordsAndOtherStatusesAreNumbers)
{
    const std::tuple<QString, int, QString> claims[] = {
        {u"crash"_s, static_cast<int>(0xC0000005), u"an access violation (0xC0000005)"_s},
        {u"none"_s, 300, u"the system's status 0x12C"_s},
    };
    for (const auto& [act, status, words] : claims) {
        Child_Process child;
        ASSERT_EQ(child.Start(Test_Child(), {act}), Started::Yes);
        EXPECT_TRUE(child.Wait([] { return true; }));
        EXPECT_EQ(child.Exit_Status(), status);
        EXPECT_EQ(What_Ended(status), words);
    }
}

TEST(ChildProcess, ASilentChildIsWaitedForAsLongAsTheCallerWantsAndAKillIsNoStatusOfItsOwn)
{
    Child_Process child;
    ASSERT_EQ(child.Start(Test_Child(), {u"silent"_s}), Started::Yes);
    const long number = child.Process_Number();
    QByteArray chunk;
    EXPECT_EQ(child.Read_Chunk(chunk, 100), Read::Nothing_Yet);
    int turns = 0;
    EXPECT_FALSE(child.Wait([&turns] { return ++turns < 3; }));
    EXPECT_TRUE(Is_Running(number));
    child.Kill();
    EXPECT_FALSE(Is_Running(number));
    EXPECT_LT(child.Exit_Status(), 0);
}

TEST(ChildProcess, AProgramThatCannotBeExecutedIsAFailedStart)
{
    const Test_Program test;
    const QString plain = test.Write(u"plain.exe"_s, "no program\r\n");
    const std::tuple<QString, QStringList, DWORD> claims[] = {
        {u""_s, {}, ERROR_FILE_NOT_FOUND},
        {u"cmd.exe"_s, {}, ERROR_FILE_NOT_FOUND}, // PATH is not searched
        {test.Path(u"missing.exe"_s), {}, ERROR_FILE_NOT_FOUND},
        {plain, {}, ERROR_BAD_EXE_FORMAT},
        {test.Write(u"shell.BAT"_s, "echo no\r\n"), {}, ERROR_BAD_EXE_FORMAT}, // it would go through a shell
        {Test_Child(), {QString(Longest_Windows_Command_Line, u'x')}, ERROR_FILENAME_EXCED_RANGE},
    };
    const int handles = Open_Descriptors();
    for (const auto& [executable, arguments, error] : claims) {
        Child_Process child;
        EXPECT_EQ(child.Start(executable, arguments), Started::No_Process) << executable.toStdString();
        EXPECT_EQ(child.System_Error(), static_cast<int>(error)) << executable.toStdString();
    }
    EXPECT_EQ(Open_Descriptors(), handles);
    EXPECT_TRUE(Format_System_Error(ERROR_FILENAME_EXCED_RANGE).contains(u"too long"_s));
}
