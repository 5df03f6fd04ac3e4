#include "life/instance_lock.h"

#include "support/paths.h"

#include <QDateTime>
#include <QFile>
#include <QFileSystemWatcher>
#include <QLockFile>

using namespace Qt::StringLiterals;

Instance_Lock::Instance_Lock() = default;
Instance_Lock::~Instance_Lock() = default;

bool Instance_Lock::Take(const QString& app_folder)
{
    file_ = With_Separator(app_folder) + u"Vantorra.lock"_s;
    lock_ = std::make_unique<QLockFile>(file_);
    // A lock grows stale by its holder's end only, never by its age: a window may stay open for weeks.
    lock_->setStaleLockTime(0);
    return lock_->tryLock(0) || lock_->error() != QLockFile::LockFailedError;
}

void Instance_Lock::Call_Holder()
{
    // The file's time means nothing to the lock, and its holder hears of a change at once.
    if (QFile file(file_); file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly))
        file.setFileTime(QDateTime::currentDateTimeUtc(), QFileDevice::FileModificationTime);
}

void Instance_Lock::When_Called(std::function<void()> answer)
{
    calls_ = std::make_unique<QFileSystemWatcher>(QStringList{file_});
    QObject::connect(calls_.get(), &QFileSystemWatcher::fileChanged, std::move(answer));
}
