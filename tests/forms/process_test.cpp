#include "common/test_program.h"

#include <QElapsedTimer>
#include <QProcess>
#include <csignal>
#include <gtest/gtest.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

/// The program itself, on a screen that nobody sees.
struct Window_Process : testing::Test
{
    Test_Program Files;

    void Start(QProcess& process) const
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
        environment.insert(u"VANTORRA_HOME"_s, Files.Path(u"home"_s));
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(VANTORRA_PROGRAM), {});
    }

    /// The window is up once the settings file and the lock are there and the event loop turns.
    bool Came_Up() const
    {
        QElapsedTimer clock;
        clock.start();
        while (!QFile::exists(Files.Path(u"home/ffprobe"_s)) && clock.elapsed() < 20'000)
            Wait(20);
        Wait(1500);
        return QFile::exists(Files.Path(u"home/Vantorra.ini"_s));
    }

    static void Wait(int milliseconds) { usleep(static_cast<useconds_t>(milliseconds) * 1000); }
};

TEST_F(Window_Process, ASignalToGoSavesTheSettings)
{
    QProcess first;
    Start(first);
    ASSERT_TRUE(first.waitForStarted());
    ASSERT_TRUE(Came_Up());

    QFile::remove(Files.Path(u"home/Vantorra.ini"_s));
    ::kill(static_cast<pid_t>(first.processId()), SIGTERM);
    ASSERT_TRUE(first.waitForFinished(20'000));
    EXPECT_EQ(first.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(first.exitCode(), 0);
    EXPECT_TRUE(Files.Read(u"home/Vantorra.ini"_s).contains("Save Settings on Exit=True"));
}
