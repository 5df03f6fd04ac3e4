#include "workbenches/log_viewer.h"

#include "common/test_program.h"
#include "common/unreadable_file.h"
#include "support/paths.h"

#include <QFile>

namespace {

struct Viewer_Test : testing::Test, Test_Program
{
    frm_ProcessLog Form;

    void Write_Lines(int count) const { Write(u"app/Vantorra_Process.log"_s, QByteArray("line\r\n").repeated(count)); }

    /// The count that is shown, after loading up to `limit`.
    QString Count(int limit)
    {
        bool loaded = false;
        Load_vProcessLog(Prog, Form, limit, loaded);
        EXPECT_TRUE(loaded && !Form.lbl_LoadLog.Visible);
        return Form.lbl_LogLines.Caption;
    }
};

TEST_F(Viewer_Test, TheFullLoadCountsInSixteenBits)
{
    Write_Lines(32767);
    EXPECT_EQ(Count(32767), u"32767 Lines"_s);
    Write_Lines(32768);
    const Caught_Error error = Error_Of([&] { Count(32767); });
    EXPECT_EQ(error.Number, 6);
    EXPECT_TRUE(error.Message.contains(u"Vantorra_Process.log"_s));
    EXPECT_EQ(Count(499), u"500 Lines"_s);

    QFile::remove(Path(u"app/Vantorra_Process.log"_s));
    const auto held = Make_Unreadable(Path(u"app/Vantorra_Process.log"_s));
    EXPECT_EQ(Count(499), u"0 Lines"_s);
    ASSERT_EQ(Person.Messages.size(), 1U);
    EXPECT_EQ(Person.Messages[0].Title, u"The log can't be read"_s);
}

TEST_F(Viewer_Test, ThoseOfAVideoAreLookedForInTheEarlierLogsToo)
{
    Write(u"app/Vantorra_Process.log"_s, QByteArray("line\n").repeated(40000) + "/v/late.mkv");
    Write(u"app/Vantorra_ProcessB.log"_s, "\n-- /v/one.mkv\n-- /v/one.mkv again\n");
    const std::tuple<QString, int, QString> videos[] = {
        {u"/v/one.mkv"_s, 1, u"3 Lines of Vantorra_ProcessB.log"_s},
        {u"/v/late.mkv"_s, 0, u"500 Lines. None tells of the video; from verbosity 1 on there are some."_s}};
    for (const auto& [path, row, caption] : videos) {
        Form = {};
        Prog.Videos.To_Show = path;
        ProcessLog_Activate(Prog, Form);
        EXPECT_EQ(Form.Selected_Row, row);
        EXPECT_EQ(Form.lbl_LogLines.Caption, caption);
    }
}

TEST_F(Viewer_Test, LinesEndInAnyOfThreeWaysAndEmptyOnesCount)
{
    const QByteArray half = QByteArray((1 << 18) - 1, 'x');
    const std::tuple<QByteArray, QStringList> cases[] = {
        {"", {}},
        {"\r\n\r\na", {{}, {}, u"a"_s}},
        {"a\nb\rc\r\nd\r", {u"a"_s, u"b"_s, u"c"_s, u"d"_s}},
        {"a\n\nb\r\rc", {u"a"_s, {}, u"b"_s, {}, u"c"_s}},
        {"\xC3\xA4 \xFF\n", {u"\u00E4 \uFFFD"_s}},
        {half + "\r\nb\r\n", {QString::fromLatin1(half), u"b"_s}},
        {half + "\xC3\xA4\r\nb", {QString::fromLatin1(half) + u"\u00E4"_s, u"b"_s}},
    };
    for (const auto& [content, lines] : cases) {
        const QString path = Write(u"log"_s, content);
        EXPECT_EQ(Read_Log_Lines(path, 32767), lines) << content.left(20).toStdString();
    }
}

} // namespace
