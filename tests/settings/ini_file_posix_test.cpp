#include "settings/ini_file.h"

#include "common/test_program.h"
#include "support/files.h"
#include "support/run_time_error.h"

#include <QFile>
#include <sys/stat.h>

TEST(IniFile, APipeOrADeviceIsAnErrorThatNamesIt)
{
    const Test_Program test;
    const QString pipe = test.Path(u"app/pipe"_s);
    ASSERT_EQ(::mkfifo(pipe.toUtf8(), 0600), 0);
    const QString device = test.Path(u"app/device"_s);
    ASSERT_TRUE(QFile::link(u"/dev/zero"_s, device));
    for (const QString& path : {pipe, device}) {
        EXPECT_EQ(Error_Of([&] { Load_Ini_File(path); }).Subject, path);
        EXPECT_THROW(Read_Lines(path), Run_Time_Error) << path.toStdString();
    }
}
