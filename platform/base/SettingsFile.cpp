// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/SettingsFile.h"

#include "platform/base/Log.h"
#include "platform/base/PropertyList.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace platform {

namespace {

constexpr qint64 kLargestFile = 16 * 1024 * 1024;
constexpr mode_t kOwnerOnly = 0600;
constexpr int kMostLinks = 40;
// A temporary file this old was left by a run that was killed.
constexpr qint64 kAbandonedAfterSeconds = 3600;

QString temporaryName(const QString& path) {
    return path + QStringLiteral(".new-");
}

QString errorText(int code) {
    return QString::fromLocal8Bit(std::strerror(code));
}

void logError(const QString& what, const QString& path, const QString& why) {
    Log::write(QStringLiteral("ERROR: SettingsFile: %1 %2: %3.").arg(what, path, why));
}

class Descriptor {
public:
    explicit Descriptor(int number)
        : _number(number) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() { close(); }
    int number() const { return _number; }
    bool isOpen() const { return _number >= 0; }
    bool close() {
        const bool closed = _number < 0 || ::close(_number) == 0;
        _number = -1;
        return closed;
    }

private:
    int _number;
};

/// The file behind the symbolic links, so that a rename replaces it and not the link. It need not exist.
QString behindLinks(const QString& path) {
    QString target = path;
    for (int links = 0; links < kMostLinks && QFileInfo(target).isSymLink(); ++links)
        target = QFileInfo(target).symLinkTarget();
    return target;
}

struct Reading {
    QByteArray bytes;
    int error = 0; // errno; 0 when all was read
};

Reading readWhole(const QString& path) {
    // Without blocking: what stands there might be a pipe.
    const Descriptor file(::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    if (!file.isOpen())
        return {{}, errno};
    struct stat info {};
    if (::fstat(file.number(), &info) != 0)
        return {{}, errno};
    if (!S_ISREG(info.st_mode))
        return {{}, S_ISDIR(info.st_mode) ? EISDIR : EINVAL};
    if (info.st_size > kLargestFile)
        return {{}, EFBIG};
    Reading reading;
    std::array<char, 16384> buffer{};
    for (;;) {
        const ssize_t count = ::read(file.number(), buffer.data(), buffer.size());
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return {{}, errno};
        if (count == 0)
            return reading;
        reading.bytes.append(buffer.data(), count);
        if (reading.bytes.size() > kLargestFile)
            return {{}, EFBIG};
    }
}

bool writeWhole(int file, const QByteArray& bytes) {
    qsizetype done = 0;
    while (done < bytes.size()) {
        const ssize_t count = ::write(file, bytes.constData() + done, static_cast<std::size_t>(bytes.size() - done));
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return false;
        done += count;
    }
    return true;
}

/// Replaces the file; 0, or errno with what stood there untouched.
int replaceFile(const QString& path, const QByteArray& bytes) {
    const QByteArray name = QFile::encodeName(path);
    QByteArray temporary = QFile::encodeName(temporaryName(path)) + "XXXXXX";
    Descriptor file(::mkostemp(temporary.data(), O_CLOEXEC));
    if (!file.isOpen())
        return errno;
    struct stat before {};
    const bool stood = ::stat(name.constData(), &before) == 0;
    const bool written = ::fchmod(file.number(), stood ? before.st_mode & 0777U : kOwnerOnly) == 0 &&
                         writeWhole(file.number(), bytes) && ::fsync(file.number()) == 0 && file.close() &&
                         std::rename(temporary.constData(), name.constData()) == 0;
    if (!written) {
        const int error = errno;
        ::unlink(temporary.constData());
        return error;
    }
    // The rename itself lasts only once the folder is on the disk. Some file systems can't do it; that is no loss.
    const Descriptor folder(
        ::open(QFile::encodeName(QFileInfo(path).absolutePath()).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (folder.isOpen())
        ::fsync(folder.number());
    return 0;
}

void removeAbandonedFiles(const QString& path) {
    const QFileInfo file(path);
    const QDir folder = file.absoluteDir();
    const QDateTime recent = QDateTime::currentDateTimeUtc().addSecs(-kAbandonedAfterSeconds);
    const QString pattern = QFileInfo(temporaryName(path)).fileName() + QStringLiteral("??????");
    for (const QFileInfo& left : folder.entryInfoList({pattern}, QDir::Files | QDir::Hidden)) {
        if (left.lastModified() < recent)
            QFile::remove(left.absoluteFilePath());
    }
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
    removeAbandonedFiles(_path);
    const Reading reading = readWhole(_path);
    if (reading.error == ENOENT || reading.error == ENOTDIR)
        return {};
    if (reading.error != 0) {
        // There may be good settings in it.
        _writable = false;
        logError(QStringLiteral("Can't read the settings in"), _path,
                 errorText(reading.error) + QStringLiteral(". The settings of this run will not be kept"));
        return {};
    }
    const auto root = propertyList::parse(reading.bytes);
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
    QDir().mkpath(QFileInfo(_path).absolutePath());
    const int error = replaceFile(_path, propertyList::toXml(domain));
    if (error != 0)
        logError(QStringLiteral("Can't write the settings to"), _path, errorText(error));
    return error == 0;
}

} // namespace platform
