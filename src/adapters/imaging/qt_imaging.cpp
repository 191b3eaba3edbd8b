#include "adapters/imaging/qt_imaging.h"

#include <QImageReader>
#include <QLoggingCategory>
#include <algorithm>
#include <cmath>
#include <new>
#include <utility>

#include "adapters/imaging/convert.h"
#include "adapters/imaging/filters.h"
#include "adapters/imaging/picture_file.h"
#include "adapters/imaging/pixels.h"
#include "adapters/imaging/save.h"

namespace imaging {

using platform::Bitmap;
using platform::BitmapPtr;
using platform::Size;

namespace {

Size SizeOf(const Bitmap& bitmap) {
    return {bitmap.width, bitmap.height};
}

bool Covers(Size outer, Size inner) {
    return outer.width >= inner.width && outer.height >= inner.height;
}

class QtImagingControl : public platform::ImagingControl {
public:
    /// `remembers`: whether what is loaded may be wanted before a later Load.
    QtImagingControl(platform::Files& files, ReadingContext& context, PreparedPictures& prepared,
                     bool remembers)
        : files_(files), context_(context), prepared_(prepared), remembers_(remembers) {}

    bool ReadInformation(TextView path) override {
        const std::optional<std::string> found = files_.Find(path);
        return found && PictureFile::Recognises(*found, context_);
    }

    bool Load(TextView path, const platform::FitFunction& fit) override {
        Clear();
        const std::optional<std::string> found = files_.Find(path);
        if (!found) {
            return false;
        }
        std::optional<LoadedPicture> loaded = prepared_.Take(*found, fit);
        if (!loaded) {
            loaded = LoadPicture(*found, fit, context_);
        }
        if (!loaded->pixels) {
            return false;
        }
        if (remembers_) {
            prepared_.Remember(*found, fit, *loaded);
        }
        state_.size = state_.held = loaded->file->OwnSize();
        state_.bitsPerPixel = loaded->bitsPerPixel;
        state_.pixels = std::move(loaded->pixels);
        if (!(SizeOf(*state_.pixels) == state_.held) || loaded->file->IsDrawing()) {
            state_.source = std::make_shared<Source>(Source{std::move(loaded->file), {}});
        }
        return true;
    }

    bool Holds() const override { return state_.pixels != nullptr; }
    Size HeldSize() const override { return state_.size; }
    int BitsPerPixel() const override { return state_.bitsPerPixel; }

    void SetColorResolution(int bits, int, int, int) override {
        if (!Holds()) {
            return;
        }
        if (bits == 1 && state_.bitsPerPixel != 1) {
            Change(TwoLevels);
        }
        state_.bitsPerPixel = bits;
    }

    void Resize(int width, int height, int) override {
        const Size size{std::max(width, 1), std::max(height, 1)};
        if (ResampleTo(size)) {
            state_.size = size;
        }
    }

    void ResizeTo(Size size, Size pixels) override {
        if (state_.held == pixels || ResampleTo(pixels)) {
            state_.size = size;
        }
    }

    void GrayScale() override { Change(Gray); }
    void Reverse() override { Change(Mirrored); }
    void Flip() override { Change(Flipped); }
    void Invert() override { Change(Inverted); }
    void EdgeFilter(int level) override {
        Change([=, this](const Bitmap& whole) { return Edges(whole, level, Reach()); });
    }
    void Emboss(int direction, int depth) override {
        Change(
            [=, this](const Bitmap& whole) { return Embossed(whole, direction, depth, Reach()); });
    }
    void Mosaic(int block) override {
        Change([=, this](const Bitmap& whole) {
            return imaging::Mosaic(whole, block, {state_.size, SizeOf(whole)});
        });
        if (Holds() && state_.bitsPerPixel == 1) {
            state_.bitsPerPixel = 24;
        }
    }

    BitmapPtr Picture() override {
        if (!Holds() || SizeOf(*state_.pixels) == state_.held) {
            return state_.pixels;
        }
        BitmapPtr whole = state_.source ? Whole(*state_.source, state_.held) : nullptr;
        if (!whole && FitsMemory(state_.held)) {
            whole = Guarded([&] { return Smooth(*state_.pixels, state_.held); });
        }
        if (whole) {
            state_.pixels = std::move(whole);
        }
        return state_.pixels;
    }

    void CopyFrom(const ImagingControl& other) override {
        if (const auto* control = dynamic_cast<const QtImagingControl*>(&other)) {
            state_ = control->state_;
        }
    }

    void Clear() override { state_ = {}; }

private:
    /// File to decode again from, and the whole picture for as long as some control holds it.
    struct Source {
        std::shared_ptr<const PictureFile> file;
        std::weak_ptr<const Bitmap> whole;
    };
    struct State {
        BitmapPtr pixels;
        std::shared_ptr<Source> source;  // only while `pixels` is not the best there is
        Size held;                       // pixels of Picture
        Size size;                       // what it counts as
        int bitsPerPixel = 24;
    };

    /// True when the held picture has so many pixels then.
    bool ResampleTo(Size size) {
        if (!Holds() || !FitsMemory(size)) {
            return false;
        }
        if (SizeOf(*state_.pixels) == size) {
            state_.held = size;
        } else if (BitmapPtr resized = Resampled(size)) {
            state_.pixels = std::move(resized);
            state_.held = size;
        }
        // A drawing can be drawn anew at any later size; pixels are now all there is.
        if (state_.source && !state_.source->file->IsDrawing() && state_.held == size) {
            state_.source = nullptr;
        }
        return state_.held == size;
    }

    /// How far apart the pixels are that filters compare.
    int Reach() const {
        return std::max(
            1, static_cast<int>(std::lround(double(state_.held.height) / state_.size.height)));
    }

    /// The result of `work`, null where memory does not do.
    template <typename Work>
    static BitmapPtr Guarded(const Work& work) {
        try {
            return work();
        } catch (const std::bad_alloc&) {
            return nullptr;
        }
    }

    /// The picture decoded whole, at most once for all controls that share it.
    BitmapPtr Whole(Source& source, Size size) {
        BitmapPtr whole = source.whole.lock();
        if (!whole || !(SizeOf(*whole) == size)) {
            context_.Begin();
            whole = source.file->Decode(size, nullptr, context_);
            source.whole = whole;
        }
        return whole;
    }

    BitmapPtr Resampled(Size size) {
        const bool twoLevels = state_.bitsPerPixel == 1 && !state_.source;
        const bool sharper = state_.source && (state_.source->file->IsDrawing() ||
                                               !Covers(SizeOf(*state_.pixels), size));
        if (sharper && state_.source->file->DecodesScaledTo(size)) {
            context_.Begin();
            if (BitmapPtr decoded = state_.source->file->Decode(size, nullptr, context_)) {
                return decoded;
            }
        }
        const BitmapPtr base = Covers(SizeOf(*state_.pixels), size) ? state_.pixels : Picture();
        return Guarded([&] { return twoLevels ? Nearest(*base, size) : Smooth(*base, size); });
    }

    /// The held picture becomes what `filter` makes of all its pixels.
    template <typename Filter>
    void Change(const Filter& filter) {
        if (const BitmapPtr whole = Picture()) {
            Settle(Guarded([&] { return filter(*whole); }));
        }
    }

    /// From here on the held picture is these pixels and no longer a file's.
    void Settle(BitmapPtr pixels) {
        if (pixels) {
            state_.pixels = std::move(pixels);
            state_.source = nullptr;
            state_.held = SizeOf(*state_.pixels);
        }
    }

    platform::Files& files_;
    ReadingContext& context_;
    PreparedPictures& prepared_;
    bool remembers_;
    State state_;
};

}  // namespace

QtImaging::QtImaging(platform::Files& files, bool prepares, const sandbox::ClientOptions& decoder,
                     bool savesApart)
    : files_(files),
      prepares_(prepares),
      savesApart_(savesApart),
      decoder_(decoder),
      context_(decoder),
      prepared_(decoder) {
    // What the readers say of a damaged file, or of a decoding that was given up, helps no one.
    QLoggingCategory::setFilterRules("qt.gui.imageio*=false");
    QImageReader::setAllocationLimit(static_cast<int>(kMostBytes >> 20));
}

Text QtImaging::VersionText() const {
    return u"パラピコ imaging 1997";
}

std::unique_ptr<platform::ImagingControl> QtImaging::MakeControl() {
    return std::make_unique<QtImagingControl>(files_, context_, prepared_, prepares_);
}

void QtImaging::Prepare(const std::vector<platform::Wanted>& wanted) {
    if (!prepares_) {
        return;
    }
    std::vector<PreparedPictures::Wanted> found;
    for (const platform::Wanted& one : wanted) {
        if (std::optional<std::string> native = files_.Find(one.path)) {
            found.push_back({std::move(*native), one.fit});
        }
    }
    prepared_.Prepare(found);
}

platform::Outcome QtImaging::Save(const platform::BitmapPtr& picture, TextView path,
                                  const platform::SaveForm& form, const platform::Report& report,
                                  platform::FileError& error) {
    return SavePicture(picture, path.empty() ? std::string() : files_.NativeTarget(path), form,
                       report, savesApart_, error);
}

platform::Converted QtImaging::Convert(TextView from, TextView to,
                                       const platform::Conversion& conversion,
                                       const platform::Report& report, platform::FileError& error) {
    const std::optional<std::string> found = files_.Find(from);
    if (!found) {
        return platform::Converted::Unreadable;
    }
    return ConvertPicture(*found, to.empty() ? std::string() : files_.NativeTarget(to), conversion,
                          {decoder_, report, savesApart_}, error);
}

}  // namespace imaging
