#pragma once

#include "forms/program_dialog.h"
#include "rules/locations.h"

#include <memory>

namespace Ui {
class frm_Locations;
}

/// frm_Locations: where ffprobe and mkvmerge are, and which versions they have.
class Locations_View : public Program_Dialog
{
    Q_OBJECT

  public:
    Locations_View(Program& program, Slot_Guard& guard, QWidget* owner);
    ~Locations_View() override;

    void Open() override;
    void Render() override;

  protected:
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    /// However the form closes, it closes as with cmd_Done.
    void Leave() override;

  private:
    void Set_Looks();
    /// Calls a rule that tries the tools: nothing else is taken in until it is done.
    void Try(const std::function<void()>& rule);

    std::unique_ptr<Ui::frm_Locations> ui_;
    frm_Locations form_;
};
