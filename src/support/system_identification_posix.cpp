#include "support/system_identification.h"

#include <QSysInfo>
#include <cerrno>
#include <cstring>

using namespace Qt::StringLiterals;

QString Get_OS_Version_Text()
{
    return OS_Version_Line(QSysInfo::prettyProductName(), {}, QSysInfo::kernelVersion());
}

bool Get_Bitness(int& bitness)
{
    const bool wide = sizeof(void*) == 8 || QSysInfo::currentCpuArchitecture().contains(u"64"_s);
    bitness = wide ? 64 : 32;
    return true;
}

/// The library has words for every number; those it makes up for an unknown one count as none. A number of 0 or less
/// is no error of the system's, so there is no number to blame either.
std::optional<QString> System_Error_Words(int code, No_Words& why)
{
    constexpr qsizetype longest = 160;
    if (code <= 0)
        return std::nullopt;
    const QString words = QString::fromLocal8Bit(std::strerror(code));
    if (words.startsWith(QLatin1StringView("Unknown error"))) {
        why.Last_Error = EINVAL;
        return std::nullopt;
    }
    if (words.size() > longest) {
        why.Last_Error = ERANGE;
        return std::nullopt;
    }
    return words;
}
