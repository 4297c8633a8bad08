// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/SettingsFile.h"

#include "platform/base/Background.h"
#include "platform/base/Delivery.h"
#include "platform/base/Log.h"
#include "platform/base/PropertyList.h"
#include "platform/base/PropertyValue.h"
#include "platform/base/RegularFile.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

#include <atomic>
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <fcntl.h>
#include <mutex>
#include <optional>
#include <sys/file.h>
#include <unistd.h>
#include <utility>

namespace platform {

namespace {

constexpr qsizetype maximumBytes = 16 * 1024 * 1024;
constexpr int maximumLinks = 40;

const QString versionKey = QStringLiteral("Version");

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

/// The folder of the settings, for one writer at a time. The file itself is another one after each rename, and a file
/// for the lock alone would lie about for good.
class FolderLock {
public:
    explicit FolderLock(const QString& path)
        : _folder(::open(QFile::encodeName(path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
        constexpr int attempts = 250;
        constexpr unsigned pauseInMicroseconds = 2000;
        // Writing takes milliseconds. Whoever holds it for longer doesn't write; some file systems have no locks.
        for (int i = 0; i < attempts && ::flock(_folder, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK; ++i)
            ::usleep(pauseInMicroseconds);
    }
    FolderLock(const FolderLock&) = delete;
    FolderLock& operator=(const FolderLock&) = delete;
    ~FolderLock() {
        if (_folder >= 0)
            ::close(_folder);
    }

    /// A rename lasts only once the folder is on the disk. Some file systems can't do it; that is no loss.
    void syncFolder() const {
        if (_folder >= 0)
            ::fsync(_folder);
    }

private:
    int _folder;
};

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

/// What the file's threads share.
class SettingsFile::Contents {
public:
    Contents(const QString& path, SettingsFormat format)
        : _path(behindLinks(path))
        , _format(std::move(format)) {}

    QVariantMap load() {
        const std::scoped_lock lock(_mutex);
        if (!std::exchange(_isReadAhead, false))
            _known = read().value_or(QVariantMap());
        _isLoaded = true;
        return _known;
    }
    void readAhead() {
        const std::scoped_lock lock(_mutex);
        if (_isLoaded)
            return;
        _known = read().value_or(QVariantMap());
        _isReadAhead = true;
    }
    std::optional<StorageTrouble> trouble() {
        const std::scoped_lock lock(_mutex);
        return _trouble;
    }
    /// A number for each wish to store, in their order: of two, the later one is what is to stand in the file.
    std::uint64_t nextTurn() { return ++_turns; }
    bool store(const QVariantMap& domain, std::uint64_t turn);

private:
    std::optional<QVariantMap> read();
    QVariantMap merged(const QVariantMap& domain, QVariantMap stored) const;
    /// What happens to the file later on is said where it can't be written.
    void remember(StorageTrouble trouble) {
        if (!_isLoaded && !_isReadAhead)
            _trouble = std::move(trouble);
    }

    const QString _path;
    const SettingsFormat _format;
    std::atomic<std::uint64_t> _turns = 0;
    std::mutex _mutex; // guards what follows, and the file against this process
    std::uint64_t _lastTurn = 0;
    /// What this process loaded or stored last.
    QVariantMap _known;
    bool _writable = true;
    std::optional<StorageTrouble> _trouble; // of the first reading
    bool _isReadAhead = false;              // and not loaded since
    bool _isLoaded = false;
};

/// None when there is no file, or none any more; not _writable when there is one that must stay as it is.
std::optional<QVariantMap> SettingsFile::Contents::read() {
    const bool isKnown = !_writable; // and was reported
    _writable = true;
    int error = 0;
    auto bytes = readRegularFile(_path, maximumBytes + 1, &error);
    if (bytes && bytes->size() > maximumBytes) {
        bytes.reset();
        error = EFBIG;
    }
    if (!bytes && (error == ENOENT || error == ENOTDIR))
        return std::nullopt;
    if (!bytes) {
        // There may be good settings in it.
        _writable = false;
        remember({StorageTrouble::Kind::unreadable, _path, {}});
        if (!isKnown)
            logError(QStringLiteral("Can't read the %1 in").arg(_format.contents), _path,
                     QString::fromLocal8Bit(std::strerror(error)) +
                         QStringLiteral(". The %1 of this run will not be kept").arg(_format.contents));
        return std::nullopt;
    }
    const auto root = propertyList::parse(*bytes);
    if (root && root->typeId() == QMetaType::QVariantMap) {
        const QVariantMap stored = root->toMap();
        if (_format.version == 0 || propertyValue::toInteger(stored.value(versionKey)) <= _format.version)
            return stored;
        _writable = false;
        remember({StorageTrouble::Kind::later, _path, {}});
        if (!isKnown)
            logError(QStringLiteral("A later version of Lumaro wrote the %1 in").arg(_format.contents), _path,
                     QStringLiteral("The %1 of this run will not be kept").arg(_format.contents));
        return std::nullopt;
    }

    const QString aside = putAside(_path);
    _writable = !aside.isEmpty();
    remember({_writable ? StorageTrouble::Kind::damaged : StorageTrouble::Kind::unreadable, _path, aside});
    if (_writable)
        logError(QStringLiteral("Damaged %1 in").arg(_format.contents), _path,
                 QStringLiteral("They are kept as ") + aside);
    else if (!isKnown)
        logError(
            QStringLiteral("Damaged %1 in").arg(_format.contents), _path,
            QStringLiteral("The file can't be renamed. The %1 of this run will not be kept").arg(_format.contents));
    return std::nullopt;
}

/// What is stored now, with this process's changes.
QVariantMap SettingsFile::Contents::merged(const QVariantMap& domain, QVariantMap stored) const {
    for (auto known = _known.begin(); known != _known.end(); ++known) {
        if (!domain.contains(known.key()))
            stored.remove(known.key());
    }
    for (auto own = domain.begin(); own != domain.end(); ++own) {
        const auto known = _known.constFind(own.key());
        if (known == _known.constEnd() || known->metaType() != own->metaType() || *known != *own)
            stored.insert(own.key(), *own);
    }
    return stored;
}

bool SettingsFile::Contents::store(const QVariantMap& domain, std::uint64_t turn) {
    const std::scoped_lock guard(_mutex);
    if (turn < _lastTurn)
        return true; // a later one was quicker
    _lastTurn = turn;
    const QFileInfo place(_path);
    QDir().mkpath(place.absolutePath());
    const FolderLock lock(place.absolutePath());
    const std::optional<QVariantMap> stored = read();
    if (!_writable)
        return false;
    QSaveFile file(_path);
    QVariantMap whole = stored ? merged(domain, *stored) : domain;
    if (_format.version > 0)
        whole.insert(versionKey, _format.version);
    const QByteArray bytes = propertyList::toXml(whole);
    // A file that stood there lends its permissions; a new one is for its owner alone.
    const bool isStored = file.open(QIODevice::WriteOnly) &&
                          (place.exists() || file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner)) &&
                          file.write(bytes) == bytes.size() && file.commit();
    if (isStored) {
        _known = domain;
        lock.syncFolder();
    } else {
        logError(QStringLiteral("Can't write the %1 to").arg(_format.contents), _path, file.errorString());
    }
    return isStored;
}

SettingsFile::SettingsFile(const QString& path, const SettingsFormat& format)
    : _contents(std::make_shared<Contents>(path, format)) {}

SettingsFile::~SettingsFile() {
    for (const auto& answer : _underWay)
        answer->abandon();
}

QString SettingsFile::defaultPath() {
    QString folder = qEnvironmentVariable("XDG_CONFIG_HOME");
    if (!QDir::isAbsolutePath(folder))
        folder = QDir::homePath() + QStringLiteral("/.config");
    return QDir::cleanPath(folder + QStringLiteral("/lumaro/org.lumaro.Lumaro.plist"));
}

QString SettingsFile::statePath(const QString& name) {
    QString folder = qEnvironmentVariable("XDG_STATE_HOME");
    if (!QDir::isAbsolutePath(folder))
        folder = QDir::homePath() + QStringLiteral("/.local/state");
    return QDir::cleanPath(folder + QStringLiteral("/lumaro/") + name);
}

void SettingsFile::readAhead() {
    background::run([contents = _contents] { contents->readAhead(); });
}

QVariantMap SettingsFile::load() {
    return _contents->load();
}

std::optional<StorageTrouble> SettingsFile::trouble() const {
    return _contents->trouble();
}

bool SettingsFile::store(const QVariantMap& domain) {
    return _contents->store(domain, _contents->nextTurn());
}

void SettingsFile::storeInBackground(const QVariantMap& domain, std::function<void(bool)> stored) {
    const auto answer = std::make_shared<Delivery<bool>>();
    _underWay.push_back(answer);
    answer->receive([this, stored = std::move(stored), finished = answer.get()](bool isStored) {
        std::erase_if(_underWay, [finished](const auto& one) { return one.get() == finished; });
        stored(isStored);
    });
    background::run([contents = _contents, domain, turn = _contents->nextTurn(), answer] {
        answer->deliver(contents->store(domain, turn));
    });
}

} // namespace platform
