#include "rules/option_rules.h"
#include "state/program.h"

using namespace Qt::StringLiterals;

/// The controls of the file title or of the video title.
struct Title_Group
{
    Check_Box& Set;
    Option_Pair& Choice;
    Check_Box& Remove;
    Check_Box& Custom;
};

static Title_Group File_Title(JobOptions& options)
{
    return {options.chk_SetFileTitle, options.opt_SetFileTitle, options.chk_RemoveFileTitle,
            options.chk_CustomFileTitle};
}

static Title_Group Video_Title(JobOptions& options)
{
    return {options.chk_SetVideoTitle, options.opt_SetVideoTitle, options.chk_RemoveVideoTitle,
            options.chk_CustomVideoTitle};
}

static void Set_Clicked(Program& program, const Title_Group& title)
{
    if (!program.Form.Options_Ready || program.Form.Closing)
        return;
    title.Choice.Enabled = title.Set.Value != 0;
    Default_Run(program);
}

static void Remove_Clicked(Program& program, const Title_Group& title)
{
    if (!program.Form.Options_Ready)
        return;
    Default_Run(program);
    if (title.Remove.Value == 1) {
        title.Custom.Enabled = title.Set.Enabled = title.Choice.Enabled = false;
        return;
    }
    title.Custom.Enabled = true;
    if (title.Custom.Value != 0)
        return;
    title.Set.Enabled = true;
    if (title.Set.Value != 0)
        title.Choice.Enabled = true;
}

/// A custom title shuts out the title made from the file's name.
static void Give_Way_To_Custom(const Title_Group& title)
{
    if (title.Custom.Value == 1) {
        title.Set.Enabled = title.Choice.Enabled = false;
        return;
    }
    title.Set.Enabled = true;
    if (title.Set.Value > 0)
        title.Choice.Enabled = true;
}

static void Custom_Clicked(Program& program, const Title_Group& title)
{
    if (!program.Form.Options_Ready)
        return;
    Give_Way_To_Custom(title);
    Default_Run(program);
}

static void Choice_Clicked(Program& program, const Title_Group& title, int item)
{
    if (!program.Form.Options_Ready)
        return;
    title.Choice.Selected = item;
    Default_Run(program);
}

static void Custom_Title_Caption(const Title_Group& title, const QString& caption, const QString& text)
{
    title.Custom.Caption = caption + (text.isEmpty() ? u" (empty)"_s : u" (NOT empty)"_s);
    if (text.isEmpty())
        title.Custom.Value = 0;
    Give_Way_To_Custom(title);
}

void chk_SetFileTitle_Click(Program& program)
{
    Set_Clicked(program, File_Title(program.Options));
}

void chk_RemoveFileTitle_Click(Program& program)
{
    Remove_Clicked(program, File_Title(program.Options));
}

void chk_CustomFileTitle_Click(Program& program)
{
    Custom_Clicked(program, File_Title(program.Options));
}

void opt_SetFileTitle_Click(Program& program, int item)
{
    Choice_Clicked(program, File_Title(program.Options), item);
}

void Custom_File_Title_Caption(JobOptions& options)
{
    Custom_Title_Caption(File_Title(options), u"Set Custom File Title"_s, options.Custom_File_Title);
}

void chk_SetVideoTitle_Click(Program& program)
{
    Set_Clicked(program, Video_Title(program.Options));
}

void chk_RemoveVideoTitle_Click(Program& program)
{
    Remove_Clicked(program, Video_Title(program.Options));
}

void chk_CustomVideoTitle_Click(Program& program)
{
    Custom_Clicked(program, Video_Title(program.Options));
}

void opt_SetVideoTitle_Click(Program& program, int item)
{
    Choice_Clicked(program, Video_Title(program.Options), item);
}

void Custom_Video_Title_Caption(JobOptions& options)
{
    Custom_Title_Caption(Video_Title(options), u"Set Custom Video Title"_s, options.Custom_Video_Title);
}
