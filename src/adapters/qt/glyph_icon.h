// Icons drawn from shapes in the palette's own colours, so that they follow light and dark.
#pragma once

#include <QColor>
#include <QIcon>
#include <QPalette>
#include <QString>

namespace qt_adapter {

/// Icon of a shape of `glyph_shapes`; empty for another name. Enabled it has the colour of `role`.
QIcon GlyphIcon(const QString& name, QPalette::ColorRole role = QPalette::ButtonText);

/// The same in a colour of its own.
QIcon GlyphIcon(const QString& name, const QColor& color);

}  // namespace qt_adapter
