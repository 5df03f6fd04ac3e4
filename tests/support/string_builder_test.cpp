#include "support/string_builder.h"

#include "common/test_program.h"

#include <functional>
#include <gtest/gtest.h>
#include <random>
#include <unistd.h>

using namespace Qt::StringLiterals;
using Compare = clsStringBuilder::Compare;

static clsStringBuilder Builder_With(const QString& text)
{
    clsStringBuilder builder;
    builder.Append(text);
    return builder;
}

/// The text, after checking that what lies in memory is the same and ends in a zero.
static QString Text_Of(const clsStringBuilder& builder)
{
    const QString text = builder.ToString();
    EXPECT_EQ(builder.Length(), text.size());
    EXPECT_EQ(builder.Is_Empty(), text.isEmpty());
    if (text.isEmpty()) {
        EXPECT_EQ(builder.ToStringPtr(), nullptr);
    } else {
        EXPECT_EQ(builder.ToStringPtr()[text.size()], u'\0');
        EXPECT_EQ(QString::fromUtf16(builder.ToStringPtr(), text.size()), text);
    }
    return text;
}

namespace {

/// A change to "abcdef", what comes of it, and the kind that is recorded for it.
struct Change
{
    const char* Name;
    std::function<void(clsStringBuilder&)> Make;
    QString Result;
    bool (clsStringBuilder::*Undo_Kind)(); ///< null: nothing is recorded
};

const std::vector<Change>& Changes()
{
    using Builder = clsStringBuilder;
    static const std::vector<Change> changes = {
        {"append", [](Builder& b) { b.Append(u"XY"); }, u"abcdefXY"_s, &Builder::UndoAppend},
        {"append line", [](Builder& b) { b.AppendLine(u"X"); }, u"abcdefX\r\n"_s, &Builder::UndoAppend},
        {"append nothing", [](Builder& b) { b.Append(u""); }, u"abcdef"_s, nullptr},
        {"insert ahead", [](Builder& b) { b.Insert(1, u"XY"); }, u"XYabcdef"_s, &Builder::UndoInsert},
        {"insert inside", [](Builder& b) { b.Insert(4, u"XY"); }, u"abcXYdef"_s, &Builder::UndoInsert},
        {"insert behind", [](Builder& b) { b.Insert(7, u"XY"); }, u"abcdefXY"_s, &Builder::UndoInsert},
        {"insert at 0", [](Builder& b) { b.Insert(0, u"XY"); }, u"abcdef"_s, nullptr},
        {"insert past the end", [](Builder& b) { b.Insert(8, u"XY"); }, u"abcdef"_s, nullptr},
        {"insert nothing", [](Builder& b) { b.Insert(1, u""); }, u"abcdef"_s, nullptr},
        {"overwrite inside", [](Builder& b) { b.Overwrite(2, u"XY"); }, u"aXYdef"_s, &Builder::UndoOverwrite},
        {"overwrite across the end", [](Builder& b) { b.Overwrite(5, u"WXYZ"); }, u"abcdWXYZ"_s,
         &Builder::UndoOverwrite},
        {"overwrite behind", [](Builder& b) { b.Overwrite(7, u"XY"); }, u"abcdefXY"_s, &Builder::UndoOverwrite},
        {"overwrite past the end", [](Builder& b) { b.Overwrite(8, u"XY"); }, u"abcdef"_s, nullptr},
        {"remove inside", [](Builder& b) { b.Remove(2, 3); }, u"aef"_s, &Builder::UndoRemove},
        {"remove past the end", [](Builder& b) { b.Remove(5, 99); }, u"abcd"_s, &Builder::UndoRemove},
        {"remove all", [](Builder& b) { b.Remove(1, 6); }, u""_s, &Builder::UndoRemove},
        {"remove at 7", [](Builder& b) { b.Remove(7, 1); }, u"abcdef"_s, nullptr},
        {"remove nothing", [](Builder& b) { b.Remove(1, 0); }, u"abcdef"_s, nullptr},
    };
    return changes;
}

} // namespace

TEST(StringBuilder, EachChangeIsUndoneOnceAndByItsKindOnly)
{
    bool (clsStringBuilder::*const kinds[])() = {&clsStringBuilder::UndoAppend, &clsStringBuilder::UndoInsert,
                                                 &clsStringBuilder::UndoOverwrite, &clsStringBuilder::UndoRemove};
    for (const Change& change : Changes()) {
        SCOPED_TRACE(change.Name);
        clsStringBuilder builder = Builder_With(u"abcdef"_s);
        change.Make(builder);
        EXPECT_EQ(Text_Of(builder), change.Result);
        if (change.Undo_Kind == nullptr) {
            // The record of the append that made the text is still there.
            EXPECT_TRUE(builder.UndoAppend());
            EXPECT_EQ(Text_Of(builder), u""_s);
            continue;
        }
        for (const auto kind : kinds) {
            if (kind == change.Undo_Kind)
                continue;
            EXPECT_FALSE((builder.*kind)());
        }
        EXPECT_EQ(Text_Of(builder), change.Result);
        EXPECT_TRUE((builder.*change.Undo_Kind)());
        EXPECT_EQ(Text_Of(builder), u"abcdef"_s);
        EXPECT_FALSE((builder.*change.Undo_Kind)());
        builder.Undo();
        EXPECT_EQ(Text_Of(builder), u"abcdef"_s);
    }
}

TEST(StringBuilder, MemoryGrowsBySixTenthsInWholePagesAndClearGivesItBack)
{
    const std::size_t page = static_cast<std::size_t>(::sysconf(_SC_PAGESIZE));
    const auto in_pages = [page](std::size_t bytes) { return (bytes + page - 1) / page * page; };
    clsStringBuilder builder;
    const std::size_t initial = in_pages(1048576);
    EXPECT_EQ(builder.Capacity(), initial);
    // With the zero at the end the text fills the memory to the last byte.
    const qsizetype full = static_cast<qsizetype>(initial / 2 - 1);
    builder.Append(QString(full, u'x'));
    EXPECT_EQ(builder.Capacity(), initial);
    builder.Append(u"yz");
    const std::size_t grown = in_pages(initial * 8 / 5 + 4);
    EXPECT_EQ(builder.Capacity(), grown);
    EXPECT_EQ(builder.Length(), full + 2);
    EXPECT_EQ(builder.ToStringRight(3), u"xyz"_s);
    builder.Insert(1, QString(2000000, u'a'));
    EXPECT_EQ(builder.Capacity(), in_pages(grown * 8 / 5 + 4000000));
    builder.Clear();
    EXPECT_EQ(builder.Capacity(), initial);
    EXPECT_EQ(Text_Of(builder), u""_s);
    EXPECT_FALSE(builder.UndoInsert());
}

TEST(StringBuilder, FindLooksForATextOrForAWholeField)
{
    struct Claim
    {
        QString Text;
        std::ptrdiff_t Start;
        QString Wanted, Delimiter;
        Compare Kind;
        std::ptrdiff_t Position;
    };

    const QString list = u"eng:ger:fre"_s;
    const Claim claims[] = {
        {u""_s, 1, u"x"_s, u""_s, Compare::Exact, 0},
        {u"abcabc"_s, 1, u"bc"_s, u""_s, Compare::Exact, 2},
        {u"abcabc"_s, 3, u"bc"_s, u""_s, Compare::Exact, 5},
        {u"abcabc"_s, 7, u"bc"_s, u""_s, Compare::Exact, 0},
        {u"abcabc"_s, 1, u"BC"_s, u""_s, Compare::Exact, 0},
        {u"abcabc"_s, 1, u"BC"_s, u""_s, Compare::Without_Case, 2},
        {list, 1, u"eng:ger:fre"_s, u":"_s, Compare::Exact, 1}, // the whole text is one field
        {list, 1, u"eng"_s, u":"_s, Compare::Exact, 1},         // the first field
        {list, 2, u"eng"_s, u":"_s, Compare::Exact, 0},         // which is one at the start only
        {list, 1, u"ger"_s, u":"_s, Compare::Exact, 5},
        {list, 1, u"fre"_s, u":"_s, Compare::Exact, 9},
        {list, 1, u"er"_s, u":"_s, Compare::Exact, 0}, // no whole field
        {list, 1, u"GER"_s, u":"_s, Compare::Exact, 0},
        {list, 1, u"GER"_s, u":"_s, Compare::Without_Case, 5},
        {list, 1, u"FRE"_s, u":"_s, Compare::Without_Case, 9},
        {u"eng, ger"_s, 1, u"ger"_s, u", "_s, Compare::Exact, 6},
        {u"a::b"_s, 1, u""_s, u":"_s, Compare::Exact, 3}, // an empty field
        {u"a:b"_s, 1, u""_s, u":"_s, Compare::Exact, 0},
        {u"a:b:"_s, 1, u""_s, u":"_s, Compare::Exact, 5},
    };
    for (const Claim& claim : claims)
        EXPECT_EQ(Builder_With(claim.Text).Find(claim.Start, claim.Wanted, claim.Delimiter, claim.Kind), claim.Position)
            << claim.Text.toStdString() << " " << claim.Start << " " << claim.Wanted.toStdString();
}

TEST(StringBuilder, ManyRandomChangesAgreeWithAPlainText)
{
    std::mt19937 random(7);
    const auto below = [&random](qsizetype bound) {
        return static_cast<qsizetype>(random() % static_cast<unsigned>(bound));
    };
    clsStringBuilder builder;
    QString plain;
    for (int round = 0; round < 3000; ++round) {
        const QString text(below(400), QChar(u'a' + static_cast<char16_t>(below(26))));
        const qsizetype at = below(plain.size() + 1);
        const QString before = plain;
        switch (below(4)) {
        case 0:
            builder.Append(text);
            plain += text;
            break;
        case 1:
            builder.Insert(at + 1, text);
            plain.insert(at, text);
            break;
        case 2:
            builder.Overwrite(at + 1, text);
            plain.replace(at, text.size(), text);
            break;
        default:
            builder.Remove(at + 1, text.size());
            plain.remove(at, text.size());
        }
        ASSERT_EQ(builder.ToString(), plain) << round;
        if (plain != before && below(3) == 0) {
            builder.Undo();
            plain = before;
            ASSERT_EQ(builder.ToString(), plain) << round;
        }
    }
    const clsStringBuilder copy = builder;
    builder.Append(u"more");
    EXPECT_EQ(copy.ToString(), plain);
}
