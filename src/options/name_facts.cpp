#include "options/name_facts.h"

#include "support/paths.h"

#include <QStringList>
#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;

static const QString Part_Dividers = QStringLiteral("._[](){},;");

static bool Divides(QChar letter)
{
    return letter == u' ' || letter == u'-' || Part_Dividers.contains(letter);
}

/// A part of a name and the divider ahead of it.
struct Name_Part
{
    QString Text;
    QChar Divider;
};

static std::vector<Name_Part> Parts_Of(const Name_Part& whole, const QString& dividers)
{
    std::vector<Name_Part> parts{{.Text = {}, .Divider = whole.Divider}};
    for (const QChar letter : whole.Text)
        if (dividers.contains(letter))
            parts.push_back({.Text = {}, .Divider = letter});
        else
            parts.back().Text += letter;
    return parts;
}

/// The three-letter code of a code or a name in small letters; empty if the table knows it as neither. Of a name of two
/// ("Spanish-Castilian") the first is enough.
static QString Known_Code(const LanguageTable& table, const QString& word)
{
    const auto code_where = [&table](const auto& fits) {
        const auto row = std::ranges::find_if(table, fits);
        return row == table.end() ? QString() : row->Iso639_2;
    };
    QString code;
    if (word.size() == 2)
        code = code_where([&](const LanguageRow& row) { return row.Iso639_1 == word; });
    else if (word.size() == 3)
        code = code_where([three = Table_Code(word)](const LanguageRow& row) { return row.Iso639_2 == three; });
    if (code.isEmpty())
        code = code_where([&](const LanguageRow& row) { return row.Name.compare(word, Qt::CaseInsensitive) == 0; });
    if (code.isEmpty() && word.size() > 3)
        code = code_where([&](const LanguageRow& row) {
            return row.Name.size() > word.size() && row.Name.startsWith(word, Qt::CaseInsensitive) &&
                   u"-;"_s.contains(row.Name.at(word.size()));
        });
    return code;
}

/// True for what a region or a script looks like behind a language: "br", "419", "hans".
static bool Is_Subtag(const QString& text)
{
    const bool letters = std::ranges::all_of(text, [](QChar letter) { return letter >= u'a' && letter <= u'z'; });
    const bool digits = std::ranges::all_of(text, [](QChar letter) { return letter >= u'0' && letter <= u'9'; });
    return (letters && (text.size() == 2 || text.size() == 4)) || (digits && text.size() == 3);
}

/// True for one of the words that are flags, which is noted then.
static bool Take_Flag(const QString& word, Name_Facts& facts)
{
    const bool hearing = word == "sdh"_L1 || word == "cc"_L1;
    facts.Default = facts.Default || word == "default"_L1;
    facts.Forced = facts.Forced || word == "forced"_L1;
    facts.Hearing_Impaired = facts.Hearing_Impaired || hearing;
    return hearing || word == "default"_L1 || word == "forced"_L1;
}

/// What was read so far.
struct Name_Reader
{
    const LanguageTable& Table;
    Name_Facts Facts = {};
    bool Behind_Language = false; ///< the part before this one was a language or a piece of one

    bool Take(const Name_Part& part);
};

/// False, with nothing taken, for a part that is neither a language nor a flag, nor both with blanks between them.
bool Name_Reader::Take(const Name_Part& part)
{
    QStringList words = part.Text.split(u' ', Qt::SkipEmptyParts);
    if (words.isEmpty())
        return true;
    const bool joined = part.Divider == u'-' || part.Divider == u'_';
    if (Behind_Language && joined && Is_Subtag(words.join(u' ')))
        return true;
    Behind_Language = false;
    Name_Facts read = Facts;
    while (!words.isEmpty() && Take_Flag(words.constLast(), read))
        words.removeLast();
    while (!words.isEmpty() && Take_Flag(words.constFirst(), read))
        words.removeFirst();
    // "Movie.en.hi.srt" is for the hard of hearing, not in Hindi.
    if (words == QStringList{u"hi"_s} && !read.Language.isEmpty())
        read.Hearing_Impaired = true;
    else if (!words.isEmpty()) {
        const QString code = Known_Code(Table, words.join(u' '));
        if (code.isEmpty())
            return false;
        read.Language = code;
        Behind_Language = true;
    }
    Facts = read;
    return true;
}

Name_Facts Facts_Of_Name(const LanguageTable& table, const QString& file_name, const QString& base_name)
{
    const QString name = Get_Base_Name(file_name).toLower();
    const QString base = base_name.toLower();
    qsizetype start = name.indexOf(base);
    if (start < 0)
        return {};
    start += base.size();
    // What goes on with the last word of the base is no part of its own: "Movies" beside "Movie".
    if (start > 0 && !Divides(name.at(start - 1)))
        while (start < name.size() && !Divides(name.at(start)))
            ++start;

    Name_Reader reader{.Table = table};
    for (const Name_Part& part : Parts_Of({.Text = name.sliced(start), .Divider = {}}, Part_Dividers))
        if (!reader.Take(part))
            for (const Name_Part& piece : Parts_Of(part, u"-"_s))
                reader.Take(piece);
    return reader.Facts;
}
