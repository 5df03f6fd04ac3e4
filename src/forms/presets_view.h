#pragma once

#include "forms/program_dialog.h"

#include <memory>

namespace Ui {
class frm_Presets;
}

/// frm_Presets: the list of the presets, with buttons beside it. In the list Enter loads, F2 renames, and Delete moves
/// to the trash.
class Presets_View : public Program_Dialog
{
    Q_OBJECT

  public:
    Presets_View(Program& program, Slot_Guard& guard, QWidget* owner);
    ~Presets_View() override;

    void Render() override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void Show_Names();

    std::unique_ptr<Ui::frm_Presets> ui_;
    QStringList shown_; ///< the names in the list
};
