// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "subtitles/vobsub/VobSubIndex.h"

#include <QString>

#include <memory>
#include <vector>

namespace platform {
class PrivateSubfolder;
}

/// The parsed index of a VobSub pair, shared by the tracks of its streams, together with the data file that it belongs
/// to: the one beside it, or the one out of an archive beside it, which stays extracted while this object lives.
/// Made on the main thread; afterwards it does not change and is read by any thread.
class QVVobSubInfo {
public:
    /// None when the index cannot be read, or a line of it is not understood, which is logged. A missing data file is
    /// no error here.
    static std::shared_ptr<const QVVobSubInfo> infoWithFile(const QString& path);

    QVVobSubInfo(const QVVobSubInfo&) = delete;
    QVVobSubInfo& operator=(const QVVobSubInfo&) = delete;
    ~QVVobSubInfo();

    const VobSubIndex& index() const { return _index; }
    const std::vector<QVVobSubStreamInfo>& streams() const { return _index._streams; }
    /// The data file, or empty when there is none.
    const QString& subPath() const { return _subPath; }

private:
    QVVobSubInfo();

    bool _parseIDXFile(const QString& path);
    QString _locateSubFile(const QString& base);
    QString _extractSubFile(const QString& archive, const QString& baseName);

    VobSubIndex _index;
    QString _subPath;
    /// What was taken out of an archive.
    std::unique_ptr<platform::PrivateSubfolder> _tempFolder;
};
