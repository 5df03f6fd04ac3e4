#pragma once

#include <QString>
#include <QStringList>
#include <QtGlobal>

/// The two text forms of chapters and the Matroska chapter XML that is made of them; pure text, no files.
/// docs/formats/chapters.md shows all three.

/// The chapters of one text: three parallel lists, never without an entry. Times and names stand as they were read.
struct Chapter_Lists
{
    QStringList Times{QString()};
    QStringList Uids{QString()};
    QStringList Names{QString()};
};

/// The lines without the blank ones; a blank last line stays as one empty entry, so there is always an entry.
QStringList Chapter_Lines(const QStringList& lines);

/// True for lines in the style of Ogg comments, "CHAPTER01=00:00:00.000" and "CHAPTER01NAME=Intro", by the first line.
bool Is_Ogg_Style(const QStringList& lines);

/// The chapters of lines in Ogg style, two lines each. `path` names the file in an error: 9 for an odd number of lines
/// or a line without "=", 13 for a chapter without a number.
Chapter_Lists Read_Ogg_Chapters(const QStringList& lines, const QString& path);

/// The chapters of lines "00:05:00.000 Act Two". `path` names the file in an error: 9 if there is no text at all.
Chapter_Lists Read_Text_Chapters(const QStringList& lines, const QString& path);

/// Only the digits 0 to 9 of a text.
QString Digits_Of(const QString& text);

/// The number of an edition for a random number from 0 up to but not including 1: 12 digits.
QString Edition_Number(float random);

/// A name as XML has to have it for mkvmerge to read it as it stands: "<" and a "&" that begins no reference are
/// written out. What names a letter already ("&amp;", "&#38;") stays.
QString Xml_Text(QString name);

/// The XML as it is written. `duration` ends the last chapter; where it is empty, nothing does. Nothing is checked or
/// escaped.
QString Chapter_Xml(const Chapter_Lists& chapters, const QString& edition_number, const QString& duration);
