#pragma once

#include "forms/program_dialog.h"

#include <memory>

namespace Ui {
class frm_PresetName;
}

/// frm_PresetName: one line for the name of a preset, and below it why a preset can't be called so.
class Preset_Name_View : public Program_Dialog
{
    Q_OBJECT

  public:
    Preset_Name_View(Program& program, Slot_Guard& guard, QWidget* owner);
    ~Preset_Name_View() override;

    void Render() override;

  protected:
    void changeEvent(QEvent* event) override;

  private:
    void Set_Looks();

    std::unique_ptr<Ui::frm_PresetName> ui_;
};
