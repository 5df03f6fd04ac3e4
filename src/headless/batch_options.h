#pragma once

#include "state/run_state.h"

#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

/// What vantorra-batch is asked to do.
enum class Batch_Command
{
    Run,
    Settings,
    Identify,
    Log,
    Journal,
    Presets
};

/// --tick and --untick: a click on a check box.
struct Box_Click
{
    QString Name;
    bool Tick = true;
};

/// The command line of vantorra-batch, understood.
struct Batch_Options
{
    Batch_Command Command = Batch_Command::Run;
    QString Videos = {};                ///< absolute; empty: the remembered folder
    QString Target = {};                ///< absolute; empty: the remembered folder
    QString App_Folder = {};            ///< absolute; empty: found as the window finds it
    std::optional<QString> Preset = {}; ///< its name
    QStringList Settings = {};          ///< --set: "Section/Key=Value" each
    std::vector<Box_Click> Clicks = {}; ///< in the order of the command line
    bool Dry_Run = false;
    bool Check = false;               ///< a dry run that is told as a table
    std::optional<bool> Careful = {}; ///< --careful or --classic; nothing: as the settings say
    bool Recursive = false;
    std::optional<int> At_Once = {}; ///< --jobs; nothing: as the settings say
    bool Resume = false;
    bool Only_Failed = false;   ///< run, journal
    QStringList Only = {};      ///< patterns of names; empty: all
    QStringList Leave_Out = {}; ///< patterns of names
    Shard Part = {};
    bool Json = false;
    bool Quiet = false;
    bool Full = false;          ///< log: all of it, not its first lines only
    bool Codec_Private = false; ///< identify: with the codec-private values
    QStringList Files = {};     ///< identify: absolute paths
};

/// The long names of all options, with their two dashes, in the order of the help.
QStringList Option_Names();

/// The words of all commands.
QStringList Command_Names();

/// What became of the command line: options, or a text to print (help, version, names), or a mistake.
struct Batch_Line
{
    std::optional<Batch_Options> Options;
    QString Text;    ///< for standard output; the program then ends with 0
    QString Mistake; ///< for standard error; the program then ends with 64
};

/// Understands the command line; `arguments` begins with the program's name. Folders and files are made absolute
/// against the current folder.
Batch_Line Parse_Batch_Line(const QStringList& arguments);
