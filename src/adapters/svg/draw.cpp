#include "adapters/svg/draw.h"

#include <QBuffer>
#include <QImage>
#include <QImageReader>
#include <QPainter>
#include <cstring>

#include "adapters/sandbox/message.h"

namespace svg {

namespace {

/// The file's reader; the bytes must outlive it.
struct Drawing {
    explicit Drawing(std::span<const uint8_t> file)
        : bytes(QByteArray::fromRawData(reinterpret_cast<const char*>(file.data()),
                                        static_cast<qsizetype>(file.size()))) {
        buffer.setBuffer(&bytes);
        buffer.open(QIODevice::ReadOnly);
        reader.setAutoDetectImageFormat(false);
        reader.setFormat("svg");
        reader.setDevice(&buffer);
    }

    QByteArray bytes;
    QBuffer buffer;
    QImageReader reader;
};

sandbox::Picture OverWhite(const QImage& drawn) {
    QImage image(drawn.size(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter(&image).drawImage(0, 0, drawn);
    sandbox::Picture picture{{image.width(), image.height()}, drawn.depth(), {}};
    picture.pixels.resize(static_cast<size_t>(image.width()) * static_cast<size_t>(image.height()));
    for (int y = 0; y < image.height(); ++y) {
        std::memcpy(
            picture.pixels.data() + static_cast<size_t>(y) * static_cast<size_t>(image.width()),
            image.constScanLine(y), static_cast<size_t>(image.width()) * 4);
    }
    return picture;
}

}  // namespace

void WarmUp() {
    QImageReader::setAllocationLimit(static_cast<int>(sandbox::kMostPixelBytes >> 20));
    constexpr char kText[] =
        "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'>"
        "<text>a\xE5\xAD\x97</text></svg>";
    Draw(sandbox::Kind::Svg, {reinterpret_cast<const uint8_t*>(kText), sizeof kText - 1}, {});
}

std::optional<platform::Size> Measure(sandbox::Kind, std::span<const uint8_t> file) {
    const QSize size = Drawing(file).reader.size();
    return size.isEmpty() ? std::nullopt
                          : std::optional(platform::Size{size.width(), size.height()});
}

std::optional<sandbox::Picture> Draw(sandbox::Kind, std::span<const uint8_t> file,
                                     platform::Size wanted) {
    Drawing drawing(file);
    const QSize own = drawing.reader.size();
    if (!sandbox::FitsBound(wanted.Empty() ? platform::Size{own.width(), own.height()} : wanted)) {
        return std::nullopt;
    }
    if (!wanted.Empty()) {
        drawing.reader.setScaledSize(QSize(wanted.width, wanted.height));
    }
    const QImage drawn = drawing.reader.read();
    return drawn.isNull() ? std::nullopt : std::optional(OverWhite(drawn));
}

}  // namespace svg
