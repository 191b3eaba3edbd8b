// Formats of recordings and their files.
#include "platform/wave_format.h"

#include <gtest/gtest.h>

#include "support/media_bytes.h"

namespace platform {
namespace {

using media::Little;

TEST(WaveFormats, AreReadFromTheWordsOfACommand) {
    WaveFormat format;
    EXPECT_TRUE(ReadWaveFormat(
        u"channels 2 samplespersec 44100 bytespersec 176400 alignment 4 bitspersample 16", format));
    EXPECT_EQ(format, (WaveFormat{2, 44100}));
    EXPECT_TRUE(ReadWaveFormat(u"  samplespersec   8000 ", format));
    EXPECT_EQ(format, (WaveFormat{2, 8000}));
    EXPECT_TRUE(ReadWaveFormat(u"time format samples", format));
    EXPECT_EQ(format, (WaveFormat{2, 8000}));
}

TEST(WaveFormats, OthersChangeNothing) {
    for (const TextView words :
         {u"channels 0", u"channels 3", u"channels", u"channels x", u"samplespersec 7999",
          u"samplespersec 192001", u"bitspersample 8", u"channels 1 samplespersec -1"}) {
        WaveFormat format{2, 22050};
        EXPECT_FALSE(ReadWaveFormat(words, format)) << text::ToUtf8(words);
        EXPECT_EQ(format, (WaveFormat{2, 22050}));
    }
}

TEST(WaveFormats, Headers) {
    EXPECT_EQ(WaveHeader({2, 44100}, 176400),
              "RIFF" + Little(36 + 176400, 4) + "WAVEfmt " + Little(16, 4) + Little(1, 2) +
                  Little(2, 2) + Little(44100, 4) + Little(176400, 4) + Little(4, 2) +
                  Little(16, 2) + "data" + Little(176400, 4));
    EXPECT_EQ(EmptyWaveFile().size(), 44u);
}

}  // namespace
}  // namespace platform
