#pragma once

#include <QString>
#include <windows.h>

/// Puts the path of MKVToolNix's graphical program below a root of the registry, as its installer does.
inline void Register_MKVToolNix(HKEY root, const QString& path, DWORD type = REG_SZ)
{
    constexpr wchar_t key[] = LR"(SOFTWARE\Microsoft\Windows\CurrentVersion\App Paths\mkvtoolnix-gui.exe)";
    RegSetKeyValueW(root, key, nullptr, type, path.utf16(),
                    static_cast<DWORD>((path.size() + 1) * qsizetype(sizeof(wchar_t))));
}
