#include "support/paths.h"

#include <QStringList>

using namespace Qt::StringLiterals;

QString Key_Of_Name(const QString& path)
{
    if (Case_Of_Names == Qt::CaseSensitive)
        return path;
    QString raised = path;
    for (QChar& letter : raised)
        letter = letter.toUpper();
    return raised;
}

QString With_Separator(const QString& folder)
{
    return folder.isEmpty() || folder.endsWith(Path_Separator) ? folder : folder + Path_Separator;
}

QString File_Name_Of(const QString& path)
{
    return path.mid(path.lastIndexOf(Path_Separator) + 1);
}

QString Get_Base_Name(const QString& path)
{
    const QString name = File_Name_Of(path);
    const qsizetype dot = name.lastIndexOf(u'.');
    return dot < 0 ? name : name.left(dot);
}

QString Get_Extension(const QString& path)
{
    const QString name = File_Name_Of(path);
    const qsizetype dot = name.lastIndexOf(u'.');
    return dot < 0 ? QString() : name.mid(dot + 1);
}

QString Quote_Path(const QString& text)
{
    if (text.isEmpty() || (text.startsWith(u'"') && text.endsWith(u'"')) || !text.contains(u' '))
        return text;
    return u'"' + text + u'"';
}

/// Matches with "*" and "?" in time proportional to name times pattern at worst; both are already lower-cased.
static bool Matches_Pattern(QStringView name, QStringView pattern)
{
    qsizetype at = 0;
    qsizetype in_pattern = 0;
    qsizetype star = -1;
    qsizetype star_at = 0;
    while (at < name.size()) {
        if (in_pattern < pattern.size() && pattern[in_pattern] == u'*') {
            star = in_pattern++;
            star_at = at;
        } else if (in_pattern < pattern.size() && (pattern[in_pattern] == u'?' || pattern[in_pattern] == name[at])) {
            ++at;
            ++in_pattern;
        } else if (star >= 0) {
            in_pattern = star + 1;
            at = ++star_at;
        } else {
            return false;
        }
    }
    while (in_pattern < pattern.size() && pattern[in_pattern] == u'*')
        ++in_pattern;
    return in_pattern == pattern.size();
}

/// "*.mkv", as nearly all are: nothing needs to be tried from every place on.
static bool Is_Plain_End(QStringView pattern)
{
    return pattern.startsWith(u'*') && !pattern.mid(1).contains(u'*') && !pattern.contains(u'?');
}

bool Match_File_Masks(const QString& name, const QString& masks)
{
    if (name.isEmpty() || masks.isEmpty())
        return false;
    const QString lowered_name = name.toLower();
    const QString lowered_masks = masks.toLower();
    for (const QStringView pattern : QStringView(lowered_masks).split(u';'))
        if (!pattern.isEmpty() && (Is_Plain_End(pattern) ? QStringView(lowered_name).endsWith(pattern.mid(1))
                                                         : Matches_Pattern(lowered_name, pattern)))
            return true;
    return false;
}

QString Folder_Of(const QString& path)
{
    if (Folder_Exists(path))
        return path;
    if (File_Exists(path))
        return path.left(path.lastIndexOf(Path_Separator) + 1);
    return {};
}

bool Same_Folder(const QString& one, const QString& other)
{
    if (one.isEmpty() || other.isEmpty())
        return one.isEmpty() && other.isEmpty();
    // By what they are on disk, not only by their names: a folder may be mounted twice, or its name's case not count.
    return With_Separator(one).compare(With_Separator(other), Case_Of_Names) == 0 || Same_File(one, other);
}
