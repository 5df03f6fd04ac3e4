#include "forms/option_cell_delegate.h"

#include "support/text.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QCompleter>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QRegularExpressionValidator>
#include <QScopedValueRollback>
#include <algorithm>

using namespace Qt::StringLiterals;

/// What the widget held when it came up: leaving it like that types nothing.
static constexpr const char* At_First = "at_first";

void Find_By_Any_Part(QComboBox& list)
{
    list.completer()->setCompletionMode(QCompleter::PopupCompletion);
    list.completer()->setFilterMode(Qt::MatchContains);
}

Option_Cell_Delegate::Option_Cell_Delegate(const Option_Editor& editor, QObject* parent)
    : QStyledItemDelegate(parent), editor_(editor)
{}

void Option_Cell_Delegate::Take_Over(QWidget* widget)
{
    emit commitData(widget);
    emit closeEditor(widget);
}

QWidget* Option_Cell_Delegate::New_List(QWidget* parent, const QStringList& lines, bool editable) const
{
    auto* list = new QComboBox(parent);
    list->setEditable(editable);
    list->setInsertPolicy(QComboBox::NoInsert);
    list->setMaxVisibleItems(20);
    list->addItems(lines);
    if (editable)
        Find_By_Any_Part(*list);
    auto* self = const_cast<Option_Cell_Delegate*>(this);
    connect(list, &QComboBox::activated, self, [self, list] {
        if (self->key_at_work_)
            return;                      // the next key may go on
        list->setProperty(At_First, {}); // chosen is chosen, be it the same
        self->Take_Over(list);
    });
    return list;
}

QWidget* Option_Cell_Delegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                            const QModelIndex& index) const
{
    const auto slot = static_cast<Option_Slot>(index.column() - First_Value_Column);
    if (slot == Language_Slot)
        return New_List(parent, editor_.cmbo_Language, true);
    if (slot == Default_Slot || slot == Forced_Slot)
        return New_List(parent, QStringList{QString()} + editor_.cmbo_Default, false);
    auto* line = new QLineEdit(parent);
    line->setFrame(false);
    // A delay that the file words in another way (mkvmerge takes more than a number) can be mended as it is.
    const QString value = index.data(Qt::EditRole).toString();
    if (slot == Delay_Slot && (value.isEmpty() || Is_Signed_Number(value)))
        line->setValidator(new QRegularExpressionValidator(QRegularExpression(u"(-?[0-9]{1,9})?"_s), line));
    return line;
}

void Option_Cell_Delegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QStyledItemDelegate::paint(painter, option, index);
    if (!option.state.testFlag(QStyle::State_HasFocus))
        return;
    const bool selected = option.state.testFlag(QStyle::State_Selected);
    painter->save();
    painter->setPen(option.palette.color(selected ? QPalette::HighlightedText : QPalette::Text));
    painter->drawRect(option.rect.adjusted(0, 0, -1, -1));
    painter->restore();
}

static QString Text_In(const QWidget& widget)
{
    const auto* list = qobject_cast<const QComboBox*>(&widget);
    return list ? list->currentText() : static_cast<const QLineEdit&>(widget).text();
}

void Option_Cell_Delegate::setEditorData(QWidget* widget, const QModelIndex& index) const
{
    // The record may be rendered while something is typed.
    if (widget->property(At_First).isValid())
        return;
    const QString value = index.data(Qt::EditRole).toString();
    if (auto* list = qobject_cast<QComboBox*>(widget)) {
        list->setCurrentIndex(list->findText(value, Qt::MatchFixedString));
        if (list->isEditable()) {
            list->setEditText(value);
            list->lineEdit()->selectAll();
        } else {
            list->setCurrentIndex(std::max(list->currentIndex(), 0));
        }
    } else {
        static_cast<QLineEdit*>(widget)->setText(value);
    }
    widget->setProperty(At_First, Text_In(*widget));
}

void Option_Cell_Delegate::setModelData(QWidget* widget, QAbstractItemModel* model, const QModelIndex& index) const
{
    const QVariant at_first = widget->property(At_First);
    if (!at_first.isValid() || Text_In(*widget) != at_first.toString())
        model->setData(index, Text_In(*widget), Qt::EditRole);
}

bool Option_Cell_Delegate::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return QStyledItemDelegate::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent*>(event)->key();
    const bool enter = key == Qt::Key_Return || key == Qt::Key_Enter;
    if (qobject_cast<QComboBox*>(watched) && !enter && key != Qt::Key_Escape && key != Qt::Key_Tab &&
        key != Qt::Key_Backtab) {
        const QScopedValueRollback at_work(key_at_work_, true);
        watched->event(event);
        return true;
    }
    if (!enter)
        return QStyledItemDelegate::eventFilter(watched, event);
    const auto* line = qobject_cast<QLineEdit*>(watched);
    if (!line || line->hasAcceptableInput()) {
        Take_Over(static_cast<QWidget*>(watched));
        emit Entered();
    }
    return true;
}
