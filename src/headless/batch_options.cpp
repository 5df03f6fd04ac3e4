#include "headless/batch_options.h"

#include "life/app_folder.h"
#include "rules/click_rules.h"

#include <QCommandLineParser>
#include <QDir>
#include <QHash>

using namespace Qt::StringLiterals;

static void Describe(QCommandLineParser& parser)
{
    parser.setApplicationDescription(
        u"Turns every video of a folder into a Matroska file of the same name, with mkvmerge.\n\n"
        "exit status: 0 finished, no failure seen; 1 refused before the loop; 2 finished, some file failed;\n"
        "             64 bad usage; 70 run-time error; 130 halted (SIGINT, SIGTERM)\n\n"
        "The program's folder here, where no --app-folder names another: "_s +
        Choose_App_Folder(App_Folder_Places_Of_This_Process({})));
    parser.addOptions({
        {u"videos"_s, u"Take the videos from DIR instead of the remembered folder."_s, u"DIR"_s},
        {u"target"_s, u"Put the Matroska files into DIR instead of the remembered folder."_s, u"DIR"_s},
        {u"app-folder"_s, u"The program's folder, where Vantorra.ini, ffprobe and the logs are."_s, u"DIR"_s},
        {u"set"_s, u"Read a setting as if Vantorra.ini said so. Repeatable, never saved."_s, u"Section/Key=Value"_s},
        {u"tick"_s, u"Tick a check box (chk_...) as a click does, after loading. Repeatable."_s, u"NAME"_s},
        {u"untick"_s, u"Untick a check box as a click does, after loading. Repeatable."_s, u"NAME"_s},
        {u"dry-run"_s,
         u"Inspect, and print each mkvmerge command in shell quoting. Runs none, and writes, converts and trashes "
         "nothing."_s},
        {u"json"_s, u"Print one JSON object a line on standard output."_s},
        {u"quiet"_s, u"Print faults only."_s},
        {u"full"_s, u"log: print all of the log."_s},
        {u"codec-private"_s, u"identify: print the codec-private values, too."_s},
    });
    QCommandLineOption list_boxes(u"list-boxes"_s,
                                  u"For the shells' completion: print the names of the check boxes."_s);
    list_boxes.setFlags(QCommandLineOption::HiddenFromHelp);
    parser.addOption(list_boxes);
    parser.addVersionOption();
    parser.addHelpOption();
    parser.addPositionalArgument(u"command"_s,
                                 u"run (the default): process the folder\n"
                                 "settings: print the options in force\n"
                                 "identify FILE...: print what mkvmerge says of each file\n"
                                 "log: print the process log"_s,
                                 u"[command]"_s);
}

/// The command that the first positional argument names; the rest stays in `positional`.
static std::optional<Batch_Command> Take_Command(QStringList& positional)
{
    static const QHash<QString, Batch_Command> commands{{u"run"_s, Batch_Command::Run},
                                                        {u"settings"_s, Batch_Command::Settings},
                                                        {u"identify"_s, Batch_Command::Identify},
                                                        {u"log"_s, Batch_Command::Log}};
    if (positional.isEmpty())
        return Batch_Command::Run;
    const auto found = commands.constFind(positional.takeFirst());
    return found == commands.constEnd() ? std::nullopt : std::optional(found.value());
}

/// The clicks of both kinds, in the order in which they stand.
static std::vector<Box_Click> Take_Clicks(const QCommandLineParser& parser)
{
    QStringList ticks = parser.values(u"tick"_s);
    QStringList unticks = parser.values(u"untick"_s);
    std::vector<Box_Click> clicks;
    for (const QString& name : parser.optionNames())
        if (name == u"tick"_s)
            clicks.push_back({.Name = ticks.takeFirst(), .Tick = true});
        else if (name == u"untick"_s)
            clicks.push_back({.Name = unticks.takeFirst(), .Tick = false});
    return clicks;
}

static QString Take_Folder(const QCommandLineParser& parser, const QString& name, QString& folder)
{
    if (!parser.isSet(name))
        return {};
    const QString value = parser.value(name);
    if (value.isEmpty())
        return u"--%1 wants a folder."_s.arg(name);
    folder = QDir::current().absoluteFilePath(value);
    return {};
}

static QString Take_Options(const QCommandLineParser& parser, Batch_Options& options)
{
    QStringList positional = parser.positionalArguments();
    const std::optional<Batch_Command> command = Take_Command(positional);
    if (!command)
        return u"There is no command \"%1\"."_s.arg(parser.positionalArguments().constFirst());
    options.Command = *command;

    for (const auto& [name, folder] : {std::pair(u"videos"_s, &options.Videos), std::pair(u"target"_s, &options.Target),
                                       std::pair(u"app-folder"_s, &options.App_Folder)})
        if (QString mistake = Take_Folder(parser, name, *folder); !mistake.isEmpty())
            return mistake;

    options.Settings = parser.values(u"set"_s);
    options.Clicks = Take_Clicks(parser);
    options.Dry_Run = parser.isSet(u"dry-run"_s);
    options.Json = parser.isSet(u"json"_s);
    options.Quiet = parser.isSet(u"quiet"_s);
    options.Full = parser.isSet(u"full"_s);
    options.Codec_Private = parser.isSet(u"codec-private"_s);

    if (options.Command == Batch_Command::Identify) {
        if (positional.isEmpty())
            return u"identify wants at least one file."_s;
        for (const QString& file : positional)
            options.Files += QDir::current().absoluteFilePath(file);
    } else if (!positional.isEmpty()) {
        return u"\"%1\" is one word too many."_s.arg(positional.constFirst());
    }
    if (options.Full && options.Command != Batch_Command::Log)
        return u"--full belongs to the command log."_s;
    if (options.Codec_Private && options.Command != Batch_Command::Identify)
        return u"--codec-private belongs to the command identify."_s;
    return {};
}

/// The check boxes by name, a line each.
static QString Box_Lines()
{
    QString names;
    for (const Click_Rule& rule : Click_Rules())
        names += rule.Name + u'\n';
    return names;
}

Batch_Line Parse_Batch_Line(const QStringList& arguments)
{
    QCommandLineParser parser;
    Describe(parser);

    Batch_Line line;
    if (!parser.parse(arguments))
        line.Mistake = parser.errorText();
    else if (parser.isSet(u"help"_s) || parser.isSet(u"help-all"_s))
        line.Text = parser.helpText();
    else if (parser.isSet(u"version"_s))
        line.Text = QStringLiteral("vantorra-batch " VANTORRA_VERSION "\n");
    else if (parser.isSet(u"list-boxes"_s))
        line.Text = Box_Lines();
    else if (Batch_Options options; (line.Mistake = Take_Options(parser, options)).isEmpty())
        line.Options = std::move(options);
    return line;
}
