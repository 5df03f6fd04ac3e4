#include "settings/ini_file.h"

#include "support/files.h"
#include "support/run_time_error.h"
#include "support/text.h"
#include "support/whole_file.h"

#include <QFileInfo>
#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

static constexpr char Byte_Order_Mark[] = "\xEF\xBB\xBF";

static QByteArray Name_Of(QByteArrayView text)
{
    return text.trimmed().toByteArray().toLower();
}

Ini_Document::Ini_Document(QByteArray content) : content_(std::move(content))
{
    if (content_.startsWith(Byte_Order_Mark)) {
        has_mark_ = true;
        content_.remove(0, 3);
    }
    bool in_first = false; // the lines at hand belong to the section recorded last
    for (qsizetype begin = 0; begin < content_.size();) {
        const qsizetype end = Line_End_From(begin);
        const qsizetype next = end + 1;
        const QByteArrayView line = QByteArrayView(content_).sliced(begin, end - begin).trimmed();
        const qsizetype closing = line.startsWith('[') ? line.indexOf(']') : -1;
        if (closing > 0) {
            if (in_first)
                sections_.back().End = begin;
            const QByteArray name = Name_Of(line.sliced(1, closing - 1));
            in_first = !by_name_.contains(name);
            if (in_first) {
                by_name_.insert(name, sections_.size());
                Section section;
                section.Header = begin;
                section.Body = std::min(next, content_.size());
                section.End = content_.size();
                section.Insert_At = section.Body;
                sections_.push_back(section);
            }
        }
        begin = next;
    }
}

qsizetype Ini_Document::Line_End_From(qsizetype begin) const
{
    const qsizetype end = content_.indexOf('\n', begin);
    return end < 0 ? content_.size() : end;
}

Ini_Document::Section* Ini_Document::Find(const QString& section) const
{
    const auto found = by_name_.find(Name_Of(section.toUtf8()));
    if (found == by_name_.end())
        return nullptr;
    Section& record = sections_[*found];
    if (!record.Is_Indexed)
        Index_Keys(record);
    return &record;
}

/// Calls `visit(line begin, position of "=", line end, begin of the next line)` for each line of the range that holds
/// a key.
template <typename Visit>
static void For_Each_Key(const QByteArray& content, qsizetype from, qsizetype to, Visit visit)
{
    for (qsizetype begin = from; begin < to;) {
        qsizetype end = content.indexOf('\n', begin);
        if (end < 0 || end > to)
            end = to;
        const QByteArrayView line = QByteArrayView(content).sliced(begin, end - begin);
        const qsizetype equals = line.indexOf('=');
        if (equals > 0 && !line.trimmed().startsWith(';') && !line.first(equals).trimmed().isEmpty())
            visit(begin, begin + equals, end, std::min(end + 1, to));
        begin = end + 1;
    }
}

void Ini_Document::Index_Keys(Section& section) const
{
    section.Is_Indexed = true;
    For_Each_Key(content_, section.Body, section.End,
                 [&](qsizetype begin, qsizetype equals, qsizetype end, qsizetype next) {
                     const QByteArray name = Name_Of(QByteArrayView(content_).sliced(begin, equals - begin));
                     if (!section.Keys.contains(name))
                         section.Keys.insert(name, {equals + 1, end, std::nullopt, false});
                     section.Insert_At = next;
                 });
}

static QString Value_As_Read(QByteArrayView bytes)
{
    QByteArrayView value = bytes.trimmed();
    const bool is_quoted = value.size() >= 2 && (value.front() == '"' || value.front() == '\'');
    if (is_quoted && value.back() == value.front())
        value = value.sliced(1, value.size() - 2);
    // A lone CR may stand in it, and a code of 0.
    QString text = On_One_Line(Cut_At_Nul(Text_Of_Bytes(value)));
    if (text.size() <= Longest_Value)
        return text;
    return text.left(text.at(Longest_Value - 1).isHighSurrogate() ? Longest_Value - 1 : Longest_Value);
}

QString Ini_Value_As_Read(const QString& text)
{
    return Value_As_Read(text.toUtf8());
}

std::optional<QString> Ini_Document::Value(const QString& section, const QString& key) const
{
    const Section* const record = Find(section);
    if (record == nullptr)
        return std::nullopt;
    const auto found = record->Keys.find(Name_Of(key.toUtf8()));
    if (found == record->Keys.end())
        return std::nullopt;
    if (found->New_Value)
        return Value_As_Read(found->New_Value->toUtf8());
    return Value_As_Read(QByteArrayView(content_).sliced(found->Value_Begin, found->Line_End - found->Value_Begin));
}

void Ini_Document::Set_Value(const QString& section, const QString& key, const QString& value)
{
    Section* record = Find(section);
    if (record == nullptr) {
        Section added;
        added.Header = added.Body = added.End = added.Insert_At = content_.size();
        added.Is_Indexed = true;
        added.New_Header = section.toUtf8();
        by_name_.insert(Name_Of(added.New_Header), sections_.size());
        sections_.push_back(added);
        record = &sections_.back();
    }
    const QByteArray name = Name_Of(key.toUtf8());
    auto found = record->Keys.find(name);
    if (found == record->Keys.end()) {
        found = record->Keys.insert(name, {0, 0, std::nullopt, true});
        record->Added.push_back(key.toUtf8());
    }
    found->New_Value = On_One_Line(Cut_At_Nul(value));
}

void Ini_Document::Delete_Section(const QString& section)
{
    Section* const record = Find(section);
    if (record == nullptr)
        return;
    record->Is_Deleted = true;
    record->Keys.clear();
    record->Added.clear();
}

void Ini_Document::Collect_Edits(const Section& section, std::vector<Edit>& edits) const
{
    const bool is_new = !section.New_Header.isEmpty();
    if (section.Is_Deleted && !is_new) {
        if (section.Added.empty())
            edits.push_back({section.Header, section.Body, {}});
        For_Each_Key(content_, section.Body, section.End, [&](qsizetype begin, qsizetype, qsizetype, qsizetype next) {
            edits.push_back({begin, next, {}});
        });
    }
    QByteArray added;
    if (is_new && !section.Added.empty())
        added += '[' + section.New_Header + ']' + '\n';
    for (const QByteArray& name : section.Added)
        added += name + '=' + section.Keys.value(Name_Of(name)).New_Value->toUtf8() + '\n';
    for (const Key& key : section.Keys)
        if (!key.Is_Added && key.New_Value)
            edits.push_back({key.Value_Begin, key.Line_End, key.New_Value->toUtf8()});
    if (!added.isEmpty())
        edits.push_back({section.Insert_At, section.Insert_At, added});
}

QByteArray Ini_Document::Content() const
{
    std::vector<Edit> edits;
    for (const Section& section : sections_)
        Collect_Edits(section, edits);
    std::stable_sort(edits.begin(), edits.end(), [](const Edit& one, const Edit& other) {
        return std::pair(one.Begin, one.End) < std::pair(other.Begin, other.End);
    });

    QByteArray result;
    result.reserve(content_.size() + 16384);
    if (has_mark_)
        result += Byte_Order_Mark;
    const qsizetype text_begin = result.size();
    qsizetype at = 0;
    const auto copy_up_to = [&](qsizetype end) {
        // Line by line, so that all end in LF alone.
        while (at < end) {
            const qsizetype line_end = std::min(Line_End_From(at), end);
            const bool is_whole = line_end < end;
            qsizetype text_end = line_end;
            // All of several, or the next save would take another one.
            while (is_whole && text_end > at && content_.at(text_end - 1) == '\r')
                --text_end;
            result.append(QByteArrayView(content_).sliced(at, text_end - at));
            if (is_whole)
                result += '\n';
            at = is_whole ? line_end + 1 : line_end;
        }
    };
    for (const Edit& edit : edits) {
        copy_up_to(edit.Begin);
        const bool is_insertion = edit.Begin == edit.End;
        if (is_insertion && edit.Text.endsWith('\n') && result.size() > text_begin && !result.endsWith('\n'))
            result += '\n';
        result += edit.Text;
        at = edit.End;
    }
    copy_up_to(content_.size());
    return result;
}

Ini_Document Load_Ini_File(const QString& path)
{
    const QFileInfo info(path);
    if (!info.exists())
        return {};
    if (!info.isFile())
        throw Run_Time_Error(Error_Number::Path_File_Access_Error, u"Reading the settings"_s, path, {},
                             u"It is no plain file. Move it away; the program then writes a new one."_s);
    return Ini_Document(Read_File(path));
}

void Save_Ini_File(const QString& path, const Ini_Document& document)
{
    // As a text file, so that its lines end as the platform's do.
    Write_Whole_File(path, document.Content(), QIODevice::Text);
}
