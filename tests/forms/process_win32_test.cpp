#include "common/media.h"
#include "common/stand_in_tool.h"
#include "settings/settings_store.h"

#include <QElapsedTimer>
#include <QProcess>
#include <windows.h>

/// Waits until it is so; false after 30 seconds.
static bool In_Time(const std::function<bool()>& so)
{
    QElapsedTimer clock;
    for (clock.start(); !so(); ::Sleep(20))
        if (clock.elapsed() > 30'000)
            return false;
    return true;
}

/// The windows of a process that hear of the session's end.
static std::vector<HWND> Windows_Of(qint64 process)
{
    struct Search
    {
        DWORD Process;
        std::vector<HWND> Windows;
    } search{static_cast<DWORD>(process), {}};

    ::EnumWindows(
        [](HWND window, LPARAM param) -> BOOL {
            auto& found = *reinterpret_cast<Search*>(param);
            DWORD owner = 0;
            ::GetWindowThreadProcessId(window, &owner);
            if (owner == found.Process)
                found.Windows.push_back(window);
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&search));
    return search.Windows;
}

static HWND Main_Form_Of(qint64 process)
{
    for (HWND window : Windows_Of(process)) {
        wchar_t title[100] = {};
        ::GetWindowTextW(window, title, 99);
        if (::IsWindowVisible(window) && QString::fromWCharArray(title).contains(u"Vantorra"))
            return window;
    }
    return nullptr;
}

struct Window_Process : testing::Test
{
    Test_Program Files;
    QProcess Process;

    ~Window_Process() override
    {
        Process.kill();
        Process.waitForFinished();
    }

    void Start()
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"VANTORRA_HOME"_s, Files.Path(u"app"_s));
        Process.setProcessEnvironment(environment);
        Process.start(QStringLiteral(VANTORRA_PROGRAM), {});
        ASSERT_TRUE(Process.waitForStarted());
        ASSERT_TRUE(In_Time([this] { return Main_Form_Of(Process.processId()) != nullptr; }));
        ::Sleep(1500); // until it takes input
    }

    /// As the system asks at a shutdown; false: some window would rather stay.
    bool Ask() const
    {
        bool agreed = true;
        for (HWND window : Windows_Of(Process.processId()))
            agreed = ::SendMessageW(window, WM_QUERYENDSESSION, 0, 0) != 0 && agreed;
        return agreed;
    }

    void Tell(bool ends) const
    {
        for (HWND window : Windows_Of(Process.processId()))
            ::SendMessageW(window, WM_ENDSESSION, ends, 0);
    }
};

TEST_F(Window_Process, ASessionThatEndsSavesTheSettings)
{
    Start();
    ASSERT_TRUE(QFile::remove(Files.Path(u"app/Vantorra.ini"_s)));
    EXPECT_TRUE(Ask());
    EXPECT_TRUE(Files.Read(u"app/Vantorra.ini"_s).contains("Save Settings on Exit=True"));
    Tell(false); // somebody else had a reason to stay
    EXPECT_FALSE(Process.waitForFinished(1000));
    EXPECT_TRUE(Ask());
    Tell(true);
    ASSERT_TRUE(Process.waitForFinished(20'000));
    EXPECT_EQ(Process.exitCode(), 0);
}

TEST_F(Window_Process, ARunHoldsTheSessionsEndUpAndIsHaltedByItInOrder)
{
    Use_Real_Tools(Files);
    Place(Files, Short_Video(), u"videos/one.mkv"_s);
    Files.Prog.Tools.System_MKVMerge_Path = Write_Stand_In(
        Files, u"slow/mkvmerge"_s,
        "case \"$*\" in *--output*) echo 'Progress: 30%'; : > " + Path_In_Script(Files.Path(u"began"_s)) +
            "; exec sleep 60;; esac\nexec " + Tool_In_Script(u"mkvmerge"_s) + " \"$@\"\n");
    Files.Prog.Settings.Source_MRU = {Files.Path(u"videos/"_s)};
    Files.Prog.Settings.Target_MRU = {Files.Path(u"target/"_s)};
    Write_Settings(Files.Prog, false);
    Start();
    ::SetForegroundWindow(Main_Form_Of(Process.processId()));
    std::vector<INPUT> keys; // Alt+R
    for (const auto& [key, flags] :
         {std::pair<WORD, DWORD>(VK_MENU, 0), {'R', 0}, {'R', KEYEVENTF_KEYUP}, {VK_MENU, KEYEVENTF_KEYUP}}) {
        INPUT& input = keys.emplace_back();
        input.type = INPUT_KEYBOARD;
        input.ki.wVk = key;
        input.ki.dwFlags = flags;
    }
    ::SendInput(static_cast<UINT>(keys.size()), keys.data(), sizeof(INPUT));
    ASSERT_TRUE(In_Time([this] { return QFile::exists(Files.Path(u"began"_s)); }));
    EXPECT_FALSE(Ask());
    Tell(false);
    EXPECT_FALSE(Process.waitForFinished(500)) << "the person chose to stay";
    Tell(true);
    // The windows have answered: from here on the system ends the process at any time.
    EXPECT_TRUE(Files.Read(u"app/Vantorra_Process.log"_s).contains("Process halted before finishing"));
    ASSERT_TRUE(Process.waitForFinished(20'000));
    EXPECT_EQ(Process.exitCode(), 0);
    EXPECT_EQ(Children_Left(), 0);
}
