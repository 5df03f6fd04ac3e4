#include "command/chapters.h"

#include "command/chapter_text.h"
#include "command/companion_files.h"
#include "state/program.h"
#include "support/disk_names.h"
#include "support/files.h"
#include "support/paths.h"
#include "support/run_time_error.h"
#include "support/text.h"
#include "support/trash.h"
#include "support/whole_file.h"

#include <chrono>
#include <random>

using namespace Qt::StringLiterals;

static QString Chosen_Folder(const JobOptions& options, const QString& videos_path)
{
    const bool elsewhere = options.chk_ChaptersPath.Value == 1 && !options.Path_Chapters.isEmpty();
    return elsewhere ? options.Path_Chapters : videos_path;
}

QString Find_Chapter_File(Program& program, const QString& videos_path, const QString& base_name)
{
    const JobOptions& options = program.Options;
    clsStringBuilder& faults = program.Logs.Log_Faults;
    if (options.chk_ReplaceChapters.Value != 1)
        return {};
    const QString stem_folder = Chosen_Folder(options, videos_path);
    QString folder = stem_folder;
    if (options.chk_ChaptersPath.Value == 1 && !Folder_Exists(folder)) {
        faults.AppendLine(u"*** The selected path "_s + folder + u" does not exist."_s);
        folder.clear();
    }
    // Deliberate: with the conversion off no chapter file is used at all, a finished XML neither.
    int result = 0;
    QString chapter_file;
    if (options.chk_ConvertTXT.Value == 1)
        result = Convert_Chapters(program, stem_folder + base_name, true, chapter_file);
    // Deliberate: what was just made may give way to another file of that ending. A careful run uses what it made.
    const bool made = program.Run.Careful && !program.Run.Video.Chapter_Xml.isEmpty();
    if (result != 0 && !made)
        Find_Chapters_Xml(folder, base_name, chapter_file, program.Run.Sensible_Bases);
    Log_Chapter_Result(result, options.Log_Verbosity, faults);
    return chapter_file;
}

/// A random number from 0 up to but not including 1, seeded from the clock.
static float Random_Number()
{
    const auto seed = std::chrono::system_clock::now().time_since_epoch().count();
    std::mt19937_64 generator(static_cast<std::uint64_t>(seed));
    constexpr std::uint64_t steps = 1U << 24U; // as many as a single-precision number tells apart
    return static_cast<float>(generator() % steps) / static_cast<float>(steps);
}

/// Writes the new XML, and moves the old one out of the way once the new one is on the disk.
static void Replace_Xml(Program& program, const QString& path, const QString& xml)
{
    Whole_File file(path);
    file.Append(xml.toUtf8());
    file.Flush_To_Disk();
    if (File_Exists(path)) {
        if (!Delete_To_Recycle(path, program.Logs.Log_Faults))
            throw Run_Time_Error(Error_Number::Path_File_Access_Error, u"Replacing a chapter file"_s, path, {},
                                 u"It could not be moved to the trash. Move it away, then run again."_s);
        for (int i = 0; i < 5; ++i)
            program.Person.Pump_Events();
    }
    file.Take_Its_Name();
}

int Convert_Chapters(Program& program, const QString& stem, bool convert, QString& out_path)
{
    int bits = 0;
    QString input;
    bool from_txt = false;
    const QString xml_path = stem + u"_Chapters.xml"_s;
    for (const QString& suffix : {u"_Chapters.ogg"_s, u"_Chapters.ogm"_s, u"_Chapters.txt"_s}) {
        const QString candidate = As_On_Disk(stem + suffix);
        if (!File_Exists(candidate))
            continue;
        input = candidate;
        from_txt = suffix.endsWith(u".txt"_s);
        break;
    }
    if (input.isEmpty()) {
        const bool has_xml = File_Exists(xml_path);
        out_path = has_xml ? xml_path : QString();
        return No_Text_File | (has_xml ? Xml_As_It_Stands : No_Xml_Either | Chapter_Step_Done);
    }
    if (!from_txt) {
        bits |= Ogg_Style;
        out_path = input;
    }
    if (!convert)
        return bits | Not_Converted;
    out_path = xml_path;
    const QStringList lines = Chapter_Lines(Read_Lines(input));
    Chapter_Lists chapters;
    if (Is_Ogg_Style(lines)) {
        bits |= Ogg_Style;
        chapters = Read_Ogg_Chapters(lines, input);
    }
    // Deliberate: a ".txt" file is read as plain lines whatever the Ogg reading gave; only the bit of that stays.
    if (from_txt)
        chapters = Read_Text_Chapters(lines, input);
    if (program.Run.Careful)
        for (QString& name : chapters.Names)
            name = Xml_Text(name);
    const QString xml = Chapter_Xml(chapters, Edition_Number(Random_Number()), program.Media.Video_Duration);
    // A careful run changes nothing beside a source.
    if (program.Run.Careful) {
        program.Run.Video.Chapter_Xml = xml.toUtf8();
        program.Run.Video.Chapter_Text = input;
    } else if (!program.Run.Dry_Run)
        Replace_Xml(program, xml_path, xml);
    return bits | Chapter_Step_Done;
}

void Find_Chapters_Xml(const QString& folder, const QString& base_name, QString& chapter_file,
                       const QStringList& video_bases)
{
    const QString wanted = base_name.toLower() + u"_chapters.xml"_s;
    for (const QString& name : List_Files(folder)) {
        if (!Match_File_Masks(name, u"*_chapters.xml"_s) || !name.toLower().contains(wanted))
            continue;
        if (!video_bases.isEmpty() && Longest_Base_In(name, video_bases) != base_name.toLower())
            continue;
        // What its name's text leads to isn't the file.
        if (Has_Stand_Ins(name))
            continue;
        chapter_file = folder + name;
        return;
    }
}

void Log_Chapter_Result(int result, std::int16_t verbosity, clsStringBuilder& faults)
{
    struct Result_Line
    {
        int Result;
        QString Line;
    };

    // Deliberate: compared whole, not bit by bit, so none of the results that a run gives has a line.
    static const Result_Line lines[] = {
        {1, u"*** There was an unspecified error in processing the assigned chapter file."_s},
        {2, u"*** Attempted to add/replace chapters, but cannot find the Chapters XML file."_s},
        {4, u"*** Adding/replacing chapters. A Chapters XML file was found so we'll use it."_s},
        {8, u"*** The given Chapters text file was 'Ogg' style format. It was converted to an XML format."_s},
        {16, u"*** Attempted to add/replace chapters, but cannot create new \"*_Chapters.xml\" file. "
             u"The \"*_Chapters.txt\" file is not found."_s},
        {32, u"*** Attempted to add/replace chapters, but could not find any files to convert/add."_s},
    };
    if (verbosity <= 0)
        return;
    for (const Result_Line& line : lines)
        if (line.Result == result)
            faults.AppendLine(line.Line);
}

void Append_Chapter_Arguments(Command_Line& command, const QString& chapter_file, const JobOptions& options)
{
    if (chapter_file.isEmpty() || options.chk_ReplaceChapters.Value != 1)
        return;
    command.Add_Path(u" --chapter-language eng --chapters "_s, chapter_file);
}
