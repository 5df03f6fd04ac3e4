#include "life/instance_lock.h"

#include "common/test_program.h"

#include <QFile>
#include <sys/wait.h>
#include <unistd.h>

TEST(InstanceLock, ACrashBlocksNobody)
{
    const Test_Program test;
    const pid_t crashed = fork();
    if (crashed == 0) {
        Instance_Lock lock;
        lock.Take(test.Path(u"app/"_s));
        _exit(0); // without letting go of it
    }
    int status = 0;
    ASSERT_EQ(waitpid(crashed, &status, 0), crashed);
    ASSERT_TRUE(QFile::exists(test.Path(u"app/Vantorra.lock"_s)));
    Instance_Lock later;
    EXPECT_TRUE(later.Take(test.Path(u"app/"_s))) << "the holder is dead";
}
