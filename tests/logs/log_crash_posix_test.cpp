#include "common/test_program.h"
#include "logs/process_log.h"

#include <QDir>
#include <csignal>
#include <functional>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

const QByteArray Entry = "This entry generated on - Mar/07/2026 12:05:09 AM local time by Vantorra ver 2.5.5 :: Log "
                         "verbosity=0\r\nresult\r\n\r\n\r\n";

/// A folder with an old log, written to by a child process that may be killed or starved.
struct Crash_Test : testing::Test, Test_Program
{
    Crash_Test()
    {
        Prog.Now = [] { return QDateTime(QDate(2026, 3, 7), QTime(0, 5, 9)); };
        Prog.Logs.Log_Results.AppendLine(u"result");
    }

    void Lay_Down(const QByteArray& old)
    {
        QDir(Path(u"app"_s)).removeRecursively();
        Write(u"app/Vantorra_Process.log"_s, old);
        Write(u"app/Vantorra_ProcessA.log"_s, "a\r\n");
        Write(u"app/Vantorra_ProcessB.log"_s, "b\r\n");
    }

    /// Runs `work` in a child; its exit status, or minus the signal that ended it. `kill_after` microseconds, 0: never.
    static int In_Child(const std::function<int()>& work, useconds_t kill_after = 0)
    {
        const pid_t child = ::fork();
        if (child == 0)
            ::_exit(work());
        if (kill_after > 0) {
            ::usleep(kill_after);
            ::kill(child, SIGKILL);
        }
        int status = 0;
        ::waitpid(child, &status, 0);
        return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
    }

    QByteArray Log() const { return Read(u"app/Vantorra_Process.log"_s); }

    QByteArray Work_File() const { return Read(u"app/Vantorra_ProcessNEW.log"_s); }
};

TEST_F(Crash_Test, AKillLeavesTheOldLogOrTheNewOneAndTheNextRunGoesOn)
{
    const QByteArray old = QByteArray(8 << 20, 'x') + "\r\n";
    int killed = 0;
    for (const bool append : {true, false}) {
        Prog.Options.mnu_AppendLogs = append;
        const QByteArray whole_new = append ? Entry + "\r\n" + old : Entry;
        for (useconds_t delay = 500; delay <= 20'000; delay += 1'300) {
            Lay_Down(old);
            if (In_Child([&] { return Write_Process_Log(Prog) ? 0 : 1; }, delay) == -SIGKILL)
                ++killed;
            const QByteArray log = Log();
            EXPECT_TRUE(log == old || log == whole_new) << append << ' ' << delay << ' ' << log.size();
            // Whatever was left, the next run writes its whole entry, and nothing is in the way.
            Prog.Options.mnu_AppendLogs = append;
            EXPECT_EQ(In_Child([&] { return Write_Process_Log(Prog) ? 0 : 1; }), 0);
            EXPECT_TRUE(Log().contains(Entry)) << append << ' ' << delay;
            EXPECT_LT(Log().size(), 3 * Entry.size() + (append ? old.size() : 0)) << "no text twice " << delay;
            EXPECT_TRUE(Work_File().isEmpty());
        }
    }
    EXPECT_GT(killed, 0) << "the child was always faster";
}

TEST_F(Crash_Test, AKillBetweenTwoStepsOfTheRotationLosesNothing)
{
    // The pumps lie between the steps: the child dies in the one that is counted.
    for (int deadly = 1; deadly <= 8; ++deadly) {
        Lay_Down("old\r\n");
        const int ended = In_Child([&] {
            int pumps = 0;
            Person.On_Pump = [&] {
                if (++pumps == deadly)
                    ::_exit(99);
            };
            return Write_Process_Log(Prog) ? 0 : 1;
        });
        EXPECT_EQ(ended, deadly <= 7 ? 99 : 0) << deadly;
        EXPECT_EQ(Log(), ended == 99 ? "old\r\n" : Entry) << deadly;
        EXPECT_EQ(Work_File(), ended == 99 ? Entry : QByteArray()) << deadly;
        QByteArray earlier;
        for (const auto* letter : {u"A", u"B", u"C"})
            earlier += Read(u"app/Vantorra_Process"_s + QString::fromUtf16(letter) + u".log"_s);
        EXPECT_TRUE(earlier.contains("a\r\nb\r\n")) << deadly << ' ' << earlier.toStdString();
    }
}

TEST_F(Crash_Test, AFullDiskIsTheRunTimeErrorAndTheOldLogStaysWhole)
{
    constexpr int disk_full = 61;
    const QByteArray old = QByteArray(3 << 20, 'x') + "\r\n";
    // Whether the old log is appended to, the room in bytes, what the work file holds afterwards.
    const std::tuple<const char*, bool, rlim_t, QByteArray> cases[] = {
        {"no room at all", true, 0, {}},
        {"in the entry", true, 20, Entry.left(20)},
        {"in the entry, rotating", false, 20, Entry.left(20)},
        {"at the empty line between", true, static_cast<rlim_t>(Entry.size()) + 1, Entry},
        {"in the old text", true, 2 << 20, Entry},
        {"at its very end", true, static_cast<rlim_t>(Entry.size() + 2 + old.size() - 1), Entry},
    };
    for (const auto& [what, append, room, work] : cases) {
        Lay_Down(old);
        Prog.Options.mnu_AppendLogs = append;
        const rlimit limit{room, room};
        const int ended = In_Child([&] {
            ::signal(SIGXFSZ, SIG_IGN);
            ::setrlimit(RLIMIT_FSIZE, &limit);
            return Error_Of([&] { Write_Process_Log(Prog); }).Number;
        });
        EXPECT_EQ(ended, disk_full) << what;
        EXPECT_EQ(Log(), old) << what;
        EXPECT_EQ(Work_File(), work) << what;
        EXPECT_EQ(Read(u"app/Vantorra_ProcessA.log"_s), "a\r\n") << what;
    }
}

} // namespace
