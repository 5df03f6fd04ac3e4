#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

/// One language of the table.
struct LanguageRow
{
    QString Iso639_1; ///< two letters, empty for most rows
    QString Iso639_2; ///< three letters
    QString Name;
};

using LanguageTable = std::vector<LanguageRow>;

/// The line that the lists show for a row: "Name (code)".
QString Language_Line(const LanguageRow& row);

/// Reads the table that is compiled in (data/languages.txt) into `table`. True if the first row has a
/// name. `word` is ignored; start-up passes "scrap".
bool Load_Language_Table(LanguageTable& table, const QString& word);

/// The rows of a table's text: lines `Name\iso639-2\iso639-1` ended by CR LF or LF.
LanguageTable Parse_Language_Table(const QByteArray& text);

/// The general look-up. Only the first word of `text` counts. Error 9 for a text without one. True if a row was found;
/// an output that was set by the text itself stays even if none was.
bool Parse_Language_Text(const LanguageTable& table, const QString& text, QString& iso1, QString& iso2, QString& name);

/// The lower-case ISO 639-2 code of a name, a code or a "Name (code)" line; empty if there is none. Error 9 for the
/// empty text.
QString Language_Code_Of(const LanguageTable& table, const QString& text);

/// The code that the table has for a language with two of three letters: "ger" for "deu". Any other code as it is.
QString Table_Code(const QString& code);

/// The line "Name (code)" of a three-letter code; false, with `display` left alone, if no row has it.
bool Language_Display_Of(const LanguageTable& table, const QString& code, QString& display);
