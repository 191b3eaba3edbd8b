#include "adapters/imaging/picture_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QByteArray>
#include <QFile>
#include <QImageReader>
#include <algorithm>
#include <array>
#include <cstring>
#include <new>
#include <utility>

#include "adapters/imaging/jpeg_header.h"
#include "adapters/imaging/pixels.h"

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

/// Bits per pixel that a drawing has before it was drawn.
constexpr int kDrawnDepth = 32;

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

bool FitsMemory(Size size) {
    return door::FitsBound(size);
}

/// An open picture file with its reader set up.
class PictureReader {
public:
    explicit PictureReader(const std::string& path) {
        struct stat status {};
        const int fd = OpenPlain(path, status);
        if (fd < 0 || !file_.open(fd, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)) {
            if (fd >= 0) {
                close(fd);
            }
            return;
        }
        identity_ = {status.st_dev, status.st_ino, status.st_size, status.st_mtim};
        const QByteArray start = file_.peek(kSniffBytes);
        kind_ = SniffKind(ViewOf(start));
        if (kind_ == Kind::Svg) {
            // The toolkit's reader would hold up the program for hours, or open what is named.
            foreign_ = door::Kind::Svg;
        } else if (kind_ == Kind::None) {
            foreign_ = door::KindOf(ViewOf(start), ViewOf(End()), path);
        } else {
            reader_.setDecideFormatFromContent(false);
            reader_.setAutoDetectImageFormat(false);
            reader_.setAutoTransform(true);
            reader_.setFormat(ReaderName(kind_));
            reader_.setDevice(&file_);
        }
    }

    door::Kind Foreign() const { return foreign_; }

    door::Result DecodeForeign(Size wanted, door::Client& decoder) {
        return decoder.Decode(foreign_, file_.handle(), wanted);
    }

    void Identify(PictureFile& into) const {
        into.kind_ = kind_;
        into.foreign_ = foreign_;
        into.identity_ = identity_;
    }

    /// The size of what is decoded elsewhere; the pixels too where nothing less tells it.
    bool AskSize(PictureFile& into, door::Client& decoder) {
        const bool measurable = foreign_ == door::Kind::Svg;
        const door::Result result =
            measurable ? decoder.Measure(foreign_, file_.handle()) : DecodeForeign({}, decoder);
        into.own_ = result.size;
        into.foreignDepth_ = measurable ? kDrawnDepth : result.bitsPerPixel;
        into.ready_ = result.pixels;
        return result.outcome == door::Outcome::Decoded;
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
        const QSize stored = reader_.size();
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
        const PictureFile::Identity& before = known.identity_;
        return kind_ == known.kind_ && foreign_ == known.foreign_ &&
               identity_.device == before.device && identity_.node == before.node &&
               identity_.size == before.size && identity_.changed.tv_sec == before.changed.tv_sec &&
               identity_.changed.tv_nsec == before.changed.tv_nsec;
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
        return reader_.read();
    }

private:
    static std::string_view ViewOf(const QByteArray& bytes) {
        return {bytes.constData(), static_cast<size_t>(bytes.size())};
    }

    QByteArray End() {
        constexpr auto kEnd = static_cast<qint64>(door::kEndBytes);
        file_.seek(std::max(file_.size() - kEnd, qint64{0}));
        return file_.read(kEnd);
    }

    QFile file_;
    QImageReader reader_;
    Kind kind_ = Kind::None;
    door::Kind foreign_ = door::Kind::None;
    PictureFile::Identity identity_;
};

std::shared_ptr<PictureFile> PictureFile::Open(const std::string& nativePath,
                                               door::Client& decoder) {
    try {
        auto result = std::make_shared<PictureFile>();
        result->path_ = nativePath;
        PictureReader reader(nativePath);
        reader.Identify(*result);
        const bool read = reader.Foreign() == door::Kind::None ? reader.ReadHeader(*result)
                                                               : reader.AskSize(*result, decoder);
        return read ? result : nullptr;
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

bool PictureFile::IsUnchanged() const {
    try {
        return PictureReader(path_).IsSameFile(*this);
    } catch (const std::bad_alloc&) {
        return false;
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

BitmapPtr PictureFile::DecodeForeign(Size size, door::Client& decoder) const {
    BitmapPtr pixels = ready_.exchange(nullptr);
    if (pixels && size == own_) {
        return pixels;
    }
    PictureReader reader(path_);
    if (!reader.IsSameFile(*this)) {
        return nullptr;
    }
    pixels = reader.DecodeForeign(size == own_ ? Size() : size, decoder).pixels;
    const bool asAsked = pixels && pixels->width == size.width && pixels->height == size.height;
    return asAsked || !pixels ? pixels : Smooth(*pixels, size);
}

BitmapPtr PictureFile::Decode(Size size, int* depth, door::Client& decoder) const {
    if (!FitsMemory(size)) {
        return nullptr;
    }
    try {
        if (foreign_ != door::Kind::None) {
            if (depth != nullptr) {
                *depth = foreignDepth_;
            }
            return DecodeForeign(size, decoder);
        }
        PictureReader reader(path_);
        if (!reader.IsSameFile(*this)) {
            return nullptr;
        }
        QImage image = reader.Decode(*this, size);
        if (image.isNull()) {
            return nullptr;
        }
        if (depth != nullptr) {
            *depth = DepthOf(image);
        }
        BitmapPtr pixels = OverWhite(std::move(image));
        const bool asAsked = pixels && pixels->width == size.width && pixels->height == size.height;
        return asAsked || !pixels ? pixels : Smooth(*pixels, size);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

}  // namespace imaging
