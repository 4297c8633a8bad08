// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/e2e/PlayerFixture.h"

#include <algorithm>
#include <iostream>

using namespace harness;

const MediaFixture& PlayerFixture::media() {
    static const MediaFixture fixture(LUMARO_BINARY_DIR "/tests/media");
    return fixture;
}

std::string PlayerFixture::numbered(const std::string& name, const Color& color, int frames) {
    MediaFixture::Numbered movie;
    movie.frames = frames;
    movie.color = color;
    return media().makeNumbered(name, movie).string();
}

namespace {

std::vector<std::string> withQuietLaunch(const std::vector<std::string>& arguments) {
    std::vector<std::string> all;
    for (const char* setting : {"QVEnableTrace=1", "QVOnLaunchDefaultAction=0"})
        all.insert(all.end(), {"--set", setting});
    all.insert(all.end(), arguments.begin(), arguments.end());
    return all;
}

std::string endOfLog(ChildProcess& process) {
    const std::vector<std::string> lines = process.errorLines();
    std::string text = "\nThe end of the log:\n";
    for (std::size_t i = lines.size() > 25 ? lines.size() - 25 : 0; i < lines.size(); ++i)
        text += lines[i] + '\n';
    return text;
}

} // namespace

LumaroProcess& PlayerFixture::start(const std::vector<std::string>& arguments, const std::string& workingDirectory) {
    player = startAnother(withQuietLaunch(arguments), workingDirectory);
    return *player;
}

LumaroProcess& PlayerFixture::startOn(const std::string& display, const std::vector<std::string>& arguments) {
    player = std::make_unique<LumaroProcess>(user, display, withQuietLaunch(arguments));
    return *player;
}

LumaroProcess& PlayerFixture::startRecorded(const std::string& program,
                                            const std::map<std::string, std::string>& environment,
                                            const std::vector<std::string>& arguments) {
    player = std::make_unique<LumaroProcess>(user, server.display(), withQuietLaunch(arguments), program, environment);
    return *player;
}

std::map<std::string, std::string> PlayerFixture::openGLEnvironment() {
    std::map<std::string, std::string> environment = {{"LUMARO_RENDERER", "opengl"}};
#ifdef LUMARO_KEEP_LOADED_LIBRARY
    environment.insert({{"LD_PRELOAD", LUMARO_KEEP_LOADED_LIBRARY}, {"ASAN_OPTIONS", "verify_asan_link_order=0"}});
#endif
    return environment;
}

std::unique_ptr<LumaroProcess> PlayerFixture::startAnother(const std::vector<std::string>& arguments,
                                                           const std::string& workingDirectory) {
    return std::make_unique<LumaroProcess>(user, server.display(), arguments, workingDirectory);
}

std::optional<int> PlayerFixture::frame() {
    return MediaFixture::frameNumber(probe, {0, 0, screenWidth, screenHeight});
}

testing::AssertionResult PlayerFixture::frameBecomes(const std::function<bool(int)>& wanted, const std::string& what) {
    std::optional<int> seen;
    const bool became = waitUntil([&] {
        seen = frame();
        return (seen && wanted(*seen)) || !player->isRunning();
    });
    if (became && player->isRunning())
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << "the frame never became " << what << "; it is "
                                       << (seen ? std::to_string(*seen) : "not to be seen") << endOfLog(*player);
}

testing::AssertionResult PlayerFixture::frameBecomes(int wanted) {
    return frameBecomes([wanted](int seen) { return seen == wanted; }, std::to_string(wanted));
}

std::optional<int> PlayerFixture::settledFrame() {
    std::optional<int> last;
    const bool settled = waitUntil([&] {
        last = frame();
        return last && staysTrue([&] { return frame() == last; }, Seconds(0.25));
    });
    return settled ? last : std::nullopt;
}

testing::AssertionResult PlayerFixture::colorBecomes(const Color& color, Seconds timeout) {
    const int x = screenWidth / 4, y = screenHeight * 5 / 6;
    const bool became = waitUntil([&] { return probe.pixel(x, y).isNear(color) || !player->isRunning(); }, timeout);
    if (became && player->isRunning())
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << "the picture never became " << color << "; it is " << probe.pixel(x, y)
                                       << endOfLog(*player);
}

testing::AssertionResult PlayerFixture::logs(const std::string& text, std::size_t from) {
    if (player->waitForErrorLine(text, from))
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << "the log never said \"" << text << "\"" << endOfLog(*player);
}

std::size_t PlayerFixture::timesLogged(const std::string& text) const {
    const std::vector<std::string> lines = player->errorLines();
    return static_cast<std::size_t>(
        std::ranges::count_if(lines, [&](const std::string& line) { return line.find(text) != std::string::npos; }));
}

testing::AssertionResult PlayerFixture::opensWindow(KeySym key, const std::vector<KeySym>& modifiers) {
    const WindowId movie = probe.windowAt(screenWidth / 2, screenHeight / 2);
    probe.tap(key, modifiers);
    if (!waitUntil([&] { return probe.windowAt(screenWidth / 2, screenHeight / 2) != movie; }))
        return testing::AssertionFailure() << "no window opened" << endOfLog(*player);
    // It has the keyboard when the player no longer hears of a key that means nothing to it.
    const bool hasKeyboard = waitUntil([&] {
        const std::size_t heard = keysHeard();
        probe.tap(XK_F12);
        return staysTrue([&] { return keysHeard() == heard; }, Seconds(0.3));
    });
    return hasKeyboard ? testing::AssertionSuccess()
                       : testing::AssertionFailure() << "it has not the keyboard" << endOfLog(*player);
}

WindowId PlayerFixture::nextPanel(WindowId before) {
    WindowId panel = 0;
    const bool isThere = waitUntil([&] {
        panel = probe.windowAt(screenWidth / 2, screenHeight / 2);
        return panel != before && panel != probe.windowAt(1, screenHeight - 2) && panel == probe.focusedWindow();
    });
    return isThere ? panel : 0;
}

bool PlayerFixture::tapUntil(KeySym key, const std::function<bool()>& condition) {
    bool became = false;
    waitUntil([&] {
        probe.tap(key);
        became = waitUntil(condition, Seconds(0.25));
        return became || !player->isRunning();
    });
    return became;
}

void PlayerFixture::type(const std::string& text) {
    for (const char letter : text) {
        const bool isUpper = (letter >= 'A' && letter <= 'Z') || letter == ':' || letter == '_';
        probe.tap(static_cast<KeySym>(letter), isUpper ? std::vector<KeySym>{XK_Shift_L} : std::vector<KeySym>{});
    }
}

testing::AssertionResult PlayerFixture::quitsCleanly() {
    probe.tap(XK_Escape);
    const std::optional<int> status = player->waitForExit();
    if (status != 0)
        return testing::AssertionFailure()
               << "Escape ended it with " << (status ? std::to_string(*status) : "nothing") << endOfLog(*player);
    return testing::AssertionSuccess();
}

void PlayerFixture::TearDown() {
    if (!player)
        return;
    for (const std::string& fault : player->faults())
        ADD_FAILURE() << fault;
    if (HasFailure())
        std::cerr << endOfLog(*player);
}
