#include "docs/manual_page.h"
#include "headless/batch_options.h"
#include "rules/click_rules.h"

#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <gmock/gmock.h>

namespace {

/// The program that the completions ask for its lists.
const QString Batch_Program = QStringLiteral(VANTORRA_BATCH_PROGRAM);

QStringList All_Matches(const QString& text, const QString& pattern)
{
    QStringList found;
    const QRegularExpression expression(pattern, QRegularExpression::MultilineOption);
    for (const auto& match : expression.globalMatch(text))
        found += match.captured(1);
    found.removeDuplicates();
    found.sort();
    return found;
}

/// The long options that the parser itself describes.
QStringList Parser_Options()
{
    QString help = Parse_Batch_Line({u"vantorra-batch"_s, u"--help"_s}).Text;
    return All_Matches(help, u"^ +(?:-\\S+, )*(--[a-z-]+)"_s);
}

QStringList Box_Names()
{
    QStringList names;
    for (const Click_Rule& rule : Click_Rules())
        names += rule.Name;
    names.sort();
    return names;
}

/// What bash offers for the last of `words`, sorted.
QStringList Bash_Offers(const QStringList& words)
{
    QProcess bash;
    bash.start(u"bash"_s,
               QStringList{u"--norc"_s, u"-c"_s,
                           u"source \"$0\"; COMP_WORDS=(\"$@\"); COMP_CWORD=$(($# - 1)); _vantorra_batch; "
                           "printf '%s\\n' \"${COMPREPLY[@]}\""_s,
                           QStringLiteral(VANTORRA_SOURCE_FOLDER "/packaging/completion/vantorra-batch.bash")} +
                   words);
    EXPECT_TRUE(bash.waitForFinished());
    EXPECT_EQ(bash.readAllStandardError(), QByteArray());
    QStringList offers = QString::fromUtf8(bash.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
    offers.sort();
    return offers;
}

} // namespace

TEST(Completion, BashOffersWhatTheParserUnderstands)
{
    ASSERT_GT(Parser_Options().size(), 10);
    EXPECT_EQ(Bash_Offers({Batch_Program, u"--"_s}), Parser_Options());
    EXPECT_EQ(Bash_Offers({Batch_Program, u"--videos"_s, u"/"_s, u"--dry"_s}), QStringList{u"--dry-run"_s});
    for (const QString& option : {u"--tick"_s, u"--untick"_s})
        EXPECT_EQ(Bash_Offers({Batch_Program, option, u"chk_"_s}), Box_Names());
    EXPECT_EQ(Bash_Offers({Batch_Program, u"--tick"_s, u"="_s, u"chk_AddA"_s}),
              (QStringList{u"chk_AddAttachments"_s, u"chk_AddAudio"_s}));
}

TEST(Completion, BashOffersTheCommandsAndNoSecondOne)
{
    for (const QString& command : Bash_Offers({Batch_Program, {}})) {
        const QStringList file = command == u"identify"_s ? QStringList{u"a.mkv"_s} : QStringList();
        EXPECT_TRUE(Parse_Batch_Line(QStringList{u"vantorra-batch"_s, command} + file).Options)
            << command.toStdString();
    }
    EXPECT_EQ(Bash_Offers({Batch_Program, {}}).size(), Command_Names().size());
    EXPECT_EQ(Bash_Offers({Batch_Program, u"log"_s, {}}), QStringList());
}

TEST(Completion, BashOffersKeysWithTheirBlanksAndWhatTheyKnow)
{
    const QString word = u"--set"_s;
    EXPECT_EQ(Bash_Offers({Batch_Program, word, u"Extensions/Care"_s}), QStringList(u"Extensions/Careful\\ Batch="_s));
    EXPECT_EQ(Bash_Offers({Batch_Program, word, u"\"Extensions/Care"_s}),
              QStringList(u"\"Extensions/Careful Batch="_s));
    EXPECT_EQ(Bash_Offers({Batch_Program, word, u"Extensions/Careful\\ Batch"_s, u"="_s, u"O"_s}),
              (QStringList{u"Off"_s, u"On"_s}));
    EXPECT_EQ(Bash_Offers({Batch_Program, word, u"Extensions/If\\ The\\ Output\\ Exists"_s, u"="_s}),
              (QStringList{u"Number"_s, u"Replace"_s, u"Skip"_s}));
    EXPECT_EQ(Bash_Offers({Batch_Program, word, u"'Extensions/Careful Batch=Of"_s}),
              QStringList(u"'Extensions/Careful Batch=Off"_s));
}

TEST(Completion, BashOffersThePresetsOfTheFolderThatTheLineNames)
{
    const QTemporaryDir app;
    QDir(app.path()).mkdir(u"presets"_s);
    for (const QString& name : {u"Anime two"_s, u"Tom & Jerry"_s, u"Tom\nx"_s})
        QFile(app.filePath(u"presets/"_s + name + u".ini"_s)).open(QIODevice::WriteOnly);
    const QStringList line{Batch_Program, u"--app-folder"_s, app.path(), u"--preset"_s};
    EXPECT_EQ(Bash_Offers(line + QStringList{u"An"_s}), QStringList(u"Anime\\ two"_s));
    EXPECT_EQ(Bash_Offers(line + QStringList{u"\"T"_s}), QStringList(u"\"Tom & Jerry"_s));
    EXPECT_EQ(Bash_Offers(line + QStringList{u"="_s, {}}).size(), 2);
}

TEST(Completion, ZshAndFishNameWhatTheParserUnderstands)
{
    const QString zsh = Source_Text(u"packaging/completion/vantorra-batch.zsh"_s);
    EXPECT_EQ(All_Matches(zsh, u"['*),{](--[a-z-]+)[\\[}']"_s), Parser_Options());
    const QString fish = Source_Text(u"packaging/completion/vantorra-batch.fish"_s);
    EXPECT_EQ(All_Matches(QString(fish).replace(u" -l "_s, u" --"_s), u"^complete .*?(--[a-z-]+)"_s), Parser_Options());
}

TEST(Manual_Page, DescribesWhatTheParserUnderstands)
{
    const QString page = Source_Text(u"packaging/vantorra-batch.1"_s).remove(u'\\');
    const QString options = page.section(u".SH OPTIONS\n"_s, 1).section(u".SH "_s, 0, 0);
    EXPECT_EQ(All_Matches(options, u"^\\.TP\n\\.B[IR]? .*?(--[a-z-]+)"_s), Parser_Options());
    for (const QString& status : {u"0"_s, u"1"_s, u"2"_s, u"64"_s, u"70"_s, u"130"_s})
        EXPECT_TRUE(page.contains(u".TP\n.B "_s + status + u'\n')) << status.toStdString();
}
