#include "workbenches/log_viewer.h"

#include "common/test_program.h"
#include "support/run_time_error.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

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

TEST_F(Viewer_Test, TheFirstFiveHundredLinesAreLoadedAndThenAll)
{
    EXPECT_EQ(Count(499), u"0 Lines"_s);
    EXPECT_FALSE(Form.btn_LoadFullLog.Enabled) << "no log";
    for (const int lines : {499, 500, 501}) {
        Write_Lines(lines);
        EXPECT_EQ(Count(499), QString::number(std::min(lines, 500)) + u" Lines"_s);
    }
    Write_Lines(1000);
    Person.On_Pump = [&] { EXPECT_TRUE(Form.lbl_LoadLog.Visible) << "painted while it loads"; };
    ProcessLog_Activate(Prog, Form);
    EXPECT_EQ(Form.lst_ProcessLog.size(), 500);
    EXPECT_EQ(Form.btn_LoadFullLog.Caption, u"Load Full Log "_s);
    ProcessLog_btn_LoadFullLog(Prog, Form);
    EXPECT_EQ(Form.lst_ProcessLog.size(), 1000);
    EXPECT_EQ(Form.btn_LoadFullLog.Caption, u"Load 500 Lines"_s);
    EXPECT_EQ(Form.Selected_Row, 0);
    EXPECT_EQ(Form.Focus, u"btn_Done"_s);

    ProcessLog_KeyDown(Prog, Form, 27, false);
    EXPECT_FALSE(Form.Visible);
    Write_Lines(700);
    ProcessLog_Activate(Prog, Form);
    EXPECT_EQ(Form.lbl_LogLines.Caption, u"700 Lines"_s) << "reopens in the mode it was left in";
    ProcessLog_btn_LoadFullLog(Prog, Form);
    EXPECT_EQ(Form.lbl_LogLines.Caption, u"500 Lines"_s);
}

TEST_F(Viewer_Test, TheFullLoadCountsInSixteenBits)
{
    Write_Lines(32767);
    EXPECT_EQ(Count(32767), u"32767 Lines"_s);
    Write_Lines(32768);
    try {
        Count(32767);
        FAIL() << "no error";
    } catch (const Run_Time_Error& error) {
        EXPECT_EQ(error.Number(), Error_Number::Overflow);
        EXPECT_TRUE(error.Message().contains(u"Vantorra_Process.log"_s));
    }
    EXPECT_EQ(Count(499), u"500 Lines"_s);
}

TEST_F(Viewer_Test, LinesEndInAnyOfThreeWaysAndEmptyOnesCount)
{
    struct Case
    {
        QByteArray Content;
        QStringList Lines;
    };

    const QByteArray half = QByteArray((1 << 18) - 1, 'x');
    const Case cases[] = {
        {"", {}},
        {"\r\n\r\na", {{}, {}, u"a"_s}},
        {"a\nb\rc\r\nd\r", {u"a"_s, u"b"_s, u"c"_s, u"d"_s}},
        {"a\n\nb\r\rc", {u"a"_s, {}, u"b"_s, {}, u"c"_s}},
        {"\xC3\xA4 \xFF\n", {u"\u00E4 \uFFFD"_s}},
        {half + "\r\nb\r\n", {QString::fromLatin1(half), u"b"_s}},
        {half + "\xC3\xA4\r\nb", {QString::fromLatin1(half) + u"\u00E4"_s, u"b"_s}},
    };
    for (const Case& one : cases) {
        const QString path = Write(u"log"_s, one.Content);
        EXPECT_EQ(Read_Log_Lines(path, 32767), one.Lines) << one.Content.left(20).toStdString();
    }
}

TEST_F(Viewer_Test, TheTextSizeStaysBetweenFourAndThirtyFive)
{
    std::int16_t& size = Prog.Settings.ProcessLog_Font_Size;
    size = 34;
    ProcessLog_img_FontInc(Prog, Form);
    ProcessLog_img_FontInc(Prog, Form);
    EXPECT_EQ(Form.lbl_FontSize.Caption, u"Current Font Size 35"_s);
    size = 41; // the settings file allows it
    ProcessLog_img_FontInc(Prog, Form);
    EXPECT_EQ(size, 41);
    ProcessLog_img_FontDec(Prog, Form);
    EXPECT_EQ(size, 40);
    size = 4;
    ProcessLog_img_FontDec(Prog, Form);
    EXPECT_EQ(size, 4);
    ProcessLog_img_FontReset(Prog, Form);
    EXPECT_EQ(Form.lbl_FontSize.Caption, u"Current Font Size 10"_s);
}

TEST_F(Viewer_Test, ThePlaceIsCentredOnTheFirstRunEverAndKeptFromThenOn)
{
    Prog.Form.Place = {.Left = 100, .Top = 100, .Width = 300, .Height = 200};
    Form.Place = {.Left = 5, .Top = 5, .Width = 100, .Height = 100};
    Prog.Settings.ProcessLog_Box = {.Top = 1, .Left = 2, .Width = 3, .Height = 4};
    ProcessLog_Activate(Prog, Form);
    EXPECT_EQ(Form.Place.Left, 200);
    EXPECT_EQ(Form.Place.Top, 150);
    EXPECT_TRUE(Prog.Settings.ProcessLog_Not_First_Run);

    ProcessLog_KeyDown(Prog, Form, 123, true);
    EXPECT_EQ(Form.Place.Width, 300);
    Form.Place.Window_State = 2;
    ProcessLog_btn_Done(Prog, Form);
    EXPECT_EQ(Prog.Settings.ProcessLog_Box.Top, 100);
    EXPECT_EQ(Prog.Settings.ProcessLog_Box.MM, 2);
    Form.Place = {};
    ProcessLog_Activate(Prog, Form);
    EXPECT_EQ(Form.Place.Height, 200);
    ProcessLog_btn_Done(Prog, Form);
    Form.Place = {.Left = 7, .Top = 7, .Width = 7, .Height = 7};
    Prog.Settings.ProcessLog_Box.Width = 0;
    ProcessLog_Activate(Prog, Form);
    EXPECT_EQ(Form.Place.Left, 7) << "nothing usable was saved";
}

} // namespace
