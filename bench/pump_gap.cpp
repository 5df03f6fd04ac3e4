#include "forms/desktop.h"
#include "forms/release_button.h"
#include "rules/video_list.h"
#include "support/input.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;

/// How long the window is deaf while a run reads a child that says nothing: the longest time between two turns of the
/// event loop, in milliseconds, over three seconds of a silent mkvmerge. It needs a screen, seen or not.
int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    const QTemporaryDir root;
    const QString base = root.path() + u'/';
    for (const QString& folder : {u"app"_s, u"videos"_s, u"target"_s})
        QDir().mkpath(base + folder);
    const auto write = [&](const QString& name, const QByteArray& content) {
        QFile file(base + name);
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("%s can't be written", qPrintable(name));
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    };
    write(u"videos/one.mkv"_s, "x");
    write(u"app/ffprobe"_s, "#!/bin/sh\necho 'format|filename=one.mkv|duration=1.000000|size=1'\n");
    write(u"silent"_s, "#!/bin/sh\n[ \"$1\" = -V ] && exec echo mkvmerge\nexec sleep 3\n");

    Desktop desktop;
    Program& program = desktop.Prog;
    program.Settings.App_Folder = base + u"app/"_s;
    if (!desktop.Start(nullptr))
        return 1;
    program.Options.Path_Videos = base + u"videos/"_s;
    program.Options.Path_Target = base + u"target/"_s;
    program.Tools.System_MKVMerge_Path = base + u"silent"_s;
    program.Settings.Extensions.Careful_Batch = false; // the stand-in only stays silent
    program.Run.Kill_By_Name = false;
    Follow_Videos_Folder(program);

    QElapsedTimer since_turn;
    qint64 longest = 0;
    int turns = 0;
    QTimer turn;
    QObject::connect(&turn, &QTimer::timeout, &turn, [&] {
        if (program.Run.Run_In_Progress && since_turn.isValid()) {
            longest = std::max(longest, since_turn.nsecsElapsed());
            ++turns;
        }
        since_turn.start();
    });
    turn.start(0);
    // A question that nobody answers must not hold up whoever measures.
    QTimer::singleShot(20'000, &turn, [] {
        std::fputs("pump_gap: the run did not end\n", stderr);
        std::_Exit(1);
    });
    QTimer::singleShot(0, &desktop.Form, [&] {
        auto* button = desktop.Form.findChild<Release_Button*>(u"btn_RunVantorra"_s);
        emit button->Released_At({.Modifiers = {}, .X = 1, .Y = 1, .Width = 2, .Height = 2});
        QCoreApplication::quit();
    });
    QApplication::exec();
    std::printf("longest gap between two turns of the event loop: %.1f ms (%d turns)\n",
                static_cast<double>(longest) / 1e6, turns);
    return turns > 0 ? 0 : 1;
}
