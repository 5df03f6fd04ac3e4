#pragma once

#include "support/drop_data.h"

#include <QFrame>

/// A panel that files and folders can be dropped on. It takes whatever comes, so that the rules can say what was
/// wrong with it, and shows a frame while something hangs over it. A disabled panel takes nothing.
class Drop_Panel : public QFrame
{
    Q_OBJECT

  public:
    explicit Drop_Panel(QWidget* parent = nullptr);

    /// The frame that it shows while something hangs over it.
    void Show_Hover(bool on);

  signals:
    void Dropped(const Drop_Data& data);

  protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    bool hovered_ = false;
};
