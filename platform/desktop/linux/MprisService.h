// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/MediaControls.h"
#include "platform/desktop/linux/BusConnection.h"
#include "platform/desktop/linux/MprisProperties.h"

#include <QDBusVirtualObject>

#include <vector>

namespace platform {

/// The player on the session's bus, as MPRIS 2.2 has it, under the name org.mpris.MediaPlayer2.lumaro, or where that is
/// taken with ".instance" and the process's number behind it. Without a bus nothing happens. Main thread.
class MprisService final : public QDBusVirtualObject, public MediaControls {
public:
    explicit MprisService(mpris::Identity identity);
    ~MprisService() override;

    void start(MediaControlled& player) override;
    void stateChanged() override;
    void tracksChanged() override;
    void positionJumped() override;

    QString introspect(const QString& path) const override;
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

private:
    void askForName(const QString& name);
    QDBusMessage answer(const QDBusMessage& call);
    QDBusMessage answerProperties(const QDBusMessage& call);
    QVariantMap propertiesOf(const QString& interface) const;
    QDBusMessage setProperty(const QDBusMessage& call);
    QList<QVariantMap> metadataOf(const QVariant& paths) const;
    void signal(const QString& interface, const char* name, const QVariantList& arguments);
    void propertiesChanged(const QString& interface, const QVariantMap& changed, const QStringList& invalidated = {});

    mpris::Identity _identity;
    BusConnection _bus{QDBusConnection::SessionBus};
    QDBusConnection _connection;
    MediaControlled* _player = nullptr;
    /// What those who listen know.
    MediaState _toldState;
    QVariantMap _toldProperties;
    std::vector<std::uint64_t> _toldTracks;
    bool _stands = false;
};

} // namespace platform
