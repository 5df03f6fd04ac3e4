#pragma once

#include "forms/program_dialog.h"

#include <memory>

class QListWidget;

namespace Ui {
class frm_CustomFilter;
}

/// frm_CustomFilter: two lists; a click, Enter or Space on a line moves it to the other one.
class Language_Filter_View : public Program_Dialog
{
    Q_OBJECT

  public:
    Language_Filter_View(Program& program, Slot_Guard& guard, QWidget* owner);
    ~Language_Filter_View() override;

    void Open() override;
    void Render() override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void Line_Clicked(const QListWidget* list, int index);
    void Note_Place();

    std::unique_ptr<Ui::frm_CustomFilter> ui_;
};
