#include "headless/batch_options.h"

#include "headless/completion_list.h"
#include "headless/nearest_name.h"
#include "life/app_folder.h"
#include "state/settings_state.h"
#include "support/paths.h"

#include <QCommandLineParser>
#include <QDir>
#include <QRegularExpression>
#include <QThread>
#include <algorithm>

using namespace Qt::StringLiterals;

/// One command: its word, what it does, and the words behind it.
struct Command_Row
{
    Batch_Command Command;
    QString Word;
    QString Does;
    QString Behind; ///< what may follow it
};

static const std::vector<Command_Row>& Command_Rows()
{
    static const std::vector<Command_Row> rows = {
        {Batch_Command::Run, u"run"_s, u"process the folder (the default)"_s, u"[VIDEOS TARGET]"_s},
        {Batch_Command::Settings, u"settings"_s, u"print the options in force"_s, {}},
        {Batch_Command::Identify, u"identify"_s, u"print what mkvmerge says of each file"_s, u"FILE..."_s},
        {Batch_Command::Log, u"log"_s, u"print the process log"_s, {}},
        {Batch_Command::Journal, u"journal"_s, u"print the last result of each video, on whatever machine"_s, {}},
        {Batch_Command::Presets, u"presets"_s, u"print the names of the presets"_s, {}},
    };
    return rows;
}

QStringList Command_Names()
{
    QStringList names;
    for (const Command_Row& row : Command_Rows())
        names += row.Word;
    return names;
}

/// One option and the commands that know it.
struct Option_Row
{
    QStringList Names; ///< the long one last
    QString Does;
    QString Value; ///< what its value is called; empty: it has none
    QList<Batch_Command> Commands;

    QString Long_Name() const { return Names.constLast(); }
};

static std::vector<Option_Row> Run_Options()
{
    const QList<Batch_Command> run{Batch_Command::Run};
    return {
        {{u"careful"_s}, u"Run as a careful batch, whatever the settings say."_s, {}, run},
        {{u"classic"_s}, u"Run as a classic batch, whatever the settings say."_s, {}, run},
        {{u"n"_s, u"dry-run"_s},
         u"Inspect, and print each mkvmerge command in shell quoting. Runs none, and writes, converts and trashes "
         "nothing."_s,
         {},
         {Batch_Command::Run, Batch_Command::Settings, Batch_Command::Identify}},
        {{u"check"_s}, u"Like --dry-run, but tell what would come of each video and what is wrong with it."_s, {}, run},
        {{u"recursive"_s}, u"Take the folders below the videos' folder, too (careful only)."_s, {}, run},
        {{u"jobs"_s},
         u"Work on N videos at once, 1 to 16; \"auto\": as many as there are cores, at most 4 (careful only)."_s,
         u"N"_s,
         run},
        {{u"resume"_s}, u"Leave out what is done already and hasn't changed since (careful only)."_s, {}, run},
        {{u"failed"_s},
         u"Take only what failed last (careful only)."_s,
         {},
         {Batch_Command::Run, Batch_Command::Journal}},
        {{u"only"_s}, u"Take only videos of such names. Repeatable (careful only)."_s, u"GLOB"_s, run},
        {{u"leave-out"_s}, u"Leave videos of such names out. Repeatable (careful only)."_s, u"GLOB"_s, run},
        {{u"shard"_s}, u"Take only the K-th of N parts of the videos (careful only)."_s, u"K/N"_s, run},
    };
}

/// Every option but those of Qt, in the order of the help.
static const std::vector<Option_Row>& Option_Rows()
{
    static const std::vector<Option_Row> rows = [] {
        using enum Batch_Command;
        const QList<Batch_Command> all{Run, Settings, Identify, Log, Journal, Presets};
        const QList<Batch_Command> set_up{Run, Settings, Identify};
        std::vector<Option_Row> list = {
            {{u"videos"_s}, u"Take the videos from DIR instead of the remembered folder."_s, u"DIR"_s, set_up},
            {{u"target"_s}, u"Put the Matroska files into DIR instead of the remembered folder."_s, u"DIR"_s, set_up},
            {{u"app-folder"_s},
             u"The program's folder, where Vantorra.ini, ffprobe and the logs are."_s,
             u"DIR"_s,
             all},
            {{u"preset"_s}, u"Take the options of that preset (vantorra-batch presets)."_s, u"NAME"_s, set_up},
            {{u"set"_s},
             u"Read a setting as if Vantorra.ini said so. Repeatable, never saved."_s,
             u"Section/Key=Value"_s,
             set_up},
            {{u"tick"_s}, u"Tick a check box as a click does, after loading. Repeatable."_s, u"NAME"_s, set_up},
            {{u"untick"_s}, u"Untick a check box as a click does, after loading. Repeatable."_s, u"NAME"_s, set_up},
        };
        for (Option_Row& row : Run_Options())
            list.push_back(std::move(row));
        list.push_back({{u"json"_s}, u"Print one JSON object a line on standard output."_s, {}, all});
        list.push_back({{u"q"_s, u"quiet"_s}, u"Print faults only."_s, {}, all});
        list.push_back({{u"full"_s}, u"Print all of the log."_s, {}, {Log}});
        list.push_back({{u"codec-private"_s}, u"Print the codec-private values, too."_s, {}, {Identify}});
        return list;
    }();
    return rows;
}

QStringList Option_Names()
{
    QStringList names;
    for (const Option_Row& row : Option_Rows())
        names += u"--"_s + row.Long_Name();
    return names + QStringList{u"--version"_s, u"--help"_s, u"--help-all"_s};
}

static QString Description()
{
    return u"Turns every video of a folder into a Matroska file of the same name, with mkvmerge.\n\n"
           "exit status: 0 finished, no failure seen; 1 refused before the loop; 2 finished, some file failed, or a\n"
           "             source that should go was kept; 64 bad usage; 70 run-time error; 130 halted (SIGINT, SIGTERM)"
           "\n\nThe program's folder here, where no --app-folder names another: "_s +
           Choose_App_Folder(App_Folder_Places_Of_This_Process({}));
}

/// The parser of one command, or with none of all of them.
static void Describe(QCommandLineParser& parser, std::optional<Batch_Command> command)
{
    for (const Option_Row& row : Option_Rows())
        if (!command || row.Commands.contains(*command))
            parser.addOption({row.Names, row.Does, row.Value});
    parser.addVersionOption();
    parser.addHelpOption();
    // For the shells' completions.
    QCommandLineOption complete(u"complete"_s, {}, u"LIST"_s);
    complete.setFlags(QCommandLineOption::HiddenFromHelp);
    parser.addOption(complete);
    if (!command) {
        QStringList lines;
        for (const Command_Row& row : Command_Rows())
            lines += row.Word + (row.Behind.isEmpty() ? QString() : u' ' + row.Behind) + u": "_s + row.Does;
        parser.setApplicationDescription(Description() +
                                         u"\n\nvantorra-batch COMMAND --help: the options of one command"_s);
        parser.addPositionalArgument(u"command"_s, lines.join(u'\n'), u"[command]"_s);
        return;
    }
    for (const Command_Row& row : Command_Rows())
        if (row.Command == *command) {
            parser.setApplicationDescription(u"vantorra-batch %1: %2"_s.arg(row.Word, row.Does));
            parser.addPositionalArgument(row.Word, row.Does, row.Word + u' ' + row.Behind);
        }
}

/// The command that the first positional argument names, which is taken then; nothing if it names none.
static std::optional<Batch_Command> Take_Command(QStringList& positional)
{
    for (const Command_Row& row : Command_Rows())
        if (!positional.isEmpty() && positional.constFirst() == row.Word) {
            positional.removeFirst();
            return row.Command;
        }
    return std::nullopt;
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
    folder = Absolute_Path(value);
    return {};
}

/// The two folders as bare words behind "run".
static QString Take_Bare_Folders(const QStringList& positional, Batch_Options& options)
{
    if (positional.isEmpty())
        return {};
    if (positional.size() != 2)
        return positional.size() == 1 ? u"\"%1\" is one word too few: two folders are wanted, videos and target."_s.arg(
                                            positional.constFirst())
                                      : u"\"%1\" is one word too many."_s.arg(positional[2]);
    if (!options.Videos.isEmpty() || !options.Target.isEmpty())
        return u"The folders are named twice: by --videos or --target, and as \"%1\" and \"%2\"."_s.arg(positional[0],
                                                                                                        positional[1]);
    if (positional[0].isEmpty() || positional[1].isEmpty())
        return u"A folder's name is empty."_s;
    options.Videos = Absolute_Path(positional[0]);
    options.Target = Absolute_Path(positional[1]);
    return {};
}

static QString Take_Part(const QCommandLineParser& parser, Shard& part)
{
    if (!parser.isSet(u"shard"_s))
        return {};
    static const QRegularExpression form(QRegularExpression::anchoredPattern(u"([1-9][0-9]{0,5})/([1-9][0-9]{0,5})"_s));
    const QRegularExpressionMatch match = form.match(parser.value(u"shard"_s));
    part = {.Number = match.captured(1).toInt(), .Of = match.captured(2).toInt()};
    return match.hasMatch() && part.Number <= part.Of
               ? QString()
               : u"--shard wants K/N, the K-th of N parts, such as 2/3; it is \"%1\"."_s.arg(parser.value(u"shard"_s));
}

static QString Take_Jobs(const QCommandLineParser& parser, Batch_Options& options)
{
    constexpr int most_by_itself = 4;
    if (!parser.isSet(u"jobs"_s))
        return {};
    const QString value = parser.value(u"jobs"_s);
    bool is_number = false;
    int jobs = value.toInt(&is_number);
    if (value == "auto"_L1)
        jobs = std::clamp(QThread::idealThreadCount(), 1, most_by_itself);
    else if (!is_number || jobs < 1 || jobs > Most_At_Once)
        return u"--jobs wants a number from 1 to %1, or \"auto\": \"%2\" is none."_s.arg(Most_At_Once).arg(value);
    options.At_Once = jobs;
    return {};
}

/// Patterns hold the separators of paths, as they are written here or elsewhere.
static QStringList With_Own_Separators(QStringList patterns)
{
    for (QString& pattern : patterns)
        pattern = QDir::toNativeSeparators(pattern);
    return patterns;
}

static QString Take_Choice(const QCommandLineParser& parser, Batch_Options& options)
{
    const bool classic = parser.isSet(u"classic"_s);
    if (classic && parser.isSet(u"careful"_s))
        return u"A run is either --careful or --classic."_s;
    if (classic || parser.isSet(u"careful"_s))
        options.Careful = !classic;
    for (const QString& name :
         {u"recursive"_s, u"jobs"_s, u"resume"_s, u"failed"_s, u"only"_s, u"leave-out"_s, u"shard"_s})
        if (classic && parser.isSet(name))
            return u"--%1 belongs to a careful batch: it can't go with --classic."_s.arg(name);
    options.Recursive = parser.isSet(u"recursive"_s);
    options.Resume = parser.isSet(u"resume"_s);
    options.Only_Failed = parser.isSet(u"failed"_s);
    options.Only = With_Own_Separators(parser.values(u"only"_s));
    options.Leave_Out = With_Own_Separators(parser.values(u"leave-out"_s));
    if (options.Only.contains(QString()) || options.Leave_Out.contains(QString()))
        return u"--only and --leave-out want a pattern."_s;
    return Take_Part(parser, options.Part);
}

static QString Refuse_Foreign_Options(const QCommandLineParser& parser, Batch_Command command)
{
    for (const Option_Row& row : Option_Rows()) {
        if (!parser.isSet(row.Long_Name()) || row.Commands.contains(command))
            continue;
        for (const Command_Row& owner : Command_Rows())
            if (owner.Command == row.Commands.constFirst())
                return u"--%1 belongs to the command %2."_s.arg(row.Long_Name(), owner.Word);
    }
    return {};
}

static QString Take_Positional(const QStringList& positional, Batch_Options& options)
{
    if (options.Command == Batch_Command::Run)
        return Take_Bare_Folders(positional, options);
    if (options.Command == Batch_Command::Identify) {
        for (const QString& file : positional)
            options.Files += Absolute_Path(file);
        return positional.isEmpty() ? u"identify wants at least one file."_s : QString();
    }
    return positional.isEmpty() ? QString() : u"\"%1\" is one word too many."_s.arg(positional.constFirst());
}

static QString Take_Options(const QCommandLineParser& parser, Batch_Options& options)
{
    QStringList positional = parser.positionalArguments();
    const std::optional<Batch_Command> command = Take_Command(positional);
    if (!command && positional.size() == 1)
        return u"There is no command \"%1\"."_s.arg(positional.constFirst()) +
               Did_You_Mean(positional.constFirst(), Command_Names());
    options.Command = command.value_or(Batch_Command::Run);

    for (const auto& [name, folder] : {std::pair(u"videos"_s, &options.Videos), std::pair(u"target"_s, &options.Target),
                                       std::pair(u"app-folder"_s, &options.App_Folder)})
        if (QString mistake = Take_Folder(parser, name, *folder); !mistake.isEmpty())
            return mistake;

    if (parser.isSet(u"preset"_s))
        options.Preset = parser.value(u"preset"_s);
    options.Settings = parser.values(u"set"_s);
    options.Clicks = Take_Clicks(parser);
    options.Check = parser.isSet(u"check"_s);
    options.Dry_Run = parser.isSet(u"dry-run"_s) || options.Check;
    options.Json = parser.isSet(u"json"_s);
    options.Quiet = parser.isSet(u"quiet"_s);
    options.Full = parser.isSet(u"full"_s);
    options.Codec_Private = parser.isSet(u"codec-private"_s);

    if (QString mistake = Refuse_Foreign_Options(parser, options.Command); !mistake.isEmpty())
        return mistake;
    if (QString mistake = Take_Choice(parser, options); !mistake.isEmpty())
        return mistake;
    if (QString mistake = Take_Jobs(parser, options); !mistake.isEmpty())
        return mistake;
    return Take_Positional(positional, options);
}

/// What is wrong with a line that the parser refuses.
static QString Mistake_Of(const QCommandLineParser& parser)
{
    const QStringList unknown = parser.unknownOptionNames();
    if (unknown.isEmpty())
        return parser.errorText();
    const bool is_long = unknown.constFirst().size() > 1;
    return u"There is no option %1%2."_s.arg(is_long ? u"--"_s : u"-"_s, unknown.constFirst()) +
           (is_long ? Did_You_Mean(u"--"_s + unknown.constFirst(), Option_Names()) : QString());
}

/// The help of the command that the line names, or of the whole.
static QString Help_Text(const QCommandLineParser& parser)
{
    QStringList positional = parser.positionalArguments();
    const std::optional<Batch_Command> command = Take_Command(positional);
    if (!command)
        return parser.helpText();
    QCommandLineParser own;
    Describe(own, command);
    return own.helpText();
}

Batch_Line Parse_Batch_Line(const QStringList& arguments)
{
    QCommandLineParser parser;
    Describe(parser, std::nullopt);

    Batch_Line line;
    if (!parser.parse(arguments))
        line.Mistake = Mistake_Of(parser);
    else if (parser.isSet(u"help"_s) || parser.isSet(u"help-all"_s))
        line.Text = Help_Text(parser);
    else if (parser.isSet(u"complete"_s))
        line.Text = Completion_List(parser.value(u"complete"_s), parser.value(u"app-folder"_s)).join(u'\n') + u'\n';
    else if (parser.isSet(u"version"_s))
        line.Text = QStringLiteral("vantorra-batch " VANTORRA_VERSION "\n");
    else if (Batch_Options options; (line.Mistake = Take_Options(parser, options)).isEmpty())
        line.Options = std::move(options);
    return line;
}
