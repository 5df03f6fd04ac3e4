#pragma once

class QDBusConnection;
class QString;
class QWidget;

/// A notification of the desktop (org.freedesktop.Notifications, asked for over `bus`): title and text as they are,
/// never markup. Doesn't wait for an answer. Where the desktop shows none, `window` asks for attention in its task bar.
void Show_Desktop_Notice(const QDBusConnection& bus, QWidget& window, const QString& title, const QString& text);
