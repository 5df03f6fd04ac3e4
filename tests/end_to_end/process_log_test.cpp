#include "common/stand_in_tool.h"
#include "end_to_end/library.h"
#include "support/platform_names.h"

#include <QRegularExpression>

namespace {

/// The real mkvmerge, with a pause around its progress, so that a busy machine can't melt progress and messages into
/// one chunk, which would be dropped whole.
const QByteArray Slow_Mkvmerge =
    "/usr/bin/env mkvmerge \"$@\" | tr '\\r' '\\n' | while IFS= read -r line; do case $line in\n"
    "Progress*) sleep 0.15; printf '%s\\n' \"$line\"; sleep 0.15;; *) printf '%s\\n' \"$line\";; esac; done\n";

QByteArray Header(int level)
{
    return "This entry generated on - Nov/07/2026 01:02:03 PM local time by Vantorra ver 2.5.5 :: Log verbosity=" +
           QByteArray::number(level) + "\n";
}

struct Log_Run : Library_Run
{
    explicit Log_Run(int level)
    {
        Prog.Options.Log_Verbosity = static_cast<std::int16_t>(level);
        Prog.Now = [] { return QDateTime(QDate(2026, 11, 7), QTime(13, 2, 3)); };
        Prog.Tools.System_MKVMerge_Path = Write_Stand_In(*this, u"tools/mkvmerge"_s, Slow_Mkvmerge);
        Prog.Tools.System_MKVMerge_Version = u"mkvmerge v74.0.0 ('You Oughta Know') 64-bit\r\n"_s;
    }

    /// The log with LF for CR LF, R for the test's folder, F for ffprobe's path and 0 for the seconds it took.
    QByteArray Masked_Log() const
    {
        QString log = Log();
        EXPECT_EQ(log.count(u'\n'), log.count(u"\r\n"_s)) << "every line ends in CR LF";
        log.replace(u"\r\n"_s, u"\n"_s).replace(Prog.Tools.FFProbe_Path, u"F"_s).replace(Path(), u"R/"_s);
        log.replace(u'\\', u'/').replace(Executable_Name(u"tools/mkvmerge"_s), u"tools/mkvmerge"_s);
        static const QRegularExpression seconds(u"took \\d+ seconds?"_s);
        return log.replace(seconds, u"took 0 seconds"_s).toUtf8();
    }
};

/// What a level adds, piece by piece.
const QByteArray Boxes = R"(        [Active Checkboxes]
            ~~ Add Audio Files
            ~~ Video Files Path= R/videos/
            ~~ Target Path= R/target/

)";

QByteArray Menu(const QByteArray& verbosity)
{
    return R"(        [Menu Selections]
            -- Save Settings on Exit is On
)" + verbosity +
           R"(            -- ffprobe.exe location - F
            -- MKVMerge.exe location - R/tools/mkvmerge   v74.0.0 ('You Oughta Know') 64-bit

)";
}

const QByteArray Bad_Faults = R"(~~~~
        [Vantorra Results]
            -- Processing video file - "R/videos/bad.avi"
)";
/// That nothing was found is told from 1 on, what was found from 2 on.
const QByteArray Bad_Added = R"(            -- Adding audio track(s), but none were found.
)";
const QByteArray Mkvmerge_Head = R"(        [mkvmerge Results]
)";
const QByteArray Bad_All = R"(              Error: The type of file 'R/videos/bad.avi' could not be recognized.
)";
const QByteArray Good_Faults = R"(~~~~
        [Vantorra Results]
            -- Processing video file - "R/videos/good.mkv"
)";
const QByteArray Good_Added = R"(            -- Adding audio track - "good.mp3" ;Undetermined (und)
)";
const QByteArray Good_Took = R"(               Multiplexing took 0 seconds.
)";
const QByteArray Good_Reports = R"(            The file 'R/target/good.mkv' has been opened for writing.
            The cue entries (the index) are being written...
)";
const QByteArray Good_All = Good_Reports +
                            R"(              'R/videos/good.mkv': Using the demultiplexer for the format 'Matroska'.
              'R/videos/good.mp3': Using the demultiplexer for the format 'MPEG-1/2 Audio Layer II/III'.
              'R/videos/good.mkv' track 0: Using the output module for the format 'MPEG-4'.
              'R/videos/good.mkv' track 1: Using the output module for the format 'MPEG-1/2 Audio Layer II/III'.
              'R/videos/good.mp3' track 0: Using the output module for the format 'MPEG-1/2 Audio Layer II/III'.
              The file 'R/target/good.mkv' has been opened for writing.
              The cue entries (the index) are being written...
              Multiplexing took 0 seconds.
)";

/// What comes ahead of the results at a level.
QByteArray Options_At(int level)
{
    const QByteArray verbosity[] = {"Menu Settings", "MKVMerge Reports", "ALL MKVMerge Reports"};
    const QByteArray line = level > 6 ? QByteArray()
                                      : "            -- Log Verbosity " + QByteArray::number(level) + " - Include " +
                                            (level == 4 ? "All " : "") + verbosity[std::max(0, level - 4)] + "\n";
    return (level > 3 ? Menu(line) : "") + (level > 2 ? Boxes : "");
}

QByteArray Bad_At(int level)
{
    return level == 0 ? "" : Bad_Faults + Bad_Added + Mkvmerge_Head + (level > 5 ? Bad_All : "");
}

QByteArray Good_At(int level)
{
    if (level == 0)
        return "";
    return Good_Faults + (level > 1 ? Good_Added : "") + Mkvmerge_Head +
           (level > 5 ? Good_All : (level > 4 ? Good_Reports : "") + Good_Took);
}

struct Process_Log_Level : testing::TestWithParam<int>
{};

TEST_P(Process_Log_Level, ARunOverAGoodFileAFailingOneAndNoVideoLeavesExactlyThisEntry)
{
    const int level = GetParam();
    Log_Run run(level);
    run.Add(u"plain.mkv"_s, u"good.mkv"_s);
    run.Add(u"c.mp3"_s, u"good.mp3"_s);
    // ffprobe reads raw pictures, mkvmerge doesn't.
    run.Write(u"videos/bad.avi"_s, "YUV4MPEG2 W16 H16 F25:1 Ip A1:1 C420mpeg2\nFRAME\n" + QByteArray(384, 'x'));
    run.Write(u"videos/notes.txt"_s, "x");
    run.Prog.Options.chk_AddAudio.Value = 1;
    ASSERT_TRUE(run.Run());
    const QByteArray entry = Header(level) + Options_At(level) + Bad_At(level) + Good_At(level) + "\n\n";
    EXPECT_EQ(run.Masked_Log().toStdString(), entry.toStdString());
    EXPECT_TRUE(run.Person.Messages.empty());
}

INSTANTIATE_TEST_SUITE_P(Verbosity, Process_Log_Level, testing::Range(0, 8), testing::PrintToStringParamName());

} // namespace
