#include "life/instance_lock.h"
#include "support/link_end.h"
#include "support/paths.h"

#include <QCryptographicHash>
#include <QWinEventNotifier>
#include <windows.h>

using namespace Qt::StringLiterals;

struct Instance_Lock::Platform
{
    HANDLE Mutex =
        nullptr; ///< it is there for as long as a window holds the folder; the system takes it from a dead one
    HANDLE Call = nullptr; ///< the event by which another start calls the holder
    std::unique_ptr<QWinEventNotifier> Calls;
};

Instance_Lock::Instance_Lock() : platform_(std::make_unique<Platform>()) {}

Instance_Lock::~Instance_Lock()
{
    platform_->Calls.reset();
    for (const HANDLE handle : {platform_->Mutex, platform_->Call})
        if (handle != nullptr)
            CloseHandle(handle);
}

/// A name for the session's objects that stands for the folder, by whatever path it is reached: a path itself may be
/// too long for one, and a backslash means something there.
static std::wstring Name_Of(const QString& folder, const QString& what)
{
    QString place = Without_Links(folder);
    if (place.isEmpty())
        place = folder;
    const QByteArray path = Key_Of_Name(With_Separator(place)).toUtf8();
    const QString hash = QString::fromLatin1(QCryptographicHash::hash(path, QCryptographicHash::Sha256).toHex());
    return u"Local\\Vantorra-%1-%2"_s.arg(what, hash).toStdWString();
}

bool Instance_Lock::Take(const QString& app_folder)
{
    platform_->Call = CreateEventW(nullptr, FALSE, FALSE, Name_Of(app_folder, u"call"_s).c_str());
    SetLastError(ERROR_SUCCESS);
    const HANDLE mutex = CreateMutexW(nullptr, FALSE, Name_Of(app_folder, u"window"_s).c_str());
    const bool is_held = GetLastError() == ERROR_ALREADY_EXISTS;
    if (is_held && mutex != nullptr)
        CloseHandle(mutex); // at once, or this start would hold the folder for the next one
    else
        platform_->Mutex = mutex;
    return !is_held;
}

void Instance_Lock::Call_Holder()
{
    // Only the program that a person has just started may let another one come to the front.
    AllowSetForegroundWindow(ASFW_ANY);
    if (platform_->Call != nullptr)
        SetEvent(platform_->Call);
}

void Instance_Lock::When_Called(std::function<void()> answer)
{
    if (platform_->Call == nullptr)
        return;
    platform_->Calls = std::make_unique<QWinEventNotifier>(platform_->Call);
    QObject::connect(platform_->Calls.get(), &QWinEventNotifier::activated, std::move(answer));
}
