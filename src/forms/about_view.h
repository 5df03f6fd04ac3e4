#pragma once

#include "forms/program_dialog.h"

#include <QTimer>
#include <memory>

namespace Ui {
class frm_Splash;
}

/// frm_Splash, the About box: it closes by itself, by a click anywhere on it, or when another window comes to the
/// front.
class About_View : public Program_Dialog
{
    Q_OBJECT

  public:
    About_View(Program& program, Slot_Guard& guard, QWidget* owner);
    ~About_View() override;

    void Render() override;

  protected:
    bool event(QEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void Leave() override;

  private:
    std::unique_ptr<Ui::frm_Splash> ui_;
    QTimer tick_;
};
