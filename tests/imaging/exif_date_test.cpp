// The date on which a photograph was taken, out of files that may say anything.
#include <gtest/gtest.h>

#include <QImage>
#include <random>

#include "adapters/imaging/exif_date.h"
#include "imaging_support.h"

namespace imaging {
namespace {

using platform::DateTime;

const std::string kTaken("2024:05:06 07:08:09", 20), kChanged("2025:01:02 03:04:05", 20);

std::string Number(uint64_t value, int bytes, bool little = false) {
    std::string result;
    for (int i = 0; i < bytes; ++i) {
        const int place = little ? i : bytes - 1 - i;
        result += static_cast<char>(value >> (8 * place) & 255);
    }
    return result;
}

struct Words {
    std::string taken = kTaken, changed = kChanged;  // empty: not there
    bool little = false;
};

/// A TIFF header, a directory with DateTime and the way to another one, with DateTimeOriginal.
std::string Tiff(const Words& words) {
    const auto number = [&](uint64_t value, int bytes) {
        return Number(value, bytes, words.little);
    };
    const auto entry = [&](uint64_t tag, uint64_t kind, uint64_t count, uint64_t value) {
        return number(tag, 2) + number(kind, 2) + number(count, 4) + number(value, 4);
    };
    const bool second = !words.taken.empty(), first = !words.changed.empty();
    const uint64_t mainEntries = 1 + uint64_t{first} + uint64_t{second};
    const uint64_t exif = 8 + 2 + mainEntries * 12 + 4;
    const uint64_t dates = exif + 2 + 12 + 4;
    std::string bytes = (words.little ? "II" : "MM") + number(42, 2) + number(8, 4);
    bytes += number(mainEntries, 2) + entry(0x0112, 3, 1, 0);
    bytes += first ? entry(0x0132, 2, 20, dates) : "";
    bytes += second ? entry(0x8769, 4, 1, exif) : "";
    bytes += number(0, 4) + number(1, 2) + entry(0x9003, 2, 20, dates + 20) + number(0, 4);
    return bytes + (first ? words.changed : std::string(20, ' ')) + words.taken;
}

std::string Jpeg(const std::string& tiff) {
    const std::string content = std::string("Exif\0\0", 6) + tiff;
    return "\xFF\xD8\xFF\xE0" + Number(7, 2) + "JFIF\x01" + "\xFF\xFF\xE1" +
           Number(content.size() + 2, 2) + content + "\xFF\xDA" + Number(2, 2);
}

std::string Chunk(const std::string& kind, const std::string& content) {
    return Number(content.size(), 4) + kind + content + "sum.";
}

std::string Png(const std::string& tiff) {
    return "\x89PNG\r\n\x1A\n" + Chunk("IHDR", std::string(13, '\1')) + Chunk("eXIf", tiff) +
           Chunk("IEND", "");
}

std::string Box(const std::string& kind, const std::string& content) {
    return Number(content.size() + 8, 4) + kind + content;
}

/// Item 7 is the Exif one; the picture is item 5. `version` is that of the table of places.
std::string Heic(const std::string& tiff, int version) {
    const std::string item = Number(6, 4) + std::string("Exif\0\0", 6) + tiff;
    const std::string type = Box("ftyp", "heic" + Number(0, 4) + "mif1");
    const auto info = [](int id, const std::string& kind) {
        return Box("infe", Number(2, 1) + Number(0, 3) + Number(id, 2) + Number(0, 2) + kind +
                               std::string(1, '\0'));
    };
    const std::string names =
        Box("iinf", Number(0, 4) + Number(2, 2) + info(5, "hvc1") + info(7, "Exif"));
    const int idBytes = version == 2 ? 4 : 2;
    const auto place = [&](int id, uint64_t at, uint64_t length) {
        return Number(id, idBytes) + (version > 0 ? Number(0, 2) : "") + Number(0, 2) +
               Number(1, 2) + Number(at, 4) + Number(length, 4);
    };
    const auto meta = [&](uint64_t at) {
        return Box("meta", Number(0, 4) + Box("hdlr", "pict") + names +
                               Box("iloc", Number(version, 1) + Number(0, 3) + "\x44" +
                                               std::string(1, '\0') + Number(2, idBytes) +
                                               place(5, 1, 1) + place(7, at, item.size())));
    };
    const uint64_t at = type.size() + meta(0).size() + 8;
    return type + meta(at) + Box("mdat", item);
}

std::optional<DateTime> Of(const std::string& file) {
    return DateTaken([&](uint64_t at, size_t count) {
        return at < file.size() ? file.substr(at, count) : std::string();
    });
}

Text Said(const std::string& file) {
    const auto taken = Of(file);
    return taken ? platform::DateTimeText(*taken) : Text();
}

std::vector<std::string> EveryKind(const Words& words) {
    const std::string tiff = Tiff(words);
    return {tiff, Jpeg(tiff), Png(tiff), Heic(tiff, 0), Heic(tiff, 1), Heic(tiff, 2)};
}

TEST(DateTaken, IsTheCamerasElseThatOfTheLastChange) {
    for (const bool little : {false, true}) {
        for (const std::string& file : EveryKind({kTaken, kChanged, little})) {
            EXPECT_EQ(Said(file), u"2024/05/06 07:08:09");
        }
        for (const std::string& file : EveryKind({"", kChanged, little})) {
            EXPECT_EQ(Said(file), u"2025/01/02 03:04:05");
        }
        for (const std::string& file : EveryKind({kTaken, "", little})) {
            EXPECT_EQ(Said(file), u"2024/05/06 07:08:09");
        }
        for (const std::string& file : EveryKind({"", "", little})) {
            EXPECT_EQ(Said(file), u"");
        }
    }
}

TEST(DateTaken, MustBeOneOfTheCalendar) {
    for (const char* bad : {"0000:00:00 00:00:00", "2024:13:01 00:00:00", "2023:02:29 00:00:00",
                            "2024:01:01 24:00:00", "    :  :     :  :  ", "2024-01-01 00:00:00",
                            "2024:01:01T00:00:00", "+024:01:01 00:00:00", "2024: 1: 1 00:00:00"}) {
        EXPECT_EQ(Said(Tiff({std::string(bad, 20), ""})), u"") << bad;
        EXPECT_EQ(Said(Tiff({std::string(bad, 20), kChanged})), u"2025/01/02 03:04:05")
            << "a camera whose clock was never set: " << bad;
    }
    EXPECT_EQ(Said(Tiff({std::string("2024:02:29 23:59:59", 20), ""})), u"2024/02/29 23:59:59");
}

TEST(DateTaken, ComesFromPicturesThatTheToolkitWrites) {
    for (const char* kind : {"jpg", "png", "tiff", "bmp"}) {
        EXPECT_EQ(Said(Encoded(Quarters(40, 30), kind).toStdString()), u"") << kind;
    }
    EXPECT_EQ(Said(WithOrientation(Encoded(Quarters(40, 30), "jpg"), 6).toStdString()), u"");
    EXPECT_EQ(Said(""), u"");
    EXPECT_EQ(Said("no picture at all, and never was one"), u"");
}

/// What is read of a file, and how often.
struct Reading {
    size_t bytes = 0, times = 0;
};

Reading Count(const std::string& file) {
    Reading reading;
    DateTaken([&](uint64_t at, size_t count) {
        ++reading.times;
        reading.bytes += count;
        return at < file.size() ? file.substr(at, count) : std::string();
    });
    return reading;
}

TEST(DateTaken, ReadsLittleOfAFileThatGoesOnForEver) {
    std::string segments = "\xFF\xD8", chunks = "\x89PNG\r\n\x1A\n";
    std::string boxes = Box("ftyp", "heic" + Number(0, 4));
    for (int i = 0; i < 100000; ++i) {
        segments += "\xFF\xE1" + Number(4, 2) + "xx";
        chunks += Chunk("tEXt", "");
        boxes += Box("free", "abcd");
    }
    for (const std::string& file :
         {segments, chunks, boxes, "\xFF\xD8" + std::string(1 << 20, '\xFF'),
          Box("ftyp", "heic") + Number(1 << 30, 4) + "meta"}) {
        const Reading reading = Count(file);
        EXPECT_LE(reading.times, 600u);
        EXPECT_LE(reading.bytes, 4u << 20);
    }
    // A directory that leads to itself, with as many entries as it can name.
    std::string loop = "MM" + Number(42, 2) + Number(8, 4) + Number(65535, 2);
    for (int i = 0; i < 65535; ++i) {
        loop += Number(0x8769, 2) + Number(4, 2) + Number(1, 4) + Number(8, 4);
    }
    EXPECT_EQ(Said(loop), u"");
    EXPECT_LE(Count(loop).bytes, 4u << 20);
}

TEST(DateTaken, DamageNeverLeadsAstray) {
    std::mt19937 random(1);
    const auto pick = [&](size_t below) { return static_cast<size_t>(random() % below); };
    for (const std::string& whole : EveryKind({kTaken, kChanged, true})) {
        for (size_t length = 0; length < whole.size(); ++length) {
            Of(whole.substr(0, length));
        }
        for (int i = 0; i < 20000; ++i) {
            std::string damaged = whole;
            for (size_t flips = 1 + pick(4); flips > 0; --flips) {
                char& byte = damaged[pick(damaged.size())];
                byte = pick(3) == 0 ? '\xFF' : static_cast<char>(random());
            }
            const Reading reading = Count(damaged);
            ASSERT_LE(reading.bytes, 4u << 20);
            ASSERT_LE(reading.times, 4096u);
        }
    }
}

}  // namespace
}  // namespace imaging
