// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/FileChoice.h"

#include <QObject>
#include <QString>
#include <QVariantMap>

#include <functional>
#include <memory>
#include <optional>

namespace platform {

/// A panel of the desktop's own to choose files and folders by (the interface org.freedesktop.portal.FileChooser of the
/// session's bus). It stands while the object lives, or until it is answered. Main thread.
class FileChooserPortal final : public QObject {
    Q_OBJECT

public:
    /// Called by the event loop, once; empty when there is no portal, or it failed.
    using Answered = std::function<void(const std::optional<FileChoice>&)>;
    /// `parent` names the window that it stands above, as portals take it.
    FileChooserPortal(const FileQuestion& question, const QString& parent, Answered answered);
    ~FileChooserPortal() override;

private Q_SLOTS:
    void responded(uint response, const QVariantMap& results);

private:
    void ask(const FileQuestion& question, const QString& parent);
    void follow(const QString& request);
    void answer(const std::optional<FileChoice>& choice);

    Answered _answered;
    QString _token;
    QString _request; // its object, while the panel stands
};

} // namespace platform
