// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/peers/Players.h"

#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include <fstream>
#include <stdexcept>

using harness::ChildProcess;

namespace bench {

namespace {

constexpr const char* nobody = "65534";
constexpr uid_t nobodyId = 65534;

void append(std::vector<std::string>& list, const std::vector<std::string>& more) {
    list.insert(list.end(), more.begin(), more.end());
}

// VLC will not run for root.
std::vector<std::string> asSomebody() {
    if (::geteuid() != 0)
        return {};
    return {"setpriv", "--reuid", nobody, "--regid", nobody, "--clear-groups", "--pdeathsig", "KILL"};
}

} // namespace

Player::Player(Kind kind, const std::filesystem::path& folder)
    : _kind(kind)
    , _name(kind == Kind::mpv   ? "mpv"
            : kind == Kind::vlc ? "VLC"
                                : "Lumaro")
    , _folder(folder / _name) {
    std::filesystem::create_directories(_folder / "run");
    if (kind == Kind::mpv)
        std::ofstream(_folder / "input.conf") << "x seek 10\nz seek 10 exact\ny playlist-next\nu cycle audio\n";
    ::chmod((_folder / "run").c_str(), 0700);
    if (kind == Kind::vlc && ::geteuid() == 0)
        for (const std::filesystem::path& path : {_folder, _folder / "run"})
            if (::chown(path.c_str(), nobodyId, nobodyId) != 0)
                throw std::runtime_error("cannot give " + path.string() + " away");
}

std::unique_ptr<ChildProcess> Player::start(const std::string& display, const std::vector<std::string>& files,
                                            const std::vector<std::string>& options) const {
    ChildProcess::Options child;
    child.withoutEnvironment = {"WAYLAND_DISPLAY", "DBUS_SESSION_BUS_ADDRESS", "QT_QPA_PLATFORM", "LANG"};
    child.environment = {{"DISPLAY", display},
                         {"HOME", _folder.string()},
                         {"XDG_CONFIG_HOME", (_folder / "config").string()},
                         {"XDG_CACHE_HOME", (_folder / "cache").string()},
                         {"XDG_RUNTIME_DIR", (_folder / "run").string()},
                         {"LC_ALL", "C.UTF-8"}};
    std::vector<std::string>& arguments = child.arguments;
    switch (_kind) {
    case Kind::mpv:
        arguments = {"mpv",       "--no-config", "--vo=x11",      "--fs",
                     "--ao=null", "--osc=no",    "--no-terminal", "--input-conf=" + (_folder / "input.conf").string()};
        break;
    case Kind::vlc:
        arguments = asSomebody();
        append(arguments, {"vlc", "-I", "dummy", "--no-osd", "--no-video-title-show", "--fullscreen", "--no-audio",
                           "--vout", "xcb_x11", "--no-qt-privacy-ask", "--no-one-instance", "--play-and-exit"});
        break;
    case Kind::lumaro:
        child.environment["QT_QPA_PLATFORM"] = "xcb";
        arguments = {LUMARO_PROGRAM, "--software", "--set", "QVOnLaunchDefaultAction=0",
                     // What a run before this one showed is kept.
                     "--set", "QVOSDStateSavedType=0", "--set", "QVLastVersionSeen=1000000"};
        break;
    }
    append(arguments, options);
    append(arguments, files);
    return std::make_unique<ChildProcess>(child);
}

void Player::end(std::unique_ptr<ChildProcess>& process) {
    process->signal(SIGTERM);
    process->waitForExit(harness::Seconds(3));
    process.reset();
}

KeyPress Player::pauseKey() const {
    return {XK_space, {}};
}

KeyPress Player::jumpKey() const {
    switch (_kind) {
    case Kind::mpv:
        return {XK_x, {}};
    case Kind::vlc:
        return {XK_Right, {XK_Alt_L}};
    case Kind::lumaro:
        break;
    }
    return {XK_Right, {XK_Control_L}};
}

KeyPress Player::exactJumpKey() const {
    return _kind == Kind::mpv ? KeyPress{XK_z, {}} : jumpKey();
}

KeyPress Player::nextSubtitlesKey() const {
    switch (_kind) {
    case Kind::mpv:
        return {XK_j, {}};
    case Kind::vlc:
        return {XK_v, {}};
    case Kind::lumaro:
        break;
    }
    return {XK_s, {}};
}

KeyPress Player::nextAudioKey() const {
    switch (_kind) {
    case Kind::mpv:
        return {XK_u, {}};
    case Kind::vlc:
        return {XK_b, {}};
    case Kind::lumaro:
        break;
    }
    return {XK_a, {}};
}

std::vector<std::string> Player::soundOptions() const {
    switch (_kind) {
    case Kind::mpv:
        return {"--ao=pulse"};
    case Kind::vlc:
        return {"--audio", "--aout=pulse"};
    case Kind::lumaro:
        break;
    }
    // The track that was chosen before would be its first one.
    return {"--set", "QVRememberMovies=NO"};
}

std::vector<std::string> Player::firstTrackOptions() const {
    switch (_kind) {
    case Kind::mpv:
        return {"--sid=1"};
    case Kind::vlc:
        return {"--sub-track=0"};
    case Kind::lumaro:
        break;
    }
    // What it says of the track would be taken for the text.
    return {"--set", "QVDisplayFeedback=NO"};
}

std::vector<std::string> Player::deinterlacingOptions() const {
    switch (_kind) {
    case Kind::mpv:
        return {"--vf=bwdif"};
    case Kind::vlc:
        return {"--deinterlace=1", "--deinterlace-mode=yadif2x"};
    case Kind::lumaro:
        break;
    }
    return {}; // by itself, with bwdif
}

KeyPress Player::nextKey() const {
    switch (_kind) {
    case Kind::mpv:
        return {XK_y, {}};
    case Kind::vlc:
        return {XK_n, {}};
    case Kind::lumaro:
        break;
    }
    return {XK_Right, {XK_Super_L}};
}

std::vector<std::string> Player::timeDisplayOptions() const {
    switch (_kind) {
    case Kind::mpv:
        return {"--osd-level=3"};
    case Kind::vlc:
        return {"--sub-source=marq{marquee=%H:%M:%S,refresh=1000,position=5}"};
    case Kind::lumaro:
        break;
    }
    return {"--set", "QVOSDStateSavedType=1"};
}

std::vector<std::string> Player::subtitleOptions(const std::filesystem::path& movie) const {
    if (_kind != Kind::vlc)
        return {}; // They look beside the movie by themselves.
    return {"--no-sub-autodetect-file",
            "--sub-file=" + std::filesystem::path(movie).replace_extension(".srt").string()};
}

} // namespace bench
