#pragma once

#include <QElapsedTimer>
#include <QObject>

class Elided_Label;
class QMainWindow;
class QStatusBar;
struct Label;

/// The bar at the lower edge of the main form: the tool tip of what is below the pointer, else a notice. A notice that
/// has just come is let be read first.
class Status_Line : public QObject
{
    Q_OBJECT

  public:
    explicit Status_Line(QMainWindow& form);

    void Render(const Label& notice);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QStatusBar& bar_;
    Elided_Label* notice_;
    QElapsedTimer since_notice_;
};
