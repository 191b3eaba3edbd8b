#include "adapters/imaging/jpeg_header.h"

#include <QByteArray>
#include <QIODevice>
#include <algorithm>

namespace imaging {

namespace {

constexpr int kFirstFrame = 0xC0, kLastFrame = 0xCF;
constexpr int kHuffmanTables = 0xC4, kExtension = 0xC8, kArithmeticTables = 0xCC;
constexpr int kStartOfScan = 0xDA, kEndOfImage = 0xD9;

int Byte(const QByteArray& bytes, qsizetype at) {
    return at < bytes.size() ? static_cast<unsigned char>(bytes[at]) : 0;
}

int Word(const QByteArray& bytes, qsizetype at) {
    return Byte(bytes, at) << 8 | Byte(bytes, at + 1);
}

bool IsFrame(int marker) {
    return marker >= kFirstFrame && marker <= kLastFrame && marker != kHuffmanTables &&
           marker != kExtension && marker != kArithmeticTables;
}

/// Frame header after its length: precision, height, width, components with their sampling.
JpegHeader ReadFrame(int marker, const QByteArray& frame) {
    JpegHeader header;
    // C2, C6, CA, CE: the frames that come in passes.
    header.progressive = (marker & 3) == 2;
    header.height = Word(frame, 1);
    header.width = Word(frame, 3);
    const int components = Byte(frame, 5);
    int densest = 1;
    int64_t samples = 0;
    for (int i = 0; i < components; ++i) {
        const int sampling = Byte(frame, 7 + qsizetype{i} * 3);
        const int perUnit = std::max(sampling >> 4, 1) * std::max(sampling & 15, 1);
        densest = std::max(densest, perUnit);
        samples += perUnit;
    }
    header.coefficients = int64_t{header.width} * header.height * samples / densest;
    return header;
}

/// The marker there, of which any number of FF bytes may stand in front; -1 where there is none.
int TakeMarker(QIODevice& device) {
    QByteArray head = device.read(2);
    while (head.size() == 2 && Byte(head, 0) == 0xFF && Byte(head, 1) == 0xFF) {
        head = head.right(1) + device.read(1);
    }
    return head.size() == 2 && Byte(head, 0) == 0xFF ? Byte(head, 1) : -1;
}

/// Bytes of the segment after its length; -1 where it is cut off there or has none.
int TakeLength(QIODevice& device) {
    const QByteArray length = device.read(2);
    return length.size() == 2 ? std::max(Word(length, 0) - 2, -1) : -1;
}

bool IsWithinCode(int marker) {
    constexpr int kFirstRestart = 0xD0, kLastRestart = 0xD7;
    return marker == 0 || marker == 0xFF || (marker >= kFirstRestart && marker <= kLastRestart);
}

/// To the marker after the coded pixels. False where they have no end.
bool SkipCode(QIODevice& device) {
    constexpr qsizetype kBlock = 1 << 16;
    while (true) {
        const QByteArray block = device.peek(kBlock);
        for (qsizetype at = block.indexOf('\xFF'); at >= 0 && at + 1 < block.size();
             at = block.indexOf('\xFF', at + 1)) {
            if (!IsWithinCode(Byte(block, at + 1))) {
                device.skip(at);
                return true;
            }
        }
        if (block.size() < kBlock) {
            return false;
        }
        device.skip(kBlock - 1);  // its last byte may begin a marker
    }
}

}  // namespace

int64_t JpegHeader::WorkingBytes() const {
    constexpr int64_t kBytesPerCoefficient = 2;
    return progressive ? coefficients * kBytesPerCoefficient : 0;
}

JpegHeader ReadJpegHeader(QIODevice& device) {
    device.seek(2);
    while (true) {
        const int marker = TakeMarker(device);
        if (marker < 0 || marker == kStartOfScan || marker == kEndOfImage) {
            return {};
        }
        const int length = TakeLength(device);
        if (length < 0) {
            return {};
        }
        if (IsFrame(marker)) {
            return ReadFrame(marker, device.read(length));
        }
        if (!device.seek(device.pos() + length)) {
            return {};
        }
    }
}

bool HoldsJpegEnd(QIODevice& device) {
    device.seek(2);
    // Whatever stands between two segments is passed over, as decoders do.
    while (SkipCode(device)) {
        const int marker = TakeMarker(device);
        if (marker == kEndOfImage) {
            return true;
        }
        const int length = TakeLength(device);
        if (length < 0 || !device.seek(device.pos() + length)) {
            return false;
        }
    }
    return false;
}

}  // namespace imaging
