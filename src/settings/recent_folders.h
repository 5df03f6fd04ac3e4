#pragma once

#include <QString>
#include <QStringList>

struct Program;

/// The two lists of recently used folders. The current folder is the head of the stored list and no item of the
/// drop-down; the drop-down (Settings.Source_MRU, Settings.Target_MRU) holds the others.

/// frm_SourceMRU or frm_TargetMRU: a drop-down laid over the path box. Its items are the list in Settings.
struct Recent_List_Form
{
    QString Text;               ///< the edit line of cmbo_MRU
    bool Visible = false;       ///< the view hides the form once this is False
    bool Arrow_Pressed = false; ///< img_SourceMRU, img_TargetMRU: shifted by half its height
};

/// Takes the value of the stored list into the path, its caption and the drop-down. "NONE" in any case empties the
/// path; the empty text changes nothing. Items behind the sixteenth are left out.
void Read_Recent_Sources(Program& program, QString value);
void Read_Recent_Targets(Program& program, QString value);

/// The value to store for a path and its drop-down: "NONE", or the folders joined by ";". A folder whose name holds
/// ";" or a line break is never stored, because it would read back as another; the place of such a path stays empty.
QString Recent_Folders_Value(const QString& path, const QStringList& list);

/// Recent_Folders_Value of the source and of the target.
QString Recent_Sources_Value(const Program& program);
QString Recent_Targets_Value(const Program& program);

/// Puts `folder` at the head of `list`; a list of 15 items or more then loses its last one.
void Insert_Recent_Folder(QStringList& list, const QString& folder);
/// Takes every item equal to `folder` out of `list`; empty items stay.
void Remove_Recent_Folder(QStringList& list, const QString& folder);

/// The little arrow beside the path box: pressed, and clicked, which shows the list and waits for its end.
void img_SourceMRU_MouseDown(Program& program);
void img_TargetMRU_MouseDown(Program& program);
void img_SourceMRU_Click(Program& program);
void img_TargetMRU_Click(Program& program);

/// The operator chose item `index` of the drop-down: it changes places with the current path. The folder isn't
/// tested. An index that the list doesn't have does nothing.
void Choose_Recent_Source(Program& program, int index);
void Choose_Recent_Target(Program& program, int index);

/// Escape, a click on the picture, another form coming to the front: the form hides and nothing changes.
void Hide_Recent_List(Recent_List_Form& form);
