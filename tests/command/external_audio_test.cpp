#include "command/external_audio.h"

#include "command/companion_fixture.h"
#include "support/run_time_error.h"

using namespace Qt::StringLiterals;

struct External_Audio : Companion_Test
{
    External_Audio() { Prog.Options.chk_AddAudio.Value = 1; }

    ExternalTrackList List{1};
    bool Claimed = true;
    QString Order_Default;
    QString Order_Extra;
    std::int16_t Next_File_Index = 1;

    void Find(const QString& base_name) { Find_External_Audio(Prog, Videos(), base_name, List, Claimed); }

    /// The command of what was found, with the video folder's path taken out.
    QString Command()
    {
        Command_Line command;
        Append_External_Audio_Arguments(command, List, Prog.Options, !Claimed, Order_Default, Order_Extra,
                                        Next_File_Index);
        return command.Text().remove(Videos());
    }
};

TEST_F(External_Audio, AFileBelongsIfItsNameHoldsTheBaseNameAndItsExtensionIsAudio)
{
    Write_All({u"MOVIE.MP3"_s, u"The Movie 2.opus"_s, u"movie.eng.Dts"_s, u"movie.srt"_s, u"movie.mp3.opt"_s,
               u"mov.mp3"_s, u"movie.mp3x"_s, u"-movie\n\"x\".flac"_s});
    QDir().mkpath(Path(u"videos/movie dir.mp3"_s));
    Find(u"Movie"_s);
    EXPECT_EQ(Sorted(Names_Of(List)),
              Sorted({u"MOVIE.MP3"_s, u"The Movie 2.opus"_s, u"movie.eng.Dts"_s, u"-movie\n\"x\".flac"_s}));
    for (std::size_t i = 0; i < List.size(); ++i)
        EXPECT_EQ(List[i].FileIndex, static_cast<int>(i));
    EXPECT_EQ(Next_File_Index, 1);
    Command();
    EXPECT_EQ(Next_File_Index, 5);
}

TEST_F(External_Audio, NothingFoundLeavesTheListUntouchedAndTheDefaultUnclaimed)
{
    Find(u"Movie"_s);
    EXPECT_FALSE(Claimed);
    EXPECT_FALSE(List.front().InUse);
    EXPECT_EQ(Command(), u""_s);
    List.assign(1, {});
    Find_External_Audio(Prog, Path(u"gone/"_s), u""_s, List, Claimed);
    EXPECT_FALSE(List.front().InUse);
}

TEST_F(External_Audio, SettingsComeFromTheOptionFileElseTheStickyValuesElseTheProbe)
{
    struct Claim
    {
        const char* Option_File; ///< null: none
        int Use = 1;
        int Apply_Defaults = 0;
        QString Command;
        QString Status_Line;
        QString Order_Default;
    };

    const QString used = u"  *** Audio Options file is used."_s;
    const QString kept = u"  *** Audio Options file is NOT Found. Keeping original Audio settings."_s;
    const QString sticky = u"  *** Audio Options file is NOT found. Applying Default Audio (sticky) settings."_s;
    const Claim claims[] = {
        {"Title=x", 0, 0, u" --language 0:ger --track-name 0:Handler ( m.mp3 )"_s, u""_s, u""_s},
        {nullptr, 1, 0, u" --language 0:ger --track-name 0:Handler ( m.mp3 )"_s, kept, u""_s},
        {"broken", 1, 0, u" --language 0:ger --track-name 0:Handler ( m.mp3 )"_s, kept, u""_s},
        {"Delay=300", 1, 1, u" --language 0:und --sync 0:300 ( m.mp3 )"_s, used, u""_s},
        {"", 1, 0, u" --language 0:und ( m.mp3 )"_s, used, u""_s},
        {"Title=My Title\nLanguage=French (fre)\nForced=yes\nDelay=-5", 1, 0,
         u" --language 0:fre --track-name \"0:My Title\" --forced-track 0:yes --sync 0:-5 ( m.mp3 )"_s, used, u""_s},
        {"Default=yes", 1, 0, u" --language 0:und --default-track 0:no ( m.mp3 )"_s, used, u""_s},
        {"Default=YES\nForced=Yes", 1, 0, u" --language 0:und --default-track 0:no ( m.mp3 )"_s, used, u""_s},
        {"Default=no\nForced=no", 1, 0, u" --language 0:und ( m.mp3 )"_s, used, u""_s},
        {nullptr, 1, 1, u" --language 0:fre --track-name 0:Sticky --default-track 0:yes --sync 0:10 ( m.mp3 )"_s,
         sticky, u",1:0,"_s},
        {nullptr, 0, 1, u" --language 0:ger --track-name 0:Handler ( m.mp3 )"_s, u""_s, u""_s},
    };
    // The sticky forced flag is on and its text empty, so nothing is taken from it.
    Prog.Settings.Audio_Sticky = {1, 1, 1, 1, 1, u"Sticky"_s, u"French (fre)"_s, u"yes"_s, u""_s, u"10"_s};
    Prog.Options.Log_Verbosity = 2;
    Write_All({u"m.mp3"_s});
    for (const Claim& claim : claims) {
        QFile::remove(Path(u"videos/m.mp3.opt"_s));
        if (claim.Option_File != nullptr)
            Write(u"videos/m.mp3.opt"_s, claim.Option_File);
        Prog.Options.chk_UseAudioOpts.Value = claim.Use;
        Prog.Options.chk_ApplyDefaultAudioOpts.Value = claim.Apply_Defaults;
        List.assign(1, {});
        Next_File_Index = 1;
        Order_Default.clear();
        Find(u"m"_s);
        EXPECT_EQ(Command(), claim.Command);
        EXPECT_EQ(Order_Default, claim.Order_Default);
        Prog.Logs.Log_Faults.Clear();
        Log_External_Audio(List, Prog.Options, Prog.Language_Table, Prog.Logs.Log_Faults);
        EXPECT_EQ(Faults().mid(1).join(u'|'), claim.Status_Line) << claim.Command.toStdString();
    }
}

TEST_F(External_Audio, OneClaimedDefaultMakesEveryFileNoAndTheLastUnclaimedYesLeadsTheOrder)
{
    ExternalTrack yes{.InUse = true,
                      .Title = {},
                      .Language = u"???"_s,
                      .DefaultFlag = u"yes"_s,
                      .ForcedFlag = {},
                      .Delay = {},
                      .Folder = Videos(),
                      .FileName = u"a.mp3"_s};
    ExternalTrack other = yes;
    other.DefaultFlag = u"Yes"_s;
    other.FileIndex = 1;
    ExternalTrack later = yes;
    later.FileIndex = 2;
    List = {yes, other, later};
    Claimed = true;
    const QString one = u" --language 0:und --default-track 0:no ( a.mp3 )"_s;
    EXPECT_EQ(Command(), one + one + one);
    EXPECT_EQ(Order_Default, u""_s);
    EXPECT_EQ(Order_Extra, u",1:0,2:0,3:0"_s);
    EXPECT_EQ(Next_File_Index, 4);

    Claimed = false;
    Order_Extra.clear();
    Next_File_Index = 1;
    EXPECT_EQ(Command(), u" --language 0:und --default-track 0:yes ( a.mp3 ) --language 0:und ( a.mp3 )"
                         " --language 0:und --default-track 0:yes ( a.mp3 )"_s);
    EXPECT_EQ(Order_Default, u",3:0,"_s);
    EXPECT_EQ(Order_Extra, u",2:0"_s);
}

TEST_F(External_Audio, AFileThatFFProbeCanNotReadIsAddedWithWhatTheLastProbeSaid)
{
    Write_All({u"silent m.ogg"_s});
    Find(u"m"_s);
    ASSERT_EQ(Names_Of(List).size(), 1);
    EXPECT_EQ(List.front().Language, u"und"_s);
    EXPECT_EQ(Person.Messages.size(), 1U);
    Write_All({u"other.mp3"_s});
    Find(u"other"_s);
    List.assign(1, {});
    Find(u"silent m"_s);
    EXPECT_EQ(List.front().Language, u"ger"_s);
}

TEST_F(External_Audio, LinesGrowWithTheVerbosity)
{
    struct Claim
    {
        int Verbosity, Use, Apply_Defaults;
        bool Found;
        QStringList Lines;
    };

    const QString none = u"-- Adding audio track(s), but none were found."_s;
    const QString file = u"-- Adding audio track - \"a b.mp3\" ;English (eng)"_s;
    const QString unknown = u"-- Adding audio track - \"c.mp3\" ;Undetermined (und)"_s;
    const QString status = u"  *** Audio Options file is used."_s;
    const Claim claims[] = {
        {0, 1, 1, false, {}},
        {1, 1, 1, false, {none + u" Audio Options selection ignored. Default Audio (sticky) settings ignored."_s}},
        {1, 1, 0, false, {none + u" Audio Options selection ignored. Original Audio settings unchanged."_s}},
        {7, 0, 0, false, {none}},
        {1, 1, 1, true, {}},
        {2, 0, 0, true, {file, unknown}},
        {7, 1, 0, true, {file, status, unknown, status}},
    };
    for (const Claim& claim : claims) {
        List.assign(1, {});
        if (claim.Found) {
            List = {{.OptionStatus = 1,
                     .InUse = true,
                     .Title = {},
                     .Language = u"eng"_s,
                     .DefaultFlag = {},
                     .ForcedFlag = {},
                     .Delay = {},
                     .Folder = {},
                     .FileName = u"a b.mp3"_s},
                    {.OptionStatus = 1,
                     .InUse = true,
                     .Title = {},
                     .Language = {},
                     .DefaultFlag = {},
                     .ForcedFlag = {},
                     .Delay = {},
                     .Folder = {},
                     .FileName = u"c.mp3"_s}};
        }
        Prog.Options.Log_Verbosity = static_cast<std::int16_t>(claim.Verbosity);
        Prog.Options.chk_UseAudioOpts.Value = claim.Use;
        Prog.Options.chk_ApplyDefaultAudioOpts.Value = claim.Apply_Defaults;
        Prog.Logs.Log_Faults.Clear();
        Log_External_Audio(List, Prog.Options, Prog.Language_Table, Prog.Logs.Log_Faults);
        EXPECT_EQ(Faults(), claim.Lines) << claim.Verbosity;
    }
}

TEST_F(External_Audio, TheFolderIsTheChosenOneOnlyIfItIsSet)
{
    JobOptions options;
    EXPECT_EQ(External_Audio_Folder(options, u"/v/"_s), u"/v/"_s);
    options.chk_AudioPath.Value = 1;
    EXPECT_EQ(External_Audio_Folder(options, u"/v/"_s), u"/v/"_s);
    options.Path_Audios = u"/a/"_s;
    EXPECT_EQ(External_Audio_Folder(options, u"/v/"_s), u"/a/"_s);
    options.chk_AudioPath.Value = 0;
    EXPECT_EQ(External_Audio_Folder(options, u"/v/"_s), u"/v/"_s);
}

TEST_F(External_Audio, ABlankStickyLanguageTextIsAnErrorThatSaysWhere)
{
    Prog.Options.chk_UseAudioOpts.Value = 1;
    Prog.Options.chk_ApplyDefaultAudioOpts.Value = 1;
    Prog.Settings.Audio_Sticky.Sticky_Languages = 1;
    Prog.Settings.Audio_Sticky.Language = u")"_s;
    Write_All({u"m.mp3"_s});
    try {
        Find(u"m"_s);
        ADD_FAILURE();
    } catch (const Run_Time_Error& error) {
        EXPECT_EQ(error.Subject(), u"the sticky language"_s);
    }
}
