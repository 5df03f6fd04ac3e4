#pragma once

#include "support/drop_data.h"

#include <QPlainTextEdit>

/// A text to read in a font of fixed width: selectable, long lines scroll. It takes whatever is dropped on it, so that
/// the rules can say what was wrong with it.
class Drop_Text : public QPlainTextEdit
{
    Q_OBJECT

  public:
    explicit Drop_Text(QWidget* parent = nullptr);

  signals:
    void Dropped(const Drop_Data& data);

  protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
};
