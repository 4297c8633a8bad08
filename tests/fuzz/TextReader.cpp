// SPDX-License-Identifier: GPL-3.0-or-later
// One of the readers of texts, which the build names, fed with bytes.
#include "platform/base/UserDefaults.h"
#include "settings/SettingsKeys.h"
#include "subtitles/input/SubtitleText.h"
#include "subtitles/text/QVMicroDVDSubtitles.h"
#include "subtitles/text/QVSubRipSubtitles.h"
#include "subtitles/text/QVTMPlayerSubtitles.h"

#include <QByteArray>

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

/// What a reader needs around it while it is fed with bytes.
class FuzzedMovie final : public SubtitleOwner {
public:
    platform::UserDefaults& settings() { return _defaults; }
    std::int32_t timeScale() const override { return 90000; }
    float frameRate() override { return 23.976F; }
    std::int32_t time() const override { return 0; }

private:
    class Nowhere final : public platform::SettingsStorage {
        QVariantMap load() override { return {}; }
        bool store(const QVariantMap&) override { return true; }
    };
    platform::UserDefaults _defaults{std::make_unique<Nowhere>()};
};

/// A reader without a file: it takes its cues from the bytes.
template <class Reader>
class FuzzedTrack final : public Reader {
public:
    FuzzedTrack(platform::UserDefaults& settings, SubtitleOwner& owner)
        : Reader(settings, QString(), owner)
        , _settings(settings) {}

    /// The first byte chooses the encoding, the rest is the file, which is read in both modes.
    void feed(QByteArray bytes) {
        constexpr std::uint32_t encodings[] = {0, 4, 12, 8, 10, 0x80000632, 21, 99};
        const auto choice = static_cast<unsigned char>(bytes.isEmpty() ? '\0' : bytes.front());
        bytes.remove(0, 1);
        _bytes = std::move(bytes);
        _encoding = encodings[choice % std::size(encodings)];
        for (const bool isRepairing : {false, true}) {
            _settings.setOverride(kQVSubtitlesRepair, isRepairing); // nothing is to be stored
            this->unload();
            this->preload();
            check(isRepairing);
            for (std::int32_t time : {0, 90000, -1, 2147483647, 450000, -2147483647 - 1})
                this->subtitleForTime(time);
            this->setFrameRate(4);
            this->readAgain(_bytes);
            this->subtitleForTime(0);
        }
    }

protected:
    void _preload() override { this->readAll(_bytes, _encoding); }

private:
    /// Repairing, no cue ends before it starts.
    void check(bool isRepairing) const {
        for (const auto& cue : this->cues()) {
            if (isRepairing && cue->end() < cue->start())
                std::abort();
        }
    }

    platform::UserDefaults& _settings;
    QByteArray _bytes;
    std::uint32_t _encoding = 0;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static FuzzedMovie movie;
    static const auto track = std::make_shared<FuzzedTrack<LUMARO_FUZZED_READER>>(movie.settings(), movie);
    track->feed(QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)));
    return 0;
}
