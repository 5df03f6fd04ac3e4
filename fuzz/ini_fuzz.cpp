#include "bench/nobody.h"
#include "fuzz.h"
#include "settings/ini_file.h"
#include "settings/settings_store.h"
#include "state/program.h"
#include "support/run_time_error.h"

using namespace Qt::StringLiterals;

namespace {

/// The text that is written after `document` was read; nothing if reading or writing stops at a value.
std::optional<QByteArray> Read_And_Written(Ini_Document document)
{
    Nobody nobody;
    Program program(nobody);
    program.Now = [] { return QDateTime(QDate(2026, 3, 7), QTime(13, 5)); };
    try {
        Read_Settings_From(program, document);
    } catch (const Run_Time_Error&) {
        return {};
    }
    if (Write_Settings_To(program, false, document).Failed_Row != nullptr)
        return {};
    return document.Content();
}

/// A value that is set is the one that is read once the text was saved, and no other value changes.
void Check_A_Change(const QByteArray& text)
{
    const QString value = QString::fromUtf8(text.left(text.indexOf('\n')));
    const Ini_Document before(text);
    Ini_Document document(text);
    document.Set_Value(u"Paths"_s, u"Last Audios Path"_s, value);
    const Ini_Document after(document.Content());
    for (const Settings_Row& row : Settings_Rows()) {
        const bool is_changed = row.Key == u"Last Audios Path"_s;
        Claim(after.Value(row.Section, row.Key) == (is_changed ? document : before).Value(row.Section, row.Key),
              "a change changes its own value only", row.Section + u'/' + row.Key);
    }
}

/// Only of what is read: whether a box is enabled is written for other readers, and follows from what the file said.
void Check_The_Values(const QByteArray& once, const QByteArray& twice)
{
    const Ini_Document first(once);
    const Ini_Document second(twice);
    for (const Settings_Row& row : Settings_Rows())
        Claim(row.Used != Settings_Row::Use::Read ||
                  first.Value(row.Section, row.Key) == second.Value(row.Section, row.Key),
              "what was read and written is read and written as it is", row.Section + u'/' + row.Key);
}

} // namespace

/// Vantorra.ini: the text with its rules, and all settings read from it and written into it again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const QByteArray text(reinterpret_cast<const char*>(bytes), static_cast<qsizetype>(size));
    const QByteArray saved = Ini_Document(text).Content();
    Claim(Ini_Document(saved).Content() == saved, "saving twice changes nothing");
    Check_A_Change(text);
    if (const auto once = Read_And_Written(Ini_Document(text)))
        if (const auto twice = Read_And_Written(Ini_Document(*once)))
            Check_The_Values(*once, *twice);
    return 0;
}
