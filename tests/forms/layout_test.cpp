#include "forms/looks.h"
#include "forms/progress_box.h"
#include "forms/test_window.h"

#include <QAbstractButton>
#include <QApplication>
#include <QScrollArea>

/// Fonts and palettes of the whole application, put back after each test.
struct Layout : testing::Test
{
    const QFont Font = QApplication::font();
    const QPalette Palette = QApplication::palette();
    Test_Window Window;

    ~Layout() override
    {
        Window.Desk = nullptr;
        QApplication::setFont(Font);
        QApplication::setPalette(Palette);
    }

    /// No words are cut, and nothing reaches out of what holds it.
    void Expect_Nothing_Clipped(const std::string& when)
    {
        for (const QWidget* widget : Window.Form().findChildren<QWidget*>()) {
            const bool words = qobject_cast<const QAbstractButton*>(widget) ||
                               (qobject_cast<const QLabel*>(widget) && !widget->objectName().startsWith(u"ulbl_"));
            if (!words || !widget->isVisible() || widget->objectName() == u"btn_NOP")
                continue;
            EXPECT_GE(widget->width(), widget->minimumSizeHint().width()) << when << widget->objectName().toStdString();
            const bool picture = widget->objectName().startsWith(u"img_") && widget->objectName() != u"img_Quit";
            EXPECT_GE(widget->height(), picture ? 0 : widget->fontMetrics().height())
                << when << widget->objectName().toStdString();
            const QWidget* holder = widget->parentWidget();
            EXPECT_TRUE(holder->rect().contains(widget->geometry())) << when << widget->objectName().toStdString();
        }
    }
};

TEST_F(Layout, NothingIsClippedAtAnyFontSizeWithAllPanelsInView)
{
    for (int size = 8; size <= 14; ++size) {
        QFont font = Font;
        font.setPointSize(size);
        QApplication::setFont(font);
        Window.Files.Write(u"app/Vantorra.ini"_s); // no place of another font
        QFile::remove(Window.Files.Path(u"app/Vantorra.ini"_s));
        ASSERT_TRUE(Window.Start());
        for (const char* box : {"chk_AudioPath", "chk_SubsPath", "chk_ChaptersPath"})
            Click_On(Window.Get(box));
        for (const QSize room : {QSize(1366, 740), QSize(1920, 1050), QSize(900, 740)}) {
            Window.Form().resize(room);
            QCoreApplication::processEvents();
            Expect_Nothing_Clipped("at " + std::to_string(size) + " points in " + std::to_string(room.width()) + " ");
            // What doesn't fit can be scrolled to, but never sideways.
            if (room.width() < 1366)
                continue;
            EXPECT_LE(Window.Get("fram_Options").width(), Window.Get<QScrollArea>("scr_Options").viewport()->width());
        }
        Window.Quit();
    }
}

TEST_F(Layout, TheColoursThatMeanSomethingReadOnBothPalettes)
{
    const QPalette dark(QColor(0x2f, 0x33, 0x38), QColor(0x2b, 0x2e, 0x32));
    for (const QPalette& palette : {Palette, dark})
        for (const QColor& ground : {palette.color(QPalette::Base), palette.color(QPalette::Window)})
            for (const QColor& colour :
                 {Finished_Colour(palette), Interrupted_Colour(palette), Fault_Colour(palette), Mark_Colour(palette)})
                EXPECT_GE(Contrast(colour, ground), 4.5) << colour.name().toStdString();
    EXPECT_GE(Contrast(Under_White_Text(Qt::yellow), Qt::white), 4.5);
}

TEST_F(Layout, EveryControlHasAHintAndEveryButtonAName)
{
    ASSERT_TRUE(Window.Start());
    for (const QAbstractButton* button : Window.Form().findChildren<QAbstractButton*>()) {
        if (button->objectName().startsWith(u"qt_") || button->objectName() == u"btn_NOP")
            continue;
        EXPECT_FALSE(button->toolTip().isEmpty()) << button->objectName().toStdString();
        EXPECT_FALSE(button->text().isEmpty() && button->accessibleName().isEmpty())
            << button->objectName().toStdString();
    }
}
