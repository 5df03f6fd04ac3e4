#include "forms/session_end.h"

#include "settings/settings_store.h"
#include "state/program.h"
#include "workbenches/last_entry.h"

#include <QApplication>
#include <QSessionManager>
#include <QSocketNotifier>
#include <csignal>
#include <memory>
#include <sys/socket.h>
#include <unistd.h>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

// A signal handler and the end of a thread are handed no argument: they find here what they need.
static int signal_pipe[2] = {-1, -1};
static Program* program_to_save = nullptr;

static void On_Signal(int)
{
    const char byte = 0;
    [[maybe_unused]] const auto written = ::write(signal_pipe[0], &byte, 1);
}

/// The entry of a run that loses its display. The child goes with the process.
static void Note_Lost_Display(Program& program)
{
    if (!program.Run.Run_In_Progress)
        return;
    program.Run.Halt_Requested = true;
    program.Logs.Log_Faults.AppendLine(u"*** The display has gone: the program ended in the middle of the run."_s);
    Write_Last_Entry(program);
}

/// A broken display ends the process from within Qt, by exit and without a word to the event loop.
static void Save_What_Can_Be_Saved()
{
    Program* program = std::exchange(program_to_save, nullptr);
    if (!program || program->Form.Closing)
        return;
    program->Form.Display_Lost = true;
    try {
        Note_Lost_Display(*program);
        Write_Settings(*program, false);
    } catch (const std::exception&) {
        return; // nobody is left to be told
    }
}

/// exit destroys what belongs to the thread first, so that everything else that saving needs is still there. A handler
/// of atexit would come behind each table that was first used after its registration.
struct At_End_Of_Thread
{
    ~At_End_Of_Thread() { Save_What_Can_Be_Saved(); }

    void Arm() {}
};

static thread_local At_End_Of_Thread end_of_main_thread;

/// The signals that ask the program to go. A terminal that hangs up is none where the program was started to survive
/// it.
static std::vector<int> Signals_To_Go()
{
    std::vector<int> numbers = {SIGTERM, SIGINT, SIGQUIT, SIGUSR1};
    struct sigaction present = {};
    ::sigaction(SIGHUP, nullptr, &present);
    if (present.sa_handler != SIG_IGN)
        numbers.push_back(SIGHUP);
    return numbers;
}

/// The end of the pipe that tells of a signal.
class Session_End::Watch
{
  public:
    explicit Watch(Session_End& owner)
    {
        if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, signal_pipe) != 0)
            return;
        asked_ = std::make_unique<QSocketNotifier>(signal_pipe[1], QSocketNotifier::Read);
        connect(asked_.get(), &QSocketNotifier::activated, &owner, [&owner] {
            char byte = 0;
            [[maybe_unused]] const auto count = ::read(signal_pipe[1], &byte, 1);
            owner.Asked_To_Go();
        });
        for (const int number : Signals_To_Go())
            std::signal(number, On_Signal);
        // A display that breaks while it is written to is to be noticed, not died of.
        std::signal(SIGPIPE, SIG_IGN);
    }

    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;

    ~Watch()
    {
        for (const int number : Signals_To_Go())
            std::signal(number, SIG_DFL);
        asked_ = nullptr;
        for (int& end : signal_pipe)
            ::close(std::exchange(end, -1));
    }

  private:
    std::unique_ptr<QSocketNotifier> asked_;
};

Session_End::Session_End(Program& program, Slot_Guard& guard, Startform& form)
    : program_(program), guard_(guard), form_(form)
{
    connect(qApp, &QGuiApplication::commitDataRequest, this, &Session_End::Save_Settings);
    program_to_save = &program;
    end_of_main_thread.Arm();
    watch_ = std::make_unique<Watch>(*this);
}

Session_End::~Session_End()
{
    program_to_save = nullptr;
}
