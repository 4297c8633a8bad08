// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/VersionCheck.h"

#include "app/WebAddress.h"
#include "context/CommandTarget.h"
#include "context/Notifications.h"
#include "platform/base/Bundle.h"
#include "platform/base/Downloads.h"
#include "platform/base/Localization.h"
#include "platform/base/NotificationCenter.h"
#include "platform/base/PropertyValue.h"
#include "platform/base/RunLoop.h"
#include "platform/base/UserDefaults.h"
#include "settings/QVPreferencesChangedNotification.h"
#include "settings/SettingsKeys.h"
#include "settings/Tracing.h"

#include <utility>

using versionData::Record;
using AlertIcon = platform::Desktop::AlertIcon;

namespace {

const QString kReleaseDictionary = QStringLiteral("Release");
const QString kBetaDictionary = QStringLiteral("Beta");

/// Those of the web and those of the property lists together, from each mirror.
constexpr int maximumRedirects = 10;

QString localized(const char* key) {
    return platform::localizedString(QString::fromUtf8(key));
}

QString absoluteString(const QUrl& url) {
    return url.toString(QUrl::FullyEncoded);
}

} // namespace

struct VersionCheck::Running {
    TraceScope scope{"-[QVAppController checkLatestVersion:]"};
    Sender sender;
    QStringList mirrors;
    qsizetype nextMirror = 0;
    int attempts = 0;
    int redirects = 0; // since the last mirror of the list
    QString root;
    QUrl rootUrl;
    QUrl versionData;
    std::unique_ptr<platform::Download> download;
};

VersionCheck::VersionCheck(const Environment& environment, const Collaborators& collaborators)
    : _environment(environment)
    , _with(collaborators) {}

VersionCheck::~VersionCheck() = default;

bool VersionCheck::shouldCheckLatestVersion() const {
    const platform::UserDefaults& settings = _environment.settings;
    return settings.boolForKey(kQVNewVersionShouldCheck) &&
           versionData::isDue(settings.dateForKey(kQVNewVersionLastTimeChecked),
                              settings.integerForKey(kQVNewVersionCheckingPeriod), _environment.loop.date());
}

bool VersionCheck::hasMirrors() const {
    return !_environment.settings.stringArrayForKey(kVersionMirrorsKey).isEmpty();
}

QString VersionCheck::bundleIdentifier() const {
    return _with.bundle.objectForInfoDictionaryKey(QStringLiteral("CFBundleIdentifier")).toString();
}

void VersionCheck::checkLatestVersion(Sender sender) {
    if (_running)
        return;
    _running = std::make_unique<Running>();
    _running->sender = sender;
    _environment.notifications.post(QVVersionCheckNotification{kQVVersionCheckBegin});
    _running->mirrors = _environment.settings.stringArrayForKey(kVersionMirrorsKey);
    if (_running->mirrors.isEmpty())
        finish();
    else
        tryRoot(_running->mirrors[_running->nextMirror++]);
}

// An attempt

void VersionCheck::tryRoot(const QString& root) {
    Running& run = *_running;
    run.root = root;
    run.versionData = QUrl();
    trace("Attempt #%d", ++run.attempts);
    run.rootUrl = versionData::urlOf(root);
    if (run.rootUrl.isEmpty()) {
        logAlways("ERROR: Unable to construct root URL.");
    } else {
        trace("Trying root: %@", absoluteString(run.rootUrl));
        if (const QUrl path = versionData::urlOf(_environment.settings.stringForKey(kVersionDataKey)); !path.isEmpty())
            run.versionData = run.rootUrl.resolved(path);
    }
    if (run.versionData.isEmpty()) {
        logAlways("ERROR: Unable to construct version data URL.");
        attemptFailed();
        return;
    }
    trace("Downloading version data from: %@", absoluteString(run.versionData));
    run.download = _with.downloads.fetch({.url = run.versionData, .maximumRedirects = maximumRedirects - run.redirects},
                                         [this](const platform::DownloadAnswer& answer) { answered(answer); });
}

void VersionCheck::answered(const platform::DownloadAnswer& answer) {
    _running->download.reset();
    const auto contents = answer.data ? versionData::read(*answer.data, bundleIdentifier()) : std::nullopt;
    if (!contents) {
        trace("Download failed: %@", answer.data ? QStringLiteral("no property list") : answer.error);
        attemptFailed();
    } else if (contents->redirect) {
        redirected(*contents->redirect, answer);
    } else if (!contents->entry) {
        logAlways("ERROR: No version data for bundle: %@", bundleIdentifier());
        attemptFailed();
    } else {
        found(*contents->entry);
    }
}

void VersionCheck::redirected(const QString& root, const platform::DownloadAnswer& answer) {
    trace("Redirecting to: %@", root);
    _running->redirects += answer.redirects + 1;
    const QString https = QStringLiteral("https");
    if (_running->redirects > maximumRedirects) {
        logAlways("ERROR: Too many redirects.");
        attemptFailed();
    } else if (answer.url.scheme() == https && versionData::urlOf(root).scheme() != https) {
        logAlways("ERROR: Refusing to redirect to: %@", root);
        attemptFailed();
    } else {
        tryRoot(root);
    }
}

void VersionCheck::attemptFailed() {
    Running& run = *_running;
    if (!run.versionData.isEmpty())
        logAlways("ERROR: Unable to download any data from %@.", absoluteString(run.versionData));
    if (run.nextMirror < run.mirrors.size()) {
        trace("Will retry with next mirror from the list.");
        run.redirects = 0;
        tryRoot(run.mirrors[run.nextMirror++]);
        return;
    }
    logAlways("Failed to reach all mirror sites, not connected to internet?");
    if (run.sender == Sender::none) {
        finish();
        return;
    }
    showAlert({localized("CheckNewVersionFailedMessage"), localized("CheckNewVersionFailedDetails"), localized("OK"),
               QString(), QString()},
              [this](int) { finish(); });
}

void VersionCheck::found(const QVariantMap& entry) {
    platform::UserDefaults& settings = _environment.settings;
    if (const QString page = platform::propertyValue::toString(entry.value(kQVDonationPageURL)); !page.isEmpty()) {
        if (isWebAddress(QUrl(page)))
            settings.setObject(page, kQVDonationPageURL);
        else
            logAlways("ERROR: Refusing donation page: %@", versionData::shownVersion(page));
    }
    QString kind = kBetaDictionary;
    std::optional<Record> record;
    if (settings.boolForKey(kQVNewVersionShouldCheckBeta)) {
        trace("Checking for latest Beta.");
        record = versionData::recordOf(entry, kind);
        if (!record)
            trace("There is no Beta available.");
    }
    if (!record) {
        trace("Checking for latest Release.");
        kind = kReleaseDictionary;
        record = versionData::recordOf(entry, kind);
    }
    if (!record) {
        logAlways("ERROR: No version data neither for Beta nor for Release, file corrupt?");
        attemptFailed();
        return;
    }
    trace("Found info about latest %@: version %@(v%d), download page: %@", kind, record->version, record->build,
          record->page);
    const std::int32_t own =
        platform::propertyValue::toInteger(_with.bundle.objectForInfoDictionaryKey(QStringLiteral("CFBundleVersion")));
    if (record->build > own)
        outdated(kind, *record);
    else
        upToDate();
}

// What it means

void VersionCheck::upToDate() {
    trace("Local version is up to date.");
    const QString status = localized("Up to date");
    if (_running->sender == Sender::none) {
        succeeded(status);
        return;
    }
    showAlert({localized("YouHaveLatestVersionMessage"), localized("YouHaveLatestVersionDetails"), localized("OK"),
               QString(), QString(), AlertIcon::information},
              [this, status](int) { succeeded(status); });
}

void VersionCheck::outdated(const QString& kind, const Record& record) {
    trace("Local version is outdated.");
    const QStringList shown{platform::localizedString(kind), versionData::shownVersion(record.version)};
    const QString status = platform::localizedFormat(QStringLiteral("Newer %@ version %@ available"), shown);
    if (_running->sender == Sender::none &&
        record.build <= _environment.settings.integerForKey(kQVNewVersionSkipToBuild)) {
        trace("Skipping version upon request.");
        succeeded(status);
        return;
    }
    showAlert({localized("NewVersionAvailableMessage"),
               platform::localizedFormat(QStringLiteral("NewVersionAvailableDetails"), shown),
               localized("Download Now..."), localized("Skip Version"), localized("Later"), AlertIcon::information},
              [this, record, status](int answer) {
                  if (answer == 1) {
                      openDownloadPage(record.page);
                  } else if (answer == 0) {
                      trace("Skipping version upon request.");
                      _environment.settings.setInteger(record.build, kQVNewVersionSkipToBuild);
                  } else {
                      trace("Postpone update till last scheduled check.");
                  }
                  succeeded(status);
              });
}

void VersionCheck::openDownloadPage(const QString& page) {
    const QUrl url = _running->rootUrl.resolved(QUrl(page));
    if (!isWebAddress(url)) {
        logAlways("ERROR: Refusing to open download page: %@", absoluteString(url));
        return;
    }
    trace("Opening in default browser download page: %@", absoluteString(url));
    if (_with.desktop.openURL(url))
        _with.controller.performAction(action::quit, Feedback::yes);
}

void VersionCheck::succeeded(const QString& status) {
    platform::UserDefaults& settings = _environment.settings;
    settings.setObject(_environment.loop.date().toUTC(), kQVNewVersionLastTimeChecked);
    settings.setObject(status, kQVNewVersionStatus);
    QStringList mirrors = _running->mirrors;
    if (mirrors.first() != _running->root) {
        mirrors.removeOne(_running->root);
        mirrors.prepend(_running->root);
        settings.setObject(mirrors, kVersionMirrorsKey);
    }
    _environment.notifications.post(QVPreferencesChangedNotification{kQVNewVersionLastTimeChecked, {}});
    finish();
}

void VersionCheck::finish() {
    const std::unique_ptr<Running> ended = std::move(_running);
    _environment.notifications.post(QVVersionCheckNotification{kQVVersionCheckEnd});
}

/// What is not answered because the application ends is asked again at the next launch: nothing is recorded.
void VersionCheck::showAlert(const platform::Desktop::Alert& alert, std::function<void(int)> answered) {
    _with.desktop.whenNoPanelStands([this, alert, answered = std::move(answered)] {
        const int answer = _with.desktop.runAlert(alert);
        if (_with.desktop.isTerminating())
            finish();
        else
            answered(answer);
    });
}
