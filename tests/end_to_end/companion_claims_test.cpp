#include "end_to_end/track_claim.h"

#include <QFile>

using namespace Qt::StringLiterals;

/// What external audio and subtitle files become, with the real tools.

static const QString Plain_Video = u"video MPEG-4p2 und default"_s;
static const QString Plain_Audio = u"audio MP3 und"_s;

static void Add_Audio(Library_Run& run, const QString& library_name, const QString& name, const char* options = nullptr)
{
    run.Prog.Options.chk_AddAudio.Value = 1;
    run.Add(library_name, name);
    if (options == nullptr)
        return;
    run.Prog.Options.chk_UseAudioOpts.Value = 1;
    run.Write(u"videos/"_s + name + u".opt"_s, options);
}

static void Add_Subtitles(Library_Run& run, const QString& library_name, const QString& name,
                          const char* options = nullptr)
{
    run.Prog.Options.chk_AddSubs.Value = 1;
    run.Add(library_name, name);
    if (options == nullptr)
        return;
    run.Prog.Options.chk_UseSubOpts.Value = 1;
    run.Write(u"videos/"_s + name + u".opt"_s, options);
}

static const Track_Claim Audio_Table[] = {
    {.Name = "AnMp3StandsBehindTheSourcesSound",
     .Prepare = [](Library_Run& run) { Add_Audio(run, u"c.mp3"_s, u"Movie.mp3"_s); },
     .Tracks = {Plain_Video, Plain_Audio, u"audio MP3 und default"_s}},
    {.Name = "AnAc3IsAdded",
     .Prepare = [](Library_Run& run) { Add_Audio(run, u"c.ac3"_s, u"The MOVIE 2.AC3"_s); },
     .Tracks = {Plain_Video, Plain_Audio, u"audio AC-3 und default"_s}},
    {.Name = "AFlacIsAdded",
     .Prepare = [](Library_Run& run) { Add_Audio(run, u"c.flac"_s, u"Movie.flac"_s); },
     .Tracks = {Plain_Video, Plain_Audio, u"audio FLAC und default"_s}},
    {.Name = "AnOpusIsAdded",
     .Prepare = [](Library_Run& run) { Add_Audio(run, u"c.opus"_s, u"Movie.opus"_s); },
     .Tracks = {Plain_Video, Plain_Audio, u"audio Opus und default"_s}},
    {.Name = "AnOggIsAdded",
     .Prepare = [](Library_Run& run) { Add_Audio(run, u"c.ogg"_s, u"Movie.ogg"_s); },
     .Tracks = {Plain_Video, Plain_Audio, u"audio Vorbis und default"_s}},
    {.Name = "AnOptionFileSetsTitleLanguageForcedAndDelay",
     .Prepare =
         [](Library_Run& run) {
             Add_Audio(run, u"c.mp3"_s, u"Movie.mp3"_s,
                       "Title=Director's \"cut\" --no-video\r\nLanguage=French (fre)\r\nForced=yes\r\nDelay=250\r\n");
         },
     .Tracks = {Plain_Video, Plain_Audio, u"audio MP3 fre [Director's \"cut\" --no-video] default forced"_s},
     .Check =
         [](Library_Run& run) {
             const QList<int> times = run.First_Times();
             ASSERT_EQ(times.size(), 3);
             EXPECT_LT(times[1], 50);
             EXPECT_NEAR(times[2], 250, 30);
             EXPECT_TRUE(run.Log().contains(u"-- Adding audio track - \"Movie.mp3\" ;French (fre)"_s));
             EXPECT_TRUE(run.Log().contains(u"  *** Audio Options file is used."_s));
         }},
    {.Name = "AClaimedDefaultTakesTheFlagFromNobodyAndGivesItToNone",
     .Video = u"langs.mkv"_s,
     .Prepare =
         [](Library_Run& run) {
             run.Prog.Options.chk_StripOrigSubs.Value = 1;
             Add_Audio(run, u"c.mp3"_s, u"Movie.mp3"_s, "Language=eng\nDefault=yes\n");
         },
     .Tracks = {u"video MPEG-4p2 und [Picture] default"_s, u"audio AC-3 eng [Main] default"_s,
                u"audio AC-3 ger [English_dub]"_s, u"audio AC-3 und"_s, u"audio MP3 eng"_s}},
    {.Name = "AStickyDefaultLeadsTheSourcesSound",
     .Prepare =
         [](Library_Run& run) {
             Add_Audio(run, u"c.flac"_s, u"Movie.flac"_s);
             run.Prog.Options.chk_UseAudioOpts.Value = 1;
             run.Prog.Options.chk_ApplyDefaultAudioOpts.Value = 1;
             run.Prog.Settings.Audio_Sticky = {0, 1, 1, 0, 0, {}, u"German (ger)"_s, u"yes"_s, {}, {}};
         },
     .Tracks = {Plain_Video, u"audio FLAC ger default"_s, Plain_Audio}},
    {.Name = "AudioComesFromItsOwnFolderAndReplacesTheSources",
     .Prepare =
         [](Library_Run& run) {
             JobOptions& options = run.Prog.Options;
             options.chk_StripOrigAudio.Value = 1;
             options.chk_AddAudio.Value = 1;
             options.chk_AudioPath.Value = 1;
             options.Path_Audios = run.Path(u"audios/"_s);
             Place(run, Library_File(u"c.ac3"_s), u"audios/Movie.ac3"_s);
             run.Add(u"c.mp3"_s, u"Movie.mp3"_s);
         },
     .Tracks = {Plain_Video, u"audio AC-3 und default"_s}},
    {.Name = "AnOptionFileThatIsRefusedCostsNothingButItsValues",
     .Prepare = [](Library_Run& run) { Add_Audio(run, u"c.mp3"_s, u"Movie.mp3"_s, "Language=fre\nnonsense\n"); },
     .Tracks = {Plain_Video, Plain_Audio, u"audio MP3 und default"_s}},
    {.Name = "ATitleOfTenMegabytesIsLeftOutAndTold",
     .Prepare =
         [](Library_Run& run) {
             Add_Audio(run, u"c.mp3"_s, u"Movie.mp3"_s, "");
             run.Write(u"videos/Movie.mp3.opt"_s, "Language=fre\nTitle=" + QByteArray(10 << 20, 'x'));
         },
     .Tracks = {Plain_Video, Plain_Audio, u"audio MP3 fre default"_s},
     .Check = [](Library_Run& run) { EXPECT_TRUE(run.Log().contains(u"*** --track-name is left out: "_s)); }},
};

INSTANTIATE_TEST_SUITE_P(External_Audio, Track_Claims, testing::ValuesIn(Audio_Table), Name_Of_Claim);

static const Track_Claim Subtitle_Table[] = {
    {.Name = "AnSrtIsAdded",
     .Prepare = [](Library_Run& run) { Add_Subtitles(run, u"c.srt"_s, u"Movie.srt"_s); },
     .Tracks = {Plain_Video, Plain_Audio, u"subtitles SubRip/SRT und default"_s}},
    {.Name = "AnAssIsAdded",
     .Prepare = [](Library_Run& run) { Add_Subtitles(run, u"c.ass"_s, u"my movie.ass"_s); },
     .Tracks = {Plain_Video, Plain_Audio, u"subtitles SubStationAlpha und default"_s}},
    {.Name = "ASupIsAdded",
     .Prepare = [](Library_Run& run) { Add_Subtitles(run, u"c.sup"_s, u"Movie.sup"_s); },
     .Tracks = {Plain_Video, Plain_Audio, u"subtitles HDMV PGS und default"_s}},
    {.Name = "AnMksLosesItsOwnLanguageAndKeepsItsFlag",
     .Prepare = [](Library_Run& run) { Add_Subtitles(run, u"c.mks"_s, u"Movie.mks"_s); },
     .Tracks = {Plain_Video, Plain_Audio, u"subtitles SubRip/SRT und"_s}},
    {.Name = "AVobSubPairIsOneTrackInItsOwnLanguage",
     .Prepare =
         [](Library_Run& run) {
             Add_Subtitles(run, u"c.idx"_s, u"Movie.idx"_s);
             run.Add(u"c.sub"_s, u"Movie.sub"_s);
         },
     .Tracks = {Plain_Video, Plain_Audio, u"subtitles VobSub ger default"_s}},
    {.Name = "AnIdxWithoutItsSubIsOnlyTold",
     .Prepare = [](Library_Run& run) { Add_Subtitles(run, u"c.idx"_s, u"Movie.idx"_s); },
     .Tracks = {Plain_Video, Plain_Audio},
     .Check =
         [](Library_Run& run) {
             EXPECT_TRUE(run.Log().contains(u"\"Movie.idx\". The acompanying '*.sub' file was not found."_s));
         }},
    {.Name = "AnOptionFileSetsTitleLanguageAndFlags",
     .Prepare =
         [](Library_Run& run) {
             Add_Subtitles(run, u"c.srt"_s, u"Movie.srt"_s,
                           "Title=For all\nLanguage=es\nDefault=no\nForced=yes\nDelay=5000\n");
         },
     .Tracks = {Plain_Video, Plain_Audio, u"subtitles SubRip/SRT spa [For all] forced"_s},
     .Check = [](Library_Run& run) { EXPECT_NEAR(run.First_Times().value(2), 200, 30); }},
    {.Name = "StickyValuesStandInForAnOptionFile",
     .Prepare =
         [](Library_Run& run) {
             Add_Subtitles(run, u"c.srt"_s, u"Movie.srt"_s);
             run.Prog.Options.chk_UseSubOpts.Value = 1;
             run.Prog.Options.chk_ApplyDefaultSubOpts.Value = 1;
             run.Prog.Settings.Subtitle_Sticky = {1, 1, 1, 0, 0, u"Sticky"_s, u"eng"_s, u"no"_s, {}, {}};
         },
     .Tracks = {Plain_Video, Plain_Audio, u"subtitles SubRip/SRT eng [Sticky]"_s}},
    {.Name = "SubtitlesStandBehindTheSourcesAndBehindExternalAudio",
     .Video = u"langs.mkv"_s,
     .Prepare =
         [](Library_Run& run) {
             run.Prog.Options.chk_EngAudioOnly.Value = 1;
             run.Prog.Options.chk_EngSubsOnly.Value = 1;
             Add_Audio(run, u"c.mp3"_s, u"Movie.mp3"_s);
             Add_Subtitles(run, u"c.srt"_s, u"Movie.srt"_s, "Language=fre\nDefault=no");
         },
     .Tracks = {u"video MPEG-4p2 und [Picture] default"_s, u"audio AC-3 eng [Main] default"_s,
                u"audio MP3 und default"_s, u"subtitles SubRip/SRT eng"_s, u"subtitles SubRip/SRT fre"_s}},
    {.Name = "SubtitlesComeFromTheirOwnFolder",
     .Prepare =
         [](Library_Run& run) {
             run.Prog.Options.chk_AddSubs.Value = 1;
             run.Prog.Options.chk_SubsPath.Value = 1;
             run.Prog.Options.Path_Subtitles = run.Path(u"subs/"_s);
             Place(run, Library_File(u"c.ass"_s), u"subs/Movie.ass"_s);
         },
     .Tracks = {Plain_Video, Plain_Audio, u"subtitles SubStationAlpha und default"_s}},
};

INSTANTIATE_TEST_SUITE_P(External_Subtitles, Track_Claims, testing::ValuesIn(Subtitle_Table), Name_Of_Claim);

TEST(Companions, OfAVideoInCapitalsAreThoseThatHoldItsExtension)
{
    Library_Run run;
    run.Add(u"plain.mkv"_s, u"Movie.MKV"_s);
    Add_Audio(run, u"c.flac"_s, u"Movie.flac"_s);
    run.Add(u"c.ac3"_s, u"a mkv thing.ac3"_s);
    EXPECT_TRUE(run.Run());
    EXPECT_EQ(run.Tracks(u"MKV.mkv"_s), QStringList({Plain_Video, Plain_Audio, u"audio AC-3 und default"_s}));
}

TEST(Companions, WithHostileNamesAreOneArgumentEach)
{
    const QString names[] = {u"-o \"a\" 'b' %s $x;.*"_s, u"line\nbreak\ttab"_s, u"@options"_s, u"--no-video"_s,
                             u"ünïcode 日本"_s,          QString(200, u'l')};
    for (const QString& name : names) {
        Library_Run run;
        run.Add(u"plain.mkv"_s, name + u".mkv"_s);
        Add_Audio(run, u"c.flac"_s, name + u".flac"_s, "Language=fre");
        Add_Subtitles(run, u"c.srt"_s, name + u".srt"_s);
        EXPECT_TRUE(run.Run());
        EXPECT_EQ(run.Tracks(name + u".mkv"_s), QStringList({Plain_Video, Plain_Audio, u"audio FLAC fre default"_s,
                                                             u"subtitles SubRip/SRT und default"_s}));
    }
}

TEST(Companions, ThatNoToolCanReadEndInMkvmergesOwnWords)
{
    Library_Run run;
    run.Add(u"plain.mkv"_s, u"Movie.mkv"_s);
    run.Prog.Options.chk_AddAudio.Value = 1;
    run.Write(u"videos/Movie.mp3"_s, "this is no sound at all");
    EXPECT_TRUE(run.Run());
    ASSERT_EQ(run.Person.Messages.size(), 1U);
    EXPECT_EQ(run.Person.Messages.front().Code, 13);
    EXPECT_TRUE(run.Log().contains(u"-- Adding audio track - \"Movie.mp3\" ;Undetermined (und)"_s));
    EXPECT_TRUE(run.Log().contains(u"Error: The type of file '"_s + run.Path(u"videos/Movie.mp3"_s)))
        << run.Log().toStdString();
}

TEST(Companions, ThatVanishBeforeTheRunEndInMkvmergesOwnWordsAndTheNextVideoGoesOn)
{
    Library_Run run;
    run.Add(u"plain.mkv"_s, u"Movie.mkv"_s);
    run.Add(u"plain.mkv"_s, u"Other.mkv"_s);
    Add_Subtitles(run, u"c.srt"_s, u"Movie.srt"_s);
    const QString mkvmerge = run.Prog.Tools.System_MKVMerge_Path;
    run.Prog.Tools.System_MKVMerge_Path =
        run.Write(u"app/mkvmerge"_s, "#!/bin/sh\nrm -f '" + run.Path(u"videos/Movie.srt"_s).toUtf8() + "'\nexec " +
                                         mkvmerge.toUtf8() + " \"$@\"\n");
    QFile::setPermissions(run.Path(u"app/mkvmerge"_s), QFile::ReadOwner | QFile::ExeOwner);
    EXPECT_TRUE(run.Run());
    EXPECT_EQ(run.Tracks(u"Other.mkv"_s), QStringList({Plain_Video, Plain_Audio}));
    EXPECT_FALSE(QFile::exists(run.Path(u"target/Movie.mkv"_s)));
    EXPECT_TRUE(run.Log().contains(u"Movie.srt' could not be opened for reading"_s)) << run.Log().toStdString();
}
