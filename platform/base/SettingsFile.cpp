// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/SettingsFile.h"

#include "platform/base/Log.h"
#include "platform/base/PropertyList.h"
#include "platform/base/RegularFile.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace platform {

namespace {

constexpr qsizetype maximumBytes = 16 * 1024 * 1024;
constexpr int maximumLinks = 40;

void logError(const QString& what, const QString& path, const QString& why) {
    Log::write(QStringLiteral("ERROR: SettingsFile: %1 %2: %3.").arg(what, path, why));
}

/// The file behind the symbolic links, so that a rename replaces it and not the link. It need not exist.
QString behindLinks(const QString& path) {
    QString target = path;
    for (int links = 0; links < maximumLinks && QFileInfo(target).isSymLink(); ++links)
        target = QFileInfo(target).symLinkTarget();
    return target;
}

/// A rename lasts only once the folder is on the disk. Some file systems can't do it; that is no loss.
void syncFolder(const QString& path) {
    const int folder = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder < 0)
        return;
    ::fsync(folder);
    ::close(folder);
}

/// Renames the damaged file; the name it has now, or nothing when it can't be.
QString putAside(const QString& path) {
    const QString stem =
        path + QStringLiteral(".damaged-") + QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmss"));
    QString aside = stem;
    for (int number = 2; QFileInfo::exists(aside); ++number)
        aside = stem + u'-' + QString::number(number);
    return QFile::rename(path, aside) ? aside : QString();
}

} // namespace

SettingsFile::SettingsFile(const QString& path)
    : _path(behindLinks(path)) {}

QString SettingsFile::defaultPath() {
    QString folder = qEnvironmentVariable("XDG_CONFIG_HOME");
    if (!QDir::isAbsolutePath(folder))
        folder = QDir::homePath() + QStringLiteral("/.config");
    return QDir::cleanPath(folder + QStringLiteral("/lumaro/org.lumaro.Lumaro.plist"));
}

QVariantMap SettingsFile::load() {
    _writable = true;
    int error = 0;
    auto bytes = readRegularFile(_path, maximumBytes + 1, &error);
    if (bytes && bytes->size() > maximumBytes) {
        bytes.reset();
        error = EFBIG;
    }
    if (!bytes && (error == ENOENT || error == ENOTDIR))
        return {};
    if (!bytes) {
        // There may be good settings in it.
        _writable = false;
        logError(QStringLiteral("Can't read the settings in"), _path,
                 QString::fromLocal8Bit(std::strerror(error)) +
                     QStringLiteral(". The settings of this run will not be kept"));
        return {};
    }
    const auto root = propertyList::parse(*bytes);
    if (root && root->typeId() == QMetaType::QVariantMap)
        return root->toMap();

    const QString aside = putAside(_path);
    _writable = !aside.isEmpty();
    if (_writable)
        logError(QStringLiteral("Damaged settings in"), _path, QStringLiteral("They are kept as ") + aside);
    else
        logError(QStringLiteral("Damaged settings in"), _path,
                 QStringLiteral("The file can't be renamed. The settings of this run will not be kept"));
    return {};
}

bool SettingsFile::store(const QVariantMap& domain) {
    if (!_writable)
        return false;
    const QFileInfo place(_path);
    QDir().mkpath(place.absolutePath());
    QSaveFile file(_path);
    const QByteArray bytes = propertyList::toXml(domain);
    // A file that stood there lends its permissions; a new one is for its owner alone.
    const bool isStored = file.open(QIODevice::WriteOnly) &&
                          (place.exists() || file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner)) &&
                          file.write(bytes) == bytes.size() && file.commit();
    if (isStored)
        syncFolder(place.absolutePath());
    else
        logError(QStringLiteral("Can't write the settings to"), _path, file.errorString());
    return isStored;
}

} // namespace platform
