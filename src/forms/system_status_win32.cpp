#include "forms/system_status.h"

#include <QGuiApplication>
#include <QWidget>
#include <cmath>
#include <shobjidl.h>
#include <windows.h>

class System_Status::Shell : public QObject
{
  public:
    explicit Shell(QWidget& window) : window_(window)
    {
        if (SUCCEEDED(::CoCreateInstance(CLSID_TaskbarList, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&bar_))) &&
            FAILED(bar_->HrInit()))
            Release();
        connect(qApp, &QGuiApplication::applicationStateChanged, this, [this] { Show_Bar(); });
    }

    ~Shell() override { Release(); }

    void Show(const Run_Status& now)
    {
        if (now == shown_)
            return;
        if (now.In_Work && !shown_.In_Work)
            ::ShutdownBlockReasonCreate(Handle(), L"A run goes on: the video in work would have to begin anew.");
        else if (!now.In_Work && shown_.In_Work)
            ::ShutdownBlockReasonDestroy(Handle());
        unseen_ = now.Failed && (unseen_ || (!now.Moving && shown_.Moving));
        shown_ = now;
        Show_Bar();
    }

  private:
    HWND Handle() const { return reinterpret_cast<HWND>(window_.winId()); }

    void Show_Bar()
    {
        unseen_ = unseen_ && QGuiApplication::applicationState() != Qt::ApplicationActive;
        if (!bar_)
            return;
        constexpr ULONGLONG whole = 1000;
        const TBPFLAG state = shown_.Failed && (shown_.Moving || unseen_) ? TBPF_ERROR
                              : shown_.Moving                             ? TBPF_NORMAL
                                                                          : TBPF_NOPROGRESS;
        bar_->SetProgressState(Handle(), state);
        if (state != TBPF_NOPROGRESS)
            bar_->SetProgressValue(Handle(), shown_.Moving ? std::llround(shown_.Fraction * double(whole)) : whole,
                                   whole);
    }

    void Release()
    {
        if (bar_)
            bar_->Release();
        bar_ = nullptr;
    }

    QWidget& window_;
    ITaskbarList3* bar_ = nullptr;
    Run_Status shown_;
    bool unseen_ = false; ///< the last run ended with a failure, and nobody has looked since
};

System_Status::System_Status(QWidget& window) : shell_(std::make_unique<Shell>(window)) {}

System_Status::~System_Status() = default;

void System_Status::Show(const Run_Status& now)
{
    shell_->Show(now);
}
