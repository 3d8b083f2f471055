#include "app/SingleInstance.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>

namespace {

/// One name per installation, however its folder is written.
QString lockPath(const std::string& pathsFolder) {
    const QFileInfo folder(QString::fromStdString(pathsFolder));
    const QString whole = folder.exists() ? folder.canonicalFilePath() : folder.absoluteFilePath();
    const QByteArray hash = QCryptographicHash::hash(whole.toUtf8(), QCryptographicHash::Sha256).toHex().left(16);
    return QDir::temp().filePath(QStringLiteral("callscope-mapping-%1.lock").arg(QString::fromLatin1(hash)));
}

} // namespace

SingleInstance::SingleInstance(const std::string& pathsFolder) : lock_(lockPath(pathsFolder)) {
    lock_.setStaleLockTime(0); // a lock grows stale by its process ending, never by age
}

bool SingleInstance::anotherIsRunning() {
    if (lock_.isLocked() || lock_.tryLock())
        return false;
    return lock_.error() == QLockFile::LockFailedError;
}
