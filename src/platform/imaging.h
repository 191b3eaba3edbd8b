// The imaging control: decodes one picture file, holds it, scales and filters it.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "platform/canvas.h"
#include "platform/files.h"
#include "platform/progress.h"
#include "text/text.h"

namespace platform {

/// How large the picture will be wanted, asked with its own size before it is decoded; the answer
/// lets a decoder work scaled. An empty answer, or one larger than the picture: whole.
using FitFunction = std::function<Size(Size own)>;

class ImagingControl {
public:
    virtual ~ImagingControl() = default;

    /// Reads the file's start. False where that shows the file to be unreadable; Load may still
    /// fail. Changes nothing.
    virtual bool ReadInformation(TextView path) = 0;

    /// Decodes the file at its own colour depth; alpha lies over white, EXIF orientation is
    /// applied. On false the control holds nothing.
    virtual bool Load(TextView path, const FitFunction& fit) = 0;

    /// True while a picture is held.
    virtual bool Holds() const = 0;
    /// Size the held picture counts as (its own, or that of the last Resize or ResizeTo), whatever
    /// was decoded.
    virtual Size HeldSize() const = 0;
    /// Bits per pixel of the held picture: 1, 4, 8, 16, 24, 32, 48, 64.
    virtual int BitsPerPixel() const = 0;

    /// bits 24: full colour. bits 1: two levels, dithered; still painted as colours.
    virtual void SetColorResolution(int bits, int paletteMode, int ditherMode, int colorCount) = 0;

    /// Resamples the held picture to whole pixels, both at least 1.
    virtual void Resize(int width, int height, int flags) = 0;
    /// Resamples it to `pixels` that count as `size`. Nothing happens where memory is short.
    virtual void ResizeTo(Size size, Size pixels) = 0;

    // Filters change the held picture for good and keep its size; nothing happens without one, or
    // where memory is short.

    /// Greys of the brightness that the colours have.
    virtual void GrayScale() = 0;
    /// Mirrors left to right.
    virtual void Reverse() = 0;
    /// Squares of `block` (at least 1), counted as HeldSize is, from the top left on, each of its
    /// mean colour; the last ones are cut at the right and bottom edge. A two-level picture has 24
    /// bits then.
    virtual void Mosaic(int block) = 0;
    /// Exchanges top and bottom.
    virtual void Flip() = 0;
    /// Complements of the colours.
    virtual void Invert() = 0;
    /// Edges bright on black; 8 is the full level.
    virtual void EdgeFilter(int level) = 0;
    /// A relief on mid grey, its depth in per mille. Direction 0: light from the top left.
    virtual void Emboss(int direction, int depth) = 0;

    /// The held picture's pixels, as many as HeldSize says unless ResizeTo gave another number;
    /// decodes whole where that was put off. Null when nothing is held.
    virtual BitmapPtr Picture() = 0;

    /// Takes over the other control's held picture. Cheap: nothing is decoded or copied.
    virtual void CopyFrom(const ImagingControl& other) = 0;

    virtual void Clear() = 0;
};

/// The form in which a picture is saved.
struct SaveForm {
    enum Kind { Bmp, Jpeg, Png } kind = Bmp;
    /// 1 (two levels, dithered), 8 (grey in a JPEG, else 256 colours) or 24; others count as the
    /// nearest one.
    int bitsPerPixel = 24;
    /// Of a JPEG: 1 small to 100 good.
    int quality = 90;
};

/// How a picture file is made of another one.
struct Conversion {
    enum Kind { Same, Bmp, Jpeg, Png } kind = Same;  // Same: as the source is
    /// Size of the new picture. Called on another thread: a pure function of values it holds.
    FitFunction fit;
    int quality = 90;  // of a JPEG: 1 small to 100 good
};

/// What became of it.
enum class Converted {
    Done,
    Stopped,     // by its report; nothing half made stays
    Needless,    // with Same: the new picture would be the old one
    NoWriter,    // with Same: files of that kind cannot be written
    Unreadable,  // the source is no picture that can be decoded
    Failed       // the new file cannot be written
};

/// A picture that will be loaded soon.
struct Wanted {
    Text path;
    /// Called on another thread, maybe after the caller is gone: a pure function of values it
    /// holds.
    FitFunction fit;
};

class Imaging {
public:
    virtual ~Imaging() = default;
    /// "… 1997": the last four characters are read as a number.
    virtual Text VersionText() const = 0;
    virtual std::unique_ptr<ImagingControl> MakeControl() = 0;

    /// Pictures to decode ahead, the most urgent first; they replace those of the last call, and an
    /// empty list frees everything. Only a hint: a later Load has the same result, even if the file
    /// changes meanwhile, but is fast where time and memory sufficed. Calling it again with the
    /// same pictures is cheap.
    virtual void Prepare(const std::vector<Wanted>& wanted) = 0;

    /// Writes the pixels to a file, whole or not at all. Reports as FileChanges::Copy does, though
    /// how much is done is not known.
    virtual Outcome Save(const BitmapPtr& picture, TextView path, const SaveForm& form,
                         const Report& report, FileError& error) = 0;

    /// Decodes a file, brings it to size and writes it as another one, whole or not at all. The
    /// picture stands upright; its depth stays unless new colours arise, its colour profile where
    /// the kind has room for one (in a BMP the colours are those of a plain screen), and what is
    /// transparent stays so in a PNG and lies over white elsewhere. `from` may be `to`. Reports as
    /// Save does.
    virtual Converted Convert(TextView from, TextView to, const Conversion& conversion,
                              const Report& report, FileError& error) = 0;
};

}  // namespace platform
