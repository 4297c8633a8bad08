// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "subtitles/vobsub/SubFile.h"
#include "subtitles/vobsub/VobSubIndex.h"

#include <QString>

#include <memory>
#include <vector>

/// The parsed index of a VobSub pair, shared by the tracks of its streams, together with the data file that it belongs
/// to, which a track asks for when it is loaded.
/// Made on the main thread; afterwards it does not change and is read by any thread.
class QVVobSubInfo {
public:
    /// None when the index cannot be read, or a line of it is not understood, which is logged. A missing data file is
    /// no error here.
    static std::shared_ptr<const QVVobSubInfo> infoWithFile(const QString& path);

    QVVobSubInfo(const QVVobSubInfo&) = delete;
    QVVobSubInfo& operator=(const QVVobSubInfo&) = delete;
    ~QVVobSubInfo() = default;

    const VobSubIndex& index() const { return _index; }
    const std::vector<QVVobSubStreamInfo>& streams() const { return _index._streams; }
    const SubFile& subFile() const { return _subFile; }

private:
    explicit QVVobSubInfo(const QString& path);

    bool _parseIDXFile(const QString& path);

    VobSubIndex _index;
    bool _isParsed;
    SubFile _subFile;
};
