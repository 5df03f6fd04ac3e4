#include "fuzz.h"
#include "inspect/identification.h"
#include "inspect/identification_json.h"
#include "support/text.h"

#include <algorithm>

using namespace Qt::StringLiterals;

/// How the lines of mkvmerge's verbose text begin.
static bool Begins_As_A_Line(const QString& line)
{
    const QString begins[] = {u"File '"_s,        u"Track ID "_s,          u"Attachment ID "_s, u"Chapters: "_s,
                              u"Global tags: "_s, u"Tags for track ID "_s, u"Warning: "_s,      u"Error: "_s};
    return std::ranges::any_of(begins, [&](const QString& begin) { return line.startsWith(begin); });
}

/// mkvmerge's identification of a file, whose tags and names may hold anything.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const QString json = Text_Of(bytes, size);
    const QString text = Verbose_Text_Of_Json(json, u"/v/a.mkv"_s);
    if (text != json)
        for (const QString& line : Identification_Lines(text, true))
            Claim(Begins_As_A_Line(line) && !line.contains(u'\n') && !line.contains(u'\r'),
                  "no text in a file makes a line of its own", line);
    for (const bool keep : {true, false}) {
        const QStringList lines = Identification_Lines(text, keep);
        Claim(lines.isEmpty() || !lines.constLast().isEmpty(), "no empty lines at the end");
        Claim(lines.size() <= text.count(Line_Break) + 1, "no line comes from nowhere");
    }
    return 0;
}
