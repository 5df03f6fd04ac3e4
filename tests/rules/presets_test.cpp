#include "rules/presets.h"

#include "common/test_program.h"
#include "rules/click_rules.h"
#include "rules/control_states.h"
#include "rules/folders.h"
#include "rules/preset_dialogs.h"
#include "rules/window_drop.h"
#include "settings/preset_file.h"
#include "settings/settings_store.h"
#include "support/drop_data.h"

#include <QFile>

static const QByteArray Place = "[MainWindow]\nLeft=1\nTop=1\nWidth=9\nHeight=9\n";

/// A program behind its first activation, with a settings file.
struct Preset_Rules : testing::Test, Test_Program
{
    Preset_Rules() { Begin(Prog, {}); }

    void Begin(Program& program, const QByteArray& settings)
    {
        Write(u"app/Vantorra.ini"_s, Place + settings);
        program.Settings.App_Folder = Path(u"app/"_s);
        program.Settings.Ini_File = Path(u"app/Vantorra.ini"_s);
        Read_Settings(program);
        program.Form.Options_Ready = true;
    }

    /// Types the names one after the other, then cancels.
    void Name_It(QStringList names)
    {
        Person.On_Form[u"frm_PresetName"_s] = [this, names]() mutable {
            Preset_Name_Form& form = Prog.Preset_Name_Dialog;
            if (names.isEmpty())
                return;
            form.txt_PresetName.Text = names.takeFirst();
            txt_PresetName_Change(Prog);
            btn_PresetName_Done_Click(form);
        };
    }

    void Save(const QString& name)
    {
        Name_It({name});
        mnu_SavePreset_Click(Prog);
    }
};

TEST_F(Preset_Rules, WhatWasSavedInOneProgramIsAsAfterTheStartInAnother)
{
    const QByteArray full = "[Audio]\nAdd Audio Files=On\nUse Audio .opt files=On\nFilter out NON-English Audio=On\n"
                            "[Subtitles]\nStrip Existing Subtitles=On\n[Chapters]\nReplace With New Chapter File=On\n"
                            "[Other Options]\nRemove File Title=On\nSet Custom Video Title=On\n"
                            "Set Custom Video Title Text= \"Film\"\nAdd Attachments=On\nSet Video Frame Rate=On\n"
                            "Set Video Frame Rate Value=25p\n[Menu]\nAppend Logs=False\n";
    const QByteArray states[] = {
        {},
        full,
        R"([Audio]
Custom Audio Filter Language(s)=English (eng)
Apply custom Audio Filter=On
Audio Delay=-250
)",
        R"([Audio]
Strip Existing Audio=On
[Video Format Options]
Aspect Ratio or Video Dimensions=Aspect Ratio
Settings=16/9
Use Video Format Options=On
)",
        R"([Subtitles]
Custom Subtitle Filter Language(s)=A (a):B (b)
Cut or Keep Subtitle Languages=Keep
Apply custom Subtitle Filter=On
Set All Subtitle forces to no/yes=no
Alternate Subtitle File Path=On
)",
    };
    for (const QByteArray& from : states)
        for (const QByteArray& to : states) {
            Program saved(Person), loaded(Person);
            Begin(saved, from);
            Begin(loaded, to);
            Ini_Document preset;
            Write_Preset_To(saved, preset);
            Save_Ini_File(Path(u"x.ini"_s), preset);
            ASSERT_TRUE(Load_Preset_File(loaded, Path(u"x.ini"_s)));
            EXPECT_EQ(Preset_Values(loaded), Preset_Values(saved)) << from.toStdString() << to.toStdString();
            Show_Folder_Panels(saved.Options, saved.Form); // as the start does behind the settings
            EXPECT_EQ(Difference(States_Of(saved), States_Of(loaded)), u""_s) << from.toStdString();
            for (const Click_Rule& rule : Click_Rules())
                EXPECT_EQ((loaded.Options.*rule.Box).Caption, (saved.Options.*rule.Box).Caption);
        }
    EXPECT_TRUE(Person.Messages.empty());
}

TEST_F(Preset_Rules, ARowThatThePresetLacksKeepsItsValue)
{
    JobOptions& options = Prog.Options;
    options.Custom_File_Title = u" \"kept\" "_s;
    options.Path_Attachments = u"/gone/"_s;
    options.Delete_Video_After = false;
    options.chk_RemoveAllTags.Value = 0; // a missing key means On at the start
    options.chk_SplitVideos.Value = Prog.Form.txt_SplitVideosValue.Active = 1;
    options.chk_AudioDelayAdjust.Value = 1;
    const QStringList before = Preset_Values(Prog);
    ASSERT_TRUE(Load_Preset_File(
        Prog, Write(u"p.ini"_s, "[audio]\nstrip existing audio title=on\n[Menu]\nDelete Processed File=True\n"
                                "[Paths]\nAttachments Path=/other/\n[Extensions]\nCareful Batch=On\n")));
    EXPECT_EQ(options.chk_StripOrigAudioTitle.Value, 1);
    options.chk_StripOrigAudioTitle.Value = 0;
    EXPECT_EQ(Preset_Values(Prog), before);
    EXPECT_EQ(options.Custom_File_Title, u" \"kept\" "_s);
    EXPECT_EQ(options.Path_Attachments, u"/gone/"_s);
    EXPECT_FALSE(options.Delete_Video_After || Prog.Settings.Extensions.Careful_Batch);
    EXPECT_TRUE(options.chk_SplitVideos.Value == 1 && Prog.Form.txt_SplitVideosValue.Active);
    EXPECT_TRUE(options.chk_AudioDelayAdjust.Value == 1 && Prog.Form.txt_AudioDelayValue.Active);
    options.Delete_Video_After = true;
    EXPECT_EQ(Preset_Title(Prog), u"p *"_s); // the title's one that was taken back
    options.chk_StripOrigAudioTitle.Value = 1;
    EXPECT_EQ(Preset_Title(Prog), u"p"_s) << "what a preset lacks is no difference";
}

TEST_F(Preset_Rules, ABrokenOneAndOneInARunChangeNothing)
{
    Save(u"Good"_s);
    const QStringList before = Preset_Values(Prog);
    const QString bad = Write(u"bad.ini"_s, "[Audio]\nAdd Audio Files=On\nStrip Existing Audio=Perhaps\n");
    Drop_On_Window(Prog, {.Has_File_List = true, .Paths = {bad}});
    ASSERT_EQ(Person.Messages.size(), 1U);
    EXPECT_TRUE(Person.Messages[0].Text.contains(u"Strip Existing Audio"));
    EXPECT_EQ(Preset_Values(Prog), before);
    EXPECT_EQ(Preset_Title(Prog), u"Good"_s);
    const QString fine = Write(u"fine.ini"_s, "[Audio]\nAdd Audio Files=On\n");
    Prog.Run.Press_In_Work = true;
    EXPECT_FALSE(Load_Preset_File(Prog, fine));
    Save(u"Other"_s);
    EXPECT_FALSE(QFile::exists(Path(u"app/presets/Other.ini"_s)) || Prog.Options.chk_AddAudio.Value);
}

TEST_F(Preset_Rules, SavingAsksBeforeItReplacesAndKeepsWhatItDoesNotKnow)
{
    const QByteArray newer = "; mine\n[Audio]\nAdd Audio Files=On\nFuture=1\n[New]\nKey=x\n";
    Write(u"app/presets/Anime.ini"_s, newer);
    Person.Answer = Message_Answer::Cancel;
    Name_It({u"ANIME"_s, u"../up"_s}); // another name after the refusal, which none can have
    mnu_SavePreset_Click(Prog);
    ASSERT_EQ(Person.Messages.size(), 1U);
    EXPECT_TRUE(Person.Messages[0].Text.contains(u"\"Anime\""));
    EXPECT_EQ(Read(u"app/presets/Anime.ini"_s), newer);
    EXPECT_EQ(Prog.Settings.Preset.Name, u""_s);

    Person.Answer = Message_Answer::Ok;
    Save(u"ANIME"_s);
    const QByteArray now = Read(u"app/presets/Anime.ini"_s).replace("\r\n", "\n");
    EXPECT_TRUE(now.startsWith("; mine\n[Audio]\nAdd Audio Files=Off\nFuture=1\n")) << now.toStdString();
    EXPECT_TRUE(now.contains("[New]\nKey=x\n"));
    Prog.Options.chk_AddAudio.Value = 2; // neither on nor off
    Save(u"Half"_s);
    EXPECT_TRUE(Person.Messages.back().Text.contains(u"\"Add Audio Files\""));
    EXPECT_FALSE(QFile::exists(Path(u"app/presets/Half.ini"_s)));
}

TEST_F(Preset_Rules, RenamingNeverTakesAnotherPresetsPlaceAndTheTrashIsAsked)
{
    for (const QString& name : {u"a"_s, u"b"_s})
        Write(u"app/presets/"_s + name + u".ini"_s, "[Audio]\nAdd Audio Files=On\n");
    Choose_Preset(Prog, u"a"_s);
    Person.On_Form[u"frm_Presets"_s] = [this] {
        Presets_Form& form = Prog.Presets_Dialog;
        EXPECT_EQ(form.Row, 0);
        for (const QString& refused : {u"b"_s, u"B"_s, u".a"_s, u"a"_s}) {
            Name_It({refused});
            btn_Presets_Rename_Click(Prog);
        }
        EXPECT_EQ(form.Names, (QStringList{u"a"_s, u"b"_s}));
        Name_It({u"A"_s}); // its own in other letters
        btn_Presets_Rename_Click(Prog);
        Name_It({u"z & y"_s});
        btn_Presets_Rename_Click(Prog);
        EXPECT_EQ(form.Names, (QStringList{u"b"_s, u"z & y"_s}));
        EXPECT_EQ(Preset_Title(Prog), u"z & y"_s);
        Person.Answer = Message_Answer::Cancel;
        btn_Presets_Trash_Click(Prog);
        EXPECT_EQ(form.Names.size(), 2);
        Person.Answer = Message_Answer::Ok;
        btn_Presets_Trash_Click(Prog);
        EXPECT_EQ(Preset_Title(Prog), u""_s);
        EXPECT_TRUE(Names_In_Trash().contains(u"z & y.ini"_s));
    };
    mnu_ManagePresets_Click(Prog);
    EXPECT_EQ(Prog.Presets_Dialog.Names.value(Prog.Presets_Dialog.Row), u"b"_s);
}
