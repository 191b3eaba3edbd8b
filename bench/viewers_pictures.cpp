// viewers_pictures FOLDER COUNT: makes picture_00.jpg … for the comparison with other viewers, the
// same ones every time: 12 to 24 megapixels, 4:3 and 3:2, quality 90, baseline, and as costly to
// decode as photographs are: soft areas, edges, and grain over all of it. Each carries its number
// as squares in its middle (viewers_watch.cpp reads them), large enough to outlive fitting.
#include <cstdint>
#include <cstdio>
// jpeglib.h needs the two above.
#include <jpeglib.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <string>
#include <thread>
#include <vector>

namespace {

struct Shape {
    int width, height;
};
// Cameras of 12, 16, 20 and 24 megapixels.
constexpr Shape kShapes[] = {{4000, 3000}, {4896, 3264}, {4608, 3456},
                             {5472, 3648}, {5184, 3888}, {6000, 4000}};
constexpr int kQuality = 90;
constexpr int kMarkColumns = 8;         // white, six bits from the lowest on, black
constexpr int kMarkSidesInHeight = 25;  // a square's side is the picture's height over this

/// Even noise that is the same on every machine.
class Noise {
public:
    explicit Noise(uint64_t seed) : state_(seed * 0x9E3779B97F4A7C15u + 1) {}
    uint32_t Next() {
        state_ ^= state_ << 13;
        state_ ^= state_ >> 7;
        state_ ^= state_ << 17;
        return static_cast<uint32_t>(state_ >> 32);
    }

private:
    uint64_t state_;
};

/// One octave: random values on a grid, straight lines between them.
class Octave {
public:
    Octave(Noise& noise, const Shape& shape, int cell, int strength)
        : cell_(cell), columns_(shape.width / cell + 2) {
        values_.resize(static_cast<size_t>(columns_) *
                       static_cast<size_t>(shape.height / cell + 2));
        for (int& value : values_) {
            value =
                static_cast<int>(noise.Next() % static_cast<uint32_t>(2 * strength + 1)) - strength;
        }
    }
    /// Adds row `y`, in 256ths.
    void AddRow(int y, std::vector<int>& row) const {
        const int below = (y % cell_) * 256 / cell_;
        const int* upper = &values_[static_cast<size_t>(y / cell_ * columns_)];
        const int* lower = upper + columns_;
        size_t x = 0;
        for (int column = 0; x < row.size(); ++column) {
            const int left = upper[column] * (256 - below) + lower[column] * below;
            const int right = upper[column + 1] * (256 - below) + lower[column + 1] * below;
            const int slope = (right - left) / cell_;
            int value = left;
            for (int i = 0; i < cell_ && x < row.size(); ++i, ++x, value += slope) {
                row[x] += value;
            }
        }
    }

private:
    int cell_;
    int columns_;
    std::vector<int> values_;
};

/// Lays the number's squares over row `y`.
void DrawMark(uint8_t* row, int y, const Shape& shape, int number) {
    const int side = shape.height / kMarkSidesInHeight;
    const int line = y - (shape.height / 2 - side);
    if (line < 0 || line >= 2 * side) {
        return;
    }
    const int first = shape.width / 2 - side * kMarkColumns / 2;
    const int word = 1 | number << 1;
    for (int column = 0; column < kMarkColumns; ++column) {
        const bool white = (word >> column & 1) != (line >= side ? 1 : 0);
        uint8_t* start = row + 3 * static_cast<size_t>(first + column * side);
        std::fill_n(start, 3 * static_cast<size_t>(side), white ? uint8_t{255} : uint8_t{0});
    }
}

class Scene {
public:
    Scene(const Shape& shape, int number)
        : noise_(static_cast<uint64_t>(number) + 1),
          light_{Octave(noise_, shape, 640, 80), Octave(noise_, shape, 120, 40),
                 Octave(noise_, shape, 24, 26), Octave(noise_, shape, 5, 18)},
          warm_{Octave(noise_, shape, 800, 50), Octave(noise_, shape, 40, 14)},
          green_{Octave(noise_, shape, 800, 40), Octave(noise_, shape, 40, 10)},
          sums_(3, std::vector<int>(static_cast<size_t>(shape.width))) {}

    void Row(int y, uint8_t* row) {
        const std::array<const std::array<Octave, 2>*, 2> tints{&warm_, &green_};
        for (auto& sum : sums_) {
            std::fill(sum.begin(), sum.end(), 0);
        }
        for (const Octave& octave : light_) {
            octave.AddRow(y, sums_[0]);
        }
        for (size_t i = 0; i < tints.size(); ++i) {
            for (const Octave& octave : *tints[i]) {
                octave.AddRow(y, sums_[i + 1]);
            }
        }
        for (size_t x = 0; x < sums_[0].size(); ++x) {
            const int grain = static_cast<int>(noise_.Next() % 23) - 11;
            // Ridges of the wide light make edges, as outlines of things do.
            const int wide = sums_[0][x] / 256;
            const int light = 128 + (wide > 25 ? wide - 50 : wide) + grain;
            const int warm = sums_[1][x] / 256, green = sums_[2][x] / 256;
            for (const int value : {light + warm, light + green, light - warm}) {
                *row++ = static_cast<uint8_t>(std::clamp(value, 0, 255));
            }
        }
    }

private:
    Noise noise_;
    std::array<Octave, 4> light_;
    std::array<Octave, 2> warm_, green_;
    std::vector<std::vector<int>> sums_;
};

/// False when the file cannot be written.
bool WritePicture(const std::string& path, int number) {
    const Shape shape = kShapes[static_cast<size_t>(number) % std::size(kShapes)];
    std::FILE* file = std::fopen(path.c_str(), "wb");
    if (file == nullptr) {
        return false;
    }
    jpeg_compress_struct compressor{};
    jpeg_error_mgr errors{};
    compressor.err = jpeg_std_error(&errors);  // ends the program on failure
    jpeg_create_compress(&compressor);
    jpeg_stdio_dest(&compressor, file);
    compressor.image_width = static_cast<JDIMENSION>(shape.width);
    compressor.image_height = static_cast<JDIMENSION>(shape.height);
    compressor.input_components = 3;
    compressor.in_color_space = JCS_RGB;
    jpeg_set_defaults(&compressor);  // colour at half the size in both directions
    jpeg_set_quality(&compressor, kQuality, TRUE);
    if (number % 3 == 2) {
        compressor.comp_info[0].v_samp_factor = 1;  // at half the width only
    }
    jpeg_start_compress(&compressor, TRUE);
    Scene scene(shape, number);
    std::vector<uint8_t> row(3 * static_cast<size_t>(shape.width));
    for (int y = 0; y < shape.height; ++y) {
        scene.Row(y, row.data());
        DrawMark(row.data(), y, shape, number);
        JSAMPROW rows[] = {row.data()};
        jpeg_write_scanlines(&compressor, rows, 1);
    }
    jpeg_finish_compress(&compressor);
    jpeg_destroy_compress(&compressor);
    return std::fclose(file) == 0;
}

}  // namespace

int main(int argc, char** argv) {
    const int count = argc == 3 ? std::atoi(argv[2]) : 0;
    if (count < 1 || count > 64) {
        std::fputs("usage: viewers_pictures FOLDER COUNT (at most 64)\n", stderr);
        return 2;
    }
    const auto workers = static_cast<int>(std::max(1u, std::thread::hardware_concurrency()));
    std::vector<std::thread> threads;
    for (int worker = 0; worker < workers; ++worker) {
        threads.emplace_back([=] {
            for (int number = worker; number < count; number += workers) {
                std::array<char, 32> name{};
                std::snprintf(name.data(), name.size(), "/picture_%02d.jpg", number);
                if (!WritePicture(argv[1] + std::string(name.data()), number)) {
                    std::perror(argv[1]);
                    std::exit(1);
                }
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    return 0;
}
