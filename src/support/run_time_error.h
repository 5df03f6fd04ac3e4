#pragma once

#include <QString>
#include <exception>

/// The numbers of the errors that end the program.
enum class Error_Number
{
    Invalid_Procedure_Call = 5,
    Overflow = 6,
    Out_Of_Memory = 7,
    Subscript_Out_Of_Range = 9,
    Type_Mismatch = 13,
    File_Not_Found = 53,
    Device_IO_Error = 57,
    Disk_Full = 61,
    Permission_Denied = 70,
    Path_File_Access_Error = 75,
    Path_Not_Found = 76,
};

/// The words that belong to a number: "Type mismatch" for 13.
QString Error_Words(Error_Number number);

/// An error that the program can't go on from: a value that is not a number, a list read past its end, a counter that
/// overflows, a file that can't be opened, read, written or renamed. Thrown where the system says that the program
/// stops and caught at one place in each program. No made-up value ever takes the bad one's place.
class Run_Time_Error : public std::exception
{
  public:
    /// `doing` says what was being done, `subject` names the file or setting, `text` is the text that was at fault
    /// (may be empty), `advice` what the operator can do about it.
    Run_Time_Error(Error_Number number, QString doing, QString subject = {}, QString text = {}, QString advice = {});

    Error_Number Number() const { return number_; }

    const QString& Subject() const { return subject_; }

    /// First line: "Run-time error '13': Type mismatch". Then what was being done to which file or setting, the text
    /// at fault (cut at 200 characters), and the advice, a line each; empty pieces are left out.
    QString Message() const;

    /// The same for a list of results: "doing: subject - the text at fault: "..." - advice", without number or line
    /// break.
    QString In_One_Line() const;

    const char* what() const noexcept override { return what_.constData(); }

  private:
    Error_Number number_;
    QString doing_;
    QString subject_;
    QString text_;
    QString advice_;
    QByteArray what_;
};

/// Error 7, for a std::bad_alloc from anywhere.
Run_Time_Error Out_Of_Memory_Error();

/// Error 13 for `text`, which should have been a number.
[[noreturn]] void Raise_Type_Mismatch(const QString& doing, const QString& subject, const QString& text);
/// Error 9: a list or table has no such entry.
[[noreturn]] void Raise_Subscript(const QString& doing, const QString& subject, const QString& text = {});
/// Error 6: a 16-bit or 32-bit counter can't hold the value.
[[noreturn]] void Raise_Overflow(const QString& doing, const QString& subject = {});
/// The error that the system's `error_number` (as disk_steps.h has them) means for `path`, with the system's own words.
[[noreturn]] void Raise_File_Error(const QString& doing, const QString& path, int error_number);
