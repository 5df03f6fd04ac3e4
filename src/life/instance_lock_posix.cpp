#include "life/instance_lock.h"
#include "support/paths.h"

#include <QDateTime>
#include <QFile>
#include <QFileSystemWatcher>
#include <QLockFile>

using namespace Qt::StringLiterals;

struct Instance_Lock::Platform
{
    QString File;
    std::unique_ptr<QLockFile> Lock;
    std::unique_ptr<QFileSystemWatcher> Calls;
};

Instance_Lock::Instance_Lock() : platform_(std::make_unique<Platform>()) {}

Instance_Lock::~Instance_Lock() = default;

bool Instance_Lock::Take(const QString& app_folder)
{
    platform_->File = With_Separator(app_folder) + u"Vantorra.lock"_s;
    platform_->Lock = std::make_unique<QLockFile>(platform_->File);
    // A lock grows stale by its holder's end only, never by its age: a window may stay open for weeks.
    platform_->Lock->setStaleLockTime(0);
    return platform_->Lock->tryLock(0) || platform_->Lock->error() != QLockFile::LockFailedError;
}

void Instance_Lock::Call_Holder()
{
    // The file's time means nothing to the lock, and its holder hears of a change at once.
    if (QFile file(platform_->File); file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly))
        file.setFileTime(QDateTime::currentDateTimeUtc(), QFileDevice::FileModificationTime);
}

void Instance_Lock::When_Called(std::function<void()> answer)
{
    platform_->Calls = std::make_unique<QFileSystemWatcher>(QStringList{platform_->File});
    QObject::connect(platform_->Calls.get(), &QFileSystemWatcher::fileChanged, std::move(answer));
}
