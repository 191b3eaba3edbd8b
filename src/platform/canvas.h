// Pixels: bitmaps, and canvases with a pen. Pixels are 0xFFRRGGBB in memory; colours of the rules
// are 0x00BBGGRR.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <vector>

#include "text/text.h"

namespace platform {

using Color = uint32_t;  // 0x00BBGGRR
using Pixel = uint32_t;  // 0xFFRRGGBB

constexpr Color Rgb(int red, int green, int blue) {
    return static_cast<Color>(red | (green << 8) | (blue << 16));
}
constexpr Pixel ToPixel(Color c) {
    return 0xFF000000u | ((c & 0xFFu) << 16) | (c & 0xFF00u) | ((c >> 16) & 0xFFu);
}
constexpr Color ToColor(Pixel p) {
    return ((p & 0xFFu) << 16) | (p & 0xFF00u) | ((p >> 16) & 0xFFu);
}

struct Size {
    int width = 0, height = 0;  // pixels
    bool Empty() const { return width <= 0 || height <= 0; }
    friend bool operator==(const Size&, const Size&) = default;
};

struct Rect {
    int x = 0, y = 0, width = 0, height = 0;
    bool Empty() const { return width <= 0 || height <= 0; }
    friend bool operator==(const Rect&, const Rect&) = default;
};

Rect Intersection(const Rect& a, const Rect& b);
/// Smallest rectangle over both; an empty one counts for nothing.
Rect Union(const Rect& a, const Rect& b);
/// A rectangle of that size in the middle of the area, which may be smaller.
inline Rect Centred(Size size, const Rect& area) {
    return {area.x + (area.width - size.width) / 2, area.y + (area.height - size.height) / 2,
            size.width, size.height};
}

/// How the units that a surface is reckoned in become the pixels that it is made of. Every edge
/// goes to the nearest edge of pixels, so that what lies side by side stays so, without seams and
/// without leftovers; the surface's own edges meet exactly.
struct Scale {
    Size units, pixels;  // of the whole surface

    /// Units are pixels.
    bool Plain() const { return units == pixels; }
    /// The edge of pixels for an edge of units.
    int X(int unit) const;
    int Y(int unit) const;
    Rect ToPixels(const Rect& area) const;
    /// Pixels for something of that size, wherever it stands; at least one each way.
    Size ToPixels(const Size& size) const;
    /// Pixels for one unit downwards.
    double Factor() const;
    friend bool operator==(const Scale&, const Scale&) = default;
};

/// Row-major pixels without padding.
struct Bitmap {
    int width = 0, height = 0;
    std::vector<Pixel> pixels;

    Bitmap() = default;
    Bitmap(int w, int h, Pixel fill = 0xFF000000u)
        : width(w), height(h), pixels(static_cast<size_t>(w) * static_cast<size_t>(h), fill) {}
    bool Empty() const { return width == 0 || height == 0; }
    Pixel* Row(int y) {
        return pixels.data() + static_cast<size_t>(y) * static_cast<size_t>(width);
    }
    const Pixel* Row(int y) const {
        return pixels.data() + static_cast<size_t>(y) * static_cast<size_t>(width);
    }
};

using BitmapPtr = std::shared_ptr<const Bitmap>;

enum class RasterOp { SourceCopy, Blackness, Whiteness };

struct Font {
    Text name = u"ＭＳ Ｐゴシック";
    double sizePoints = 9;
    bool bold = false, italic = false, underline = false;
    friend bool operator==(const Font&, const Font&) = default;
};

class Canvas;

struct Offset {
    int x = 0, y = 0;
    friend bool operator==(const Offset&, const Offset&) = default;
};

/// The form of a text that is turned about the top left of its line. Its font's size says nothing.
struct Turn {
    int height = 0;   // units of a line; 0: kUnsaidHeight
    int width = 0;    // average units of a Latin letter; 0: as the font has it
    int angle10 = 0;  // tenths of a degree, anticlockwise
    static constexpr int kUnsaidHeight = 16;
    friend bool operator==(const Turn&, const Turn&) = default;
};

/// Draws text onto canvases, as large as their scale asks for. Implemented by an adapter.
class TextRenderer {
public:
    virtual ~TextRenderer() = default;
    struct Extent {
        int width = 0, height = 0;  // units, whatever the scale; height is the line's
    };
    virtual Extent Measure(const Font& font, TextView text) = 0;
    /// Draws with the top left of the line's box at (x, y), background left as it is.
    virtual void Draw(Canvas& canvas, int x, int y, const Font& font, Color color,
                      TextView text) = 0;
    /// The pixels of a Draw at (x, y) moved by each offset in turn, in pixels of the canvas. An
    /// adapter may reach them by a shorter way, and has to where it draws on scaled canvases.
    virtual void DrawEach(Canvas& canvas, int x, int y, const Font& font, Color color,
                          TextView text, std::span<const Offset> offsets);
    /// As DrawEach, turned about (x, y), the top left of the line that is not turned yet.
    virtual void DrawTurned(Canvas& canvas, int x, int y, const Font& font, const Turn& turn,
                            Color color, TextView text, std::span<const Offset> offsets) = 0;
};

/// Pixel buffer with a pen. Everything is clipped to the buffer. A canvas keeps the rectangle that
/// changed since a view last took it. What covers it whole is drawn when its pixels are first asked
/// for: a canvas that is never shown costs neither time nor memory. Places and sizes are units;
/// they are pixels unless the canvas was given more or fewer of those.
class Canvas {
public:
    int Width() const { return scale_.units.width; }
    int Height() const { return scale_.units.height; }
    const Scale& Scaling() const { return scale_; }
    const Bitmap& Pixels() const {
        DrawGround();
        return pixels_;
    }

    /// New size, filled with `fill`; old content stays where it fits.
    void Resize(int width, int height, Color fill) {
        Resize({{width, height}, {width, height}}, fill);
    }
    /// The same to another scale, old content with it. Negative sizes count as none.
    void Resize(Scale scale, Color fill);
    void Fill(Color fill) { Cover(fill, nullptr); }
    /// Replaces everything by the picture at the top left (null: none), `size` units large, over
    /// the colour.
    void Cover(Color fill, BitmapPtr picture, Size size);
    /// A picture whose pixels are units.
    void Cover(Color fill, const BitmapPtr& picture) {
        Cover(fill, picture, picture ? Size{picture->width, picture->height} : Size{});
    }
    void FillRect(const Rect& area, Color color);
    /// Line one unit wide, with both ends.
    void Line(int x1, int y1, int x2, int y2, Color color);
    /// Pixel's colour; white outside the buffer.
    Color Point(int x, int y) const;

    /// Copies `width` × `height` units of `source` from (sourceX, sourceY) to (x, y). Blackness
    /// and Whiteness need no source. What lies outside either buffer is left out. The source has as
    /// many pixels a unit as the canvas.
    void BitBlt(int x, int y, int width, int height, const Bitmap* source, int sourceX, int sourceY,
                RasterOp op = RasterOp::SourceCopy);
    /// Nearest-pixel scaling of the whole source onto the rectangle.
    void StretchBlt(const Rect& target, const Bitmap& source);

    /// Draws `source` as if it lay on `whole`, but only the part within `area`; both in pixels.
    /// Where `whole` is a pixel larger or smaller, as rounding brings it, the source's last row or
    /// column comes twice or not at all; otherwise the nearest pixels are taken.
    void Lay(const Rect& area, const Bitmap& source, const Rect& whole);
    /// `area` in pixels.
    void FillPixels(const Rect& area, Color color);

    /// Writable pixels for a text renderer: mark what was drawn by Touch.
    Bitmap& Writable() {
        DrawGround();
        return pixels_;
    }
    void Touch(const Rect& area);  // pixels

    /// Rectangle of pixels changed since the last call; empties it.
    Rect TakeChanged();
    /// Called at the first change after a TakeChanged; set by the view.
    std::function<void()> onChanged;

    int penX = 0, penY = 0;  // units
    Font font;
    Color color = 0;

private:
    void LayPixels(const Rect& area, const Bitmap& source, const Rect& whole, bool repeats);
    void DrawGround() const {
        if (groundDue_) {
            FillWithGround();
        }
    }
    void FillWithGround() const;

    Scale scale_;
    mutable Bitmap pixels_;  // always of the canvas's size; what it holds counts once drawn
    mutable bool groundDue_ = false;
    Color ground_ = 0;
    mutable BitmapPtr groundPicture_;  // while due
    Size groundSize_;                  // units of the picture
    Rect changed_;
};

}  // namespace platform
