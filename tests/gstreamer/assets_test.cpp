// The sounds that are shipped.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <iterator>

#include "adapters/gstreamer/pcm_source.h"
#include "adapters/posix/posix_system.h"
#include "posix/temporary_folder.h"

namespace {

struct ShippedRow {
    const char* name;
    double shortest, longest;  // seconds
};

TEST(ShippedSounds, LieInTheProgramFolderAndAreShortAndClean) {
    TemporaryFolder folder;
    posix_adapter::PosixSystem system(folder.Path("home"), PARAPICO_SOURCE_DIR "/assets");
    system.AppFolder();
    uintmax_t bytes = 0;
    for (const ShippedRow& row : {ShippedRow{"vue1.wav", 0.5, 1.5}, {"PB.wav", 0.02, 0.15}}) {
        const std::string path = folder.Path("home/") + row.name;
        bytes += std::filesystem::file_size(path);
        const auto wave = gst_adapter::OpenWaveFile(path);
        ASSERT_TRUE(wave) << row.name;
        EXPECT_EQ(wave->channels, 1);
        std::vector<float> samples(200000);
        samples.resize(wave->Read(samples.data(), samples.size()));
        const double seconds = static_cast<double>(samples.size()) / wave->rate;
        EXPECT_GT(seconds, row.shortest);
        EXPECT_LT(seconds, row.longest);
        const float loudest =
            std::abs(*std::max_element(samples.begin(), samples.end(),
                                       [](float a, float b) { return std::abs(a) < std::abs(b); }));
        EXPECT_GT(loudest, 0.1f);
        EXPECT_LT(loudest, 0.7f);
        // Neither begins nor ends with a crack.
        EXPECT_LT(std::abs(samples.front()), 0.01f);
        EXPECT_LT(std::abs(samples.back()), 0.01f);
    }
    EXPECT_LT(bytes, 60000u);
}

}  // namespace
