#pragma once

class QString;
class QWidget;

/// A notification of the desktop: title and text as they are, never markup. Doesn't wait for an answer. Where the
/// desktop shows none, `window` asks for attention in its task bar.
void Show_Desktop_Notice(QWidget& window, const QString& title, const QString& text);
