#include "docs/manual_page.h"

#include <QRegularExpression>
#include <QSet>

namespace {

/// What the host's tests are made with and Windows hasn't: claims that hang on one of these aren't counted.
const QStringList Not_There = {u"LD_PRELOAD"_s, u"tmpfs"_s, u"FIFO"_s, u"signal"_s, u"name of bytes"_s};

/// "Suite.Name" of all tests in files whose path ends so.
QSet<QString> Tests_In(const QString& path_end)
{
    static const QRegularExpression test(u"^TEST(?:_F|_P)?\\((\\w+),\\s*(\\w+)\\)"_s,
                                         QRegularExpression::MultilineOption);
    QSet<QString> names;
    for (const QString& file : Source_Files(u"tests"_s))
        if (file.endsWith(path_end))
            for (const auto& match : test.globalMatch(Source_Text(u"tests/"_s + file)))
                names += match.captured(1) + u'.' + match.captured(2);
    return names;
}

} // namespace

TEST(Platforms, EachClaimThatIsNotMadeOfWindowsCarriesItsReason)
{
    const QSet<QString> all = Tests_In(u".cpp"_s);
    QSet<QString> unlisted = Tests_In(u"_posix_test.cpp"_s) - Tests_In(u"_win32_test.cpp"_s);
    qsizetype counted = 0;
    for (const QString& line : Source_Text(u"tests/windows_not.txt"_s).split(u'\n')) {
        if (line.isEmpty() || line.startsWith(u'#'))
            continue;
        // A test of a table has the instance's name ahead of its own, and the row's behind it.
        const QString full = line.section(u" - "_s, 0, 0);
        const QString name =
            full.section(u'.', 0, 0).section(u'/', -1) + u'.' + full.section(u'.', 1).section(u'/', 0, 0);
        const QString reason = line.section(u" - "_s, 1);
        EXPECT_TRUE(all.contains(name)) << name.toStdString() << " is no test";
        EXPECT_FALSE(reason.isEmpty()) << name.toStdString();
        unlisted -= name;
        counted += Not_There.contains(reason.section(u':', 0, 0)) ? 0 : 1;
    }
    for (const QString& name : unlisted)
        ADD_FAILURE() << name.toStdString() << " runs here only, and tests/windows_not.txt doesn't say why";
    EXPECT_LE(counted * 20, all.size()) << "more than one test in twenty is left out";
}
