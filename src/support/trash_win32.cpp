#include "support/trash.h"

#include "support/disk_names.h"
#include "support/disk_steps.h"
#include "support/long_path.h"
#include "support/paths.h"
#include "support/system_calls_win32.h"

#include <windows.h>

#include <QFile>
#include <array>
#include <cerrno>
#include <shellapi.h>
#include <shlobj.h>

using namespace Qt::StringLiterals;

/// How the shell can be asked to trash something.
enum class Shell_Way
{
    Operations,     ///< by its file operations, which tell ahead of each file whether it will be trashed or deleted
    Older_Operation ///< by the call that came before those, where they are declared but do nothing
};

static Shell_Way Way_Of_Shell()
{
    const HRESULT started = ::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE);
    Shell_Way way = Shell_Way::Operations;
    IFileOperation* operation = nullptr;
    if (SUCCEEDED(::CoCreateInstance(CLSID_FileOperation, nullptr, CLSCTX_ALL, IID_IFileOperation,
                                     reinterpret_cast<void**>(&operation)))) {
        if (operation->SetOperationFlags(FOF_SILENT) == E_NOTIMPL)
            way = Shell_Way::Older_Operation;
        operation->Release();
    }
    if (SUCCEEDED(started))
        ::CoUninitialize();
    return way;
}

/// The older call deletes for good what it can't trash. So it is asked only where the drive has a recycle bin, and it
/// is told to ask ahead of deleting anything.
static bool Trash_By_Older_Operation(const QString& path)
{
    std::array<wchar_t, MAX_PATH + 1> drive = {};
    SHQUERYRBINFO bin = {};
    bin.cbSize = sizeof(bin);
    if (path.size() >= MAX_PATH || ::GetVolumePathNameW(Wide(path), drive.data(), MAX_PATH) == 0 ||
        ::GetDriveTypeW(drive.data()) != DRIVE_FIXED || FAILED(::SHQueryRecycleBinW(drive.data(), &bin)))
        return false;
    // What somebody holds can't be moved: the shell would offer, in a box of its own, to delete it instead.
    const HANDLE movable =
        ::CreateFileW(Wide(path), DELETE, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                      OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS | FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
    if (movable == INVALID_HANDLE_VALUE)
        return false;
    ::CloseHandle(movable);
    const QString list = path + QChar(u'\0'); // ends in two zeros, the text's own included
    SHFILEOPSTRUCTW operation = {};
    operation.wFunc = FO_DELETE;
    operation.pFrom = Wide(list);
    operation.fFlags = FOF_ALLOWUNDO | FOF_NOCONFIRMATION | FOF_NOERRORUI | FOF_SILENT | FOF_WANTNUKEWARNING;
    return ::SHFileOperationW(&operation) == 0 && operation.fAnyOperationsAborted == 0;
}

/// True for a path that the shell, which knows no long form, takes for no other one.
static bool Is_Clear_To_Shell(const QString& path)
{
    return Is_Absolute_Path(path) && !Is_Root(path) && !Has_Stand_Ins(path) &&
           (Path_For_Tool(path) == path || path.size() >= MAX_PATH);
}

bool Delete_To_Recycle(const QString& path, clsStringBuilder& faults)
{
    QString plain = path;
    while (plain.size() > 1 && plain.endsWith(Path_Separator) && !Is_Root(plain))
        plain.chop(1);
    const auto is_gone = [&plain] {
        return ::GetFileAttributesW(Wide_Path(plain)) == INVALID_FILE_ATTRIBUTES && Last_System_Error() == ENOENT;
    };
    if (is_gone())
        return true;
    // Qt stops the shell's operation where a file would be deleted instead of trashed.
    if (Is_Clear_To_Shell(plain) &&
        (Way_Of_Shell() == Shell_Way::Operations ? QFile::moveToTrash(plain) : Trash_By_Older_Operation(plain)) &&
        is_gone())
        return true;
    Tell_Of_Untrashed(plain, faults);
    return false;
}
