#include "adapters/sandbox/kind.h"

#include <algorithm>
#include <cstddef>

namespace sandbox {

namespace {

using namespace std::string_view_literals;

/// The same bytes at the same place in every file of the kind.
struct Mark {
    Kind kind;
    size_t offset;
    std::string_view bytes;
};
/// After the size and the frame.
constexpr size_t kPctMark = 10;
constexpr std::string_view kSecondPct = "\0\x11\x02\xFF"sv;
constexpr Mark kMarks[] = {
    {Kind::Psd, 0, "8BPS"},
    {Kind::Ras, 0, "\x59\xA6\x6A\x95"},
    {Kind::Jxl, 0, "\xFF\x0A"},
    {Kind::Jxl, 0, "\0\0\0\x0CJXL \r\n\x87\n"sv},
    {Kind::Eps, 0, "%!PS"},
    {Kind::Eps, 0, "\x04%!PS"},          // a printer's end-of-job byte before it
    {Kind::Eps, 0, "\xC5\xD0\xD3\xC6"},  // with a preview
    {Kind::Msp, 0, "DanM"},
    {Kind::Msp, 0, "LinS"},
    {Kind::Pcd, 0, "PCD_OPA"},
    {Kind::Pcd, 2048, "PCD_IPI"},
    {Kind::Cal, 0, "srcdocid:"},
    {Kind::Pct, kPctMark, kSecondPct},
    {Kind::Pct, kPctHead + kPctMark, kSecondPct},
};
constexpr std::string_view kTgaFooter = "TRUEVISION-XFILE.\0"sv;

/// Brands of the boxed kinds; a picture file says first what it mainly is.
struct Brand {
    std::string_view name;
    Kind kind;
};
constexpr Brand kBrands[] = {
    {"avif", Kind::Avif}, {"avis", Kind::Avif}, {"heic", Kind::Heic}, {"heix", Kind::Heic},
    {"heim", Kind::Heic}, {"heis", Kind::Heic}, {"hevc", Kind::Heic}, {"hevx", Kind::Heic},
};

/// Kinds whose files may be without a mark.
struct Extension {
    std::string_view name;
    Kind kind;
};
constexpr Extension kExtensions[] = {
    {"tga", Kind::Tga}, {"icb", Kind::Tga},  {"vda", Kind::Tga}, {"vst", Kind::Tga},
    {"pcx", Kind::Pcx}, {"cal", Kind::Cal},  {"mac", Kind::Mac}, {"img", Kind::Img},
    {"pct", Kind::Pct}, {"pict", Kind::Pct}, {"eps", Kind::Eps}, {"pcd", Kind::Pcd},
};

bool StandsAt(std::string_view data, size_t offset, std::string_view bytes) {
    return data.size() >= offset + bytes.size() && data.substr(offset, bytes.size()) == bytes;
}

int ByteAt(std::string_view data, size_t offset) {
    return offset < data.size() ? static_cast<unsigned char>(data[offset]) : -1;
}

int Big16(std::string_view data, size_t offset) {
    return offset + 1 < data.size() ? ByteAt(data, offset) << 8 | ByteAt(data, offset + 1) : -1;
}

bool IsPcx(std::string_view start) {
    const int version = ByteAt(start, 1), encoding = ByteAt(start, 2), bits = ByteAt(start, 3);
    const int planes = ByteAt(start, 65);
    return ByteAt(start, 0) == 0x0A && version >= 0 && version <= 5 && version != 1 &&
           (encoding == 0 || encoding == 1) && (bits == 1 || bits == 2 || bits == 4 || bits == 8) &&
           planes >= 1 && planes <= 4;
}

bool IsImg(std::string_view start) {
    const int headWords = Big16(start, 2), planes = Big16(start, 4), pattern = Big16(start, 6);
    constexpr int kMostWords = 2048;
    return Big16(start, 0) == 1 && headWords >= 8 && headWords <= kMostWords && planes >= 1 &&
           planes <= 32 && pattern >= 1 && pattern <= 8 && Big16(start, 12) > 0 &&
           Big16(start, 14) > 0;
}

/// The word processor's texts begin alike; the tenth byte says that this one is a picture.
bool IsWpg(std::string_view start) {
    return start.starts_with("\xFFWPC") && ByteAt(start, 9) == 0x16;
}

/// A picture in the envelope that keeps both halves of such a file together.
bool IsMac(std::string_view start) {
    return ByteAt(start, 0) == 0 && StandsAt(start, 65, "PNTG");
}

Kind BrandOf(std::string_view start) {
    if (!StandsAt(start, 4, "ftyp")) {
        return Kind::None;
    }
    const size_t boxEnd =
        std::min<size_t>(start.size(), static_cast<size_t>(std::max(0, Big16(start, 0)) << 16) +
                                           static_cast<size_t>(std::max(0, Big16(start, 2))));
    // General brands (mif1) stand first at times, and the coding's own among those that follow.
    // What is mainly a film may list a picture's brand as well.
    const bool general = StandsAt(start, 8, "mif1") || StandsAt(start, 8, "msf1");
    for (size_t at = 8; at == 8 || (general && at + 4 <= boxEnd); at += at == 8 ? 8 : 4) {
        for (const Brand& brand : kBrands) {
            if (StandsAt(start, at, brand.name)) {
                return brand.kind;
            }
        }
    }
    return general ? Kind::Heic : Kind::None;
}

Kind KindOfContent(std::string_view start, std::string_view end) {
    for (const Mark& mark : kMarks) {
        if (StandsAt(start, mark.offset, mark.bytes)) {
            return mark.kind;
        }
    }
    if (const Kind kind = BrandOf(start); kind != Kind::None) {
        return kind;
    }
    struct Test {
        Kind kind;
        bool holds;
    };
    for (const Test& test : {Test{Kind::Wpg, IsWpg(start)}, Test{Kind::Mac, IsMac(start)},
                             Test{Kind::Tga, end.ends_with(kTgaFooter)},
                             Test{Kind::Pcx, IsPcx(start)}, Test{Kind::Img, IsImg(start)}}) {
        if (test.holds) {
            return test.kind;
        }
    }
    return Kind::None;
}

Kind KindOfName(std::string_view name) {
    const size_t separator = name.find_last_of("/\\");
    const std::string_view bare =
        separator == std::string_view::npos ? name : name.substr(separator + 1);
    const size_t dot = bare.rfind('.');
    if (dot == std::string_view::npos) {
        return Kind::None;
    }
    const std::string_view extension = bare.substr(dot + 1);
    const auto sameLetter = [](char a, char b) {
        return a == (b >= 'A' && b <= 'Z' ? static_cast<char>(b - 'A' + 'a') : b);
    };
    for (const Extension& known : kExtensions) {
        if (std::ranges::equal(known.name, extension, sameLetter)) {
            return known.kind;
        }
    }
    return Kind::None;
}

/// Two bytes that many a file has by chance: only with a frame that encloses something.
bool IsFirstPct(std::string_view start, size_t at) {
    const auto side = [&](size_t offset) {
        return static_cast<int16_t>(Big16(start, at + offset));
    };
    const int top = side(2), left = side(4), bottom = side(6), right = side(8);
    return StandsAt(start, at + kPctMark, "\x11\x01") && top < bottom && left < right;
}

}  // namespace

bool IsPctAt(std::string_view data, size_t at) {
    return StandsAt(data, at + kPctMark, kSecondPct) || IsFirstPct(data, at);
}

Kind KindOf(std::string_view start, std::string_view end, std::string_view name) {
    if (start.empty()) {
        return Kind::None;
    }
    Kind kind = KindOfContent(start, end);
    kind = kind != Kind::None ? kind : KindOfName(name);
    const bool weakPct = kind == Kind::None && (IsPctAt(start, 0) || IsPctAt(start, kPctHead));
    return weakPct ? Kind::Pct : kind;
}

}  // namespace sandbox
