#pragma once

#include "forms/program_dialog.h"

#include <memory>

class QLineEdit;

namespace Ui {
class frm_VideoFormatOptions;
}

/// frm_VideoFormatOptions: an aspect ratio or a display size. Characters that a box doesn't take never get in, typed
/// or pasted.
class Video_Format_View : public Program_Dialog
{
    Q_OBJECT

  public:
    Video_Format_View(Program& program, Slot_Guard& guard, QWidget* owner);
    ~Video_Format_View() override;

    void Render() override;

  private:
    void Keep_Allowed(QLineEdit& edit, bool (*allowed)(QChar), QString& text);

    std::unique_ptr<Ui::frm_VideoFormatOptions> ui_;
};
