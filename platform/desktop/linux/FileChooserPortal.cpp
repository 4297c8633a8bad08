// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/linux/FileChooserPortal.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QFile>
#include <QList>
#include <QUrl>
#include <QUuid>

#include <utility>

namespace platform {

// How a portal is told the types of files, "a(sa(us))", and further choices, "a(ssa(ss)s)".
struct PortalPattern {
    uint kind = 0; // a pattern of names
    QString pattern;
};
struct PortalFilter {
    QString name;
    QList<PortalPattern> patterns;
};
struct PortalPair {
    QString key;
    QString value;
};
struct PortalChoice {
    QString identifier;
    QString label;
    QList<PortalPair> values; // none: a check box
    QString initial;
};

QDBusArgument& operator<<(QDBusArgument& argument, const PortalPattern& pattern) {
    argument.beginStructure();
    argument << pattern.kind << pattern.pattern;
    argument.endStructure();
    return argument;
}
const QDBusArgument& operator>>(const QDBusArgument& argument, PortalPattern& pattern) {
    argument.beginStructure();
    argument >> pattern.kind >> pattern.pattern;
    argument.endStructure();
    return argument;
}
QDBusArgument& operator<<(QDBusArgument& argument, const PortalFilter& filter) {
    argument.beginStructure();
    argument << filter.name << filter.patterns;
    argument.endStructure();
    return argument;
}
const QDBusArgument& operator>>(const QDBusArgument& argument, PortalFilter& filter) {
    argument.beginStructure();
    argument >> filter.name >> filter.patterns;
    argument.endStructure();
    return argument;
}
QDBusArgument& operator<<(QDBusArgument& argument, const PortalPair& pair) {
    argument.beginStructure();
    argument << pair.key << pair.value;
    argument.endStructure();
    return argument;
}
const QDBusArgument& operator>>(const QDBusArgument& argument, PortalPair& pair) {
    argument.beginStructure();
    argument >> pair.key >> pair.value;
    argument.endStructure();
    return argument;
}
QDBusArgument& operator<<(QDBusArgument& argument, const PortalChoice& choice) {
    argument.beginStructure();
    argument << choice.identifier << choice.label << choice.values << choice.initial;
    argument.endStructure();
    return argument;
}
const QDBusArgument& operator>>(const QDBusArgument& argument, PortalChoice& choice) {
    argument.beginStructure();
    argument >> choice.identifier >> choice.label >> choice.values >> choice.initial;
    argument.endStructure();
    return argument;
}

namespace {

const QString service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString path = QStringLiteral("/org/freedesktop/portal/desktop");
const QString chooser = QStringLiteral("org.freedesktop.portal.FileChooser");
const QString requestInterface = QStringLiteral("org.freedesktop.portal.Request");
const QString optionName = QStringLiteral("option");

/// A portal answers at once that it asks; one that has to be started first needs a while. Milliseconds.
constexpr int startTimeout = 4000;

void registerTypes() {
    static const bool registered = [] {
        qDBusRegisterMetaType<PortalPattern>();
        qDBusRegisterMetaType<QList<PortalPattern>>();
        qDBusRegisterMetaType<PortalFilter>();
        qDBusRegisterMetaType<QList<PortalFilter>>();
        qDBusRegisterMetaType<PortalPair>();
        qDBusRegisterMetaType<QList<PortalPair>>();
        qDBusRegisterMetaType<PortalChoice>();
        qDBusRegisterMetaType<QList<PortalChoice>>();
        return true;
    }();
    static_cast<void>(registered);
}

/// Portals compare names with regard to case.
QString patternOf(const QString& extension) {
    QString pattern = QStringLiteral("*.");
    for (const QChar letter : extension) {
        if (letter.toLower() == letter.toUpper())
            pattern += letter;
        else
            pattern += QStringLiteral("[") + letter.toLower() + letter.toUpper() + u']';
    }
    return pattern;
}

QVariantMap optionsOf(const FileQuestion& question, const QString& token) {
    const bool isForFolders = question.kind == FileQuestion::Kind::folders;
    QVariantMap options{{QStringLiteral("handle_token"), token},
                        {QStringLiteral("accept_label"), question.accept},
                        {QStringLiteral("modal"), true}};
    if (question.kind == FileQuestion::Kind::newFile) {
        options[QStringLiteral("current_name")] = question.name;
    } else {
        options[QStringLiteral("multiple")] = true;
        options[QStringLiteral("directory")] = isForFolders;
    }
    if (!question.option.isEmpty()) {
        options[QStringLiteral("choices")] =
            QVariant::fromValue(QList<PortalChoice>{{optionName, question.option, {}, QStringLiteral("false")}});
    }
    if (!question.folder.isEmpty()) // a path of bytes, which ends in a zero
        options[QStringLiteral("current_folder")] = QFile::encodeName(question.folder) + '\0';
    if (!isForFolders && !question.extensions.isEmpty()) {
        PortalFilter types{question.nameOfTypes, {}};
        for (const QString& extension : question.extensions)
            types.patterns.append({0, patternOf(extension)});
        const PortalFilter all{question.nameOfAllFiles, {{0, QStringLiteral("*")}}};
        options[QStringLiteral("filters")] = QVariant::fromValue(QList<PortalFilter>{types, all});
        options[QStringLiteral("current_filter")] = QVariant::fromValue(types);
    }
    return options;
}

bool isOptionOn(const QVariant& choices) {
    const auto argument = choices.value<QDBusArgument>();
    if (argument.currentSignature() != QStringLiteral("a(ss)"))
        return false;
    for (const PortalPair& choice : qdbus_cast<QList<PortalPair>>(argument)) {
        if (choice.key == optionName)
            return choice.value == QStringLiteral("true");
    }
    return false;
}

} // namespace

FileChooserPortal::FileChooserPortal(const FileQuestion& question, const QString& parent, Answered answered)
    : _answered(std::move(answered))
    , _token(QStringLiteral("lumaro") + QUuid::createUuid().toString(QUuid::Id128)) {
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        QMetaObject::invokeMethod(
            this, [this] { answer(std::nullopt); }, Qt::QueuedConnection);
        return;
    }
    registerTypes();
    // It may be answered before the call is: the object's name is known beforehand.
    const QString sender = bus.baseService().mid(1).replace(u'.', u'_');
    follow(path + QStringLiteral("/request/") + sender + u'/' + _token);
    auto* watcher = new QDBusServiceWatcher(service, bus, QDBusServiceWatcher::WatchForUnregistration, this);
    connect(watcher, &QDBusServiceWatcher::serviceUnregistered, this, [this] { answer(std::nullopt); });
    ask(question, parent);
}

FileChooserPortal::~FileChooserPortal() {
    if (_answered && !_request.isEmpty())
        QDBusConnection::sessionBus().send(
            QDBusMessage::createMethodCall(service, _request, requestInterface, QStringLiteral("Close")));
}

void FileChooserPortal::follow(const QString& request) {
    if (request == _request)
        return;
    QDBusConnection bus = QDBusConnection::sessionBus();
    const QString signal = QStringLiteral("Response");
    if (!_request.isEmpty())
        bus.disconnect(service, _request, requestInterface, signal, this, SLOT(responded(uint, QVariantMap)));
    _request = request;
    bus.connect(service, _request, requestInterface, signal, this, SLOT(responded(uint, QVariantMap)));
}

void FileChooserPortal::ask(const FileQuestion& question, const QString& parent) {
    QDBusMessage call = QDBusMessage::createMethodCall(
        service, path, chooser,
        question.kind == FileQuestion::Kind::newFile ? QStringLiteral("SaveFile") : QStringLiteral("OpenFile"));
    call << parent << question.title << optionsOf(question, _token);
    auto* watcher = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(call, startTimeout), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        const QDBusPendingReply<QDBusObjectPath> reply = *watcher;
        watcher->deleteLater();
        if (!_answered)
            return;
        if (reply.isError()) {
            // One that comes late is not wanted any more.
            if (reply.error().type() == QDBusError::NoReply || reply.error().type() == QDBusError::Timeout)
                QDBusConnection::sessionBus().send(
                    QDBusMessage::createMethodCall(service, _request, requestInterface, QStringLiteral("Close")));
            answer(std::nullopt);
        } else {
            follow(reply.value().path()); // portals of old name it by themselves
        }
    });
}

void FileChooserPortal::responded(uint response, const QVariantMap& results) {
    constexpr uint success = 0;
    constexpr uint cancelled = 1;
    if (response == cancelled) {
        answer(FileChoice());
        return;
    }
    if (response != success) {
        answer(std::nullopt);
        return;
    }
    FileChoice choice;
    for (const QString& address : results.value(QStringLiteral("uris")).toStringList()) {
        const QUrl url(address);
        choice.chosen.append(url.isLocalFile() ? url.toLocalFile() : address);
    }
    choice.isOptionOn = isOptionOn(results.value(QStringLiteral("choices")));
    answer(choice);
}

void FileChooserPortal::answer(const std::optional<FileChoice>& choice) {
    if (const auto answered = std::exchange(_answered, nullptr))
        answered(choice);
}

} // namespace platform
