#pragma once

#include "forms/kept_place.h"
#include "forms/program_dialog.h"
#include "workbenches/log_viewer.h"

#include <QStringListModel>
#include <memory>

namespace Ui {
class frm_ProcessLog;
}

/// frm_ProcessLog: the process log, one line a row, its entries beside it, and a bar to look for a text.
class Process_Log_View : public Program_Dialog
{
    Q_OBJECT

  public:
    Process_Log_View(Program& program, Slot_Guard& guard, QWidget* owner);
    ~Process_Log_View() override;

    void Open() override;
    void Render() override;

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    /// The window's close box acts as btn_Done.
    void Leave() override;

  private:
    void Connect_Search();
    void Load_Full_Log();
    /// Other lines are there.
    void Show_Lines();
    /// A rule that chooses a line: it comes into sight.
    void Go(const std::function<void()>& rule);
    void Render_Entries();

    std::unique_ptr<Ui::frm_ProcessLog> ui_;
    frm_ProcessLog form_;
    Kept_Place place_;
    QStringListModel entries_;
    bool selecting_ = false; ///< it is us who selects a row
};
