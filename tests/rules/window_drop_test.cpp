#include "rules/window_drop.h"

#include "common/test_program.h"
#include "rules/run_queue.h"
#include "rules/video_list.h"
#include "support/drop_data.h"

#include <QDir>

TEST(WindowDrop, TakesOneFolderOrVideosOfOneAndSaysWhatItLeaves)
{
    struct Case
    {
        QStringList Dropped;
        QString Ticked; ///< of the folder "shelf"; empty: nothing has changed
        QString Notice;
        bool Careful = true;
    };

    const QString unchanged = u"Nothing has changed: "_s;
    const Case cases[] = {
        {{u"shelf"_s}, u"C.MKV a.mkv b.mp4"_s, u""_s},
        {{u"shelf/b.mp4"_s}, u"b.mp4"_s, u"Only the dropped video is ticked."_s},
        {{u"shelf/b.mp4"_s, u"shelf/C.MKV"_s, u"shelf/b.srt"_s, u"shelf/gone.mkv"_s},
         u"C.MKV b.mp4"_s,
         u"Only the 2 dropped videos are ticked. One that is no video is left alone. One can't be found."_s},
        {{u"shelf/b.mp4"_s},
         u"C.MKV a.mkv b.mp4"_s,
         u"A classic run takes every video of the folder; \"Careful Batch\" can take some."_s,
         false},
        {{u"shelf"_s, u"gone"_s}, u"C.MKV a.mkv b.mp4"_s, u"One can't be found."_s},
        {{u"shelf"_s, u"target"_s}, u""_s, unchanged + u"drop one folder, or videos of one folder."_s},
        {{u"shelf/a.mkv"_s, u"videos/x.mkv"_s}, u""_s, unchanged + u"drop one folder, or videos of one folder."_s},
        {{u"shelf/b.srt"_s}, u""_s, unchanged + u"no video is among what was dropped."_s},
        {{u"gone"_s}, u""_s, unchanged + u"what was dropped isn't there."_s},
        {{}, u""_s, u"Only files and folders can be dropped here."_s},
    };
    for (const Case& row : cases) {
        Test_Program test;
        for (const QString& file :
             {u"shelf/a.mkv"_s, u"shelf/b.mp4"_s, u"shelf/C.MKV"_s, u"shelf/b.srt"_s, u"videos/x.mkv"_s})
            test.Write(file);
        Program& program = test.Prog;
        program.Settings.Extensions.Careful_Batch = row.Careful;
        Drop_Data data{.Has_File_List = !row.Dropped.isEmpty(), .Paths = {}};
        for (const QString& path : row.Dropped)
            data.Paths += test.Path(path);
        Drop_On_Window(program, data);
        EXPECT_EQ(program.Form.lbl_Notice.Caption, row.Notice);
        EXPECT_EQ(program.Options.Path_Videos, test.Path(row.Ticked.isEmpty() ? u"videos/"_s : u"shelf/"_s))
            << row.Notice.toStdString();
        Follow_Videos_Folder(program); // as the window does behind every rule
        if (row.Ticked.isEmpty())
            continue;
        QStringList ticked = Ticked_Paths(program.Videos).values();
        ticked.sort();
        EXPECT_EQ(ticked.join(u' '), row.Ticked);
        EXPECT_TRUE(test.Person.Messages.empty());

        Drop_On_Window(program, {.Has_File_List = true, .Paths = {test.Path(u"shelf"_s)}});
        EXPECT_EQ(Ticked_Paths(program.Videos).size(), 3) << "the folder means all of it";
    }
}

TEST(WindowDrop, WhatIsQueuedOrAskedAboutWhenNothingMoreIsRunIsTold)
{
    Test_Program test;
    Program& program = test.Prog;
    test.Write(u"season/a.mkv"_s);
    test.Write(u"other/a.mkv"_s);
    program.Run.Press_In_Work = program.Run.Run_In_Progress = true;
    Drop_On_Window(program, {.Has_File_List = true, .Paths = {test.Path(u"season"_s)}});
    Answer_Queue_Question(program, true);
    Drop_On_Window(program, {.Has_File_List = true, .Paths = {test.Path(u"other"_s)}});
    Give_Up_Queue(program);
    EXPECT_EQ(program.Videos.Notes, (QStringList{u"Not run: "_s + test.Path(u"season/"_s) + u'.',
                                                 u"Not run: "_s + test.Path(u"other/"_s) + u'.'}));
}
