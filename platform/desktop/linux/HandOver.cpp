// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/linux/HandOver.h"

#include <QByteArrayView>
#include <QtEndian>

namespace platform::handOverMessage {

namespace {

constexpr qsizetype sizeOfSize = 4;

QByteArray begun(bool append) {
    return QByteArray(sizeOfSize, '\0') + (append ? "append" : "replace");
}

} // namespace

std::vector<QByteArray> encoded(const HandOver& handOver) {
    std::vector<QByteArray> messages{begun(handOver.append)};
    qsizetype files = 0;
    for (const QString& file : handOver.files) {
        const QByteArray name = '\0' + file.toUtf8();
        if (files == maximumFiles || messages.back().size() + name.size() > qsizetype(maximumSize)) {
            messages.push_back(begun(true));
            files = 0;
        }
        messages.back() += name;
        ++files;
    }
    for (QByteArray& message : messages)
        qToBigEndian(static_cast<quint32>(message.size() - sizeOfSize), message.data());
    return messages;
}

std::optional<qsizetype> wholeSize(const QByteArray& beginning) {
    if (beginning.size() < sizeOfSize)
        return std::nullopt;
    return sizeOfSize + static_cast<qsizetype>(qFromBigEndian<quint32>(beginning.constData()));
}

std::optional<HandOver> decoded(const QByteArray& message) {
    // Without copies: whatever comes must not take more memory than it is large.
    QByteArrayView rest(message);
    rest = rest.sliced(std::min(sizeOfSize, rest.size()));
    const auto nextWord = [&rest] {
        const qsizetype length = rest.indexOf('\0');
        const QByteArrayView word = length < 0 ? rest : rest.first(length);
        rest = length < 0 ? QByteArrayView() : rest.sliced(length + 1);
        return word;
    };
    HandOver handOver;
    handOver.append = nextWord() == "append";
    while (!rest.isEmpty()) {
        if (handOver.files.size() == maximumFiles)
            return std::nullopt;
        handOver.files.append(QString::fromUtf8(nextWord()));
    }
    return handOver;
}

} // namespace platform::handOverMessage
