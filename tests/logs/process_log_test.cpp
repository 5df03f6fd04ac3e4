#include "logs/process_log.h"

#include "common/test_program.h"
#include "common/test_trash.h"
#include "support/disk_steps.h"
#include "support/folder_lock.h"
#include "workbenches/form_lock.h"
#include "workbenches/last_entry.h"

#include <QDir>
#include <QFile>
#include <memory>

namespace {

struct Log_Test : testing::Test, Test_Program
{
    Log_Test()
    {
        Prog.Now = [] { return QDateTime(QDate(2026, 3, 7), QTime(0, 5, 9)); };
        Prog.Tools.FFProbe_Path = u"/app/ffprobe"_s;
        Prog.Tools.System_MKVMerge_Path = u"/usr/bin/mkvmerge"_s;
        Prog.Tools.System_MKVMerge_Version = u"mkvmerge v74.0.0 ('You Oughta Know') 64-bit\r\n"_s;
    }

    QByteArray Header(int level) const
    {
        return "This entry generated on - Mar/07/2026 12:05:09 AM local time by Vantorra ver 2.5.5 :: Log verbosity=" +
               QByteArray::number(level) + "\r\n";
    }

    QByteArray Log() const { return Read(u"app/Vantorra_Process.log"_s); }

    QByteArray Generation(const char* letter) const
    {
        return Read(u"app/Vantorra_Process"_s + QLatin1StringView(letter) + u".log"_s);
    }

    /// All but the lock, which is a file on Windows.
    QStringList Files() const
    {
        QStringList files = QDir(Path(u"app"_s)).entryList(QDir::Files | QDir::Hidden, QDir::Name);
        files.removeAll(u".vantorra-lock"_s);
        return files;
    }
};

TEST_F(Log_Test, OnlyResultsThatSaySomethingReachTheFileAndAllBuffersAreEmptyAfterwards)
{
    for (const auto* line : {u"@", u"~~~~", u"", u" @", u"    -- ü \"x\"", u"@"})
        Prog.Logs.Log_Results.AppendLine(line);
    Prog.Logs.Log_Faults.AppendLine(u"fault");
    Prog.Logs.Log_Console.AppendLine(u"console");
    Write_Process_Log(Prog);
    EXPECT_EQ(Log(), Header(0) + "~~~~\r\n @\r\n    -- ü \"x\"\r\n\r\n\r\n");
    EXPECT_TRUE(Prog.Logs.Log_Results.Is_Empty() && Prog.Logs.Log_Faults.Is_Empty() &&
                Prog.Logs.Log_Console.Is_Empty());
}

TEST_F(Log_Test, AppendingCarriesTheOldTextBelowTheNewEntryAndTrashesNothing)
{
    Prog.Options.mnu_AppendLogs = true;
    Write(u"app/Vantorra_ProcessA.log"_s, "a");
    Write(u"app/Vantorra_Process.log"_s, "old one\nold two\r\nno line end");
    const qsizetype trashed = Names_In_Trash().filter(u"Vantorra_Process"_s).size();
    const QString log = Path(u"app/Vantorra_Process.log"_s);
    QFile::setPermissions(log, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    const QFileDevice::Permissions permissions = QFile::permissions(log);
    Write_Process_Log(Prog);
    EXPECT_EQ(QFile::permissions(log), permissions);
    EXPECT_EQ(Log(), Header(0) + "\r\n\r\n\r\nold one\nold two\r\nno line end\r\n");
    EXPECT_EQ(Generation("A"), "a");
    EXPECT_EQ(Names_In_Trash().filter(u"Vantorra_Process"_s).size(), trashed);
    EXPECT_EQ(Files(), (QStringList{u"Vantorra_Process.log"_s, u"Vantorra_ProcessA.log"_s}));
}

TEST_F(Log_Test, WhatACrashedRunLeftInTheWorkFileStaysAheadOfTheNewEntry)
{
    for (const QByteArray leftover : {"left\r\n", "over\r\n"}) {
        Write(u"app/Vantorra_ProcessNEW.log"_s, leftover.first(leftover == "left\r\n" ? 6 : 4));
        Write_Process_Log(Prog);
        EXPECT_EQ(Log(), leftover + Header(0) + "\r\n\r\n") << leftover.data();
    }
}

TEST_F(Log_Test, RotationMovesEachGenerationByOneLetterAndClosesNoGap)
{
    // Letters that exist, "." for the current log; what then lies at A to E, a blank for nothing; how many are trashed.
    const std::tuple<QByteArray, QByteArray, int> cases[] = {
        {"", "     ", 0},       {".", ".    ", 0},     {"ABE", "AB  E", 0}, {".ABE", ".AB E", 0},
        {".ABCDE", ".ABCD", 1}, {".ABCD", ".ABCD", 0}, {".DE", ".   D", 1}, {".CE", ".  CE", 0},
    };
    for (const auto& [before, after, trashed] : cases) {
        QDir(Path(u"app"_s)).removeRecursively();
        for (const char letter : before)
            Write(u"app/Vantorra_Process"_s + (letter == '.' ? u""_s : QString(QLatin1Char(letter))) + u".log"_s,
                  QByteArray(1, letter));
        Write(u"app/other"_s);
        const qsizetype trashed_before = Names_In_Trash().filter(u"Vantorra_ProcessE"_s).size();
        EXPECT_EQ(Rotate_Process_Logs(Prog), before.startsWith('.')) << before.data();
        QByteArray found;
        for (const auto* letter : {"A", "B", "C", "D", "E"})
            found += Generation(letter).isEmpty() ? " " : Generation(letter);
        EXPECT_EQ(found, after) << before.data();
        EXPECT_TRUE(Log().isEmpty()) << before.data();
        EXPECT_EQ(Names_In_Trash().filter(u"Vantorra_ProcessE"_s).size(), trashed_before + trashed) << before.data();
    }
}

TEST_F(Log_Test, ALogThatARunLeftUnderTwoNamesIsRotatedOnce)
{
    const QString log = Write(u"app/Vantorra_Process.log"_s, "old");
    ASSERT_EQ(Give_Second_Name(log, Path(u"app/Vantorra_ProcessA.log"_s)), 0);
    Write(u"app/Vantorra_ProcessB.log"_s, "b");
    Write(u"app/Vantorra_ProcessNEW.log"_s, "left\r\n");
    Write_Process_Log(Prog);
    EXPECT_EQ(Log(), "left\r\n" + Header(0) + "\r\n\r\n");
    EXPECT_EQ(Generation("A"), "old");
    EXPECT_EQ(Generation("B"), "b");
    EXPECT_EQ(Generation("C"), "");
}

TEST_F(Log_Test, AnEntryThatIsInTheLogAlreadyIsNotTakenInFromTheWorkFileOnceMore)
{
    // A run died between giving the new log its name and removing the work file.
    const QByteArray entry = Header(0) + "result\r\n\r\n\r\n";
    Write(u"app/Vantorra_Process.log"_s, entry + "\r\nold\r\n");
    Write(u"app/Vantorra_ProcessNEW.log"_s, entry);
    Prog.Logs.Log_Results.AppendLine(u"result");
    Prog.Options.mnu_AppendLogs = true;
    Write_Process_Log(Prog);
    EXPECT_EQ(Log(), entry + "\r\n" + entry + "\r\nold\r\n");
    EXPECT_EQ(Files(), QStringList{u"Vantorra_Process.log"_s});
}

TEST_F(Log_Test, ATrashThatRefusesTheOldestLogStopsTheRotationAndTheOldTextIsCarriedAlong)
{
    for (const auto* letter : {"", "A", "B", "C", "D", "E"})
        Write(u"app/Vantorra_Process"_s + QLatin1StringView(letter) + u".log"_s, letter);
    const Refused_By_Trash refused(Path(u"app/Vantorra_ProcessE.log"_s));
    EXPECT_TRUE(Rotate_Process_Logs(Prog));
    ASSERT_EQ(Person.Messages.size(), 1U);
    const QString refusal =
        u"-- Could not be moved to the trash - \""_s + Path(u"app/Vantorra_ProcessE.log"_s) + u"\"\r\n"_s;
    EXPECT_TRUE(Person.Messages[0].Text.contains(refusal));
    Write_Process_Log(Prog);
    Prog.Options.mnu_AppendLogs = true;
    Write_Process_Log(Prog);
    const QByteArray entry = Header(0) + "\r\n\r\n";
    EXPECT_EQ(Log(), entry + "\r\n" + entry + refusal.toUtf8() + "\r\n\r\n");
    for (const auto* letter : {"A", "B", "C", "D", "E"})
        EXPECT_EQ(Generation(letter), QByteArray(letter));
}

TEST_F(Log_Test, ALogThatIsAFolderIsAnErrorThatNamesItAndTheEntryWaitsInTheWorkFile)
{
    QDir().mkpath(Path(u"app/Vantorra_Process.log"_s));
    EXPECT_TRUE(Error_Of([&] { Write_Process_Log(Prog); }).Message.contains(u"Vantorra_Process.log"_s));
    EXPECT_TRUE(Prog.Logs.Write_Failed);
    EXPECT_EQ(Read(u"app/Vantorra_ProcessNEW.log"_s), Header(0) + "\r\n\r\n");
    Prog.Logs.Log_Results.AppendLine(u"x");
    EXPECT_FALSE(Write_Last_Entry(Prog)) << "the log itself is what failed";
    EXPECT_EQ(Read(u"app/Vantorra_ProcessNEW.log"_s), Header(0) + "\r\n\r\n");
}

TEST_F(Log_Test, TheLastEntryIsDigestedAndWrittenOnceAndOnlyIfThereIsSomethingToSay)
{
    EXPECT_FALSE(Write_Last_Entry(Prog)) << "nothing to say";
    Prog.Options.Log_Verbosity = 1;
    Prog.Logs.Log_Faults.AppendLine(u"-- Processing video file - \"x\"");
    EXPECT_TRUE(Write_Last_Entry(Prog));
    EXPECT_TRUE(Log().contains("[Vantorra Results]\r\n            -- Processing video file - \"x\"\r\n"));
    EXPECT_FALSE(Write_Last_Entry(Prog)) << "all was said";
}

TEST_F(Log_Test, AnotherProgramsEntryIsWaitedFor)
{
    // The lock belongs to an opened folder, so one process can stand in for two.
    auto other = std::make_unique<Folder_Lock>();
    ASSERT_TRUE(other->Try(Path(u"app"_s)));
    Person.On_Pump = [&] {
        EXPECT_EQ(Files(), QStringList());
        other.reset();
        Person.On_Pump = nullptr;
    };
    Write_Process_Log(Prog);
    EXPECT_GE(Person.Waited_Milliseconds, 50);
    EXPECT_EQ(Log(), Header(0) + "\r\n\r\n");
}

TEST_F(Log_Test, AnEntryThatCanNotGetAtTheLogWaitsInAFileOfItsOwnForTheNextOne)
{
    const auto waiting = [&] { return Files().filter(u"ProcessNEW-"_s).size(); };
    Prog.Options.mnu_AppendLogs = true;
    auto other = std::make_unique<Folder_Lock>();
    ASSERT_TRUE(other->Try(Path(u"app"_s)));
    Write_Process_Log(Prog);
    EXPECT_GE(Person.Waited_Milliseconds, 60'000);
    EXPECT_EQ(Person.Messages.size(), 1U);

    Person.Waited_Milliseconds = 0;
    Prog.Logs.Log_Results.AppendLine(u"halted while it waits"_s);
    Person.On_Pump = [&] { Prog.Run.Halt_Requested = true; };
    Write_Process_Log(Prog);
    EXPECT_LE(Person.Waited_Milliseconds, 1'000);
    EXPECT_EQ(Person.Messages.size(), 1U) << "who halts wants no box";
    EXPECT_EQ(waiting(), 2);

    Person.On_Pump = nullptr;
    Prog.Run.Halt_Requested = false;
    other.reset();
    Write_Process_Log(Prog);
    const QByteArray entry = Header(0) + "\r\n\r\n";
    EXPECT_EQ(Log(), entry + "\r\n" + Header(0) + "halted while it waits\r\n\r\n\r\n\r\n" + entry);
    EXPECT_EQ(waiting(), 0);
}

TEST(Form_Lock, ARunTakesMenusAndOptionsAwayAndTheEndGivesThemBackWithoutTheHaltButton)
{
    Main_Form form;
    for (const bool locked : {true, false}) {
        locked ? Lock_Main_Form(form) : Unlock_Main_Form(form);
        for (const bool enabled : {form.mnu_File.Enabled, form.mnu_Process_Log.Enabled, form.mnu_Settings.Enabled,
                                   form.mnu_HiThere1.Enabled, form.fram_WholeForm.Enabled})
            EXPECT_NE(enabled, locked);
        EXPECT_EQ(form.btn_Halt.Enabled, locked);
    }
}

} // namespace
