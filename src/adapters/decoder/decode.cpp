#include "adapters/decoder/decode.h"

#include <exception>

#include "adapters/decoder/cals.h"
#include "adapters/decoder/ffmpeg.h"
#include "adapters/decoder/ghostscript.h"
#include "adapters/decoder/graphicsmagick.h"
#include "adapters/decoder/msp.h"

namespace decoder {

namespace {

using sandbox::Kind;
using Bytes = std::span<const uint8_t>;

struct Row {
    Kind kind;
    std::optional<Picture> (*decode)(Bytes file);
};
constexpr Row kDecoders[] = {
    {Kind::Psd, DecodePsd},
    {Kind::Tga, DecodeTga},
    {Kind::Pcx, [](Bytes file) { return DecodeByMagick("PCX", file); }},
    {Kind::Cal, DecodeCals},
    {Kind::Mac, [](Bytes file) { return DecodeByMagick("MAC", file); }},
    {Kind::Img, DecodeImg},
    {Kind::Msp, DecodeMsp},
    {Kind::Wpg, [](Bytes file) { return DecodeByMagick("WPG", file); }},
    {Kind::Ras, DecodeRas},
    {Kind::Pct, DecodePct},
    {Kind::Pcd, [](Bytes file) { return DecodeByMagick("PCD", file); }},
    {Kind::Avif, [](Bytes file) { return DecodeByMagick("AVIF", file); }},
    {Kind::Heic, [](Bytes file) { return DecodeByMagick("HEIC", file); }},
    {Kind::Tif, [](Bytes file) { return DecodeByMagick("TIFF", file); }},
    {Kind::Bmp, DecodeBmp},
    {Kind::Jxl, [](Bytes file) { return DecodeByMagick("JXL", file); }},
};

}  // namespace

void WarmUp() {
    WarmUpMagick();
    WarmUpFfmpeg();
    WarmUpGhostscript();
}

std::optional<Picture> Decode(Kind kind, Bytes file, platform::Size wanted) {
    try {
        if (file.empty()) {
            return std::nullopt;
        }
        if (kind == Kind::Eps) {
            return DrawPostScript(file, wanted);
        }
        for (const Row& row : kDecoders) {
            if (row.kind == kind) {
                return row.decode(file);
            }
        }
    } catch (const std::exception&) {
        // Memory, mostly: no picture then.
    }
    return std::nullopt;
}

}  // namespace decoder
