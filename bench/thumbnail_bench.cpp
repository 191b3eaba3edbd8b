// Thumbnails of 12-megapixel JPEGs: made for the first time, against the JPEG library's own decodes
// at one eighth on as many threads; and those that are kept, a second.
#include <fcntl.h>
#include <sys/stat.h>

#include <QGuiApplication>
#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <string>
#include <thread>
#include <vector>

// Needs the standard headers before it.
#include <jpeglib.h>

#include "../tests/support/posted_calls.h"
#include "adapters/imaging/thumbnailer.h"
#include "photograph.h"

namespace {

constexpr int kWidth = 4000, kHeight = 3000;
constexpr int kPhotographs = 48;
constexpr int kRounds = 5;
constexpr int kMostThreads = 4;
constexpr int kSide = 128;
constexpr double kAllowed = 1.3;
constexpr double kKeptASecond = 500;

double Milliseconds(const std::function<void()>& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
        .count();
}

double Median(std::vector<double> values) {
    std::nth_element(values.begin(), values.begin() + kRounds / 2, values.end());
    return values[kRounds / 2];
}

/// The same photograph under many names, written an hour ago.
std::vector<std::string> MakePhotographs(const std::filesystem::path& folder) {
    std::vector<std::string> paths;
    for (int i = 0; i < kPhotographs; ++i) {
        paths.push_back((folder / ("photograph" + std::to_string(i) + ".jpg")).string());
        if (i > 0) {
            std::filesystem::copy_file(paths[0], paths.back());
        } else if (!MakePhotograph(kWidth, kHeight)
                        .save(QString::fromStdString(paths[0]), "jpg", 90)) {
            std::fprintf(stderr, "the picture cannot be written\n");
            std::exit(1);
        }
        const timespec then{time(nullptr) - 3600, 0};
        const timespec times[2] = {then, then};
        utimensat(AT_FDCWD, paths.back().c_str(), times, 0);
    }
    return paths;
}

void DecodeAnEighth(const std::string& path) {
    FILE* file = std::fopen(path.c_str(), "rb");
    jpeg_decompress_struct decoder{};
    jpeg_error_mgr errors{};
    decoder.err = jpeg_std_error(&errors);
    jpeg_create_decompress(&decoder);
    jpeg_stdio_src(&decoder, file);
    jpeg_read_header(&decoder, TRUE);
    decoder.scale_denom = 8;
    decoder.scale_num = 1;
    decoder.out_color_space = JCS_EXT_BGRX;
    jpeg_start_decompress(&decoder);
    std::vector<unsigned char> row(size_t{decoder.output_width} * 4);
    while (decoder.output_scanline < decoder.output_height) {
        JSAMPROW place = row.data();
        jpeg_read_scanlines(&decoder, &place, 1);
    }
    jpeg_finish_decompress(&decoder);
    jpeg_destroy_decompress(&decoder);
    std::fclose(file);
}

void DecodeByLibrary(const std::vector<std::string>& paths, int threads) {
    std::atomic<size_t> next{0};
    std::vector<std::thread> workers;
    for (int i = 0; i < threads; ++i) {
        workers.emplace_back([&] {
            for (size_t place = next++; place < paths.size(); place = next++) {
                DecodeAnEighth(paths[place]);
            }
        });
    }
    for (std::thread& worker : workers) {
        worker.join();
    }
}

void MakeThumbnails(const std::vector<std::string>& paths, const std::string& cache, int threads) {
    fakes::PostedCalls calls;
    imaging::Thumbnailer thumbnails(
        {.cacheFolder = cache, .post = calls.Taker(), .threads = threads});
    std::vector<Text> wanted;
    std::transform(paths.begin(), paths.end(), std::back_inserter(wanted), text::FromUtf8);
    size_t made = 0;
    thumbnails.Want(&calls, wanted, kSide, [&](const Text&, const platform::BitmapPtr& picture) {
        made += picture ? 1 : 0;
    });
    calls.RunUntil([&] { return made == paths.size(); });
}

}  // namespace

int main(int argc, char** argv) {
    const QGuiApplication application(argc, argv);
    const std::filesystem::path folder =
        std::filesystem::absolute(argc > 1 ? argv[1] : ".") / "thumbnail_bench";
    std::filesystem::create_directories(folder);
    const std::vector<std::string> paths = MakePhotographs(folder);
    const int threads =
        std::clamp(static_cast<int>(std::thread::hardware_concurrency()), 1, kMostThreads);
    const std::string cache = (folder / "cache").string();
    std::vector<double> first, kept, library;
    for (int round = 0; round < kRounds; ++round) {
        std::filesystem::remove_all(cache);
        library.push_back(Milliseconds([&] { DecodeByLibrary(paths, threads); }));
        first.push_back(Milliseconds([&] { MakeThumbnails(paths, cache, threads); }));
        kept.push_back(Milliseconds([&] { MakeThumbnails(paths, cache, threads); }));
    }
    std::filesystem::remove_all(folder);
    const double keptASecond = kPhotographs * 1000 / Median(kept);
    std::printf(
        "%d JPEGs of 12 megapixels on %d threads: thumbnails %.0f ms, library's decodes %.0f ms, "
        "%.0f kept ones a second\n",
        kPhotographs, threads, Median(first), Median(library), keptASecond);
    std::printf("budget thumbnails-first-time %.3f %.1f\n", Median(first) / Median(library),
                kAllowed);
    std::printf("budget thumbnails-kept %.3f 1\n", kKeptASecond / keptASecond);
    return 0;
}
