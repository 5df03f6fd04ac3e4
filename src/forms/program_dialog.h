#pragma once

#include "forms/form_view.h"
#include "forms/slot_guard.h"

#include <QAbstractButton>
#include <QDialog>

struct Program;

/// A form beside the main one. It is made at its first use and lives until the main form goes; each opening begins
/// with its rules' own. Its slots call through the guard, which renders it after each rule.
class Program_Dialog : public QDialog, public Form_View
{
    Q_OBJECT

  public:
    Program_Dialog(Program& program, Slot_Guard& guard, QWidget* owner);

    /// What the view does at each opening, before it is seen. The rules have filled the record by then.
    virtual void Open() { Centre_On_Owner(); } // NOLINT(bugprone-virtual-near-miss): QDialog::open shows it

  protected:
    /// A click on the button calls the rule.
    template <typename Rule>
    void On_Click(QAbstractButton* button, Rule rule)
    {
        connect(button, &QAbstractButton::clicked, this, [this, rule] { guard_.Call(rule); });
    }

    /// The form is gone once its record says so; for the end of Render.
    void Hide_Unless(bool visible);

    /// The window's own way to close, and Escape. As the base has it, the form just closes.
    virtual void Leave() { done(0); }

    void closeEvent(QCloseEvent* event) override;
    void reject() override;

    /// Places the form over the middle of its owner, wholly on the screen.
    void Centre_On_Owner();

    Program& program_;
    Slot_Guard& guard_;
};
