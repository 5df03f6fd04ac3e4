#include "command/external_subtitles.h"

#include "command/companion_fixture.h"
#include "command/joined_names.h"

#include <filesystem>
#include <random>

struct External_Subtitles : Companion_Test
{
    External_Subtitles() { Prog.Options.chk_AddSubs.Value = 1; }

    ExternalTrackList List{1};
    ExternalTrackList Unpaired{1};
    QString Order;

    void Find(const QString& base_name)
    {
        List.assign(1, {});
        Unpaired.assign(1, {});
        Find_External_Subtitles(Prog, Videos(), base_name, List, Unpaired);
    }

    /// The command of what was found behind two audio files, with the video folder's path taken out.
    QString Command()
    {
        Command_Line command;
        Order.clear();
        Append_External_Subtitle_Arguments(command, List, Prog.Options, 3, Order);
        return command.Text().remove(Videos());
    }

    static ExternalTrack Named(const QString& name, int file_index)
    {
        ExternalTrack track;
        track.InUse = true;
        track.FileName = name;
        track.FileIndex = static_cast<std::int16_t>(file_index);
        return track;
    }
};

static const QByteArray Index_Text = "# VobSub index file, v7\nsize: 720x576\nforced subs: ON\nid: de, index: 0\n"
                                     "timestamp: 00:00:01:000, filepos: 000000000\nid: en, index: 1\n";

TEST_F(External_Subtitles, PlainFilesComeFirstAndAnIdxOnlyWithItsSub)
{
    Write_All({u"Movie.srt"_s, u"my MOVIE.ASS"_s, u"movie.sup"_s, u"movie.sub"_s, u"movie.mp3"_s, u"movie X.IDX"_s,
               u"lone movie.idx"_s});
    Write(u"videos/movie.idx"_s, Index_Text);
    Find(u"Movie"_s);
    EXPECT_EQ(Sorted(Names_Of(List).first(3)), Sorted({u"Movie.srt"_s, u"my MOVIE.ASS"_s, u"movie.sup"_s}));
    EXPECT_EQ(Names_Of(List).mid(3), (QStringList{u"movie X.IDX"_s, u"movie.idx"_s}));
    EXPECT_EQ(List[3].FileIndex, 3);
    EXPECT_FALSE(List[3].IsIdxPair);
    EXPECT_EQ(List[4].FileIndex, 0);
    EXPECT_TRUE(List[4].IsIdxPair && List[4].HasSubFile);
    EXPECT_EQ(Names_Of(Unpaired), QStringList{u"lone movie.idx"_s});
    EXPECT_TRUE(Prog.Run.Process_Failed);
    EXPECT_TRUE(Command().endsWith(u" --language 0:en ( movie.idx )"_s));
    EXPECT_EQ(Order, u",3:0,4:0,5:0,6:0,3:0"_s);

    QFile::remove(Path(u"videos/lone movie.idx"_s));
    Find(u"Movie"_s);
    EXPECT_FALSE(Prog.Run.Process_Failed);
}

TEST_F(External_Subtitles, SettingsComeFromTheOptionFileElseTheStickyValuesAndNeverFromTheProbe)
{
    // The option file (none where null), whether it is asked for, and the sticky values; the command, and whether it
    // was.
    const std::tuple<const char*, int, int, QString, bool> claims[] = {
        {nullptr, 1, 0, u" --language 0:und"_s, false},
        {"broken", 1, 0, u" --language 0:und"_s, false},
        {"Title=x", 0, 1, u" --language 0:und"_s, false},
        {"Title=A B\nLanguage=French (fre)\nDefault=no\nForced=yes\nDelay=700", 1, 1,
         u" --language 0:fre --track-name \"0:A B\" --default-track 0:no --forced-track 0:yes"_s, true},
        {"Default=yes\nForced=no", 1, 0, u" --language 0:und --default-track 0:yes"_s, true},
        {"Default=Yes", 1, 0, u" --language 0:und"_s, true},
        {nullptr, 1, 1, u" --language 0:fre --track-name 0:Sticky --forced-track 0:yes"_s, false},
    };
    // The default has a text and no flag, so nothing is taken from it.
    Prog.Settings.Subtitle_Sticky = {1, 1, 0, 1, 1, u"Sticky"_s, u"fre"_s, u"yes"_s, u"yes"_s, u"10"_s};
    Write_All({u"m.srt"_s});
    for (const auto& [option_file, use, apply_defaults, command, used] : claims) {
        QFile::remove(Path(u"videos/m.srt.opt"_s));
        if (option_file != nullptr)
            Write(u"videos/m.srt.opt"_s, option_file);
        Prog.Options.chk_UseSubOpts.Value = use;
        Prog.Options.chk_ApplyDefaultSubOpts.Value = apply_defaults;
        Find(u"m"_s);
        EXPECT_EQ(Command(), command + u" ( m.srt )"_s);
        EXPECT_EQ(List.front().OptionFileUsed, used) << command.toStdString();
    }
}

TEST_F(External_Subtitles, ANameTellsWhatNeitherOptionFileNorStickyValueDoesIfItCounts)
{
    // The file, its option file, whether sticky values are; what is said of it, and of where that is from.
    const std::tuple<QString, const char*, int, QString, QString> claims[] = {
        {u"m.en.sdh.srt"_s, nullptr, 0, u"0:eng --hearing-impaired-flag 0:yes"_s,
         u"from the file's name; also from it: hearing impaired"_s},
        {u"m.de.forced.default.srt"_s, "Forced=no", 0, u"0:ger --default-track 0:yes"_s,
         u"from the file's name; also from it: default"_s},
        {u"m.de.forced.srt"_s, "Language=French (fre)\nDefault=no", 0,
         u"0:fre --default-track 0:no --forced-track 0:yes"_s, u"from the option file; from the file's name: forced"_s},
        {u"m.de.srt"_s, nullptr, 1, u"0:fre"_s, u"from the sticky values"_s},
        {u"m.de.idx"_s, "Forced=no", 0, u"0:ger"_s, u"from the file's name"_s},
        {u"m.forced.idx"_s, nullptr, 0, u"0:en --forced-track 0:yes"_s,
         u"from the file itself; from the file's name: forced"_s},
        {u"m.srt"_s, nullptr, 0, u"0:und"_s, u"not known"_s},
    };
    Prog.Settings.Subtitle_Sticky.Sticky_Languages = 1;
    Prog.Settings.Subtitle_Sticky.Language = u"fre"_s;
    Prog.Options.chk_UseSubOpts.Value = 1;
    Prog.Options.Log_Verbosity = 2;
    for (const auto& [name, option_file, sticky, told, origin] : claims) {
        QDir(Videos()).removeRecursively();
        Write(u"videos/"_s + name, Index_Text);
        Write(u"videos/"_s + name.chopped(4) + u".sub"_s);
        if (option_file != nullptr)
            Write(u"videos/"_s + name + u".opt"_s, option_file);
        Prog.Options.chk_ApplyDefaultSubOpts.Value = sticky;
        Prog.Settings.Extensions.Language_From_File_Name = false;
        Find(u"m"_s);
        EXPECT_FALSE(Command().contains(u"0:ger"_s) || Command().contains(u"0:eng"_s)) << name.toStdString();
        Prog.Settings.Extensions.Language_From_File_Name = true;
        Find(u"m"_s);
        EXPECT_EQ(Command(), u" --language %1 ( %2 )"_s.arg(told, name));
        Prog.Logs.Log_Faults.Clear();
        Log_External_Subtitles(List, Unpaired, Prog.Options, Prog.Language_Table, Prog.Logs.Log_Faults, true);
        EXPECT_EQ(Faults().constLast(), u"   *** Language "_s + origin);
    }
}

TEST_F(External_Subtitles, TheLastIdLineGivesTheLanguageUnlessTheOptionFileDoes)
{
    // Of an id line, places 10 and 1 have no bit in common; 1 and 11 have one. A line that can't be read is no error
    // where its language isn't wanted.
    const std::tuple<QByteArray, const char*, QString> claims[] = {
        {Index_Text, nullptr, u"en"_s},
        {Index_Text, "Title=x\nLanguage=fr", u"fre"_s},
        {Index_Text, "Title=x", u"en"_s},
        {"ID: DE, INDEX: 0\r\n", nullptr, u"de"_s},
        {"id:  de , index: 0", nullptr, u"de"_s},
        {"id: deu, index: 0", nullptr, u""_s},
        {"index: 0, id: de", nullptr, u"0"_s},
        {"id: de, index: 0 # forced subs: off", nullptr, u""_s},
        {"\x01\xff\xfe garbage\n\n::::\nid:\nindex:\n", nullptr, u""_s},
        {"xyz, id: index:", "Language=fr", u"fre"_s},
    };
    Prog.Options.chk_UseSubOpts.Value = 1;
    Write_All({u"m.sub"_s});
    for (const auto& [text, option_file, language] : claims) {
        Write(u"videos/m.idx"_s, text);
        QFile::remove(Path(u"videos/m.idx.opt"_s));
        if (option_file != nullptr)
            Write(u"videos/m.idx.opt"_s, option_file);
        Find(u"m"_s);
        EXPECT_EQ(List.front().Language, language) << text.toStdString();
        EXPECT_TRUE(List.front().Title.isEmpty());
    }
}

TEST_F(External_Subtitles, AnIdLineWithoutAColonInItsFirstPieceIsAnErrorThatNamesTheFile)
{
    Write_All({u"m.sub"_s});
    const QString path = Write(u"videos/m.idx"_s, "xyz, id: index:\n");
    const Caught_Error error = Error_Of([&] { Find(u"m"_s); });
    EXPECT_EQ(error.Number, 9);
    EXPECT_EQ(error.Subject, path);
    EXPECT_FALSE(Read_Idx_File(Videos(), u"gone.idx"_s, true, Prog.Language_Table, List));
}

TEST_F(External_Subtitles, ANameThatIsAPartOfTheNamesAddedSoFarIsSkipped)
{
    // The names, those that are left out in brackets; "trm.srt" lies across the border of two names.
    const std::pair<QString, QString> claims[] = {
        {u"Movie.srt/The Movie.srt"_s, u",3:0,4:0"_s}, {u"The Movie.srt/[MOVIE.srt]/x.ass"_s, u",3:0,5:0"_s},
        {u"Movie.en.srt/Movie.srt"_s, u",3:0,4:0"_s},  {u"m.srt/m.srt.ass/ssm.srt"_s, u",3:0,4:0,5:0"_s},
        {u"a.str/m.srt/[trm.srt]"_s, u",3:0,4:0"_s},
    };
    for (const auto& [names, order] : claims) {
        List.clear();
        QString expected;
        for (const QString& name : names.split(u'/')) {
            List.push_back(Named(QString(name).remove(u'[').remove(u']'), static_cast<int>(List.size())));
            if (!name.startsWith(u'['))
                expected += u" --language 0:und ( "_s + (name.contains(u' ') ? u'"' + name + u'"' : name) + u" )"_s;
        }
        EXPECT_EQ(Command(), expected);
        EXPECT_EQ(Order, order);
    }
    List = {Named(u"m.idx"_s, 0)};
    List.front().IsIdxPair = true;
    EXPECT_EQ(Command() + Order, u""_s);
}

TEST_F(External_Subtitles, TheLogTellsWhatIsAddedAndInTwoWordingsWhatMissesItsSub)
{
    const QString lone = u"   *** Cannot add subtitle; \"u.idx\". The %1'*.sub' file was not found."_s;
    const QString plain = u"-- Adding subtitle track - \"m.srt\" ;Undetermined (und)"_s;
    const QString ignored = u" Subtitle Options selection ignored."_s;
    const std::tuple<int, int, bool, QStringList> claims[] = {
        {0, 1, false, {}},
        {1, 1, false, {u"-- Adding subtitle track(s), but none were found."_s + ignored, lone.arg(u""_s)}},
        {1, 1, true, {lone.arg(u""_s)}},
        {2, 0, true, {plain, lone.arg(u"acompanying "_s)}},
        {2, 1, true, {plain, u"   *** Subtitle option file NOT found."_s + ignored, lone.arg(u"acompanying "_s)}},
    };
    Unpaired = {Named(u"u.idx"_s, 0)};
    for (const auto& [verbosity, with_options, found, lines] : claims) {
        List.assign(1, found ? Named(u"m.srt"_s, 0) : ExternalTrack());
        Prog.Options.Log_Verbosity = static_cast<std::int16_t>(verbosity);
        Prog.Options.chk_UseSubOpts.Value = with_options;
        Prog.Logs.Log_Faults.Clear();
        Log_External_Subtitles(List, Unpaired, Prog.Options, Prog.Language_Table, Prog.Logs.Log_Faults);
        EXPECT_EQ(Faults(), lines) << verbosity;
    }
}

TEST(Joined_Names, AnswerAsASearchOfTheJoinedTextWould)
{
    std::mt19937 generator(7);
    const auto random_text = [&](std::size_t longest) {
        QString text;
        for (std::size_t i = generator() % longest + 1; i > 0; --i)
            text += QChar(static_cast<char16_t>(u"abA."[generator() % 4]));
        return text;
    };
    for (int round = 0; round < 50; ++round) {
        Joined_Names names;
        QString joined;
        for (int i = 0; i < 40; ++i) {
            const QString asked = random_text(8);
            EXPECT_EQ(names.Contains(asked), joined.contains(asked, Qt::CaseInsensitive)) << joined.toStdString();
            const QString added = random_text(6);
            names.Add(added);
            joined += added;
        }
    }
}
