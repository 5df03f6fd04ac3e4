#include "fuzz.h"
#include "options/option_file.h"
#include "support/run_time_error.h"
#include "support/string_builder.h"
#include "support/text.h"

using namespace Qt::StringLiterals;

static const LanguageTable& Languages()
{
    static const LanguageTable table = [] {
        LanguageTable made;
        Claim(Load_Language_Table(made, {}), "the language table can be loaded");
        return made;
    }();
    return table;
}

static Option_Values Values_Of(const OptionRecord& record)
{
    return {record.Title, record.Language, record.Default, record.Forced, record.Delay};
}

static QString Shown(const Option_Values& values)
{
    return QStringList(values.begin(), values.end()).join(u'|');
}

/// What the editor shows of a file is what it and a run read of the file that it writes.
static void Check_The_Editor(const QString& media)
{
    const QString path = media + u".opt"_s;
    OptionRecord record;
    Load_Option_Record(path, record);
    clsStringBuilder faults;
    const Option_Values shown = Values_Of(record);
    if (shown == Option_Values{})
        return;
    Claim(Write_Option_File(path, shown, faults) == Option_Write_Status::Written, "what was read can be written");
    OptionRecord again;
    Claim(Load_Option_Record(path, again) && Values_Of(again) == shown, "the editor reads what it has written",
          Shown(shown) + u" / "_s + Shown(Values_Of(again)));
    Claim(Merge_Option_File(path, shown) == Option_Write_Status::Written, "what was read can be merged");
    OptionRecord merged;
    Claim(Load_Option_Record(path, merged) && Values_Of(merged) == shown, "merging the same changes nothing");
    Option_Values run;
    Claim(Read_Option_File(Languages(), media, run), "a run reads what the editor has written", Shown(shown));
    run[Language_Slot] = shown[Language_Slot];
    Claim(run == shown, "a run and the editor read a written file alike", Shown(run) + u" / "_s + Shown(shown));
}

/// A file beside a track: as it may be found, read by a run and by the editor, and written back.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const QString media = Work_File(u"a.mp3"_s);
    const QString path = media + u".opt"_s;
    Write_Work_File(path, bytes, size);
    Option_Values values;
    try {
        if (!Read_Option_File(Languages(), media, values))
            Claim(values == Option_Values{}, "a file that is refused gives no value", Shown(values));
    } catch (const Run_Time_Error&) {}
    for (const QString& value : values)
        Claim(!value.contains(u'\n') && !value.contains(u'\r') && !value.contains(u'='), "a value is a piece of a line",
              value);
    try {
        Check_The_Editor(media);
    } catch (const Run_Time_Error&) {}
    return 0;
}
