#include "common/media.h"
#include "common/stand_in_tool.h"
#include "end_to_end/batch_process.h"

#include <QElapsedTimer>
#include <QFile>
#include <csignal>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

/// The children that run a program of their own by now: one that was stopped before that would hold its parent up.
static QList<long> Children_At_Work(long process)
{
    QList<long> children = Children_Of(process);
    const QString parents = QFile::symLinkTarget(u"/proc/%1/exe"_s.arg(process));
    children.removeIf([&](long child) { return QFile::symLinkTarget(u"/proc/%1/exe"_s.arg(child)) == parents; });
    return children;
}

TEST(Vantorra_Batch, WhatADryRunPrintsIsWhatAShellCanRun)
{
    Batch_Process batch;
    Place(batch, Short_Video(), u"videos/it's \"$HOME\" `now`.mkv"_s);
    const Batch_Result result = batch.Run({u"--dry-run"_s});
    ASSERT_EQ(result.Exit, 0) << result.Err.toStdString();
    QProcess shell;
    shell.start(u"/bin/sh"_s, {u"-c"_s, result.Out});
    ASSERT_TRUE(shell.waitForFinished());
    EXPECT_EQ(shell.exitCode(), 0) << shell.readAllStandardOutput().constData();
    EXPECT_EQ(batch.Names_In(u"target"_s), QStringList{u"it's \"$HOME\" `now`.mkv"_s});
}

TEST(Vantorra_Batch, AnyLocaleAndAnyNameWillDo)
{
    const QStringList accented{u"Café"_s};
    // 251 letters and the extension are the longest that a file system takes.
    const QStringList hostile{u"Été 漢字 😀"_s, u" two  blanks "_s, u"it's \"quoted\""_s, u"$(id) %s; ,"_s,  u"-dash"_s,
                              u"--output"_s,   u"@file"_s,         u"line\nbreak"_s,     QString(251, u'x')};
    for (const auto& [locale, names] :
         {std::pair(u"C"_s, hostile), std::pair(QString(), accented), std::pair(u"de_DE.ISO-8859-1"_s, accented)}) {
        SCOPED_TRACE(locale.toStdString());
        Batch_Process batch;
        for (const QString& variable : {u"LC_ALL"_s, u"LANG"_s, u"LC_CTYPE"_s})
            batch.Set_Environment(variable, locale);
        for (const QString& name : names)
            Place(batch, Short_Video(), u"videos/"_s + name + u".mkv"_s);
        const Batch_Result result = batch.Run({u"--json"_s});
        EXPECT_EQ(result.Exit, 0) << result.Err.toStdString();
        EXPECT_TRUE(result.Err.isEmpty()) << result.Err.toStdString();
        for (const QString& name : names)
            EXPECT_EQ(Tracks_Of(batch.Path(u"target/"_s + name + u".mkv"_s)).size(), 2) << name.toStdString();
    }
}

TEST(Vantorra_Batch, ANameThatIsNoUnicodeFailsAloneAndIsNotPassedOver)
{
    Batch_Process batch;
    Place(batch, Short_Video(), u"videos/good.mkv"_s);
    const QByteArray bad = QFile::encodeName(batch.Path(u"videos/"_s)) + "bad\xff.mkv";
    ASSERT_EQ(::rename(QFile::encodeName(Place(batch, Short_Video(), u"videos/x.mkv"_s)).constData(), bad.constData()),
              0);
    const Batch_Result result = batch.Run({u"--json"_s});
    EXPECT_EQ(result.Exit, 2);
    QStringList statuses = result.Values(u"result"_s, u"status"_s);
    statuses.sort();
    EXPECT_EQ(statuses, (QStringList{u"done"_s, u"failed"_s}));
    EXPECT_EQ(Tracks_Of(batch.Path(u"target/good.mkv"_s)).size(), 2);
    // Qt, which clears the folder away, doesn't see such a name.
    ::unlink(bad.constData());
}

/// A mkvmerge that comes first in the batch's PATH; it knows its version unless it does `ahead`.
static void Put_Mkvmerge_Ahead(Batch_Process& batch, const QByteArray& ahead)
{
    Write_Stand_In(batch, u"tools/mkvmerge"_s,
                   ahead + "\n[ \"$1\" = -V ] && echo \"mkvmerge v74.0.0 ('A name') 64-bit\" || exec sleep 1000\n");
    batch.Set_Environment(u"PATH"_s, batch.Path(u"tools:"_s) + qEnvironmentVariable("PATH"));
}

TEST(Vantorra_Batch, EverySignalEndsTheChildAtOnceWhateverTheParentDidToSignals)
{
    for (const int signal_number : {SIGINT, SIGTERM, SIGQUIT, SIGUSR1, SIGHUP, SIGKILL}) {
        SCOPED_TRACE(signal_number);
        Batch_Process batch;
        for (const QString& name : {u"a"_s, u"b"_s, u"c"_s})
            Place(batch, Short_Video(), u"videos/%1.mkv"_s.arg(name));
        Put_Mkvmerge_Ahead(batch,
                           "case \"$*\" in */a.mkv*) exec " + Tool_In_Path(u"mkvmerge"_s).toUtf8() + " \"$@\";; esac");
        batch.Process.start(u"env"_s, QStringList{u"--block-signal"_s, u"--ignore-signal=CHLD"_s,
                                                  QStringLiteral(VANTORRA_BATCH_PROGRAM), u"--json"_s, u"--classic"_s,
                                                  u"--app-folder"_s, batch.Path(u"app"_s), batch.Path(u"videos"_s),
                                                  batch.Path(u"target"_s)});
        ASSERT_TRUE(batch.Read_Until("\"event\":\"command\",\"source\":\"" + batch.Path(u"videos/b.mkv"_s).toUtf8()));
        QElapsedTimer clock;
        clock.start();
        QList<long> children;
        while (children.isEmpty() && clock.elapsed() < 20'000)
            children = Children_At_Work(batch.Process.processId());
        ASSERT_EQ(children.size(), 1);
        clock.start();
        ASSERT_EQ(::kill(static_cast<pid_t>(batch.Process.processId()), signal_number), 0);
        const Batch_Result result = batch.Finish();
        EXPECT_LT(clock.elapsed(), 2000);
        for (clock.start(); Is_Running(children[0]) && clock.elapsed() < 5000;)
            ::usleep(10'000);
        EXPECT_FALSE(Is_Running(children[0]));
        EXPECT_EQ(Tracks_Of(batch.Path(u"target/a.mkv"_s)).size(), 2) << "what was done before stays";
        EXPECT_EQ(result.Exit, signal_number == SIGKILL ? -SIGKILL : 130) << result.Err.toStdString();
        if (signal_number == SIGKILL)
            continue;
        const QJsonObject finished = result.Events(u"finished"_s).constLast();
        EXPECT_EQ(finished[u"status"_s].toString(), u"interrupted"_s);
        EXPECT_EQ(finished[u"done"_s].toInt(), 1);
        EXPECT_EQ(result.Values(u"result"_s, u"reason"_s).constLast(), u"the run was halted"_s);
        EXPECT_EQ(result.Values(u"result"_s, u"status"_s), (QStringList{u"done"_s, u"not run"_s}));
        EXPECT_TRUE(batch.Read(u"app/Vantorra_Process.log"_s).contains("*** Process halted before finishing!"));
    }
}

TEST(Vantorra_Batch, IdentifyAndSettingsPrintNoHalfTextWhenTheyAreHalted)
{
    const std::pair<QStringList, QByteArray> claims[] = {
        {{u"settings"_s}, "kill -TERM $PPID; exec sleep 1000"},
        {{u"identify"_s, u"/some/file"_s}, "kill -TERM $PPID; exec sleep 1000"},
        {{u"identify"_s, u"/some/file"_s},
         "[ \"$1\" = -V ] || { echo '{ \"half\":'; kill -TERM $PPID; exec sleep 1000; }"},
    };
    for (const auto& [command, ahead] : claims) {
        Batch_Process batch;
        Put_Mkvmerge_Ahead(batch, ahead);
        batch.Start_With(command + QStringList{u"--app-folder"_s, batch.Path(u"app"_s)});
        const Batch_Result result = batch.Finish();
        EXPECT_EQ(result.Exit, 130) << command[0].toStdString();
        EXPECT_EQ(result.Out, QString()) << command[0].toStdString();
        EXPECT_EQ(result.Err, QString()) << command[0].toStdString();
    }
}

TEST(Vantorra_Batch, AStopIsObeyedThoughNobodyReadsAndManyVideosAreLeft)
{
    Batch_Process batch;
    for (int i = 0; i < 10'000; ++i)
        batch.Write(u"videos/%1.mkv"_s.arg(i));
    const QString pipe = batch.Path(u"pipe"_s);
    ::mkfifo(QFile::encodeName(pipe).constData(), S_IRUSR | S_IWUSR);
    const int unread = ::open(QFile::encodeName(pipe).constData(), O_RDWR | O_NONBLOCK);
    while (::write(unread, "x", 1) == 1) // it is full before the first word
        ;
    batch.Process.setStandardOutputFile(pipe);
    batch.Process.setStandardErrorFile(pipe);
    batch.Start({u"--careful"_s, u"--json"_s});
    QElapsedTimer clock;
    clock.start();
    while (batch.Names_In(u"app"_s).filter(u"Journal"_s).isEmpty() && clock.elapsed() < 20'000)
        ::usleep(10'000);
    clock.start();
    ::kill(static_cast<pid_t>(batch.Process.processId()), SIGTERM);
    EXPECT_TRUE(batch.Process.waitForFinished());
    EXPECT_EQ(batch.Process.exitCode(), 130);
    EXPECT_LT(clock.elapsed(), 60'000) << "and not half a second for each";
    ::close(unread);
}

TEST(Vantorra_Batch, AReaderThatGoesAwayHaltsTheRun)
{
    Batch_Process batch;
    for (int i = 0; i < 20; ++i)
        Place(batch, Short_Video(), u"videos/%1.mkv"_s.arg(i));
    QProcess shell;
    shell.setProcessEnvironment(batch.Process.processEnvironment());
    shell.start(u"/bin/bash"_s,
                {u"-c"_s, u"\"$@\" | head -n 1; exit ${PIPESTATUS[0]}"_s, u"bash"_s,
                 QStringLiteral(VANTORRA_BATCH_PROGRAM), u"--json"_s, u"--app-folder"_s, batch.Path(u"app"_s),
                 u"--videos"_s, batch.Path(u"videos"_s), u"--target"_s, batch.Path(u"target"_s)});
    ASSERT_TRUE(shell.waitForFinished(60'000));
    EXPECT_EQ(shell.exitCode(), 130);
    EXPECT_LT(batch.Names_In(u"target"_s).size(), 20);
    EXPECT_TRUE(batch.Read(u"app/Vantorra_Process.log"_s).contains("*** Process halted before finishing!"));
}
