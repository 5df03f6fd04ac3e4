#include "support/long_path.h"

#include <QStringList>
#include <algorithm>

using namespace Qt::StringLiterals;

static constexpr char16_t Backslash = u'\\';

static bool Has_Drive(QStringView path)
{
    return path.size() >= 3 && path[0].unicode() < 128 && path[0].isLetter() && path[1] == u':' && path[2] == Backslash;
}

QString Long_Path(const QString& path)
{
    const QString prefix = u"\\\\?\\"_s;
    if (path.startsWith(prefix) || path.startsWith(u"\\\\.\\"_s))
        return path;
    QString plain = path;
    plain.replace(u'/', Backslash);
    const bool share = plain.startsWith(u"\\\\"_s);
    if (!share && !Has_Drive(plain))
        return path;

    // What ".." can't lead out of: the drive, or server and share.
    const qsizetype root = share ? 2 : 1;
    QStringList names;
    for (const QString& name : plain.split(Backslash, Qt::SkipEmptyParts)) {
        if (name == u".."_s && names.size() > root)
            names.removeLast();
        else if (name != u"."_s && name != u".."_s)
            names += name;
    }
    const QString inner = names.join(Backslash);
    return prefix + (share ? u"UNC\\"_s : QString()) + inner + (!share && names.size() == root ? u"\\"_s : QString());
}

/// "con", "nul.txt", "com1 .mkv", "lpt\u00b3": what comes ahead of the first dot decides.
static bool Is_Device(const QString& name)
{
    const QString stem = name.section(u'.', 0, 0).trimmed().toUpper();
    if (QStringList{u"CON"_s, u"PRN"_s, u"AUX"_s, u"NUL"_s, u"CONIN$"_s, u"CONOUT$"_s}.contains(stem))
        return true;
    return stem.size() == 4 && (stem.startsWith(u"COM"_s) || stem.startsWith(u"LPT"_s)) &&
           u"0123456789\u00b9\u00b2\u00b3"_s.contains(stem.back());
}

QString Why_Windows_Refuses(const QString& name)
{
    const auto bad = std::find_if(name.begin(), name.end(), [](QChar letter) {
        return letter.unicode() < u' ' || u"<>:\"/\\|?*"_s.contains(letter);
    });
    if (bad != name.end())
        return bad->unicode() < u' ' ? u"holds a control character, which Windows takes in no name"_s
                                     : u"holds %1, which Windows takes in no name"_s.arg(*bad);
    if (name.endsWith(u'.') || name.endsWith(u' '))
        return u"ends in a %1, which Windows takes away"_s.arg(name.endsWith(u'.') ? u"dot"_s : u"blank"_s);
    return Is_Device(name) ? u"is a device's name on Windows"_s : QString();
}
