#include "support/disk_steps.h"

#include "common/stand_in_tool.h"
#include "common/test_trash.h"
#include "support/disk_names.h"
#include "support/files.h"
#include "support/folder_lock.h"
#include "support/long_path.h"
#include "support/memory_file.h"
#include "support/paths.h"
#include "support/shown_text.h"
#include "support/string_builder.h"
#include "support/system_calls_win32.h"
#include "support/trash.h"
#include "support/whole_file.h"

#include <QDir>
#include <QFile>
#include <cerrno>
#include <memory>
#include <thread>
#include <windows.h>

/// Makes a file by its literal name, whatever the system makes of it otherwise.
static void Make_Literal(const QString& path, const QByteArray& content = {})
{
    const System_Handle file = Open_Path(path, GENERIC_WRITE, CREATE_ALWAYS);
    ASSERT_TRUE(file) << path.toStdString();
    DWORD written = 0;
    ::WriteFile(file.get(), content.constData(), static_cast<DWORD>(content.size()), &written, nullptr);
}

TEST(Disk_Names, EveryNameLeadsBackToItsBytesAndHalvesOfCharactersAreTold)
{
    const QString half(QChar(0xD83D));
    for (const QString& name : {u"plain é漢😀"_s, half, u"a"_s + half + half + u"b"_s, QString(QChar(0xDE00)) + half}) {
        EXPECT_EQ(Text_Of_Name(Bytes_Of_Name(name)), name);
        EXPECT_EQ(Has_Stand_Ins(name), name != u"plain é漢😀"_s);
    }
    EXPECT_EQ(Bytes_Shown(u"😀"_s + half + u"x"_s), u"😀\\uD83Dx"_s);
}

TEST(Files, ADeepOrOddlyNamedFileIsListedReadAndTakenForNoOther)
{
    const Test_Program test;
    const QString deep = test.Path(QString(u"videos/"_s + QString(120, u'd') + u'/' + QString(120, u'e')));
    ASSERT_GT(deep.size(), 259);
    ASSERT_EQ(Make_Folders(deep), 0);
    const QString file = With_Separator(deep) + u"film."_s;
    Make_Literal(file, "with a dot");
    EXPECT_TRUE(Folder_Exists(deep));
    EXPECT_TRUE(File_Exists(file));
    EXPECT_FALSE(File_Exists(file.chopped(1)));
    EXPECT_EQ(List_Files(deep), QStringList{u"film."_s});
    EXPECT_EQ(Read_File(file), "with a dot");
    EXPECT_TRUE(Path_For_Tool(file).startsWith(u"\\\\?\\"_s));
    EXPECT_TRUE(Path_For_Tool(test.Path(u"nul.mkv"_s)).startsWith(u"\\\\?\\"_s));
    EXPECT_EQ(Path_For_Tool(test.Path(u"a.mkv"_s)), test.Path(u"a.mkv"_s));

    const QString plain = test.Write(u"videos/a.mkv"_s);
    for (const QString& other :
         {plain + u':', plain + u":stream"_s, plain + u'.', plain + u'\\', QString(plain).remove(u':')})
        EXPECT_FALSE(File_Exists(other)) << other.toStdString();
    clsStringBuilder faults;
    EXPECT_FALSE(Delete_To_Recycle(file, faults)) << "the shell would take it for another one";
    EXPECT_TRUE(File_Exists(file));
    EXPECT_EQ(Remove_Own_File(file), 0);
}

TEST(Disk_Steps, ARenameNeverTakesAPlaceButMayChangeCapitals)
{
    const Test_Program test;
    const QString a = test.Write(u"a.mkv"_s, "a");
    const QString b = test.Write(u"b.mkv"_s, "b");
    EXPECT_EQ(Rename_To_Free_Name(a, b).Error, EEXIST);
    EXPECT_EQ(Rename_To_Free_Name(a, test.Path(u"gone/a.mkv"_s)).Error, ENOENT);
    EXPECT_EQ(Rename_To_Free_Name(a, test.Path(u"A.MKV"_s)).Error, 0);
    EXPECT_EQ(test.Read(u"A.mkv"_s), "a");
    EXPECT_EQ(test.Read(u"b.mkv"_s), "b");
}

TEST(Disk_Steps, AHeldFileKeepsNobodyFromItAndNoticesAChange)
{
    const Test_Program test;
    const QString path = test.Write(u"a.mkv"_s, "a");
    Held_File held;
    ASSERT_EQ(held.Open(path), 0);
    EXPECT_TRUE(held.Is_Still_There());
    ASSERT_EQ(Rename_To_Free_Name(path, test.Path(u"b.mkv"_s)).Error, 0);
    EXPECT_FALSE(held.Is_Still_There());
    test.Write(u"a.mkv"_s, "a");
    EXPECT_FALSE(held.Is_Still_There()) << "another file under the name";

    Held_File folder;
    EXPECT_EQ(folder.Open(test.Path(u"videos"_s)), EISDIR);
    Held_File gone;
    EXPECT_EQ(gone.Open(test.Path(u"gone"_s)), ENOENT);
}

TEST(Disk_Steps, ALineIsAppendedBehindATornOne)
{
    const Test_Program test;
    const QString path = test.Path(u"journal"_s);
    EXPECT_EQ(Append_At_Once(path, "one\n", true), 0);
    EXPECT_EQ(Append_At_Once(path, "to", false), 0);
    EXPECT_EQ(Append_At_Once(path, "three\n", false), 0);
    EXPECT_EQ(test.Read(u"journal"_s), "one\nto\nthree\n");
    EXPECT_EQ(Append_At_Once(test.Path(u"videos"_s), "x", false), EINVAL);
}

TEST(Disk_Steps, FoldersAreListedWithReasonsAndMeasured)
{
    const Test_Program test;
    int error = 0;
    EXPECT_TRUE(Read_Entries(test.Path(u"videos"_s), error).empty());
    EXPECT_EQ(error, 0);
    Read_Entries(test.Path(u"gone"_s), error);
    EXPECT_EQ(error, ENOENT);
    Read_Entries(test.Write(u"file"_s), error);
    EXPECT_EQ(error, ENOTDIR);
    EXPECT_GT(Free_Bytes(test.Path()), 0U);
    EXPECT_FALSE(Free_Bytes(test.Path(u"gone"_s)));
    EXPECT_EQ(Longest_Name(test.Path()), 255);
    EXPECT_EQ(System_Words(First_Own_Error + ERROR_SHARING_VIOLATION), Words_Of_System_Error(ERROR_SHARING_VIOLATION));
}

TEST(Whole_File, KeepsAttributesAndWaitsForOneWhoReadsButNotForEver)
{
    const Test_Program test;
    const QString path = test.Write(u"app/a.ini"_s, "old");
    ::SetFileAttributesW(Wide_Path(path), FILE_ATTRIBUTE_HIDDEN);
    {
        auto reader = std::make_unique<System_Handle>(Open_Path(path, GENERIC_READ, OPEN_EXISTING));
        std::thread other([&] {
            ::Sleep(200);
            reader.reset();
        });
        Write_Whole_File(path, "new");
        other.join();
    }
    EXPECT_EQ(test.Read(u"app/a.ini"_s), "new");
    EXPECT_NE(::GetFileAttributesW(Wide_Path(path)) & FILE_ATTRIBUTE_HIDDEN, 0U);
    {
        const System_Handle alone(
            ::CreateFileW(Wide_Path(path), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr));
        EXPECT_EQ(Error_Of([&] { Write_Whole_File(path, "newer"); }).Subject, path);
    }
    EXPECT_EQ(test.Read(u"app/a.ini"_s), "new");
    EXPECT_EQ(List_Files(test.Path(u"app"_s)), QStringList{u"a.ini"_s}) << "nothing is left behind";
}

TEST(Folder_Lock, ExcludesASecondOneAndLeavesNothing)
{
    const Test_Program test;
    auto one = std::make_unique<Folder_Lock>();
    Folder_Lock other;
    EXPECT_TRUE(one->Try(test.Path(u"app"_s)));
    EXPECT_TRUE(one->Try(test.Path(u"app"_s)));
    EXPECT_FALSE(other.Try(test.Path(u"app"_s)));
    one.reset();
    EXPECT_EQ(Count_Folder(test.Path(u"app"_s)).Files, 0);
    EXPECT_TRUE(other.Try(test.Path(u"app"_s)));
    EXPECT_NE(Error_Of([&] { Folder_Lock().Try(test.Path(u"gone"_s)); }).Number, 0);
}

TEST(Memory_File, IsThereForOthersWhileItLives)
{
    QString path;
    {
        const Memory_File file("content");
        path = file.Path();
        const System_Handle reader(
            ::CreateFileW(Wide_Path(path), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr));
        EXPECT_TRUE(reader) << "a tool shares it with readers only";
        EXPECT_EQ(Read_File(path), "content");
    }
    EXPECT_FALSE(File_Exists(path));
}

TEST(Trash, WithoutARecycleBinAFileStaysAndIsTold)
{
    const Test_Program test;
    const QString path = test.Write(u"videos/a.mkv"_s, "a");
    // In a process of its own: Wine looks for the host's trash once.
    const auto is_refused = [&] {
        qputenv("XDG_DATA_HOME", Path_In_Script(test.Write(u"no_folder"_s)));
        clsStringBuilder faults;
        const bool gone = Delete_To_Recycle(path, faults);
        const QString told = u"-- Could not be moved to the trash - \"%1\"\r\n"_s.arg(path);
        return !gone && test.Read(u"videos/a.mkv"_s) == "a" && faults.ToString() == told;
    };
    EXPECT_EXIT(std::_Exit(is_refused() ? 0 : 1), testing::ExitedWithCode(0), "");

    clsStringBuilder faults;
    EXPECT_TRUE(Delete_To_Recycle(path, faults));
    EXPECT_FALSE(File_Exists(path));
    EXPECT_EQ(Names_In_Trash().filter(u"a.mkv"_s).size(), 1);
}
