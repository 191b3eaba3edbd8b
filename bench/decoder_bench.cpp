// What the decoder's process costs: an ordinary old picture (PCX, 640 × 480, 24 bits) in the
// sandbox, less the time of the same decoder without one; and the first picture of all, which
// starts the process.
#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

#include "adapters/decoder/decode.h"
#include "adapters/sandbox/client.h"

namespace {

constexpr int kWidth = 640, kHeight = 480, kRuns = 101;
constexpr double kBudgetMs = 30;

double Milliseconds(const std::function<void()>& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
        .count();
}

double Median(const std::function<void()>& work) {
    std::vector<double> times;
    for (int i = 0; i < kRuns; ++i) {
        times.push_back(Milliseconds(work));
    }
    std::sort(times.begin(), times.end());
    return times[kRuns / 2];
}

/// Three planes a row, in runs of one pixel and of some.
std::vector<uint8_t> Pcx() {
    std::vector<uint8_t> file(128);
    const uint8_t head[] = {10,
                            5,
                            1,
                            8,
                            0,
                            0,
                            0,
                            0,
                            (kWidth - 1) & 255,
                            (kWidth - 1) >> 8,
                            (kHeight - 1) & 255,
                            (kHeight - 1) >> 8,
                            72,
                            0,
                            72,
                            0};
    std::copy(std::begin(head), std::end(head), file.begin());
    file[65] = 3;
    file[66] = kWidth & 255;
    file[67] = kWidth >> 8;
    file[68] = 1;
    for (int y = 0; y < kHeight; ++y) {
        for (int plane = 0; plane < 3; ++plane) {
            for (int x = 0; x < kWidth;) {
                const int run = std::min(1 + (x * 7 + y) % 5, kWidth - x);
                file.push_back(static_cast<uint8_t>(0xC0 | run));
                file.push_back(static_cast<uint8_t>(x + y * (plane + 1)));
                x += run;
            }
        }
    }
    return file;
}

bool IsPicture(int width, int height) {
    return width == kWidth && height == kHeight;
}

}  // namespace

int main() {
    const std::vector<uint8_t> bytes = Pcx();
    const sandbox::Descriptor file(memfd_create("pcx", MFD_CLOEXEC));
    if (write(file.Get(), bytes.data(), bytes.size()) != static_cast<ssize_t>(bytes.size())) {
        return 2;
    }
    bool right = true;
    sandbox::Client client;
    const auto sandboxed = [&] {
        const sandbox::Result result = client.Decode(sandbox::Kind::Pcx, file.Get(), {});
        right = right && result.pixels && IsPicture(result.size.width, result.size.height);
    };
    const double first = Milliseconds(sandboxed);
    const double warm = Median(sandboxed);
    decoder::WarmUp();
    const double bare = Median([&] {
        const auto picture = decoder::Decode(sandbox::Kind::Pcx, bytes, {});
        right = right && picture && IsPicture(picture->size.width, picture->size.height);
    });
    if (!right) {
        std::puts("the picture does not decode");
        return 1;
    }
    std::printf("in the sandbox %.2f ms, without one %.2f ms, the very first %.1f ms\n", warm, bare,
                first);
    std::printf("budget decoder-overhead-ms %.2f %.0f\n", warm - bare, kBudgetMs);
    return 0;
}
