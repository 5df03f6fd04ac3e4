#pragma once

#include "state/job_options.h"
#include "state/main_form.h"

#include <QList>
#include <QPair>
#include <QString>

class QAbstractButton;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QRadioButton;
class QWidget;

/// Which record each control of the main form shows, and how a record is shown. The check boxes stand in the table of
/// click rules, with what a click on them does.

template <typename Record>
struct Binding
{
    const char* Name; ///< of the control and of the record's field
    Record Main_Form::*Field;
};

const QList<Binding<Label>>& Label_Bindings();
const QList<Binding<Button>>& Button_Bindings();
const QList<Binding<Panel>>& Panel_Bindings();
const QList<Binding<Menu_Item>>& Menu_Bindings();

/// The caption with an "&" before the first `letter`: the letter that reaches the control with Alt. Any other "&"
/// stands for itself. A letter that the caption doesn't hold changes nothing.
QString With_Letter(const QString& caption, QChar letter);

void Show_Check_Box(QCheckBox& widget, const Check_Box& record);
void Show_Label(QLabel& widget, const Label& record);
void Show_Button(QAbstractButton& widget, const Button& record);
/// Neither of the two may be selected.
void Show_Option_Pair(QRadioButton& first, QRadioButton& second, const Option_Pair& pair);
void Show_Combo_Box(QComboBox& widget, const Combo_Box& record);
/// Sets text and caret only where they differ, and never as an operator's change.
void Show_Text_Box(QLineEdit& widget, const Text_Box& record);

/// Gives the focus to the control that the logic named, once, and forgets the name.
void Give_Focus(const QWidget& form, QString& name);
