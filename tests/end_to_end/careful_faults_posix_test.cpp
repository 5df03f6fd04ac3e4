#include "common/media.h"
#include "common/stand_in_tool.h"
#include "end_to_end/batch_process.h"
#include "inspect/ebml_head.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

namespace {

/// One thing that goes wrong in a careful batch of a.mkv and b.mkv whose sources are to go to the trash. The tools are
/// the real ones; a script that runs before or after one, for the first video, has the real one in $REAL, its arguments
/// in "$@" and vantorra-batch in $PPID. Scripts run in the test's folder. Behind each, three sums must hold, and what
/// the row says.
struct Fault
{
    const char* Name;
    const char* Before = "";  ///< a script: what stands there
    const char* Probe = "";   ///< before ffprobe
    const char* Merge = "";   ///< before mkvmerge, but for questions
    const char* After = "";   ///< after mkvmerge; the last command's status is its own
    const char* Calls = "";   ///< calls of the system that fail, or kill the program (the shim's FAULT)
    const char* Results = ""; ///< "a.mkv done, b.mkv failed"; empty: the program is killed, and a second run mends all
    const char* Reason = "";  ///< stands in the first result's reason or warnings, in the log, and in the journal
    const char* Told = "";    ///< stands on standard error
    const char* Target = "";  ///< names in the target folder then; empty: those of what is done
    const char* More = "";    ///< arguments
    const char* Videos = "";  ///< names in the videos' folder then; empty: not looked at
    bool One_By_One = false;  ///< it hangs on the order in which things are done
};

const char* const Kill_Us = "kill -9 $PPID; sleep 5";
const char* const Both_Done = "a.mkv done, b.mkv done";
const char* const Both_Failed = "a.mkv failed, b.mkv failed";
const char* const First_Failed = "a.mkv failed, b.mkv done";

const char* const With_Companions =
    "--tick AddSubs --tick AddAudio --set \"Menu/Delete Source Video Sundry Files=True\"";
const char* const With_Options = "--tick AddSubs --tick AddAudio --tick UseSubOpts";

const Fault Faults[] = {
    {.Name = "nothing", .Results = Both_Done, .Videos = "."},
    // The program is killed.
    {.Name = "killed at the probe", .Probe = Kill_Us},
    {.Name = "killed before mkvmerge writes", .Merge = Kill_Us},
    {.Name = "killed while mkvmerge writes", .Merge = "\"$REAL\" \"$@\" | head -c 300; kill -9 $PPID; sleep 5"},
    {.Name = "killed when mkvmerge has written", .After = Kill_Us},
    {.Name = "killed before the journal has a line", .Calls = "write:1:kill"},
    {.Name = "killed before the working folder is noted", .Calls = "fsync:2:kill"},
    {.Name = "killed between note and folder", .Calls = "mkdir:1:kill"},
    {.Name = "killed when the folder is there and not noted", .Calls = "fsync:3:kill"},
    {.Name = "killed before the output is on the disk", .Calls = "fsync:4:kill"},
    {.Name = "killed before the first name", .Calls = "renameat2:1:kill"},
    {.Name = "killed between name and folder", .Calls = "fsync:5:kill"},
    {.Name = "killed before the journal's result", .Calls = "write:2:kill"},
    {.Name = "killed between journal and trash", .Calls = "fsync:6:kill"},
    {.Name = "killed at the second video's name", .Calls = "renameat2:2:kill"},
    {.Name = "killed while it tidies up", .Calls = "rmdir:1:kill"},
    {.Name = "killed between old and new", .Before = "cp videos/b.mkv target/a.mkv", .Calls = "renameat2:2:kill"},
    // The tools end, badly or with a lie.
    {.Name = "ffprobe is killed", .Probe = "kill -9 $$", .Results = First_Failed},
    {.Name = "ffprobe answers and fails",
     .Probe = "\"$REAL\" \"$@\"; echo 'tape torn' >&2; exit 1",
     .Results = First_Failed,
     .Reason = "tape torn"},
    {.Name = "ffprobe talks nonsense", .Probe = "echo '{'; exit", .Results = First_Failed},
    {.Name = "mkvmerge is killed", .Merge = "kill -9 $$", .Results = First_Failed, .Reason = "SIGKILL"},
    {.Name = "mkvmerge fails", .Merge = "echo 'Error: no ink'; exit 2", .Results = First_Failed, .Reason = "ink"},
    {.Name = "mkvmerge warns", .After = "echo 'Warning: thin ice'; exit 1", .Results = Both_Done, .Reason = "thin ice"},
    {.Name = "mkvmerge writes nothing", .Merge = "exit 0", .Results = First_Failed},
    {.Name = "a cut output",
     .After = "truncate -s 2000 $(echo \"$@\" | grep -o 'target/.v[^ ]*')",
     .Results = First_Failed,
     .Reason = "bytes"},
    {.Name = "mkvmerge takes no track", .Merge = "\"$REAL\" \"$@\" >/dev/null; exit 0", .Results = First_Failed},
    {.Name = "mkvmerge leaves the sound out",
     .Merge = "\"$REAL\" \"$@\" --no-audio | grep -v 'track 1'; exit 0",
     .Results = Both_Done,
     .Reason = "track 1"},
    {.Name = "mkvmerge meets a limit of size", .Merge = "ulimit -f 1", .Results = First_Failed},
    {.Name = "mkvmerge can't be started", .Merge = "#gone", .Results = Both_Failed, .Reason = "start"},
    {.Name = "no tool can be started again and again",
     .Before = "cp videos/b.mkv videos/c.mkv; cp videos/b.mkv videos/d.mkv",
     .Merge = "#gone",
     .Results = "a.mkv failed, b.mkv failed, c.mkv failed, d.mkv not run",
     .One_By_One = true},
    // The disk.
    {.Name = "no room for the note", .Calls = "fsync:0:28", .Results = Both_Failed, .Reason = "No space left"},
    {.Name = "no room for the folder", .Calls = "mkdir:0:28", .Results = Both_Failed, .Reason = "No space left"},
    {.Name = "the output isn't synced", .Calls = "fsync:4:5", .Results = First_Failed, .Reason = "Input/output"},
    {.Name = "no room for the journal", .Calls = "write:0:28", .Results = Both_Done, .Reason = "journal"},
    {.Name = "no room for the outputs", .Before = "echo 1000 > room", .Results = Both_Failed, .Reason = "are free"},
    {.Name = "no call that never replaces", .Calls = "renameat2:0:22", .Results = Both_Done},
    {.Name = "nor any links", .Calls = "renameat2:0:22,link:0:1", .Results = Both_Done, .Reason = "can't refuse"},
    {.Name = "the name is refused", .Calls = "renameat2:1:36", .Results = First_Failed, .Reason = "File name too long"},
    {.Name = "the trash refuses",
     .Before = "mkdir -p trash; rm -rf trash/Trash; echo > trash/Trash; cp videos/b.mkv target/a.mkv",
     .Results = Both_Done,
     .Reason = "trash refused the old output, which stays as \"a (old 1).mkv\"",
     .Target = "a (old 1).mkv|a.mkv|b.mkv",
     .Videos = "a.mkv|b.mkv"},
    {.Name = "an unreadable source", .Calls = "open:0:13", .Results = First_Failed, .Reason = "Permission denied"},
    {.Name = "a source that fails half-way",
     .Merge = "export TORN=/videos/a.mkv",
     .Calls = "none:0:0",
     .Results = Both_Done,
     .Reason = "Input/output error",
     .Videos = "a.mkv"},
    // Others are at work.
    {.Name = "the source grows", .After = "echo more >> videos/a.mkv", .Results = Both_Done, .Reason = "changed"},
    {.Name = "the source replaced", .After = "sed -i '' videos/a.mkv", .Results = Both_Done, .Reason = "changed"},
    {.Name = "the source is taken away", .After = "mv videos/a.mkv kept", .Results = Both_Done, .Reason = "taken away"},
    {.Name = "the output appears meanwhile",
     .After = "cp videos/b.mkv target/a.mkv",
     .Results = First_Failed,
     .Reason = "made meanwhile",
     .Target = "a.mkv b.mkv"},
    {.Name = "the old output changes meanwhile",
     .Before = "cp videos/b.mkv target/a.mkv",
     .After = "touch -d 2001-01-01 target/a.mkv",
     .Results = First_Failed,
     .Reason = "changed meanwhile",
     .Target = "a.mkv b.mkv"},
    {.Name = "a second run on the same folders",
     .Merge = "[ -e inner ] || { touch inner; \"$BATCH\" --app-folder app --videos videos --target target --set "
              "'Extensions/Careful Batch=On' >/dev/null 2>&1; }",
     .Results = Both_Failed,
     .Reason = "made meanwhile",
     .Target = "a.mkv b.mkv",
     .One_By_One = true},
    // What stands there.
    {.Name = "an old output", .Before = "cp videos/b.mkv target/a.mkv", .Results = Both_Done},
    {.Name = "an old output stays",
     .Before = "cp videos/b.mkv target/a.mkv",
     .Results = "a.mkv skipped, b.mkv done",
     .Reason = "there already",
     .Target = "a.mkv b.mkv",
     .More = "--set \"Extensions/If The Output Exists=Skip\""},
    {.Name = "an old output beside the new",
     .Before = "cp videos/b.mkv target/a.mkv; cp videos/b.mkv videos/a.mp4",
     .Results = "a.mkv done, a.mp4 done, b.mkv done",
     .Target = "a (1).mkv|a (2).mkv|a.mkv|b.mkv",
     .More = "--set \"Extensions/If The Output Exists=Number\""},
    {.Name = "an old output that the new can't follow",
     .Before = "cp videos/b.mkv target/a.mkv",
     .Calls = "renameat2:2:5",
     .Results = First_Failed,
     .Reason = "Input/output error",
     .Target = "a.mkv b.mkv"},
    {.Name = "a link elsewhere", .Before = "cp videos/b.mkv c; ln -s ../c target/a.mkv", .Results = Both_Done},
    {.Name = "a link to the source", .Before = "ln -s ../videos/a.mkv target/a.mkv", .Results = Both_Done},
    {.Name = "a second name of the source",
     .Before = "ln videos/a.mkv target/a.mkv",
     .Results = First_Failed,
     .Reason = "is the source itself",
     .Target = "a.mkv b.mkv"},
    {.Name = "a folder in the output's place",
     .Before = "mkdir target/a.mkv",
     .Results = First_Failed,
     .Reason = "is no file",
     .Target = "a.mkv b.mkv"},
    {.Name = "two videos with one output",
     .Before = "cp videos/b.mkv videos/a.mp4",
     .Results = "a.mkv done, a.mp4 failed, b.mkv done"},
    {.Name = "entries that are no files",
     .Before = "mkdir videos/c.mkv; mkfifo videos/d.mkv; ln -s nowhere videos/e.mkv; echo > videos/f.mkv; "
               "cp videos/b.mkv videos/g.mp4",
     .Probe = "mv videos/g.mp4 gone",
     .Results = "a.mkv done, b.mkv done, c.mkv skipped, d.mkv skipped, e.mkv failed, f.mkv failed, g.mp4 failed",
     .One_By_One = true},
    {.Name = "a listing breaks off", .Calls = "readdir:0:5", .Results = Both_Done, .Told = "to its end"},
    {.Name = "torn journal", .Before = "printf '{\"ev' > app/Vantorra_Journal-$HOST.jsonl", .Results = Both_Done},
    {.Name = "names that are ours",
     .Before = "cp videos/b.mkv videos/.vantorra-c.mkv; cp videos/b.mkv target/.vantorra-d.mkv",
     .Results = Both_Done,
     .Target = ".vantorra-d.mkv|a.mkv|b.mkv",
     .Videos = ".vantorra-c.mkv"},
    {.Name = "a name with a warning in it",
     .Before = "mv videos/a.mkv 'videos/a\nWarning: none.mkv'",
     .Results = "a\nWarning: none.mkv done, b.mkv done",
     .Videos = "."},
    {.Name = "names that mean something to mkvmerge",
     .Before = "mv videos/a.mkv 'videos/@a%d --x.mkv'",
     .Results = "@a%d --x.mkv done, b.mkv done"},
    {.Name = "halt",
     .Merge = "kill -2 $PPID;sleep 5",
     .Results = "a.mkv not run, b.mkv not run",
     .Reason = "halt",
     .One_By_One = true},
    // Companions.
    {.Name = "a companion goes with its video",
     .Before = "mv c.srt videos/a_Track1.srt",
     .Results = Both_Done,
     .More = With_Companions,
     .Videos = "."},
    {.Name = "a companion that a failed video would use",
     .Before = "mv c.srt 'videos/a_Track b.srt'; echo > videos/b.mkv",
     .Results = "a.mkv done, b.mkv failed",
     .More = With_Companions,
     .Videos = "a_Track b.srt|b.mkv"},
    {.Name = "a companion that was changed meanwhile",
     .Before = "mv c.srt videos/a_Track1.srt",
     .After = "echo >> videos/a_Track1.srt",
     .Results = Both_Done,
     .Told = "\"a_Track1.srt\" stays: it was changed meanwhile",
     .More = With_Companions,
     .Videos = "a_Track1.srt"},
    {.Name = "a companion that no tool can read",
     .Before = "echo nonsense > videos/a_Track1.mp3",
     .Results = First_Failed,
     .Reason = "a_Track1.mp3",
     .More = With_Companions,
     .Videos = "a.mkv|a_Track1.mp3"},
    {.Name = "a companion of a similar name",
     .Before = "mv videos/b.mkv videos/aa.mkv; mv c.srt videos/aa.srt",
     .Results = "a.mkv done, aa.mkv done",
     .Reason = "Sensible Names And Sizes",
     .More = With_Companions,
     .Videos = "a.mkv|aa.srt"},
    {.Name = "a broken option file",
     .Before = "mv c.srt videos/a_Track1.srt; echo Language= > videos/a_Track1.srt.opt",
     .Results = First_Failed,
     .Reason = "a_Track1.srt.opt",
     .More = With_Options,
     .Videos = "a.mkv|a_Track1.srt|a_Track1.srt.opt"},
    {.Name = "a companion whose name is no text",
     .Before = "mv c.srt \"videos/a$(printf '\\377').srt\"",
     .After = "rm videos/*.srt",
     .Results = Both_Done,
     .Reason = "isn't valid UTF-8",
     .More = With_Companions,
     .Videos = "a.mkv"},
    {.Name = "a folder of companions that is gone",
     .Results = Both_Failed,
     .Reason = "the folder of the subtitle files isn't there",
     .More = "--tick AddSubs --set \"Subtitles/Alternate Subtitle File Path=On\""},
    {.Name = "a folder of attachments that is gone",
     .Results = Both_Failed,
     .Reason = "the folder of the attachments, \"/nowhere/\", can't be read",
     .More = "--set \"Paths/Attachments Path=/nowhere/\" --set \"Other Options/Add Attachments=On\""},
    {.Name = "chapter names that are no XML",
     .Before = "echo '00:00:00.000 A<B & C &amp; D' > videos/a_Chapters.txt",
     .Results = Both_Done,
     .More = "--tick ReplaceChapters --tick ConvertTXT",
     .Videos = "a_Chapters.txt"},
    // Splitting: nothing is trashed but old pieces.
    {.Name = "a piece that is missing",
     .Before = "ffmpeg -v error -f lavfi -i testsrc=d=603:s=64x48:r=1 -g 5 -y videos/a.mkv",
     .After = "rm $(echo \"$@\" | grep -o 'target/.v[^/]*')/output-002.mkv",
     .Results = Both_Done,
     .Reason = "the pieces are",
     .Target = "a-001.mkv b-001.mkv",
     .More = "--tick SplitVideos --set \"Other Options/Split multiple video files (minutes)=10\""},
    {.Name = "old pieces",
     .Before = "cp videos/b.mkv target/a-001.mkv; cp videos/b.mkv target/a-007.mkv",
     .Results = Both_Done,
     .Target = "a-001.mkv b-001.mkv",
     .More = "--tick SplitVideos"},
    {.Name = "old pieces that the new can't follow",
     .Before = "cp videos/b.mkv target/a-001.mkv; cp videos/b.mkv target/a-007.mkv",
     .Calls = "renameat2:3:5",
     .Results = First_Failed,
     .Target = "a-001.mkv a-007.mkv b-001.mkv",
     .More = "--tick SplitVideos"},
};

QByteArray Hash_Of(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QCryptographicHash::hash(file.readAll(), QCryptographicHash::Sha1)
                                          : QByteArray();
}

/// The program over its folders, with what a row puts in the places of the tools.
struct Fault_Run : Batch_Process
{
    QMap<QString, QByteArray> Sources; ///< name to content, before
    QSet<QByteArray> Old;              ///< contents that stood in the target before

    int Jobs;

    Fault_Run(const Fault& fault, int jobs) : Jobs(jobs)
    {
        for (const QString& name : {u"a.mkv"_s, u"b.mkv"_s})
            Place(*this, name == u"a.mkv"_s ? Short_Video() : Rich_Video(), u"videos/"_s + name);
        Write(u"c.srt"_s, "1\n00:00:00,000 --> 00:00:00,200\nHello\n");
        Shell(fault.Before);
        for (const QFileInfo& file :
             QDir(Path(u"videos"_s)).entryInfoList(QDir::Files | QDir::System | QDir::Dirs | QDir::NoDotAndDotDot))
            Sources.insert(file.fileName(), file.isFile() ? Hash_Of(file.filePath()) : QByteArray());
        for (const QFileInfo& file : QDir(Path(u"target"_s)).entryInfoList(QDir::Files))
            Old.insert(Hash_Of(file.filePath()));
        Set_Tools(&fault);
        Set_Environment(u"BATCH"_s, QStringLiteral(VANTORRA_BATCH_PROGRAM));
        if (*fault.Calls != 0 || QFile::exists(Path(u"room"_s))) {
            Set_Environment(u"LD_PRELOAD"_s, QStringLiteral(VANTORRA_FAULT_SHIM));
            Set_Environment(u"ASAN_OPTIONS"_s, u"verify_asan_link_order=0:detect_leaks=0"_s);
            Set_Environment(u"FAULT"_s, QString::fromLatin1(fault.Calls));
            Set_Environment(u"ROOM"_s, QString::fromLatin1(Read(u"room"_s).trimmed()));
        }
    }

    void Shell(const char* script) const
    {
        QProcess shell;
        shell.setWorkingDirectory(Path());
        shell.start(u"/bin/sh"_s, {u"-c"_s, u"HOST=$(uname -n);"_s + QString::fromLatin1(script)});
        shell.waitForFinished();
    }

    void Tool(const QString& name, const QString& place, const QByteArray& before, const QByteArray& after) const
    {
        Write_Stand_In(*this, place,
                       "REAL=" + Tool_In_Path(name).toUtf8() + "\ncd " + Path().toUtf8() +
                           "\ncase \"$1\" in -V|--version|-J|--identif*|-version) exec \"$REAL\" \"$@\";; esac\n"
                           "case \"$*\" in */videos/a.mkv*) " +
                           before + "\n\"$REAL\" \"$@\"\n" + after + "\nexit;; esac\nexec \"$REAL\" \"$@\"\n");
    }

    /// The real tools with the scripts of a fault, or without any.
    void Set_Tools(const Fault* fault = nullptr) const
    {
        Tool(u"ffprobe"_s, u"app/ffprobe"_s, fault ? fault->Probe : "", "");
        Tool(u"mkvmerge"_s, u"tools/mkvmerge"_s, fault ? fault->Merge : "", fault ? fault->After : "");
    }

    Batch_Result Run_It(const char* more = "")
    {
        return Run(u"--json --careful --jobs %1 --tick DeleteVideoAP --set \"Menu/Log Verbosity=1\" "
                   "--set \"Paths/System mkvmerge.exe Path=%2\" %3"_s.arg(
                       QString::number(Jobs), Path(u"tools/mkvmerge"_s), QString::fromLatin1(more)));
    }

    /// No final name that isn't whole, and no source gone without an output that is.
    void Expect_Nothing_Lost() const
    {
        const QDir target(Path(u"target"_s));
        for (const QFileInfo& file : target.entryInfoList(QDir::Files | QDir::Hidden))
            if (!Old.contains(Hash_Of(file.filePath()))) {
                const auto head = Read_Ebml_Head(file.filePath());
                EXPECT_TRUE(head && head->Segment_End == static_cast<std::uint64_t>(file.size()))
                    << file.fileName().toStdString();
            }
        for (auto source = Sources.begin(); source != Sources.end(); ++source) {
            const QString output = QFileInfo(source.key()).completeBaseName() + u".mkv"_s;
            const QFileInfo there(Path(u"videos/"_s + source.key()));
            const bool trashed = !source.key().endsWith(u".mkv"_s) && Is_Somewhere(source.value());
            EXPECT_TRUE(there.exists() || there.isSymLink() || target.exists(output) || trashed)
                << source.key().toStdString();
        }
        for (const QByteArray& old : Old)
            EXPECT_TRUE(Is_Somewhere(old)) << "an old output is lost";
    }

    QByteArray Journal() const
    {
        QByteArray journal;
        for (const QString& name : Names_In(u"app"_s).filter(u"Vantorra_Journal"_s))
            journal += Read(u"app/"_s + name);
        return journal;
    }

    /// Each video that was there has a result in the journal, of the killed run or of the one behind it.
    void Expect_Each_Noted() const
    {
        const QByteArray journal = Journal();
        for (const QString& source : Sources.keys())
            EXPECT_TRUE(QRegularExpression(u"\"source\":\"[^\"]*/%1\",\"status\":\"done\""_s.arg(source))
                            .match(QString::fromUtf8(journal))
                            .hasMatch())
                << source.toStdString() << " in " << journal.constData();
    }

    bool Is_Somewhere(const QByteArray& content) const
    {
        for (const QString& folder : {u"target"_s, u"trash/Trash/files"_s, u""_s})
            for (const QFileInfo& file : QDir(Path(folder)).entryInfoList(QDir::Files | QDir::Hidden))
                if (Hash_Of(file.filePath()) == content)
                    return true;
        return false;
    }
};

/// The results in the order of the walk.
QList<QJsonObject> In_Order(const Batch_Result& result)
{
    const QStringList walk = result.Values(u"file"_s, u"source"_s);
    QList<QJsonObject> results = result.Events(u"result"_s);
    std::stable_sort(results.begin(), results.end(), [&walk](const QJsonObject& one, const QJsonObject& other) {
        const auto place = [&walk](const QJsonObject& event) {
            return static_cast<std::size_t>(walk.indexOf(event[u"source"_s].toString())); // not begun: behind all
        };
        return place(one) < place(other);
    });
    return results;
}

/// "a.mkv done, b.mkv failed": one for each entry, in order.
QString Results_Of(const Batch_Result& result)
{
    QStringList words;
    for (const QJsonObject& event : In_Order(result))
        words += event[u"source"_s].toString().section(u'/', -1) + u' ' + event[u"status"_s].toString();
    return words.join(u", ");
}

/// 2 if a video failed or its source, which was to go, stays for a warning, which standard error tells.
int Expected_Exit(const Batch_Result& result)
{
    int exit = 0;
    for (const QJsonObject& event : result.Events(u"result"_s)) {
        const QStringList warnings = event[u"warnings"_s].toVariant().toStringList();
        const QString status = event[u"status"_s].toString();
        if (status == u"not run"_s && event[u"reason"_s] == u"the run was halted"_s)
            return 130;
        if (status == u"failed"_s || (!warnings.isEmpty() && !event.contains(u"pieces"_s)))
            exit = 2;
        EXPECT_TRUE(!event.contains(u"pieces"_s) || event[u"output"_s] == event[u"pieces"_s][0]);
        for (const QString& told : warnings + QStringList{event[u"reason"_s].toString()})
            EXPECT_TRUE(result.Err.contains(told) || status == u"not run"_s) << told.toStdString();
    }
    return exit;
}

void Expect_Row(const Fault& fault, const Fault_Run& run, const Batch_Result& result)
{
    EXPECT_EQ(Results_Of(result), QString::fromLatin1(fault.Results)) << result.Err.toStdString();
    const QJsonObject first = In_Order(result).value(0);
    const QString said = first[u"reason"_s].toString() + first[u"warnings"_s].toVariant().toStringList().join(u' ');
    EXPECT_TRUE(said.contains(QString::fromLatin1(fault.Reason))) << said.toStdString();
    // A full disk leaves no log or no journal.
    const QByteArray in_json = QByteArray(fault.Reason).replace('"', "\\\"");
    EXPECT_TRUE(run.Journal().contains(in_json) || *fault.Reason == 'j') << run.Journal().constData();
    EXPECT_TRUE(result.Err.contains(QString::fromLatin1(fault.Told))) << result.Err.toStdString();
    if (result.Err.contains(u"Writing the process log"_s)) {
        EXPECT_EQ(result.Exit, 70);
    } else {
        const QByteArray log = run.Read(u"app/Vantorra_Process.log"_s);
        EXPECT_TRUE(log.contains(fault.Reason)) << log.constData();
        EXPECT_EQ(log.contains("*** the run stopped"), QByteArrayView(fault.Results).contains("d.mkv not run"));
        EXPECT_EQ(result.Exit, Expected_Exit(result)) << result.Err.toStdString();
    }
    const QString left = QString::fromLatin1(fault.Videos);
    if (!left.isEmpty()) {
        EXPECT_EQ(run.Names_In(u"videos"_s).join(u'|'), left == "."_L1 ? QString() : left);
    }
    if (QLatin1StringView(fault.Target).isEmpty())
        return;
    const QString names = run.Names_In(u"target"_s).join(u'|');
    EXPECT_TRUE(names == QLatin1StringView(fault.Target) ||
                names == QString::fromLatin1(fault.Target).replace(u' ', u'|'))
        << names.toStdString();
}

/// How many videos a row has at once. All rows take minutes, so that the build with AddressSanitizer takes one by one,
/// and each other several where the row holds in whatever order things are done.
int Jobs_Of(const Fault& fault)
{
#if defined(NDEBUG) || defined(__SANITIZE_THREAD__)
    constexpr int several = 8;
#else
    constexpr int several = 1;
#endif
    const QByteArrayView calls = fault.Calls;
    const bool in_any_order = calls.isEmpty() || calls.contains(":0:") || calls.endsWith("kill");
    return in_any_order && !fault.One_By_One ? several : 1;
}

} // namespace

struct CarefulFaults : testing::TestWithParam<Fault>
{};

TEST_P(CarefulFaults, NothingIsLostHalfWrittenOrPassedOver)
{
    const Fault& fault = GetParam();
    const bool is_gone = QLatin1StringView(fault.Merge) == "#gone"_L1;
    if (is_gone && !Failed_Starts_Are_Told)
        GTEST_SKIP();
    Fault_Run run(fault, Jobs_Of(fault));
    if (is_gone)
        run.Write(u"tools/mkvmerge"_s, "#!/nowhere\n");
    Batch_Result result = run.Run_It(fault.More);
    run.Expect_Nothing_Lost();
    if (*fault.Results == 0) {
        EXPECT_EQ(result.Exit, -9);
        run.Set_Tools();
        run.Set_Environment(u"FAULT"_s, {});
        result = run.Run_It();
        run.Expect_Nothing_Lost();
        for (const QString& status : result.Values(u"result"_s, u"status"_s))
            EXPECT_EQ(status, u"done"_s);
        run.Expect_Each_Noted();
        QStringList names = run.Names_In(u"target"_s);
        names.removeAll(u"a (old 1).mkv"_s); // it had made way already
        EXPECT_EQ(names, (QStringList{u"a.mkv"_s, u"b.mkv"_s})) << result.Err.toStdString();
    } else {
        Expect_Row(fault, run, result);
    }
    EXPECT_TRUE(QDir(run.Path(u"target"_s)).entryList({u".vantorra-*"_s}, QDir::Dirs | QDir::Hidden).isEmpty());
    EXPECT_EQ(run.Names_In(u"app/Vantorra_Working"_s), QStringList());
}

static std::string Row_Name(const testing::TestParamInfo<Fault>& row)
{
    std::string name;
    for (const char letter : std::string(row.param.Name))
        name += std::isalnum(static_cast<unsigned char>(letter)) != 0 ? letter : '_';
    return name;
}

INSTANTIATE_TEST_SUITE_P(Table, CarefulFaults, testing::ValuesIn(Faults), Row_Name);
