// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QVariant>

namespace platform {

/// The application's bundle: its resource folder and its information dictionary (resources/Info.plist).
/// Main thread.
class Bundle {
public:
    static Bundle& main();

    /// The folder of the resources: `$LUMARO_RESOURCES` when set, else "resources" beside the program's build, else
    /// "share/lumaro" of the prefix the program is installed under.
    QString resourcePath() const;
    void setResourcePath(const QString& path);

    /// The full path of "name.type" in the resources, or an empty string when there is no such file.
    QString pathForResource(const QString& name, const QString& type) const;

    /// The full path of a program of ours that the application runs: in the resources, else where it is installed; an
    /// empty string when there is none.
    QString pathForTool(const QString& name) const;

    /// The information dictionary, read once; empty when it is missing or damaged.
    const QVariantMap& infoDictionary() const;
    /// Replaces the information dictionary (tests).
    void setInfoDictionary(const QVariantMap& dictionary);
    QVariant objectForInfoDictionaryKey(const QString& key) const;

private:
    mutable QString _resourcePath;
    mutable QVariantMap _info;
    mutable bool _infoRead = false;
};

} // namespace platform
