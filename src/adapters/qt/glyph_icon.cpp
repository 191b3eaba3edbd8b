#include "adapters/qt/glyph_icon.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <algorithm>
#include <functional>

namespace qt_adapter {

namespace {

// All shapes stand in a square of 24 units.
constexpr double kUnits = 24;

void Polygon(QPainterPath& path, std::initializer_list<QPointF> points) {
    path.addPolygon(QPolygonF(QList<QPointF>(points)));
    path.closeSubpath();
}

void Bar(QPainterPath& path, double x, double y, double width, double height) {
    path.addRoundedRect(QRectF(x, y, width, height), 1, 1);
}

QPainterPath Outline(const QPainterPath& line, double width) {
    QPainterPathStroker stroker;
    stroker.setWidth(width);
    stroker.setCapStyle(Qt::RoundCap);
    stroker.setJoinStyle(Qt::RoundJoin);
    return stroker.createStroke(line);
}

QPainterPath Play() {
    QPainterPath path;
    Polygon(path, {{7.5, 4.8}, {19.5, 12}, {7.5, 19.2}});
    return path.united(Outline(path, 1.2));
}

QPainterPath Pause() {
    QPainterPath path;
    Bar(path, 6.5, 5, 4, 14);
    Bar(path, 13.5, 5, 4, 14);
    return path;
}

QPainterPath Stop() {
    QPainterPath path;
    path.addRoundedRect(QRectF(6, 6, 12, 12), 1.6, 1.6);
    return path;
}

QPainterPath Next() {
    QPainterPath triangle;
    Polygon(triangle, {{6.2, 5.8}, {15, 12}, {6.2, 18.2}});
    QPainterPath path = triangle.united(Outline(triangle, 1.2));
    Bar(path, 16.4, 5.4, 2.4, 13.2);
    return path;
}

QPainterPath Previous() {
    return QTransform(-1, 0, 0, 1, kUnits, 0).map(Next());
}

QPainterPath FullScreen() {
    QPainterPath line;
    for (const auto& [x, y] : {std::pair{1, 1}, {-1, 1}, {-1, -1}, {1, -1}}) {
        line.moveTo(12 - x * 7.5, 12 - y * 3);
        line.lineTo(12 - x * 7.5, 12 - y * 7);
        line.lineTo(12 - x * 3.5, 12 - y * 7);
    }
    return Outline(line, 1.9);
}

QPainterPath Close() {
    QPainterPath line;
    line.moveTo(7, 7);
    line.lineTo(17, 17);
    line.moveTo(17, 7);
    line.lineTo(7, 17);
    return Outline(line, 2.2);
}

QPainterPath Slides() {
    QPainterPath line;
    line.addRoundedRect(QRectF(3.5, 7.5, 14, 11), 1.8, 1.8);
    line.moveTo(7, 4.5);
    line.lineTo(18.5, 4.5);
    line.quadTo(20.5, 4.5, 20.5, 6.5);
    line.lineTo(20.5, 15);
    QPainterPath hill;
    Polygon(hill, {{6, 16}, {9.5, 11.6}, {11.8, 14.2}, {13, 13}, {15.2, 16}});
    return Outline(line, 1.6).united(hill);
}

QPainterPath Sound() {
    QPainterPath stems;
    stems.moveTo(9, 17);
    stems.lineTo(9, 6.2);
    stems.lineTo(18.5, 4.4);
    stems.lineTo(18.5, 15);
    QPainterPath path = Outline(stems, 1.7);
    path.addEllipse(QPointF(6.8, 17.2), 3, 2.4);
    path.addEllipse(QPointF(16.3, 15.2), 3, 2.4);
    path.setFillRule(Qt::WindingFill);
    return path;
}

QPainterPath Calendar() {
    QPainterPath line;
    line.addRoundedRect(QRectF(4, 5.5, 16, 14), 1.8, 1.8);
    line.moveTo(4, 10);
    line.lineTo(20, 10);
    line.moveTo(8.5, 3.8);
    line.lineTo(8.5, 6.8);
    line.moveTo(15.5, 3.8);
    line.lineTo(15.5, 6.8);
    QPainterPath path = Outline(line, 1.6);
    Bar(path, 13.2, 13, 3.6, 3.6);
    path.setFillRule(Qt::WindingFill);
    return path;
}

struct Glyph {
    const char* name;
    QPainterPath (*shape)();
};

constexpr Glyph kGlyphs[] = {
    {"play", Play},   {"pause", Pause},           {"stop", Stop},   {"previous", Previous},
    {"next", Next},   {"fullscreen", FullScreen}, {"close", Close}, {"slides", Slides},
    {"sound", Sound}, {"calendar", Calendar},
};

/// Answers the colour to draw with, enabled or not.
using Ink = std::function<QColor(bool enabled)>;

class GlyphEngine : public QIconEngine {
public:
    GlyphEngine(QPainterPath shape, Ink ink) : shape_(std::move(shape)), ink_(std::move(ink)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
        const QColor color = ink_(mode != QIcon::Disabled);
        const double side = std::min(rect.width(), rect.height());
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(rect.x() + (rect.width() - side) / 2,
                           rect.y() + (rect.height() - side) / 2);
        painter->scale(side / kUnits, side / kUnits);
        painter->fillPath(shape_, color);
        painter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap result(size);
        result.fill(Qt::transparent);
        QPainter painter(&result);
        paint(&painter, QRect(QPoint(0, 0), size), mode, state);
        return result;
    }

    QIconEngine* clone() const override { return new GlyphEngine(*this); }

private:
    QPainterPath shape_;
    Ink ink_;
};

QIcon MakeIcon(const QString& name, Ink ink) {
    for (const Glyph& glyph : kGlyphs) {
        if (name == QLatin1String(glyph.name)) {
            return QIcon(new GlyphEngine(glyph.shape(), std::move(ink)));
        }
    }
    return {};
}

}  // namespace

QIcon GlyphIcon(const QString& name, QPalette::ColorRole role) {
    return MakeIcon(name, [role](bool enabled) {
        // Asked for at every paint, as the palette may change while the program runs.
        const QPalette palette = QGuiApplication::palette();
        return enabled ? palette.color(QPalette::Active, role)
                       : palette.color(QPalette::Disabled, QPalette::ButtonText);
    });
}

QIcon GlyphIcon(const QString& name, const QColor& color) {
    return MakeIcon(name, [color](bool) { return color; });
}

}  // namespace qt_adapter
