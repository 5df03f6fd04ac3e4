#pragma once

#include "forms/form_view.h"
#include "state/main_form.h"

#include <QMainWindow>
#include <memory>
#include <vector>

class Halt_Question_View;
class Number_Box_View;
class QFrame;
class QLabel;
class QToolButton;
class Options_Layout;
class Path_Edit;
class Slot_Guard;
class Status_Line;
class Summary_Label;
class System_Status;
class Video_List_View;
struct Program;

namespace Ui {
class Startform;
}

/// On a screen with fewer lines than this the list of videos is a strip that opens it.
inline constexpr int Low_Screen = 800;

/// On one with fewer than this a folder that isn't in view keeps no place for itself.
inline constexpr int Very_Low_Screen = 640;

/// The main form. Holds no rule: an event calls one, then the records are rendered. Controls carry the names of the
/// fields that they show.
class Startform : public QMainWindow, public Form_View
{
    Q_OBJECT

  public:
    Startform(Program& program, Slot_Guard& guard);
    ~Startform() override;

    void Render() override;

    /// Tells the records the screen's work area and the size that everything fits into, for a first start.
    void Propose_Place();
    /// Shows the form where its record says, but always within a screen, and paints it. It takes no input yet.
    void Show_First();
    /// Tells the rules of the first activation: from now on they act.
    void Become_Ready();
    void Set_Topmost(bool on);
    /// What was typed into a box counts as left there: it is about to be used, or to be written.
    void Leave_Boxes();

    /// True once the close query let the form go.
    bool Unloaded() const { return unloaded_; }

    QSize sizeHint() const override;

  protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool focusNextPrevChild(bool next) override;

  private:
    void Connect_Options();
    void Connect_Folders();
    void Connect_Typing();
    void Connect_Run();
    void Connect_List();
    /// The room between the options and the list below them.
    void Divide();
    /// Where the list may stand beside the options, and not in their place.
    bool Has_Room_For_List() const;
    void Open_List(bool open);
    /// The buttons beside Run, or in a row of their own where the screen is too narrow. That row is made `ahead` of the
    /// buttons that come into view, as each would widen the window at once and for good; it goes behind those that go.
    void Place_More_Runs(bool ahead);
    /// Colours and pictures of the palette in force, then Measure.
    void Set_Looks();
    /// The sizes that follow the font in force.
    void Measure();
    QList<QFrame*> Path_Boxes() const;
    QList<QToolButton*> Browse_Buttons() const;
    QList<QLabel*> Fault_Labels() const;
    void Render_Folders();
    void Render_Progress();
    void Render_Focus();
    void Render_Place();
    void Note_Place();
    /// As large as it takes to show all without scrolling, if the screen has the room.
    void Make_Room();
    bool Too_Early(QObject* watched, const QEvent* event) const;
    bool Into_Group(QObject* watched, const QEvent* event);
    bool Clicked_Pane(QObject* watched, QEvent* event);
    bool Right_Click(QObject* watched, QEvent* event);

    Program& program_;
    Slot_Guard& guard_;
    std::unique_ptr<Ui::Startform> ui_;
    std::unique_ptr<System_Status> system_;
    Options_Layout* options_ = nullptr;
    Video_List_View* list_ = nullptr;
    Summary_Label* summary_ = nullptr;
    Halt_Question_View* question_ = nullptr;
    std::vector<Number_Box_View*> number_boxes_;
    std::vector<Path_Edit*> path_edits_; ///< as Path_Boxes
    Status_Line* status_ = nullptr;
    QString more_runs_;       ///< what the buttons beside Run say
    Form_Place shown_place_;  ///< what the window was last told, or last told us
    QWidget* left_ = nullptr; ///< where Tab goes on from after the focus was parked
    bool by_key_ = false;     ///< the last input was a key
    bool shown_ = false;
    bool unloaded_ = false;
};
