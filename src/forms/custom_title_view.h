#pragma once

#include "forms/program_dialog.h"

#include <memory>

namespace Ui {
class frm_CustomTitle;
}

/// frm_CustomTitle: one line for the custom title of the file or of the video track.
class Custom_Title_View : public Program_Dialog
{
    Q_OBJECT

  public:
    Custom_Title_View(Program& program, Slot_Guard& guard, QWidget* owner);
    ~Custom_Title_View() override;

    void Render() override;

  private:
    std::unique_ptr<Ui::frm_CustomTitle> ui_;
};
