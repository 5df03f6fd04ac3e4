#include "tools/kill_mkvmerge.h"

#include "common/stand_in_tool.h"

#include "support/child_process.h"

#include <QCoreApplication>

TEST(KillMkvmerge, EveryProcessWhoseExecutableHasTheNameGoesAndNoOther)
{
    const Test_Program test;
    // Names that nothing else on the machine has, and one that only begins like it.
    const QString name = u"vantorra_kill_test_%1"_s.arg(QCoreApplication::applicationPid());
    const QString killed = Write_Stand_In(test, name, "exec sleep 1000\n");
    const QString other = Write_Stand_In(test, name + u"x"_s, "exec sleep 1000\n");
    Child_Process first;
    Child_Process second;
    Child_Process stays;
    ASSERT_EQ(first.Start(killed, {}), Child_Process::Started::Yes);
    ASSERT_EQ(second.Start(killed, {}), Child_Process::Started::Yes);
    ASSERT_EQ(stays.Start(other, {killed}), Child_Process::Started::Yes);

    Kill_By_Executable_Name(u"D:\\elsewhere\\"_s + name.toUpper() + u".EXE"_s);
    for (Child_Process* child : {&first, &second}) {
        child->Wait([] { return true; });
        EXPECT_LT(child->Exit_Status(), 0) << "as mkvmerge's own words for warnings it would count as done";
    }
    EXPECT_TRUE(Is_Running(stays.Process_Number()));
}
