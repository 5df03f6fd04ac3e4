#include "life/app_folder.h"
#include "support/disk_names.h"
#include "support/long_path.h"
#include "support/paths.h"

#include <QCoreApplication>
#include <QDir>
#include <windows.h>
// Behind windows.h, which it takes its types from.
#include <shlobj.h>

using namespace Qt::StringLiterals;

/// %APPDATA%, also where nobody has set the variable.
static QString Roaming_Data()
{
    wchar_t* path = nullptr;
    const HRESULT result = SHGetKnownFolderPath(FOLDERID_RoamingAppData, KF_FLAG_CREATE, nullptr, &path);
    QString folder = SUCCEEDED(result) ? QString::fromWCharArray(path) : QDir::toNativeSeparators(QDir::homePath());
    CoTaskMemFree(path);
    return folder;
}

App_Folder_Places App_Folder_Places_Of_This_Process(const QString& asked_for)
{
    return {asked_for, qEnvironmentVariable("VANTORRA_HOME"),
            QDir::toNativeSeparators(QCoreApplication::applicationDirPath()),
            With_Separator(Roaming_Data()) + u"Vantorra"_s};
}

/// A file that is there and can't be written counts as a folder that can't.
static bool May_Be_Written(const QString& path, DWORD access, DWORD flags)
{
    const HANDLE handle =
        CreateFileW(Native_Path(Long_Path(path)).c_str(), access,
                    FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING, flags, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
        return GetLastError() == ERROR_FILE_NOT_FOUND;
    CloseHandle(handle);
    return true;
}

bool Is_Home_Of_Settings(const QString& folder)
{
    // Asked for by opening, so that nothing has to be written to learn it.
    return Folder_Exists(folder) && May_Be_Written(folder, FILE_ADD_FILE, FILE_FLAG_BACKUP_SEMANTICS) &&
           May_Be_Written(With_Separator(folder) + Settings_File_Name, FILE_WRITE_DATA, 0);
}
