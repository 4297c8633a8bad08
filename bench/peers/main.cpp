// SPDX-License-Identifier: GPL-3.0-or-later
// Measures Lumaro beside other players and prints a table:
//   bench_side_by_side [--quick] [--rows start,cpu,memory,paused,jump,open,osd,subtitles,track,fade,change,drag,
//                                         long,large,switch,audio,interlaced]
// Progress and every sample go to standard error.
#include "bench/peers/Measurements.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <ctime>
#include <exception>
#include <optional>
#include <sstream>
#include <thread>

using namespace bench;

namespace {

// A line of the table: one figure of each player, in one unit; lower is better.
struct Line {
    std::string what;
    std::string figure;
    std::vector<std::string> peers; // of the columns mpv and VLC
    const char* format;
    std::optional<double> goal; // at most so much of the better peer
    std::optional<double> more; // or: at most so much more than it
};

const std::vector<Line> lines = {
    {"process start to first picture, ms", "start", {"mpv", "VLC"}, "%.0f", 0.9, {}},
    {"the same with a track of 2,000 cues (first column: without)", "track", {"no track"}, "%.1f", {}, 5.0},
    {"start with four hours of Matroska and thirty tracks, ms", "long", {"mpv", "VLC"}, "%.0f", 1.0, {}},
    {"pictures left out of 2160p24 HEVC in ten bits, percent", "large", {"mpv", "VLC"}, "%.1f", 1.0, {}},
    {"another subtitle track inside the movie: key to its text, ms", "switch", {"mpv", "VLC"}, "%.0f", 1.0, {}},
    {"another audio track inside the movie: key to its sound, ms", "audio", {"mpv", "VLC"}, "%.0f", 1.0, {}},
    {"CPU seconds a second of 1080i50, deinterlaced", "interlaced", {"mpv", "VLC"}, "%.3f", 1.0, {}},
    {"CPU seconds a second of 1080p30 H.264", "cpu", {"mpv", "VLC"}, "%.3f", 1.0, {}},
    {"the X server's CPU seconds meanwhile", "server", {"mpv", "VLC"}, "%.3f", {}, {}},
    {"pictures shown a second (of 30)", "pictures", {"mpv", "VLC"}, "%.1f", {}, {}},
    {"resident memory while playing, MB", "resident", {"mpv", "VLC"}, "%.0f", 1.0, {}},
    {"the same, shared pages in part (Pss), MB", "proportional", {"mpv", "VLC"}, "%.0f", {}, {}},
    {"jump of 10 s: first picture of the new place, ms (mpv: seek 10)", "jump first", {"mpv"}, "%.0f", 0.5, {}},
    {"the same (mpv: seek 10 exact)", "jump first", {"mpv exact", "VLC"}, "%.0f", 0.1, {}},
    {"jump of 10 s: exact picture, ms (mpv: seek 10 exact)", "jump exact", {"mpv exact", "VLC"}, "%.0f", 1.0, {}},
    {"next movie: key to its first picture, ms", "change", {"mpv", "VLC"}, "%.0f", 0.5, {}},
    {"times that the screen was black meanwhile", "change black", {"mpv", "VLC"}, "%.0f", 0.0, {}},
    {"opening 1,000 new mp4, ms (first column: libavformat, one by one)", "open", {"libavformat"}, "%.0f", 0.3, {}},
    {"CPU seconds a second, the time shown all along", "osd", {"mpv", "VLC"}, "%.3f", 1.0, {}},
    {"CPU seconds a second, with subtitles of two lines", "subtitles", {"mpv", "VLC"}, "%.3f", 1.0, {}},
    {"CPU seconds a second while overlays fade (first column: none do)", "fade", {"none fading"}, "%.3f", {}, 0.03},
    {"pictures left out meanwhile (first column: none fade)", "fade left out", {"none fading"}, "%.0f", {}, 0.0},
    {"pictures of 1080p60 left out a second while a slider restyles the subtitle (first column: it rests)",
     "drag left out",
     {"resting"},
     "%.1f",
     {},
     0.0},
    {"CPU seconds a second meanwhile", "drag", {"resting"}, "%.3f", {}, {}},
    {"paused: CPU ticks in 10 s", "paused ticks", {"mpv", "VLC"}, "%.0f", 0.0, {}},
    {"paused: ms run in 10 s", "paused run", {"mpv", "VLC"}, "%.1f", {}, {}},
    {"paused: ms the X server ran in 10 s", "paused server", {"mpv", "VLC"}, "%.1f", {}, {}},
};

std::string formatted(const char* format, double value) {
    if (std::isnan(value))
        return "-";
    char text[64];
    std::snprintf(text, sizeof text, format, value);
    return text;
}

// The share of the better peer, or the value itself where nothing at all is asked for.
void print(const Line& line, const Samples& samples) {
    double best = std::nan("");
    std::string cells;
    for (std::size_t i = 0; i < 2; ++i) {
        const double value = i < line.peers.size() ? samples.median(line.figure, line.peers[i]) : std::nan("");
        best = std::fmin(best, value);
        cells += formatted(line.format, value) + " | ";
    }
    const double own = samples.median(line.figure, "Lumaro");
    const double ratio = best > 0 ? own / best : std::nan("");
    std::string goal = "", reached = "";
    if (line.goal) {
        goal = *line.goal > 0 ? formatted("at most %.1f", *line.goal) : "none";
        reached = std::isnan(own) ? "-" : (*line.goal > 0 ? ratio <= *line.goal : own <= 0) ? "yes" : "no";
    }
    if (line.more) {
        goal = formatted("at most %g more", *line.more);
        reached = std::isnan(own) ? "-" : own - best <= *line.more ? "yes" : "no";
    }
    std::printf("| %s | %s%s | %s | %s | %s |\n", line.what.c_str(), cells.c_str(), formatted(line.format, own).c_str(),
                formatted("%.2f", ratio).c_str(), goal.c_str(), reached.c_str());
}

std::optional<Plan> planOf(const std::vector<std::string>& arguments) {
    Plan plan;
    std::set<std::string> rows = rowNames;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        if (arguments[i] == "--quick") {
            plan = Plan::quick();
        } else if (arguments[i] == "--rows" && i + 1 < arguments.size()) {
            std::istringstream names(arguments[++i]);
            rows.clear();
            for (std::string name; std::getline(names, name, ',');)
                rows.insert(name);
            if (rows.empty() || !std::ranges::includes(rowNames, rows))
                return std::nullopt;
        } else {
            return std::nullopt;
        }
    }
    plan.rows = rows;
    return plan;
}

} // namespace

int main(int count, char** arguments) {
    const auto plan = planOf({arguments + 1, arguments + count});
    if (!plan) {
        std::fputs(
            "usage: side_by_side [--quick] [--rows "
            "start,cpu,memory,paused,jump,open,osd,subtitles,track,fade,change,drag,long,large,switch,interlaced]\n",
            stderr);
        return 2;
    }
    try {
        Measurements measurements(*plan, LUMARO_BINARY_DIR "/bench/side_by_side");
        const Samples& samples = measurements.run();
        const std::time_t time = std::time(nullptr);
        char date[32];
        std::strftime(date, sizeof date, "%Y-%m-%d %H:%M UTC", std::gmtime(&time));
        std::printf("%s, %u cores, 1920x1080 on Xvfb, medians\n\n", date, std::thread::hardware_concurrency());
        std::puts("| what | mpv | VLC | Lumaro | ratio to the better peer | goal | reached |");
        std::puts("|---|---|---|---|---|---|---|");
        std::set<std::string> listed;
        for (const Line& line : lines)
            if (samples.has(line.figure)) {
                print(line, samples);
                if (listed.insert(line.figure).second)
                    std::fprintf(stderr, "%s\n", samples.listing(line.figure).c_str());
            }
    } catch (const std::exception& error) {
        std::fprintf(stderr, "side_by_side: %s\n", error.what());
        return 1;
    }
    return 0;
}
