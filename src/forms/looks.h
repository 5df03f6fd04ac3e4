#pragma once

#include <QColor>
#include <QFont>
#include <QIcon>
#include <QPalette>
#include <QString>

class QLabel;
class QLineEdit;

/// The few colours that mean something, each in a light and a dark shade so that it reads well on either palette, and
/// the program's own pictures.

bool Is_Dark(const QPalette& palette);
QColor Finished_Colour(const QPalette& palette);
QColor Interrupted_Colour(const QPalette& palette);
QColor Fault_Colour(const QPalette& palette);
QColor Mark_Colour(const QPalette& palette);
QColor Head_Colour(const QPalette& palette);
/// The ground of a box that takes no part in what is written.
QColor Grey_Box_Colour(const QPalette& palette);

/// A picture of ours by its file's name; those drawn in one colour take that of the palette's text.
QIcon Picture(const QString& name, const QPalette& palette);

/// The desktop's font of fixed width; where it names none, any that is installed.
QFont Fixed_Font();
/// All letters are as wide as each other.
bool Is_Fixed_Width(const QFont& font);

/// A tool tip that shows the text as it is. Tool tips guess whether a text is markup; a name never is.
QString Literal_Tool_Tip(const QString& text);

/// Gives a label's words that colour, on whatever it stands.
void Tint(QLabel& label, const QColor& colour);

/// The words in an empty box are fainter than its text, also where a desktop's dark palette leaves them black.
void Fade_Placeholder(QLineEdit& box);

/// From 1 to 21; 4.5 is what small text needs.
double Contrast(const QColor& one, const QColor& other);
/// The colour, darkened until white text reads on it.
QColor Under_White_Text(QColor colour);
