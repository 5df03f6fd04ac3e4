#include "forms/bindings.h"

#include "forms/elided_label.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QSignalBlocker>

using namespace Qt::StringLiterals;

const QList<Binding<Label>>& Label_Bindings()
{
    static const QList<Binding<Label>> table{
        {"ulbl_VideosPath", &Main_Form::ulbl_VideosPath},
        {"ulbl_AudioPath", &Main_Form::ulbl_AudioPath},
        {"ulbl_SubsPath", &Main_Form::ulbl_SubsPath},
        {"ulbl_ChaptersPath", &Main_Form::ulbl_ChaptersPath},
        {"ulbl_TargetPath", &Main_Form::ulbl_TargetPath},
        {"ulbl_Title1", &Main_Form::ulbl_Title1},
        {"lbl_VideoPathFault", &Main_Form::lbl_VideoPathFault},
        {"lbl_AudioPathFault", &Main_Form::lbl_AudioPathFault},
        {"lbl_SubsPathFault", &Main_Form::lbl_SubsPathFault},
        {"lbl_ChapsPathFault", &Main_Form::lbl_ChapsPathFault},
        {"lbl_TargetPathFault", &Main_Form::lbl_TargetPathFault},
        {"lbl_AudipPathEmpty", &Main_Form::lbl_AudipPathEmpty},
        {"lbl_SubsPathEmpty", &Main_Form::lbl_SubsPathEmpty},
        {"lbl_ChapsPathEmpty", &Main_Form::lbl_ChapsPathEmpty},
        {"lbl_ProgressFinished", &Main_Form::lbl_ProgressFinished},
        {"lbl_RunSummary", &Main_Form::lbl_RunSummary},
    };
    return table;
}

const QList<Binding<Button>>& Button_Bindings()
{
    static const QList<Binding<Button>> table{
        {"btn_RunVantorra", &Main_Form::btn_RunVantorra},
        {"btn_Halt", &Main_Form::btn_Halt},
        {"btn_Check", &Main_Form::btn_Check},
        {"btn_RunFailed", &Main_Form::btn_RunFailed},
        {"btn_Continue", &Main_Form::btn_Continue},
        {"btn_ViewVidInfo", &Main_Form::btn_ViewVidInfo},
    };
    return table;
}

const QList<Binding<Panel>>& Panel_Bindings()
{
    static const QList<Binding<Panel>> table{
        {"pic_VideosPath", &Main_Form::pic_VideosPath},
        {"pic_AudioPath", &Main_Form::pic_AudioPath},
        {"pic_SubsPath", &Main_Form::pic_SubsPath},
        {"pic_ChaptersPath", &Main_Form::pic_ChaptersPath},
        {"pic_TargetPath", &Main_Form::pic_TargetPath},
        {"pic_AudioDelayValue", &Main_Form::pic_AudioDelayValue},
        {"pic_SplitVideosValue", &Main_Form::pic_SplitVideosValue},
        {"pic_QuitButton", &Main_Form::pic_QuitButton},
        {"pic_ProcessFailed", &Main_Form::pic_ProcessFailed},
        {"fram_WholeForm", &Main_Form::fram_WholeForm},
    };
    return table;
}

const QList<Binding<Menu_Item>>& Menu_Bindings()
{
    static const QList<Binding<Menu_Item>> table{
        {"mnu_File", &Main_Form::mnu_File},
        {"mnu_Process_Log", &Main_Form::mnu_Process_Log},
        {"mnu_Settings", &Main_Form::mnu_Settings},
        {"mnu_HiThere1", &Main_Form::mnu_HiThere1},
        {"mnu_VerbosityStatus", &Main_Form::mnu_VerbosityStatus},
    };
    return table;
}

QString With_Letter(const QString& caption, QChar letter)
{
    QString text = caption;
    text.replace(u"&"_s, u"&&"_s);
    const qsizetype at = text.indexOf(letter);
    return at < 0 ? text : text.insert(at, u'&');
}

void Show_Check_Box(QCheckBox& widget, const Check_Box& record)
{
    widget.setText(With_Letter(record.Caption, QChar()));
    const Qt::CheckState state = record.Value == 0   ? Qt::Unchecked
                                 : record.Value == 1 ? Qt::Checked
                                                     : Qt::PartiallyChecked;
    widget.setTristate(state == Qt::PartiallyChecked);
    widget.setCheckState(state);
    widget.setEnabled(record.Enabled);
}

void Show_Label(QLabel& widget, const Label& record)
{
    if (auto* elided = qobject_cast<Elided_Label*>(&widget))
        elided->Set_Text(record.Caption);
    else
        widget.setText(record.Caption);
    widget.setEnabled(record.Enabled);
    widget.setVisible(record.Visible);
}

void Show_Button(QAbstractButton& widget, const Button& record)
{
    widget.setEnabled(record.Enabled);
    widget.setVisible(record.Visible);
}

void Show_Text_Box(QLineEdit& widget, const Text_Box& record)
{
    const QSignalBlocker quiet(widget);
    if (widget.text() != record.Text) {
        widget.setText(record.Text);
        widget.setCursorPosition(record.Caret);
    }
    widget.setEnabled(record.Enabled);
}

void Show_Option_Pair(QRadioButton& first, QRadioButton& second, const Option_Pair& pair)
{
    for (QRadioButton* item : {&first, &second}) {
        item->setAutoExclusive(false);
        item->setChecked(pair.Selected == (item == &first ? 1 : 2));
        item->setAutoExclusive(true);
        item->setEnabled(pair.Enabled);
    }
}

void Show_Combo_Box(QComboBox& widget, const Combo_Box& record)
{
    const QSignalBlocker quiet(widget);
    QStringList items;
    for (int i = 0; i < widget.count(); ++i)
        items += widget.itemText(i);
    if (items != record.Items) {
        widget.clear();
        widget.addItems(record.Items);
    }
    if (widget.isEditable()) {
        if (widget.currentText() != record.Text)
            widget.setEditText(record.Text);
    } else {
        // A text that is no item, such as one of an older settings file, is shown without being chosen.
        const int index = widget.findText(record.Text);
        widget.setCurrentIndex(index);
        widget.setPlaceholderText(index < 0 ? record.Text : QString());
    }
    widget.setEnabled(record.Enabled);
}

void Give_Focus(const QWidget& form, QString& name)
{
    if (name.isEmpty())
        return;
    if (auto* target = form.findChild<QWidget*>(name))
        target->setFocus(Qt::OtherFocusReason);
    name.clear();
}
