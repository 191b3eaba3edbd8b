#include "adapters/qt/qt_text_renderer.h"

#include <QFontDatabase>
#include <QFontMetrics>
#include <QImage>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <cstring>

#include "adapters/qt/convert.h"
#include "platform/coverage.h"

namespace qt_adapter {

namespace {

constexpr double kPixelsPerPoint = 96.0 / 72.0;
constexpr int kSizeOfTurned = 1000;
// What the width of a turned text's letters is measured by. Of the fonts' own average most parts
// are full-width letters.
constexpr char kLetters[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
// Characters; of the smallest letters so many are wider than any canvas.
constexpr size_t kLongestLine = 65536;
constexpr platform::Offset kInPlace[] = {{0, 0}};

struct Substitute {
    const char* names;  // parted by '|'
    const char* family;
};

// Fonts that shows name and this system seldom has.
constexpr Substitute kSubstitutes[] = {
    {"ＭＳ ゴシック|MS Gothic|MS ゴシック|@ＭＳ ゴシック", "IPAGothic"},
    {"ＭＳ Ｐゴシック|MS PGothic|MS Pゴシック|MS UI Gothic|@ＭＳ Ｐゴシック|メイリオ|Meiryo",
     "IPAPGothic"},
    {"ＭＳ 明朝|MS Mincho|MS 明朝|@ＭＳ 明朝", "IPAMincho"},
    {"ＭＳ Ｐ明朝|MS PMincho|MS P明朝|@ＭＳ Ｐ明朝", "IPAPMincho"},
};
constexpr const char* kDefaultFamily = "IPAPGothic";

QString FamilyFor(const QString& name) {
    if (!name.isEmpty() && QFontDatabase::hasFamily(name)) {
        return name;
    }
    for (const Substitute& row : kSubstitutes) {
        if (QString::fromUtf8(row.names).split('|').contains(name, Qt::CaseInsensitive)) {
            return QString::fromLatin1(row.family);
        }
    }
    return QString::fromLatin1(kDefaultFamily);
}

/// The part of the shape of a line that falls on `wanted`. `place` takes the line's box, whose top
/// left is the origin, to the canvas's pixels.
platform::Coverage ShapeOf(const QFont& font, const QString& line, const QTransform& place,
                           const QRect& wanted) {
    const QFontMetrics metrics(font);
    const QPoint baseline(0, metrics.ascent());
    // Slanted letters and accents reach beyond the line's box.
    const int beyond = 2 + metrics.height() / 3;
    const QRect box = metrics.boundingRect(line)
                          .translated(baseline)
                          .united(QRect(0, 0, metrics.horizontalAdvance(line), metrics.height()))
                          .adjusted(-beyond, -beyond, beyond, beyond);
    const QRect covered = place.mapRect(QRectF(box)).toAlignedRect().intersected(wanted);
    if (covered.isEmpty()) {
        return {};
    }
    platform::Coverage shape{covered.x(), covered.y(), covered.width(), covered.height(), {}};
    shape.values.resize(static_cast<size_t>(shape.width) * static_cast<size_t>(shape.height));
    QImage image(shape.values.data(), shape.width, shape.height, shape.width,
                 QImage::Format_Grayscale8);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.setTransform(place * QTransform::fromTranslate(-covered.x(), -covered.y()));
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(baseline, line);
    return shape;
}

/// Canvas area that is reached from by some offset.
QRect Wanted(const platform::Canvas& canvas, std::span<const platform::Offset> offsets) {
    const platform::Size& pixels = canvas.Scaling().pixels;
    QRect wanted;
    for (const platform::Offset& offset : offsets) {
        wanted |= QRect(-offset.x, -offset.y, pixels.width, pixels.height);
    }
    return wanted;
}

/// Takes a line's box that is laid out in units to its place on the canvas. Letters are drawn from
/// their outlines at the size that they have there.
QTransform PlaceOn(const platform::Canvas& canvas, int x, int y) {
    const platform::Scale& scale = canvas.Scaling();
    QTransform place = QTransform::fromTranslate(scale.X(x), scale.Y(y));
    if (!scale.Plain()) {
        place.scale(scale.Factor(), scale.Factor());
    }
    return place;
}

void Print(platform::Canvas& canvas, const QFont& font, const QTransform& place,
           platform::Color color, TextView text, std::span<const platform::Offset> offsets) {
    const QString line = ToQt(text.substr(0, kLongestLine));
    if (line.isEmpty() || offsets.empty() || canvas.Pixels().Empty()) {
        return;
    }
    platform::Stamp(canvas, ShapeOf(font, line, place, Wanted(canvas, offsets)), color, offsets);
}

}  // namespace

QFont ScreenFont(const platform::Font& font) {
    QFont result;
    // The second family serves the characters that the first lacks.
    result.setFamilies({FamilyFor(ToQt(font.name)), QString::fromLatin1(kDefaultFamily)});
    result.setPixelSize(
        std::max(1, static_cast<int>(std::lround(font.sizePoints * kPixelsPerPoint))));
    result.setBold(font.bold);
    result.setItalic(font.italic);
    result.setUnderline(font.underline);
    result.setHintingPreference(QFont::PreferNoHinting);
    return result;
}

const QFont& QtTextRenderer::Found(const platform::Font& font) {
    if (!found_ || font != last_) {
        last_ = font;
        found_ = ScreenFont(font);
    }
    return *found_;
}

platform::TextRenderer::Extent QtTextRenderer::Measure(const platform::Font& font, TextView text) {
    const QFontMetrics metrics(Found(font));
    return {metrics.horizontalAdvance(ToQt(text)), metrics.height()};
}

void QtTextRenderer::Draw(platform::Canvas& canvas, int x, int y, const platform::Font& font,
                          platform::Color color, TextView text) {
    DrawEach(canvas, x, y, font, color, text, kInPlace);
}

void QtTextRenderer::DrawEach(platform::Canvas& canvas, int x, int y, const platform::Font& font,
                              platform::Color color, TextView text,
                              std::span<const platform::Offset> offsets) {
    Print(canvas, Found(font), PlaceOn(canvas, x, y), color, text, offsets);
}

void QtTextRenderer::DrawTurned(platform::Canvas& canvas, int x, int y, const platform::Font& font,
                                const platform::Turn& turn, platform::Color color, TextView text,
                                std::span<const platform::Offset> offsets) {
    const int height = turn.height > 0 ? turn.height : platform::Turn::kUnsaidHeight;
    QFont screenFont = Found(font);
    // Set at a large size and made small, so that no letter's width is rounded.
    screenFont.setPixelSize(kSizeOfTurned);
    const QFontMetricsF metrics(screenFont);
    const double letter =
        metrics.horizontalAdvance(QLatin1String(kLetters)) / static_cast<double>(strlen(kLetters));
    const double scaleY = height / metrics.height();
    const double scaleX = turn.width > 0 ? turn.width / letter : scaleY;
    QTransform place = PlaceOn(canvas, x, y);
    place.rotate(-turn.angle10 / 10.0);
    place.scale(scaleX, scaleY);
    Print(canvas, screenFont, place, color, text, offsets);
}

}  // namespace qt_adapter
