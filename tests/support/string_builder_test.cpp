#include "support/string_builder.h"

#include "common/test_program.h"
#include "support/memory_pages.h"

#include <random>
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
    QString text = builder.ToString();
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

TEST(StringBuilder, EachChangeIsUndoneOnceAndByItsKindOnly)
{
    using Builder = clsStringBuilder;
    using Undo = bool (Builder::*)();
    const Undo kinds[] = {&Builder::UndoAppend, &Builder::UndoInsert, &Builder::UndoOverwrite, &Builder::UndoRemove};
    // A change to "abcdef", what comes of it, and the kind that is recorded for it; null: nothing is recorded.
    const std::tuple<void (*)(Builder&), QString, Undo> changes[] = {
        {[](Builder& b) { b.AppendLine(u"X"); }, u"abcdefX\r\n"_s, &Builder::UndoAppend},
        {[](Builder& b) { b.Append(u""); }, u"abcdef"_s, nullptr},
        {[](Builder& b) { b.Insert(1, u"XY"); }, u"XYabcdef"_s, &Builder::UndoInsert},
        {[](Builder& b) { b.Insert(7, u"XY"); }, u"abcdefXY"_s, &Builder::UndoInsert},
        {[](Builder& b) { b.Insert(0, u"XY"); }, u"abcdef"_s, nullptr},
        {[](Builder& b) { b.Insert(8, u"XY"); }, u"abcdef"_s, nullptr},
        {[](Builder& b) { b.Insert(1, u""); }, u"abcdef"_s, nullptr},
        {[](Builder& b) { b.Overwrite(5, u"WXYZ"); }, u"abcdWXYZ"_s, &Builder::UndoOverwrite},
        {[](Builder& b) { b.Overwrite(7, u"XY"); }, u"abcdefXY"_s, &Builder::UndoOverwrite},
        {[](Builder& b) { b.Overwrite(8, u"XY"); }, u"abcdef"_s, nullptr},
        {[](Builder& b) { b.Remove(5, 99); }, u"abcd"_s, &Builder::UndoRemove},
        {[](Builder& b) { b.Remove(1, 6); }, u""_s, &Builder::UndoRemove},
        {[](Builder& b) { b.Remove(7, 1); }, u"abcdef"_s, nullptr},
        {[](Builder& b) { b.Remove(1, 0); }, u"abcdef"_s, nullptr},
    };
    for (const auto& [change, result, undo] : changes) {
        SCOPED_TRACE(result.toStdString());
        Builder builder = Builder_With(u"abcdef"_s);
        change(builder);
        EXPECT_EQ(Text_Of(builder), result);
        if (undo == nullptr) {
            EXPECT_TRUE(builder.UndoAppend()) << "the record of the append that made the text";
            EXPECT_EQ(Text_Of(builder), u""_s);
            continue;
        }
        for (const Undo kind : kinds)
            EXPECT_TRUE(kind == undo || !(builder.*kind)());
        EXPECT_EQ(Text_Of(builder), result);
        EXPECT_TRUE((builder.*undo)());
        EXPECT_FALSE((builder.*undo)());
        builder.Undo();
        EXPECT_EQ(Text_Of(builder), u"abcdef"_s);
    }
}

TEST(StringBuilder, MemoryGrowsBySixTenthsInWholePagesAndClearGivesItBack)
{
    const std::size_t page = Page_Size();
    const auto in_pages = [page](std::size_t bytes) { return (bytes + page - 1) / page * page; };
    clsStringBuilder builder;
    const std::size_t initial = in_pages(1048576);
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
    // The text, where the search begins, what is looked for, the delimiter of fields; the position with regard to case,
    // and without it. The first field is one at the start only; the whole text can be one; one can be empty.
    const std::tuple<QString, std::ptrdiff_t, QString, QString, std::ptrdiff_t, std::ptrdiff_t> claims[] = {
        {u""_s, 1, u"x"_s, u""_s, 0, 0},
        {u"abcabc"_s, 1, u"bc"_s, u""_s, 2, 2},
        {u"abcabc"_s, 3, u"bc"_s, u""_s, 5, 5},
        {u"abcabc"_s, 7, u"bc"_s, u""_s, 0, 0},
        {u"abcabc"_s, 1, u"BC"_s, u""_s, 0, 2},
        {u"eng:ger:fre"_s, 1, u"eng:ger:fre"_s, u":"_s, 1, 1},
        {u"eng:ger:fre"_s, 1, u"eng"_s, u":"_s, 1, 1},
        {u"eng:ger:fre"_s, 2, u"eng"_s, u":"_s, 0, 0},
        {u"eng:ger:fre"_s, 1, u"er"_s, u":"_s, 0, 0},
        {u"eng:ger:fre"_s, 1, u"GER"_s, u":"_s, 0, 5},
        {u"eng:ger:fre"_s, 1, u"fre"_s, u":"_s, 9, 9},
        {u"eng, ger"_s, 1, u"ger"_s, u", "_s, 6, 6},
        {u"a::b"_s, 1, u""_s, u":"_s, 3, 3},
        {u"a:b"_s, 1, u""_s, u":"_s, 0, 0},
        {u"a:b:"_s, 1, u""_s, u":"_s, 5, 5},
    };
    for (const auto& [text, start, wanted, delimiter, exact, without_case] : claims) {
        EXPECT_EQ(Builder_With(text).Find(start, wanted, delimiter, Compare::Exact), exact) << wanted.toStdString();
        EXPECT_EQ(Builder_With(text).Find(start, wanted, delimiter, Compare::Without_Case), without_case);
    }
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
