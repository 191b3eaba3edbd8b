#include "adapters/imaging/picture_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QByteArray>
#include <QFile>
#include <QGuiApplication>
#include <QImageReader>
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
    return !size.Empty() && int64_t{size.width} * size.height <= kMostBytes / 4;
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
        kind_ = SniffKind({start.constData(), static_cast<size_t>(start.size())});
        // Drawings may hold text, and fonts are there only once the toolkit stands.
        if (kind_ == Kind::Svg && qGuiApp == nullptr) {
            kind_ = Kind::None;
        }
        if (kind_ != Kind::None) {
            reader_.setDecideFormatFromContent(false);
            reader_.setAutoDetectImageFormat(false);
            reader_.setAutoTransform(true);
            reader_.setFormat(ReaderName(kind_));
            reader_.setDevice(&file_);
        }
    }

    Kind FileKind() const { return kind_; }

    bool ReadHeader(PictureFile& into) {
        if (kind_ == Kind::None) {
            return false;
        }
        into.kind_ = kind_;
        into.identity_ = identity_;
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
        const PictureFile::Identity& before = known.identity_;
        return kind_ == known.kind_ && identity_.device == before.device &&
               identity_.node == before.node && identity_.size == before.size &&
               identity_.changed.tv_sec == before.changed.tv_sec &&
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
    QFile file_;
    QImageReader reader_;
    Kind kind_ = Kind::None;
    PictureFile::Identity identity_;
};

std::shared_ptr<PictureFile> PictureFile::Open(const std::string& nativePath) {
    try {
        auto result = std::make_shared<PictureFile>();
        result->path_ = nativePath;
        PictureReader reader(nativePath);
        return reader.ReadHeader(*result) ? result : nullptr;
    } catch (const std::bad_alloc&) {
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

BitmapPtr PictureFile::Decode(Size size, int* depth) const {
    if (!FitsMemory(size)) {
        return nullptr;
    }
    try {
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
