// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <memory>

namespace platform {

/// A temporary folder that only this user can enter, removed with everything in it when the object goes. It is locked
/// meanwhile, so that one left behind by a process that was killed is told from one in use. Any thread.
class PrivateFolder {
public:
    /// A new, empty folder within another one (the system's folder for temporary files when not given); none when it
    /// cannot be made.
    static std::unique_ptr<PrivateFolder> make(const QString& parent = {});
    /// Removes the folders that processes of this user left behind.
    static void sweep(const QString& parent = {});

    PrivateFolder(const PrivateFolder&) = delete;
    PrivateFolder& operator=(const PrivateFolder&) = delete;
    ~PrivateFolder();

    /// Absolute, without a slash at its end.
    const QString& path() const { return _path; }

private:
    PrivateFolder(QString path, int lock);

    QString _path;
    int _lock;
};

/// An empty folder within a private one that all of a process share, so that many take one file descriptor. Removed
/// with everything in it when the object goes; the shared one goes with the last. Any thread.
class PrivateSubfolder {
public:
    /// None when it cannot be made.
    static std::unique_ptr<PrivateSubfolder> make();
    /// Waits until none is left, at most that many seconds; false when some are. For the end of the process, where
    /// threads may still be removing some.
    static bool waitUntilGone(double seconds = 2);

    PrivateSubfolder(const PrivateSubfolder&) = delete;
    PrivateSubfolder& operator=(const PrivateSubfolder&) = delete;
    ~PrivateSubfolder();

    /// Absolute, without a slash at its end.
    const QString& path() const { return _path; }

private:
    explicit PrivateSubfolder(QString path);

    QString _path;
};

/// Removes a file, or a folder with everything in it, also where a folder within forbids it. Links are not followed.
void removeTree(const QString& path);

} // namespace platform
