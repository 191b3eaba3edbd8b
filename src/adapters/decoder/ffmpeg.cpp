#include "adapters/decoder/ffmpeg.h"

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavutil/imgutils.h>
#include <libavutil/log.h>
#include <libavutil/pixdesc.h>
#include <libswscale/swscale.h>
}

#include <cstring>
#include <limits>
#include <memory>
#include <string_view>

#include "adapters/decoder/over_white.h"

namespace decoder {

namespace {

using Bytes = std::span<const uint8_t>;

struct Free {
    void operator()(AVCodecContext* context) const { avcodec_free_context(&context); }
    void operator()(AVPacket* packet) const { av_packet_free(&packet); }
    void operator()(AVFrame* frame) const { av_frame_free(&frame); }
    void operator()(SwsContext* scaler) const { sws_freeContext(scaler); }
};
template <typename T>
using Owned = std::unique_ptr<T, Free>;

/// The file as one packet, the first picture that comes out of it. Null for a damaged file.
Owned<AVFrame> DecodeFrame(AVCodecID id, Bytes file) {
    if (file.size() > std::numeric_limits<int>::max() / 2) {
        return nullptr;
    }
    const AVCodec* codec = avcodec_find_decoder(id);
    const Owned<AVCodecContext> context(avcodec_alloc_context3(codec));
    const Owned<AVPacket> packet(av_packet_alloc());
    Owned<AVFrame> frame(av_frame_alloc());
    if (codec == nullptr || !context || !packet || !frame) {
        return nullptr;
    }
    context->thread_count = 1;
    context->max_pixels = kMostPixels;
    // The library wants room after the data, which a packet of its own has.
    if (av_new_packet(packet.get(), static_cast<int>(file.size())) != 0) {
        return nullptr;
    }
    std::memcpy(packet->data, file.data(), file.size());
    if (avcodec_open2(context.get(), codec, nullptr) != 0 ||
        avcodec_send_packet(context.get(), packet.get()) != 0) {
        return nullptr;
    }
    avcodec_send_packet(context.get(), nullptr);
    if (avcodec_receive_frame(context.get(), frame.get()) != 0 || frame->width <= 0 ||
        frame->height <= 0 || int64_t{frame->width} * frame->height > kMostPixels) {
        return nullptr;
    }
    return frame;
}

int BitsOf(AVPixelFormat format) {
    const AVPixFmtDescriptor* about = av_pix_fmt_desc_get(format);
    const int bits = about != nullptr ? av_get_bits_per_pixel(about) : 24;
    for (const int allowed : {1, 4, 8, 16, 24, 32, 48}) {
        if (bits <= allowed) {
            return allowed;
        }
    }
    return 64;
}

/// True where some pixel has alpha, its last byte, and is not wholly transparent.
bool HasAlpha(const AVFrame& frame) {
    const int bytes = frame.format == AV_PIX_FMT_BGRA ? 4 : frame.format == AV_PIX_FMT_YA8 ? 2 : 0;
    for (int y = 0; y < frame.height && bytes > 0; ++y) {
        const uint8_t* row = frame.data[0] + ptrdiff_t{y} * frame.linesize[0];
        for (int x = 1; x <= frame.width; ++x) {
            if (row[bytes * x - 1] != 0) {
                return true;
            }
        }
    }
    return false;
}

/// `alpha` false: the fourth part of a pixel is no transparency.
std::optional<Picture> PictureOf(const Owned<AVFrame>& frame, bool alpha) {
    if (!frame) {
        return std::nullopt;
    }
    const auto format = static_cast<AVPixelFormat>(frame->format);
    // The scaler writes a few pixels beyond a row: rows of its own kind of memory, then ours.
    const Owned<AVFrame> plain(av_frame_alloc());
    if (!plain) {
        return std::nullopt;
    }
    plain->width = frame->width;
    plain->height = frame->height;
    plain->format = AV_PIX_FMT_BGRA;
    const Owned<SwsContext> scaler(sws_getContext(
        frame->width, frame->height, format, frame->width, frame->height, AV_PIX_FMT_BGRA,
        SWS_POINT | SWS_ACCURATE_RND | SWS_FULL_CHR_H_INT, nullptr, nullptr, nullptr));
    if (!scaler || av_frame_get_buffer(plain.get(), 0) != 0 ||
        sws_scale(scaler.get(), frame->data, frame->linesize, 0, frame->height, plain->data,
                  plain->linesize) != frame->height) {
        return std::nullopt;
    }
    Picture picture{{frame->width, frame->height}, BitsOf(format), {}};
    picture.pixels.reserve(static_cast<size_t>(frame->width) * static_cast<size_t>(frame->height));
    for (int y = 0; y < frame->height; ++y) {
        const uint8_t* row = plain->data[0] + ptrdiff_t{y} * plain->linesize[0];
        for (int x = 0; x < frame->width; ++x, row += 4) {
            picture.pixels.push_back(OverWhite(row[2], row[1], row[0], alpha ? row[3] : 255));
        }
    }
    return picture;
}

size_t Big(Bytes data, size_t at, size_t bytes) {
    size_t value = 0;
    for (size_t i = 0; i < bytes; ++i) {
        value = value << 8 | (at + i < data.size() ? data[at + i] : 0);
    }
    return value;
}

/// Whether the channel after the colours is transparency: not where it has a name of another
/// purpose, as a kept selection has.
bool PsdHasTransparency(Bytes file) {
    constexpr size_t kHeadBytes = 26, kAlphaNames = 1006;
    size_t at = kHeadBytes + 4 + Big(file, kHeadBytes, 4);
    const size_t end = std::min(at + 4 + Big(file, at, 4), file.size());
    at += 4;
    // Mark, number, a name and its data, both of even length.
    while (at + 12 <= end && Big(file, at, 4) == 0x3842494Du) {
        const size_t id = Big(file, at + 4, 2);
        const size_t data = at + 6 + (Big(file, at + 6, 1) + 2) / 2 * 2;
        const size_t length = Big(file, data, 4);
        if (id == kAlphaNames && length > 0 && data + 4 + length <= end) {
            constexpr std::string_view kTransparency = "Transparency";
            const size_t named = Big(file, data + 4, 1);
            const Bytes name = file.subspan(data + 5, std::min(named, length - 1));
            return std::string_view(reinterpret_cast<const char*>(name.data()), name.size()) ==
                   kTransparency;
        }
        at = data + 4 + (length + 1) / 2 * 2;
    }
    return true;
}

}  // namespace

void WarmUpFfmpeg() {
    av_log_set_level(AV_LOG_QUIET);
    // One grey pixel goes through decoder and scaler.
    uint8_t tga[19] = {};
    tga[2] = 3;
    tga[12] = tga[14] = 1;
    tga[16] = 8;
    DecodeTga(tga);
}

std::optional<Picture> DecodePsd(Bytes file) {
    return PictureOf(DecodeFrame(AV_CODEC_ID_PSD, file), PsdHasTransparency(file));
}

std::optional<Picture> DecodeTga(Bytes file) {
    const Owned<AVFrame> frame = DecodeFrame(AV_CODEC_ID_TARGA, file);
    constexpr size_t kTypeAt = 2;
    constexpr int kGrey = 3, kGreyRuns = 11;
    if (frame && frame->format == AV_PIX_FMT_RGB555LE &&
        (file[kTypeAt] == kGrey || file[kTypeAt] == kGreyRuns)) {
        // The library takes every word for a colour; these are a grey and its alpha.
        frame->format = AV_PIX_FMT_YA8;
    }
    // Writers leave the number of alpha bits at 0 whether there is alpha or not; nothing but zeros
    // is what one writes that has none.
    return PictureOf(frame, frame && HasAlpha(*frame));
}

std::optional<Picture> DecodeBmp(Bytes file) {
    return PictureOf(DecodeFrame(AV_CODEC_ID_BMP, file), false);
}

std::optional<Picture> DecodeRas(Bytes file) {
    return PictureOf(DecodeFrame(AV_CODEC_ID_SUNRAST, file), false);
}

std::optional<Picture> DecodeImg(Bytes file) {
    constexpr size_t kPlanesAt = 4;
    std::optional<Picture> picture = PictureOf(DecodeFrame(AV_CODEC_ID_GEM, file), false);
    const size_t planes = Big(file, kPlanesAt, 2);
    if (picture && planes <= 4) {
        picture->bitsPerPixel = planes == 1 ? 1 : 4;
    }
    return picture;
}

}  // namespace decoder
