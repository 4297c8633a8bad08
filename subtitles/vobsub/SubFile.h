// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <memory>
#include <stop_token>

/// The data file of an index: the one beside it, else one in an archive beside it. The archive is taken apart when the
/// first track asks for the file, once for all tracks of the index and on a thread of its own; what comes out of it
/// lies in a private folder for as long as this object lives. Any thread.
class SubFile {
    struct Unpacking;

public:
    /// Says that a track wants the file. When nobody does any longer while the archive is being taken apart, that ends.
    class Claim {
    public:
        Claim(QString path, std::shared_ptr<Unpacking> unpacking);
        Claim(const Claim&) = delete;
        Claim& operator=(const Claim&) = delete;
        /// Waits for nothing.
        ~Claim();

        /// The file, waiting for it to come out of the archive; empty when there is none, and when a stop is requested
        /// meanwhile.
        QString path(const std::stop_token& stop) const;

    private:
        QString _path;
        std::shared_ptr<Unpacking> _unpacking;
    };

    /// Of an index's path without its extension. Takes nothing apart.
    explicit SubFile(const QString& base);
    SubFile(const SubFile&) = delete;
    SubFile& operator=(const SubFile&) = delete;
    /// No claim is left by then.
    ~SubFile();

    /// A track that takes over from another one claims the file before that one lets it go.
    std::shared_ptr<const Claim> claim() const;

private:
    QString _path;                         // beside the index, or empty
    std::shared_ptr<Unpacking> _unpacking; // out of an archive, or none
};
