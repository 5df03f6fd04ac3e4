#pragma once

#include "forms/kept_place.h"
#include "forms/program_dialog.h"
#include "forms/track_table_model.h"
#include "workbenches/video_info_viewer.h"

#include <QStringListModel>
#include <QTimer>
#include <memory>

namespace Ui {
class frm_ViewVFI;
}

/// frm_ViewVFI: what mkvmerge says about a video of the source folder, or one dropped on the text; and beside it the
/// tracks of the videos that are picked, as a table.
class Video_Info_View : public Program_Dialog
{
    Q_OBJECT

  public:
    Video_Info_View(Program& program, Slot_Guard& guard, QWidget* owner);
    ~Video_Info_View() override;

    void Open() override;
    void Render() override;

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    /// The window's close box acts as btn_Done.
    void Leave() override;

  private:
    void Connect_List();
    void Connect_Table();
    std::vector<int> Selected_Rows() const;
    /// The selected files are shown.
    void Pick();
    /// A key that moves the row, or picks it, while none is picked.
    bool Pick_By_Key(const QKeyEvent& event);
    /// A rule that runs the tool, which lets events have their turn. While a tool is asked for the table, that one ends
    /// and the rule comes behind it.
    void Identify(const std::function<void()>& rule);
    /// As long as the table lacks a video, one is asked about after the other.
    void Ask_Next();
    void Render_List();
    void Render_Table();
    void Show_Next_Difference(bool back);

    std::unique_ptr<Ui::frm_ViewVFI> ui_;
    frm_ViewVFI form_;
    Kept_Place place_;
    QStringListModel files_;
    QStringList listed_; ///< the names that files_ was filled from
    QString shown_text_;
    Track_Table_Model tracks_;
    QTimer ask_;                  ///< between two videos of the table events have their turn
    bool filling_ = false;        ///< the program sets the list's row, not the operator
    bool busy_ = false;           ///< until the tool has answered, the form stays and nothing else is asked of it
    bool asking_ = false;         ///< a tool is asked for the table: what the operator does now comes behind it
    std::function<void()> later_; ///< what the operator did meanwhile
};
