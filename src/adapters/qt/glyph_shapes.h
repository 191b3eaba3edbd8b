// The shapes of the program's icons.
#pragma once

#include <QColor>
#include <QPainter>
#include <QPainterPath>
#include <QString>

namespace qt_adapter {

/// Stands in a square of `kGlyphUnits`.
struct GlyphShape {
    QPainterPath lines, filled;
    double width = 0;  // of the lines
    bool Empty() const { return lines.isEmpty() && filled.isEmpty(); }
};

constexpr double kGlyphUnits = 24;

/// Empty for a name that is not there.
GlyphShape ShapeOf(const QString& name);

/// In the middle of `place`, as large as fits.
void PaintGlyph(QPainter& painter, const QRectF& place, const GlyphShape& shape,
                const QColor& color);

}  // namespace qt_adapter
