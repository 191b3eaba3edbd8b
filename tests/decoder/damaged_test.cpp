// Files that are broken off, empty or say wrong things of themselves.
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include "decoder/decoder_support.h"

namespace {

using decoder::Picture;
using sandbox::Kind;

/// No picture, or one that is what it says.
void ExpectSound(Kind kind, const FileBytes& file) {
    const std::optional<Picture> picture = decoder::Decode(kind, file, {});
    if (picture) {
        EXPECT_FALSE(picture->size.Empty());
        EXPECT_EQ(picture->pixels.size(), static_cast<size_t>(picture->size.width) *
                                              static_cast<size_t>(picture->size.height));
    }
}

TEST(Damaged, EveryTruncationIsSurvived) {
    for (const std::string& name : SampleNames()) {
        SCOPED_TRACE(name);
        const Kind kind = KindOfSample(name);
        if (kind == Kind::Eps) {
            continue;  // an interpreter for each would take minutes: they have their own
        }
        const FileBytes whole = Sample(name);
        for (const size_t length :
             {size_t{0}, size_t{1}, size_t{4}, size_t{17}, size_t{40}, whole.size() / 8,
              whole.size() / 3, whole.size() / 2, whole.size() - 1}) {
            ExpectSound(kind, {whole.begin(), whole.begin() + static_cast<ptrdiff_t>(length)});
        }
        EXPECT_FALSE(decoder::Decode(kind, {}, {}));
        // Less than the header is never a picture.
        EXPECT_FALSE(decoder::Decode(kind, std::span(whole).first(4), {}));
    }
}

TEST(Damaged, ChangedBytesAreSurvived) {
    unsigned seed = 11;
    const auto random = [&seed] { return (seed = seed * 1664525u + 1013904223u) >> 8; };
    for (const std::string& name : SampleNames()) {
        SCOPED_TRACE(name);
        const FileBytes whole = Sample(name);
        const Kind kind = KindOfSample(name);
        for (int i = 0; i < 6 && kind != Kind::Eps && whole.size() < 100000; ++i) {
            FileBytes changed = whole;
            for (int j = 0; j < 3; ++j) {
                changed[random() % std::min<size_t>(changed.size(), 600)] =
                    static_cast<uint8_t>(random());
            }
            ExpectSound(kind, changed);
        }
    }
}

/// Where the size stands in the head of a file, and in which byte order.
TEST(Damaged, SizesOfNothingAndOfFarTooMuch) {
    const struct {
        const char* file;
        size_t width, height;  // of two bytes each, within wider numbers too
        int otherBytes = 0;    // how far up the higher half of wider numbers is set as well
    } rows[] = {
        {"psd_rgb_raw.psd", 20, 16}, {"tga_rgb_raw.tga", 12, 14},     {"tga_rgb_runs.tga", 12, 14},
        {"pcx_rgb.pcx", 8, 10},      {"ras_rgb_standard.ras", 6, 10}, {"img_mono.img", 12, 14},
        {"msp_version1.msp", 4, 6},  {"msp_version2.msp", 4, 6},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.file);
        const Kind kind = KindOfSample(row.file);
        FileBytes file = Sample(row.file);
        for (const uint8_t value : {0x00, 0xFF}) {
            for (const size_t at : {row.width, row.height}) {
                file[at] = file[at + 1] = value;
            }
            // A corner of this kind counts from the pixel 0 on: 0 is one pixel.
            const auto picture = decoder::Decode(kind, file, {});
            EXPECT_TRUE(!picture || (kind == Kind::Pcx && value == 0));
        }
    }
    std::string cals(reinterpret_cast<const char*>(Sample("cal_gm.cal").data()), 2415);
    for (const char* size : {"000000,000031", "000045,000000", "065535,065535", "-00045,000031",
                             "999999,999999", "xxxxxx,000031"}) {
        std::string changed = cals;
        changed.replace(changed.find("000045,000031"), 13, size);
        EXPECT_FALSE(decoder::Decode(
            Kind::Cal, {reinterpret_cast<const uint8_t*>(changed.data()), changed.size()}, {}))
            << size;
    }
}

TEST(Damaged, OneKindIsNotReadAsAnother) {
    const FileBytes png = Sample("sources/card_ppm.png");
    for (int kind = 0; kind <= sandbox::kLastKind; ++kind) {
        EXPECT_FALSE(decoder::Decode(static_cast<Kind>(kind), png, {})) << kind;
    }
    EXPECT_FALSE(decoder::Decode(Kind::None, Sample("psd_rgb_raw.psd"), {}));
}

/// What the decoder's process does once it is warm: no file more, and 2 GiB of addresses.
void DecodeAllClosed(const std::vector<std::string>& names, const std::vector<FileBytes>& files) {
    const rlimit none = {0, 0}, memory = {rlim_t{2} << 30, rlim_t{2} << 30};
    setrlimit(RLIMIT_NOFILE, &none);
    setrlimit(RLIMIT_AS, &memory);
    int failed = 0;
    for (size_t i = 0; i < names.size(); ++i) {
        const Kind kind = KindOfSample(names[i]);
        if (kind != Kind::Eps && !decoder::Decode(kind, files[i], {})) {
            fprintf(stderr, "not decoded: %s\n", names[i].c_str());
            ++failed;
        }
    }
    _exit(failed == 0 ? 0 : 1);
}

TEST(Damaged, NothingIsOpenedAfterWarmingUp) {
#if defined(__SANITIZE_ADDRESS__)
    GTEST_SKIP() << "the sanitizers open pipes and take more addresses than any limit";
#endif
    // The child is the program started anew, so that nothing but warming up came before.
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const std::vector<std::string> names = SampleNames();
    std::vector<FileBytes> files;
    for (const std::string& name : names) {
        files.push_back(Sample(name));
    }
    EXPECT_EXIT(DecodeAllClosed(names, files), ::testing::ExitedWithCode(0), "");
}

}  // namespace
