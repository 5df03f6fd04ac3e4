#include "life/instance_lock.h"

#include "common/test_program.h"

#include <QCoreApplication>

TEST(InstanceLock, AnotherStartCallsTheHolderByWhateverSpellingOfTheFolder)
{
    const Test_Program test;
    int calls = 0;
    Instance_Lock holder;
    ASSERT_TRUE(holder.Take(test.Path(u"app/"_s)));
    holder.When_Called([&calls] { ++calls; });
    Instance_Lock second;
    EXPECT_FALSE(second.Take(test.Path(u"videos/../APP"_s)));
    second.Call_Holder();
    for (int turns = 0; turns < 100 && calls == 0; ++turns)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 50);
    EXPECT_EQ(calls, 1);
}
