#include "forms/desktop_notice_posix.h"

#include "forms/desktop_notice.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QVariantMap>

using namespace Qt::StringLiterals;

void Show_Desktop_Notice(QWidget& window, const QString& title, const QString& text)
{
    Show_Desktop_Notice(QDBusConnection::sessionBus(), window, title, text);
}

void Show_Desktop_Notice(const QDBusConnection& bus, QWidget& window, const QString& title, const QString& text)
{
    if (!bus.isConnected()) {
        QApplication::alert(&window);
        return;
    }
    QDBusMessage notice =
        QDBusMessage::createMethodCall(u"org.freedesktop.Notifications"_s, u"/org/freedesktop/Notifications"_s,
                                       u"org.freedesktop.Notifications"_s, u"Notify"_s);
    const uint replaces_none = 0;
    const int as_long_as_usual = -1;
    // The text of a notification is markup, its title isn't.
    notice << QApplication::applicationName() << replaces_none << u"vantorra"_s << title << text.toHtmlEscaped()
           << QStringList() << QVariantMap{{u"desktop-entry"_s, u"vantorra"_s}} << as_long_as_usual;
    auto* answer = new QDBusPendingCallWatcher(bus.asyncCall(notice), &window);
    QObject::connect(answer, &QDBusPendingCallWatcher::finished, &window, [answer, &window] {
        if (answer->isError())
            QApplication::alert(&window);
        answer->deleteLater();
    });
}
