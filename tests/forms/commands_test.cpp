#include "common/media.h"
#include "common/stand_in_tool.h"
#include "forms/form_test.h"
#include "rules/folders.h"

#include <QAbstractItemView>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QTextBrowser>

/// Each command of the menu bar, each button that opens something, and the words on them.
struct Commands : Form_Test
{
    void SetUp() override
    {
        ASSERT_TRUE(Window.Start());
        Window.Set_Folders();
        Window.Person.Forms.clear();
    }

    /// Does what `ask` does, answers the file or folder dialog that it opens by typing `answer`, and returns the
    /// dialog's title. The dialog may stand over another form.
    QString Answer_Picker(const QString& answer, const std::function<void()>& ask)
    {
        QString title;
        const auto type = [&](QWidget& form) {
            if (!title.isEmpty())
                return;
            title = form.windowTitle();
            if (auto* list = form.findChild<QAbstractItemView*>(u"listView"_s))
                list->clearSelection();
            auto& name = In<QLineEdit>(form, "fileNameEdit");
            const QSignalBlocker whole(name); // Windows' separators have the dialog cut the path
            name.setText(answer);
            QMetaObject::invokeMethod(&form, "accept");
        };
        Window.Person.On_Form[u"QFileDialog"_s] = type;
        QTimer look;
        QObject::connect(&look, &QTimer::timeout, &look, [&] {
            if (auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
                dialog && dialog->isVisible())
                type(*dialog);
        });
        look.start(10);
        ask();
        Window.Person.On_Form.erase(u"QFileDialog"_s);
        return title;
    }
};

TEST_F(Commands, TheCaptionsAreTheSystemsWords)
{
    const std::pair<const char*, const char*> actions[] = {
        {"mnu_Quit", "E&xit this program       Alt + F4"},
        {"mnu_ViewLog", " View the Vantorra log"},
        {"mnu_AppendLogs", " Append Vantorra Log(s)"},
        {"mnu_ClearLog", "Clear the Vantorra log"},
        {"mnu_KeepEnglishTitledAudio", "&Keep English Titled Audio"},
        {"mnu_KeepEnglishTitledSubs", "Keep English Titled Su&btitles"},
        {"mnu_DeleteAncillaryFiles", "Delete Source Video Ancillary Fi&les"},
        {"mnu_KeepTopmost", "Keep this program top&most"},
        {"mnu_Verbosity0", "&0 - Log Process Overview Only"},
        {"mnu_Verbosity3", "&3 - Include Active Checkboxes"},
        {"mnu_Verbosity7", "&7 - Include MKVMerge Command Line"},
    };
    for (const auto& [name, caption] : actions)
        EXPECT_EQ(Window.Action(name).text(), QLatin1StringView(caption));
    EXPECT_TRUE(Window.Action("mnu_OSVersion").text().startsWith(u"OS Version - "));

    // The manual names all boxes; their blanks and quotes stand here only.
    const std::pair<const char*, const char*> boxes[] = {
        {"chk_UseAudioOpts", "Use Audio \".opt\" files"},
        {"chk_SubDefaults", "Set All Subtitles defaults to \"no\""},
        {"chk_SetFileTitle", "Set File Title   "},
        {"chk_SetVideoTitle", "Set Video Title   "},
        {"opt_SetFileTitle_1", "If Empty  "},
        {"opt_SetVideoTitle_2", "Always  "},
        {"btn_RunVantorra", "&Run Vantorra"},
        {"btn_Halt", "HALT"},
        {"btn_ViewVidInfo", "View Video File &Info"},
    };
    for (const auto& [name, caption] : boxes)
        EXPECT_EQ(Window.Get<QAbstractButton>(name).text(), QLatin1StringView(caption));
}

TEST_F(Commands, EachItemThatOpensAFormOpensItAboveTheTopmostWindow)
{
    const std::pair<const char*, std::vector<const char*>> forms[] = {
        {"frm_ViewVFI", {"mnu_ViewVidInfo"}},
        {"frm_ProcessLog", {"mnu_ViewLog"}},
        {"frm_Locations", {"mnu_ExecutablePaths"}},
        {"frm_CustomFilter", {"mnu_CustomAudioFilter", "mnu_CustomSubtitleFilter", "mnu_PopupCAF1", "mnu_PopupCSF1"}},
        {"frm_OptionsFiles", {"mnu_AudioOptionsFile", "mnu_SubtitleOptionsFile"}},
        {"frm_VideoFrameRate", {"mnu_VideoFrameRate", "mnu_PopupSFR1"}},
        {"frm_VideoFormatOptions", {"mnu_VideoFormatOptions", "mnu_PopupVFO1"}},
        {"frm_CustomTitle", {"mnu_CustomFileTitle", "mnu_CustomVideoTitle", "mnu_PopupCFT1", "mnu_PopupCVT1"}},
        {"frm_Attachments", {"mnu_Attachments", "mnu_PopupACA1"}},
        {"frm_SourceMRU", {"mnu_RecentSources"}},
        {"frm_TargetMRU", {"mnu_RecentTargets"}},
    };
    const auto on_top = [this] { return Window.Form().windowFlags().testFlag(Qt::WindowStaysOnTopHint); };
    for (const bool topmost : {false, true}) {
        for (const auto& [form, items] : forms)
            for (const char* item : items) {
                const bool is_list = QLatin1StringView(form).endsWith("MRU"_L1);
                Open(item, form, [&](QWidget&) { EXPECT_TRUE(is_list || !on_top()) << item; });
                EXPECT_EQ(on_top(), topmost) << item;
            }
        Window.Choose("mnu_KeepTopmost");
    }
}

TEST_F(Commands, TheirKeysReachThem)
{
    const std::tuple<Qt::Key, const char*> forms[] = {
        {Qt::Key_O, "QFileDialog"}, {Qt::Key_L, "frm_ProcessLog"}, {Qt::Key_I, "frm_ViewVFI"}};
    for (const auto& [key, form] : forms) {
        Window.Form().activateWindow();
        QCoreApplication::processEvents();
        Press(Window.Form(), key, Qt::ControlModifier);
        EXPECT_EQ(Window.Person.Forms.value(Window.Person.Forms.size() - 1), QLatin1StringView(form));
    }
    Place(Window.Files, Short_Video(), u"videos/a.mkv"_s);
    Window.Form().activateWindow();
    ASSERT_TRUE(Wait_Until([this] { return Window.Action("mnu_Check").isEnabled(); }));
    Press(Window.Form(), Qt::Key_F5);
    EXPECT_EQ(Window.Prog().Videos.Rows.at(0).Keeps, u"1 audio");
    Press(Window.Form(), Qt::Key_R, Qt::ControlModifier);
    EXPECT_TRUE(QFile::exists(Window.Files.Path(u"target/a.mkv"_s)));
    Press(Window.Form(), Qt::Key_Q, Qt::ControlModifier);
    EXPECT_TRUE(Window.Form().Unloaded());
}

struct Folder_Command
{
    const char* Browse;
    const char* Menu_Item;
    const char* Popup_Item;
    const char* Panel;
    const char* Label;
    const char* Tick; ///< brings the panel into view; null: it always is
    const char* Error;
    QString Title;
};

static const Folder_Command Folder_Commands[] = {
    {"btn_BrowseVideos", "mnu_BrowseVideos", "mnu_PopupVideoBrowse1", "pic_VideosPath", "ulbl_VideosPath", nullptr,
     "Error #401 - Video Path processing error!",
     u"Select the folder of Video Files. It CANNOT be the same as the Target path."_s},
    {"btn_BrowseAudio", "mnu_BrowseAudio", "mnu_PopupAudioBrowse1", "pic_AudioPath", "ulbl_AudioPath", "chk_AudioPath",
     "Error #402 - Audio Path processing error!", u"Select the folder of Audio Files."_s},
    {"btn_BrowseSubs", "mnu_BrowseSubs", "mnu_PopupSubsBrowse1", "pic_SubsPath", "ulbl_SubsPath", "chk_SubsPath",
     "Error #403 - Subtitles Path processing error!", u"Select the folder of Subtitle Files."_s},
    {"btn_BrowseChapters", "mnu_BrowseChapters", "mnu_PopupChapsBrowse1", "pic_ChaptersPath", "ulbl_ChaptersPath",
     "chk_ChaptersPath", "Error #404 - Chapters Path processing error!", u"Select the folder of Chapter Files."_s},
    {"btn_BrowseTarget", "mnu_BrowseTarget", "mnu_PopupTargetBrowse1", "pic_TargetPath", "ulbl_TargetPath", nullptr,
     "Error #405 - Target Path processing error!",
     u"Select a Target Folder to hold your processed files. It CANNOT be the same as the Video Files path."_s},
};

TEST_F(Commands, EachFolderIsSetByItsButtonItsMenuItemItsPopupAndADrop)
{
    for (const Folder_Command& row : Folder_Commands) {
        if (row.Tick)
            Click_On(Window.Get(row.Tick));
        const std::function<void()> ways[] = {
            [&] { Click_On(Window.Get(row.Browse)); },
            [&] { Window.Choose(row.Menu_Item); },
            [&] { Window.Choose(row.Popup_Item); },
        };
        int way = 0;
        for (const auto& ask : ways) {
            const QString folder = Window.Files.Path(u"%1 %2/"_s.arg(QLatin1StringView(row.Label)).arg(way++));
            QDir().mkpath(folder);
            EXPECT_EQ(Answer_Picker(folder, ask), row.Title);
            EXPECT_EQ(Window.Get<QLabel>(row.Label).text(), folder) << row.Label << " way " << way;
        }
        const QString place = u"drop/%1/"_s.arg(QLatin1StringView(row.Label));
        QStringList files(1000, Window.Files.Write(place + u"a.mkv"_s));
        files += Window.Files.Path(u"nowhere"_s);
        EXPECT_TRUE(Drop_On(Window.Get(row.Panel), files)) << "the first of several counts";
        EXPECT_EQ(Window.Get<QLabel>(row.Label).text(), Window.Files.Path(place));

        Window.Person.Boxes.clear();
        Drop_On(Window.Get(row.Panel), {Window.Files.Path(u"nowhere"_s)});
        ASSERT_EQ(Window.Person.Boxes.size(), 1U) << row.Panel;
        EXPECT_EQ(Window.Person.Boxes[0].Title, QLatin1StringView(row.Error));
    }
}

TEST_F(Commands, SaveNowWritesAtOnceAndSaveOnExitOnlyFlips)
{
    const auto saved = [this] { return Window.Files.Read(u"app/Vantorra.ini"_s); };
    Click_On(Window.Get("chk_RemoveAllTags"));
    EXPECT_TRUE(saved().contains("Remove All Original Tags=Off"));
    Window.Choose("mnu_SaveNow");
    EXPECT_TRUE(saved().contains("Remove All Original Tags=On"));

    Window.Choose("mnu_SaveOnQuit");
    EXPECT_FALSE(Window.Action("mnu_SaveOnQuit").isChecked());
    EXPECT_TRUE(saved().contains("Save Settings on Exit=True"));
    Click_On(Window.Get("chk_RemoveAllTags"));
    Window.Quit();
    EXPECT_TRUE(saved().contains("Save Settings on Exit=False"));
    EXPECT_TRUE(saved().contains("Remove All Original Tags=On"));
}

TEST_F(Commands, HelpOpensTheHelpFile)
{
    const QString help = Window.Files.Write(u"app/Vantorra 2.5.5 Help.html"_s, "help");
    Document_Opener desktop;
    QDesktopServices::setUrlHandler(u"file"_s, &desktop, "Open");
    Window.Choose("mnu_Help");
    QDesktopServices::unsetUrlHandler(u"file"_s);
    EXPECT_EQ(desktop.Opened, QUrl::fromLocalFile(help));
    EXPECT_TRUE(Window.Person.Boxes.empty());

    Window.Files.Write(u"app/Vantorra 2.5.5 Help.html"_s, "<p>One way, and another way.</p>");
    if (QGuiApplication::platformName() == u"offscreen")
        Press(Window.Form(), Qt::Key_F1); // that screen has no program for documents
    else
        Window.Prog().Person.Show_Form(u"frm_Help"_s);
    auto* form = Window.Form().findChild<QWidget*>(u"frm_Help"_s);
    ASSERT_TRUE(form && form->isVisible());
    const auto& page = In<QTextBrowser>(*form, "txt_Help");
    In<QLineEdit>(*form, "txt_Find").setText(u"way"_s);
    QList<int> places;
    for (int i = 0; i < 3; ++i) {
        QTest::keyClick(&In<QLineEdit>(*form, "txt_Find"), Qt::Key_Return);
        places += page.textCursor().position();
    }
    EXPECT_LT(places[0], places[1]);
    EXPECT_EQ(places[2], places[0]);
    EXPECT_TRUE(form->isVisible()) << "Enter looks on";
}

TEST_F(Commands, TheAttachmentFolderIsPickedByItsButtonAndItsPopup)
{
    const QString folder = Window.Files.Path(u"fonts/"_s);
    QDir().mkpath(folder);
    Open("mnu_Attachments", "frm_Attachments", [&](QWidget& form) {
        EXPECT_EQ(Answer_Picker(folder, [&] { Push(form, "btn_BrowseAttachments"); }),
                  u"Select the Attachment folder.");
        EXPECT_EQ(In<QLabel>(form, "lbl_AttachmentsPath").text(), folder);
        auto& edit = In<QLineEdit>(form, "txt_AttachmentsPath");
        // No window manager brings the form back from behind what was open above it.
        const auto come_back = [&] {
            form.activateWindow();
            QCoreApplication::processEvents();
        };
        come_back();
        edit.setFocus();
        QTest::keyClicks(&edit, Window.Files.Path(u"nix"_s));
        come_back();
        Press(form, Qt::Key_Tab);
        EXPECT_EQ(Window.Prog().Options.Path_Attachments, u"") << "a run takes what is shown, or nothing";
        EXPECT_EQ(In<QLabel>(form, "lbl_AttachmentsPathFault").text(), u"There is no such folder");
        edit.setFocus();
        QTest::keyClicks(&edit, folder);
        come_back();
        Press(form, Qt::Key_Return);
        EXPECT_TRUE(form.isVisible() && In(form, "cmd_Done").hasFocus());
        EXPECT_EQ(Window.Prog().Options.Path_Attachments, folder);
        Click_On(In<QWidget>(form, "lbl_AttachmentsPath"), Qt::RightButton);
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_TRUE(menu);
        EXPECT_EQ(menu->actions().constFirst()->text(), u"Browse for Attachment Folder");
        menu->close();
    });
}

TEST_F(Commands, AnotherMkvmergeIsPickedAsAFileAndAFileThatIsNoneIsLeft)
{
    const QString mkvmerge = Window.Prog().Tools.System_MKVMerge_Path;
    const QString other = Window.Files.Write(u"other/tool"_s);
    Open("mnu_ExecutablePaths", "frm_Locations", [&](QWidget& form) {
        EXPECT_EQ(Answer_Picker(other, [&] { Click_On(In(form, "btn_BrowseMKVMerge")); }),
                  u"Find and select the mkvmerge.exe file.");
        EXPECT_EQ(Window.Prog().Tools.System_MKVMerge_Path, mkvmerge);
        Press(form, Qt::Key_Escape);
    });
}
