#include "forms/session_end.h"

#include "state/program.h"

#include <QAbstractNativeEventFilter>
#include <QApplication>
#include <QMetaObject>
#include <thread>
#include <windows.h>

/// How long the system waits for a window that was told of the session's end, with something to spare.
constexpr DWORD Patience_Ms = 4500;

/// The system ends a process as soon as all its windows have heard of the session's end. A run needs the event loop to
/// be halted in order, so that a window of another thread hears it too, and takes its time over the answer.
class Session_End::Watch : public QAbstractNativeEventFilter
{
  public:
    explicit Watch(Session_End& owner) : owner_(owner), slow_window_([this] { Serve_Slow_Window(); })
    {
        qApp->installNativeEventFilter(this);
    }

    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;

    ~Watch() override
    {
        ::SetEvent(over_);
        ::SetEvent(leave_);
        slow_window_.join();
        ::CloseHandle(over_);
        ::CloseHandle(leave_);
    }

    bool nativeEventFilter(const QByteArray&, void* message, qintptr* result) override
    {
        const MSG& msg = *static_cast<const MSG*>(message);
        if (msg.message == WM_QUERYENDSESSION) {
            owner_.Save_Settings();
            // The system shows the person why (System_Status), and leaves it to them to go on all the same.
            const Run_State& run = owner_.program_.Run;
            *result = !run.Run_In_Progress || run.Checking || (msg.lParam & ENDSESSION_CRITICAL) != 0;
            return true;
        }
        if (msg.message == WM_ENDSESSION && msg.wParam != 0)
            QMetaObject::invokeMethod(&owner_, &Session_End::Asked_To_Go, Qt::QueuedConnection);
        return msg.message == WM_ENDSESSION;
    }

  private:
    static LRESULT CALLBACK Slow_Procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam)
    {
        auto* watch = reinterpret_cast<Watch*>(::GetWindowLongPtrW(window, GWLP_USERDATA));
        if (message == WM_ENDSESSION && wparam != 0 && watch) {
            QMetaObject::invokeMethod(&watch->owner_, &Session_End::Asked_To_Go, Qt::QueuedConnection);
            ::WaitForSingleObject(watch->over_, Patience_Ms);
            return 0;
        }
        return ::DefWindowProcW(window, message, wparam, lparam);
    }

    void Serve_Slow_Window()
    {
        WNDCLASSW look = {};
        look.lpfnWndProc = Slow_Procedure;
        look.hInstance = ::GetModuleHandleW(nullptr);
        look.lpszClassName = L"Vantorra session end";
        ::RegisterClassW(&look);
        // Never shown; but one for messages only would hear nothing of the session.
        const HWND window = ::CreateWindowExW(0, look.lpszClassName, L"", WS_POPUP, 0, 0, 0, 0, nullptr, nullptr,
                                              look.hInstance, nullptr);
        if (window)
            ::SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
        while (::MsgWaitForMultipleObjects(1, &leave_, FALSE, INFINITE, QS_ALLINPUT) == WAIT_OBJECT_0 + 1) {
            MSG msg;
            while (::PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE))
                ::DispatchMessageW(&msg);
        }
        if (window)
            ::DestroyWindow(window);
        ::UnregisterClassW(look.lpszClassName, look.hInstance);
    }

    Session_End& owner_;
    HANDLE over_ = ::CreateEventW(nullptr, TRUE, FALSE, nullptr);  ///< the program has done what it had to do
    HANDLE leave_ = ::CreateEventW(nullptr, TRUE, FALSE, nullptr); ///< the thread is to end
    std::thread slow_window_;
};

Session_End::Session_End(Program& program, Slot_Guard& guard, Startform& form)
    : program_(program), guard_(guard), form_(form), watch_(std::make_unique<Watch>(*this))
{}

Session_End::~Session_End() = default;
