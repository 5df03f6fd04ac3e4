#pragma once

#include <QString>
#include <QStringList>
#include <vector>

struct Program;

/// A popup menu with its one item: a right-button press on one of the controls opens it there.
struct Popup
{
    QStringList Controls; ///< their names; pic_AttachmentsPath stands on frm_Attachments, all others on the main form
    QString Menu;
    QString Item;
    QString Caption; ///< of the item
    void (*Command)(Program&);
};

const std::vector<Popup>& Popups();

/// The popup of a control; null if it has none.
const Popup* Find_Popup(const QString& control);
