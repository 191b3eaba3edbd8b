// A 24-megapixel JPEG file to its picture fitted into full HD, against the JPEG library's own
// scaled decode to the next larger size that it offers.
#include <QGuiApplication>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

// Needs the standard headers before it.
#include <jpeglib.h>

#include "adapters/imaging/qt_imaging.h"
#include "adapters/posix/posix_files.h"
#include "photograph.h"

namespace {

constexpr int kFittedWidth = 1620, kFittedHeight = 1080;
constexpr int kRounds = 9;
constexpr double kAllowed = 1.3;

double Milliseconds(const std::function<bool()>& work) {
    const auto start = std::chrono::steady_clock::now();
    if (!work()) {
        std::fprintf(stderr, "decoding failed\n");
        std::exit(1);
    }
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
        .count();
}

/// Scaled by eighths to the smallest size that covers the fitted one.
bool DecodeByLibrary(const std::string& path) {
    FILE* file = std::fopen(path.c_str(), "rb");
    if (file == nullptr) {
        return false;
    }
    jpeg_decompress_struct decoder{};
    jpeg_error_mgr errors{};
    decoder.err = jpeg_std_error(&errors);
    jpeg_create_decompress(&decoder);
    jpeg_stdio_src(&decoder, file);
    jpeg_read_header(&decoder, TRUE);
    decoder.scale_denom = 8;
    decoder.scale_num = 1;
    while (decoder.image_width * decoder.scale_num < kFittedWidth * 8u) {
        ++decoder.scale_num;
    }
    decoder.out_color_space = JCS_EXT_BGRX;
    jpeg_start_decompress(&decoder);
    std::vector<unsigned char> pixels(size_t{decoder.output_width} * decoder.output_height * 4);
    while (decoder.output_scanline < decoder.output_height) {
        JSAMPROW row = pixels.data() + size_t{decoder.output_scanline} * decoder.output_width * 4;
        jpeg_read_scanlines(&decoder, &row, 1);
    }
    jpeg_finish_decompress(&decoder);
    jpeg_destroy_decompress(&decoder);
    std::fclose(file);
    return true;
}

bool LoadByControl(platform::Imaging& imaging, const std::string& path) {
    const auto control = imaging.MakeControl();
    const auto fit = [](platform::Size) { return platform::Size{kFittedWidth, kFittedHeight}; };
    const Text file = text::FromUtf8(path);
    if (!control->ReadInformation(file) || !control->Load(file, fit)) {
        return false;
    }
    control->Resize(kFittedWidth, kFittedHeight, 0);
    return control->Picture() != nullptr;
}

double Median(std::vector<double> values) {
    std::nth_element(values.begin(), values.begin() + kRounds / 2, values.end());
    return values[kRounds / 2];
}

}  // namespace

int main(int argc, char** argv) {
    QGuiApplication application(argc, argv);
    const std::filesystem::path scratch =
        argc > 1 ? std::filesystem::path(argv[1]) : std::filesystem::temp_directory_path();
    const std::string path = (std::filesystem::absolute(scratch) / "photograph.jpg").string();
    if (!MakePhotograph().save(QString::fromStdString(path), "jpg", 90)) {
        std::fprintf(stderr, "the picture cannot be written\n");
        return 1;
    }
    posix_adapter::PosixFiles files(scratch.string());
    imaging::QtImaging imaging(files);
    std::vector<double> ours, theirs;
    for (int round = 0; round < kRounds; ++round) {
        ours.push_back(Milliseconds([&] { return LoadByControl(imaging, path); }));
        theirs.push_back(Milliseconds([&] { return DecodeByLibrary(path); }));
    }
    std::filesystem::remove(path);
    std::printf("24-megapixel JPEG fitted: %.1f ms, library's scaled decode %.1f ms\n",
                Median(ours), Median(theirs));
    std::printf("budget jpeg-24-megapixels-fitted %.3f %.2f\n", Median(ours) / Median(theirs),
                kAllowed);
    return 0;
}
