// SPDX-License-Identifier: GPL-3.0-or-later
// Opens each file and reads its stream information, one after the other, and prints the milliseconds that took.
extern "C" {
#include <libavformat/avformat.h>
}

#include <chrono>
#include <cstdio>

int main(int count, char** arguments) {
    av_log_set_level(AV_LOG_QUIET);
    const auto start = std::chrono::steady_clock::now();
    for (int i = 1; i < count; ++i) {
        AVFormatContext* context = nullptr;
        if (avformat_open_input(&context, arguments[i], nullptr, nullptr) != 0 ||
            avformat_find_stream_info(context, nullptr) < 0) {
            std::fprintf(stderr, "%s cannot be opened\n", arguments[i]);
            return 1;
        }
        avformat_close_input(&context);
    }
    const std::chrono::duration<double, std::milli> taken = std::chrono::steady_clock::now() - start;
    std::printf("%.3f\n", taken.count());
    return 0;
}
