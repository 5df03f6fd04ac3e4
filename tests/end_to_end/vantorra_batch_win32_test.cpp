#include "common/media.h"
#include "common/stand_in_tool.h"
#include "end_to_end/batch_process.h"
#include "support/long_path.h"
#include "support/windows_quoting.h"

#include <QElapsedTimer>
#include <QFile>
#include <QThread>
#include <windows.h>

/// What hangs on Windows' own names, locks and ways to end a program.

TEST(Vantorra_Batch_Windows, AnyNameThatTheSystemTakesWillDo)
{
    Batch_Process batch;
    const QStringList hostile{u"Été 漢字 😀"_s, u" two  blanks "_s, u"it's %PATH% & 'quoted' ^"_s, u"$(id) %s; , !x!"_s,
                              u"-dash"_s, u"--output"_s, u"@file"_s, u"a.b."_s,
                              // The path is longer than the 259 letters that old programs can take.
                              QString(240, u'x')};
    for (const QString& name : hostile)
        Place(batch, Short_Video(), u"videos/"_s + name + u".mkv"_s);
    const Batch_Result result = batch.Run({u"--json"_s});
    EXPECT_EQ(result.Exit, 0) << result.Err.toStdString();
    EXPECT_EQ(result.Err, QString());
    for (const QString& name : hostile)
        EXPECT_EQ(Tracks_Of(Path_For_Tool(batch.Path(u"target/"_s + name + u".mkv"_s))).size(), 2)
            << name.toStdString();
}

/// The batch's mkvmerge: real for a.mkv, else it works on for ever.
static QStringList With_Endless_Mkvmerge(const Batch_Process& batch)
{
    const QString path = Write_Stand_In(batch, u"tools/mkvmerge"_s,
                                        "case \"$*\" in */a.mkv*) exec mkvmerge \"$@\";; esac\n"
                                        "[ \"$1\" = -V ] && exec mkvmerge -V\necho $$ > ../shell\nexec sleep 1000\n");
    return {u"--json"_s, u"--set"_s, u"Paths/System mkvmerge.exe Path="_s + path};
}

TEST(Vantorra_Batch_Windows, CtrlCHaltsAndAKillTakesTheChildAlong)
{
    for (const bool kill : {false, true}) {
        SCOPED_TRACE(kill);
        Batch_Process batch;
        for (const QString& name : {u"a"_s, u"b"_s, u"c"_s})
            Place(batch, Short_Video(), u"videos/%1.mkv"_s.arg(name));
        batch.Process.setWorkingDirectory(batch.Path(u"app"_s));
        batch.Start(With_Endless_Mkvmerge(batch));
        QElapsedTimer clock;
        clock.start();
        while (batch.Read(u"shell"_s).isEmpty() && clock.elapsed() < 60'000)
            QThread::msleep(20);
        const long shell = batch.Read(u"shell"_s).toLong();
        ASSERT_TRUE(Is_Running_In_Script(shell));
        clock.start();
        if (kill)
            batch.Process.kill();
        else
            Ask_To_Halt(batch.Process);
        const Batch_Result result = batch.Finish();
        EXPECT_LT(clock.elapsed(), 5000);
        for (clock.start(); Is_Running_In_Script(shell) && clock.elapsed() < 5000;)
            QThread::msleep(10);
        EXPECT_FALSE(Is_Running_In_Script(shell));
        EXPECT_EQ(Tracks_Of(batch.Path(u"target/a.mkv"_s)).size(), 2) << "what was done before stays";
        if (kill)
            continue;
        EXPECT_EQ(result.Exit, 130) << result.Err.toStdString();
        EXPECT_EQ(result.Values(u"result"_s, u"status"_s), (QStringList{u"done"_s, u"not run"_s}));
        EXPECT_TRUE(batch.Read(u"app/Vantorra_Process.log"_s).contains("*** Process halted before finishing!"));
    }
}

/// The exit status of the program whose standard output is read once and then closed.
static DWORD Exit_Without_A_Reader(const QStringList& arguments)
{
    SECURITY_ATTRIBUTES inherited{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
    HANDLE reader = nullptr, writer = nullptr;
    EXPECT_TRUE(CreatePipe(&reader, &writer, &inherited, 0));
    SetHandleInformation(reader, HANDLE_FLAG_INHERIT, 0);
    STARTUPINFOW start{};
    start.cb = sizeof(start);
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdOutput = writer;
    std::wstring line = Windows_Command_Line(QStringLiteral(VANTORRA_BATCH_PROGRAM), arguments).toStdWString();
    PROCESS_INFORMATION process{};
    EXPECT_TRUE(CreateProcessW(nullptr, line.data(), nullptr, nullptr, TRUE, CREATE_NO_WINDOW, nullptr, nullptr, &start,
                               &process));
    CloseHandle(writer);
    char first = 0;
    DWORD size = 0;
    EXPECT_TRUE(ReadFile(reader, &first, 1, &size, nullptr));
    CloseHandle(reader);
    EXPECT_EQ(WaitForSingleObject(process.hProcess, 60'000), WAIT_OBJECT_0);
    DWORD status = 0;
    GetExitCodeProcess(process.hProcess, &status);
    CloseHandle(process.hProcess);
    CloseHandle(process.hThread);
    return status;
}

TEST(Vantorra_Batch_Windows, AReaderThatGoesAwayHaltsTheRun)
{
    const Batch_Process batch;
    for (int i = 0; i < 20; ++i)
        Place(batch, Short_Video(), u"videos/%1.mkv"_s.arg(i));
    EXPECT_EQ(Exit_Without_A_Reader({u"--json"_s, u"--classic"_s, u"--app-folder"_s, batch.Path(u"app"_s),
                                     u"--videos"_s, batch.Path(u"videos"_s), u"--target"_s, batch.Path(u"target"_s)}),
              130u);
    EXPECT_LT(batch.Names_In(u"target"_s).size(), 20);
}

namespace {

/// A file that another program has open and shares with nobody.
struct Held_By_Another
{
    HANDLE Handle;

    explicit Held_By_Another(const QString& path, DWORD share = 0)
        : Handle(CreateFileW(reinterpret_cast<const wchar_t*>(path.utf16()), GENERIC_READ, share, nullptr,
                             OPEN_EXISTING, 0, nullptr))
    {
        EXPECT_NE(Handle, INVALID_HANDLE_VALUE) << path.toStdString();
    }

    Held_By_Another(const Held_By_Another&) = delete;
    Held_By_Another& operator=(const Held_By_Another&) = delete;

    ~Held_By_Another() { CloseHandle(Handle); }
};

} // namespace

TEST(Vantorra_Batch_Windows, WhatAnotherProgramHoldsIsNeitherReplacedNorLost)
{
    Batch_Process batch;
    for (const QString& name : {u"a"_s, u"b"_s, u"c"_s})
        Place(batch, Short_Video(), u"videos/%1.mkv"_s.arg(name));
    batch.Write(u"target/b.mkv"_s, "old");
    {
        const Held_By_Another source(batch.Path(u"videos/a.mkv"_s));
        const Held_By_Another output(batch.Path(u"target/b.mkv"_s), FILE_SHARE_READ);
        const Held_By_Another read(batch.Path(u"videos/c.mkv"_s), FILE_SHARE_READ);
        const Batch_Result result = batch.Run({u"--json"_s, u"--careful"_s, u"--tick"_s, u"DeleteVideoAP"_s});
        EXPECT_EQ(result.Exit, 2);
        EXPECT_EQ(result.Values(u"result"_s, u"status"_s), (QStringList{u"failed"_s, u"failed"_s, u"done"_s}))
            << result.Err.toStdString();
    }
    EXPECT_EQ(batch.Read(u"target/b.mkv"_s), "old");
    EXPECT_EQ(batch.Names_In(u"videos"_s), (QStringList{u"a.mkv"_s, u"b.mkv"_s, u"c.mkv"_s}));
    EXPECT_EQ(Tracks_Of(batch.Path(u"target/c.mkv"_s)).size(), 2);
    EXPECT_EQ(batch.Names_In(u"target"_s), (QStringList{u"b.mkv"_s, u"c.mkv"_s}));
}
