#include "command/chapter_text.h"

#include "support/run_time_error.h"
#include "support/text.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

QStringList Chapter_Lines(const QStringList& lines)
{
    QStringList kept{QString()};
    for (const QString& line : lines) {
        if (!kept.constLast().isEmpty())
            kept += QString();
        if (!Trim_Blanks(line).isEmpty())
            kept.last() = line;
    }
    return kept;
}

/// The lines without the empty last entry that a blank last line leaves behind others.
static QStringList Without_Empty_End(QStringList lines)
{
    if (lines.size() > 1 && lines.constLast().isEmpty())
        lines.removeLast();
    return lines;
}

bool Is_Ogg_Style(const QStringList& lines)
{
    const QString& first = lines.constFirst();
    return first.indexOf(u'=') > 0 && Ascii_Lower(first.left(7)) == u"chapter"_s;
}

/// Fills the last entry of the lists, or one behind it if that has a time: an entry without a time is overwritten.
static void Add_Chapter(Chapter_Lists& chapters, const QString& time, const QString& uid, const QString& name)
{
    if (!chapters.Times.constLast().isEmpty()) {
        chapters.Times += QString();
        chapters.Uids += QString();
        chapters.Names += QString();
    }
    chapters.Times.last() = time;
    chapters.Uids.last() = uid;
    chapters.Names.last() = name;
}

[[noreturn]] static void Raise_Bad_Pair(const QString& path, const QString& line)
{
    throw Run_Time_Error(
        Error_Number::Subscript_Out_Of_Range, u"Reading an Ogg style chapter file"_s, path, line,
        u"Each chapter takes two lines, CHAPTER01=00:00:00.000 and CHAPTER01NAME=Intro; mend the file."_s);
}

/// The number as it is. Of more digits than 64 bits hold for sure the last ones, which tell chapters apart.
static QString Chapter_Uid(const QString& digits)
{
    constexpr qsizetype most_digits = 19;
    return QString::number(digits.right(most_digits).toULongLong());
}

Chapter_Lists Read_Ogg_Chapters(const QStringList& lines, const QString& path)
{
    const QStringList pairs = Without_Empty_End(lines);
    Chapter_Lists chapters;
    for (qsizetype i = 0; i < pairs.size(); i += 2) {
        const QString& time_line = pairs.at(i);
        if (i + 1 == pairs.size() || !time_line.contains(u'='))
            Raise_Bad_Pair(path, time_line);
        const QString& name_line = pairs.at(i + 1);
        if (!name_line.contains(u'='))
            Raise_Bad_Pair(path, name_line);
        const QString digits = Digits_Of(Piece_Of(time_line, u'=', 0));
        if (digits.isEmpty())
            Raise_Type_Mismatch(u"Reading the number of a chapter"_s, path, time_line);
        Add_Chapter(chapters, Piece_Of(time_line, u'=', 1), Chapter_Uid(digits), Piece_Of(name_line, u'=', 1));
    }
    return chapters;
}

Chapter_Lists Read_Text_Chapters(const QStringList& lines, const QString& path)
{
    const QStringList texts = Without_Empty_End(lines);
    if (texts.constFirst().isEmpty())
        throw Run_Time_Error(Error_Number::Subscript_Out_Of_Range, u"Reading a chapter text file"_s, path, {},
                             u"It holds no text. Write one chapter a line, 00:05:00.000 Act Two, or take it away."_s);
    Chapter_Lists chapters;
    for (qsizetype i = 0; i < texts.size(); ++i) {
        // Deliberate: the first piece is blanked, not taken out, so a name keeps its leading blank.
        const QString time = Piece_Of(texts.at(i), u' ', 0);
        Add_Chapter(chapters, time, QString::number(i + 1), texts.at(i).mid(time.size()));
    }
    return chapters;
}

QString Digits_Of(const QString& text)
{
    QString digits;
    for (const QChar letter : text)
        if (letter >= u'0' && letter <= u'9')
            digits += letter;
    return digits;
}

QString Edition_Number(float random)
{
    return QString::number(static_cast<qint64>(static_cast<double>(random) * 314000000000.0 + 100000000000.0));
}

QString Xml_Text(QString name)
{
    static const QRegularExpression lone(u"&(?!(amp|lt|gt|quot|apos|#[0-9]+|#x[0-9A-Fa-f]+);)"_s);
    return name.replace(lone, u"&amp;"_s).replace(u'<', u"&lt;"_s);
}

QString Chapter_Xml(const Chapter_Lists& chapters, const QString& edition_number, const QString& duration)
{
    QString xml;
    const auto line = [&xml](const QString& text) { xml += text + Line_Break; };
    line(u"<?xml version=\"1.0\"?>"_s);
    line(u"<!-- <!DOCTYPE Chapters SYSTEM \"matroskachapters.dtd\"> -->"_s);
    line(u"<Chapters>"_s);
    line(u"  <EditionEntry>"_s);
    line(u"    <EditionUID>"_s + edition_number + u"</EditionUID>"_s);
    line(u"    <EditionFlagDefault>1</EditionFlagDefault>"_s);
    line(u"    <EditionFlagHidden>0</EditionFlagHidden>"_s);
    line(u"    <EditionFlagOrdered>0</EditionFlagOrdered>"_s);
    for (qsizetype i = 0; i < chapters.Times.size(); ++i) {
        const bool is_last = i + 1 == chapters.Times.size();
        const QString end = is_last ? duration : chapters.Times.at(i + 1);
        const QString& name = chapters.Names.at(i);
        line(u"    <ChapterAtom>"_s);
        line(u"      <ChapterUID>"_s + chapters.Uids.at(i) + u"</ChapterUID>"_s);
        line(u"      <ChapterTimeStart>"_s + chapters.Times.at(i) + u"</ChapterTimeStart>"_s);
        // Only a careful run goes on without a duration: the last chapter has no end then.
        if (!is_last || !duration.isEmpty())
            line(u"      <ChapterTimeEnd>"_s + end + u"</ChapterTimeEnd>"_s);
        line(u"      <ChapterFlagHidden>0</ChapterFlagHidden>"_s);
        line(u"      <ChapterFlagEnabled>1</ChapterFlagEnabled>"_s);
        line(u"      <ChapterDisplay>"_s);
        // Deliberate: names and times are written as they stand, "&" and "<" too.
        line(u"        <ChapterString>"_s + (name.isEmpty() ? u"Chapter "_s + QString::number(i + 1) : name) +
             u"</ChapterString>"_s);
        line(u"        <ChapterLanguage>eng</ChapterLanguage>"_s);
        line(u"        <ChapLanguageIETF>eng</ChapLanguageIETF>"_s);
        line(u"      </ChapterDisplay>"_s);
        line(u"    </ChapterAtom>"_s);
    }
    line(u"  </EditionEntry>"_s);
    line(u"</Chapters>"_s);
    return xml;
}
