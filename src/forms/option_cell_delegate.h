#pragma once

#include "state/option_editor_state.h"

#include <QStyledItemDelegate>

class QComboBox;

/// Any part of a language's name, typed into the drop-down, finds it.
void Find_By_Any_Part(QComboBox& list);

/// What is typed into a cell of the editor's list in place: a line for the title, the lines of the language table, "no"
/// and "yes" for the flags, digits and a sign for the delay.
class Option_Cell_Delegate : public QStyledItemDelegate
{
    Q_OBJECT

  public:
    Option_Cell_Delegate(const Option_Editor& editor, QObject* parent);

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    /// The current cell has a frame that is seen on selected rows, too: it is what a key begins to type into.
    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void setEditorData(QWidget* widget, const QModelIndex& index) const override;
    void setModelData(QWidget* widget, QAbstractItemModel* model, const QModelIndex& index) const override;

  signals:
    /// Enter ended the typing.
    void Entered();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QWidget* New_List(QWidget* parent, const QStringList& lines, bool editable) const;
    void Take_Over(QWidget* widget);

    const Option_Editor& editor_;
    bool key_at_work_ = false; ///< a key is moving through a drop-down's lines
};
