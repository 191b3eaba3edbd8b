#include "adapters/qt/glyph_shapes.h"

#include <QPen>
#include <algorithm>
#include <sstream>

namespace qt_adapter {

namespace {

// M x y: begin there. L x y: line. Q x y x y: curve with one control point. Z: close.
// R x y width height radius: rectangle. E x y rx ry: ellipse about x, y.
struct Glyph {
    const char* name;
    double width;
    const char* lines;
    const char* filled;
};

constexpr Glyph kGlyphs[] = {
    // The show.
    {"play", 1.2, "M7.5 4.8 L19.5 12 L7.5 19.2 Z", "M7.5 4.8 L19.5 12 L7.5 19.2 Z"},
    {"pause", 0, "", "R6.5 5 4 14 1 R13.5 5 4 14 1"},
    {"record", 0, "", "E12 12 6.5 6.5"},
    {"stop", 0, "", "R6 6 12 12 1.6"},
    {"next", 1.2, "M6.2 5.8 L15 12 L6.2 18.2 Z",
     "M6.2 5.8 L15 12 L6.2 18.2 Z R16.4 5.4 2.4 13.2 1"},
    {"previous", 1.2, "M17.8 5.8 L9 12 L17.8 18.2 Z",
     "M17.8 5.8 L9 12 L17.8 18.2 Z R5.2 5.4 2.4 13.2 1"},
    {"fullscreen", 1.9,
     "M4.5 9 L4.5 5 L8.5 5 M19.5 9 L19.5 5 L15.5 5 "
     "M19.5 15 L19.5 19 L15.5 19 M4.5 15 L4.5 19 L8.5 19",
     ""},
    {"close", 2.2, "M7 7 L17 17 M17 7 L7 17", ""},
    {"slides", 1.6, "R3.5 7.5 14 11 1.8 M7 4.5 L18.5 4.5 Q20.5 4.5 20.5 6.5 L20.5 15",
     "M6 16 L9.5 11.6 L11.8 14.2 L13 13 L15.2 16 Z"},
    {"sound", 1.7, "M9 17 L9 6.2 L18.5 4.4 L18.5 15", "E6.8 17.2 3 2.4 E16.3 15.2 3 2.4"},
    {"calendar", 1.6, "R4 5.5 16 14 1.8 M4 10 L20 10 M8.5 3.8 L8.5 6.8 M15.5 3.8 L15.5 6.8",
     "R13.2 13 3.6 3.6 1"},
    // Documents.
    {"new", 1.6, "M6 3.5 L14 3.5 L18.5 8 L18.5 20.5 L6 20.5 Z M13.5 3.8 L13.5 8.5 L18.2 8.5 ", ""},
    {"folder-open", 1.6,
     "M3.5 18.5 L3.5 6 L9 6 L11 8.2 L18.5 8.2 L18.5 10.5 M3.5 18.5 L6.3 10.5 L21.5 10.5 L18.5 18.5 "
     "Z",
     ""},
    {"save", 1.6,
     "M4.5 4.5 L16.5 4.5 L19.5 7.5 L19.5 19.5 L4.5 19.5 Z M8 4.8 L8 9.5 L15 9.5 L15 4.8 M8 19.2 L8 "
     "13.5 L16 13.5 L16 19.2",
     ""},
    {"save-out", 1.6,
     "M11 4.5 L4.5 4.5 L4.5 19.5 L19.5 19.5 L19.5 13 M11 13 L20 4 M14.5 4 L20 4 L20 9.5", ""},
    {"collect", 1.6, "M3.5 13 L3.5 20 L20.5 20 L20.5 13 M12 3.5 L12 14.5 M8 10.8 L12 14.8 L16 10.8",
     ""},
    {"undo", 1.9, "M8.5 4.5 L4 9 L8.5 13.5 M4.3 9 L14 9 Q20 9 20 14 Q20 19 14 19 L9 19", ""},
    {"redo", 1.9, "M15.5 4.5 L20 9 L15.5 13.5 M19.7 9 L10 9 Q4 9 4 14 Q4 19 10 19 L15 19", ""},
    // Rows.
    {"add-all", 1.8, "M4 6 L13 6 M4 11 L13 11 M4 16 L10 16 M17 11.5 L17 20.5 M12.5 16 L21.5 16",
     ""},
    {"search", 1.9, "E10.5 10.5 6 6 M15 15 L20 20", ""},
    {"remove", 1.9, "M5.5 12 L18.5 12", ""},
    {"trash", 1.6,
     "M4.5 7 L19.5 7 M9 6.8 L9 4.2 L15 4.2 L15 6.8 M6.5 7 L7.5 20 L16.5 20 L17.5 7 "
     "M10.2 10.5 L10.6 16.8 M13.8 10.5 L13.4 16.8",
     ""},
    {"sort", 1.8,
     "M7 4.5 L7 19 M3.8 15.8 L7 19.2 L10.2 15.8 M13 6 L20.5 6 M13 11 L18.5 11 "
     "M13 16 L16.5 16",
     ""},
    {"relink", 1.7,
     "M10 14 Q7.5 11.5 10 9 L12.5 6.5 Q15 4 17.5 6.5 Q20 9 17.5 11.5 L16 13 "
     "M14 10 Q16.5 12.5 14 15 L11.5 17.5 Q9 20 6.5 17.5 Q4 15 6.5 12.5 L8 11",
     ""},
    {"rows", 1.8, "M10 6 L20.5 6 M10 12 L20.5 12 M10 18 L20.5 18",
     "R3.5 4 4 4 0.8 R3.5 10 4 4 0.8 R3.5 16 4 4 0.8"},
    {"grid", 0, "", "R4 4 7 7 1 R13 4 7 7 1 R4 13 7 7 1 R13 13 7 7 1"},
    // The selected slide.
    {"text", 2, "M5 6.5 L5 5 L19 5 L19 6.5 M12 5 L12 19.5 M9.5 19.5 L14.5 19.5", ""},
    {"text-edit", 1.6,
     "M4 5.5 L15 5.5 M4 10 L12 10 M4 14.5 L8.5 14.5 "
     "M11 19.8 L11.6 16.4 L18.2 9.8 L21 12.6 L14.4 19.2 Z",
     ""},
    {"text-delete", 1.6,
     "M4 5.5 L18 5.5 M4 10 L15 10 M4 14.5 L10 14.5 "
     "M14.5 14 L20.5 20 M20.5 14 L14.5 20",
     ""},
    {"microphone", 1.7,
     "R9 3.5 6 10.5 3 M5.5 11.5 Q5.5 17.3 12 17.3 Q18.5 17.3 18.5 11.5 "
     "M12 17.5 L12 20.5 M8.5 20.5 L15.5 20.5",
     ""},
    {"sound-delete", 1.6,
     "M7.5 16 L7.5 5.2 L15.5 3.7 L15.5 10.5 M14.5 14.5 L20.5 20.5 "
     "M20.5 14.5 L14.5 20.5",
     "E5.4 16.2 2.8 2.2"},
    {"scissors", 1.6, "E6.5 7 2.7 2.7 E6.5 17 2.7 2.7 M8.8 8.4 L20 16.5 M8.8 15.6 L20 7.5", ""},
    {"convert", 1.6,
     "R3.5 3.5 11 11 1.2 M18.5 9.5 L20.5 9.5 L20.5 20.5 L9.5 20.5 L9.5 18.5 "
     "M6.5 11.5 L11 7 M7.5 6.7 L11.3 6.7 L11.3 10.5",
     ""},
    // Marks of a row.
    {"missing", 1.8, "M12 4 L21 19.5 L3 19.5 Z M12 10 L12 14", "E12 16.8 1.1 1.1"},
    {"film", 1.5,
     "R3.5 5 17 14 1.5 M7.5 5 L7.5 19 M16.5 5 L16.5 19 M3.5 9.7 L7.5 9.7 "
     "M3.5 14.3 L7.5 14.3 M16.5 9.7 L20.5 9.7 M16.5 14.3 L20.5 14.3",
     ""},
    // In place of pictures and rows.
    {"broken", 1.5,
     "M13 19 L4.5 19 L4.5 5 L19.5 5 L19.5 10 M4.5 16 L9 11 L12.5 14.8 "
     "M16 15 L21 20 M21 15 L16 20",
     "E14.8 9.2 1.4 1.4"},
    {"lock", 1.6,
     "R5.5 10.5 13 9.5 1.6 M8.5 10.3 L8.5 8 Q8.5 4.5 12 4.5 Q15.5 4.5 15.5 8 L15.5 10.3",
     "E12 15.2 1.3 1.3"},
    {"add-pictures", 1.5,
     "R3.5 6 14 11.5 1.6 M6 15 L9.3 11 L11.6 13.4 L12.6 12.4 L15 15 Z M20.5 9 L20.5 20.5 L8 20.5",
     "E13.6 9.4 1.2 1.2"},
    // Windows.
    {"window-max", 1.6, "R4 5 16 14 1.2", "R4 5 16 4 1"},
    {"window", 1.6, "R7 8 13 11 1.2 M4.5 15 L4.5 5.5 L16 5.5", "R7 8 13 3.4 1"},
};

QPainterPath Path(const char* words) {
    std::istringstream in(words);
    const auto number = [&in] {
        double value = 0;
        in >> value;
        return value;
    };
    const auto point = [&] {
        const double x = number();
        return QPointF(x, number());
    };
    QPainterPath path;
    for (char command = 0; in >> command;) {
        switch (command) {
            case 'M':
                path.moveTo(point());
                break;
            case 'L':
                path.lineTo(point());
                break;
            case 'Q': {
                const QPointF control = point();
                path.quadTo(control, point());
                break;
            }
            case 'R': {
                const QPointF corner = point();
                const QPointF size = point();
                const double radius = number();
                path.addRoundedRect(QRectF(corner, QSizeF(size.x(), size.y())), radius, radius);
                break;
            }
            case 'E': {
                const QPointF middle = point();
                const QPointF radii = point();
                path.addEllipse(middle, radii.x(), radii.y());
                break;
            }
            default:
                path.closeSubpath();
                break;
        }
    }
    return path;
}

}  // namespace

GlyphShape ShapeOf(const QString& name) {
    for (const Glyph& glyph : kGlyphs) {
        if (name == QLatin1String(glyph.name)) {
            return {Path(glyph.lines), Path(glyph.filled), glyph.width};
        }
    }
    return {};
}

void PaintGlyph(QPainter& painter, const QRectF& place, const GlyphShape& shape,
                const QColor& color) {
    const double side = std::min(place.width(), place.height());
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(place.x() + (place.width() - side) / 2,
                      place.y() + (place.height() - side) / 2);
    painter.scale(side / kGlyphUnits, side / kGlyphUnits);
    painter.fillPath(shape.filled, color);
    if (shape.width > 0) {
        painter.strokePath(shape.lines,
                           QPen(color, shape.width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    }
    painter.restore();
}

}  // namespace qt_adapter
