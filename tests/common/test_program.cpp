#include "common/test_program.h"

#include "common/test_trash.h"
#include "support/paths.h"
#include "support/run_time_error.h"
#include "support/text.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <ostream>

Message_Answer Test_Operator::Show_Message(const Message_Box& box)
{
    Messages.push_back(box);
    return Answer;
}

void Test_Operator::Show_Modal(const QString& form)
{
    Forms += form;
    if (const auto action = On_Form.find(form); action != On_Form.end())
        action->second();
}

QString Test_Operator::Pick_Folder(const QString& title, const QString& start)
{
    Folder_Questions.emplace_back(title, start);
    return Folder_Answer;
}

QStringList Test_Operator::Pick_File(const File_Question& question)
{
    File_Questions.push_back(question);
    return File_Answer;
}

void Test_Operator::Pump_Events()
{
    ++Pumps;
    if (On_Pump)
        On_Pump();
}

void Test_Operator::Wait_With_Events(int milliseconds)
{
    Waited_Milliseconds += milliseconds;
    Pump_Events();
}

bool Test_Operator::Open_Document(const QString& path)
{
    Opened_Documents += path;
    return Document_Opens;
}

Test_Program::Test_Program()
{
    Use_Own_Trash();
    for (const QString& folder : {u"app"_s, u"videos"_s, u"target"_s})
        QDir().mkpath(Path(folder));
    Prog.Settings.App_Folder = Path(u"app/"_s);
    Prog.Settings.Ini_File = Path(u"app/Vantorra.ini"_s);
    Prog.Settings.Version_Banner = u"Vantorra ver 2.5.5"_s;
    Prog.Options.Path_Videos = Path(u"videos/"_s);
    Prog.Options.Path_Target = Path(u"target/"_s);
    // A test ends only what it started, whatever else of that name runs on this machine.
    Prog.Run.Kill_By_Name = false;
}

QString Test_Program::Path(const QString& relative) const
{
    return QDir::toNativeSeparators(With_Separator(QFileInfo(Root.path()).canonicalFilePath()) + relative);
}

QString Test_Program::Write(const QString& relative, const QByteArray& content) const
{
    QString path = Path(relative);
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("A test's file can't be written: %s", qPrintable(path));
    return path;
}

QByteArray Test_Program::Read(const QString& relative) const
{
    QFile file(Path(relative));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString Native(const QString& path)
{
    const bool is_foreign = Path_Separator != u'/' && path.startsWith(u'/');
    return is_foreign ? u"C:"_s + QDir::toNativeSeparators(path) : QDir::toNativeSeparators(path);
}

QString Possible_Name(const QString& name)
{
    static const QRegularExpression refused(u"[\"*?<>|:\\x01-\\x1f]"_s);
    return Path_Separator == u'/' ? name : QString(name).remove(refused);
}

static QStringList Lines_Of(const clsStringBuilder& buffer)
{
    QStringList lines = Split_Text(buffer.ToString(), Line_Break);
    if (!lines.isEmpty() && lines.constLast().isEmpty())
        lines.removeLast();
    return lines;
}

QStringList Test_Program::Faults() const
{
    return Lines_Of(Prog.Logs.Log_Faults);
}

QStringList Test_Program::Results() const
{
    return Lines_Of(Prog.Logs.Log_Results);
}

QList<int> Test_Program::Codes() const
{
    QList<int> codes;
    for (const Message_Box& box : Person.Messages)
        codes += box.Code;
    return codes;
}

Caught_Error Error_Of(const std::function<void()>& act)
{
    try {
        act();
    } catch (const Run_Time_Error& error) {
        return {.Number = static_cast<int>(error.Number()), .Subject = error.Subject(), .Message = error.Message()};
    }
    return {};
}

void PrintTo(const QString& text, std::ostream* out)
{
    *out << '"' << text.toStdString() << '"';
}
