#pragma once

#include "state/dialogs.h"

#include <QString>
#include <QStringList>

struct Program;

/// The two lists of recently used folders. The current folder is the head of the stored list and no item of the
/// drop-down; the drop-down (Settings.Source_MRU, Settings.Target_MRU) holds the others.

/// Puts `folder` at the head of `list`; a list of 15 items or more then loses its last one.
void Insert_Recent_Folder(QStringList& list, const QString& folder);
/// Takes every item equal to `folder` out of `list`; empty items stay.
void Remove_Recent_Folder(QStringList& list, const QString& folder);

/// The little arrow beside the path box: pressed, let go wherever the pointer is by then, and clicked, which shows the
/// list and waits for its end. A list without an item isn't shown.
void img_SourceMRU_MouseDown(Program& program);
void img_TargetMRU_MouseDown(Program& program);
void img_SourceMRU_MouseUp(Program& program);
void img_TargetMRU_MouseUp(Program& program);
void img_SourceMRU_Click(Program& program);
void img_TargetMRU_Click(Program& program);

/// The operator chose item `index` of the drop-down: it changes places with the current path. The folder isn't
/// tested. An index that the list doesn't have does nothing.
void Choose_Recent_Source(Program& program, int index);
void Choose_Recent_Target(Program& program, int index);

/// Escape, a click on the picture, another form coming to the front: the form hides and nothing changes.
void Hide_Recent_List(Recent_List_Form& form);
