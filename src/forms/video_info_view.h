#pragma once

#include "forms/kept_place.h"
#include "forms/program_dialog.h"
#include "workbenches/video_info_viewer.h"

#include <QStringListModel>
#include <memory>

namespace Ui {
class frm_ViewVFI;
}

/// frm_ViewVFI: what mkvmerge says about a video of the source folder, or one dropped on the text.
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
    int Selected_Row() const;
    /// The selected file is shown.
    void Pick();
    /// A key that moves the row, or picks it, while none is picked.
    bool Pick_By_Key(const QKeyEvent& event);
    /// A rule that runs the tool, which lets events have their turn.
    void Identify(const std::function<void()>& rule);

    std::unique_ptr<Ui::frm_ViewVFI> ui_;
    frm_ViewVFI form_;
    Kept_Place place_;
    QStringListModel files_;
    QStringList listed_; ///< the names that files_ was filled from
    QString shown_text_;
    bool filling_ = false; ///< the program sets the list's row, not the operator
    bool busy_ = false;    ///< until the tool has answered, the form stays and nothing else is asked of it
};
