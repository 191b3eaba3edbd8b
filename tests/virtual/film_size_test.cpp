// Sizes of films by their files.
#include "adapters/virtual/film_size.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>

namespace {

using platform::Size;

Size SizeOf(const std::string& bytes) {
    std::istringstream file(bytes);
    return virtual_adapter::SizeOfFilm(file);
}

std::string Big(uint32_t value) {
    std::string bytes;
    for (int shift = 24; shift >= 0; shift -= 8) {
        bytes.push_back(static_cast<char>(value >> shift & 0xFF));
    }
    return bytes;
}
std::string Little(uint32_t value) {
    const std::string big = Big(value);
    return {big.rbegin(), big.rend()};
}
std::string Box(const std::string& kind, const std::string& body) {
    return Big(static_cast<uint32_t>(body.size()) + 8) + kind + body;
}

std::string Track(const std::string& kind, uint32_t width, uint32_t height, bool turned,
                  bool wide = false) {
    const uint32_t one = 0x10000;
    const std::string matrix = turned ? Big(0) + Big(one) + Big(0) + Big(0 - one) + Big(0)
                                      : Big(one) + Big(0) + Big(0) + Big(0) + Big(one);
    const std::string header = std::string(1, wide ? '\1' : '\0') +
                               std::string(wide ? 51 : 39, '\0') + matrix + std::string(16, '\0') +
                               Big(width << 16) + Big(height << 16);
    return Box("trak",
               Box("tkhd", header) + Box("mdia", Box("mdhd", std::string(24, '\0')) +
                                                     Box("hdlr", std::string(8, '\0') + kind +
                                                                     std::string(12, '\0'))));
}

std::string Movie(const std::string& tracks) {
    return Box("ftyp", "isom") + Box("mdat", std::string(100, 'x')) +
           Box("moov", Box("mvhd", std::string(100, '\0')) + tracks);
}

TEST(SizeOfFilm, Mp4SaysItInTheTrackOfPictures) {
    EXPECT_EQ(SizeOf(Movie(Track("soun", 0, 0, false) + Track("vide", 1280, 720, false))),
              (Size{1280, 720}));
    EXPECT_EQ(SizeOf(Movie(Track("vide", 1920, 1080, false, true))), (Size{1920, 1080}));
}

TEST(SizeOfFilm, AQuarterOfATurnExchangesTheSides) {
    EXPECT_EQ(SizeOf(Movie(Track("vide", 1920, 1080, true))), (Size{1080, 1920}));
    EXPECT_EQ(SizeOf(Movie(Track("vide", 640, 480, true, true))), (Size{480, 640}));
}

TEST(SizeOfFilm, AviSaysItInItsHeader) {
    std::string header = std::string(32, '\0') + Little(720) + Little(576) + std::string(16, '\0');
    EXPECT_EQ(
        SizeOf("RIFF" + Little(1000) + "AVI LIST" + Little(500) + "hdrlavih" + Little(56) + header),
        (Size{720, 576}));
}

TEST(SizeOfFilm, WmvSaysItInItsStreamOfPictures) {
    using std::string_literals::operator""s;
    const std::string properties =
        "\x91\x07\xDC\xB7\xB7\xA9\xCF\x11\x8E\xE6\0\xC0\x0C\x20\x53\x65"s;
    const std::string sound = "\x40\x9E\x69\xF8\x4D\x5B\xCF\x11\xA8\xFD\0\x80\x5F\x5C\x44\x2B"s;
    const std::string pictures = "\xC0\xEF\x19\xBC\x4D\x5B\xCF\x11\xA8\xFD\0\x80\x5F\x5C\x44\x2B"s;
    const auto stream = [&](const std::string& type, uint32_t width, uint32_t height) {
        return properties + std::string(8, '\0') + type + std::string(38, '\0') + Little(width) +
               Little(height);
    };
    const std::string start = "\x30\x26\xB2\x75" + std::string(26, '\0');
    EXPECT_EQ(SizeOf(start + stream(sound, 9, 9) + stream(pictures, 320, 240)), (Size{320, 240}));
    EXPECT_TRUE(SizeOf(start + stream(sound, 9, 9)).Empty());
}

TEST(SizeOfFilm, BrokenFilesHaveNone) {
    const std::string whole = Movie(Track("vide", 1280, 720, false));
    for (size_t length = 0; length < whole.size() - 21; ++length) {
        const Size size = SizeOf(whole.substr(0, length));
        EXPECT_TRUE(size.Empty()) << length;
    }
    EXPECT_TRUE(SizeOf(Movie(Track("vide", 30000, 720, false))).Empty());
    EXPECT_TRUE(SizeOf(Movie(Track("soun", 1280, 720, false))).Empty());
    EXPECT_TRUE(SizeOf("RIFF").Empty());
    EXPECT_TRUE(SizeOf("RIFF" + std::string(30, 'x')).Empty());
    EXPECT_TRUE(SizeOf("\x30\x26\xB2\x75").Empty());
    EXPECT_TRUE(SizeOf(std::string(3000, '\0')).Empty());
    EXPECT_TRUE(SizeOf(std::string(3000, '\xFF')).Empty());
}

}  // namespace
