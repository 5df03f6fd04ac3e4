#pragma once

#include <QString>
#include <QStringList>

/// The icon of a message box, with the numbers that the tables of reports use.
enum class Message_Icon
{
    None = 0,
    Stop = 16,
    Exclamation = 48,
    Information = 64
};
enum class Message_Buttons
{
    Ok = 0,
    Ok_Cancel = 1,
    Apply_Discard_Stay = 2 ///< answered by Ok, Discard and Cancel
};
enum class Message_Answer
{
    Ok,
    Cancel,
    Discard
};

/// One message box. Code is the number of the report or error it belongs to, 0 for none. Lines of Text are separated
/// by CR LF.
struct Message_Box
{
    int Code = 0;
    QString Title;
    QString Text;
    Message_Icon Icon = Message_Icon::Exclamation;
    Message_Buttons Buttons = Message_Buttons::Ok;
};

/// A question for a file. Filter is written "Caption|pattern|Caption|pattern|"; Filter_Index counts from 1.
struct File_Question
{
    QString Title;
    QString Start_Folder;
    QString File_Name;
    QString Filter;
    int Filter_Index = 1;
    bool Multi_Select = false;
};

/// The person in front of the program, and whatever stands in for one: the window, the headless driver, a test.
/// The only way in which the logic asks, tells, or lets time pass.
class Operator
{
  public:
    virtual ~Operator() = default;

    /// Shows the box and returns when it was answered.
    virtual Message_Answer Show_Message(const Message_Box& box) = 0;
    /// Shows the form of that name ("frm_CustomFilter") and returns when it was closed.
    virtual void Show_Modal(const QString& form) = 0;
    /// Shows the form of that name without waiting for its end ("frm_Splash").
    virtual void Show_Form(const QString& form) = 0;
    /// Asks for a folder, beginning at `start`; empty: cancelled.
    virtual QString Pick_Folder(const QString& title, const QString& start) = 0;
    /// Asks for a file, or for several; empty: cancelled.
    virtual QStringList Pick_File(const File_Question& question) = 0;
    /// Renders what changed and lets pending events have their turn. A halt reaches the program in here.
    virtual void Pump_Events() = 0;
    /// Waits that many milliseconds with events having their turn.
    virtual void Wait_With_Events(int milliseconds) = 0;
    /// Opens a document with whatever the desktop uses for it; false if it can't.
    virtual bool Open_Document(const QString& path) = 0;

    /// Puts a text where the desktop pastes from, if there is such a place.
    virtual void Copy_Text(const QString& /*text*/) {}

    /// Tells a person who isn't looking at the main form, and doesn't wait; does nothing where the form is in front or
    /// there is none. Plain text, whatever names it holds.
    virtual void Tell_If_Away(const QString& /*title*/, const QString& /*text*/) {}

    /// True once the program was asked to end from outside: whatever waits gives up. A halt button isn't such a call.
    virtual bool Is_Asked_To_Stop() { return false; }

    /// Brings the main form to the front, where there is one.
    virtual void Raise_Main_Form() {}

    /// Puts the main form above all other windows, or takes it from there.
    virtual void Set_Topmost(bool) {}

    /// Unloads the main form: the program ends after the close query has had its say.
    virtual void Unload_Main_Form() {}
};
