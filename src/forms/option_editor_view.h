#pragma once

#include "forms/kept_place.h"
#include "forms/option_cell_delegate.h"
#include "forms/option_files_model.h"
#include "forms/program_dialog.h"

#include <memory>

class QAction;
class QCheckBox;
class QComboBox;
class QLineEdit;

namespace Ui {
class frm_OptionsFiles;
}

/// frm_OptionsFiles: the table of a folder's audio or subtitle files beside their option files, and the five boxes.
class Option_Editor_View : public Program_Dialog
{
    Q_OBJECT

  public:
    Option_Editor_View(Program& program, Slot_Guard& guard, QWidget* owner);
    ~Option_Editor_View() override;

    void Open() override;
    void Render() override;

  protected:
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    /// The window's close box acts as btn_Close.
    void Leave() override;

  private:
    /// The controls of one box. A text box is a line or a drop-down.
    struct Box_Controls
    {
        QLineEdit* Line = nullptr;
        QComboBox* List = nullptr;
        QCheckBox* Sticky = nullptr;

        QWidget* Widget() const;
    };

    void Connect_Boxes();
    void Connect_List();
    void Add_Commands();
    void Refresh();
    void Apply();
    void Selection_Changed();
    std::vector<int> Selected_Rows() const;
    void Changed(Option_Slot slot, const QString& text);
    void Begin_At_Text(QComboBox& list);
    bool Key_Between_Boxes(Option_Slot slot, const QKeyEvent& event);

    bool Key_In_Filter(const QKeyEvent& event);
    void Finish_Cell();
    void Go_Down();
    void Fill();
    void Apply_All_Marks();
    void Undo();

    void Set_Looks();
    void Render_Commands();
    void Restore_Selection();
    void Share_Width();
    void Render_List();
    void Render_Box(Option_Slot slot);
    void Render_Text_Size();

    std::unique_ptr<Ui::frm_OptionsFiles> ui_;
    Form_Place kept_;
    Kept_Place place_;
    Option_Files_Model files_;
    Option_Cell_Delegate cells_;
    QAction* fill_ = nullptr;
    QAction* undo_ = nullptr;
    QAction* apply_ = nullptr;
    QAction* discard_ = nullptr;
    std::array<Box_Controls, Option_Slot_Count> boxes_;
    QWidget* proposals_ = nullptr; ///< the list of languages that drops down under what is typed
    bool filling_ = false;         ///< the program fills controls, not the operator
};
