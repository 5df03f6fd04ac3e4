#include "docs/manual_page.h"

#include <QRegularExpression>
#include <gmock/gmock.h>
#include <map>

using namespace Qt::StringLiterals;

namespace {

QString Room_Of(const QString& path)
{
    return path.section(u'/', 0, 0);
}

} // namespace

TEST(Architecture, NoRoomIncludesFromAFloorAboveButWhatThePageNames)
{
    const QString rooms = Chapter(Source_Text(u"docs/architecture.md"_s), u"Rooms and floors"_s);
    std::map<QString, int> floors;
    const QRegularExpression name(u"`(\\w+)`"_s);
    for (const QStringList& cells : Table_Rows(rooms))
        for (const auto& match : name.globalMatch(cells.value(1)))
            floors[match.captured(1)] = cells[0].toInt();
    ASSERT_EQ(floors.size(), 9U);

    const QRegularExpression include(u"#include \"((\\w+)/\\w+\\.h)\""_s);
    for (const QString& file : Source_Files()) {
        if (!file.contains(u'/'))
            continue; // the one header that holds all rooms' records
        for (const auto& match : include.globalMatch(Source_Text(u"src/"_s + file))) {
            const bool from_above = floors.at(match.captured(2)) > floors.at(Room_Of(file));
            EXPECT_TRUE(!from_above || rooms.contains(u'`' + match.captured(1) + u'`'))
                << file.toStdString() << " includes " << match.captured(1).toStdString();
        }
    }
}

TEST(Behaviour, EveryFileThatIsDeliberatelyOddIsNamedUnderItsRoom)
{
    const QString page = Source_Text(u"docs/behaviour.md"_s);
    const QStringList files = Source_Files();
    int odd = 0;
    for (const QString& file : files) {
        if (!Source_Text(u"src/"_s + file).contains(u"Deliberate:"_s))
            continue;
        EXPECT_TRUE(Chapter(page, Room_Of(file)).contains(u'`' + file.section(u'/', 1) + u'`')) << file.toStdString();
        ++odd;
    }
    ASSERT_GT(odd, 40);

    const QRegularExpression name(u"`(\\w+\\.(?:cpp|h))`"_s);
    for (const QString& section : page.split(u"\n## "_s).mid(1))
        for (const auto& match : name.globalMatch(section))
            EXPECT_TRUE(files.contains(section.section(u'\n', 0, 0) + u'/' + match.captured(1)))
                << match.captured(1).toStdString() << " is named and not there";
}
