#pragma once

#include "state/main_form.h"

#include <QString>

/// The captions of the two folder boxes while a run counts its files. The split run uses the headlines as they stand,
/// the normal run with a blank ahead.

inline const QString Videos_Box_Headline = QStringLiteral("Video Files Path (drag 'n drop)   ");
inline const QString Target_Box_Headline = QStringLiteral("Target Path (drag 'n drop)   ");

/// The videos' box: how many files were found.
void Show_Files_Found(Main_Form& form, const QString& headline, int files);
/// The target's box: how many files are done.
void Show_Files_Done(Main_Form& form, const QString& headline, int files);
/// The target's box ahead of the first file, which speaks of "Files".
void Show_Nothing_Done_Yet(Main_Form& form, const QString& headline);
