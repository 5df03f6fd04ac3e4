#include "workbenches/log_viewer.h"

#include "logs/log_rotation.h"
#include "state/program.h"
#include "support/form_placement.h"
#include "support/last_error.h"
#include "support/paths.h"
#include "support/plain_file.h"
#include "support/run_time_error.h"
#include "support/shown_text.h"
#include "support/text.h"
#include "workbenches/log_find_bar.h"
#include "workbenches/viewer_place.h"
#include "workbenches/viewer_text_size.h"

#include <QFile>
#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

static constexpr int First_Lines = 499;
static constexpr int All_Lines = 32767;

namespace {

/// Cuts a text that comes in pieces into lines, up to a number of them.
class Line_Cutter
{
  public:
    Line_Cutter(QStringList& lines, int limit, const QString& path) : lines_(lines), limit_(limit), path_(path) {}

    /// Takes the whole lines of `bytes`; what stands behind the last line end waits for more.
    void Take(const QByteArray& bytes)
    {
        rest_ += bytes;
        qsizetype start = 0;
        while (!Is_Full()) {
            qsizetype end = std::max(start, scanned_);
            while (end < rest_.size() && rest_[end] != '\n' && rest_[end] != '\r')
                ++end;
            // A CR at the end of the piece may be half of a CR LF.
            if (end >= rest_.size() - (end < rest_.size() && rest_[end] == '\r' ? 1 : 0)) {
                scanned_ = end;
                break;
            }
            Add(start, end);
            start = end + (rest_[end] == '\r' && rest_[end + 1] == '\n' ? 2 : 1);
        }
        rest_.remove(0, start);
        scanned_ = std::max<qsizetype>(scanned_ - start, 0);
    }

    /// The file has ended: a last line without an end counts too.
    void Finish()
    {
        if (rest_.endsWith('\r'))
            Take("\n");
        if (!rest_.isEmpty() && !Is_Full())
            Add(0, rest_.size());
    }

    bool Is_Full() const { return lines_.size() > limit_; }

  private:
    void Add(qsizetype start, qsizetype end)
    {
        // Deliberate: the count and the rows of a list are 16-bit numbers, also for the full log.
        if (lines_.size() >= All_Lines)
            throw Run_Time_Error(Error_Number::Overflow, u"Counting the lines of the process log"_s, path_, {},
                                 u"It has more than 32,767 lines. Clear it, or open it with an editor."_s);
        lines_ += QString::fromUtf8(rest_.constData() + start, end - start);
    }

    QStringList& lines_;
    qsizetype limit_;
    const QString& path_;
    QByteArray rest_;
    qsizetype scanned_ = 0; ///< so far there is no line end in the rest
};

} // namespace

QStringList Read_Log_Lines(const QString& path, int limit)
{
    constexpr qint64 piece = 1 << 18;
    QFile file;
    Open_Plain_File(file, path, u"Opening the process log to show it"_s);
    QStringList lines;
    Line_Cutter cutter(lines, limit, path);
    while (!cutter.Is_Full()) {
        Forget_Last_Error();
        const QByteArray bytes = file.read(piece);
        if (bytes.isEmpty()) {
            if (file.error() != QFileDevice::NoError)
                Raise_File_Error(u"Reading the process log to show it"_s, path, Last_Error());
            cutter.Finish();
            break;
        }
        cutter.Take(bytes);
    }
    return lines;
}

void Load_vProcessLog(Program& program, frm_ProcessLog& form, int limit, bool& loaded)
{
    form.lbl_LoadLog.Visible = true; // Deliberate: it says "Full Log" while the first 500 lines load, too.
    program.Person.Pump_Events();
    form.lst_ProcessLog.clear();
    form.Selected_Row = -1;
    const QString log = Process_Log_Path(program.Settings.App_Folder);
    const bool exists = File_Exists(log);
    try {
        if (exists)
            form.lst_ProcessLog = Read_Log_Lines(log, limit);
    } catch (const Run_Time_Error& error) {
        // Deliberate: too many lines end the program; a log that can't be read is only told.
        if (error.Number() == Error_Number::Overflow)
            throw;
        program.Person.Show_Message({.Title = u"The log can't be read"_s, .Text = error.In_One_Line()});
    }
    form.Selected_Row = form.lst_ProcessLog.isEmpty() ? -1 : 0;
    form.btn_LoadFullLog.Enabled = exists;
    form.lbl_LogLines.Caption = QString::number(form.lst_ProcessLog.size()) + u" Lines"_s;
    form.lbl_LoadLog.Visible = false;
    loaded = true;
}

/// The lines of a log as far as a list takes them; none of one that can't be read.
static QStringList Lines_For_Looking(const QString& log)
{
    try {
        return File_Exists(log) ? Read_Log_Lines(log, All_Lines - 1) : QStringList();
    } catch (const Run_Time_Error&) {
        return {};
    }
}

/// Chooses the first line that names a file, which is the newest; false if none does.
static bool Choose_Line_Of(frm_ProcessLog& form, const QStringList& lines, const QString& name)
{
    const auto at =
        std::find_if(lines.begin(), lines.end(), [&name](const QString& line) { return line.contains(name); });
    if (at == lines.end())
        return false;
    form.Selected_Row = static_cast<int>(at - lines.begin());
    form.lst_ProcessLog = lines;
    return true;
}

/// Where the lines that are loaded don't name the file, the full log is looked through, and then the earlier logs: a
/// run that isn't appended leaves only its own videos in the newest one.
static void Show_Lines_Of(Program& program, frm_ProcessLog& form, const QString& path)
{
    const QString name = As_One_Line(path);
    if (Choose_Line_Of(form, form.lst_ProcessLog, name))
        return;
    const QString& folder = program.Settings.App_Folder;
    QStringList logs{Process_Log_Path(folder)};
    for (const char16_t letter : {u'A', u'B', u'C', u'D', u'E'})
        logs += Process_Log_Generation(folder, letter);
    for (const QString& log : logs) {
        if (!Choose_Line_Of(form, Lines_For_Looking(log), name))
            continue;
        form.lbl_LogLines.Caption = QString::number(form.lst_ProcessLog.size()) + u" Lines of "_s + File_Name_Of(log);
        return;
    }
    form.lbl_LogLines.Caption += u". None tells of the video; from verbosity 1 on there are some."_s;
}

void ProcessLog_Activate(Program& program, frm_ProcessLog& form)
{
    form.Visible = true;
    if (form.Activated)
        return;
    form.Activated = true;
    Settings_State& settings = program.Settings;
    Place_Viewer(form.Place, program.Form.Shown_Place(), settings.ProcessLog_Box, settings.ProcessLog_Not_First_Run);
    bool loaded = false;
    Load_vProcessLog(program, form, form.Line_Limit, loaded);
    Show_Text_Size(settings.ProcessLog_Font_Size, form.lbl_FontSize);
    if (const QString path = std::exchange(program.Videos.To_Show, {}); !path.isEmpty()) {
        Show_Lines_Of(program, form, path);
        form.Find.Text = As_One_Line(path); // on to its next line
    }
    Look_Through_Lines(form);
}

void ProcessLog_btn_LoadFullLog(Program& program, frm_ProcessLog& form)
{
    const bool full = !form.Full_Log_Loaded;
    form.Line_Limit = full ? All_Lines : First_Lines;
    bool loaded = false;
    Load_vProcessLog(program, form, form.Line_Limit, loaded);
    form.btn_LoadFullLog.Caption = full ? u"Load 500 Lines"_s : u"Load Full Log "_s;
    form.Full_Log_Loaded = full;
    Look_Through_Lines(form);
    form.Focus = u"btn_Done"_s;
}

void ProcessLog_btn_Done(Program& program, frm_ProcessLog& form)
{
    if (program.Form.Topmost_On)
        program.Person.Set_Topmost(true);
    program.Settings.ProcessLog_Box = Viewer_Box(form.Place);
    form.Find.Open = false;
    form.Activated = false;
    form.Visible = false;
}

void ProcessLog_img_FontInc(Program& program, frm_ProcessLog& form)
{
    Increase_Text_Size(program.Settings.ProcessLog_Font_Size, form.lbl_FontSize);
}

void ProcessLog_img_FontDec(Program& program, frm_ProcessLog& form)
{
    Decrease_Text_Size(program.Settings.ProcessLog_Font_Size, form.lbl_FontSize);
}

void ProcessLog_img_FontReset(Program& program, frm_ProcessLog& form)
{
    Reset_Text_Size(program.Settings.ProcessLog_Font_Size, program.Form.Text_Size, form.lbl_FontSize);
}

void ProcessLog_KeyDown(Program& program, frm_ProcessLog& form, int key, bool shift)
{
    if (key == Key_Escape && form.Find.Open)
        ProcessLog_Close_Find(form);
    else if (key == Key_Escape || key == Key_Enter || key == Key_Execute)
        ProcessLog_btn_Done(program, form);
    else if (key == Key_F12)
        Place_Form(shift ? Placement::Over_Main_Form : Placement::Centred, form.Place, program.Form.Shown_Place());
}
