#include "rules/typed_folders.h"

#include "common/test_program.h"
#include "rules/folders.h"
#include "support/paths.h"

#include <QDir>
#include <QScopeGuard>
#include <QUrl>

struct TypedFolders : testing::Test, Test_Program
{
    TypedFolders()
    {
        for (const char* folder : {"new", "a b/it's", "blank "})
            QDir().mkpath(Path(QLatin1StringView(folder)));
        Write(u"new/film.mkv"_s);
    }

    QString Shown() const { return Prog.Form.ulbl_VideosPath.Caption + u'|' + Prog.Form.lbl_VideoPathFault.Caption; }
};

TEST_F(TypedFolders, ATextMeansWhatPeopleMeanByIt)
{
    const QByteArray home = qgetenv("HOME");
    qputenv("HOME", Path().toUtf8());
    const auto restored = qScopeGuard([&] { qputenv("HOME", home); });
    std::vector<std::pair<QString, QString>> claims = {
        {Path(u"new"_s), u"new/"_s},
        {u" \t"_s + Path(u"new/"_s) + u"\n"_s, u"new/"_s},
        {Path(u"new/film.mkv"_s), u"new/"_s},
        {u'"' + Path(u"a b"_s) + u'"', u"a b/"_s},
        {u" '"_s + Path(u"a b"_s) + u"' "_s, u"a b/"_s},
        {Path(u"blank "_s), u"blank /"_s}, // to the letter, where that is there
        {QString::fromLatin1(QUrl::fromLocalFile(Path(u"a b"_s)).toEncoded()), u"a b/"_s},
        {u"file://localhost"_s + QUrl::fromLocalFile(Path(u"new"_s)).path(), u"new/"_s},
        {u"it's"_s, u"a b/it's/"_s},
        {u"../new"_s, u"new/"_s},
    };
    // What backslashes mean, and where home is, is each system's own.
    if (Path_Separator == u'/')
        claims.insert(claims.end(),
                      {{Path(u"a\\ b/it\\'s"_s), u"a b/it's/"_s}, {u"~"_s, u""_s}, {u"~/new"_s, u"new/"_s}});
    else
        claims.insert(claims.end(),
                      {{Path(u"new"_s).mid(2), u"new/"_s}, {Path(u"new"_s).replace(u'\\', u'/'), u"new/"_s}});
    for (const auto& [text, folder] : claims)
        EXPECT_EQ(Folder_Of_Typing(text, Path(u"a b/"_s)), Path(folder)) << text.toStdString();
    for (const QString& text : {u""_s, u" "_s, Path(u"gone"_s), u"https://example.org/new"_s, u"\""_s, u"~nobody"_s})
        EXPECT_EQ(Folder_Of_Typing(text, Path()).remove(Path()), u""_s) << text.toStdString();
    if (Path_Separator != u'/')
        return;
    EXPECT_EQ(Folder_Of_Typing(u"new"_s, {}), Path(u"new/"_s)) << "without a folder before it begins at home";
}

TEST_F(TypedFolders, ItTellsAsSoonAsNothingCanBeginSo)
{
    const std::pair<QString, bool> claims[] = {{u"n"_s, false},  {u"NE"_s, false},          {u"nx"_s, true},
                                               {u""_s, false},   {u"new/film.mk"_s, false}, {u"gone/"_s, true},
                                               {u"/a"_s, false}, {u"gone/more"_s, true}};
    for (const auto& [text, wrong] : claims) {
        Look_At_Typing(Prog, Folder_Box::Target, text.isEmpty() ? text : Path(text));
        EXPECT_EQ(Prog.Form.lbl_TargetPathFault.Caption, wrong ? No_Such_Folder : u""_s) << text.toStdString();
    }
    QDir().mkpath(Path(u"new/.hidden"_s));
    QDir().mkpath(Path(u"new/Two"_s));
    QDir().mkpath(Path(u"new/two b"_s));
    EXPECT_EQ(Offers_For_Typing(u"tw"_s, Path(u"new"_s)), (QStringList{Path(u"new/Two/"_s), Path(u"new/two b/"_s)}));
    EXPECT_EQ(Offers_For_Typing(Path(u"new/"_s), {}).size(), 2);
    EXPECT_EQ(Offers_For_Typing(Path(u"new/.h"_s), {}), QStringList{Path(u"new/.hidden/"_s)});
    EXPECT_EQ(Offers_For_Typing(Path(u"new/two b"_s), {}), QStringList{}) << "it is whole";
    Look_At_Typing(Prog, Folder_Box::Target, Path(u"videos"_s));
    EXPECT_EQ(Prog.Form.lbl_TargetPathFault.Caption, Same_Folder_Fault);
    EXPECT_EQ(Prog.Options.Path_Target, Path(u"target/"_s));
}

TEST_F(TypedFolders, WhatIsNoFolderIsMendedAfterEnterAndCountsAsNoneOnceTheBoxIsLeft)
{
    const QString old = Prog.Options.Path_Videos;
    EXPECT_TRUE(Enter_Typing(Prog, Folder_Box::Videos, Path(u"new"_s)));
    EXPECT_EQ(Prog.Options.Path_Videos, Path(u"new/"_s));
    EXPECT_EQ(Prog.Settings.Source_MRU, QStringList{Path(u"new/"_s)}) << "as the picker has it";

    EXPECT_FALSE(Enter_Typing(Prog, Folder_Box::Videos, u"gone"_s));
    EXPECT_EQ(Prog.Options.Path_Videos, Path(u"new/"_s));
    EXPECT_EQ(Prog.Form.lbl_VideoPathFault.Caption, No_Such_Folder);
    Give_Up_Typing(Prog, Folder_Box::Videos);
    EXPECT_EQ(Shown(), Path(u"new/|"_s));

    Leave_Typing(Prog, Folder_Box::Videos, u" gone"_s);
    EXPECT_EQ(Prog.Options.Path_Videos, u""_s) << "a run takes what is shown, or nothing";
    EXPECT_EQ(Shown(), u"gone|"_s + No_Such_Folder);
    EXPECT_FALSE(Prog.Form.btn_RunVantorra.Enabled);
    EXPECT_EQ(Prog.Settings.Source_MRU.constFirst(), Path(u"new/"_s));
    Leave_Typing(Prog, Folder_Box::Videos, old);
    EXPECT_EQ(Shown(), old + u'|');
    EXPECT_TRUE(Prog.Form.btn_RunVantorra.Enabled);

    Enter_Typing(Prog, Folder_Box::Target, old);
    EXPECT_EQ(Prog.Options.Path_Target, u""_s);
    EXPECT_EQ(Prog.Form.lbl_TargetPathFault.Caption, Same_Folder_Fault);
    Enter_Typing(Prog, Folder_Box::Audio, Path(u"new"_s));
    Enter_Typing(Prog, Folder_Box::Audio, u" "_s);
    EXPECT_EQ(Prog.Options.Path_Audios, u""_s);
    EXPECT_EQ(Prog.Form.lbl_AudioPathFault.Caption, u"Audio Path Not Set"_s);
    Prog.Run.Press_In_Work = true;
    Leave_Typing(Prog, Folder_Box::Videos, u"gone"_s);
    EXPECT_EQ(Shown(), old + u'|');
    EXPECT_TRUE(Person.Messages.empty());
}
