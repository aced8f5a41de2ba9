#include "session/Program.h"

#include <QCryptographicHash>
#include <QDir>
#include <QSysInfo>

namespace orvane {

namespace {

/// The lock of a dead process is taken over; one of a running process never grows old.
std::unique_ptr<QLockFile> makeLock(const QString& file) {
    auto lock = std::make_unique<QLockFile>(file);
    lock->setStaleLockTime(0);
    return lock;
}

} // namespace

bool Program::lockInstance() {
    if (m_lock)
        return true;
    // The machine is part of the name: a home folder on a share serves many workstations at once.
    const QString machine = QSysInfo::machineHostName();
    auto lock = makeLock(QDir(m_homeFolder).filePath(QStringLiteral(".orvane-billing-%1.lock").arg(machine)));
    bool locked = lock->tryLock(0);
    if (!locked && lock->error() != QLockFile::LockFailedError) {
        // The home folder is read-only.
        const QByteArray home = QDir(m_homeFolder).canonicalPath().toUtf8();
        const QString key = QString::fromLatin1(QCryptographicHash::hash(home, QCryptographicHash::Sha1).toHex());
        const QString file = QDir::temp().filePath(QStringLiteral("orvane-billing-%1.lock").arg(key));
        lock = makeLock(file);
        locked = lock->tryLock(0);
        if (!locked && lock->error() != QLockFile::LockFailedError)
            throw DataError(QStringLiteral("The lock file %1 cannot be written.").arg(file));
    }
    if (locked)
        m_lock = std::move(lock);
    return locked;
}

} // namespace orvane
