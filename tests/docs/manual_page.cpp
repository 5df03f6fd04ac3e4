#include "docs/manual_page.h"

#include <QDirIterator>
#include <QFile>

QString Source_Text(const QString& path)
{
    QFile file(QStringLiteral(VANTORRA_SOURCE_FOLDER "/") + path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return QString::fromUtf8(file.readAll());
}

QStringList Source_Files(const QString& top_folder)
{
    const QString top = QStringLiteral(VANTORRA_SOURCE_FOLDER "/") + top_folder + u'/';
    QStringList files;
    QDirIterator walk(top, {u"*.cpp"_s, u"*.h"_s}, QDir::Files, QDirIterator::Subdirectories);
    while (walk.hasNext())
        files += walk.next().mid(top.size());
    files.sort();
    return files;
}

QString Chapter(const QString& page, const QString& heading)
{
    const QString mark = u"\n## "_s + heading + u'\n';
    const qsizetype start = page.indexOf(mark);
    if (start < 0)
        return {};
    const QString rest = page.mid(start + mark.size());
    return rest.left(rest.indexOf(u"\n## "_s));
}

std::vector<QStringList> Table_Rows(const QString& text)
{
    std::vector<QStringList> rows;
    const QStringList lines = text.split(u'\n');
    for (qsizetype at = 0; at < lines.size(); ++at) {
        const bool is_head = at + 1 < lines.size() && lines[at + 1].startsWith(u"|---"_s);
        if (!lines[at].startsWith(u'|') || lines[at].startsWith(u"|---"_s) || is_head)
            continue;
        QStringList cells = lines[at].mid(1).chopped(1).split(u'|');
        for (QString& cell : cells)
            cell = cell.trimmed();
        rows.push_back(cells);
    }
    return rows;
}

QString Caption_Stem(const QString& caption)
{
    return caption.section(u" ("_s, 0, 0).section(u" to \""_s, 0, 0).trimmed();
}
