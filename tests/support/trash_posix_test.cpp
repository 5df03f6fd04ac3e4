#include "support/trash.h"

#include "common/test_program.h"
#include "support/string_builder.h"

#include <QDir>
#include <QFile>

TEST(Trash, OneThatCannotDescribeWhatItTakesIsNotTriedForEver)
{
    const Test_Program test;
    const QString file = test.Write(u"a.mkv"_s, "x");
    // Nobody, root neither, can make a file in there.
    QDir().mkpath(test.Path(u"data/Trash/files"_s));
    ASSERT_TRUE(QFile::link(u"/proc/self"_s, test.Path(u"data/Trash/info"_s)));
    qputenv("XDG_DATA_HOME", QFile::encodeName(test.Path(u"data"_s)));
    clsStringBuilder faults;
    EXPECT_FALSE(Delete_To_Recycle(file, faults));
    EXPECT_EQ(test.Read(u"a.mkv"_s), "x");
    EXPECT_EQ(faults.ToString(), u"-- Could not be moved to the trash - \""_s + file + u"\"\r\n"_s);
}

TEST(Trash, ANameTooLongForItIsCutThereAndTheTrashKnowsAllOfIt)
{
    const Test_Program test;
    const QString longest = QString(251, u'n') + u".mkv"_s;
    clsStringBuilder faults;
    EXPECT_TRUE(Delete_To_Recycle(test.Write(longest, "x"), faults)) << faults.ToString().toStdString();
    QFile info(qEnvironmentVariable("XDG_DATA_HOME") + u"/Trash/info/"_s + QString(200, u'n') + u".mkv.trashinfo"_s);
    ASSERT_TRUE(info.open(QIODevice::ReadOnly)) << Names_In_Trash().join(u'|').toStdString();
    EXPECT_TRUE(info.readAll().contains('/' + longest.toUtf8() + '\n'));
}
