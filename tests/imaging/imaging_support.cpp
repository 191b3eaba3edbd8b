#include "imaging/imaging_support.h"

#include <QBuffer>
#include <QPainter>
#include <algorithm>
#include <array>

namespace {

void Append16(QByteArray& out, int value) {
    out.append(static_cast<char>(value >> 8));
    out.append(static_cast<char>(value & 0xFF));
}

void Append32(QByteArray& out, uint32_t value) {
    Append16(out, static_cast<int>(value >> 16));
    Append16(out, static_cast<int>(value & 0xFFFF));
}

/// Bits, most significant first; a byte FF is followed by a zero, as a scan wants.
class BitWriter {
public:
    explicit BitWriter(QByteArray& out) : out_(out) {}
    void Put(unsigned value, int count) {
        for (int i = count - 1; i >= 0; --i) {
            byte_ = byte_ << 1 | (value >> i & 1);
            if (++used_ == 8) {
                Emit();
            }
        }
    }
    void Finish() {
        while (used_ != 0) {
            Put(1, 1);
        }
    }

private:
    void Emit() {
        out_.append(static_cast<char>(byte_));
        if (byte_ == 0xFF) {
            out_.append('\0');
        }
        byte_ = 0;
        used_ = 0;
    }
    QByteArray& out_;
    unsigned byte_ = 0;
    int used_ = 0;
};

/// Length of a segment counts itself.
void Segment(QByteArray& out, int marker, const QByteArray& content) {
    out.append('\xFF');
    out.append(static_cast<char>(marker));
    Append16(out, static_cast<int>(content.size()) + 2);
    out.append(content);
}

/// Table whose codes are all `length` bits long, in order.
QByteArray HuffmanTable(int kind, int length, const std::string& symbols) {
    QByteArray table(1, static_cast<char>(kind));
    for (int i = 1; i <= 16; ++i) {
        table.append(static_cast<char>(i == length ? symbols.size() : 0));
    }
    return table + QByteArray::fromStdString(symbols);
}

}  // namespace

QImage Quarters(int width, int height) {
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Qt::black);
    QPainter painter(&image);
    painter.fillRect(0, 0, width / 2, height / 2, QColor(255, 0, 0));
    painter.fillRect(width / 2, 0, width - width / 2, height / 2, QColor(0, 255, 0));
    painter.fillRect(0, height / 2, width / 2, height - height / 2, QColor(0, 0, 255));
    return image;
}

QByteArray Encoded(const QImage& image, const char* format, int quality) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!image.save(&buffer, format, quality)) {
        return {};
    }
    return bytes;
}

QByteArray WithOrientation(const QByteArray& jpeg, int orientation) {
    QByteArray exif("Exif\0\0MM\0*", 10);
    Append32(exif, 8);
    Append16(exif, 1);  // one entry: orientation, a 16-bit number
    Append16(exif, 0x0112);
    Append16(exif, 3);
    Append32(exif, 1);
    Append16(exif, orientation);
    Append16(exif, 0);
    Append32(exif, 0);
    QByteArray result = jpeg.left(2);
    Segment(result, 0xE1, exif);
    return result + jpeg.mid(2);
}

QByteArray FlatJpeg(int width, int height, const std::string& components) {
    QByteArray out("\xFF\xD8", 2);
    if (components.size() == 4) {
        Segment(out, 0xEE, QByteArray("Adobe\0\x64\0\0\0\0\0", 12));
    }
    Segment(out, 0xDB, QByteArray(1, '\0') + QByteArray(64, '\1'));
    QByteArray frame(1, '\x08'), scan(1, static_cast<char>(components.size()));
    Append16(frame, height);
    Append16(frame, width);
    frame.append(static_cast<char>(components.size()));
    for (size_t i = 0; i < components.size(); ++i) {
        frame.append(static_cast<char>(i + 1)).append('\x11').append('\0');
        scan.append(static_cast<char>(i + 1)).append('\0');
    }
    // Mean values: sizes of difference 0 to 11 bits. Within a block: only its end.
    std::string sizes;
    for (char size = 0; size <= 11; ++size) {
        sizes.push_back(size);
    }
    Segment(out, 0xC0, frame);
    Segment(out, 0xC4, HuffmanTable(0x00, 4, sizes));
    Segment(out, 0xC4, HuffmanTable(0x10, 1, std::string(1, '\0')));
    Segment(out, 0xDA, scan + QByteArray("\x00\x3F\x00", 3));
    BitWriter bits(out);
    const int64_t blocks = int64_t{(width + 7) / 8} * ((height + 7) / 8);
    for (int64_t block = 0; block < blocks; ++block) {
        for (const char value : components) {
            // The first block says the mean (8 times the distance from the middle), the others
            // that nothing changed.
            const int difference = block == 0 ? 8 * (static_cast<unsigned char>(value) - 128) : 0;
            int size = 0;
            while (std::abs(difference) >> size != 0) {
                ++size;
            }
            bits.Put(static_cast<unsigned>(size), 4);
            bits.Put(static_cast<unsigned>(difference < 0 ? difference - 1 : difference), size);
            bits.Put(0, 1);
        }
    }
    bits.Finish();
    return out + QByteArray("\xFF\xD9", 2);
}

QByteArray CmykTiff(int width, int height, const std::string& pixels) {
    struct Entry {
        int tag, type;
        uint32_t count, value;
    };
    const auto shortValue = [](int value) { return static_cast<uint32_t>(value) << 16; };
    constexpr uint32_t kEntries = 10, kDirectory = 8;
    const uint32_t bits = kDirectory + 2 + kEntries * 12 + 4, data = bits + 8;
    const std::array<Entry, kEntries> entries = {{
        {0x100, 3, 1, shortValue(width)},
        {0x101, 3, 1, shortValue(height)},
        {0x102, 3, 4, bits},
        {0x103, 3, 1, shortValue(1)},  // uncompressed
        {0x106, 3, 1, shortValue(5)},  // inks
        {0x111, 4, 1, data},
        {0x115, 3, 1, shortValue(4)},
        {0x116, 3, 1, shortValue(height)},
        {0x117, 4, 1, static_cast<uint32_t>(pixels.size())},
        {0x11C, 3, 1, shortValue(1)},
    }};
    QByteArray out("MM\0*", 4);
    Append32(out, kDirectory);
    Append16(out, kEntries);
    for (const Entry& entry : entries) {
        Append16(out, entry.tag);
        Append16(out, entry.type);
        Append32(out, entry.count);
        Append32(out, entry.value);
    }
    Append32(out, 0);
    for (int i = 0; i < 4; ++i) {
        Append16(out, 8);
    }
    return out + QByteArray::fromStdString(pixels);
}

QByteArray TinyGif(const std::string& fourIndexes) {
    QByteArray out("GIF89a\2\0\2\0\x81\0\0", 13);
    out.append(QByteArray("\xFF\xFF\xFF\xFF\0\0\0\xFF\0\0\0\0", 12));
    out.append(QByteArray("\x21\xF9\4\1\0\0\3\0", 8));  // index 3 is transparent
    out.append(QByteArray("\x2C\0\0\0\0\2\0\2\0\0", 10));
    // Codes of three bits, least significant first; a clear code (4) before each pair keeps them
    // so short. 5 ends the picture.
    unsigned bits = 0;
    int used = 0;
    for (const int code : {4, static_cast<int>(fourIndexes[0]), static_cast<int>(fourIndexes[1]), 4,
                           static_cast<int>(fourIndexes[2]), static_cast<int>(fourIndexes[3]), 5}) {
        bits |= static_cast<unsigned>(code) << used;
        used += 3;
    }
    out.append(QByteArray("\2\3", 2));
    for (int i = 0; i < 3; ++i) {
        out.append(static_cast<char>(bits >> (8 * i) & 0xFF));
    }
    return out + QByteArray("\0\x3B", 2);
}

QByteArray PngHeader(int width, int height) {
    QByteArray content("IHDR", 4);
    Append32(content, static_cast<uint32_t>(width));
    Append32(content, static_cast<uint32_t>(height));
    content.append(QByteArray("\x08\x02\0\0\0", 5));
    uint32_t checksum = 0xFFFFFFFFu;
    for (const char c : content) {
        checksum ^= static_cast<unsigned char>(c);
        for (int i = 0; i < 8; ++i) {
            checksum = (checksum >> 1) ^ ((checksum & 1) != 0 ? 0xEDB88320u : 0);
        }
    }
    QByteArray out("\x89PNG\r\n\x1A\n", 8);
    Append32(out, 13);
    out.append(content);
    Append32(out, ~checksum);
    return out;
}

int Distance(platform::Pixel a, platform::Pixel b) {
    int largest = 0;
    for (const int shift : {0, 8, 16, 24}) {
        const int first = static_cast<int>(a >> shift & 0xFF);
        const int second = static_cast<int>(b >> shift & 0xFF);
        largest = std::max(largest, std::abs(first - second));
    }
    return largest;
}
