#pragma once

#include <QObject>

class QAction;
class QMenu;
class Slot_Guard;
class Startform;
struct Program;

/// File > Presets: each time it opens, the presets that are on the disk then, between the two items that are always
/// there. The one that was loaded last has a tick. Of very many the first are shown; frm_Presets has all.
class Preset_Menu : public QObject
{
    Q_OBJECT

  public:
    Preset_Menu(Startform& form, Program& program, Slot_Guard& guard);

  private:
    void Fill();
    void Add(const QString& name);

    Startform& form_;
    Program& program_;
    Slot_Guard& guard_;
    QMenu& menu_;
    QList<QAction*> items_;
};
