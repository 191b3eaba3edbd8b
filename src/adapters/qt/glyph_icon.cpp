#include "adapters/qt/glyph_icon.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPixmap>
#include <functional>

#include "adapters/qt/glyph_shapes.h"

namespace qt_adapter {

namespace {

/// Answers the colour to draw with, enabled or not.
using Ink = std::function<QColor(bool enabled)>;

class GlyphEngine : public QIconEngine {
public:
    GlyphEngine(GlyphShape shape, Ink ink) : shape_(std::move(shape)), ink_(std::move(ink)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
        PaintGlyph(*painter, rect, shape_, ink_(mode != QIcon::Disabled));
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
    GlyphShape shape_;
    Ink ink_;
};

QIcon MakeIcon(const QString& name, Ink ink) {
    GlyphShape shape = ShapeOf(name);
    return shape.Empty() ? QIcon() : QIcon(new GlyphEngine(std::move(shape), std::move(ink)));
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
