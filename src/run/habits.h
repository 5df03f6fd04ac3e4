#pragma once

#include <QString>
#include <QStringList>

struct Program;

/// Three habits of the classic run spoil outputs without losing anything. Where the key "Sensible Names And Sizes" is
/// off a careful batch keeps them, and says so.

/// What the assembled command of the video in work owes to them, in words that name the key. `video_bases` are the base
/// names in lower case of all videos of the folder.
QStringList Habit_Warnings(const Program& program, const QStringList& video_bases);

/// Companions that were found beside the video in work and didn't get into its command, in words.
QStringList Companions_Left_Out(const Program& program);
