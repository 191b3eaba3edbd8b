#include "adapters/qt/qt_text_renderer.h"

#include <QFontDatabase>
#include <QFontMetrics>
#include <QImage>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "adapters/qt/convert.h"

namespace qt_adapter {

namespace {

constexpr double kPixelsPerPoint = 96.0 / 72.0;

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

platform::TextRenderer::Extent QtTextRenderer::Measure(const platform::Font& font, TextView text) {
    const QFontMetrics metrics(ScreenFont(font));
    return {metrics.horizontalAdvance(ToQt(text)), metrics.height()};
}

void QtTextRenderer::Draw(platform::Canvas& canvas, int x, int y, const platform::Font& font,
                          platform::Color color, TextView text) {
    platform::Bitmap& pixels = canvas.Writable();
    if (pixels.Empty() || text.empty()) {
        return;
    }
    const QFont screenFont = ScreenFont(font);
    const QFontMetrics metrics(screenFont);
    const QString line = ToQt(text);
    QImage image(reinterpret_cast<uchar*>(pixels.pixels.data()), pixels.width, pixels.height,
                 pixels.width * static_cast<qsizetype>(sizeof(platform::Pixel)),
                 QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setFont(screenFont);
    painter.setPen(QColor::fromRgb(platform::ToPixel(color)));
    const QPoint origin(x, y + metrics.ascent());
    painter.drawText(origin, line);
    painter.end();
    // Slanted letters and accents reach beyond the line's box.
    const QRect box = metrics.boundingRect(line)
                          .translated(origin)
                          .united(QRect(x, y, metrics.horizontalAdvance(line), metrics.height()))
                          .adjusted(-2, -2, 2, 2);
    canvas.Touch({box.x(), box.y(), box.width(), box.height()});
}

}  // namespace qt_adapter
