#pragma once

class QDBusConnection;
class QString;
class QWidget;

/// Asks for the notification (org.freedesktop.Notifications) over `bus`.
void Show_Desktop_Notice(const QDBusConnection& bus, QWidget& window, const QString& title, const QString& text);
