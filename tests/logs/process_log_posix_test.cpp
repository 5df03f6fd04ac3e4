#include "common/test_program.h"
#include "logs/process_log.h"
#include "support/run_time_error.h"

#include <sys/stat.h>
#include <unistd.h>

TEST(Process_Log, WhatIsNoPlainFileIsRefusedAndTheEntryIsKept)
{
    Test_Program test;
    const QByteArray log = test.Path(u"app/Vantorra_Process.log"_s).toUtf8();
    const QByteArray work = test.Path(u"app/Vantorra_ProcessNEW.log"_s).toUtf8();
    const auto entries = [&](const char* letter) {
        return test.Read(u"app/Vantorra_Process%1.log"_s.arg(QLatin1StringView(letter))).count("This entry");
    };
    for (const QByteArray& path : {log, work}) {
        for (const bool pipe : {true, false}) {
            ASSERT_EQ(pipe ? ::mkfifo(path, 0600) : ::symlink("/dev/zero", path), 0);
            EXPECT_THROW(Write_Process_Log(test.Prog), Run_Time_Error) << path.data() << pipe;
            ::unlink(path);
        }
        Write_Process_Log(test.Prog);
        EXPECT_EQ(entries(""), path == log ? 3 : 1) << "what waited in the work file, or alone";
    }
    EXPECT_EQ(entries("A") + entries("B"), 2);
}
