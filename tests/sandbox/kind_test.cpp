// What kind a file is: by its marks, else by its name.
#include "adapters/sandbox/kind.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace {

using sandbox::Kind;
using namespace std::string_literals;

Kind OfBytes(const std::string& bytes, const std::string& name = "name") {
    const size_t tail = bytes.size() - std::min(bytes.size(), sandbox::kEndBytes);
    return sandbox::KindOf(std::string_view(bytes).substr(0, sandbox::kStartBytes),
                           std::string_view(bytes).substr(tail), name);
}

std::string At(size_t offset, const std::string& bytes) {
    return std::string(offset, 0) + bytes;
}

TEST(Kinds, EveryMark) {
    const std::string pcx = "\x0A\5\1\x08"s + std::string(61, 0) + "\3"s;
    const std::string img = "\0\1\0\x08\0\1\0\2\0\x55\0\x55\0\x2D\0\x1F"s;
    const std::string wpg = "\xFFWPC\x10\0\0\0\1\x16\1\0"s;
    const std::string frame = "\x01\0\xFF\xF0\0\0\0\x05\0\x01"s;  // -16 to 5, 0 to 1
    const std::string version2 = "\0\x11\x02\xFF\x0C\0"s;
    const struct {
        std::string bytes;
        Kind kind;
    } rows[] = {
        {"8BPS\0\1"s, Kind::Psd},
        {"\x59\xA6\x6A\x95", Kind::Ras},
        {"\xFF\x0A\xFA", Kind::Jxl},
        {"\0\0\0\x0CJXL \r\n\x87\n"s, Kind::Jxl},
        {"%!PS-Adobe-3.0 EPSF-3.0\n", Kind::Eps},
        {"%!PS\n", Kind::Eps},
        {"\x04%!PS\n", Kind::Eps},
        {"\xC5\xD0\xD3\xC6", Kind::Eps},
        {"DanM", Kind::Msp},
        {"LinS", Kind::Msp},
        {"PCD_OPA", Kind::Pcd},
        {At(2048, "PCD_IPI"), Kind::Pcd},
        {"srcdocid: NONE", Kind::Cal},
        {frame + "\x11\x01\x01"s, Kind::Pct},
        {At(512, frame + "\x11\x01\x01"s), Kind::Pct},
        {At(10, version2), Kind::Pct},
        {At(522, version2), Kind::Pct},
        {At(65, "PNTGMPNT"), Kind::Mac},
        {wpg, Kind::Wpg},
        {pcx, Kind::Pcx},
        {img, Kind::Img},
        {"\0\0\0\x14"
         "ftypavif\0\0\0\0mif1"s,
         Kind::Avif},
        {"\0\0\0\x14"
         "ftypavis\0\0\0\0mif1"s,
         Kind::Avif},
        {"\0\0\0\x14"
         "ftypheic\0\0\0\0mif1"s,
         Kind::Heic},
        {"\0\0\0\x14"
         "ftypheix\0\0\0\0mif1"s,
         Kind::Heic},
        {"\0\0\0\x18"
         "ftypmif1\0\0\0\0mif1avif"s,
         Kind::Avif},
        {"\0\0\0\x18"
         "ftypmif1\0\0\0\0mif1heic"s,
         Kind::Heic},
        {"\0\0\0\x10"
         "ftypmif1\0\0\0\0"s,
         Kind::Heic},
        {At(3000, "TRUEVISION-XFILE.\0"s), Kind::Tga},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.bytes.substr(0, 16));
        EXPECT_EQ(OfBytes(row.bytes), row.kind);
        EXPECT_EQ(OfBytes(row.bytes, "/a/b.cmp"), row.kind);
        // A mark cut short is none.
        EXPECT_NE(OfBytes(row.bytes.substr(0, 1)), row.kind);
    }
}

TEST(Kinds, WeakMarksNeedMoreThanOneByte) {
    for (const std::string& bytes :
         {"\n"s,
          "\nA text that begins with an empty line, and goes on for some while so that there "
          "is something where the planes would be."s,
          "\0\1"s, "\0\1\0\x08\0\0\0\0"s, "\xFFWPC\x10\0\0\0\1\x0A"s /* a text */,
          "\0\0\0\x18"
          "ftypisom\0\0\0\0mif1avif"s /* a film */,
          "\0\0\0\x18"
          "ftypqt  "s}) {
        EXPECT_EQ(OfBytes(bytes), Kind::None) << bytes;
    }
    std::string pcx = "\x0A\5\1\x08"s + std::string(61, 0) + "\3"s;
    for (const auto& [offset, wrong] :
         {std::pair{1u, '\1'}, {1u, '\6'}, {2u, '\2'}, {3u, '\3'}, {65u, '\0'}, {65u, '\5'}}) {
        std::string changed = pcx;
        changed[offset] = wrong;
        EXPECT_EQ(OfBytes(changed), Kind::None) << offset;
    }
}

TEST(Kinds, TheTwoBytesOfAPctAreOthersByChance) {
    const std::string pct = "\x01\0\0\0\0\0\0\x05\0\x07\x11\x01"s;
    EXPECT_EQ(OfBytes(pct), Kind::Pct);
    EXPECT_EQ(OfBytes(At(512, pct)), Kind::Pct);
    EXPECT_EQ(OfBytes(pct, "a.tga"), Kind::Tga);
    EXPECT_EQ(OfBytes(pct + At(20, "TRUEVISION-XFILE.\0"s)), Kind::Tga);
    EXPECT_EQ(OfBytes(At(512, pct), "a.pcx"), Kind::Pcx);
    // 274 rows, of which the last is row 273, or 11 01 with the small end first.
    const std::string pcx = "\x0A\5\1\x08\0\0\0\0\x2C\0\x11\x01"s + std::string(53, 0) + "\3"s;
    EXPECT_EQ(OfBytes(pcx), Kind::Pcx);
    // The same number as a row of the origin.
    const std::string tga = "\0\0\2\0\0\0\0\0\0\0\x11\x01\x2D\0\x1F\0\x18\0"s;
    EXPECT_EQ(OfBytes(tga, "a.tga"), Kind::Tga);
    EXPECT_EQ(OfBytes(tga), Kind::None);
    EXPECT_EQ(OfBytes(At(522, "\x11\x01"), "a"), Kind::None);
    for (const char* frame : {"\0\5\0\0\0\5\0\7", "\0\0\0\7\0\5\0\7", "\0\0\0\0\xFF\xFF\0\7"}) {
        EXPECT_EQ(OfBytes("\1\0"s + std::string(frame, 8) + "\x11\x01"s), Kind::None);
    }
}

TEST(Kinds, EveryExtensionOfFilesWithoutMark) {
    const std::string nothing(200, '\x55');
    const std::pair<const char*, Kind> rows[] = {
        {"tga", Kind::Tga}, {"icb", Kind::Tga},  {"vda", Kind::Tga}, {"vst", Kind::Tga},
        {"pcx", Kind::Pcx}, {"cal", Kind::Cal},  {"mac", Kind::Mac}, {"img", Kind::Img},
        {"pct", Kind::Pct}, {"pict", Kind::Pct}, {"eps", Kind::Eps}, {"pcd", Kind::Pcd},
    };
    for (const auto& [extension, kind] : rows) {
        const std::string lower = extension;
        std::string upper = lower;
        std::ranges::transform(upper, upper.begin(), [](char c) { return c - 'a' + 'A'; });
        for (const std::string& name : {"a." + lower, "a." + upper, "/x.y/a.b." + lower,
                                        "C:\\x.png\\a." + upper, "." + lower}) {
            EXPECT_EQ(OfBytes(nothing, name), kind) << name;
        }
    }
    for (const char* name : {"a.cmp", "a.CMP", "a", "", ".", "/x.tga/a", "C:\\x.tga\\a", "a.tgaa",
                             "a.tg", "tga", "a.tga.", "a.png", "a.psd", "a.jxl"}) {
        EXPECT_EQ(OfBytes(nothing, name), Kind::None) << name;
    }
}

TEST(Kinds, ContentBeatsTheExtension) {
    EXPECT_EQ(OfBytes("8BPS\0\1"s, "a.tga"), Kind::Psd);
    EXPECT_EQ(OfBytes("%!PS-Adobe", "a.pcx"), Kind::Eps);
    EXPECT_EQ(OfBytes("DanM", "a.cmp"), Kind::Msp);
}

TEST(Kinds, EmptyAndOneByteFiles) {
    EXPECT_EQ(sandbox::KindOf("", "", "a.tga"), Kind::None);
    for (int byte = 0; byte < 256; ++byte) {
        const std::string bytes(1, static_cast<char>(byte));
        EXPECT_EQ(OfBytes(bytes), Kind::None) << byte;
        EXPECT_EQ(OfBytes(bytes, "a.tga"), Kind::Tga) << byte;
    }
}

/// Samples are called <kind>_<variant>, whatever wrote them.
TEST(Kinds, EverySampleIsItsKind) {
    const std::pair<const char*, Kind> kinds[] = {
        {"psd", Kind::Psd},   {"tga", Kind::Tga},   {"pcx", Kind::Pcx}, {"cal", Kind::Cal},
        {"mac", Kind::Mac},   {"img", Kind::Img},   {"msp", Kind::Msp}, {"wpg", Kind::Wpg},
        {"ras", Kind::Ras},   {"pct", Kind::Pct},   {"eps", Kind::Eps}, {"pcd", Kind::Pcd},
        {"avif", Kind::Avif}, {"heic", Kind::Heic}, {"jxl", Kind::Jxl},
    };
    int seen = 0;
    for (const auto& entry : std::filesystem::directory_iterator(PARAPICO_SAMPLES)) {
        const std::string name = entry.path().filename().string();
        if (!entry.is_regular_file()) {
            continue;
        }
        std::ifstream file(entry.path(), std::ios::binary);
        const std::string bytes{std::istreambuf_iterator<char>(file), {}};
        for (const auto& [prefix, kind] : kinds) {
            if (!name.starts_with(prefix + "_"s)) {
                continue;
            }
            ++seen;
            EXPECT_EQ(OfBytes(bytes, name), kind) << name;
            // Without help of the name, but for kinds of which not every file has a mark.
            if (kind != Kind::Tga && name != "mac_bare.mac" && name != "mac_netpbm.mac") {
                EXPECT_EQ(OfBytes(bytes, "name"), kind) << name;
            }
        }
    }
    EXPECT_GT(seen, 100);
}

}  // namespace
