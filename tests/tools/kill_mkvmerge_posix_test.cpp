#include "tools/kill_mkvmerge.h"

#include "common/stand_in_tool.h"
#include "support/child_process.h"

#include <QFile>
#include <csignal>
#include <unistd.h>

TEST(KillMkvmerge, EveryProcessWhoseExecutableHasTheNameGoesAndNoOther)
{
    const Test_Program test;
    // A name that nothing else on the machine has, and one that only begins like it.
    const QString name = u"vantorra_kill_test_"_s + QString::number(::getpid());
    const QString executable = test.Path(name);
    const QString other = executable + u"x"_s;
    for (const QString& copy : {executable, other}) {
        ASSERT_TRUE(QFile::copy(u"/bin/sleep"_s, copy));
        QFile::setPermissions(copy, QFile::ReadOwner | QFile::ExeOwner);
    }
    Child_Process first;
    Child_Process second;
    Child_Process stays;
    Child_Process named_only; // has the name among its arguments
    ASSERT_EQ(first.Start(executable, {u"1000"_s}), Child_Process::Started::Yes);
    ASSERT_EQ(second.Start(executable, {u"1000"_s}), Child_Process::Started::Yes);
    ASSERT_EQ(stays.Start(other, {u"1000"_s}), Child_Process::Started::Yes);
    ASSERT_EQ(named_only.Start(u"/bin/sh"_s, {u"-c"_s, u"sleep 1000"_s, executable}), Child_Process::Started::Yes);
    QFile::remove(executable); // a replaced program still has its name

    Kill_By_Executable_Name(u"/elsewhere/"_s + name);
    for (Child_Process* killed : {&first, &second}) {
        killed->Wait([] { return true; });
        EXPECT_EQ(killed->Exit_Status(), -SIGKILL);
    }
    EXPECT_TRUE(Is_Running(stays.Process_Number()));
    EXPECT_TRUE(Is_Running(named_only.Process_Number()));
}
