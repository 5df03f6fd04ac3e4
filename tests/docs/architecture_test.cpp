#include "docs/manual_page.h"

#include <QRegularExpression>
#include <gmock/gmock.h>
#include <map>

namespace {

QString Room_Of(const QString& path)
{
    return path.section(u'/', 0, 0);
}

} // namespace

TEST(Architecture, ARoomIncludesOnlyWhatLiesBelowIt)
{
    std::map<QString, int> floors;
    const QRegularExpression name(u"`(\\w+)`"_s);
    for (const QStringList& cells : Table_Rows(Chapter(Source_Text(u"docs/architecture.md"_s), u"Rooms and floors"_s)))
        for (const auto& match : name.globalMatch(cells.value(1)))
            floors[match.captured(1)] = cells[0].toInt();

    const QRegularExpression include(u"#include \"(.+)\""_s);
    for (const QString& file : Source_Files()) {
        ASSERT_TRUE(floors.contains(Room_Of(file))) << file.toStdString() << " stands in no room of the page";
        for (const auto& match : include.globalMatch(Source_Text(u"src/"_s + file))) {
            const QString included = match.captured(1);
            if (included.startsWith(u"ui_"_s) || Room_Of(included) == Room_Of(file))
                continue; // made of a form beside it
            ASSERT_TRUE(floors.contains(Room_Of(included))) << file.toStdString() << ": " << included.toStdString();
            // Two rooms of one floor include each other in no direction, so there is no circle.
            EXPECT_LT(floors[Room_Of(included)], floors[Room_Of(file)])
                << file.toStdString() << " includes " << included.toStdString();
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
