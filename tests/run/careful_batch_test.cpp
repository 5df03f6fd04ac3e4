#include "run/careful_batch.h"

#include "common/stand_in_tool.h"
#include "run/careful_choice.h"
#include "support/paths.h"

#include <QDir>
#include <thread>

namespace {

/// Notes what is heard, and whether it comes on the thread that the run was started on.
struct Ear : Run_Listener
{
    const std::thread::id Home = std::this_thread::get_id();
    bool All_At_Home = true;
    int In_Work = 0;
    int Most_In_Work = 0;
    int Commands = 0;
    QList<int> Numbers;
    QHash<int, int> Ends; ///< how many ended how

    void File_Started(int index, const QString&) override
    {
        Numbers += index;
        Most_In_Work = std::max(Most_In_Work, ++In_Work);
    }

    void Command_Ready(const Program& video, const QString& source, const QString&) override
    {
        All_At_Home = All_At_Home && std::this_thread::get_id() == Home;
        Commands += video.Run.Mkvmerge_Arguments.Arguments().contains(source) ? 1 : 0;
    }

    void File_Finished(const File_Outcome& outcome) override
    {
        All_At_Home = All_At_Home && std::this_thread::get_id() == Home;
        --In_Work;
        ++Ends[static_cast<int>(outcome.Status)];
    }
};

/// A careful batch with tools that answer at once: hundreds of videos take seconds. Its output is an empty segment.
struct Careful_Batch : testing::TestWithParam<int>, Test_Program
{
    Ear Heard;

    Careful_Batch()
    {
        Prog.Tools.FFProbe_Path = Write_Stand_In(
            *this, u"tools/ffprobe"_s,
            "echo '{\"streams\":[{\"index\":0,\"codec_type\":\"video\",\"codec_name\":\"h264\",\"width\":16,"
            "\"height\":16}],\"format\":{\"format_name\":\"matroska\",\"size\":\"1\"}}'\n");
        Prog.Tools.System_MKVMerge_Path =
            Write_Stand_In(*this, u"tools/mkvmerge"_s,
                           "printf '\\032\\105\\337\\243\\200\\030\\123\\200\\147\\200' >\"$4\"\n"
                           "echo 'Progress: 50%'\n"
                           "while [ \"$1\" != \"(\" ]; do shift; done\n"
                           "echo \"'$2' track 0: Using the output module for the format 'AVC/H.264'.\"\n");
        Prog.Settings.Extensions.Videos_At_Once = GetParam();
        Prog.Options.Log_Verbosity = 1;
        Prog.Listener = &Heard;
        Prog.Run.Careful = true;
    }

    QStringList Add_Videos(int count)
    {
        QStringList names;
        for (int number = 100; number < 100 + count; ++number)
            names += Write(u"videos/%1.mkv"_s.arg(number), "x");
        return names;
    }

    int Ended(File_Outcome::Kind how) const { return Heard.Ends.value(static_cast<int>(how)); }
};

} // namespace

TEST_P(Careful_Batch, ManyVideosLeaveNothingBehindAndTheLogIsInTheirOrder)
{
    constexpr int videos = Path_Separator == u'/' ? 300 : 30; // a start takes far longer under Wine
    const QStringList sources = Add_Videos(videos);
    const int descriptors = Open_Descriptors();
    EXPECT_TRUE(Run_Carefully(Prog));
    EXPECT_EQ(Open_Descriptors(), descriptors);
    EXPECT_EQ(Children_Left(), 0);
    EXPECT_EQ(QDir(Path(u"target"_s)).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).size(), videos);
    EXPECT_TRUE(QDir(Path(u"app/Vantorra_Working"_s)).isEmpty());

    EXPECT_EQ(Ended(File_Outcome::Kind::Done), videos);
    EXPECT_EQ(Heard.Commands, videos);
    EXPECT_EQ(Heard.Most_In_Work, GetParam());
    EXPECT_TRUE(Heard.All_At_Home && std::is_sorted(Heard.Numbers.begin(), Heard.Numbers.end()));
    EXPECT_EQ(Prog.Run.Videos_Done, videos);
    QStringList logged;
    for (const QString& line : Results())
        if (line.contains(u"-- Processing video file - "_s) || line.contains(u"[mkvmerge Results]"_s))
            logged += line.section(u'"', 1, 1);
    EXPECT_EQ(logged, QStringList(sources.join(u"||"_s).append(u'|').split(u'|')));
}

TEST_P(Careful_Batch, AHaltBehindTheVideosInWorkWaitsForThemAndBeginsNoOther)
{
    Add_Videos(20);
    Person.On_Pump = [this] { Prog.Run.Halt_After_Video = Prog.Run.Halt_After_Video || Heard.In_Work == GetParam(); };
    EXPECT_FALSE(Run_Carefully(Prog));
    EXPECT_EQ(Ended(File_Outcome::Kind::Done), GetParam());
    EXPECT_EQ(Ended(File_Outcome::Kind::Not_Run), 20 - GetParam());
}

TEST_P(Careful_Batch, AnErrorThatUnwindsEndsWhatIsInWorkAndItsWordsAreLogged)
{
    Add_Videos(20);
    Write_Stand_In(*this, u"tools/mkvmerge"_s, "exec sleep 1000");
    Person.On_Pump = [this] {
        if (Heard.Commands == GetParam())
            throw std::runtime_error("the screen is gone");
    };
    EXPECT_THROW(Run_Carefully(Prog), std::runtime_error);
    EXPECT_EQ(Children_Left(), 0);
    EXPECT_TRUE(QDir(Path(u"target"_s)).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
    EXPECT_EQ(Results().filter(u"-- Processing video file - "_s).size(), GetParam());
}

INSTANTIATE_TEST_SUITE_P(At_Once, Careful_Batch, testing::Values(1, 8));
