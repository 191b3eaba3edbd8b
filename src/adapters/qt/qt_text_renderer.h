// Text on canvases. Sizes are points at 96 dots an inch, whatever the screen's own resolution, so
// that a text covers the same pixels everywhere.
#pragma once

#include <QFont>
#include <optional>

#include "platform/canvas.h"

namespace qt_adapter {

/// The toolkit's font, with fonts that the system lacks replaced by their likes.
QFont ScreenFont(const platform::Font& font);

class QtTextRenderer : public platform::TextRenderer {
public:
    Extent Measure(const platform::Font& font, TextView text) override;
    void Draw(platform::Canvas& canvas, int x, int y, const platform::Font& font,
              platform::Color color, TextView text) override;
    /// The line is made into a shape once; the prints are laid down together.
    void DrawEach(platform::Canvas& canvas, int x, int y, const platform::Font& font,
                  platform::Color color, TextView text,
                  std::span<const platform::Offset> offsets) override;
    void DrawTurned(platform::Canvas& canvas, int x, int y, const platform::Font& font,
                    const platform::Turn& turn, platform::Color color, TextView text,
                    std::span<const platform::Offset> offsets) override;

private:
    /// ScreenFont of the font that was asked for last is kept: finding one takes longer than
    /// drawing a short text, and for the first one of all the system's fonts are looked through.
    const QFont& Found(const platform::Font& font);

    platform::Font last_;
    std::optional<QFont> found_;
};

}  // namespace qt_adapter
