// SPDX-License-Identifier: GPL-3.0-or-later
#include "playback/StillSaving.h"

#include "context/FeedbackDisplay.h"
#include "overlays/ClockText.h"
#include "platform/base/Background.h"
#include "platform/base/Delivery.h"
#include "platform/base/Localization.h"
#include "playback/QVMovie.h"
#include "playback/QVMovieView.h"
#include "settings/Tracing.h"

#include <QDir>
#include <QImageWriter>
#include <QRegularExpression>
#include <QTemporaryFile>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

/// Bytes of a file's name that the movie's may take; file systems hold 255.
constexpr qsizetype maximumNameBytes = 180;
/// So many stills of one time there may be.
constexpr int maximumNumber = 1000;

enum class Placed { yes, taken, failed };

/// Gives the file its name, unless another one has it.
Placed place(const QByteArray& from, const QByteArray& to) {
    if (::renameat2(AT_FDCWD, from.constData(), AT_FDCWD, to.constData(), RENAME_NOREPLACE) == 0)
        return Placed::yes;
    // Not every file system can do that.
    if (errno != EEXIST && (errno == EINVAL || errno == ENOSYS) && ::link(from.constData(), to.constData()) == 0) {
        ::unlink(from.constData());
        return Placed::yes;
    }
    return errno == EEXIST ? Placed::taken : Placed::failed;
}

} // namespace

QString stillName(const QString& movie, double seconds) {
    static const QRegularExpression ending(QStringLiteral("(?<=.)\\.[A-Za-z0-9]{2,4}$"));
    QString name = QString(movie).remove(ending);
    for (QChar& character : name)
        if (character == u'/' || !character.isPrint())
            character = u' ';
    name = name.trimmed();
    while (name.startsWith(u'.')) // it would be hidden
        name.remove(0, 1);
    while (name.toUtf8().size() > maximumNameBytes)
        name.chop(name.back().isLowSurrogate() ? 2 : 1);
    return (name.isEmpty() ? QStringLiteral("Lumaro") : name) + u' ' + preciseClockText(seconds, 3).replace(u':', u'.');
}

QString writeStill(const QImage& picture, const QString& folder, const QString& name) {
    if (!QDir().mkpath(folder))
        return {};
    QTemporaryFile file(QDir(folder).filePath(QStringLiteral(".lumaro-XXXXXX.png")));
    if (!file.open() || !QImageWriter(&file, "PNG").write(picture) || !file.flush() || ::fsync(file.handle()) != 0)
        return {};
    ::fchmod(file.handle(), 0644); // temporary files are the owner's alone
    for (int number = 1; number <= maximumNumber; ++number) {
        const QString numbered = number == 1 ? name : QStringLiteral("%1 (%2)").arg(name).arg(number);
        const QString path = QDir(folder).filePath(numbered + QStringLiteral(".png"));
        const Placed placed = place(QFile::encodeName(file.fileName()), QFile::encodeName(path));
        if (placed == Placed::yes) {
            file.setAutoRemove(false);
            return path;
        }
        if (placed == Placed::failed)
            break;
    }
    return {};
}

StillSaving::StillSaving(const Environment& environment, QVMovieView& view, FeedbackDisplay& feedback,
                         std::function<QString()> folder)
    : _environment(environment)
    , _view(view)
    , _feedback(feedback)
    , _folder(std::move(folder)) {}

StillSaving::~StillSaving() {
    for (const auto& saved : _underWay)
        saved->abandon();
}

void StillSaving::save() {
    const auto movie = _view.movie();
    if (!movie || !movie->info().hasVideo) {
        _feedback.postFeedback(platform::localizedString(QStringLiteral("No Picture to Save")));
        return;
    }
    const QString name = stillName(movie->displayName(), static_cast<double>(movie->time()) / movie->timeScale());
    _view.wholePicture([this, name, alive = std::weak_ptr(_alive)](const QImage& picture) {
        if (!alive.lock())
            return;
        if (picture.isNull())
            _feedback.postFeedback(platform::localizedString(QStringLiteral("No Picture to Save")));
        else
            write(picture, name);
    });
}

void StillSaving::write(const QImage& picture, const QString& name) {
    const auto saved = std::make_shared<Saved>();
    _underWay.push_back(saved);
    const QString folder = _folder();
    saved->receive([this, folder, self = saved.get()](const QString& path) {
        if (path.isEmpty())
            say("Can’t save the still in %@", folder);
        else
            say("Still: %@", path);
        std::erase_if(_underWay, [self](const auto& one) { return one.get() == self; });
    });
    platform::background::run([picture, folder, name, saved] { saved->deliver(writeStill(picture, folder, name)); });
}

void StillSaving::say(const char* format, const QString& path) {
    const QString home = QDir::homePath() + u'/';
    const QString shown = path.startsWith(home) ? QStringLiteral("~/") + path.mid(home.size()) : path;
    trace("%@: %@", "StillSaving", path);
    _feedback.postFeedback(platform::localizedFormat(QString::fromUtf8(format), {shown}));
}
