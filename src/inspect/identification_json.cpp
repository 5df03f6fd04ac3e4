#include "inspect/identification_json.h"

#include "inspect/json_value.h"
#include "support/text.h"

#include <QStringList>

using namespace Qt::StringLiterals;
using Json = Tool_Json;

/// A text outside the brackets: a line break would tear the line.
static QString Plain_Text(const Json& value)
{
    return Json_Text(value).replace(Line_Break, u" "_s).replace(u'\n', u' ').replace(u'\r', u' ');
}

static QString Escaped(const QString& text)
{
    QString escaped = text;
    escaped.replace(Line_Break, u"\\s"_s);
    for (const char16_t blank : {u' ', u'\n', u'\r'})
        escaped.replace(QChar(blank), u"\\s"_s);
    return escaped.replace(u':', u"\\c"_s);
}

/// How deep lists and objects in a property are followed; a text that nests without end must not end the program.
static constexpr int Deepest = 100;

static void Add_Item(const QString& key, const Json& value, int depth, QStringList& items);

static void Add_Items(const Json& object, int depth, QStringList& items)
{
    for (const auto& [key, value] : object.items())
        Add_Item(QString::fromStdString(key), value, depth, items);
}

/// One property. A list of values repeats its key; a list of objects gives what is in them.
static void Add_Item(const QString& key, const Json& value, int depth, QStringList& items)
{
    if (depth == Deepest)
        return;
    if (value.is_object())
        Add_Items(value, depth + 1, items);
    else if (value.is_array())
        for (const Json& entry : value)
            Add_Item(key, entry, depth + 1, items);
    else if (!value.is_null())
        items += Escaped(key) + u':' + Escaped(Json_Text(value));
}

/// " [key:value key:value]", or nothing where an element has no properties.
static QString Bracket(const Json& element)
{
    QStringList items;
    const Json& properties = Json_Member(element, "properties");
    if (properties.is_object())
        Add_Items(properties, 0, items);
    return items.isEmpty() ? QString() : u" ["_s + items.join(u' ') + u']';
}

static QString Attachment_Line(const Json& attachment)
{
    const auto text = [&attachment](const char* key) { return Plain_Text(Json_Member(attachment, key)); };
    const QString description = text("description");
    return u"Attachment ID "_s + text("id") + u": type '"_s + text("content_type") + u"', size "_s + text("size") +
           u" bytes"_s + (description.isEmpty() ? QString() : u", description '"_s + description + u'\'') +
           u", file name '"_s + text("file_name") + u'\'' + Bracket(attachment);
}

static QString Entries(const Json& element)
{
    const QString count = Json_Text(Json_Member(element, "num_entries"));
    return count + (count == u"1"_s ? u" entry"_s : u" entries"_s);
}

/// "Warning: TEXT" for each text of a list.
static void Add_Messages(const Json& messages, const QString& kind, QStringList& lines)
{
    for (const Json& message : messages) {
        QString text = Json_Text(message);
        if (text.endsWith(u'\n'))
            text.chop(1);
        lines += kind + Plain_Text(text.toStdString());
    }
}

/// The lines behind the messages.
static void Add_Content(const Json& json, const QString& path, QStringList& lines)
{
    const Json& container = Json_Member(json, "container");
    const QString type = Plain_Text(Json_Member(container, "type"));
    const auto is_off = [&container](const char* key) { return Json_Member(container, key) == Json(false); };
    if (container.is_null())
        return;
    if (is_off("recognized")) {
        lines += u"Error: The type of file '"_s + path + u"' is not supported."_s;
        return;
    }
    if (is_off("supported")) {
        lines += u"File '"_s + path + u"': unsupported container: "_s + type;
        return;
    }
    lines += u"File '"_s + path + u"': container: "_s + type + Bracket(container);
    for (const Json& track : Json_Member(json, "tracks"))
        lines += u"Track ID "_s + Plain_Text(Json_Member(track, "id")) + u": "_s +
                 Plain_Text(Json_Member(track, "type")) + u" ("_s + Plain_Text(Json_Member(track, "codec")) + u')' +
                 Bracket(track);
    for (const Json& attachment : Json_Member(json, "attachments"))
        lines += Attachment_Line(attachment);
    for (const Json& chapters : Json_Member(json, "chapters"))
        lines += u"Chapters: "_s + Entries(chapters);
    for (const Json& tags : Json_Member(json, "global_tags"))
        lines += u"Global tags: "_s + Entries(tags);
    for (const Json& tags : Json_Member(json, "track_tags"))
        lines += u"Tags for track ID "_s + Plain_Text(Json_Member(tags, "track_id")) + u": "_s + Entries(tags);
}

/// Where the first line that begins with "{" begins; -1 if there is none.
static qsizetype Json_Begin(const QString& text)
{
    if (text.startsWith(u'{'))
        return 0;
    const qsizetype line_end = text.indexOf(u"\n{"_s);
    return line_end < 0 ? -1 : line_end + 1;
}

QString Verbose_Text_Of_Json(const QString& json, const QString& path)
{
    const QString plain_path = QString(path).replace(u'\n', u' ').replace(u'\r', u' ');
    const qsizetype begin = Json_Begin(json);
    if (begin < 0)
        return json;
    QStringList lines;
    for (const QString& line : json.first(begin).split(u'\n'))
        if (const QString text = line.simplified(); !text.isEmpty())
            lines += u"Warning: "_s + text;
    const Json value = Parse_Tool_Json(json.sliced(begin).toUtf8());
    // Nothing of a text that can't be taken apart is shown: private data in it couldn't be masked.
    if (!value.is_object())
        lines += u"Error: mkvmerge's identification of '"_s + plain_path + u"' is no whole JSON."_s;
    Add_Messages(Json_Member(value, "warnings"), u"Warning: "_s, lines);
    Add_Messages(Json_Member(value, "errors"), u"Error: "_s, lines);
    Add_Content(value, plain_path, lines);
    return lines.isEmpty() ? QString() : lines.join(Line_Break) + Line_Break;
}
