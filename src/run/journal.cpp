#include "run/journal.h"

#include "command/command_frame.h"
#include "command/companion_files.h"
#include "command/external_audio.h"
#include "command/external_subtitles.h"
#include "run/journal_results.h"
#include "settings/settings_rows.h"
#include "state/program.h"
#include "support/disk_steps.h"
#include "support/paths.h"
#include "support/this_process.h"

#include <QCryptographicHash>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <utility>

using namespace Qt::StringLiterals;

/// A file that has grown to this size is left as it is, and another begun.
static constexpr qint64 Largest_Journal = 10'000'000;

static QString Numbered_Journal(const QString& app_folder, int number)
{
    const QString end = number == 1 ? u".jsonl"_s : u"-%1.jsonl"_s.arg(number);
    return With_Separator(app_folder) + u"Vantorra_Journal-"_s + Host_Name() + end;
}

QString Journal_Path(const QString& app_folder)
{
    int number = 1;
    while (QFileInfo(Numbered_Journal(app_folder, number)).size() >= Largest_Journal)
        ++number;
    return Numbered_Journal(app_folder, number);
}

static QString Status_Word(File_Outcome::Kind status)
{
    switch (status) {
    case File_Outcome::Kind::Done:
        return u"done"_s;
    case File_Outcome::Kind::Failed:
        return u"failed"_s;
    case File_Outcome::Kind::Skipped:
        return u"skipped"_s;
    case File_Outcome::Kind::Not_Run:
        break;
    }
    return u"not run"_s;
}

static QByteArray Text_Of_Line(const Program& program, QJsonObject line)
{
    const QDateTime now = program.Now();
    line.insert(u"when"_s, now.toOffsetFromUtc(now.offsetFromUtc()).toString(Qt::ISODateWithMs));
    line.insert(u"host"_s, Host_Name());
    return QJsonDocument(line).toJson(QJsonDocument::Compact) + '\n';
}

static QString Append_Lines(const Program& program, const QByteArray& lines, bool sync)
{
    if (program.Run.Dry_Run || lines.isEmpty())
        return {};
    const int error = Append_At_Once(Journal_Path(program.Settings.App_Folder), lines, sync);
    return error == 0 ? QString() : u"The journal couldn't be written: "_s + System_Words(error);
}

/// The settings that say what becomes of a video, as the settings file words them: all but the places and looks of
/// windows, the recent lists, the log, the number of videos at once, and the lines that nobody reads.
static QStringList Options_In_Force(const Program& program)
{
    const QStringList of_windows = {u"MainWindow"_s,
                                    u"ProcessLog"_s,
                                    u"View Video File Info"_s,
                                    u"Most Recently Used Sources"_s,
                                    u"Most Recently Used Destinations"_s,
                                    u"Vantorra - by Zarnegar"_s,
                                    u"Experimental"_s};
    // Younger than journals: at rest they leave it as it was, or nothing that is done would count as done.
    const QStringList younger = {u"Language From File Name"_s};
    QStringList options;
    for (const Settings_Row& row : Settings_Rows()) {
        if (younger.contains(row.Key) && Value_In_Force(row, program) == row.Default)
            continue;
        const bool of_the_log = row.Number == Row::Append_Logs || row.Number == Row::Verbosity;
        // Nor how many videos are on their way together.
        const bool no_matter = row.Key.startsWith("Video List"_L1) || row.Key == "Videos At Once"_L1;
        if (of_windows.contains(row.Section) || row.Key.contains("Window Size"_L1) || of_the_log || no_matter)
            continue;
        options += row.Section + u'/' + row.Key.trimmed() + u'=' + Value_In_Force(row, program);
    }
    return options;
}

QString Options_Text(const Program& program)
{
    const QString split = program.Options.chk_SplitVideos.Value == 1 ? u"split"_s : u"whole"_s;
    return Options_In_Force(program).join(u'\n') + split;
}

QString Note_Start(const Program& program, const QStringList& names)
{
    const QJsonObject line{{u"event"_s, u"start"_s},
                           {u"videos"_s, program.Options.Path_Videos},
                           {u"target"_s, program.Options.Path_Target},
                           {u"careful"_s, program.Run.Careful},
                           {u"split"_s, program.Options.chk_SplitVideos.Value == 1},
                           {u"options"_s, QJsonArray::fromStringList(Options_In_Force(program))},
                           {u"names"_s, QJsonArray::fromStringList(names)}};
    return Append_Lines(program, Text_Of_Line(program, line), false);
}

static QByteArray Result_Line(const Program& program, const File_Outcome& outcome, const QStringList& outputs,
                              const QString& hash)
{
    QJsonObject line{{u"event"_s, u"result"_s},
                     {u"source"_s, outcome.Source},
                     {u"outputs"_s, QJsonArray::fromStringList(outputs)},
                     {u"output_bytes"_s, qint64{Bytes_Of_All(outputs)}},
                     {u"status"_s, Status_Word(outcome.Status)},
                     {u"exit"_s, outcome.Exit},
                     {u"reason"_s, outcome.Reason},
                     {u"warnings"_s, QJsonArray::fromStringList(outcome.Warnings)},
                     {u"hash"_s, hash},
                     {u"seconds"_s, outcome.Seconds}};
    if (const auto source = Identity_Of(outcome.Source)) {
        line.insert(u"bytes"_s, qint64{source->Size});
        line.insert(u"changed"_s, QString::number(source->Written_At));
    }
    return Text_Of_Line(program, line);
}

QString Note_Result(const Program& program, const File_Outcome& outcome, const QStringList& outputs,
                    const QString& hash, bool sync)
{
    return Append_Lines(program, Result_Line(program, outcome, outputs, hash), sync);
}

void Note_Not_Run(const Program& program, const std::vector<File_Outcome>& outcomes)
{
    QByteArray lines;
    for (const File_Outcome& outcome : outcomes)
        lines += Result_Line(program, outcome, {}, {});
    Append_Lines(program, lines, false);
}

void Note_Result(const Program& program, const File_Outcome& outcome, const QString& hash)
{
    const bool made = outcome.Status == File_Outcome::Kind::Done;
    const QStringList outputs = outcome.Pieces.isEmpty() ? QStringList{outcome.Output} : outcome.Pieces;
    Note_Result(program, outcome, made ? outputs : QStringList(), hash, false);
}

static void Add_File(QCryptographicHash& hash, const QString& path)
{
    hash.addData(path.toUtf8() + '\0');
    if (const auto identity = Identity_Of(path))
        hash.addData(QByteArray::number(qint64{identity->Size}) + ' ' +
                     QByteArray::number(qint64{identity->Written_At}) + '\0');
}

/// Adds the paths of the folder's files that fit the masks and hold the base name, as companions are found.
static void Add_Companions(const QString& folder, const QString& base, const QString& masks, Known_Listings& known,
                           QStringList& files)
{
    const QString key = folder + u'\n' + masks;
    if (!known.contains(key)) {
        clsStringBuilder unused;
        auto& listed = known[key];
        for (const QString& name : Find_Companions(folder, {}, masks, unused))
            listed.emplace_back(name, name.toLower());
    }
    const QString lowered_base = base.toLower();
    for (const auto& [name, lowered] : std::as_const(known)[key])
        if (lowered.contains(lowered_base))
            files += folder + name;
}

/// Every file that the command of a video may read beside it, option files and chapters included.
static QStringList Files_That_Go_With(const Program& program, const QString& source, Known_Listings& known)
{
    const JobOptions& options = program.Options;
    const QString base = Output_Base_Of(program, source);
    QStringList folders;
    if (options.chk_AddAudio.Value == 1)
        folders += External_Audio_Folder(options, options.Path_Videos);
    if (options.chk_AddSubs.Value == 1)
        folders += External_Subtitle_Folder(options, options.Path_Videos);
    if (options.chk_ReplaceChapters.Value == 1)
        folders += options.chk_ChaptersPath.Value == 1 ? options.Path_Chapters : options.Path_Videos;
    folders.removeDuplicates();

    const QString masks = Audio_File_Masks + u';' + Subtitle_File_Masks + u";*.idx;*.sub;*.opt;*_chapters.*"_s;
    QStringList files;
    for (const QString& folder : folders)
        Add_Companions(folder, base, masks, known, files);
    if (program.Run.Add_Attachments_On)
        for (const QString& folder : {options.Path_Attachments, options.Path_Attachments + Get_Base_Name(source) +
                                                                    u"_Attachments"_s + Path_Separator})
            Add_Companions(folder, {}, u"*"_s, known, files);
    // A classic run makes these anew of the text beside them.
    files.removeIf([](const QString& file) {
        const QString end = u"_Chapters.xml"_s;
        const QString stem = file.chopped(file.endsWith(end) ? 4 : 0);
        return file.endsWith(end) &&
               (File_Exists(stem + u".txt"_s) || File_Exists(stem + u".ogg"_s) || File_Exists(stem + u".ogm"_s));
    });
    files.sort();
    return files;
}

QString Hash_Of_Video(const Program& program, const QString& source)
{
    Known_Listings once;
    return Hash_Of_Video(program, source, once);
}

QString Hash_Of_Video(const Program& program, const QString& source, Known_Listings& known)
{
    if (program.Run.Dry_Run && !program.Run.Choice.Resume)
        return {};
    QCryptographicHash hash(QCryptographicHash::Sha256);
    const QString& noted = program.Run.Options_In_Force;
    hash.addData((noted.isEmpty() ? Options_Text(program) : noted).toUtf8());
    Add_File(hash, source);
    for (const QString& file : Files_That_Go_With(program, source, known))
        Add_File(hash, file);
    return QString::fromLatin1(hash.result().toHex());
}
