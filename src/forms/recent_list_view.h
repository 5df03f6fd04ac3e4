#pragma once

#include "forms/program_dialog.h"

#include "state/program.h"

#include <QComboBox>

/// A drop-down that tells when its list has closed.
class Recent_Combo : public QComboBox
{
    Q_OBJECT

  public:
    using QComboBox::QComboBox;

    void hidePopup() override;

  signals:
    void Closed();
};

/// What the source's and the target's list differ in.
struct Recent_List_Parts
{
    const char* Name;     ///< of the form
    const char* Path_Box; ///< the frame on the main form that the list is laid over
    Recent_List_Form Program::*Record;
    QStringList Settings_State::*List;
    void (*Choose)(Program&, int);
};

/// frm_SourceMRU and frm_TargetMRU: a drop-down laid exactly over the path box of the main form.
class Recent_List_View : public Program_Dialog
{
    Q_OBJECT

  public:
    Recent_List_View(Program& program, Slot_Guard& guard, QWidget* owner, const Recent_List_Parts& parts);

    void Open() override;
    void Render() override;

  protected:
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;
    void Leave() override;

  private:
    const Recent_List_Parts& parts_;
    Recent_Combo* cmbo_MRU_;
};

/// For the table of forms.
class Source_MRU_View : public Recent_List_View
{
    Q_OBJECT

  public:
    Source_MRU_View(Program& program, Slot_Guard& guard, QWidget* owner);
};

class Target_MRU_View : public Recent_List_View
{
    Q_OBJECT

  public:
    Target_MRU_View(Program& program, Slot_Guard& guard, QWidget* owner);
};
