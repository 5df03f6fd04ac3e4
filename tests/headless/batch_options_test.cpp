#include "common/test_program.h"

#include "headless/batch_options.h"

#include <QDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

static Batch_Line Parse(const QStringList& words)
{
    return Parse_Batch_Line(QStringList{u"vantorra-batch"_s} + words);
}

TEST(Batch_Options, FoldersAreAbsoluteAndRunIsTheCommandThatNeedsNoWord)
{
    const QString here = QDir::currentPath();
    const Batch_Line line = Parse({u"--videos"_s, u"in put"_s, u"--target=/out"_s, u"--app-folder"_s, u"../app"_s});
    ASSERT_TRUE(line.Options) << line.Mistake.toStdString();
    EXPECT_EQ(line.Options->Command, Batch_Command::Run);
    EXPECT_EQ(line.Options->Videos, here + u"/in put"_s);
    EXPECT_EQ(line.Options->Target, u"/out"_s);
    EXPECT_EQ(line.Options->App_Folder, here + u"/../app"_s);
    EXPECT_FALSE(line.Options->Dry_Run || line.Options->Json || line.Options->Quiet);
}

TEST(Batch_Options, TheFoldersNeedNoOptionsAndChoicesAddUp)
{
    const Batch_Line line = Parse({u"in put"_s, u"/out"_s, u"-nq"_s, u"--careful"_s, u"--resume"_s, u"--failed"_s,
                                   u"--only"_s, u"a*"_s, u"--only=b"_s, u"--leave-out"_s, u"-c"_s});
    ASSERT_TRUE(line.Options) << line.Mistake.toStdString();
    EXPECT_EQ(line.Options->Videos, QDir::currentPath() + u"/in put"_s);
    EXPECT_EQ(line.Options->Target, u"/out"_s);
    EXPECT_TRUE(line.Options->Dry_Run && line.Options->Quiet && line.Options->Resume && line.Options->Only_Failed);
    EXPECT_EQ(line.Options->Careful, true);
    EXPECT_EQ(line.Options->Only, (QStringList{u"a*"_s, u"b"_s}));
    EXPECT_EQ(line.Options->Leave_Out, QStringList(u"-c"_s));
    EXPECT_EQ(Parse({u"run"_s, u"/a"_s, u"/b"_s, u"--classic"_s}).Options->Careful, false);
    EXPECT_TRUE(Parse({u"--check"_s}).Options->Dry_Run);
}

TEST(Batch_Options, EachCommandHasAHelpOfItsOwn)
{
    const QString log = Parse({u"log"_s, u"--help"_s}).Text;
    EXPECT_TRUE(log.contains(u"--full")) << log.toStdString();
    EXPECT_FALSE(log.contains(u"--tick"));
    EXPECT_FALSE(Parse({u"run"_s, u"-h"_s}).Text.contains(u"--full"));
}

TEST(Batch_Options, ClicksKeepTheOrderOfTheCommandLine)
{
    const Batch_Line line = Parse({u"--untick"_s, u"a"_s, u"--tick=b"_s, u"--set"_s, u"A/b=c=d"_s, u"--tick"_s, u"a"_s,
                                   u"--untick"_s, u"c"_s, u"run"_s, u"--set"_s, u"E/f/g="_s});
    ASSERT_TRUE(line.Options) << line.Mistake.toStdString();
    QStringList clicks;
    for (const Box_Click& click : line.Options->Clicks)
        clicks += (click.Tick ? u"+"_s : u"-"_s) + click.Name;
    EXPECT_EQ(clicks, (QStringList{u"-a"_s, u"+b"_s, u"+a"_s, u"-c"_s}));
    EXPECT_EQ(line.Options->Settings, (QStringList{u"A/b=c=d"_s, u"E/f/g="_s}));
}

TEST(Batch_Options, IdentifyAndLogHaveWordsOfTheirOwn)
{
    const Batch_Line identify = Parse({u"identify"_s, u"/a"_s, u"b c"_s, u"--codec-private"_s});
    ASSERT_TRUE(identify.Options) << identify.Mistake.toStdString();
    EXPECT_EQ(identify.Options->Files, (QStringList{u"/a"_s, QDir::currentPath() + u"/b c"_s}));
    EXPECT_TRUE(identify.Options->Codec_Private);

    const Batch_Line log = Parse({u"log"_s, u"--full"_s});
    ASSERT_TRUE(log.Options) << log.Mistake.toStdString();
    EXPECT_EQ(log.Options->Command, Batch_Command::Log);
    EXPECT_TRUE(log.Options->Full);
}

TEST(Batch_Options, MistakesAreToldAndGiveNoOptions)
{
    const struct
    {
        QStringList Words;
        QString Told;
    } cases[] = {
        {{u"--vidoes"_s, u"/a"_s}, u"There is no option --vidoes. Did you mean --videos?"_s},
        {{u"--chekc"_s}, u"Did you mean --check?"_s},
        {{u"-x"_s}, u"There is no option -x."_s},
        {{u"identfy"_s}, u"Did you mean identify?"_s},
        {{u"/a"_s, u"/b"_s, u"/c"_s}, u"\"/c\""_s},
        {{u"/a"_s, QString()}, u"empty"_s},
        {{u"/a"_s, u"/b"_s, u"--videos"_s, u"/a"_s}, u"named twice"_s},
        {{u"--careful"_s, u"--classic"_s}, u"either"_s},
        {{u"--classic"_s, u"--resume"_s}, u"--resume belongs to a careful batch"_s},
        {{u"--classic"_s, u"--leave-out"_s, u"x"_s}, u"--leave-out belongs to a careful batch"_s},
        {{u"--only="_s}, u"want a pattern"_s},
        {{u"log"_s, u"--check"_s}, u"--check belongs to the command run"_s},
        {{u"--videos"_s}, u"videos"_s},
        {{u"--videos="_s}, u"--videos wants a folder"_s},
        {{u"--target"_s, QString()}, u"--target wants a folder"_s},
        {{u"walk"_s}, u"\"walk\""_s},
        {{u"run"_s, u"/a"_s}, u"\"/a\""_s},
        {{u"settings"_s, u"x"_s}, u"\"x\""_s},
        {{u"identify"_s}, u"at least one file"_s},
        {{u"--full"_s}, u"belongs to the command log"_s},
        {{u"log"_s, u"--codec-private"_s}, u"belongs to the command identify"_s},
        {{u"--dry-run=yes"_s}, u"dry-run"_s},
    };

    for (const auto& [words, told] : cases) {
        const Batch_Line line = Parse(words);
        EXPECT_FALSE(line.Options) << words.join(u' ').toStdString();
        EXPECT_TRUE(line.Text.isEmpty());
        EXPECT_TRUE(line.Mistake.contains(told)) << line.Mistake.toStdString();
    }
}

TEST(Batch_Options, HelpNamesEveryOptionAndStatusAndTheProgramsFolder)
{
    const QByteArray present = qgetenv("VANTORRA_HOME");
    qputenv("VANTORRA_HOME", "/some/where");
    const Batch_Line help = Parse({u"--help"_s, u"--videos"_s, u"/nowhere"_s});
    present.isNull() ? qunsetenv("VANTORRA_HOME") : qputenv("VANTORRA_HOME", present);
    EXPECT_FALSE(help.Options);
    for (const QString& word : {u"--videos"_s, u"--target"_s, u"--app-folder"_s, u"--set"_s, u"--tick"_s, u"--untick"_s,
                                u"--dry-run"_s, u"--json"_s, u"--quiet"_s, u"--version"_s, u"--help"_s, u"settings"_s,
                                u"identify"_s, u"log"_s, u"130"_s, u"/some/where/\n"_s})
        EXPECT_TRUE(help.Text.contains(word)) << word.toStdString();
    EXPECT_EQ(Parse({u"--version"_s}).Text, u"vantorra-batch 2.5.5\n"_s);
}
