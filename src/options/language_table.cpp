#include "options/language_table.h"

#include "support/run_time_error.h"
#include "support/text.h"

#include <QFile>
#include <QHash>
#include <algorithm>

using namespace Qt::StringLiterals;

/// Keeps the linker from dropping the compiled-in data; the macro must be used outside every namespace.
static void Take_In_Data()
{
    Q_INIT_RESOURCE(data);
}

LanguageTable Parse_Language_Table(const QByteArray& text)
{
    QStringList lines = Split_Text(QString::fromUtf8(text), u"\n"_s);
    if (!lines.isEmpty() && lines.constLast().isEmpty())
        lines.removeLast();

    LanguageTable table;
    for (QString line : lines) {
        if (line.endsWith(u'\r'))
            line.chop(1);
        if (line.isEmpty())
            continue;
        const QStringList fields = Split_Text(line, u"\\"_s);
        if (fields.size() < 3)
            Raise_Subscript(u"Reading the language table"_s, u"languages.txt"_s, line);
        table.push_back({.Iso639_1 = fields[2], .Iso639_2 = fields[1], .Name = fields[0]});
    }
    return table;
}

bool Load_Language_Table(LanguageTable& table, const QString& /*word*/)
{
    Take_In_Data();
    QFile file(u":/data/languages.txt"_s);
    if (file.open(QIODevice::ReadOnly))
        table = Parse_Language_Table(file.readAll());
    return !table.empty() && !table.front().Name.isEmpty();
}

/// Puts the first word of `text` where it belongs: a code of three or two letters unless it begins with a capital,
/// else a name. A single letter and the empty word belong nowhere.
static void Sort_First_Word(const QString& text, QString& iso1, QString& iso2, QString& name)
{
    QString cleaned = text;
    cleaned.replace(u"("_s, u" "_s).remove(u')').replace(u"  "_s, u" "_s);
    const QStringList words = Split_Text(cleaned, u" "_s);
    if (words.isEmpty())
        Raise_Subscript(u"Looking up a language"_s, u"the language table"_s, text);

    const QString& word = words.constFirst();
    if (word.size() < 2)
        return;
    const bool is_name = word.size() > 3 || word.at(0) == word.at(0).toUpper();
    if (is_name)
        name = word;
    else if (word.size() == 3)
        iso2 = word;
    else
        iso1 = word;
}

bool Parse_Language_Text(const LanguageTable& table, const QString& text, QString& iso1, QString& iso2, QString& name)
{
    iso1.clear();
    iso2.clear();
    name.clear();
    Sort_First_Word(text, iso1, iso2, name);

    auto row = table.end();
    if (!iso2.isEmpty())
        row = std::ranges::find(table, iso2, &LanguageRow::Iso639_2);
    else if (!iso1.isEmpty())
        row = std::ranges::find(table, iso1, &LanguageRow::Iso639_1);
    else if (!name.isEmpty())
        row = std::ranges::find(table, name, &LanguageRow::Name);
    if (row == table.end())
        return false;
    iso1 = row->Iso639_1;
    iso2 = row->Iso639_2;
    name = row->Name;
    return true;
}

QString Language_Code_Of(const LanguageTable& table, const QString& text)
{
    // Deliberate: an unknown code of three small letters comes back as it is, and only the first word of a name
    // counts, so that "Artificial languages (art)" has no code and "Norwegian Nynorsk (nno)" has Norwegian's.
    QString iso1, iso2, name;
    Parse_Language_Text(table, text, iso1, iso2, name);
    return iso2.toLower();
}

QString Table_Code(const QString& code)
{
    static const QHash<QString, QString> others = {
        {u"sqi"_s, u"alb"_s}, {u"hye"_s, u"arm"_s}, {u"eus"_s, u"baq"_s}, {u"mya"_s, u"bur"_s}, {u"zho"_s, u"chi"_s},
        {u"ces"_s, u"cze"_s}, {u"nld"_s, u"dut"_s}, {u"fra"_s, u"fre"_s}, {u"kat"_s, u"geo"_s}, {u"deu"_s, u"ger"_s},
        {u"ell"_s, u"gre"_s}, {u"isl"_s, u"ice"_s}, {u"mkd"_s, u"mac"_s}, {u"mri"_s, u"mao"_s}, {u"msa"_s, u"may"_s},
        {u"fas"_s, u"per"_s}, {u"ron"_s, u"rum"_s}, {u"slk"_s, u"slo"_s}, {u"bod"_s, u"tib"_s}, {u"cym"_s, u"wel"_s}};
    return others.value(code, code);
}

QString Language_Line(const LanguageRow& row)
{
    return row.Name + u" ("_s + row.Iso639_2 + u")"_s;
}

bool Language_Display_Of(const LanguageTable& table, const QString& code, QString& display)
{
    // Deliberate: no early stop, the last row with that code wins.
    bool found = false;
    for (const LanguageRow& row : table)
        if (row.Iso639_2 == code) {
            display = Language_Line(row);
            found = true;
        }
    return found;
}
