#include "inspect/json_value.h"

#include <QStringDecoder>

using namespace Qt::StringLiterals;

Tool_Json Parse_Tool_Json(const QByteArray& text)
{
    // A tool that passes a tag's bytes on as they are must not spoil the whole answer: what is no UTF-8 is replaced.
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString decoded = decoder(text);
    const QByteArray valid = decoder.hasError() ? decoded.toUtf8() : text;
    return Tool_Json::parse(valid.begin(), valid.end(), nullptr, false);
}

const Tool_Json& Json_Member(const Tool_Json& value, const char* key)
{
    static const Tool_Json null;
    const auto found = value.is_object() ? value.find(key) : value.end();
    return found == value.end() ? null : *found;
}

const Tool_Json& Json_Member_In_Any_Case(const Tool_Json& value, const QString& key)
{
    static const Tool_Json null;
    if (value.is_object())
        for (auto entry = value.begin(); entry != value.end(); ++entry)
            if (QString::fromStdString(entry.key()).compare(key, Qt::CaseInsensitive) == 0)
                return *entry;
    return null;
}

QString Json_Text(const Tool_Json& value)
{
    if (value.is_string())
        return QString::fromStdString(value.get_ref<const std::string&>());
    if (value.is_boolean())
        return value.get<bool>() ? u"1"_s : u"0"_s;
    return value.is_number() ? QString::fromStdString(value.dump()) : QString();
}
