#pragma once

#include "forms/program_dialog.h"

#include <memory>

class Path_Edit;

namespace Ui {
class frm_Attachments;
}

/// frm_Attachments: the one folder from which attachments come, and the mode.
class Attachments_View : public Program_Dialog
{
    Q_OBJECT

  public:
    Attachments_View(Program& program, Slot_Guard& guard, QWidget* owner);
    ~Attachments_View() override;

    void Render() override;

  protected:
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void Set_Looks();
    void Use_Subfolders_Clicked();

    std::unique_ptr<Ui::frm_Attachments> ui_;
    Path_Edit* edit_;
};
