#include "adapters/imaging/picture_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QByteArray>
#include <QFile>
#include <QImageReader>
#include <algorithm>
#include <array>
#include <cstdlib>
#include <cstring>
#include <new>
#include <utility>

#include "adapters/imaging/jpeg_header.h"
#include "adapters/imaging/pixels.h"
#include "adapters/posix/descriptor.h"

namespace imaging {

using platform::BitmapPtr;
using platform::Size;

namespace {

/// Opens a plain file without ever waiting for it; nothing else is opened. -1 otherwise.
int OpenPlain(const std::string& path, struct stat& status) {
    if (stat(path.c_str(), &status) != 0 || !S_ISREG(status.st_mode)) {
        return -1;
    }
    const int fd = open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (fd >= 0 && (fstat(fd, &status) != 0 || !S_ISREG(status.st_mode))) {
        close(fd);
        return -1;
    }
    return fd;
}

bool Same(const timespec& a, const timespec& b) {
    return a.tv_sec == b.tv_sec && a.tv_nsec == b.tv_nsec;
}

FileIdentity MakeIdentity(const struct stat& status) {
    return {status.st_dev, status.st_ino, status.st_size, status.st_mtim, status.st_ctim};
}

int64_t PixelBytes(Size size) {
    return int64_t{size.width} * size.height * static_cast<int64_t>(sizeof(platform::Pixel));
}

/// A file that seems cut off as soon as its reader is to end.
class ReadableFile : public QFile {
public:
    explicit ReadableFile(const ReadingContext& context) : context_(context) {}

protected:
    qint64 readData(char* data, qint64 most) override {
        return context_.MustEnd() ? -1 : QFile::readData(data, most);
    }

private:
    const ReadingContext& context_;
};

/// Of the calling thread's processor time.
double ThreadSeconds() {
    timespec used{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &used);
    return static_cast<double>(used.tv_sec) + static_cast<double>(used.tv_nsec) / 1e9;
}

uint32_t LittleEndian(std::string_view bytes, size_t at, size_t count) {
    uint32_t value = 0;
    for (size_t i = count; i-- > 0;) {
        value = value << 8 | static_cast<unsigned char>(at + i < bytes.size() ? bytes[at + i] : 0);
    }
    return value;
}

constexpr size_t kBmpBitsAt = 28;

/// Pixels of 16 bits: the toolkit's reader makes their white a light grey.
bool HasBmpWords(std::string_view start) {
    return LittleEndian(start, kBmpBitsAt, 2) == 16;
}

/// Up to the last pixel, by the header of a picture that was decoded; 0 where pixels are packed.
int64_t BytesOfBmp(std::string_view start) {
    constexpr uint32_t kOldHeader = 12, kNotPacked = 0, kMasks = 3, kMasksWithAlpha = 6;
    const bool old = LittleEndian(start, 14, 4) == kOldHeader;
    const uint32_t packing = old ? kNotPacked : LittleEndian(start, 30, 4);
    const int64_t width =
        old ? LittleEndian(start, 18, 2) : static_cast<int32_t>(LittleEndian(start, 18, 4));
    const int64_t height =
        old ? LittleEndian(start, 20, 2)
            : std::abs(int64_t{static_cast<int32_t>(LittleEndian(start, 22, 4))});
    const int64_t rowBits = width * LittleEndian(start, old ? 24 : kBmpBitsAt, 2);
    if (packing != kNotPacked && packing != kMasks && packing != kMasksWithAlpha) {
        return 0;
    }
    return LittleEndian(start, 10, 4) + (rowBits + 31) / 32 * 4 * (height - 1) + (rowBits + 7) / 8;
}

/// Bits per pixel that a drawing has before it was drawn.
constexpr int kDrawnDepth = 32;

constexpr int kMostPaletteBits = 8;

/// Bits per pixel as the file stores it, from the form that its reader chose.
int DepthOf(const QImage& image) {
    constexpr int kMostSmallPalette = 16;
    switch (image.format()) {
        case QImage::Format_RGB32:
        case QImage::Format_RGBX8888:
        case QImage::Format_RGB888:
        case QImage::Format_BGR888:
            return 24;
        case QImage::Format_RGBX64:
            return 48;
        case QImage::Format_Indexed8:
            return image.colorCount() > 0 && image.colorCount() <= kMostSmallPalette ? 4 : 8;
        default:
            return image.depth();
    }
}

}  // namespace

void ReadingContext::Begin() {
    hindrance = Hindrance::None;
    begunAt_ = ThreadSeconds();
}

bool ReadingContext::MustEnd() const {
    return giveUp || ThreadSeconds() - begunAt_ > mostSeconds;
}

bool FitsMemory(Size size) {
    return sandbox::FitsBound(size);
}

bool operator==(const FileIdentity& a, const FileIdentity& b) {
    return a.device == b.device && a.node == b.node && a.size == b.size &&
           Same(a.written, b.written) && Same(a.changed, b.changed);
}

std::optional<FileIdentity> IdentityOf(const std::string& nativePath) {
    // Opened, as a file from elsewhere may be asked for anew by that alone.
    struct stat status {};
    const posix_adapter::Descriptor file(OpenPlain(nativePath, status));
    return file.Valid() ? std::optional(MakeIdentity(status)) : std::nullopt;
}

// One look at the start serves both.
static_assert(kSniffBytes == sandbox::kStartBytes);

/// An open picture file with its reader set up.
class PictureReader {
public:
    PictureReader(const std::string& path, ReadingContext& context)
        : context_(context), file_(context) {
        struct stat status {};
        const int fd = OpenPlain(path, status);
        if (fd < 0 || !file_.open(fd, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)) {
            if (fd >= 0) {
                close(fd);
            }
            context.hindrance = Hindrance::Passing;
            return;
        }
        identity_ = MakeIdentity(status);
        const QByteArray start = file_.peek(kSniffBytes);
        kind_ = SniffKind(ViewOf(start));
        if (kind_ == Kind::Svg) {
            // The toolkit's reader would hold up the program for hours, or open what is named.
            foreign_ = sandbox::Kind::Svg;
        } else if (kind_ == Kind::Bmp && HasBmpWords(ViewOf(start))) {
            foreign_ = sandbox::Kind::Bmp;
        } else if (kind_ == Kind::None) {
            foreign_ = sandbox::KindOf(ViewOf(start), ViewOf(End()), path);
        } else {
            reader_.setDecideFormatFromContent(false);
            reader_.setAutoDetectImageFormat(false);
            reader_.setAutoTransform(true);
            reader_.setFormat(ReaderName(kind_));
            reader_.setDevice(&file_);
        }
    }

    sandbox::Kind Foreign() const { return foreign_; }

    sandbox::Result DecodeAs(sandbox::Kind kind, Size wanted) {
        return Noted(context_.decoder.Decode(kind, file_.handle(), wanted));
    }

    void Identify(PictureFile& into) const {
        into.kind_ = kind_;
        into.foreign_ = foreign_;
        into.identity_ = identity_;
    }

    /// The size of what is decoded elsewhere; the pixels too where nothing less tells it.
    bool AskSize(PictureFile& into) {
        const bool measurable = sandbox::RoleOf(foreign_) != sandbox::Role::Raster;
        const sandbox::Result result =
            measurable ? Noted(context_.decoder.Measure(foreign_, file_.handle()))
                       : DecodeAs(foreign_, {});
        into.own_ = result.size;
        into.foreignDepth_ = measurable ? kDrawnDepth : result.bitsPerPixel;
        into.ready_ = result.pixels;
        return result.outcome == sandbox::Outcome::Decoded;
    }

    bool ReadHeader(PictureFile& into) {
        if (kind_ == Kind::None) {
            return false;
        }
        if (kind_ == Kind::Jpeg) {
            const JpegHeader header = ReadJpegHeader(file_);
            into.scaledDecodeBytes_ = header.WorkingBytes();
            file_.seek(0);
        }
        QSize stored = reader_.size();
        if (kind_ == Kind::Bmp && stored.height() < 0) {
            // Rows from the top down; the reader itself knows.
            stored.setHeight(-stored.height());
        }
        if (stored.isEmpty()) {
            return false;
        }
        into.sideways_ = reader_.transformation().testFlag(QImageIOHandler::TransformationRotate90);
        into.own_ = {stored.width(), stored.height()};
        if (into.sideways_) {
            std::swap(into.own_.width, into.own_.height);
        }
        return true;
    }

    bool IsSameFile(const PictureFile& known) const {
        return kind_ == known.kind_ && foreign_ == known.foreign_ && identity_ == known.identity_;
    }

    bool HoldsWholePicture() {
        return kind_ == Kind::Jpeg  ? HoldsJpegEnd(file_)
               : kind_ == Kind::Bmp ? file_.size() >= BytesOfBmp(ViewOf(file_.peek(kSniffBytes)))
                                    : true;
    }

    QImage Decode(const PictureFile& file, Size size) {
        // Below 50 the reader would scale without smoothing.
        constexpr int kQuality = 75;
        if (!(size == file.own_)) {
            reader_.setQuality(kQuality);
            // The reader scales before it turns the picture upright.
            reader_.setScaledSize(file.sideways_ ? QSize(size.height, size.width)
                                                 : QSize(size.width, size.height));
        }
        QImage image;
        if (kind_ == Kind::Bmp) {
            // Its reader leaves the rows that a cut file lacks as it finds them. Of rows from the
            // top down it would say a height below 0.
            image = QImage(file.own_.width, file.own_.height, reader_.imageFormat());
            image.fill(image.depth() < 32 ? 0u : ~0u);
        }
        return reader_.read(&image) ? image : QImage();
    }

private:
    /// What hindered a decoding that said nothing of the file is noted.
    sandbox::Result Noted(sandbox::Result result) {
        if (result.outcome == sandbox::Outcome::Large) {
            context_.hindrance = Hindrance::Large;
        } else if (result.outcome == sandbox::Outcome::Missing ||
                   result.outcome == sandbox::Outcome::Lied) {
            context_.hindrance = Hindrance::Passing;
        }
        return result;
    }

    static std::string_view ViewOf(const QByteArray& bytes) {
        return {bytes.constData(), static_cast<size_t>(bytes.size())};
    }

    QByteArray End() {
        constexpr auto kEnd = static_cast<qint64>(sandbox::kEndBytes);
        file_.seek(std::max(file_.size() - kEnd, qint64{0}));
        return file_.read(kEnd);
    }

    ReadingContext& context_;
    ReadableFile file_;
    QImageReader reader_;
    Kind kind_ = Kind::None;
    sandbox::Kind foreign_ = sandbox::Kind::None;
    FileIdentity identity_;
};

bool PictureFile::Recognises(const std::string& nativePath, ReadingContext& context) {
    context.Begin();
    try {
        PictureReader reader(nativePath, context);
        PictureFile header;
        return reader.Foreign() != sandbox::Kind::None || reader.ReadHeader(header);
    } catch (const std::bad_alloc&) {
        return false;
    }
}

std::shared_ptr<PictureFile> PictureFile::Open(const std::string& nativePath,
                                               ReadingContext& context) {
    context.Begin();
    try {
        auto result = std::make_shared<PictureFile>();
        result->path_ = nativePath;
        PictureReader reader(nativePath, context);
        reader.Identify(*result);
        const bool read = reader.Foreign() == sandbox::Kind::None ? reader.ReadHeader(*result)
                                                                  : reader.AskSize(*result);
        return read ? result : nullptr;
    } catch (const std::bad_alloc&) {
        context.hindrance = Hindrance::Passing;
        return nullptr;
    }
}

bool PictureFile::DecodesScaledTo(Size size) const {
    if (!FitsMemory(size) || size == own_) {
        return false;
    }
    if (IsDrawing()) {
        return true;
    }
    const bool smaller = size.width <= own_.width && size.height <= own_.height;
    return kind_ == Kind::Jpeg && smaller && scaledDecodeBytes_ <= kMostBytes;
}

Size PictureFile::SizeToDecode(Size wanted) const {
    const bool smaller = wanted.width <= own_.width && wanted.height <= own_.height;
    const bool taken = IsDrawing() ? FitsMemory(wanted) : smaller && !wanted.Empty();
    return taken ? wanted : own_;
}

int64_t PictureFile::WorkingBytes(Size size) const {
    return DecodesScaledTo(size) ? scaledDecodeBytes_ : PixelBytes(own_);
}

bool PictureFile::IsWhole(ReadingContext& context) const {
    PictureReader reader(path_, context);
    return reader.IsSameFile(*this) && reader.HoldsWholePicture();
}

QImage PictureFile::DecodeHere(Size size, int* depth, ReadingContext& context) const {
    PictureReader reader(path_, context);
    if (!reader.IsSameFile(*this)) {
        return {};
    }
    QImage image = reader.Decode(*this, size);
    if (context.MustEnd()) {
        return {};
    }
    if (image.isNull() && kind_ == Kind::Tiff) {
        // Tiles larger than the picture, for one, are too much for the toolkit's reader.
        const sandbox::Result result = reader.DecodeAs(sandbox::Kind::Tif, {});
        if (depth != nullptr) {
            *depth = result.bitsPerPixel;
        }
        return ImageOf(result.pixels);
    }
    if (depth != nullptr && !image.isNull()) {
        *depth = DepthOf(image);
    }
    return image;
}

BitmapPtr PictureFile::DecodeForeign(Size size, ReadingContext& context) const {
    BitmapPtr pixels = ready_.exchange(nullptr);
    if (pixels && size == own_) {
        return pixels;
    }
    PictureReader reader(path_, context);
    if (!reader.IsSameFile(*this)) {
        return nullptr;
    }
    return reader.DecodeAs(foreign_, size == own_ ? Size() : size).pixels;
}

BitmapPtr PictureFile::Decode(Size size, int* depth, ReadingContext& context) const {
    const Size decoded = DecodesScaledTo(size) ? size : own_;
    if (!FitsMemory(size) || !FitsMemory(decoded)) {
        return nullptr;
    }
    const bool foreign = foreign_ != sandbox::Kind::None;
    if (foreign && depth != nullptr) {
        *depth = foreignDepth_;
    }
    try {
        BitmapPtr pixels = foreign ? DecodeForeign(decoded, context)
                                   : OverWhite(DecodeHere(decoded, depth, context));
        const bool asAsked = pixels && pixels->width == size.width && pixels->height == size.height;
        return asAsked || !pixels ? pixels : Smooth(*pixels, size);
    } catch (const std::bad_alloc&) {
        context.hindrance = Hindrance::Passing;
        return nullptr;
    }
}

QImage PictureFile::DecodeImage(Size size, ReadingContext& context) const {
    if (!FitsMemory(size)) {
        return {};
    }
    if (foreign_ == sandbox::Kind::None) {
        return DecodeHere(size, nullptr, context);
    }
    const QImage image = ImageOf(DecodeForeign(size, context));
    // What came back has as few colours as the file; a drawing has none of its own.
    return foreignDepth_ > kMostPaletteBits || image.isNull() ? image
           : foreignDepth_ == 1
               ? image.convertToFormat(QImage::Format_Mono, Qt::ThresholdDither)
               : image.convertToFormat(QImage::Format_Indexed8, Qt::ThresholdDither);
}

}  // namespace imaging
