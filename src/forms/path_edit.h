#pragma once

#include <QLineEdit>
#include <QStringListModel>
#include <functional>

class Elided_Label;
class QLabel;
class Slot_Guard;

/// What the rules do with what is typed into a folder's box.
struct Path_Edit_Rules
{
    std::function<void(const QString& text)> Look;  ///< while it is typed
    std::function<bool(const QString& text)> Enter; ///< False: the text stays to be mended
    std::function<void(const QString& text)> Leave;
    std::function<void()> Give_Up;
    std::function<QStringList(const QString& text)> Offers; ///< the folders that a text can become
};

/// Typing over the label that shows a folder's path: it lies on the label, unseen until the focus is in it. Offers the
/// folders that can be meant. It takes no drops: its panel does.
class Path_Edit : public QLineEdit
{
    Q_OBJECT

  public:
    Path_Edit(Slot_Guard& guard, Elided_Label& shown, Path_Edit_Rules rules);

    /// A fault that stands alone in the box takes the place of the path, until that is typed.
    void Share_Box(const QLabel& fault);

    /// What was typed counts as left there, wherever the focus is.
    void Leave();

  protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void Offer_Folders(const QString& text);
    void Begin();
    void Give_Up();
    void Enter();

    Slot_Guard& guard_;
    Elided_Label& shown_;
    Path_Edit_Rules rules_;
    QStringListModel offers_;
    QString shown_first_;  ///< the text that it began with
    bool edited_ = false;  ///< it has the focus, or will have it again by itself
    bool clicked_ = false; ///< the mouse button that is down has brought the focus
    bool begun_ = false;   ///< something was done in it since it got the focus
};
