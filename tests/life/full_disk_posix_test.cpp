#include "command/chapters.h"
#include "common/test_program.h"
#include "life/start_up.h"
#include "settings/settings_store.h"
#include "support/run_time_error.h"
#include "support/whole_file.h"
#include "workbenches/option_cells.h"
#include "workbenches/option_editor.h"
#include "workbenches/option_marks.h"
#include "workbenches/video_info_viewer.h"

#include <QDir>
#include <csignal>
#include <functional>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

/// What a child process made of `work` with room for ten bytes a file: how often its operator was told, and 100 more
/// for a run-time error that says the disk is full.
int Told_In_A_Full_Child(Test_Program& test, const std::function<void()>& work)
{
    const pid_t child = ::fork();
    if (child == 0) {
        ::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{10, 10};
        ::setrlimit(RLIMIT_FSIZE, &limit);
        int thrown = 0;
        try {
            work();
        } catch (const Run_Time_Error& error) {
            thrown = error.Number() == Error_Number::Disk_Full ? 100 : 50;
        }
        ::_exit(thrown + static_cast<int>(test.Person.Messages.size()));
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

/// All that is below the folder, with the files' contents.
QStringList Whole_Folder(const Test_Program& test, const QString& folder)
{
    QStringList all;
    for (const QString& name :
         QDir(test.Path(folder)).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden))
        all += name + u'=' + QString::fromUtf8(test.Read(folder + u'/' + name));
    return all;
}

} // namespace

TEST(Full_Disk, WhoeverWritesTellsAndTheOldFileStands)
{
    constexpr int error = 100;

    struct Case
    {
        const char* What;
        QString Old; ///< the file that is there
        std::function<void(Program&)> Write;
        int Told;
    };

    const auto edit = [](const std::vector<int>& rows) {
        return [rows](Program& program) {
            Option_Editor& editor = program.Option_Files;
            editor.Folder = program.Options.Path_Videos;
            Scan_Option_Folder(program);
            lvw_Files_Selection_Change(program, rows);
            Option_Box_Change(editor, Title_Slot, u"a title"_s);
            btn_Apply_Click(program);
        };
    };
    const Case cases[] = {
        {"settings", u"app/Vantorra.ini"_s, [](Program& program) { Write_Settings(program, false); }, 1},
        {"first start", {}, [](Program& program) { Load_Settings(program); }, 1},
        {"editor, one row", u"videos/a.mp3.opt"_s, edit({0}), 1},
        {"editor, two rows", u"videos/a.mp3.opt"_s, edit({0, 1}), 1},
        {"editor, marked rows", u"videos/a.mp3.opt"_s,
         [](Program& program) {
             program.Option_Files.Folder = program.Options.Path_Videos;
             Scan_Option_Folder(program);
             for (const int row : {0, 1})
                 Type_Into_Cell(program.Option_Files, row, Title_Slot, u"a title"_s);
             if (!Apply_Marks(program) && Count_Marked(program.Option_Files) != 2)
                 program.Person.Show_Message({}); // the marks stay
         },
         1},
        {"video info", u"videos/a Video Info.txt"_s,
         [](Program& program) {
             frm_ViewVFI form;
             form.Shown_File = program.Options.Path_Videos + u"a.mkv"_s;
             form.txt_VideoInfo = u"more than ten bytes"_s;
             ViewVFI_btn_SaveToFile(program, form);
         },
         1},
        {"chapters", u"videos/a_Chapters.xml"_s,
         [](Program& program) {
             QString path;
             Convert_Chapters(program, program.Options.Path_Videos + u"a"_s, true, path);
         },
         error},
    };
    for (const Case& one : cases) {
        Test_Program test;
        test.Prog.Option_Files.Kind.Media_Masks = u"*.mp3"_s;
        test.Prog.Settings.Save_On_Exit = true;
        for (const auto* name : {u"videos/a.mp3", u"videos/b.mp3"})
            test.Write(QString::fromUtf16(name));
        test.Write(u"videos/a_Chapters.txt"_s, "00:00:00.000 One\n");
        if (!one.Old.isEmpty())
            test.Write(one.Old, "[MainWindow]\nTitle=old text that stands\n");
        const QStringList before = Whole_Folder(test, u"app"_s) + Whole_Folder(test, u"videos"_s);
        EXPECT_EQ(Told_In_A_Full_Child(test, [&] { one.Write(test.Prog); }), one.Told) << one.What;
        EXPECT_EQ(Whole_Folder(test, u"app"_s) + Whole_Folder(test, u"videos"_s), before) << one.What;
        // With room again the same works.
        one.Write(test.Prog);
        EXPECT_TRUE(test.Person.Messages.empty()) << one.What;
        EXPECT_NE(Whole_Folder(test, u"app"_s) + Whole_Folder(test, u"videos"_s), before) << one.What;
    }
}

TEST(Full_Disk, ANameWithoutRoomForALongerOneIsReplacedToo)
{
    for (const int length : {248, 249, 255}) {
        const Test_Program test;
        const QString name = u"app/"_s + QString(length, u'n');
        const QString path = test.Write(name, "old");
        QFile::setPermissions(path, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
        Write_Whole_File(path, "new");
        EXPECT_EQ(Whole_Folder(test, u"app"_s), QStringList{name.mid(4) + u"=new"_s}) << length;
        EXPECT_FALSE(QFile::permissions(path).testFlag(QFileDevice::ReadGroup)) << length;
    }
}
