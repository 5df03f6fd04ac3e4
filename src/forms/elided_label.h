#pragma once

#include <QLabel>

/// A label for a path or file name: one line, cut in the middle (or where else one says) where the room is too small,
/// with the whole text in its tooltip. The text is shown as it is, never as markup.
class Elided_Label : public QLabel
{
    Q_OBJECT

  public:
    explicit Elided_Label(QWidget* parent = nullptr, Qt::TextElideMode cut = Qt::ElideMiddle);

    void Set_Text(const QString& text);
    /// The text as it stands on the form now, cut or not.
    QString Shown_Text() const;
    QSize minimumSizeHint() const override;
    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    Qt::TextElideMode cut_;
};
