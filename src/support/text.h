#pragma once

#include <QString>
#include <QStringList>
#include <cstdint>

/// Text as the whole program understands it: splitting, trimming, numbers in and out.

/// CR LF, the line end of logs, option files and chapter files on every platform.
inline const QString Line_Break = QStringLiteral("\r\n");

/// Splits at every `separator`, case-sensitively. The empty text has no pieces (QString::split would give one).
QStringList Split_Text(const QString& text, const QString& separator);

/// Piece `index` (from 0) of the text split at every `separator`; empty if there are fewer pieces. For lines that may
/// be long and of which one piece is wanted.
QString Piece_Of(const QString& text, QChar separator, int index);

/// The text without the blanks (U+0020 only) at both ends.
QString Trim_Blanks(const QString& text);

/// Text of a single-precision number: up to seven significant digits, capital E, no leading plus.
QString Single_To_Text(float value);

/// The number at the start of a text: blanks skipped, then sign, digits, point and exponent up to the first character
/// that can't belong to it; 0 if there is none.
double Number_Prefix(const QString& text);

/// The whole text as a number, blanks at both ends allowed; false if it is none ("N/A", "").
bool Text_To_Number(const QString& text, double& value);

/// The whole text as a number, or error 13 that names `doing` and `subject`.
double Require_Number(const QString& text, const QString& doing, const QString& subject);

/// Rounds half to even and checks the 16-bit range; error 6 where it doesn't fit.
std::int16_t Round_To_Int16(double value, const QString& doing);
/// Rounds half to even and checks the 32-bit range; error 6 where it doesn't fit.
std::int32_t Round_To_Int32(double value, const QString& doing);
/// A 16-bit counter's new value; error 6 where it doesn't fit.
std::int16_t Checked_Int16(long long value, const QString& doing);

/// Lower-cases only A to Z, for keys whose case doesn't matter.
QString Ascii_Lower(const QString& text);

/// How many times `part` stands in `text`, case-sensitively, each search starting one character after the last hit; 0
/// if either is empty.
int Count_Substring(const QString& text, const QString& part);

/// The text before the first character of code 0, or all of it.
QString Cut_At_Nul(const QString& text);

/// Non-empty, and every character a digit 0 to 9.
bool Is_All_Digits(const QString& text);
/// At most one leading "-", then one or more digits.
bool Is_Signed_Number(const QString& text);
/// Every piece between commas passes Is_All_Digits; the empty text has no pieces and passes.
bool Is_Digit_List(const QString& text);

/// Bytes without a mark that tells their encoding: UTF-8, and the system's code page where they are no UTF-8. Texts
/// from a system with an 8-bit one aren't; taken for U+FFFD, their letters would be lost once the text is written
/// again.
QString Text_Of_Bytes(QByteArrayView bytes);

/// The text with a blank for each CR LF, CR or LF: it goes into a line of a file.
QString On_One_Line(QString text);
