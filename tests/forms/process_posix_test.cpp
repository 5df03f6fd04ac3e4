#include "common/test_program.h"

#include <QProcess>
#include <csignal>
#include <unistd.h>

/// The program itself, on a screen that nobody sees.
TEST(Window_Process, ASignalToGoSavesTheSettings)
{
    const Test_Program files;
    const auto wait = [](int milliseconds) { ::usleep(static_cast<useconds_t>(milliseconds) * 1000); };
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
    environment.insert(u"VANTORRA_HOME"_s, files.Path(u"home"_s));
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(VANTORRA_PROGRAM), {});
    ASSERT_TRUE(process.waitForStarted());
    // The window is up once the settings file and the lock are there and the event loop turns.
    for (int i = 0; !QFile::exists(files.Path(u"home/ffprobe"_s)) && i < 1000; ++i)
        wait(20);
    wait(1500);
    ASSERT_TRUE(QFile::remove(files.Path(u"home/Vantorra.ini"_s)));
    ::kill(static_cast<pid_t>(process.processId()), SIGTERM);
    ASSERT_TRUE(process.waitForFinished(20'000));
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(process.exitCode(), 0);
    EXPECT_TRUE(files.Read(u"home/Vantorra.ini"_s).contains("Save Settings on Exit=True"));
}
