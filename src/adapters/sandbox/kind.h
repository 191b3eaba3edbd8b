// Kinds of pictures that are decoded in a process of their own.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace sandbox {

/// The numbers stand in messages between program and decoder.
enum class Kind : uint8_t {
    None = 0,
    Psd = 1,
    Tga = 2,
    Pcx = 3,
    Cal = 4,
    Mac = 5,
    Img = 6,
    Msp = 7,
    Wpg = 8,
    Ras = 9,
    Pct = 10,
    Eps = 11,
    Pcd = 12,
    Avif = 13,
    Heic = 14,
    Jxl = 15,
    Svg = 16,  // read by the toolkit, but not in the program's process; KindOf does not look for it
    // What the toolkit reads wrongly or not at all of its own kinds.
    Tif = 17,
    Bmp = 18,
};
constexpr uint8_t kLastKind = 18;

/// Bytes of a file's start and of its end that KindOf wants to see, fewer where it is shorter.
constexpr size_t kStartBytes = 4096;
constexpr size_t kEndBytes = 64;

/// Bytes of the empty head that a pct has as a file.
constexpr size_t kPctHead = 512;

/// Whether a pct's contents, of either version, begin at this byte: 0 as on the clipboard, kPctHead
/// in a file.
bool IsPctAt(std::string_view data, size_t at);

/// By the content where the file has a mark; else, for the kinds whose files may be without one, by
/// the name's extension, without case; last by a mark so short that others may have it by chance.
/// `name` is a path or a bare name. An empty file is no picture.
Kind KindOf(std::string_view start, std::string_view end, std::string_view name);

}  // namespace sandbox
