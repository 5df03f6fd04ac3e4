#include "life/instance_lock.h"

#include "support/paths.h"

#include <QLockFile>

using namespace Qt::StringLiterals;

Instance_Lock::Instance_Lock() = default;
Instance_Lock::~Instance_Lock() = default;

bool Instance_Lock::Take(const QString& app_folder)
{
    lock_ = std::make_unique<QLockFile>(With_Separator(app_folder) + u"Vantorra.lock"_s);
    // A lock grows stale by its holder's end only, never by its age: a window may stay open for weeks.
    lock_->setStaleLockTime(0);
    return lock_->tryLock(0) || lock_->error() != QLockFile::LockFailedError;
}
