#include "common/unreadable_file.h"

#include <QDir>
#include <windows.h>

std::shared_ptr<void> Make_Unreadable(const QString& path)
{
    const std::wstring name = QDir::toNativeSeparators(path).toStdWString();
    constexpr DWORD shared_with_nobody = 0;
    return {CreateFileW(name.c_str(), GENERIC_WRITE, shared_with_nobody, nullptr, CREATE_ALWAYS,
                        FILE_FLAG_DELETE_ON_CLOSE, nullptr),
            CloseHandle};
}
