#pragma once

#include "state/program.h"

#include <QTemporaryDir>
#include <functional>
#include <gtest/gtest.h>
#include <map>
#include <vector>

// What every test is written with.
using namespace Qt::StringLiterals;

/// An operator for tests: records what it is asked, answers what the test has laid down.
class Test_Operator : public Operator
{
  public:
    std::vector<Message_Box> Messages;
    QStringList Forms;                                         ///< names of the forms that were shown, in order
    QStringList Opened_Documents;                              ///< paths handed to Open_Document
    std::vector<std::pair<QString, QString>> Folder_Questions; ///< title and start folder
    std::vector<File_Question> File_Questions;
    int Waited_Milliseconds = 0;
    int Pumps = 0;

    Message_Answer Answer = Message_Answer::Ok;
    QString Folder_Answer;
    QStringList File_Answer;
    bool Document_Opens = true;
    std::map<QString, std::function<void()>> On_Form; ///< what the person does in a form
    std::function<void()> On_Pump;
    bool Topmost = false;
    int Unloads = 0;
    QStringList Told_Away; ///< title and text, in lines

    Message_Answer Show_Message(const Message_Box& box) override;
    void Show_Modal(const QString& form) override;

    void Show_Form(const QString& form) override { Forms += form; }

    QString Pick_Folder(const QString& title, const QString& start) override;
    QStringList Pick_File(const File_Question& question) override;
    void Pump_Events() override;
    void Wait_With_Events(int milliseconds) override;
    bool Open_Document(const QString& path) override;

    void Set_Topmost(bool on) override { Topmost = on; }

    void Unload_Main_Form() override { ++Unloads; }

    void Tell_If_Away(const QString& title, const QString& text) override { Told_Away += title + u'\n' + text; }
};

/// A program of a test's own, with an App_Folder, a video folder and a target folder on disk, and a trash of its own.
struct Test_Program
{
    Test_Program();

    QTemporaryDir Root;
    Test_Operator Person;
    Program Prog{Person};

    /// Root's path with a separator at its end, followed by `relative` with the platform's separators.
    QString Path(const QString& relative = {}) const;
    /// Writes a file below Root, folders included; returns its path.
    QString Write(const QString& relative, const QByteArray& content = {}) const;
    QByteArray Read(const QString& relative) const;
    /// Lines of Log_Faults, without the empty one at the end.
    QStringList Faults() const;
    QStringList Results() const;
    /// The numbers of the message boxes that were shown.
    QList<int> Codes() const;
};

/// What a run-time error says; number 0 if there was none.
struct Caught_Error
{
    int Number = 0;
    QString Subject, Message;
};

/// The run-time error that `act` ends with.
Caught_Error Error_Of(const std::function<void()>& act);

/// A path or a part of one, written with "/", as the platform has it: "/videos/x.mkv" is "C:\videos\x.mkv" on Windows,
/// "videos/x.mkv" "videos\x.mkv".
QString Native(const QString& path);

/// A file's name without the letters that the platform takes in none: quotes, "*", "?" and control characters on
/// Windows.
QString Possible_Name(const QString& name);

/// The trash that this process's tests move things to: a folder of its own, so that nobody's trash fills up.
QStringList Names_In_Trash();

/// Makes googletest print texts instead of bytes.
void PrintTo(const QString& text, std::ostream* out);
