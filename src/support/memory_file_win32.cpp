#include "support/memory_file.h"

#include "support/system_calls_win32.h"

#include <QDir>
#include <QUuid>
#include <windows.h>

using namespace Qt::StringLiterals;

/// Closed behind the writing: a tool that doesn't share a file with one who may remove it couldn't open it else.
Memory_File::Memory_File(const QByteArray& content)
    : path_(QDir::toNativeSeparators(QDir::tempPath()) + u"\\vantorra-"_s + QUuid::createUuid().toString(QUuid::Id128))
{
    const System_Handle file(
        ::CreateFileW(Wide_Path(path_), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_TEMPORARY, nullptr));
    DWORD written = 0;
    if (file)
        ::WriteFile(file.get(), content.constData(), static_cast<DWORD>(content.size()), &written, nullptr);
}

Memory_File::~Memory_File()
{
    ::DeleteFileW(Wide_Path(path_));
}

QString Memory_File::Path() const
{
    return path_;
}
