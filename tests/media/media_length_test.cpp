// Lengths of media files, from bytes made by hand.
#include "adapters/media/media_length.h"

#include <gtest/gtest.h>

#include <sstream>

#include "support/media_bytes.h"

namespace media_adapter {
namespace {

std::optional<MediaLength> LengthOf(const std::string& bytes) {
    std::istringstream file(bytes);
    return LengthOfMedia(file);
}

void ExpectLength(const std::string& bytes, MediaKind kind, double milliseconds) {
    const auto length = LengthOf(bytes);
    ASSERT_TRUE(length);
    EXPECT_EQ(length->kind, kind);
    EXPECT_NEAR(length->milliseconds, milliseconds, 0.01);
}

TEST(MediaLength, WavByItsHeader) {
    ExpectLength(media::Wav(1500), MediaKind::Wav, 1500);
    const std::string list = std::string("LIST") + media::Little(3, 4) + "abc" + '\0';
    ExpectLength(media::Wav(500, list), MediaKind::Wav, 500);
}

TEST(MediaLength, WavSizesThatLieAreCutToTheFile) {
    std::string huge = media::Wav(250);
    huge.replace(40, 4, media::Little(0xFFFFFFFF, 4));
    ExpectLength(huge, MediaKind::Wav, 250);
    const std::string whole = media::Wav(1000);
    ExpectLength(whole.substr(0, 44 + (whole.size() - 44) / 2), MediaKind::Wav, 500);
}

TEST(MediaLength, BrokenWavs) {
    std::string noRate = media::Wav(100);
    noRate.replace(28, 4, media::Little(0, 4));
    EXPECT_FALSE(LengthOf(noRate));
    EXPECT_FALSE(LengthOf(media::Wav(0)));
    EXPECT_FALSE(LengthOf("RIFF"));
    EXPECT_FALSE(LengthOf(std::string("RIFF") + media::Little(4, 4) + "WAVE"));
}

TEST(MediaLength, MidiByTicksAndTempos) {
    // 480 ticks a quarter; two quarters at 120 a minute.
    ExpectLength(media::Midi({media::Note(0) + media::Note(960)}), MediaKind::Midi, 1000);
    // One quarter at 500 ms, then one at 250 ms.
    ExpectLength(media::Midi({media::Note(480) + media::Tempo(0, 250000) + media::Note(480)}),
                 MediaKind::Midi, 750);
    // The tempo stands in the first track, the longest notes in the second.
    ExpectLength(media::Midi({media::Tempo(0, 1000000), media::Note(480) + media::Note(480)}),
                 MediaKind::Midi, 2000);
}

TEST(MediaLength, BrokenMidis) {
    const std::string midi = media::Midi({media::Note(480) + media::Note(480)});
    for (size_t cut = 0; cut < midi.size(); ++cut) {
        const auto length = LengthOf(midi.substr(0, cut));
        EXPECT_LE(length ? length->milliseconds : 0, 1000) << cut;
    }
    std::string noDivision = midi;
    noDivision.replace(12, 2, std::string(2, '\0'));
    EXPECT_FALSE(LengthOf(noDivision));
}

TEST(MediaLength, Mp3ByItsFrames) {
    // 1152 samples at 44100 Hz each.
    ExpectLength(media::Mp3(100), MediaKind::Mp3, 100 * 1152 * 1000.0 / 44100);
    const std::string tag = std::string("ID3\4\0\0\0\0\1\0", 10) + std::string(128, 'x');
    ExpectLength(tag + media::Mp3(10), MediaKind::Mp3, 10 * 1152 * 1000.0 / 44100);
    EXPECT_FALSE(LengthOf(std::string("ID3\4\0\0\x7F\x7F\x7F\x7F", 10)));
}

std::optional<MediaLength> QuickLengthOf(const std::string& bytes) {
    std::istringstream file(bytes);
    return LengthOfMedia(file, Reading::Beginning);
}

constexpr double kFrameMs = 1152 * 1000.0 / 44100;

/// A first frame that says how many follow, in place of the first one of `mp3`.
std::string WithIndex(const std::string& mp3, const std::string& mark, size_t at, uint32_t frames,
                      uint32_t bytes) {
    std::string index = mark;
    index += mark == "VBRI" ? media::Big(0, 6) + media::Big(bytes, 4) + media::Big(frames, 4)
                            : media::Big(3, 4) + media::Big(frames, 4) + media::Big(bytes, 4);
    return std::string(mp3).replace(at, index.size(), index);
}

TEST(MediaLength, AnMp3SaysItsLengthAtItsBeginning) {
    const std::string mp3 = media::Mp3(101);
    const auto size = static_cast<uint32_t>(mp3.size());
    for (const auto& [mark, at] : {std::pair("Xing", 36), {"Info", 36}, {"VBRI", 36}}) {
        SCOPED_TRACE(mark);
        const std::string file = WithIndex(mp3, mark, static_cast<size_t>(at), 100, size);
        const auto quick = QuickLengthOf(file);
        ASSERT_TRUE(quick);
        EXPECT_TRUE(quick->exact);
        EXPECT_NEAR(quick->milliseconds, 100 * kFrameMs, 0.01);
        // The frame that says it is not heard.
        ExpectLength(file, MediaKind::Mp3, 100 * kFrameMs);
    }
}

TEST(MediaLength, AnMp3WithoutThatIsReckonedFromItsSize) {
    const std::string mp3 = media::Mp3(100);
    const auto quick = QuickLengthOf(mp3 + std::string(4170, 'x'));
    ASSERT_TRUE(quick);
    EXPECT_FALSE(quick->exact);
    EXPECT_NEAR(quick->milliseconds, 110 * kFrameMs, 0.01);
    // After a tag, which is no sound.
    const std::string tag = std::string("ID3\4\0\0\0\0\1\0", 10) + std::string(128, 'x');
    EXPECT_NEAR(QuickLengthOf(tag + mp3)->milliseconds, 100 * kFrameMs, 0.01);
    const auto whole = LengthOf(mp3 + std::string(4170, 'x'));
    EXPECT_TRUE(whole->exact);
    EXPECT_NEAR(whole->milliseconds, 100 * kFrameMs, 0.01);
}

TEST(MediaLength, AnMp3ThatIsShorterThanItSaysIsNotBelieved) {
    const std::string mp3 = media::Mp3(101);
    const auto size = static_cast<uint32_t>(mp3.size());
    const std::string cut = WithIndex(mp3, "Xing", 36, 100, size).substr(0, 417 * 51);
    EXPECT_FALSE(QuickLengthOf(cut)->exact);
    EXPECT_NEAR(QuickLengthOf(cut)->milliseconds, 51 * kFrameMs, 0.01);
    ExpectLength(cut, MediaKind::Mp3, 50 * kFrameMs);
    const std::string lying = WithIndex(mp3, "Xing", 36, 0xFFFFFFFF, 0);
    EXPECT_FALSE(QuickLengthOf(lying)->exact);
    const std::string silent = WithIndex(mp3, "Info", 36, 0, 0);
    EXPECT_FALSE(QuickLengthOf(silent)->exact);
}

TEST(MediaLength, TheOthersSayItExactlyAtTheirBeginning) {
    for (const std::string& file : {media::Wav(1500), media::Midi({media::Note(480)})}) {
        const auto quick = QuickLengthOf(file);
        ASSERT_TRUE(quick);
        EXPECT_TRUE(quick->exact);
        EXPECT_NEAR(quick->milliseconds, LengthOf(file)->milliseconds, 0.01);
    }
}

TEST(MediaLength, Mp4ByItsMovieHeader) {
    ExpectLength(media::Mp4(2500), MediaKind::Mp4, 2500);
    EXPECT_FALSE(LengthOf(media::Mp4(0)));
    EXPECT_FALSE(LengthOf(media::Mp4(0xFFFFFFFF)));
    EXPECT_FALSE(LengthOf(media::Box("ftyp", "isom") + media::Box("moov", "")));
}

TEST(MediaLength, NeverLongerThanADay) {
    std::string midi;
    for (int i = 0; i < 2000; ++i) {
        midi += media::Note(0x0FFFFFFF);
    }
    ExpectLength(media::Midi({midi}), MediaKind::Midi, 24.0 * 3600 * 1000);
}

TEST(MediaLength, NothingElse) {
    for (const std::string bytes : {"", "R", "MThd", "ftyp", "text that is none", "\xFF\xFB"}) {
        EXPECT_FALSE(LengthOf(bytes)) << bytes;
    }
}

/// Every cut and every changed byte: no crash, no endless loop, no length beyond a day.
TEST(MediaLength, DamagedFiles) {
    for (const std::string& whole :
         {media::Wav(10), media::Midi({media::Note(0) + media::Tempo(5, 1) + media::Note(99)}),
          media::Mp3(3), WithIndex(media::Mp3(3), "Xing", 36, 2, 1251), media::Mp4(99)}) {
        for (size_t at = 0; at < whole.size(); ++at) {
            std::string cut = whole.substr(0, at);
            LengthOf(cut);
            QuickLengthOf(cut);
            for (const char byte : {'\0', '\x7F', '\xFF'}) {
                std::string changed = whole;
                changed[at] = byte;
                for (const auto& length : {LengthOf(changed), QuickLengthOf(changed)}) {
                    EXPECT_LE(length ? length->milliseconds : 0, 24.0 * 3600 * 1000);
                }
            }
        }
    }
}

}  // namespace
}  // namespace media_adapter
