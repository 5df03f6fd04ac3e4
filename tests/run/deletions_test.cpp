#include "run/video_batch.h"

#include "common/stand_in_tool.h"
#include "common/test_trash.h"
#include "support/paths.h"

#include <QDir>
#include <QFile>

namespace {

/// A name as it can be on this platform: where "*" is no letter there is "#".
QString Own(QString name)
{
    return Path_Separator == u'/' ? name : name.replace(u'*', u'#');
}

/// A folder with one video, its companions, files that only look like them, and attachments; mkvmerge is a stand-in
/// that ends with `exit_status`.
struct Deletions : testing::Test
{
    Test_Program Test;
    Program& Prog = Test.Prog;

    Deletions()
    {
        Prog.Tools.FFProbe_Path =
            Write_Stand_In(Test, u"tools/ffprobe"_s, "echo 'stream|index=0|codec_type=video|duration=1.0|x='");
        Merge_Ends_With(0);
        Prog.Options.Log_Verbosity = 1;
        Prog.Options.Delete_Video_After = true;
        Prog.Options.Path_Attachments = Test.Path(u"attachments/"_s);
        Lay_Down();
    }

    void Lay_Down() const
    {
        for (const QString& name :
             {Own(u"a*.mkv"_s), Own(u"a*_Track1.mp3"_s), Own(u"a*_Track1.opt"_s), Own(u"A*_track dir/x"_s),
              u"ab_Track1.mp3"_s, Own(u"a*.srt"_s), Own(u"a*_Attachments/font.ttf"_s)})
            Test.Write(u"videos/"_s + name, "x");
        Test.Write(u"attachments/one.ttf"_s, "x");
        Test.Write(u"attachments/notes.txt"_s, "x");
    }

    void Merge_Ends_With(int status)
    {
        Prog.Tools.System_MKVMerge_Path = Write_Stand_In(
            Test, u"tools/mkvmerge"_s, "echo 'A banner of some length'; exit " + QByteArray::number(status));
    }

    /// What is left of the files, after a run.
    QStringList Run()
    {
        EXPECT_TRUE(Process_Video_Files(Prog));
        QStringList left;
        for (const QString& folder : {u"videos"_s, Own(u"videos/a*_Attachments"_s), u"attachments"_s})
            left += QDir(Test.Path(folder)).entryList(QDir::Files, QDir::Name);
        return left;
    }
};

const QStringList All = {Own(u"a*.mkv"_s),   Own(u"a*.srt"_s), Own(u"a*_Track1.mp3"_s), Own(u"a*_Track1.opt"_s),
                         u"ab_Track1.mp3"_s, u"font.ttf"_s,    u"notes.txt"_s,          u"one.ttf"_s};

QStringList All_But(const QStringList& gone)
{
    QStringList left = All;
    for (const QString& name : gone)
        left.removeAll(name);
    return left;
}

} // namespace

TEST_F(Deletions, EachSwitchTakesItsFilesAndNothingElse)
{
    const QStringList companions = {Own(u"a*.mkv"_s), Own(u"a*_Track1.mp3"_s), Own(u"a*_Track1.opt"_s)};
    // The main switch, that of the companions, attachments, from subfolders; what goes, and the last note about it.
    const std::tuple<bool, bool, bool, bool, QStringList, QString> claims[] = {
        {false, true, true, true, {}, u""_s},
        {true, false, true, true, companions.first(1), u"Source video file"_s},
        {true, true, false, true, companions, u"Ancillary files"_s},
        {true, true, true, false, companions + QStringList{u"one.ttf"_s}, u"ATTACHMENT files"_s},
        {true, true, true, true, companions + QStringList{u"font.ttf"_s}, u"ATTACHMENT folder"_s},
    };
    for (const auto& [video, sundry, attachments, subfolders, gone, note] : claims) {
        Lay_Down();
        Merge_Ends_With(2); // whatever mkvmerge's result was
        Prog.Options.Delete_Video_After = video;
        Prog.Options.Delete_Sundry_Files = sundry;
        Prog.Run.Add_Attachments_On = attachments;
        Prog.Options.Use_Attachment_Subfolders = subfolders;
        Prog.Logs.Log_Results.Clear();
        EXPECT_EQ(Run(), All_But(gone));
        EXPECT_NE(QDir(Test.Path(Own(u"videos/A*_track dir"_s))).exists(), video && sundry)
            << "a folder by a companion's name";
        EXPECT_NE(QDir(Test.Path(Own(u"videos/a*_Attachments"_s))).exists(), gone.contains(u"font.ttf"_s));
        const QStringList notes = Test.Results().filter(u" DELETED after Processing - \""_s);
        EXPECT_TRUE(notes.isEmpty() ? gone.isEmpty() : notes.constLast().contains(note)) << note.toStdString();
        EXPECT_EQ(notes.size(), gone.isEmpty() ? 0 : gone.size() == 1 ? 1 : gone.size() - 1);
    }
    EXPECT_TRUE(Names_In_Trash().contains(Own(u"a*.mkv"_s)));
}

TEST_F(Deletions, WithTheExtensionASourceGoesOnlyAfterASuccess)
{
    Prog.Settings.Extensions.Delete_Source_Only_After_Success = true;
    Prog.Options.Delete_Sundry_Files = true;
    Merge_Ends_With(2);
    EXPECT_EQ(Run(), All);
    EXPECT_EQ(Test.Results().filter(u"-- Source video file KEPT"_s).size(), 1);
    Merge_Ends_With(1);
    EXPECT_EQ(Run(), All_But({Own(u"a*.mkv"_s), Own(u"a*_Track1.mp3"_s), Own(u"a*_Track1.opt"_s)}));
}

TEST_F(Deletions, WhatCannotBeMovedToTheTrashStaysAndIsNotCalledDeleted)
{
    Prog.Options.Delete_Sundry_Files = true;
    ASSERT_TRUE(QDir(Test.Path(Own(u"videos/A*_track dir"_s))).removeRecursively());
    const Refused_By_Trash source(Test.Path(Own(u"videos/a*.mkv"_s)));
    const Refused_By_Trash companion(Test.Path(Own(u"videos/a*_Track1.mp3"_s)));
    const Refused_By_Trash other(Test.Path(Own(u"videos/a*_Track1.opt"_s)));
    EXPECT_EQ(Run(), All);
    EXPECT_FALSE(Prog.Run.Source_Deleted);
    EXPECT_FALSE(Prog.Run.Ancillary_Deleted);
    EXPECT_EQ(Test.Results().filter(u"-- Could not be moved to the trash - \""_s).size(), 3);
    EXPECT_EQ(Test.Results().filter(u"DELETED"_s).size(), 0);
}
