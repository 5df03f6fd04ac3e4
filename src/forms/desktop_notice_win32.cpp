#include "forms/desktop_notice.h"

#include <QApplication>
#include <QSystemTrayIcon>
#include <QTimer>
#include <QWidget>

/// As long as the system keeps a notice for somebody who is away, and no longer than that.
constexpr int Kept_Ms = 10 * 60 * 1000;

/// On Windows a notification belongs to an icon beside the clock; it goes again with the notification.
void Show_Desktop_Notice(QWidget& window, const QString& title, const QString& text)
{
    QApplication::alert(&window);
    if (!QSystemTrayIcon::isSystemTrayAvailable() || !QSystemTrayIcon::supportsMessages())
        return;
    auto* icon = new QSystemTrayIcon(QApplication::windowIcon(), &window);
    QObject::connect(icon, &QSystemTrayIcon::messageClicked, &window, [&window] {
        if (window.isMinimized())
            window.showNormal();
        window.raise();
        window.activateWindow();
    });
    QObject::connect(icon, &QSystemTrayIcon::activated, icon, &QSystemTrayIcon::messageClicked);
    // Who comes back needs no notice any more.
    QObject::connect(qApp, &QGuiApplication::applicationStateChanged, icon, [icon](Qt::ApplicationState state) {
        if (state == Qt::ApplicationActive)
            icon->deleteLater();
    });
    QTimer::singleShot(Kept_Ms, icon, &QObject::deleteLater);
    icon->setToolTip(title);
    icon->show();
    icon->showMessage(title, text, icon->icon(), Kept_Ms);
}
