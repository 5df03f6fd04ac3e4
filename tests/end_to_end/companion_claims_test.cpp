#include "common/stand_in_tool.h"
#include "end_to_end/track_claim.h"
#include "support/paths.h"

#include <QFile>

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
};

INSTANTIATE_TEST_SUITE_P(External_Audio, Track_Claims, testing::ValuesIn(Audio_Table), Name_Of_Claim);

static const Track_Claim Subtitle_Table[] = {
    {.Name = "TwoSrtsThatDifferOnlyInCaseAreBothAdded",
     .Prepare =
         [](Library_Run& run) {
             Add_Subtitles(run, u"c.srt"_s, u"Movie.srt"_s);
             run.Add(u"c.srt"_s, u"MOVIE.srt"_s);
         },
     .Tracks = {Plain_Video, Plain_Audio, u"subtitles SubRip/SRT und default"_s,
                u"subtitles SubRip/SRT und default"_s}},
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
    {.Name = "AnOptionFileSetsTitleLanguageAndFlags",
     .Prepare =
         [](Library_Run& run) {
             Add_Subtitles(run, u"c.srt"_s, u"Movie.srt"_s,
                           "Title=For all\nLanguage=es\nDefault=no\nForced=yes\nDelay=5000\n");
         },
     .Tracks = {Plain_Video, Plain_Audio, u"subtitles SubRip/SRT spa [For all] forced"_s},
     .Check = [](Library_Run& run) { EXPECT_NEAR(run.First_Times().value(2), 200, 30); }},
};

INSTANTIATE_TEST_SUITE_P(External_Subtitles, Track_Claims, testing::ValuesIn(Subtitle_Table), Name_Of_Claim);

TEST(Companions, WithHostileNamesAreOneArgumentEachAndForgeNoLineOfTheLog)
{
    const QString names[] = {u"-o \"a\" 'b' %s $x;.*"_s, u"line\nbreak\ttab"_s, u"@options"_s, u"--no-video"_s,
                             u"ünïcode 日本"_s,          QString(200, u'l')};
    // The two kinds of run log what mkvmerge says by ways of their own.
    for (const bool careful : {false, true})
        for (const QString& hostile : names) {
            const QString name = Possible_Name(hostile);
            Library_Run run;
            run.Prog.Run.Careful_Asked = careful;
            run.Prog.Options.Log_Verbosity = 6;
            run.Add(u"plain.mkv"_s, name + u".mkv"_s);
            Add_Audio(run, u"c.flac"_s, name + u".flac"_s, "Language=fre");
            Add_Subtitles(run, u"c.srt"_s, name + u".srt"_s);
            EXPECT_TRUE(run.Run());
            EXPECT_EQ(run.Log().count(u"break\t"_s), run.Log().count(u"line\\nbreak\t"_s));
            EXPECT_EQ(run.Tracks(name + u".mkv"_s), QStringList({Plain_Video, Plain_Audio, u"audio FLAC fre default"_s,
                                                                 u"subtitles SubRip/SRT und default"_s}));
        }
}

TEST(Companions, ThatVanishBeforeTheRunEndInMkvmergesOwnWordsAndTheNextVideoGoesOn)
{
    Library_Run run;
    run.Add(u"plain.mkv"_s, u"Movie.mkv"_s);
    run.Add(u"plain.mkv"_s, u"Other.mkv"_s);
    Add_Subtitles(run, u"c.srt"_s, u"Movie.srt"_s);
    const QByteArray script = "rm -f '" + Path_In_Script(run.Path(u"videos/Movie.srt"_s)) + "'\nexec " +
                              Tool_In_Script(u"mkvmerge"_s) + " \"$@\"\n";
    run.Prog.Tools.System_MKVMerge_Path = Write_Stand_In(run, u"app/mkvmerge"_s, script);
    EXPECT_TRUE(run.Run());
    EXPECT_EQ(run.Tracks(u"Other.mkv"_s), QStringList({Plain_Video, Plain_Audio}));
    EXPECT_FALSE(QFile::exists(run.Path(u"target/Movie.mkv"_s)));
    EXPECT_TRUE(run.Log().contains(u"Movie.srt' could not be opened for reading"_s)) << run.Log().toStdString();
}

TEST(Targets, ThatTakeNothingFailTheFileAndKeepTheSource)
{
    Library_Run run;
    run.Add(u"plain.mkv"_s, u"Movie.mkv"_s);
    run.Prog.Settings.Extensions.Delete_Source_Only_After_Success = true;
    run.Prog.Options.Delete_Video_After = true;
    const std::pair<QString, QByteArray> claims[] = {
        {Path_Separator == u'/' ? u"/proc/"_s : u"Z:\\proc\\"_s, ""}, // can't be written, whoever asks
        {run.Path(u"target/"_s), "trap '' XFSZ\nulimit -f 2\n"},      // full after a kilobyte
    };
    for (const auto& [target, ahead] : claims) {
        run.Prog.Options.Path_Target = target;
        run.Prog.Tools.System_MKVMerge_Path = Write_Stand_In(run, u"tools/wrapped"_s, ahead + "exec mkvmerge \"$@\"\n");
        EXPECT_TRUE(run.Run());
        EXPECT_EQ(run.Prog.Run.Exit_Status, 2) << target.toStdString();
        EXPECT_TRUE(QFile::exists(run.Path(u"videos/Movie.mkv"_s)));
    }
}
