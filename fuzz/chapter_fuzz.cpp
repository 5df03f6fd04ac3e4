#include "command/chapter_text.h"
#include "fuzz.h"
#include "support/run_time_error.h"
#include "support/text.h"

using namespace Qt::StringLiterals;

/// The two text forms of chapters, and the XML that is made of them.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const QString text = Text_Of(bytes, size).replace(Line_Break, u"\n"_s).replace(u'\r', u'\n');
    const QStringList lines = Chapter_Lines(text.split(u'\n'));
    Claim(!lines.isEmpty(), "there is always an entry");
    for (qsizetype i = 0; i + 1 < lines.size(); ++i)
        Claim(!Trim_Blanks(lines[i]).isEmpty(), "only the last entry may be blank");
    try {
        const QString path = u"a_Chapters.txt"_s;
        const Chapter_Lists chapters =
            Is_Ogg_Style(lines) ? Read_Ogg_Chapters(lines, path) : Read_Text_Chapters(lines, path);
        const qsizetype count = chapters.Times.size();
        Claim(count > 0 && chapters.Uids.size() == count && chapters.Names.size() == count, "three lists of one size");
        Claim(count <= lines.size(), "no chapter comes from nowhere");
        for (const QString& uid : chapters.Uids)
            Claim(uid.isEmpty() || Is_All_Digits(uid), "a number is made of digits", uid);
        // A chapter takes its twelve lines whatever its name holds, between the eight and the two of the frame.
        const QString xml = Chapter_Xml(chapters, Edition_Number(0.5F), u"01:00:00"_s);
        Claim(xml.count(Line_Break) == 10 + 12 * count && xml.count(u'\n') == xml.count(Line_Break),
              "no name or time breaks a line of the XML", xml);
    } catch (const Run_Time_Error& error) {
        Claim(error.Subject() == u"a_Chapters.txt"_s || error.Message().contains(u"a_Chapters.txt"_s),
              "an error names the file", error.Message());
    }
    return 0;
}
