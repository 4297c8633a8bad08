// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/linux/MprisService.h"
#include "tests/support/FakeServices.h"

#include <QDBusArgument>
#include <QDBusMetaType>
#include <QDBusPendingCall>
#include <QDBusVariant>

#include <algorithm>
#include <functional>
#include <limits>
#include <map>
#include <memory>
#include <set>
#include <utility>
#include <vector>

using platform::MediaState;
using platform::MediaTrack;
using platform::MprisService;
namespace mpris = platform::mpris;

namespace {

constexpr std::int64_t second = 1'000'000;

/// A player with a list of movies of a minute each, numbered; notes what is asked of it.
class FakePlayer final : public platform::MediaControlled {
public:
    MediaState now;
    std::int64_t place = 0;
    std::vector<std::uint64_t> list;
    QStringList asked;
    bool stands = false;

    static MediaTrack movie(std::uint64_t number) {
        const QString name = QString::number(number);
        return {number, "Film " + name, "Artist", "file:///" + name, 60 * second, QUrl("file:///" + name + ".png")};
    }
    void mediaControlsStand() override { stands = true; }
    MediaState state() const override { return now; }
    std::vector<std::uint64_t> tracks() const override { return list; }
    MediaTrack track(std::uint64_t number) const override {
        return std::ranges::find(list, number) == list.end() ? MediaTrack() : movie(number);
    }
    std::int64_t position() const override { return place; }
    void raise() override { asked << "raise"; }
    void quit() override { asked << "quit"; }
    void play() override { asked << "play"; }
    void pause() override { asked << "pause"; }
    void stop() override { asked << "stop"; }
    void next() override { asked << "next"; }
    void previous() override { asked << "previous"; }
    void setPosition(std::int64_t position) override { asked << QString("position %1").arg(position); }
    void setRate(double rate) override { asked << QString("rate %1").arg(rate); }
    void setVolume(double volume) override { asked << QString("volume %1").arg(volume); }
    void setLooping(MediaState::Looping looping) override { asked << "loop " + mpris::textOf(looping); }
    void setShuffled(bool shuffled) override { asked << (shuffled ? "shuffle" : "in order"); }
    void open(const QString& address) override { asked << "open " + address; }
    void addTrack(const QString& address, std::uint64_t after, bool current) override {
        asked << QString("add %1 %2 %3").arg(address).arg(after).arg(current);
    }
    void removeTrack(std::uint64_t number) override { asked << QString("remove %1").arg(number); }
    void goTo(std::uint64_t number) override { asked << QString("go to %1").arg(number); }
};

/// Keeps what is said on the bus.
class SignalListener : public QObject {
    Q_OBJECT
public:
    QList<QDBusMessage> messages;
public slots:
    void hear(const QDBusMessage& message) { messages << message; }
};

class Mpris : public PrivateBusTest {
protected:
    Mpris() {
        player.list = {1, 2, 3};
        player.now.track = FakePlayer::movie(2);
        player.now.playback = MediaState::Playback::playing;
        player.now.canSeek = player.now.canPlay = true;
    }
    ~Mpris() override { service.reset(); }
    void SetUp() override {
        for (const QString& interface :
             {mpris::playerInterface, mpris::trackListInterface, QString("org.freedesktop.DBus.Properties")})
            ASSERT_TRUE(servicesBus.connect("", mpris::objectPath, interface, "", &listener, SLOT(hear(QDBusMessage))));
        service->start(player);
        ASSERT_TRUE(waitFor([this] { return player.stands; }));
    }
    QDBusMessage call(const QString& interface, const char* method, const QVariantList& arguments,
                      const QString& name = "org.mpris.MediaPlayer2.lumaro") {
        QDBusMessage message = QDBusMessage::createMethodCall(name, "/org/mpris/MediaPlayer2", interface, method);
        message.setArguments(arguments);
        const QDBusPendingCall pending = servicesBus.asyncCall(message);
        EXPECT_TRUE(waitFor([&] { return pending.isFinished(); })) << method;
        return pending.reply();
    }
    QDBusMessage set(const QString& interface, const char* name, const QVariant& value) {
        return call("org.freedesktop.DBus.Properties", "Set",
                    {interface, name, QVariant::fromValue(QDBusVariant(value))});
    }
    /// What the player is asked when a method of an interface is called.
    QString asked(const QString& interface, const char* method, const QVariantList& arguments = {}) {
        player.asked.clear();
        const QDBusMessage reply = call(interface, method, arguments);
        return reply.type() == QDBusMessage::ErrorMessage ? reply.errorName() : player.asked.join(", ");
    }
    QString assigned(const char* name, const QVariant& value) {
        player.asked.clear();
        const QDBusMessage reply = set(mpris::playerInterface, name, value);
        return reply.type() == QDBusMessage::ErrorMessage ? reply.errorName() : player.asked.join(", ");
    }
    /// The signals that come after this, as texts: that of the property changes with the names of what changed.
    QStringList heard() {
        // Signals of one sender stay in order: one more, of a place that no other has, ends them.
        const std::int64_t place = std::exchange(player.place, --_fence);
        service->positionJumped();
        player.place = place;
        EXPECT_TRUE(waitFor([this] {
            return !listener.messages.isEmpty() && listener.messages.last().arguments().value(0) == qlonglong{_fence};
        }));
        listener.messages.removeLast();
        QStringList texts;
        for (const QDBusMessage& message : std::exchange(listener.messages, {}))
            texts << textOf(message);
        return texts;
    }
    static QString textOf(const QDBusMessage& message) {
        QStringList parts{message.member()};
        for (const QVariant& argument : message.arguments()) {
            if (argument.canConvert<QDBusObjectPath>())
                parts << argument.value<QDBusObjectPath>().path().section('/', -1);
            else if (!argument.canConvert<QDBusArgument>())
                parts << (argument.typeId() == QMetaType::QStringList ? argument.toStringList().join(',')
                                                                      : argument.toString().section('.', -1));
            else if (argument.value<QDBusArgument>().currentSignature() == "ao")
                for (const QDBusObjectPath& path : qdbus_cast<QList<QDBusObjectPath>>(argument))
                    parts << path.path().section('/', -1);
            else
                parts << qdbus_cast<QVariantMap>(argument).keys().join(',');
        }
        return parts.join(' ').trimmed();
    }

    SignalListener listener;
    std::int64_t _fence = 0;
    FakePlayer player;
    std::unique_ptr<MprisService> service = std::make_unique<MprisService>(
        mpris::Identity{"Lumaro", "org.lumaro.Lumaro", {"file", "https"}, {"video/mp4"}});
};

QVariant path(const QString& text) {
    return QVariant::fromValue(QDBusObjectPath(text));
}

const QString invalid = "org.freedesktop.DBus.Error.InvalidArgs";

} // namespace

// The interface's text, https://specifications.freedesktop.org/mpris-spec/2.2/: every property's type, whether it can
// be set, and how a change is told.
TEST_F(Mpris, has_every_property_with_the_type_and_the_signal_of_the_interfaces_text) {
    player.now.track.art = QUrl("file:///cover.png");
    struct Property {
        QString interface;
        const char* name;
        const char* type;
        bool isSettable = false;
    };
    const QString root = mpris::rootInterface, playing = mpris::playerInterface, list = mpris::trackListInterface;
    const std::vector<Property> properties = {
        {root, "CanQuit", "b"},           {root, "Fullscreen", "b", true},     {root, "CanSetFullscreen", "b"},
        {root, "CanRaise", "b"},          {root, "HasTrackList", "b"},         {root, "Identity", "s"},
        {root, "DesktopEntry", "s"},      {root, "SupportedUriSchemes", "as"}, {root, "SupportedMimeTypes", "as"},
        {playing, "PlaybackStatus", "s"}, {playing, "LoopStatus", "s", true},  {playing, "Rate", "d", true},
        {playing, "Shuffle", "b", true},  {playing, "Metadata", "a{sv}"},      {playing, "Volume", "d", true},
        {playing, "Position", "x"},       {playing, "MinimumRate", "d"},       {playing, "MaximumRate", "d"},
        {playing, "CanGoNext", "b"},      {playing, "CanGoPrevious", "b"},     {playing, "CanPlay", "b"},
        {playing, "CanPause", "b"},       {playing, "CanSeek", "b"},           {playing, "CanControl", "b"},
        {list, "Tracks", "ao"},           {list, "CanEditTracks", "b"}};
    const QString described =
        call("org.freedesktop.DBus.Introspectable", "Introspect", {}).arguments().value(0).toString();
    std::map<QString, std::set<QString>> named;
    for (const Property& property : properties) {
        SCOPED_TRACE(property.name);
        named[property.interface].insert(property.name);
        const QDBusMessage reply = call("org.freedesktop.DBus.Properties", "Get", {property.interface, property.name});
        ASSERT_EQ(reply.signature(), "v");
        const QVariant value = reply.arguments()[0].value<QDBusVariant>().variant();
        const QString type = value.canConvert<QDBusArgument>() ? value.value<QDBusArgument>().currentSignature()
                                                               : QDBusMetaType::typeToSignature(value.metaType());
        EXPECT_EQ(type, property.type);
        EXPECT_TRUE(
            described.contains(QString("<property name=\"%1\" type=\"%2\" access=\"%3\">")
                                   .arg(property.name, property.type, property.isSettable ? "readwrite" : "read")));
        const QString refused = set(property.interface, property.name, value).errorName();
        EXPECT_EQ(refused, property.isSettable ? "" : "org.freedesktop.DBus.Error.PropertyReadOnly");
        EXPECT_EQ(set(property.interface, property.name, QStringList{"no"}).errorName(),
                  property.isSettable ? invalid : "org.freedesktop.DBus.Error.PropertyReadOnly");
    }
    for (const auto& [interface, names] : named) {
        const QVariantMap all =
            qdbus_cast<QVariantMap>(call("org.freedesktop.DBus.Properties", "GetAll", {interface}).arguments()[0]);
        EXPECT_EQ(std::set<QString>(all.keyBegin(), all.keyEnd()), names);
    }
    EXPECT_EQ(call("org.freedesktop.DBus.Properties", "Get", {playing, "Colour"}).errorName(),
              "org.freedesktop.DBus.Error.UnknownProperty");

    const QVariantMap metadata = mpris::metadataOf(player.now.track);
    const std::map<QString, const char*> types = {{"mpris:trackid", "o"}, {"mpris:length", "x"},  {"mpris:artUrl", "s"},
                                                  {"xesam:title", "s"},   {"xesam:artist", "as"}, {"xesam:url", "s"}};
    EXPECT_EQ(static_cast<std::size_t>(metadata.size()), types.size());
    for (const auto& [name, type] : types)
        EXPECT_STREQ(QDBusMetaType::typeToSignature(metadata[name].metaType()), type) << name.toStdString();
    EXPECT_TRUE(mpris::metadataOf({}).isEmpty()) << "no movie";
}

TEST_F(Mpris, tells_what_changed_and_that_alone_and_never_the_position) {
    heard();
    const std::vector<std::pair<std::function<void(MediaState&)>, QString>> changes = {
        {[](auto& now) { now.playback = MediaState::Playback::paused; }, "PlaybackStatus"},
        {[](auto& now) { now.looping = MediaState::Looping::all; }, "LoopStatus"},
        {[](auto& now) { now.rate = 2; }, "Rate"},
        {[](auto& now) { now.isShuffled = true; }, "Shuffle"},
        {[](auto& now) { now.volume = 0.25; }, "Volume"},
        {[](auto& now) { now.canGoNext = true; }, "CanGoNext"},
        {[](auto& now) { now.canGoPrevious = true; }, "CanGoPrevious"},
        {[](auto& now) { now.canPlay = false; }, "CanPause,CanPlay"},
        {[](auto& now) { now.canSeek = false; }, "CanSeek"},
        {[](auto& now) { now.track = FakePlayer::movie(3); }, "Metadata"}};
    for (const auto& [change, names] : changes) {
        change(player.now);
        player.place += second;
        service->stateChanged();
        service->stateChanged(); // says nothing again
        EXPECT_EQ(heard(), QStringList{"PropertiesChanged Player " + names});
    }
    player.now.track.art = QUrl("file:///later.png");
    service->stateChanged();
    EXPECT_EQ(heard(), (QStringList{"PropertiesChanged Player Metadata",
                                    "TrackMetadataChanged 3 mpris:artUrl,mpris:length,mpris:trackid,xesam:artist,"
                                    "xesam:title,xesam:url"}));
    service->positionJumped();
    EXPECT_EQ(heard(), QStringList{QString("Seeked %1").arg(10 * second)});
}

TEST_F(Mpris, tells_of_the_list_in_steps_or_altogether) {
    heard();
    const QString data = "mpris:artUrl,mpris:length,mpris:trackid,xesam:artist,xesam:title,xesam:url";
    const QString invalidated = "PropertiesChanged TrackList  Tracks";
    const auto becomes = [&](std::vector<std::uint64_t> list) {
        player.list = std::move(list);
        service->tracksChanged();
        return heard();
    };
    EXPECT_EQ(becomes({1, 2, 3}), QStringList());
    EXPECT_EQ(becomes({4, 1, 2, 5, 3}),
              (QStringList{"TrackAdded " + data + " NoTrack", "TrackAdded " + data + " 2", invalidated}));
    EXPECT_EQ(becomes({4, 2, 3}), (QStringList{"TrackRemoved 1", "TrackRemoved 5", invalidated}));
    EXPECT_EQ(becomes({2, 4, 3}), (QStringList{"TrackListReplaced 2 4 3 2", invalidated})) << "moved";
    std::vector<std::uint64_t> many{2, 4, 3};
    for (std::uint64_t number = 10; number < 30; ++number)
        many.push_back(number);
    EXPECT_TRUE(becomes(many).value(0).startsWith("TrackListReplaced ")) << "many at once";
    EXPECT_TRUE(becomes({90}).value(0).startsWith("TrackListReplaced 90")) << "others";
}

TEST_F(Mpris, has_the_player_do_what_is_called_as_the_text_has_it) {
    const QString playing = mpris::playerInterface, list = mpris::trackListInterface;
    EXPECT_EQ(asked(mpris::rootInterface, "Raise"), "raise");
    EXPECT_EQ(asked(mpris::rootInterface, "Quit"), "quit");
    for (const char* method : {"Next", "Previous", "Pause", "Stop", "Play"})
        EXPECT_EQ(asked(playing, method), QString(method).toLower());
    EXPECT_EQ(asked(playing, "PlayPause"), "pause");
    player.now.playback = MediaState::Playback::paused;
    EXPECT_EQ(asked(playing, "PlayPause"), "play");
    EXPECT_EQ(asked("", "PlayPause"), "play") << "no interface is named";

    player.place = 10 * second;
    const auto seek = [&](std::int64_t offset) {
        return asked(playing, "Seek", {QVariant::fromValue<qlonglong>(offset)});
    };
    EXPECT_EQ(seek(5 * second), "position 15000000");
    EXPECT_EQ(seek(-5 * second), "position 5000000");
    EXPECT_EQ(seek(-11 * second), "position 0");
    EXPECT_EQ(seek(50 * second), "position 60000000");
    EXPECT_EQ(seek(50 * second + 1), "next");
    EXPECT_EQ(seek(std::numeric_limits<std::int64_t>::max()), "next");
    EXPECT_EQ(seek(std::numeric_limits<std::int64_t>::min()), "position 0");
    const auto go = [&](const char* track, std::int64_t position) {
        return asked(playing, "SetPosition", {path(track), QVariant::fromValue<qlonglong>(position)});
    };
    EXPECT_EQ(go("/org/lumaro/track/2", 0), "position 0");
    EXPECT_EQ(go("/org/lumaro/track/2", 60 * second), "position 60000000");
    EXPECT_EQ(go("/org/lumaro/track/2", 60 * second + 1), "") << "beyond the end";
    EXPECT_EQ(go("/org/lumaro/track/2", -1), "");
    EXPECT_EQ(go("/org/lumaro/track/1", second), "") << "another one";
    EXPECT_EQ(go("/elsewhere/2", second), "");
    player.now.canSeek = false;
    EXPECT_EQ(seek(second) + go("/org/lumaro/track/2", 0), "");

    EXPECT_EQ(assigned("Rate", 2.0), "rate 2");
    EXPECT_EQ(assigned("Rate", 0.0), "pause");
    EXPECT_EQ(assigned("Rate", -1.0), "");
    EXPECT_EQ(assigned("Rate", std::numeric_limits<double>::quiet_NaN()), invalid);
    EXPECT_EQ(assigned("Volume", 0.5), "volume 0.5");
    EXPECT_EQ(assigned("Volume", -1.0), "volume 0");
    EXPECT_EQ(assigned("LoopStatus", "Track"), "loop Track");
    EXPECT_EQ(assigned("LoopStatus", "Sometimes"), invalid);
    EXPECT_EQ(assigned("Shuffle", true), "shuffle");

    EXPECT_EQ(asked(playing, "OpenUri", {"https://host/film"}), "open https://host/film");
    EXPECT_EQ(asked(playing, "OpenUri", {"gopher://host/film"}), invalid);
    EXPECT_EQ(asked(playing, "OpenUri", {"/film"}), invalid) << "no address";
    EXPECT_EQ(asked(list, "AddTrack", {"file:///a", path("/org/lumaro/track/3"), true}), "add file:///a 3 1");
    EXPECT_EQ(asked(list, "AddTrack", {"file:///a", path(mpris::noTrack), false}), "add file:///a 0 0");
    EXPECT_EQ(asked(list, "RemoveTrack", {path("/org/lumaro/track/3")}), "remove 3");
    EXPECT_EQ(asked(list, "GoTo", {path("/org/lumaro/track/3")}), "go to 3");
    const QVariant wanted = QVariant::fromValue(QList<QDBusObjectPath>{QDBusObjectPath("/org/lumaro/track/3"),
                                                                       QDBusObjectPath("/org/lumaro/track/9"),
                                                                       QDBusObjectPath("/org/lumaro/track/1")});
    const QDBusMessage told = call(list, "GetTracksMetadata", {wanted});
    ASSERT_EQ(told.signature(), "aa{sv}");
    const auto metadata = qdbus_cast<QList<QVariantMap>>(told.arguments()[0]);
    ASSERT_EQ(metadata.size(), 2);
    EXPECT_EQ(metadata[0]["xesam:title"], "Film 3");
    EXPECT_EQ(metadata[1]["xesam:title"], "Film 1");
    EXPECT_EQ(asked(playing, "Seek", {"far"}), invalid);
    EXPECT_EQ(asked(playing, "Dance"), "org.freedesktop.DBus.Error.UnknownMethod");
}

TEST_F(Mpris, a_second_player_has_a_name_of_its_own) {
    FakePlayer second;
    MprisService another({"Lumaro", "org.lumaro.Lumaro", {}, {}});
    another.start(second);
    ASSERT_TRUE(waitFor([&] { return second.stands; }));
    const QString name = QString("org.mpris.MediaPlayer2.lumaro.instance%1").arg(QCoreApplication::applicationPid());
    call(mpris::playerInterface, "Play", {}, name);
    EXPECT_EQ(second.asked, QStringList{"play"});
    EXPECT_TRUE(player.asked.isEmpty());
}

#include "MprisServiceTest.moc"
