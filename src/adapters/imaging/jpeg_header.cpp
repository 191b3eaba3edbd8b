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

}  // namespace

int64_t JpegHeader::WorkingBytes() const {
    constexpr int64_t kBytesPerCoefficient = 2;
    return progressive ? coefficients * kBytesPerCoefficient : 0;
}

JpegHeader ReadJpegHeader(QIODevice& device) {
    device.seek(2);
    while (true) {
        QByteArray head = device.read(2);
        // Any number of FF bytes may stand before a marker.
        while (head.size() == 2 && Byte(head, 0) == 0xFF && Byte(head, 1) == 0xFF) {
            head = head.right(1) + device.read(1);
        }
        const int marker = Byte(head, 1);
        if (head.size() != 2 || Byte(head, 0) != 0xFF || marker == kStartOfScan ||
            marker == kEndOfImage) {
            return {};
        }
        const QByteArray lengthBytes = device.read(2);
        const int length = Word(lengthBytes, 0) - 2;
        if (lengthBytes.size() != 2 || length < 0) {
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

}  // namespace imaging
