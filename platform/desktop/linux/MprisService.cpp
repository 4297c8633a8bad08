// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/linux/MprisService.h"

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>

#include <algorithm>
#include <cmath>
#include <functional>
#include <utility>

namespace platform {

using namespace mpris;

namespace {

const QString serviceName = QStringLiteral("org.mpris.MediaPlayer2.lumaro");
const QString propertiesInterface = QStringLiteral("org.freedesktop.DBus.Properties");

/// A method: the signature of what comes in, and what it does.
struct Method {
    const QString& interface;
    const char* name;
    const char* signature;
    std::function<void(MediaControlled& player, const QVariantList& arguments)> perform;
};

std::uint64_t numberIn(const QVariant& path) {
    return numberOf(path.value<QDBusObjectPath>());
}

/// Past the end is the next movie.
void seekBy(MediaControlled& player, std::int64_t offset) {
    const MediaState state = player.state();
    if (!state.canSeek)
        return;
    const std::int64_t position = player.position();
    // Neither sum overflows: what was asked for may be any number.
    if (offset > 0 && offset > state.track.length - position)
        player.next();
    else
        player.setPosition(offset < -position ? 0 : position + offset);
}

/// A track that is not played any more was meant, or a place that it does not have: too late.
void setPosition(MediaControlled& player, std::uint64_t track, std::int64_t position) {
    const MediaState state = player.state();
    if (state.canSeek && track != 0 && track == state.track.number && position >= 0 && position <= state.track.length)
        player.setPosition(position);
}

void playPause(MediaControlled& player) {
    if (player.state().playback == MediaState::Playback::playing)
        player.pause();
    else
        player.play();
}

/// A path that is none of ours stands for the end.
std::uint64_t placeIn(const QVariant& path) {
    if (path.value<QDBusObjectPath>().path() == noTrack)
        return 0;
    const std::uint64_t number = numberIn(path);
    return number != 0 ? number : UINT64_MAX;
}

const std::vector<Method>& methods() {
    static const std::vector<Method> table = {
        {rootInterface, "Raise", "", [](auto& player, const auto&) { player.raise(); }},
        {rootInterface, "Quit", "", [](auto& player, const auto&) { player.quit(); }},
        {playerInterface, "Next", "", [](auto& player, const auto&) { player.next(); }},
        {playerInterface, "Previous", "", [](auto& player, const auto&) { player.previous(); }},
        {playerInterface, "Pause", "", [](auto& player, const auto&) { player.pause(); }},
        {playerInterface, "PlayPause", "", [](auto& player, const auto&) { playPause(player); }},
        {playerInterface, "Stop", "", [](auto& player, const auto&) { player.stop(); }},
        {playerInterface, "Play", "", [](auto& player, const auto&) { player.play(); }},
        {playerInterface, "Seek", "x", [](auto& player, const auto& with) { seekBy(player, with[0].toLongLong()); }},
        {playerInterface, "SetPosition", "ox",
         [](auto& player, const auto& with) { setPosition(player, numberIn(with[0]), with[1].toLongLong()); }},
        {playerInterface, "OpenUri", "s", [](auto& player, const auto& with) { player.open(with[0].toString()); }},
        {trackListInterface, "AddTrack", "sob",
         [](auto& player, const auto& with) {
             player.addTrack(with[0].toString(), placeIn(with[1]), with[2].toBool());
         }},
        {trackListInterface, "RemoveTrack", "o",
         [](auto& player, const auto& with) { player.removeTrack(numberIn(with[0])); }},
        {trackListInterface, "GoTo", "o", [](auto& player, const auto& with) { player.goTo(numberIn(with[0])); }},
        // Answers something; it is carried out by answer().
        {trackListInterface, "GetTracksMetadata", "ao", nullptr},
    };
    return table;
}

/// A property that can be set: false for a value of another kind, or one that there is not.
struct Setting {
    const QString& interface;
    const char* name;
    std::function<bool(MediaControlled& player, const QVariant& value)> set;
};

bool setRate(MediaControlled& player, const QVariant& value) {
    const double rate = value.toDouble();
    if (value.typeId() != QMetaType::Double || !std::isfinite(rate))
        return false;
    if (rate == 0)
        player.pause();
    else if (rate > 0)
        player.setRate(rate);
    return true;
}

bool setVolume(MediaControlled& player, const QVariant& value) {
    const double volume = value.toDouble();
    if (value.typeId() != QMetaType::Double || !std::isfinite(volume))
        return false;
    player.setVolume(std::max(0.0, volume));
    return true;
}

bool setLooping(MediaControlled& player, const QVariant& value) {
    using enum MediaState::Looping;
    for (const MediaState::Looping looping : {off, one, all}) {
        if (value.typeId() == QMetaType::QString && value.toString() == textOf(looping)) {
            player.setLooping(looping);
            return true;
        }
    }
    return false;
}

bool setShuffled(MediaControlled& player, const QVariant& value) {
    if (value.typeId() != QMetaType::Bool)
        return false;
    player.setShuffled(value.toBool());
    return true;
}

const std::vector<Setting>& settings() {
    static const std::vector<Setting> table = {
        {playerInterface, "Rate", setRate},
        {playerInterface, "Volume", setVolume},
        {playerInterface, "LoopStatus", setLooping},
        {playerInterface, "Shuffle", setShuffled},
        // The window always fills a screen: setting it has no effect.
        {rootInterface, "Fullscreen", [](auto&, const QVariant& value) { return value.typeId() == QMetaType::Bool; }},
    };
    return table;
}

QList<QDBusObjectPath> pathsOf(const std::vector<std::uint64_t>& numbers) {
    QList<QDBusObjectPath> paths;
    for (const std::uint64_t number : numbers)
        paths.append(pathOf(number));
    return paths;
}

} // namespace

MprisService::MprisService(Identity identity)
    : _identity(std::move(identity))
    , _connection(QString()) {
    qDBusRegisterMetaType<QList<QVariantMap>>();
}

MprisService::~MprisService() {
    if (_connection.isConnected())
        _connection.unregisterObject(objectPath);
}

void MprisService::start(MediaControlled& player) {
    _player = &player;
    _bus.use([this](QDBusConnection connection) {
        if (!connection.isConnected() || !connection.registerVirtualObject(objectPath, this))
            return;
        _connection = std::move(connection);
        askForName(serviceName);
    });
}

void MprisService::askForName(const QString& name) {
    // By hand: Qt's own call waits for the answer.
    constexpr quint32 doNotQueue = 4;
    QDBusMessage call =
        QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
                                       QStringLiteral("org.freedesktop.DBus"), QStringLiteral("RequestName"));
    call << name << doNotQueue;
    auto* watcher = new QDBusPendingCallWatcher(_connection.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher, name] {
        const QDBusPendingReply<quint32> reply = *watcher;
        watcher->deleteLater();
        constexpr quint32 owned = 1;
        if (!reply.isError() && reply.value() == owned) {
            _toldState = _player->state();
            _toldProperties = playerProperties(_toldState);
            _toldTracks = _player->tracks();
            _stands = true;
            _player->mediaControlsStand();
        } else if (!reply.isError() && name == serviceName) {
            askForName(QStringLiteral("%1.instance%2").arg(name).arg(QCoreApplication::applicationPid()));
        }
    });
}

QString MprisService::introspect(const QString&) const {
    return introspection();
}

bool MprisService::handleMessage(const QDBusMessage& message, const QDBusConnection& connection) {
    if (message.interface() == QStringLiteral("org.freedesktop.DBus.Introspectable"))
        return false; // answered from introspect()
    const QDBusMessage reply = message.interface() == propertiesInterface ? answerProperties(message) : answer(message);
    if (message.isReplyRequired())
        connection.send(reply);
    return true;
}

QDBusMessage MprisService::answer(const QDBusMessage& call) {
    for (const Method& method : methods()) {
        if (call.member() != QLatin1String(method.name) ||
            (!call.interface().isEmpty() && call.interface() != method.interface))
            continue;
        if (call.signature() != QLatin1String(method.signature))
            return call.createErrorReply(
                QDBusError::InvalidArgs,
                QStringLiteral("%1 takes \"%2\"").arg(call.member(), QLatin1String(method.signature)));
        if (!method.perform)
            return call.createReply(QVariant::fromValue(metadataOf(call.arguments().constFirst())));
        if (call.member() == QStringLiteral("OpenUri") || call.member() == QStringLiteral("AddTrack")) {
            const QString scheme = QUrl(call.arguments().constFirst().toString()).scheme();
            if (!_identity.uriSchemes.contains(scheme, Qt::CaseInsensitive))
                return call.createErrorReply(QDBusError::InvalidArgs,
                                             QStringLiteral("no address of a kind that is played: \"%1\"")
                                                 .arg(call.arguments().constFirst().toString()));
        }
        method.perform(*_player, call.arguments());
        return call.createReply();
    }
    return call.createErrorReply(QDBusError::UnknownMethod, QStringLiteral("there is no \"%1\"").arg(call.member()));
}

QList<QVariantMap> MprisService::metadataOf(const QVariant& paths) const {
    QList<QVariantMap> result;
    for (const QDBusObjectPath& path : qdbus_cast<QList<QDBusObjectPath>>(paths)) {
        const MediaTrack track = _player->track(numberOf(path));
        if (track.number != 0)
            result.append(mpris::metadataOf(track));
    }
    return result;
}

QVariantMap MprisService::propertiesOf(const QString& interface) const {
    if (interface == rootInterface)
        return rootProperties(_identity);
    if (interface == playerInterface) {
        QVariantMap properties = playerProperties(_player->state());
        properties[QStringLiteral("Position")] = static_cast<qlonglong>(_player->position());
        return properties;
    }
    if (interface == trackListInterface)
        return {{QStringLiteral("Tracks"), QVariant::fromValue(pathsOf(_player->tracks()))},
                {QStringLiteral("CanEditTracks"), true}};
    return {};
}

QDBusMessage MprisService::answerProperties(const QDBusMessage& call) {
    const QVariantList with = call.arguments();
    const auto isCall = [&call](const char* name, const char* signature) {
        return call.member() == QLatin1String(name) && call.signature() == QLatin1String(signature);
    };
    if (isCall("GetAll", "s"))
        return call.createReply(propertiesOf(with[0].toString()));
    if (isCall("Set", "ssv"))
        return setProperty(call);
    if (!isCall("Get", "ss"))
        return call.createErrorReply(QDBusError::InvalidArgs, QStringLiteral("no such call of properties"));
    const QVariant value = propertiesOf(with[0].toString()).value(with[1].toString());
    if (!value.isValid())
        return call.createErrorReply(QDBusError::UnknownProperty,
                                     QStringLiteral("there is no \"%1\"").arg(with[1].toString()));
    return call.createReply(QVariant::fromValue(QDBusVariant(value)));
}

QDBusMessage MprisService::setProperty(const QDBusMessage& call) {
    const QVariantList with = call.arguments();
    const QString name = with[1].toString();
    for (const Setting& setting : settings()) {
        if (with[0].toString() != setting.interface || name != QLatin1String(setting.name))
            continue;
        if (!setting.set(*_player, with[2].value<QDBusVariant>().variant()))
            return call.createErrorReply(QDBusError::InvalidArgs,
                                         QStringLiteral("\"%1\" cannot be set to that").arg(name));
        return call.createReply();
    }
    const bool isThere = propertiesOf(with[0].toString()).contains(name);
    return call.createErrorReply(isThere ? QDBusError::PropertyReadOnly : QDBusError::UnknownProperty,
                                 QStringLiteral("\"%1\" cannot be set").arg(name));
}

void MprisService::signal(const QString& interface, const char* name, const QVariantList& arguments) {
    QDBusMessage message = QDBusMessage::createSignal(objectPath, interface, QString::fromLatin1(name));
    message.setArguments(arguments);
    _connection.send(message);
}

void MprisService::propertiesChanged(const QString& interface, const QVariantMap& changed,
                                     const QStringList& invalidated) {
    signal(propertiesInterface, "PropertiesChanged", {interface, changed, invalidated});
}

void MprisService::stateChanged() {
    if (!_stands)
        return;
    const MediaState before = std::exchange(_toldState, _player->state());
    if (_toldState == before)
        return;
    const QVariantMap properties = playerProperties(_toldState);
    QVariantMap changed;
    for (auto property = properties.begin(); property != properties.end(); ++property) {
        // A map of variants with types of D-Bus's does not compare: its parts do.
        const bool isOther = property.key() == QStringLiteral("Metadata")
                                 ? _toldState.track != before.track
                                 : property.value() != _toldProperties.value(property.key());
        if (isOther)
            changed[property.key()] = property.value();
    }
    _toldProperties = properties;
    if (!changed.isEmpty())
        propertiesChanged(playerInterface, changed);
    const MediaTrack& track = _toldState.track;
    if (track.number != 0 && track.number == before.track.number && track != before.track)
        signal(trackListInterface, "TrackMetadataChanged",
               {QVariant::fromValue(pathOf(track.number)), mpris::metadataOf(track)});
}

void MprisService::tracksChanged() {
    if (!_stands)
        return;
    const std::vector<std::uint64_t> before = std::exchange(_toldTracks, _player->tracks());
    if (_toldTracks == before)
        return;
    const ListChange change = changeOf(before, _toldTracks);
    if (change.isReplaced)
        signal(trackListInterface, "TrackListReplaced",
               {QVariant::fromValue(pathsOf(_toldTracks)), QVariant::fromValue(pathOf(_player->state().track.number))});
    for (const std::uint64_t number : change.removed)
        signal(trackListInterface, "TrackRemoved", {QVariant::fromValue(pathOf(number))});
    for (const ListChange::Added& added : change.added)
        signal(trackListInterface, "TrackAdded",
               {mpris::metadataOf(_player->track(added.number)), QVariant::fromValue(pathOf(added.after))});
    propertiesChanged(trackListInterface, {}, {QStringLiteral("Tracks")});
}

void MprisService::positionJumped() {
    if (_stands)
        signal(playerInterface, "Seeked", {static_cast<qlonglong>(_player->position())});
}

} // namespace platform
