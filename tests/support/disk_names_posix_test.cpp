#include "support/disk_names.h"

#include "common/test_program.h"
#include "support/files.h"
#include "support/paths.h"
#include "support/shown_text.h"
#include "support/string_builder.h"
#include "support/trash.h"

#include <QDir>
#include <QFile>
#include <fcntl.h>
#include <unistd.h>

TEST(Disk_Names, EveryNameLeadsBackToItsBytes)
{
    for (const QByteArray& bytes : {QByteArray("plain é漢😀"), QByteArray("\xff"), QByteArray("a\xe9.mkv\x80"),
                                    QByteArray("😀\xf0\x9f\x98"), QByteArray("\xed\xb3\xbf\xc0\xaf")}) {
        EXPECT_EQ(Bytes_Of_Name(Text_Of_Name(bytes)), bytes) << bytes.toHex().toStdString();
        EXPECT_EQ(Has_Stand_Ins(Text_Of_Name(bytes)), !QUtf8StringView(bytes).isValidUtf8());
    }
}

TEST(Files, AListingComesByNameAndTellsEveryNameApart)
{
    const Test_Program test;
    const QByteArray folder = QFile::encodeName(test.Path(u"videos/"_s));
    const QList<QByteArray> names = {"a", "A.b", "B",  "_c",        "b1",        "E02",   "e01",
                                     "é", "z",   "É2", "x\xe9.mkv", "x\xe8.mkv", "x?.mkv"};
    for (const QByteArray& name : names)
        ASSERT_EQ(::close(::creat((folder + name).constData(), 0600)), 0);
    QStringList shown;
    for (const QString& name : List_Files(test.Path(u"videos/"_s)))
        shown += Bytes_Shown(name);
    EXPECT_EQ(shown, (QStringList{u"a"_s, u"A.b"_s, u"B"_s, u"b1"_s, u"e01"_s, u"E02"_s, u"x?.mkv"_s, u"x\\xE8.mkv"_s,
                                  u"x\\xE9.mkv"_s, u"z"_s, u"_c"_s, u"é"_s, u"É2"_s}));

    // The file beside it, whose name Qt would make of it, isn't taken for it.
    const QString bad = test.Path(u"videos/"_s) + Text_Of_Name("x\xe9.mkv");
    EXPECT_FALSE(File_Exists(bad));
    EXPECT_TRUE(Same_File(bad, bad));
    clsStringBuilder faults;
    EXPECT_FALSE(Delete_To_Recycle(bad, faults));
    EXPECT_TRUE(faults.ToString().contains(u"x\\xE9.mkv"_s));
    EXPECT_EQ(List_Files(test.Path(u"videos/"_s)).size(), names.size());
    for (const QByteArray& name : names)
        ::unlink((folder + name).constData()); // Qt can't remove all of them
}

TEST(Files, APathIsFoundInAnotherCaseWhereItsOwnIsMissing)
{
    const Test_Program test;
    for (const QString& name : {u"a.OPT"_s, u"a.Opt"_s, u"b.opt"_s, u"B.OPT"_s, u"c_attachments/x"_s})
        test.Write(u"videos/"_s + name);
    const QString videos = test.Path(u"videos/"_s);
    EXPECT_EQ(As_On_Disk(videos + u"a.opt"_s), videos + u"a.OPT"_s);
    EXPECT_EQ(As_On_Disk(videos + u"b.opt"_s), videos + u"b.opt"_s);
    EXPECT_EQ(As_On_Disk(videos + u"c_Attachments/"_s), videos + u"c_attachments/"_s);
    EXPECT_EQ(As_On_Disk(videos + u"d"_s), videos + u"d"_s);
}

TEST(Shown_Text, WhatCouldPassForSomethingElseIsWrittenOut)
{
    const QString name = u"a\r\n\t\x1b[2J\u009b\u202Eb😀"_s + Text_Of_Name("\xe9");
    EXPECT_EQ(As_One_Line(name), u"a\\r\\n\t\x1b[2J\u009b\u202Eb😀\\xE9"_s);
    EXPECT_EQ(Printable(name), u"a\\r\\n\\t\\x1B[2J\\u009B\\u202Eb😀\\xE9"_s);
}

TEST(Paths, ALinkToAFolderIsThatFolder)
{
    const Test_Program test;
    ASSERT_TRUE(QFile::link(test.Path(u"videos"_s), test.Path(u"link"_s)));
    EXPECT_TRUE(Same_Folder(test.Path(u"videos"_s), test.Path(u"link/"_s)));
}
