#include "command/external_subtitles.h"
#include "fuzz.h"
#include "support/paths.h"
#include "support/run_time_error.h"

using namespace Qt::StringLiterals;

/// The index of a VobSub pair: which language its track gets.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const QString path = Work_File(u"a.idx"_s);
    Write_Work_File(path, bytes, size);
    ExternalTrackList list{1};
    list.back().Language = u"as before"_s;
    try {
        Claim(Read_Idx_File(path.chopped(5), u"a.idx"_s, false, {}, list), "the file is there");
    } catch (const Run_Time_Error& error) {
        Claim(error.Subject() == path, "an error names the file", error.Message());
    }
    const QString language = list.back().Language;
    Claim(list.size() == 1, "no track is added");
    Claim(language == u"as before"_s ||
              (language.trimmed() == language.trimmed().toLower() && !language.contains(u',') &&
               !language.contains(u':') && !language.startsWith(u' ')),
          "a language is a piece of its line", language);
    return 0;
}
