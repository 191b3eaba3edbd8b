// Pictures that are small as files and huge, or endless, as work.
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <cstdio>
#include <fstream>
#include <optional>
#include <string>
#include <tuple>

#include "imaging/imaging_support.h"

namespace {

using platform::Size;

// Headers of pictures of 30000 × 30000 pixels, 3.6 GB decoded, with a few bytes where their pixels
// should be.

std::string Number(uint32_t value, int bytes) {
    std::string result;
    for (int i = 0; i < bytes; ++i) {
        result.push_back(static_cast<char>(value & 0xFF));
        value >>= 8;
    }
    return result;
}

std::string LyingBmp(uint32_t side) {
    return "BM" + Number(1000, 4) + Number(0, 4) + Number(54, 4) + Number(40, 4) + Number(side, 4) +
           Number(side, 4) + Number(1, 2) + Number(24, 2) + Number(0, 24) + std::string(200, 'x');
}

std::string LyingGif(uint32_t side) {
    const std::string sides = Number(side, 2) + Number(side, 2);
    return "GIF89a" + sides + std::string("\x80\0\0\0\0\0\xFF\xFF\xFF", 9) + "," + Number(0, 4) +
           sides + std::string("\0\2\2\x44\1\0;", 7);
}

std::string LyingTiff(uint32_t side) {
    std::string file = std::string("II*\0", 4) + Number(8, 4) + Number(9, 2);
    const auto entry = [&](uint32_t tag, uint32_t value) {
        file += Number(tag, 2) + Number(4, 2) + Number(1, 4) + Number(value, 4);
    };
    entry(0x100, side);
    entry(0x101, side);
    entry(0x102, 8);
    entry(0x103, 1);
    entry(0x106, 1);
    entry(0x111, 200);
    entry(0x115, 1);
    entry(0x116, side);
    entry(0x117, 100);
    return file + Number(0, 4) + std::string(300, 'x');
}

/// The lossless kind, whose header holds 14 bits for a side less one.
std::string LyingWebP() {
    const std::string data = "\x2F" + Number(16383u | 16383u << 14, 4) + std::string(40, '\x55');
    const std::string chunk = "VP8L" + Number(static_cast<uint32_t>(data.size()), 4) + data + "x";
    return "RIFF" + Number(static_cast<uint32_t>(chunk.size()) + 4, 4) + "WEBP" + chunk;
}

/// Most memory that this process had since the last call, in MiB.
int64_t PeakMemory() {
    int64_t peak = 0;
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with("VmHWM:")) {
            peak = std::stoll(line.substr(6)) >> 10;
        }
    }
    std::ofstream("/proc/self/clear_refs") << 5;
    return peak;
}

TEST(LyingHeaders, AreRefusedBeforeTheyCostMemory) {
    ImagingFolder folder;
    const auto control = folder.Control();
    const std::pair<const char*, std::string> files[] = {
        {"bmp", LyingBmp(30000)},      {"gif", LyingGif(60000)},
        {"tif", LyingTiff(30000)},     {"tif", LyingTiff(0x7FFFFFFF)},
        {"bmp", LyingBmp(0x7FFFFFFF)}, {"png", PngHeader(30000, 30000).toStdString()}};
    PeakMemory();
    const int64_t before = PeakMemory();
    for (const auto& [kind, bytes] : files) {
        const Text path =
            folder.Put(std::string("lying.") + kind, QByteArray::fromStdString(bytes));
        EXPECT_FALSE(control->Load(path, {})) << kind;
        EXPECT_FALSE(control->Load(path, [](Size) { return Size{100, 100}; })) << kind;
        EXPECT_LT(PeakMemory(), before + 64) << kind;
    }
    // 16384 × 16384 is just within the bound, but there is nothing to fill it.
    EXPECT_FALSE(
        control->Load(folder.Put("lying.webp", QByteArray::fromStdString(LyingWebP())), {}));
    EXPECT_TRUE(control->Load(folder.Put("good.bmp", Encoded(Quarters(8, 8), "bmp")), {}));
}

constexpr const char* kSvg =
    "<svg xmlns='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink' "
    "width='100' height='100'>";

std::string Repeated(const std::string& text, int count) {
    std::string result;
    for (int i = 0; i < count; ++i) {
        result += text;
    }
    return result;
}

/// Every level shows the one below ten times.
std::string NestedUses(int levels) {
    std::string result = std::string(kSvg) + "<g id='l0'><rect width='9' height='9'/></g>";
    for (int i = 1; i <= levels; ++i) {
        result += "<g id='l" + std::to_string(i) + "'>" +
                  Repeated("<use xlink:href='#l" + std::to_string(i - 1) + "'/>", 10) + "</g>";
    }
    return result + "</svg>";
}

std::string EntityBomb() {
    std::string result = "<!DOCTYPE svg [<!ENTITY e0 'aaaaaaaaaa'>";
    for (int i = 1; i <= 9; ++i) {
        result += "<!ENTITY e" + std::to_string(i) + " '" +
                  Repeated("&e" + std::to_string(i - 1) + ";", 10) + "'>";
    }
    return result + "]>" + kSvg + "<text>&e9;</text></svg>";
}

std::string ManyStops() {
    std::string result = std::string(kSvg) + "<linearGradient id='g'>";
    for (int i = 0; i < 100000; ++i) {
        result += "<stop offset='" + std::to_string(i / 100000.0) + "' stop-color='red'/>";
    }
    return result + "</linearGradient><rect width='9' height='9' fill='url(#g)'/></svg>";
}

/// Whether any pixel differs from the ground.
bool ShowsSomething(const platform::Bitmap& bitmap) {
    return std::any_of(bitmap.pixels.begin(), bitmap.pixels.end(),
                       [](platform::Pixel pixel) { return pixel != 0xFFFFFFFFu; });
}

/// Of the processor, not of the clock: a machine that stands still spends none.
double SecondsOfEndedProcesses() {
    rusage used{};
    getrusage(RUSAGE_CHILDREN, &used);
    return static_cast<double>(used.ru_utime.tv_sec + used.ru_stime.tv_sec) +
           static_cast<double>(used.ru_utime.tv_usec + used.ru_stime.tv_usec) / 1e6;
}

TEST(HostileDrawings, CostTheirSlideAndNoMore) {
    // Short for those that may take for ever, and without haste for those that are to load.
    constexpr int kLimit = 1500, kLongLimit = 600000;
    ImagingFolder patient({"", {}, kLongLimit});
    const auto patientControl = patient.Control();
    const std::string fifo = patient.Folder().Path("fifo.png");
    ASSERT_EQ(mkfifo(fifo.c_str(), 0600), 0);
    const std::string image = "<image width='50' height='50' xlink:href='";
    // A drawing that takes no time may be read or refused.
    using Loads = std::optional<bool>;
    const std::tuple<const char*, std::string, Loads> drawings[] = {
        {"uses", NestedUses(10), {}},
        {"entities", EntityBomb(), {}},
        {"stops", ManyStops(), false},
        {"styles",
         kSvg + ("<style>" + Repeated("a b c d e f g {fill:red}", 20000)) + "</style>" +
             Repeated("<g class='x'>", 2000) + Repeated("</g>", 2000) + "</svg>",
         false},
        {"depth", kSvg + Repeated("<g>", 200000) + Repeated("</g>", 200000) + "</svg>", {}},
        {"fifo", kSvg + image + fifo + "'/></svg>", true},
        {"device", kSvg + image + "/dev/zero'/></svg>", true},
        {"sizes", "<svg xmlns='http://www.w3.org/2000/svg' width='1e30' height='1e30'/>", false},
        {"filter",
         std::string(kSvg) + "<filter id='f' x='-1e9' y='-1e9' width='2e9' height='2e9'>"
                             "<feGaussianBlur stdDeviation='1e9'/></filter>"
                             "<rect filter='url(#f)' width='9' height='9'/></svg>",
         {}},
        {"dashes",
         std::string(kSvg) + "<path d='M0 0L1e9 1e9' stroke='red' stroke-dasharray='1e-9'/></svg>",
         {}}};
    for (const auto& [name, text, loads] : drawings) {
        SCOPED_TRACE(name);
        const Text path = patient.Put(std::string(name) + ".svg", QByteArray::fromStdString(text));
        if (loads == true) {
            EXPECT_TRUE(patientControl->ReadInformation(path) && patientControl->Load(path, {}));
            continue;
        }
        const double before = SecondsOfEndedProcesses();
        {
            ImagingFolder folder({"", {}, kLimit});
            const auto control = folder.Control();
            const bool loaded = control->ReadInformation(path) && control->Load(path, {});
            EXPECT_EQ(loaded, loads.value_or(loaded));
        }
        // Measuring has a third of the limit, drawing the whole; a busy machine some more. Without
        // the limit it is what the process allows itself.
        EXPECT_LT(SecondsOfEndedProcesses() - before, 5 * kLimit / 1000.0);
    }
    const auto text = kSvg + std::string("<text y='80' font-size='80'>\xE5\xAD\x97</text></svg>");
    ASSERT_TRUE(patientControl->Load(patient.Put("good.svg", QByteArray::fromStdString(text)), {}));
    EXPECT_TRUE(ShowsSomething(*patientControl->Picture()));
}

TEST(HostileDrawings, OpenNoFileThatTheyName) {
    ImagingFolder folder;
    const auto control = folder.Control();
    folder.Put("black.png", Encoded(Quarters(50, 50), "png"));
    const std::string file = folder.Folder().Path("black.png");
    for (const std::string& reference : {file, "file://" + file, std::string("black.png")}) {
        const std::string text = std::string(kSvg) + "<image width='50' height='50' xlink:href='" +
                                 reference + "'/></svg>";
        ASSERT_TRUE(control->Load(folder.Put("a.svg", QByteArray::fromStdString(text)), {}));
        EXPECT_FALSE(ShowsSomething(*control->Picture())) << reference;
    }
    // A picture within the drawing is the drawing's own.
    const QByteArray inner = Encoded(Quarters(50, 50), "png").toBase64();
    const QByteArray text = QByteArray(kSvg) +
                            "<image width='50' height='50' xlink:href='data:image/png;base64," +
                            inner + "'/></svg>";
    ASSERT_TRUE(control->Load(folder.Put("a.svg", text), {}));
    EXPECT_TRUE(ShowsSomething(*control->Picture()));
}

}  // namespace
