// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/base/Downloads.h"
#include "platform/base/RunLoop.h"

#include <QHash>
#include <QStringList>

#include <memory>
#include <utility>

/// Answers from a table, as soon as the run loop goes on; what is not in it fails, unless it hangs.
class FakeDownloads final : public platform::Downloads {
public:
    explicit FakeDownloads(platform::RunLoop& loop)
        : _loop(loop) {}

    QHash<QString, platform::DownloadAnswer> answers;
    bool hangs = false;
    /// What was asked for, and how many redirects were allowed with it.
    QStringList asked;
    QList<int> allowedRedirects;
    int underWay = 0;

    void answer(const QString& url, const QByteArray& data) { answers[url] = {data, {}, 0, QUrl(url)}; }

    std::unique_ptr<platform::Download> fetch(const platform::DownloadRequest& request,
                                              std::function<void(const platform::DownloadAnswer&)> answered) override {
        const QString url = request.url.toString(QUrl::FullyEncoded);
        asked << url;
        allowedRedirects << request.maximumRedirects;
        auto download = std::make_unique<Fetching>(*this);
        const platform::DownloadAnswer answer = answers.value(url, {std::nullopt, "not in the table", 0, {}});
        if (!hangs)
            _loop.perform([alive = std::weak_ptr(download->alive), answer, answered = std::move(answered)] {
                if (!alive.expired())
                    answered(answer);
            });
        return download;
    }

private:
    struct Fetching final : platform::Download {
        explicit Fetching(FakeDownloads& owner)
            : downloads(owner) {
            ++downloads.underWay;
        }
        ~Fetching() override { --downloads.underWay; }
        FakeDownloads& downloads;
        std::shared_ptr<bool> alive = std::make_shared<bool>();
    };
    platform::RunLoop& _loop;
};
