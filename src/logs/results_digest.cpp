#include "logs/results_digest.h"

#include "state/program.h"
#include "support/shown_text.h"
#include "support/text.h"

using namespace Qt::StringLiterals;

static constexpr int Head_Indent = 8;
static constexpr int Line_Indent = 12;
static constexpr int Console_Indent = 14;
static constexpr int Summary_Indent = 15;
static constexpr int Flash_Moves = 4;
static constexpr int Flash_Wait = 150; ///< milliseconds

static void Add_Indented(clsStringBuilder& results, int blanks, const QString& line)
{
    results.AppendLine(QString(blanks, u' ') + line);
}

static void Add_Non_Empty(clsStringBuilder& results, const QString& text)
{
    for (const QString& line : Split_Text(text, Line_Break))
        if (!line.isEmpty())
            Add_Indented(results, Line_Indent, line);
}

/// What mkvmerge said, as much of it as the verbosity asks for. Only at 6 and 7 is a failure noticed.
static void Add_Console_Lines(Program& program, QStringList lines)
{
    clsStringBuilder& results = program.Logs.Log_Results;
    const int verbosity = program.Options.Log_Verbosity;
    // The banner.
    if (!lines.isEmpty())
        lines.first().clear();

    if (verbosity >= 5)
        for (const QString& wanted : {u"has been opened for writing"_s, u"are being written."_s})
            for (const QString& line : lines)
                if (line.toLower().contains(wanted))
                    Add_Indented(results, Line_Indent, line);
    if (verbosity >= 1 && verbosity <= 5)
        for (const QString& line : lines)
            if (line.contains(u"Multiplexing took"_s))
                Add_Indented(results, Summary_Indent, line);
    // Deliberate: the lines that were picked out above stand here a second time.
    if (verbosity > 5)
        for (const QString& line : lines) {
            if (line.toLower().contains(u"failed"_s))
                program.Run.Process_Failed = true;
            if (!line.isEmpty())
                Add_Indented(results, Console_Indent, line);
        }
}

/// The only lines that reach the log at verbosity 0.
static void Add_Deletion_Notes(Program& program)
{
    struct Note
    {
        bool Deleted;
        QString Text;
    };

    const Run_State& run = program.Run;
    const Note notes[] = {
        {run.Source_Deleted, u"-- Source video file DELETED after Processing - "_s},
        {run.Ancillary_Deleted, u"-- Source video Ancillary files DELETED after Processing - "_s},
        {run.Attachment_Files_Deleted, u"-- Source video ATTACHMENT files DELETED after Processing - "_s},
        {run.Attachment_Folder_Deleted, u"-- Source video ATTACHMENT folder DELETED after Processing - "_s},
    };
    const bool separated = program.Options.Log_Verbosity > 0;
    bool first = true;
    for (const Note& note : notes) {
        if (!note.Deleted)
            continue;
        if (separated && first)
            program.Logs.Log_Results.AppendLine(u"@");
        first = false;
        Add_Indented(program.Logs.Log_Results, separated ? Line_Indent : Console_Indent,
                     note.Text + u'"' + As_One_Line(run.Current_Video_Path) + u'"');
    }
}

bool Digest_Results(Program& program, const QString& note_text)
{
    clsStringBuilder& results = program.Logs.Log_Results;
    Run_State& run = program.Run;
    const bool logged = program.Options.Log_Verbosity > 0;

    run.Process_Failed = false;
    if (logged && !program.Logs.Log_Faults.Is_Empty()) {
        results.AppendLine(u"~~~~");
        Add_Indented(results, Head_Indent, u"[Vantorra Results]"_s);
        Add_Non_Empty(results, program.Logs.Log_Faults.ToString());
    }
    if (logged)
        Add_Non_Empty(results, note_text);
    if (logged && run.Digest_Separator_Written == 0) {
        results.AppendLine(u"@");
        run.Digest_Separator_Written = 1;
    }

    // Deliberate: where mkvmerge said nothing there are no deletion notes either.
    if (!program.Logs.Log_Console.Is_Empty() && !run.Halt_Requested) {
        if (logged) {
            Add_Indented(results, Head_Indent, u"[mkvmerge Results]"_s);
            run.Digest_Separator_Written = 0;
            Add_Console_Lines(program, Split_Text(program.Logs.Log_Console.ToString(), Line_Break));
        }
        Add_Deletion_Notes(program);
    }
    program.Logs.Log_Faults.Clear();
    program.Logs.Log_Console.Clear();
    return true;
}

void Flash_Process_Failed(Program& program)
{
    Main_Form& form = program.Form;
    if (form.pic_ProcessFailed.Visible || program.Run.Process_Failed)
        return;
    form.pic_ProcessFailed.Visible = true;
    for (int move = 0; move < Flash_Moves; ++move) {
        program.Person.Wait_With_Events(Flash_Wait);
        form.img_ProcessFailed_Out = !form.img_ProcessFailed_Out;
    }
    program.Run.Process_Failed = true;
}
