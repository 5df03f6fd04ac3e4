#pragma once

#include "forms/program_dialog.h"

#include <memory>

class QListWidget;

namespace Ui {
class frm_CustomFilter;
}

/// frm_CustomFilter: two lists; a click, Enter or Space on a line moves it to the other one. Above them the languages
/// of the listed videos, which go the same way.
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
    void Show_Found();
    void Find(const QString& text);
    bool Key_In_Find(int key);
    void Line_Clicked(const QListWidget* list, int index);
    void Note_Place();

    std::unique_ptr<Ui::frm_CustomFilter> ui_;
};
