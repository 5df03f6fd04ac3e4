#include "command/external_audio.h"

#include "command/companion_fixture.h"

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

TEST_F(External_Audio, SettingsComeFromTheOptionFileElseTheStickyValuesElseTheProbe)
{
    const QString used = u"  *** Audio Options file is used."_s;
    const QString kept = u"  *** Audio Options file is NOT Found. Keeping original Audio settings."_s;
    const QString sticky = u"  *** Audio Options file is NOT found. Applying Default Audio (sticky) settings."_s;
    const QString probed = u" --language 0:ger --track-name 0:Handler"_s;
    // The option file (none where null), whether it is used, and the sticky values; the command and the line of the
    // log.
    const std::tuple<const char*, int, int, QString, QString> claims[] = {
        {"Title=x", 0, 0, probed, u""_s},
        {nullptr, 1, 0, probed, kept},
        {"broken", 1, 0, probed, kept},
        {nullptr, 0, 1, probed, u""_s},
        {"Delay=300", 1, 1, u" --language 0:und --sync 0:300"_s, used},
        {"", 1, 0, u" --language 0:und"_s, used},
        {"Title=My Title\nLanguage=French (fre)\nForced=yes\nDelay=-5", 1, 0,
         u" --language 0:fre --track-name \"0:My Title\" --forced-track 0:yes --sync 0:-5"_s, used},
        {"Default=yes", 1, 0, u" --language 0:und --default-track 0:no"_s, used},
        {"Default=YES\nForced=Yes", 1, 0, u" --language 0:und --default-track 0:no"_s, used},
        {"Default=no\nForced=no", 1, 0, u" --language 0:und"_s, used},
        {nullptr, 1, 1, u" --language 0:fre --track-name 0:Sticky --default-track 0:yes --sync 0:10"_s, sticky},
    };
    // The sticky forced flag is on and its text empty, so nothing is taken from it.
    Prog.Settings.Audio_Sticky = {1, 1, 1, 1, 1, u"Sticky"_s, u"French (fre)"_s, u"yes"_s, u""_s, u"10"_s};
    Prog.Options.Log_Verbosity = 2;
    Write_All({u"m.mp3"_s});
    for (const auto& [option_file, use, apply_defaults, command, status_line] : claims) {
        QFile::remove(Path(u"videos/m.mp3.opt"_s));
        if (option_file != nullptr)
            Write(u"videos/m.mp3.opt"_s, option_file);
        Prog.Options.chk_UseAudioOpts.Value = use;
        Prog.Options.chk_ApplyDefaultAudioOpts.Value = apply_defaults;
        List.assign(1, {});
        Next_File_Index = 1;
        Order_Default.clear();
        Find(u"m"_s);
        EXPECT_EQ(Command(), command + u" ( m.mp3 )"_s);
        EXPECT_EQ(Order_Default, status_line == sticky ? u",1:0,"_s : u""_s);
        Prog.Logs.Log_Faults.Clear();
        Log_External_Audio(List, Prog.Options, Prog.Language_Table, Prog.Logs.Log_Faults);
        EXPECT_EQ(Faults().mid(1).join(u'|'), status_line) << command.toStdString();
    }
}

TEST_F(External_Audio, ANameThatCountsSaysMoreThanTheProbeAndClaimsNoDefaultForOthers)
{
    Prog.Settings.Extensions.Language_From_File_Name = true;
    Prog.Options.Log_Verbosity = 2;
    Write_All({u"m [ja].default.mka"_s, u"m.mka"_s});
    Find(u"m"_s);
    EXPECT_EQ(Command(), u" --language 0:jpn --track-name 0:Handler --default-track 0:yes ( \"m [ja].default.mka\" )"
                         " --language 0:ger --track-name 0:Handler ( m.mka )"_s);
    EXPECT_EQ(Order_Default + u'|' + Order_Extra, u",1:0,|,2:0"_s);
    Log_External_Audio(List, Prog.Options, Prog.Language_Table, Prog.Logs.Log_Faults, true);
    EXPECT_EQ(Faults(), (QStringList{u"-- Adding audio track - \"m [ja].default.mka\" ;Japanese (jpn)"_s,
                                     u"  *** Language from the file's name; also from it: default"_s,
                                     u"-- Adding audio track - \"m.mka\" ;German (ger)"_s,
                                     u"  *** Language from the file itself"_s}));
}

TEST_F(External_Audio, ABlankStickyLanguageTextIsAnErrorThatSaysWhere)
{
    Prog.Options.chk_UseAudioOpts.Value = Prog.Options.chk_ApplyDefaultAudioOpts.Value = 1;
    Prog.Settings.Audio_Sticky.Sticky_Languages = 1;
    Prog.Settings.Audio_Sticky.Language = u")"_s;
    Write_All({u"m.mp3"_s});
    EXPECT_EQ(Error_Of([&] { Find(u"m"_s); }).Subject, u"the sticky language"_s);
}
