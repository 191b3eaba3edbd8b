#include "decoder/decoder_support.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>

using decoder::Picture;

namespace {

class Warm : public ::testing::Environment {
public:
    void SetUp() override { decoder::WarmUp(); }
};
[[maybe_unused]] const auto* const kWarm = ::testing::AddGlobalTestEnvironment(new Warm);

}  // namespace

FileBytes Sample(const std::string& name) {
    std::ifstream file(std::string(PARAPICO_SAMPLES) + "/" + name, std::ios::binary);
    EXPECT_TRUE(file.is_open()) << name;
    return {std::istreambuf_iterator<char>(file), {}};
}

Picture Source(const std::string& name) {
    std::ifstream file(std::string(PARAPICO_SAMPLES) + "/sources/" + name + ".ppm",
                       std::ios::binary);
    std::string mark;
    int most = 0;
    Picture picture;
    file >> mark >> picture.size.width >> picture.size.height >> most;
    EXPECT_EQ(mark, "P6") << name;
    file.get();
    picture.pixels.resize(static_cast<size_t>(picture.size.width * picture.size.height));
    for (uint32_t& pixel : picture.pixels) {
        pixel = 0xFF;
        for (int part = 0; part < 3; ++part) {
            pixel = pixel << 8 | static_cast<uint32_t>(file.get());
        }
    }
    EXPECT_TRUE(file.good()) << name;
    return picture;
}

sandbox::Kind KindOfSample(const std::string& name) {
    using sandbox::Kind;
    constexpr std::pair<const char*, Kind> kKinds[] = {
        {"psd", Kind::Psd},   {"tga", Kind::Tga},   {"pcx", Kind::Pcx}, {"cal", Kind::Cal},
        {"mac", Kind::Mac},   {"img", Kind::Img},   {"msp", Kind::Msp}, {"wpg", Kind::Wpg},
        {"ras", Kind::Ras},   {"pct", Kind::Pct},   {"eps", Kind::Eps}, {"pcd", Kind::Pcd},
        {"avif", Kind::Avif}, {"heic", Kind::Heic}, {"jxl", Kind::Jxl}, {"bmp", Kind::Bmp},
        {"tif", Kind::Tif},
    };
    const size_t bare = name.rfind('/') + 1;
    const std::string start = name.substr(bare, name.find('_', bare) - bare);
    for (const auto& [known, kind] : kKinds) {
        if (start == known) {
            return kind;
        }
    }
    return Kind::None;
}

Difference Between(const Picture& a, const Picture& b) {
    if (!(a.size == b.size) || a.pixels.size() != b.pixels.size() || a.pixels.empty()) {
        return {};
    }
    Difference result{0, 0};
    for (size_t i = 0; i < a.pixels.size(); ++i) {
        for (const int shift : {0, 8, 16, 24}) {
            const int distance = std::abs(static_cast<int>(a.pixels[i] >> shift & 0xFF) -
                                          static_cast<int>(b.pixels[i] >> shift & 0xFF));
            result.largest = std::max(result.largest, distance);
            // The fourth part is opaque in both and would only thin out the mean.
            result.mean += shift == 24 ? 0 : distance;
        }
    }
    result.mean /= 3.0 * static_cast<double>(a.pixels.size());
    return result;
}

std::vector<std::string> SampleNames() {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(PARAPICO_SAMPLES)) {
        const std::string name = entry.path().filename().string();
        if (entry.is_regular_file() && KindOfSample(name) != sandbox::Kind::None) {
            names.push_back(name);
        }
    }
    std::ranges::sort(names);
    return names;
}
