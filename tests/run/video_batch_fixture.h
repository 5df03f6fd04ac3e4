#pragma once

#include "common/stand_in_tool.h"
#include "inspect/video_names.h"
#include "run/video_batch.h"
#include "support/paths.h"

#include <QDir>
#include <functional>

namespace {

/// What an ffprobe says about a file with one video track, and about nothing that is empty.
const QByteArray Probe = "for file; do :; done\n"
                         "[ -s \"$file\" ] || { [ \"$2\" = quiet ] || echo \"[mov @ 0x5] no moov\" >&2; exit 1; }\n"
                         "case \"$*\" in\n"
                         "*-show_format*) printf 'format|filename=x|duration=1.5|size=1\\n' ;;\n"
                         "*) printf 'stream|index=0|codec_name=h264|codec_type=video|tag:language=eng\\n' ;;\n"
                         "esac\n";
/// A mkvmerge that writes its output and says so; the fourth argument is the output.
const QByteArray Merge = "echo 'mkvmerge v74.0.0'; echo 'The file has been opened for writing.'\n"
                         "sleep 0.05; printf 'Progress: 100%%\\r'; sleep 0.05\n"
                         "echo done > \"$4\"; echo 'Multiplexing took 0 seconds.'\n";

/// Keeps what a driver would hear.
struct Recorder : Run_Listener
{
    int Files = -1;
    QStringList Started;
    QStringList Commands;
    std::vector<File_Outcome> Outcomes;
    std::function<void()> On_Start;
    std::function<void()> On_Command;

    void Run_Started(int files) override { Files = files; }

    void File_Started(int index, const QString& source) override
    {
        Started += QString::number(index) + u' ' + File_Name_Of(source);
        if (On_Start)
            On_Start();
    }

    void Command_Ready(const Program&, const QString&, const QString& output) override
    {
        Commands += output;
        if (On_Command)
            On_Command();
    }

    void File_Finished(const File_Outcome& outcome) override { Outcomes.push_back(outcome); }
};

struct VideoBatch : testing::Test
{
    Test_Program Test;
    Program& Prog = Test.Prog;
    Recorder Heard;

    VideoBatch()
    {
        Prog.Tools.FFProbe_Path = Write_Stand_In(Test, u"tools/ffprobe"_s, Probe);
        Prog.Tools.System_MKVMerge_Path = Write_Stand_In(Test, u"tools/mkvmerge"_s, Merge);
        Prog.Options.Log_Verbosity = 1;
        Prog.Listener = &Heard;
    }

    bool Run()
    {
        Find_Video_Files(Prog, Prog.Options.Path_Videos, Video_Extensions, Prog.Run.Video_File_List);
        return Process_Video_Files(Prog);
    }

    /// An output of another name, and what would be lost by it.
    struct
    {
        QString Output, Elsewhere, Source, Other;
        QString Same = u"is the same file on disk as"_s;
    } Guarded;

    void SetUp() override
    {
        Guarded.Output = Test.Path(u"target/a.mkv"_s);
        Guarded.Elsewhere = Test.Path(u"elsewhere/old.mkv"_s);
        Guarded.Source = Test.Path(u"videos/a.avi"_s);
        Guarded.Other = Test.Path(u"videos/b.mkv_kept"_s);
    }

    /// What is made of the output's name, and the reason; none where the output is written.
    void Expect_Guarded(const std::vector<std::tuple<const char*, std::function<bool()>, QString>>& claims)
    {
        const QStringList precious = {u"elsewhere/old.mkv"_s, u"videos/a.avi"_s, u"videos/b.mkv_kept"_s};
        for (const QString& file : precious)
            Test.Write(file, "precious");
        for (const auto& [what, make, reason] : claims) {
            QFile::remove(Guarded.Output);
            ASSERT_TRUE(make()) << what;
            Prog.Options.Delete_Video_After = !reason.isEmpty();
            EXPECT_TRUE(Run());
            EXPECT_EQ(Heard.Outcomes.back().Status == File_Outcome::Kind::Done, reason.isEmpty()) << what;
            EXPECT_TRUE(Heard.Outcomes.back().Reason.contains(reason)) << what;
            for (const QString& file : precious)
                EXPECT_EQ(Test.Read(file), "precious") << what;
        }
        EXPECT_EQ(Heard.Commands.size(), 1) << "of the last claim, which is written";
    }

    QStringList Names(const QString& folder) const
    {
        return QDir(Test.Path(folder)).entryList(QDir::Files, QDir::Name);
    }
};

} // namespace
