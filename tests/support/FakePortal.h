// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusError>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QList>
#include <QStringList>
#include <QVariantMap>

#include <functional>

/// A choice that was made, as a portal tells it.
struct FakePortalChoice {
    QString name;
    QString value;
};
inline QDBusArgument& operator<<(QDBusArgument& argument, const FakePortalChoice& choice) {
    argument.beginStructure();
    argument << choice.name << choice.value;
    argument.endStructure();
    return argument;
}
inline const QDBusArgument& operator>>(const QDBusArgument& argument, FakePortalChoice& choice) {
    argument.beginStructure();
    argument >> choice.name >> choice.value;
    argument.endStructure();
    return argument;
}

/// Plays the desktop's portal for files and for settings on a bus, and writes down what it is asked.
class FakePortal final : public QDBusVirtualObject {
public:
    enum class Manner { answers, cancels, fails, refuses, waits };

    explicit FakePortal(const QDBusConnection& bus)
        : _bus(bus) {
        qDBusRegisterMetaType<FakePortalChoice>();
        qDBusRegisterMetaType<QList<FakePortalChoice>>();
    }
    bool offer() {
        return _bus.registerVirtualObject("/", this, QDBusConnection::SubPath) &&
               _bus.registerService("org.freedesktop.portal.Desktop");
    }
    void withdraw() {
        _bus.unregisterService("org.freedesktop.portal.Desktop");
        _bus.unregisterObject("/", QDBusConnection::UnregisterTree);
    }

    Manner manner = Manner::answers;
    QStringList addresses;
    QString option = "false";
    /// What it says of the desktop's appearance; nothing while invalid.
    QVariant colorScheme;
    void changeSetting(const QString& space, const QString& key, const QVariant& value) {
        QDBusMessage changed = QDBusMessage::createSignal("/org/freedesktop/portal/desktop",
                                                          "org.freedesktop.portal.Settings", "SettingChanged");
        changed << space << key << QVariant::fromValue(QDBusVariant(value));
        _bus.send(changed);
    }
    /// The members that were called, with their arguments.
    QStringList calls;
    std::function<void(const QString&)> onCall = [](const QString&) {};

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& call, const QDBusConnection& bus) override {
        QStringList arguments;
        for (const QVariant& argument : call.arguments())
            arguments.append(described(argument));
        calls.append(call.member() + '(' + arguments.join("|") + ')');
        onCall(calls.last());
        if (call.member() == "Read" && colorScheme.isValid()) {
            const auto wrapped = [](const QVariant& value) { return QVariant::fromValue(QDBusVariant(value)); };
            bus.send(call.createReply(wrapped(wrapped(colorScheme))));
        } else if (call.member() == "Read") {
            bus.send(call.createErrorReply("org.freedesktop.portal.Error.NotFound", "no such setting"));
        } else if (call.member() != "OpenFile" && call.member() != "SaveFile") {
            bus.send(call.createReply());
        } else if (manner == Manner::refuses) {
            bus.send(call.createErrorReply(QDBusError::UnknownMethod, "no"));
        } else {
            const auto options = qdbus_cast<QVariantMap>(call.arguments()[2].value<QDBusArgument>());
            const QString request = "/org/freedesktop/portal/desktop/request/" +
                                    call.service().mid(1).replace('.', '_') + '/' +
                                    options.value("handle_token").toString();
            bus.send(call.createReply(QVariant::fromValue(QDBusObjectPath(request))));
            if (manner != Manner::waits)
                respond(request, bus);
        }
        return true;
    }

private:
    void respond(const QString& request, const QDBusConnection& bus) const {
        QVariantMap results;
        if (manner == Manner::answers)
            results = {{"uris", addresses},
                       {"choices", QVariant::fromValue(QList<FakePortalChoice>{{"option", option}})}};
        QDBusMessage response = QDBusMessage::createSignal(request, "org.freedesktop.portal.Request", "Response");
        response << (manner == Manner::answers ? 0U : manner == Manner::cancels ? 1U : 2U) << results;
        bus.send(response);
    }
    static QString described(const QVariant& value) {
        if (value.metaType() == QMetaType::fromType<QDBusArgument>())
            return described(value.value<QDBusArgument>());
        return value.metaType() == QMetaType::fromType<QByteArray>() ? value.toByteArray().replace('\0', "\\0")
                                                                     : value.toString();
    }
    static QString described(const QDBusArgument& argument) {
        QStringList parts;
        const auto takeAll = [&] {
            while (!argument.atEnd())
                parts.append(described(argument));
        };
        switch (argument.currentType()) {
        case QDBusArgument::ArrayType:
            argument.beginArray();
            takeAll();
            argument.endArray();
            return '[' + parts.join(",") + ']';
        case QDBusArgument::StructureType:
            argument.beginStructure();
            takeAll();
            argument.endStructure();
            return '(' + parts.join(",") + ')';
        case QDBusArgument::MapType: {
            const auto map = qdbus_cast<QVariantMap>(argument);
            for (auto entry = map.begin(); entry != map.end(); ++entry)
                parts.append(entry.key() + '=' + described(entry.value()));
        }
            return '{' + parts.join(",") + '}';
        default:
            return described(argument.asVariant());
        }
    }

    QDBusConnection _bus;
};
