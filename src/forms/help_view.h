#pragma once

#include "forms/program_dialog.h"

class QLineEdit;
class QTextBrowser;

/// frm_Help: the help file, with a line that finds words in it. It stays open beside the main form.
class Help_View : public Program_Dialog
{
    Q_OBJECT

  public:
    Help_View(Program& program, Slot_Guard& guard, QWidget* owner);

    void Open() override;

    void Render() override {}

  private:
    void Find_Next();

    QLineEdit* words_;
    QTextBrowser* page_;
};
