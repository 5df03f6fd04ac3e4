#include "forms/session_end.h"

#include "forms/slot_guard.h"
#include "forms/startform.h"
#include "run/run_driver.h"
#include "settings/settings_store.h"
#include "state/program.h"

#include <QApplication>
#include <QSessionManager>
#include <QSocketNotifier>
#include <QTimer>
#include <csignal>
#include <cstdlib>
#include <sys/socket.h>
#include <unistd.h>

// A signal handler and an exit handler are handed no argument: they find here what they need.
static int signal_pipe[2] = {-1, -1};
static Program* program_to_save = nullptr;

static void On_Signal(int)
{
    const char byte = 0;
    [[maybe_unused]] const auto written = ::write(signal_pipe[0], &byte, 1);
}

/// A broken display ends the process from within Qt, without a word to its event loop.
static void On_Exit()
{
    Program* program = std::exchange(program_to_save, nullptr);
    if (!program || program->Form.Closing)
        return;
    try {
        Write_Settings(*program, false);
    } catch (const std::exception&) {
        return; // nobody is left to be told
    }
}

Session_End::Session_End(Program& program, Slot_Guard& guard, Startform& form)
    : program_(program), guard_(guard), form_(form)
{
    connect(qApp, &QGuiApplication::commitDataRequest, this, [this](QSessionManager&) {
        form_.Leave_Number_Boxes();
        guard_.Call([this] { Write_Settings(program_, false); });
    });
    program_to_save = &program;
    std::atexit(On_Exit);
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, signal_pipe) != 0)
        return;
    asked_ = new QSocketNotifier(signal_pipe[1], QSocketNotifier::Read, this);
    connect(asked_, &QSocketNotifier::activated, this, [this] {
        char byte = 0;
        [[maybe_unused]] const auto count = ::read(signal_pipe[1], &byte, 1);
        Asked_To_Go();
    });
    for (const int number : {SIGTERM, SIGINT, SIGHUP})
        std::signal(number, On_Signal);
}

Session_End::~Session_End()
{
    program_to_save = nullptr;
    for (const int number : {SIGTERM, SIGINT, SIGHUP})
        std::signal(number, SIG_DFL);
    for (int& end : signal_pipe)
        ::close(std::exchange(end, -1));
}

void Session_End::Asked_To_Go()
{
    if (!program_.Run.Run_In_Progress && !program_.Run.Press_In_Work) {
        form_.close();
        return;
    }
    guard_.Call([this] { btn_Halt_MouseUp(program_); });
    // The run ends inside the slot that began it; look again once that may be over.
    QTimer::singleShot(100, this, [this] { Asked_To_Go(); });
}
