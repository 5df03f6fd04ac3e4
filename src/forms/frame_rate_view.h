#pragma once

#include "forms/program_dialog.h"

#include <memory>

namespace Ui {
class frm_VideoFrameRate;
}

/// frm_VideoFrameRate: the rate of the source, or one from the list.
class Frame_Rate_View : public Program_Dialog
{
    Q_OBJECT

  public:
    Frame_Rate_View(Program& program, Slot_Guard& guard, QWidget* owner);
    ~Frame_Rate_View() override;

    void Render() override;

  private:
    std::unique_ptr<Ui::frm_VideoFrameRate> ui_;
};
