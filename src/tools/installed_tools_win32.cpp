#include "tools/installed_tools.h"

#include "support/paths.h"
#include "support/platform_names.h"

#include <QCoreApplication>
#include <QDir>
#include <windows.h>

using namespace Qt::StringLiterals;

static constexpr wchar_t Gui_Key[] = L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\App Paths\\mkvtoolnix-gui.exe";

/// The default value of MKVToolNix's key below a root, in one of the registry's two views; empty: none. Variables of
/// the environment in it are replaced.
static QString Registered_Path(HKEY root, DWORD view)
{
    constexpr DWORD longest = 32768;
    std::wstring path(longest, L'\0');
    HKEY key = nullptr;
    if (RegOpenKeyExW(root, Gui_Key, 0, KEY_READ | view, &key) != ERROR_SUCCESS)
        return {};
    auto bytes = static_cast<DWORD>(path.size() * sizeof(wchar_t));
    const LSTATUS result = RegGetValueW(key, nullptr, nullptr, RRF_RT_REG_SZ, nullptr, path.data(), &bytes);
    RegCloseKey(key);
    if (result != ERROR_SUCCESS)
        return {};
    QString text = QString::fromWCharArray(path.c_str()).trimmed();
    if (text.size() > 1 && text.startsWith(u'"') && text.endsWith(u'"'))
        text = text.sliced(1, text.size() - 2);
    return QDir::toNativeSeparators(text);
}

QString Installed_MKVToolNix()
{
    // All users' first, as installers put it there; a person's own install stands below the other root.
    for (const HKEY root : {HKEY_LOCAL_MACHINE, HKEY_CURRENT_USER})
        for (const DWORD view : {KEY_WOW64_64KEY, KEY_WOW64_32KEY})
            if (QString path = Registered_Path(root, view); !path.isEmpty())
                return path;
    return {};
}

QString Find_In_Path(const QString& name, const QString& beside)
{
    const QString file = Executable_Name(name);
    QStringList folders = {QDir::toNativeSeparators(QCoreApplication::applicationDirPath())};
    for (QString entry : qEnvironmentVariable("PATH").split(u';'))
        folders += QDir::toNativeSeparators(entry.remove(u'"').trimmed());
    for (const QString& entry : folders) {
        const QString folder = With_Separator(entry);
        const bool has_beside = beside.isEmpty() || File_Exists(folder + Executable_Name(beside));
        if (Is_Absolute_Path(folder) && File_Exists(folder + file) && has_beside)
            return folder + file;
    }
    return {};
}

bool Can_Link_Tools()
{
    return false;
}
