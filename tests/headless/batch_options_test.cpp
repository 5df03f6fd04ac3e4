#include "common/test_program.h"

#include "headless/batch_options.h"

#include <QDir>
#include <QProcess>

/// The line as a shell splits it: double quotes hold words together, '' is an empty one.
static Batch_Line Parse(const QString& line)
{
    const QStringList words = QProcess::splitCommand(u"vantorra-batch "_s + line);
    return Parse_Batch_Line(QStringList(words).replaceInStrings(u"''"_s, QString()));
}

/// The options of a line without a mistake.
static Batch_Options Options_Of(const QString& line)
{
    const Batch_Line parsed = Parse(line);
    EXPECT_TRUE(parsed.Options) << parsed.Mistake.toStdString();
    return parsed.Options.value_or(Batch_Options());
}

TEST(Batch_Options, FoldersAreAbsoluteNeedNoOptionsAndChoicesAddUp)
{
    const QString here = QDir::currentPath();
    const QString out = Native(u"/out"_s);
    Batch_Options options = Options_Of(u"--videos \"in put\" --target=%1 --app-folder sub/app"_s.arg(out));
    EXPECT_EQ(options.Command, Batch_Command::Run);
    EXPECT_EQ(options.Videos, Native(here + u"/in put"_s));
    EXPECT_EQ(options.Target, out);
    EXPECT_EQ(options.App_Folder, Native(here + u"/sub/app"_s));
    EXPECT_FALSE(options.Dry_Run || options.Json || options.Quiet);

    options = Options_Of(
        u"\"in put\" %1 -nq --careful --resume --failed --only a* --only=b/c --leave-out -c --shard 2/10"_s.arg(out));
    EXPECT_EQ(options.Videos, Native(here + u"/in put"_s));
    EXPECT_EQ(options.Target, out);
    EXPECT_TRUE(options.Dry_Run && options.Quiet && options.Resume && options.Only_Failed);
    EXPECT_EQ(options.Careful, true);
    EXPECT_EQ(options.Only, (QStringList{u"a*"_s, Native(u"b/c"_s)}));
    EXPECT_EQ(options.Leave_Out, QStringList(u"-c"_s));
    EXPECT_EQ(options.Part.Number * 100 + options.Part.Of, 210);
    EXPECT_EQ(Options_Of(u"run /a /b --classic"_s).Careful, false);
    EXPECT_TRUE(Options_Of(u"--check"_s).Dry_Run);
    EXPECT_EQ(Options_Of(u"--jobs 16"_s).At_Once, 16);
    const int by_itself = Options_Of(u"--jobs auto"_s).At_Once.value_or(0);
    EXPECT_TRUE(by_itself >= 1 && by_itself <= 4);

    options = Options_Of(u"identify %1 \"b c\" --codec-private"_s.arg(out));
    EXPECT_EQ(options.Files, (QStringList{out, Native(here + u"/b c"_s)}));
    EXPECT_TRUE(options.Codec_Private);
    options = Options_Of(u"log --full"_s);
    EXPECT_EQ(options.Command, Batch_Command::Log);
    EXPECT_TRUE(options.Full);
}

TEST(Batch_Options, ClicksKeepTheOrderOfTheCommandLine)
{
    const Batch_Options options =
        Options_Of(u"--untick a --tick=b --set A/b=c=d --tick a --untick c run --set E/f/g="_s);
    QStringList clicks;
    for (const Box_Click& click : options.Clicks)
        clicks += (click.Tick ? u"+"_s : u"-"_s) + click.Name;
    EXPECT_EQ(clicks, (QStringList{u"-a"_s, u"+b"_s, u"+a"_s, u"-c"_s}));
    EXPECT_EQ(options.Settings, (QStringList{u"A/b=c=d"_s, u"E/f/g="_s}));
}

TEST(Batch_Options, MistakesAreToldAndGiveNoOptions)
{
    const std::pair<QString, QString> cases[] = {
        {u"--vidoes /a"_s, u"There is no option --vidoes. Did you mean --videos?"_s},
        {u"--chekc"_s, u"Did you mean --check?"_s},
        {u"-x"_s, u"There is no option -x."_s},
        {u"identfy"_s, u"Did you mean identify?"_s},
        {u"/a /b /c"_s, u"\"/c\""_s},
        {u"/a ''"_s, u"empty"_s},
        {u"/a /b --videos /a"_s, u"named twice"_s},
        {u"--careful --classic"_s, u"either"_s},
        {u"--classic --resume"_s, u"--resume belongs to a careful batch"_s},
        {u"--classic --leave-out x"_s, u"--leave-out belongs to a careful batch"_s},
        {u"--classic --jobs 2"_s, u"--jobs belongs to a careful batch"_s},
        {u"--jobs 17"_s, u"--jobs wants a number from 1 to 16, or \"auto\": \"17\" is none."_s},
        {u"--jobs 0"_s, u"\"0\" is none"_s},
        {u"--jobs two"_s, u"\"two\" is none"_s},
        {u"--only="_s, u"want a pattern"_s},
        {u"--shard 0/3"_s, u"it is \"0/3\""_s},
        {u"--shard 4/3"_s, u"wants K/N"_s},
        {u"--shard 1"_s, u"wants K/N"_s},
        {u"log --check"_s, u"--check belongs to the command run"_s},
        {u"--videos"_s, u"videos"_s},
        {u"--videos="_s, u"--videos wants a folder"_s},
        {u"--target ''"_s, u"--target wants a folder"_s},
        {u"walk"_s, u"\"walk\""_s},
        {u"run /a"_s, u"\"/a\""_s},
        {u"settings x"_s, u"\"x\""_s},
        {u"identify"_s, u"at least one file"_s},
        {u"--full"_s, u"belongs to the command log"_s},
        {u"log --codec-private"_s, u"belongs to the command identify"_s},
        {u"--dry-run=yes"_s, u"dry-run"_s},
    };
    for (const auto& [words, told] : cases) {
        const Batch_Line line = Parse(words);
        EXPECT_FALSE(line.Options) << words.toStdString();
        EXPECT_TRUE(line.Text.isEmpty());
        EXPECT_TRUE(line.Mistake.contains(told)) << line.Mistake.toStdString();
    }
}

TEST(Batch_Options, EachCommandHasAHelpThatNamesTheProgramsFolder)
{
    const QByteArray present = qgetenv("VANTORRA_HOME");
    qputenv("VANTORRA_HOME", Native(u"/some/where"_s).toUtf8());
    const Batch_Line help = Parse(u"--help --videos /nowhere"_s);
    present.isNull() ? qunsetenv("VANTORRA_HOME") : qputenv("VANTORRA_HOME", present);
    EXPECT_FALSE(help.Options);
    for (const QString& word : {u"settings"_s, u"identify"_s, u"log"_s, u"130"_s, Native(u"/some/where/"_s) + u'\n'})
        EXPECT_TRUE(help.Text.contains(word)) << word.toStdString();
    const QString log = Parse(u"log --help"_s).Text;
    EXPECT_TRUE(log.contains(u"--full") && !log.contains(u"--tick")) << log.toStdString();
    EXPECT_FALSE(Parse(u"run -h"_s).Text.contains(u"--full"));
    EXPECT_EQ(Parse(u"--version"_s).Text, u"vantorra-batch 2.5.5\n"_s);
}
