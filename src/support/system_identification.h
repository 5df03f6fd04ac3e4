#pragma once

#include <QString>
#include <optional>

/// Which operating system the program runs on, and the words of its error numbers.

/// The record of a Windows version call.
struct Os_Version_Info
{
    int Major = 0;
    int Minor = 0;
    int Build = 0;
    int Service_Pack_Major = 0;
    int Service_Pack_Minor = 0;
    unsigned Suite_Mask = 0;
    int Product_Type = 1; ///< 1: not a server
};

/// Name of a Windows version; "Unrecognized Version" for one that isn't in the table.
QString Get_OS_Name(const Os_Version_Info& info);
bool Is_Server(const Os_Version_Info& info);
/// Major, minor and build joined by ".".
QString Version_Numbers(const Os_Version_Info& info);
/// "SP1", "SP1.2", or empty.
QString Service_Pack(const Os_Version_Info& info);

/// Name, blank, service pack, " (v", version, ")". Without a service pack two blanks stand between.
QString OS_Version_Line(const QString& name, const QString& service_pack, const QString& version);

/// The system's own name and version for the OS version line.
QString Get_OS_Version_Text();

/// The operating system's bitness, 64 in any 64-bit process. Always true.
bool Get_Bitness(int& bitness);

/// What the system says about an error number, a final line break cut off; where it has no words for it, a text that
/// says so. Lines are separated by CR LF.
QString Format_System_Error(int code);

/// Why the system gave no words: the number of its own error, if there was one.
struct No_Words
{
    std::optional<int> Last_Error;
};

/// The text of Format_System_Error where the look-up of the words failed.
QString Missing_Words_Text(int code, const No_Words& why);

/// The platform's half: the words for an error number, at most 160 characters of them, or nothing and `why`.
std::optional<QString> System_Error_Words(int code, No_Words& why);
