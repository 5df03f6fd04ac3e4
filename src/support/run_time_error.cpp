#include "support/run_time_error.h"

#include "support/disk_steps.h"

#include <QStringList>
#include <cerrno>
#include <utility>

using namespace Qt::StringLiterals;

QString Error_Words(Error_Number number)
{
    switch (number) {
    case Error_Number::Invalid_Procedure_Call:
        return u"Invalid procedure call or argument"_s;
    case Error_Number::Overflow:
        return u"Overflow"_s;
    case Error_Number::Out_Of_Memory:
        return u"Out of memory"_s;
    case Error_Number::Subscript_Out_Of_Range:
        return u"Subscript out of range"_s;
    case Error_Number::Type_Mismatch:
        return u"Type mismatch"_s;
    case Error_Number::File_Not_Found:
        return u"File not found"_s;
    case Error_Number::Device_IO_Error:
        return u"Device I/O error"_s;
    case Error_Number::Disk_Full:
        return u"Disk full"_s;
    case Error_Number::Permission_Denied:
        return u"Permission denied"_s;
    case Error_Number::Path_File_Access_Error:
        return u"Path/File access error"_s;
    case Error_Number::Path_Not_Found:
        return u"Path not found"_s;
    }
    return u"Application-defined or object-defined error"_s;
}

Run_Time_Error::Run_Time_Error(Error_Number number, QString doing, QString subject, QString text, QString advice)
    : number_(number), doing_(std::move(doing)), subject_(std::move(subject)), text_(std::move(text)),
      advice_(std::move(advice)), what_(Message().toUtf8())
{}

/// Of a text at fault no more is shown.
static constexpr qsizetype Longest_Text_At_Fault = 200;

QString Run_Time_Error::In_One_Line() const
{
    QStringList parts;
    for (const QString& part : {doing_, subject_})
        if (!part.isEmpty())
            parts += part;
    QString line = parts.join(u": "_s);
    // Where the advice has the system's words they say it better.
    if (line.isEmpty() || (text_.isEmpty() && advice_.isEmpty()))
        line += (line.isEmpty() ? u""_s : u" - "_s) + Error_Words(number_);
    if (!text_.isEmpty())
        line += u" - the text at fault: \""_s + text_.left(Longest_Text_At_Fault) + u'"';
    if (!advice_.isEmpty())
        line += u" - "_s + advice_;
    return line.simplified();
}

QString Run_Time_Error::Message() const
{
    QString message = u"Run-time error '%1': "_s.arg(static_cast<int>(number_)) + Error_Words(number_);
    QString place = doing_;
    if (!subject_.isEmpty())
        place += (place.isEmpty() ? u""_s : u": "_s) + subject_;
    if (!place.isEmpty())
        message += u'\n' + place;
    if (!text_.isEmpty())
        message += u"\nThe text at fault: \""_s + text_.left(Longest_Text_At_Fault) + u'"';
    if (!advice_.isEmpty())
        message += u'\n' + advice_;
    return message;
}

Run_Time_Error Out_Of_Memory_Error()
{
    return {
        Error_Number::Out_Of_Memory, {}, {}, {}, u"Close other programs, or work on fewer or smaller files at once."_s};
}

void Raise_Type_Mismatch(const QString& doing, const QString& subject, const QString& text)
{
    throw Run_Time_Error(Error_Number::Type_Mismatch, doing, subject, text);
}

void Raise_Subscript(const QString& doing, const QString& subject, const QString& text)
{
    throw Run_Time_Error(Error_Number::Subscript_Out_Of_Range, doing, subject, text);
}

void Raise_Overflow(const QString& doing, const QString& subject)
{
    throw Run_Time_Error(Error_Number::Overflow, doing, subject);
}

void Raise_File_Error(const QString& doing, const QString& path, int error_number)
{
    Error_Number number = Error_Number::Path_File_Access_Error;
    switch (error_number) {
    case ENOENT:
        number = Error_Number::File_Not_Found;
        break;
    case ENOTDIR:
        number = Error_Number::Path_Not_Found;
        break;
    case EACCES:
    case EPERM:
    case EROFS:
        number = Error_Number::Permission_Denied;
        break;
    case EIO:
        number = Error_Number::Device_IO_Error;
        break;
    default:
        number = Is_Disk_Full(error_number) ? Error_Number::Disk_Full : Error_Number::Path_File_Access_Error;
        break;
    }
    throw Run_Time_Error(number, doing, path, {}, error_number == 0 ? QString() : System_Words(error_number));
}
