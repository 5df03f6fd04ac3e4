#include "support/system_identification.h"

#include <iterator>

using namespace Qt::StringLiterals;

static constexpr int Any_Minor = -1;
static constexpr unsigned Home_Edition = 0x200;

/// One version of Windows, with its name on a desk and on a server.
struct Windows_Name
{
    int Major;
    int Minor;
    const char16_t* Desk;
    const char16_t* Server;
};

static constexpr Windows_Name Windows_Names[] = {
    {3, Any_Minor, u"Windows NT 3.5 Workstation", u"Windows NT 3.5 Server"},
    {4, Any_Minor, u"Windows NT 4.0 Workstation", u"Windows NT 4.0 Server"},
    {5, 0, u"Windows 2000 Workstation", u"Windows 2000 Server"},
    {5, 1, u"Windows XP Professional", u"Windows XP Professional"},
    {5, 2, u"Windows XP 64-bit Edition", u"Windows Server 2003"},
    {6, 0, u"Windows Vista", u"Windows Server 2008"},
    {6, 1, u"Windows 7", u"Windows Server 2008 R2"},
    {6, 2, u"Windows 8", u"Windows Server 2012"},
    {6, 3, u"Windows 8.1", u"Windows Server 2012 R2"},
    {10, Any_Minor, u"Windows 10", u"Windows Server 2016"},
    {11, Any_Minor, u"Windows 11", u"Windows 11"},
};

QString Get_OS_Name(const Os_Version_Info& info)
{
    if (info.Major == 5 && info.Minor == 1 && (info.Suite_Mask & Home_Edition) != 0)
        return u"Windows XP Home Edition"_s;
    for (const Windows_Name& name : Windows_Names)
        if (name.Major == info.Major && (name.Minor == Any_Minor || name.Minor == info.Minor))
            return QString::fromUtf16(Is_Server(info) ? name.Server : name.Desk);
    return u"Unrecognized Version"_s;
}

bool Is_Server(const Os_Version_Info& info)
{
    return info.Product_Type != 1;
}

QString Version_Numbers(const Os_Version_Info& info)
{
    return u"%1.%2.%3"_s.arg(info.Major).arg(info.Minor).arg(info.Build);
}

QString Service_Pack(const Os_Version_Info& info)
{
    if (info.Service_Pack_Major == 0)
        return {};
    QString text = u"SP"_s + QString::number(info.Service_Pack_Major);
    if (info.Service_Pack_Minor > 0)
        text += u'.' + QString::number(info.Service_Pack_Minor);
    return text;
}

QString OS_Version_Line(const QString& name, const QString& service_pack, const QString& version)
{
    return name + u' ' + service_pack + u" (v"_s + version + u')';
}

QString Format_System_Error(int code)
{
    No_Words why;
    std::optional<QString> words = System_Error_Words(code, why);
    if (!words)
        return Missing_Words_Text(code, why);
    if (words->endsWith(u'\n'))
        words->chop(words->endsWith(u"\r\n"_s) ? 2 : 1);
    return *words;
}

QString Missing_Words_Text(int code, const No_Words& why)
{
    if (why.Last_Error)
        return u"An error occurred with the FormatMessage API function call.\r\nError: "_s +
               QString::number(*why.Last_Error) + u" Hex("_s +
               QString::number(static_cast<unsigned>(*why.Last_Error), 16).toUpper() + u")."_s;
    return u"An internal system error occurred with the\r\nFormatMessage API function: "_s + QString::number(code) +
           u". No futher information\r\nis available."_s;
}
