#include "end_to_end/track_claim.h"

#include "support/run_time_error.h"

#include <QDir>
#include <QFile>
#include <gmock/gmock.h>

/// What chapter files and attachments become, with the real tools; and a run with everything switched on.

static const QString Film_Picture = u"video MPEG-4p2 und default"_s;
static const QString Film_Sound = u"audio MP3 und"_s;

static void Replace_Chapters(Library_Run& run, const QString& name, const QByteArray& text)
{
    run.Prog.Options.chk_ReplaceChapters.Value = 1;
    run.Prog.Options.chk_ConvertTXT.Value = 1;
    run.Write(u"videos/"_s + name, text);
}

static const QByteArray Text_Chapters = "00:00:00.000 Über uns\r\n00:00:00.400 Act  Two\r\n00:00:00.700\r\n";
static const QByteArray Xml_Chapters = "<?xml version=\"1.0\"?>\n<Chapters><EditionEntry><ChapterAtom>"
                                       "<ChapterTimeStart>00:00:00.250</ChapterTimeStart><ChapterDisplay>"
                                       "<ChapterString>Mine</ChapterString><ChapterLanguage>eng</ChapterLanguage>"
                                       "</ChapterDisplay></ChapterAtom></EditionEntry></Chapters>\n";

static void Attach(Library_Run& run, const QString& library_name, const QString& relative)
{
    run.Prog.Options.chk_AddAttachments.Value = 1;
    run.Prog.Options.Path_Attachments = run.Path(u"att/"_s);
    Place(run, Library_File(library_name), u"att/"_s + relative);
}

static const Track_Claim Table[] = {
    {.Name = "ATextFileReplacesTheSourcesChapters",
     .Video = u"film.mp4"_s,
     .Prepare = [](Library_Run& run) { Replace_Chapters(run, u"Movie_Chapters.txt"_s, Text_Chapters); },
     .Tracks = {Film_Picture, u"audio AAC ger default"_s},
     .Check =
         [](Library_Run& run) {
             EXPECT_EQ(run.Chapters(), QStringList({u"0.000  Über uns"_s, u"0.400  Act  Two"_s, u"0.700 Chapter 3"_s}));
             EXPECT_TRUE(QFile::exists(run.Path(u"videos/Movie_Chapters.xml"_s)));
         }},
    {.Name = "AnOggFileWinsOverTheOthers",
     .Prepare =
         [](Library_Run& run) {
             Replace_Chapters(run, u"Movie_Chapters.ogg"_s,
                              "CHAPTER01=00:00:00.100\nCHAPTER01NAME=Intro\nCHAPTER12=00:00:00.600\nCHAPTER12NAME=\n");
             Replace_Chapters(run, u"Movie_Chapters.txt"_s, Text_Chapters);
             Replace_Chapters(run, u"Movie_Chapters.xml"_s, Xml_Chapters);
         },
     .Tracks = {Film_Picture, Film_Sound},
     .Check =
         [](Library_Run& run) {
             EXPECT_EQ(run.Chapters(), QStringList({u"0.100 Intro"_s, u"0.600 Chapter 2"_s}));
             EXPECT_TRUE(Names_In_Trash().contains(u"Movie_Chapters.xml"_s));
         }},
    {.Name = "FilesOfAnyNameAreAttachedByteForByte",
     .Prepare =
         [](Library_Run& run) {
             Attach(run, u"font.ttf"_s, u"@My Font.TTF"_s);
             Attach(run, u"pic.png"_s, Possible_Name(u"-o \"x\" 'y'.png"_s));
         },
     .Tracks = {Film_Picture, Film_Sound},
     .Check =
         [](Library_Run& run) {
             EXPECT_EQ(run.Attachments(), QStringList({Possible_Name(u"-o \"x\" 'y'.png"_s) + u" image/png"_s,
                                                       u"@My Font.TTF font/ttf"_s}));
             const QByteArray both[] = {run.Attachment_Bytes(1), run.Attachment_Bytes(2)};
             EXPECT_THAT(both, testing::UnorderedElementsAre(Bytes_Of_File(Library_File(u"font.ttf"_s)),
                                                             Bytes_Of_File(Library_File(u"pic.png"_s))));
         }},
};

INSTANTIATE_TEST_SUITE_P(Chapters_And_Attachments, Track_Claims, testing::ValuesIn(Table), Name_Of_Claim);

TEST(Chapter_Files, ThatMkvmergeCanNotReadEndInItsOwnWords)
{
    const std::pair<QString, QByteArray> files[] = {{u"Movie_Chapters.txt"_s, "00:00:00 Tom & <Jerry>\n"},
                                                    {u"Movie_Chapters.txt"_s, "garbage as a time\n"},
                                                    {u"Movie_Chapters.xml"_s, "this is no XML at all"}};
    for (const auto& [name, text] : files) {
        Library_Run run;
        run.Add(u"plain.mkv"_s, u"Movie.mkv"_s);
        Replace_Chapters(run, name, text);
        EXPECT_TRUE(run.Run());
        EXPECT_TRUE(run.Log().contains(u"Error: "_s)) << run.Log().toStdString();
        EXPECT_TRUE(run.Log().contains(u"Movie_Chapters.xml"_s)) << run.Log().toStdString();
    }
}

TEST(Chapter_Files, ThatStopTheRunLeaveTheOldXmlAndTheSourceAlone)
{
    Library_Run run;
    run.Add(u"plain.mkv"_s, u"Movie.mkv"_s);
    run.Prog.Options.Delete_Video_After = true;
    Replace_Chapters(run, u"Movie_Chapters.xml"_s, Xml_Chapters);
    Replace_Chapters(run, u"Movie_Chapters.ogg"_s, "CHAPTER01=0\n");
    EXPECT_THROW(run.Run(), Run_Time_Error);
    EXPECT_EQ(run.Read(u"videos/Movie_Chapters.xml"_s), Xml_Chapters);
    EXPECT_TRUE(QFile::exists(run.Path(u"videos/Movie.mkv"_s)));
}

/// Everything that adds or changes something, at once.
static void Switch_Everything_On(Library_Run& run)
{
    JobOptions& options = run.Prog.Options;
    options.chk_EngAudioOnly.Value = 1;
    options.chk_StripOrigAudioTitle.Value = 1;
    options.chk_AudioDelayAdjust.Value = 1;
    options.Audio_Delay = u"-20"_s;
    options.chk_EngSubsOnly.Value = 1;
    options.chk_SubDefaults = {.Value = 1, .Caption = {}, .Tag = u"no"_s};
    for (Check_Box* box : {&options.chk_AddAudio, &options.chk_UseAudioOpts, &options.chk_AddSubs,
                           &options.chk_UseSubOpts, &options.chk_ApplyDefaultSubOpts, &options.chk_RemoveAllTags,
                           &options.chk_RemoveAllAttachments, &options.chk_SetVideoTitle, &options.chk_CustomFileTitle})
        box->Value = 1;
    options.opt_SetVideoTitle.Selected = 2;
    options.Custom_File_Title = u"All of it"_s;
    run.Prog.Settings.Subtitle_Sticky = {0, 1, 1, 0, 0, {}, u"ger"_s, u"no"_s, {}, {}};
    Replace_Chapters(run, u"Movie_Chapters.txt"_s, Text_Chapters);
    Attach(run, u"pic.png"_s, u"pic.png"_s);
}

TEST(Everything, SwitchedOnAtOnceIsThereInTheOutputAndTheFilesGoAfterwards)
{
    Library_Run run;
    run.Add(u"langs.mkv"_s, u"Movie.mkv"_s);
    run.Add(u"c.flac"_s, u"Movie_Track3.flac"_s);
    run.Write(u"videos/Movie_Track3.flac.opt"_s, "Title=Extra\nLanguage=fre\n");
    run.Add(u"c.srt"_s, u"Movie_Track4.srt"_s);
    run.Add(u"c.idx"_s, u"Movie_Track5.idx"_s);
    run.Add(u"c.sub"_s, u"Movie_Track5.sub"_s);
    Switch_Everything_On(run);
    run.Prog.Options.Delete_Video_After = true;
    run.Prog.Options.Delete_Sundry_Files = true;
    EXPECT_TRUE(run.Run());
    EXPECT_EQ(run.Tracks(), QStringList({u"video MPEG-4p2 und [\"Movie\"] default"_s, u"audio AC-3 eng default"_s,
                                         u"audio FLAC fre [Extra] default"_s, u"subtitles SubRip/SRT eng"_s,
                                         u"subtitles SubRip/SRT ger"_s, u"subtitles VobSub ger default"_s}));
    EXPECT_EQ(run.Title(), u"All of it"_s);
    EXPECT_EQ(run.Chapters().size(), 3);
    EXPECT_EQ(run.Attachments(), QStringList{u"pic.png image/png"_s});
    EXPECT_TRUE(QDir(run.Path(u"att"_s)).isEmpty());
    EXPECT_EQ(QDir(run.Path(u"videos"_s)).entryList(QDir::Files),
              QStringList({u"Movie_Chapters.txt"_s, u"Movie_Chapters.xml"_s}));
}
