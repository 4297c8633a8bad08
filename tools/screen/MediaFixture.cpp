// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/screen/MediaFixture.h"

#include "tools/screen/ChildProcess.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cstdio>
#include <fstream>
#include <functional>
#include <iterator>
#include <stdexcept>

namespace harness {

namespace {

constexpr int bitCount = 12;

// Held while a movie is made; released by the kernel whatever happens to the process.
class FolderLock {
public:
    explicit FolderLock(const std::filesystem::path& path)
        : _descriptor(::open(path.c_str(), O_CREAT | O_RDWR | O_CLOEXEC, 0644)) {
        if (_descriptor < 0 || ::flock(_descriptor, LOCK_EX) != 0)
            throw std::runtime_error("cannot lock " + path.string());
    }
    ~FolderLock() { ::close(_descriptor); }
    FolderLock(const FolderLock&) = delete;
    FolderLock& operator=(const FolderLock&) = delete;

private:
    int _descriptor;
};

std::string inSeconds(double value) {
    char text[32];
    std::snprintf(text, sizeof text, "%.6g", value);
    return text;
}

} // namespace

std::string ffmpegColor(const Color& color) {
    char text[16];
    std::snprintf(text, sizeof text, "0x%02X%02X%02X", unsigned(color.red), unsigned(color.green),
                  unsigned(color.blue));
    return text;
}

MediaFixture::MediaFixture(std::filesystem::path folder)
    : _folder(std::move(folder)) {
    std::filesystem::create_directories(_folder);
}

std::filesystem::path MediaFixture::make(const std::string& fileName, const std::vector<std::string>& arguments,
                                         Seconds timeout) const {
    std::string recipe;
    for (const std::string& argument : arguments)
        recipe += argument + '\n';
    char key[32];
    std::snprintf(key, sizeof key, "%016zx", std::hash<std::string>{}(recipe));
    const std::filesystem::path folder = _folder / key;
    const std::filesystem::path file = folder / fileName;
    if (std::filesystem::exists(file))
        return file;
    std::filesystem::create_directories(folder);
    const FolderLock lock(folder / ".lock");
    if (std::filesystem::exists(file))
        return file;
    const std::filesystem::path unfinished = folder / (".making" + file.extension().string());
    ChildProcess::Options options;
    options.arguments = {"ffmpeg", "-nostdin", "-y", "-v", "error"};
    options.arguments.insert(options.arguments.end(), arguments.begin(), arguments.end());
    options.arguments.insert(options.arguments.end(), {"-fflags", "+bitexact", unfinished.string()});
    ChildProcess ffmpeg(options);
    if (ffmpeg.waitForExit(timeout) != 0)
        throw std::runtime_error("ffmpeg failed to make " + fileName + ": " + ffmpeg.errorOutput());
    std::filesystem::rename(unfinished, file);
    return file;
}

std::filesystem::path MediaFixture::makeNumbered(const std::string& fileName, const Numbered& movie) const {
    const double seconds = double(movie.frames) / movie.framesPerSecond;
    const std::string size = std::to_string(movie.width) + "x" + std::to_string(movie.height);
    const int block = movie.width / bitCount;
    std::string filter = "drawbox=x=0:y=ih/3:w=iw:h=ih/3:color=black:t=fill";
    for (int bit = 0; bit < bitCount; ++bit)
        filter += ",drawbox=x=" + std::to_string(block * (bitCount - 1 - bit)) + ":y=ih/3:w=" + std::to_string(block) +
                  ":h=ih/3:color=white:t=fill:enable='gte(mod(n," + std::to_string(2 << bit) + ")," +
                  std::to_string(1 << bit) + ")'";
    std::vector<std::string> arguments = {"-f", "lavfi", "-i",
                                          "color=c=" + ffmpegColor(movie.color) + ":s=" + size + ":r=" +
                                              std::to_string(movie.framesPerSecond) + ":d=" + inSeconds(seconds)};
    if (movie.sound)
        arguments.insert(arguments.end(), {"-f", "lavfi", "-i", "sine=frequency=440:duration=" + inSeconds(seconds)});
    arguments.insert(arguments.end(),
                     {"-vf", filter, "-g", std::to_string(movie.keyframeInterval), "-sc_threshold", "0"});
    arguments.insert(arguments.end(), movie.encoder.begin(), movie.encoder.end());
    return make(fileName, arguments);
}

std::filesystem::path MediaFixture::makeTurned(const std::string& fileName, const std::filesystem::path& upright,
                                               int quarterTurns) const {
    std::ifstream input(upright, std::ios::binary);
    std::string content{std::istreambuf_iterator<char>(input), {}};
    // A track's header: type, 40 bytes of facts, then its matrix, whose numbers have 16 bits behind the point.
    const std::size_t header = content.find("tkhd");
    if (header == std::string::npos || header + 80 > content.size())
        throw std::runtime_error(upright.string() + " has no track to turn");
    constexpr int turns[4][4] = {{1, 0, 0, 1}, {0, -1, 1, 0}, {-1, 0, 0, -1}, {0, 1, -1, 0}};
    constexpr std::size_t places[4] = {0, 4, 12, 16};
    for (int i = 0; i < 4; ++i) {
        const int value = turns[quarterTurns][i];
        content.replace(header + 44 + places[i], 4, {value < 0 ? '\xff' : '\0', value < 0 ? '\xff' : '\0', '\0', '\0'});
        if (value > 0)
            content[header + 44 + places[i] + 1] = '\1';
    }
    const std::filesystem::path file = upright.parent_path() / fileName;
    const std::filesystem::path unfinished = file.string() + std::to_string(::getpid());
    std::ofstream(unfinished, std::ios::binary) << content;
    std::filesystem::rename(unfinished, file);
    return file;
}

std::filesystem::path MediaFixture::makeColored(const std::string& fileName, const std::vector<Color>& colors,
                                                double secondsEach, int width, int height, int framesPerSecond,
                                                const std::vector<std::string>& encoder) const {
    std::vector<std::string> arguments;
    std::string joined;
    for (std::size_t i = 0; i < colors.size(); ++i) {
        arguments.insert(arguments.end(), {"-f", "lavfi", "-i",
                                           "color=c=" + ffmpegColor(colors[i]) + ":s=" + std::to_string(width) + "x" +
                                               std::to_string(height) + ":r=" + std::to_string(framesPerSecond) +
                                               ":d=" + inSeconds(secondsEach)});
        joined += "[" + std::to_string(i) + ":v]";
    }
    const double seconds = secondsEach * double(colors.size());
    arguments.insert(arguments.end(), {"-f", "lavfi", "-i", "sine=frequency=440:duration=" + inSeconds(seconds),
                                       "-filter_complex", joined + "concat=n=" + std::to_string(colors.size()) + "[v]",
                                       "-map", "[v]", "-map", std::to_string(colors.size()) + ":a"});
    arguments.insert(arguments.end(), encoder.begin(), encoder.end());
    return make(fileName, arguments);
}

std::optional<int> MediaFixture::frameNumber(XProbe& probe, const Region& picture) {
    const Color ground = probe.pixel(picture.x + picture.width / 6, picture.y + picture.height * 5 / 6);
    if (ground.isNear({0, 0, 0}, 60)) // Where nothing is shown there is no frame, not frame 0.
        return std::nullopt;
    const int y = picture.y + picture.height / 2;
    const Picture row = probe.picture({picture.x, y, picture.width, 1});
    int number = 0;
    for (int bit = 0; bit < bitCount; ++bit) {
        const int x = picture.x + (2 * (bitCount - 1 - bit) + 1) * picture.width / (2 * bitCount);
        const Color color = row.at(x, y);
        if (color.isNear({255, 255, 255}, 60))
            number |= 1 << bit;
        else if (!color.isNear({0, 0, 0}, 60))
            return std::nullopt;
    }
    return number;
}

} // namespace harness
