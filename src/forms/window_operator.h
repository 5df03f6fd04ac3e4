#pragma once

#include "support/operator.h"

#include <QElapsedTimer>
#include <cstdint>
#include <map>

class Program_Dialog;
class QWidget;
class Slot_Guard;
class Startform;
struct Program;

/// The person at the window. Questions are boxes and forms of the desktop; each returns when it was answered. Once the
/// program has ended through an error, every question throws End_Of_Program.
class Window_Operator : public Operator
{
  public:
    /// Called once, before anything is asked; questions that come before the window is seen have no owner.
    void Attach(Program& program, Slot_Guard& guard, Startform& form);

    /// Brings the main form and every open form in step with the records.
    void Render();
    /// The form of that name, made at its first use; null if there is none.
    Program_Dialog* Form(const QString& name);

    Message_Answer Show_Message(const Message_Box& box) override;
    void Show_Modal(const QString& form) override;
    void Show_Form(const QString& form) override;
    QString Pick_Folder(const QString& title, const QString& start) override;
    QStringList Pick_File(const File_Question& question) override;
    void Pump_Events() override;
    void Wait_With_Events(int milliseconds) override;
    bool Open_Document(const QString& path) override;
    void Copy_Text(const QString& text) override;
    void Tell_If_Away(const QString& title, const QString& text) override;
    void Raise_Main_Form() override;
    void Set_Topmost(bool on) override;
    void Unload_Main_Form() override;

  private:
    QWidget* Owner() const;
    /// The main form stands back while something modal is open, and comes back to the top after it.
    template <typename Question>
    auto Ask(const Question& question);
    void Stop_If_Ended() const;

    Program* program_ = nullptr;
    Slot_Guard* guard_ = nullptr;
    Startform* form_ = nullptr;
    std::map<QString, Program_Dialog*> forms_; ///< owned by the main form
    QElapsedTimer since_render_;
    std::uint64_t filled_ = 0; ///< Video_List::Filled at the last picture
};

/// The name filters of Qt's dialogs for a filter written "Caption|pattern|Caption|pattern|".
QStringList Name_Filters(const QString& filter);

/// The one box that tells why the program ends.
void Show_Fatal_Error(const QString& message);
