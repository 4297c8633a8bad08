// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/Bundle.h"

#include "platform/base/PropertyList.h"

#include <QDir>
#include <QFileInfo>

namespace platform {

namespace {

QString findResources() {
    const QString given = qEnvironmentVariable("LUMARO_RESOURCES");
    if (!given.isEmpty())
        return given;
    // Not QCoreApplication's answer: the resources are asked for before there is an application.
    const QDir folder(QFileInfo(QStringLiteral("/proc/self/exe")).canonicalPath());
    const QStringList places = {QStringLiteral("resources"), QStringLiteral("../resources"),
                                QStringLiteral("../share/lumaro")};
    for (const QString& place : places) {
        const QString path = QDir::cleanPath(folder.filePath(place));
        if (QFileInfo::exists(path + QStringLiteral("/Info.plist")))
            return path;
    }
    return QDir::cleanPath(folder.filePath(places.constLast()));
}

} // namespace

Bundle& Bundle::main() {
    static Bundle bundle;
    return bundle;
}

QString Bundle::resourcePath() const {
    if (_resourcePath.isEmpty())
        _resourcePath = findResources();
    return _resourcePath;
}

void Bundle::setResourcePath(const QString& path) {
    _resourcePath = path;
    _info.clear();
    _infoRead = false;
}

QString Bundle::pathForResource(const QString& name, const QString& type) const {
    const QString path = resourcePath() + u'/' + name + u'.' + type;
    return QFileInfo(path).isFile() ? path : QString();
}

QString Bundle::pathForTool(const QString& name) const {
    for (const char* place : {"/", "/" LUMARO_TOOLS_FROM_RESOURCES "/"}) {
        const QString path = QDir::cleanPath(resourcePath() + QString::fromUtf8(place) + name);
        const QFileInfo file(path);
        if (file.isFile() && file.isExecutable())
            return path;
    }
    return {};
}

const QVariantMap& Bundle::infoDictionary() const {
    if (!_infoRead) {
        _infoRead = true;
        _info = propertyList::readDictionary(resourcePath() + QStringLiteral("/Info.plist")).value_or(QVariantMap());
    }
    return _info;
}

void Bundle::setInfoDictionary(const QVariantMap& dictionary) {
    _info = dictionary;
    _infoRead = true;
}

QVariant Bundle::objectForInfoDictionaryKey(const QString& key) const {
    return infoDictionary().value(key);
}

} // namespace platform
