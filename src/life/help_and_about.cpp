#include "life/help_and_about.h"

#include "rules/option_rules.h"
#include "state/program.h"
#include "support/paths.h"
#include "support/text.h"

#include <QCoreApplication>
#include <QDir>
#include <QLocale>

using namespace Qt::StringLiterals;

static const QString Help_File_Name = QStringLiteral("Vantorra 2.5.5 Help.html");

QString Find_Help_File(const QString& app_folder, const QStringList& other_folders)
{
    QString own = With_Separator(app_folder) + Help_File_Name;
    if (File_Exists(own))
        return own;
    for (const QString& folder : other_folders)
        if (QString path = With_Separator(folder) + Help_File_Name; File_Exists(path))
            return path;
    return own;
}

void mnu_Help_Click(Program& program)
{
    const QString programs = QCoreApplication::applicationDirPath();
    const QString path = QDir::toNativeSeparators(
        Find_Help_File(program.Settings.App_Folder, {programs, programs + u"/../share/doc/vantorra"_s}));
    if (File_Exists(path)) {
        program.Help.File = path;
        if (!program.Person.Open_Document(path))
            program.Person.Show_Form(u"frm_Help"_s);
        return;
    }
    program.Person.Show_Message({.Code = 0,
                                 .Title = u"Can't find the current Help File!"_s,
                                 .Text = u"The help file \""_s + path + u"\" can not be found"_s + Line_Break +
                                         u" in this program's directory."_s,
                                 .Icon = Message_Icon::Exclamation,
                                 .Buttons = Message_Buttons::Ok_Cancel});
}

void mnu_AboutProgram_Click(Program& program)
{
    About_Form& form = program.About_Box;
    form.lbl_Version.Caption = QStringLiteral("Version " VANTORRA_VERSION);
    form.lblProductName.Caption = u"Vantorra"_s;
    form.lbl_Author.Caption =
        u"By Zarnegar   "_s + QLocale::c().toString(program.Now().date(), u"dddd, MMMM dd, yyyy"_s);
    form.lblCompany.Caption = u"A batching system for mkvmerge"_s;
    form.lbl_Countdown.Caption.clear();
    form.Timer1_Running = false;
    form.Visible = true;
    program.Person.Show_Form(u"frm_Splash"_s);
}

void Activate_About_Box(Program& program)
{
    About_Form& form = program.About_Box;
    if (!form.Visible || form.Timer1_Running)
        return;
    form.lbl_Countdown.Caption = u"8"_s;
    form.Timer1_Running = true;
    Keep_On_Top(program, false);
}

void Tick_About_Box(Program& program)
{
    About_Form& form = program.About_Box;
    if (!form.Timer1_Running)
        return;
    const int left = form.lbl_Countdown.Caption.toInt() - 1;
    form.lbl_Countdown.Caption = QString::number(left);
    if (left <= 1)
        Close_About_Box(program);
}

void Close_About_Box(Program& program)
{
    About_Form& form = program.About_Box;
    if (!form.Visible)
        return;
    form.Timer1_Running = false;
    form.Visible = false;
    if (program.Form.Topmost_On)
        Keep_On_Top(program, true);
}
