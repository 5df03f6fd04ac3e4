#include "end_to_end/careful_faults.h"

#include "common/media.h"
#include "common/stand_in_tool.h"
#include "inspect/ebml_head.h"
#include "support/paths.h"
#include "support/platform_names.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

namespace {

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
        Set_Environment(u"KILL_IT"_s, QString::fromLatin1(Kill_It));
        Set_Environment(u"HALT_IT"_s, QString::fromLatin1(Halt_It));
        if (*fault.Calls != 0 || QFile::exists(Path(u"room"_s))) {
            Set_Environment(u"LD_PRELOAD"_s, QStringLiteral(VANTORRA_FAULT_SHIM));
            Set_Environment(u"ASAN_OPTIONS"_s, u"verify_asan_link_order=0:detect_leaks=0"_s);
            Set_Environment(u"FAULT"_s, QString::fromLatin1(fault.Calls));
            Set_Environment(u"ROOM"_s, QString::fromLatin1(Read(u"room"_s).trimmed()));
        }
    }

    void Shell(const QByteArray& script) const
    {
        QProcess shell;
        shell.start(Write_Stand_In(*this, u"shell/shell"_s,
                                   "HOST=$(uname -n)\ncd '" + Path_In_Script(Path()) + "'\n" + script + "\n"),
                    QStringList());
        shell.waitForFinished();
    }

    void Tool(const QString& name, const QString& place, const QByteArray& before, const QByteArray& after) const
    {
        Write_Stand_In(*this, place,
                       "REAL=" + Tool_In_Script(name) + "\ncd " + Path_In_Script(Path()) +
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
        Start(QProcess::splitCommand(
            u"--json --careful --jobs %1 --tick DeleteVideoAP --set \"Menu/Log Verbosity=1\" "
            "--set \"Paths/System mkvmerge.exe Path=%2\" %3"_s.arg(
                QString::number(Jobs), Path(Executable_Name(u"tools/mkvmerge"_s)), QString::fromLatin1(more))));
        Do_As_The_Script_Asks(*this);
        return Finish();
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
            EXPECT_TRUE(QRegularExpression(u"\"source\":\"[^\"]*[/\\\\]%1\",\"status\":\"done\""_s.arg(source))
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
        words += File_Name_Of(event[u"source"_s].toString()) + u' ' + event[u"status"_s].toString();
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

TEST_P(CarefulFaults, NothingIsLostHalfWrittenOrPassedOver)
{
    const Fault& fault = GetParam();
    const bool is_gone = QLatin1StringView(fault.Merge) == "#gone"_L1;
    if (is_gone && !Failed_Starts_Are_Told)
        GTEST_SKIP();
    Fault_Run run(fault, Jobs_Of(fault));
    if (is_gone)
        Spoil(run.Path(Executable_Name(u"tools/mkvmerge"_s)));
    Batch_Result result = run.Run_It(fault.More);
    run.Expect_Nothing_Lost();
    if (*fault.Results == 0) {
        EXPECT_LT(result.Exit, 0);
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

std::string Row_Name(const testing::TestParamInfo<Fault>& row)
{
    std::string name;
    for (const char letter : std::string(row.param.Name))
        name += std::isalnum(static_cast<unsigned char>(letter)) != 0 ? letter : '_';
    return name;
}
