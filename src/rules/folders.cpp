#include "rules/folders.h"

#include "rules/folder_table.h"
#include "support/paths.h"
#include "support/text.h"

using namespace Qt::StringLiterals;

const Main_Folder& Videos_Folder()
{
    static const Main_Folder folder = {u"VideosPath"_s,
                                       &JobOptions::Path_Videos,
                                       &Main_Form::ulbl_VideosPath,
                                       &Main_Form::lbl_VideoPathFault,
                                       &Settings_State::Source_MRU,
                                       401,
                                       u"Select the folder of Video Files."_s + Line_Break +
                                           u"It CANNOT be the same as the Target path."_s};
    return folder;
}

const Main_Folder& Target_Folder()
{
    static const Main_Folder folder = {u"TargetPath"_s,
                                       &JobOptions::Path_Target,
                                       &Main_Form::ulbl_TargetPath,
                                       &Main_Form::lbl_TargetPathFault,
                                       &Settings_State::Target_MRU,
                                       405,
                                       u"Select a Target Folder to hold your processed files."_s + Line_Break +
                                           u"It CANNOT be the same as the Video Files path."_s};
    return folder;
}

const std::array<Companion_Folder, 3>& Companion_Folders()
{
    static const std::array<Companion_Folder, 3> folders = {{
        {u"AudioPath"_s, &JobOptions::Path_Audios, &Main_Form::ulbl_AudioPath, &Main_Form::lbl_AudioPathFault,
         &Main_Form::lbl_AudipPathEmpty, &JobOptions::chk_AudioPath, &Main_Form::pic_AudioPath, 402,
         u"Select the folder of Audio Files."_s},
        {u"SubsPath"_s, &JobOptions::Path_Subtitles, &Main_Form::ulbl_SubsPath, &Main_Form::lbl_SubsPathFault,
         &Main_Form::lbl_SubsPathEmpty, &JobOptions::chk_SubsPath, &Main_Form::pic_SubsPath, 403,
         u"Select the folder of Subtitle Files."_s},
        {u"ChaptersPath"_s, &JobOptions::Path_Chapters, &Main_Form::ulbl_ChaptersPath, &Main_Form::lbl_ChapsPathFault,
         &Main_Form::lbl_ChapsPathEmpty, &JobOptions::chk_ChaptersPath, &Main_Form::pic_ChaptersPath, 404,
         u"Select the folder of Chapter Files."_s},
    }};
    return folders;
}

const Companion_Folder& Companion_Folder_Of(Folder_Box box)
{
    const auto& [audio, subtitles, chapters] = Companion_Folders();
    return box == Folder_Box::Audio ? audio : box == Folder_Box::Subtitles ? subtitles : chapters;
}

bool Folder_Has_Content(const QString& path, Folder_Counts& counts)
{
    counts = Count_Folder(path);
    return counts.Folders + counts.Files > 0;
}

static bool Check_Videos(Program& program)
{
    QString& path = program.Options.Path_Videos;
    const bool passed = Path_Exists(path);
    path = passed ? With_Separator(path) : QString();
    program.Form.ulbl_VideosPath.Caption = path;
    program.Form.lbl_VideoPathFault.Caption = passed ? QString() : u"Video Path Not Set"_s;
    return passed;
}

static bool Check_Companion(Program& program, const Companion_Folder& folder)
{
    QString& path = program.Options.*folder.Path;
    Label& empty = program.Form.*folder.Empty;
    const bool passed = Path_Exists(path);
    path = passed ? With_Separator(path) : QString();
    (program.Form.*folder.Shown).Caption = path;
    if (passed)
        (program.Form.*folder.Fault).Caption.clear();
    Folder_Counts counts;
    empty.Visible = passed && !Folder_Has_Content(path, counts);
    return passed;
}

static bool Check_Target(Program& program)
{
    QString& path = program.Options.Path_Target;
    Label& fault = program.Form.lbl_TargetPathFault;
    const bool there = Path_Exists(path);
    const bool passed = there && !Same_Folder(path, program.Options.Path_Videos);
    path = passed ? With_Separator(path) : QString();
    program.Form.ulbl_TargetPath.Caption = path;
    fault.Caption = passed ? QString() : there ? Same_Folder_Fault : u"Target Path Not Set"_s;
    if (!passed)
        fault.Visible = true;
    return passed;
}

void Tell_Same_Folder(Program& program)
{
    const QString& target = program.Options.Path_Target;
    Label& fault = program.Form.lbl_TargetPathFault;
    if (!target.isEmpty() && Same_Folder(target, program.Options.Path_Videos)) {
        fault.Caption = Same_Folder_Fault;
        fault.Visible = true;
    } else if (fault.Caption == Same_Folder_Fault) {
        fault.Caption = target.isEmpty() ? u"Target Path Not Set"_s : QString();
    }
}

bool Check_Paths(Program& program, const QString& which)
{
    const auto wanted = [&which](const QString& word) { return which == u"All"_s || which == word; };
    bool passed = false;
    if (wanted(Videos_Folder().Word))
        passed = Check_Videos(program);
    for (const Companion_Folder& folder : Companion_Folders())
        if (wanted(folder.Word))
            passed = Check_Companion(program, folder);
    if (wanted(Target_Folder().Word))
        passed = Check_Target(program);
    return passed;
}

void Show_Folder_Panels(const JobOptions& options, Main_Form& form)
{
    for (const Companion_Folder& folder : Companion_Folders())
        (form.*folder.Frame).Visible = (options.*folder.Box).Value == 1;
}

void Test_Run_Button(Program& program)
{
    program.Form.btn_RunVantorra.Enabled =
        !program.Options.Path_Videos.isEmpty() && !program.Options.Path_Target.isEmpty();
}

void Follow_Folders(Program& program)
{
    if (program.Settings.Extensions.Run_Button_Follows_Folders)
        Test_Run_Button(program);
}

void Forget_Last_Run(Main_Form& form)
{
    const Main_Form fresh{};
    form.pic_VideosPath.Caption = fresh.pic_VideosPath.Caption;
    form.pic_TargetPath.Caption = fresh.pic_TargetPath.Caption;
    form.lbl_ProgressFinished.Visible = false;
    form.Progress_Fraction = 0;
    form.Progress = Progress_Look::Idle;
    form.ulbl_Title1.Caption.clear();
    form.lbl_RunSummary.Caption.clear();
    form.Summary = Summary_Look::Plain;
    form.lbl_Notice.Caption.clear();
}
