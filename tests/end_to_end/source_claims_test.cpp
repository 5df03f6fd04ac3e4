#include "end_to_end/track_claim.h"

/// What the options make of a source's own tracks, with the real tools.

static const QString Picture = u"video MPEG-4p2 und [Picture] default"_s;
static const QString English = u"audio AC-3 eng [Main] default"_s;
static const QString German = u"audio AC-3 ger [English_dub]"_s;
static const QString Unknown = u"audio AC-3 und"_s;
static const QString English_Text = u"subtitles SubRip/SRT eng"_s;
static const QString German_Text = u"subtitles SubRip/SRT ger [Schilder] forced"_s;

static const Track_Claim Source_Table[] = {
    {.Name = "WithoutOptionsEverythingIsTakenOver",
     .Video = u"langs.mkv"_s,
     .Tracks = {Picture, English, German, Unknown, English_Text, German_Text},
     .Check =
         [](Library_Run& run) {
             EXPECT_EQ(run.Title(), u"Source Title"_s);
             EXPECT_EQ(run.Chapters(), QStringList({u"0.000 Eins"_s, u"0.500 Zwei"_s}));
             EXPECT_EQ(run.Attachments(), QStringList{u"font.ttf font/ttf"_s});
             EXPECT_TRUE(run.Person.Messages.empty());
         }},
    {.Name = "TrackTitlesGoWhereTheyAreStripped",
     .Video = u"langs.mkv"_s,
     .Prepare =
         [](Library_Run& run) {
             run.Prog.Options.chk_StripOrigAudioTitle.Value = 1;
             run.Prog.Options.chk_StripOrigSubsTitle.Value = 1;
             run.Prog.Options.chk_RemoveVideoTitle.Value = 1;
             run.Prog.Options.chk_RemoveFileTitle.Value = 1;
         },
     .Tracks = {u"video MPEG-4p2 und default"_s, u"audio AC-3 eng default"_s, u"audio AC-3 ger"_s, Unknown,
                English_Text, u"subtitles SubRip/SRT ger forced"_s},
     .Check = [](Library_Run& run) { EXPECT_EQ(run.Title(), u""_s); }},
    {.Name = "ADelayMovesEverySourceSoundAndNothingElse",
     .Video = u"langs.mkv"_s,
     .Prepare =
         [](Library_Run& run) {
             run.Prog.Options.chk_AudioDelayAdjust.Value = 1;
             run.Prog.Options.Audio_Delay = u"300"_s;
         },
     .Tracks = {Picture, English, German, Unknown, English_Text, German_Text},
     .Check =
         [](Library_Run& run) {
             const QList<int> times = run.First_Times();
             ASSERT_EQ(times.size(), 6);
             EXPECT_LT(times[0], 50);
             for (const int sound : {1, 2, 3})
                 EXPECT_NEAR(times[sound], 300, 10) << sound;
             EXPECT_NEAR(times[4], 200, 10);
         }},
    {.Name = "CoverArtStays",
     .Video = u"cover.mkv"_s,
     .Tracks = {u"video MPEG-4p2 und default"_s, u"audio MP3 und"_s},
     .Check =
         [](Library_Run& run) {
             EXPECT_EQ(run.Attachments(), QStringList{u"cover.png image/png"_s});
             EXPECT_EQ(run.Attachment_Bytes(1), Bytes_Of_File(Library_File(u"pic.png"_s)));
         }},
    {.Name = "ATransportStreamKeepsItsLanguages",
     .Video = u"tv.ts"_s,
     .Tracks = {u"video MPEG-1/2 und default"_s, u"audio MP2 eng"_s, u"audio MP2 fre"_s}},
};

INSTANTIATE_TEST_SUITE_P(Source, Track_Claims, testing::ValuesIn(Source_Table), Name_Of_Claim);

static const QString Sound = u"audio MP3 und"_s;
static const QString Titled_Sound = u"audio MP3 und [A | B]"_s;

static const Track_Claim Title_Table[] = {
    {.Name = "TitlesWithQuotesColonsPipesAndBackslashesSurvive",
     .Video = u"titles.mkv"_s,
     .Tracks = {u"video MPEG-4p2 und [\"Quoted\" a: b] default"_s, Titled_Sound},
     .Check =
         [](Library_Run& run) {
             EXPECT_EQ(run.Title(), u"back\\slash 'x' \" --attach-file /etc/passwd \" '$(id)'"_s);
             EXPECT_EQ(run.Attachments(), QStringList());
         }},
    {.Name = "CustomTitlesAreOneArgumentEachWhateverTheyHold",
     .Prepare =
         [](Library_Run& run) {
             run.Prog.Options.chk_CustomVideoTitle.Value = 1;
             run.Prog.Options.Custom_Video_Title = u"a \"b\" \\ --output /x\n"_s + QString(10000, u'z');
             run.Prog.Options.chk_CustomFileTitle.Value = 1;
             run.Prog.Options.Custom_File_Title = u"--no-audio \"ü\" \\"_s;
         },
     .Tracks = {u"video MPEG-4p2 und [\"a \"b\" \\ --output /x\n"_s + QString(10000, u'z') + u"\"] default"_s, Sound},
     .Check = [](Library_Run& run) { EXPECT_EQ(run.Title(), u"--no-audio \"ü\" \\"_s); }},
    {.Name = "APictureRateIsSetForAnotherContainer",
     .Video = u"film.mp4"_s,
     .Prepare =
         [](Library_Run& run) {
             run.Prog.Options.chk_VideoFrameRate.Value = 1;
             run.Prog.Options.Frame_Rate_Kind = 2;
             run.Prog.Options.Frame_Rate_Value = u"25p"_s;
         },
     .Tracks = {u"video MPEG-4p2 und default"_s, u"audio AAC ger default"_s},
     .Check = [](Library_Run& run) { EXPECT_EQ(run.Track_Properties(0)[u"default_duration"].toInt(), 40000000); }},
};

INSTANTIATE_TEST_SUITE_P(Titles, Track_Claims, testing::ValuesIn(Title_Table), Name_Of_Claim);
