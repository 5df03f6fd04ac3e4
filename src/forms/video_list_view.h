#pragma once

#include "forms/video_list_model.h"

#include <QFileSystemWatcher>
#include <QTimer>
#include <QWidget>
#include <array>
#include <memory>

class QToolButton;
class Run_Queue_View;
class Slot_Guard;
struct Program;

namespace Ui {
class Video_List;
}

/// The list of the videos' folder below the option groups: chips, filter and table, or only the strip with its name.
class Video_List_View : public QWidget
{
    Q_OBJECT

  public:
    Video_List_View(Program& program, Slot_Guard& guard, QWidget* owner);
    ~Video_List_View() override;

    /// Brings the list in step with its record.
    void Render();
    void Set_Looks();

    /// The table is there, and not only the strip.
    bool Is_Open() const;
    void Set_Open(bool open);
    /// The height of the head and of some rows.
    int Usual_Height() const;

    QSize sizeHint() const override;

    /// The controls in the order of the Tab key.
    QList<QWidget*> In_Tab_Order() const;

  signals:
    /// The person opened the list, or closed it.
    void Opened(bool open);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void Connect();
    void Watch_Folder();
    void Add_Commands();
    void Note_Selection();
    void Enable_Commands();
    void Restore_Selection();
    void Mark_A_Row(Qt::FocusReason reason);
    void Follow_Work();
    void Render_Head();
    bool Is_In_View(int row) const;
    void Share_Width();
    bool Is_On_Box(const QModelIndex& index) const;

    Program& program_;
    Slot_Guard& guard_;
    std::unique_ptr<Ui::Video_List> ui_;
    Video_List_Model model_;
    std::array<QToolButton*, 9> chips_{};
    Run_Queue_View* queue_ = nullptr;
    QFileSystemWatcher watcher_;
    QTimer recount_;            ///< the folder has changed on the disk
    QTimer look_;               ///< the options have changed
    std::uint64_t watched_ = 0; ///< Video_List::Filled when the folders to watch were chosen
    std::uint64_t counted_ = 0; ///< the record's stamp when the chips were counted
    int followed_ = -1;         ///< number of the row that was scrolled to
    bool follows_ = true;       ///< until the person scrolls the row in work out of sight
    bool busy_ = false;         ///< a run was at work at the last picture
    bool scrolling_ = false;    ///< it is us who scrolls
    bool selecting_ = false;    ///< it is us who selects
    bool sharing_ = false;      ///< it is us who sets the columns' widths
    bool own_widths_ = false;   ///< the person has set one
};
