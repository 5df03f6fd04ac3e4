#pragma once

#include <QString>
#include <QStringList>

/// Controls as plain records: what the logic reads and sets. A view renders them; the headless driver and the tests
/// use them as they are. Nothing here knows a widget.

/// A check box. Value is 0 unticked, 1 ticked, 2 indeterminate (only from a word in the settings file that is neither
/// on nor off). Tag holds the word of the two boxes that carry one ("no" or "yes").
struct Check_Box
{
    int Value = 0;
    bool Enabled = true;
    QString Caption;
    QString Tag;
};

/// A pair of option buttons, items 1 and 2. Selected 0: neither. The rules always enable or disable both.
struct Option_Pair
{
    int Selected = 0;
    bool Enabled = true;
};

/// A text that the program shows: a label, a path, a fault, a mark.
struct Label
{
    QString Caption;
    bool Visible = true;
    bool Enabled = true;
};

struct Button
{
    QString Caption;
    bool Visible = true;
    bool Enabled = true;
};

/// A box that holds other controls or a picture. Caption is the headline drawn into its border, if it has one.
struct Panel
{
    QString Caption;
    bool Visible = true;
    bool Enabled = true;
};

/// A line of text that the operator edits. Caret counts characters from the start. Active: painted in the window
/// colour instead of the colour of an inactive control.
struct Text_Box
{
    QString Text;
    int Caret = 0;
    bool Enabled = true;
    bool Active = true;
};

struct Menu_Item
{
    QString Caption;
    bool Checked = false;
    bool Enabled = true;
    bool Visible = true;
};

/// A drop-down: Text is what its edit line shows, which need not be one of Items.
struct Combo_Box
{
    QStringList Items;
    QString Text;
    bool Enabled = true;
};

/// Where a form stands, in pixels of the screen.
struct Form_Place
{
    int Left = 0;
    int Top = 0;
    int Width = 0;
    int Height = 0;
    int Window_State = 0; ///< 0 normal, 1 minimised, 2 maximised
};
