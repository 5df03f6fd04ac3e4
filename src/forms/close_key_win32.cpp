#include "forms/close_key.h"

#include <QAbstractNativeEventFilter>
#include <QApplication>
#include <QWidget>
#include <utility>
#include <windows.h>

namespace {

class Close_Key_Filter : public QObject, public QAbstractNativeEventFilter
{
  public:
    Close_Key_Filter(QWidget& form, std::function<void()> pressed)
        : QObject(&form), form_(form), pressed_(std::move(pressed))
    {
        qApp->installNativeEventFilter(this);
    }

    bool nativeEventFilter(const QByteArray&, void* message, qintptr*) override
    {
        const MSG& msg = *static_cast<const MSG*>(message);
        if (msg.message != WM_SYSKEYDOWN || msg.wParam != VK_F4 || ::GetKeyState(VK_CONTROL) < 0 ||
            ::GetKeyState(VK_SHIFT) < 0 || !form_.isEnabled() || QApplication::activeModalWidget() ||
            msg.hwnd != reinterpret_cast<HWND>(form_.effectiveWinId()))
            return false;
        pressed_();
        return true;
    }

  private:
    QWidget& form_;
    std::function<void()> pressed_;
};

} // namespace

void Watch_Close_Key(QWidget& form, const std::function<void()>& pressed)
{
    new Close_Key_Filter(form, pressed);
}
