#include "adapters/imaging/save.h"

#include <QFile>
#include <QImage>
#include <QImageWriter>
#include <algorithm>
#include <cerrno>
#include <new>
#include <string_view>
#include <utility>

#include "adapters/imaging/pixels.h"
#include "adapters/posix/error_text.h"
#include "adapters/posix/new_file.h"
#include "adapters/posix/watched_work.h"

namespace imaging {

using platform::Bitmap;
using platform::SaveForm;
using posix_adapter::WatchedWork;

namespace {

/// Indexed by SaveForm::Kind.
constexpr const char* kFormats[] = {"bmp", "jpeg", "png"};

constexpr int kMostPaletteBits = 8;

/// A file that seems full as soon as its writer is to end, and that gets a piece put in.
class WatchedFile : public QFile {
public:
    WatchedFile(const WatchedWork& watched, DatePiece piece)
        : watched_(watched), piece_(std::move(piece)) {}

protected:
    qint64 writeData(const char* data, qint64 size) override {
        if (watched_.Stopped()) {
            return -1;
        }
        qint64 before = 0;
        if (!piece_.bytes.empty() && written_ + size >= piece_.at) {
            before = piece_.at - written_;
            const DatePiece piece = std::exchange(piece_, {});
            const auto length = static_cast<qint64>(piece.bytes.size());
            if (QFile::writeData(data, before) != before ||
                QFile::writeData(piece.bytes.data(), length) != length) {
                return -1;
            }
        }
        const qint64 after = QFile::writeData(data + before, size - before);
        written_ += before + std::max<qint64>(after, 0);
        return after < 0 ? -1 : before + after;
    }

private:
    const WatchedWork& watched_;
    DatePiece piece_;
    qint64 written_ = 0;
};

/// The bitmap's own pixels, for as long as it lives.
QImage Shared(const Bitmap& bitmap) {
    return {reinterpret_cast<const uchar*>(bitmap.pixels.data()), bitmap.width, bitmap.height,
            QImage::Format_RGB32};
}

QImage InForm(const Bitmap& picture, const SaveForm& form) {
    if (form.bitsPerPixel > kMostPaletteBits) {
        return Shared(picture);
    }
    if (form.kind == SaveForm::Jpeg) {
        return Shared(picture).convertToFormat(QImage::Format_Grayscale8);
    }
    if (form.bitsPerPixel > 1) {
        return Shared(picture).convertToFormat(QImage::Format_Indexed8);
    }
    const platform::BitmapPtr levels = TwoLevels(picture);
    return levels ? Shared(*levels).convertToFormat(QImage::Format_Mono, Qt::ThresholdDither)
                  : QImage();
}

}  // namespace

int WriteImage(const QImage& image, const std::string& nativePath, const FileForm& form,
               WatchedWork& watched) {
    posix_adapter::NewFile target;
    if (const int error = target.Begin(nativePath)) {
        return error;
    }
    if (image.isNull()) {
        return ENOMEM;
    }
    WatchedFile file(watched, form.date);
    if (!file.open(target.Fd(), QIODevice::WriteOnly, QFileDevice::DontCloseHandle)) {
        return EIO;
    }
    QImageWriter writer(&file, form.kind);
    if (form.kind == std::string_view("jpeg")) {
        writer.setQuality(std::clamp(form.quality, 1, 100));
    }
    const bool written = writer.write(image) && file.flush();
    if (watched.Stopped()) {
        return ECANCELED;
    }
    if (!written || file.error() != QFileDevice::NoError) {
        return file.error() == QFileDevice::ResourceError ? ENOSPC : EIO;
    }
    file.close();
    if (const int error = target.Flush()) {
        return error;
    }
    return watched.MayCommit() ? target.Commit() : ECANCELED;
}

platform::Outcome SavePicture(const platform::BitmapPtr& picture, const std::string& nativePath,
                              const SaveForm& form, const platform::Report& report, bool ownThread,
                              platform::FileError& error) {
    if (!picture || picture->Empty()) {
        error.message = posix_adapter::ErrorText(EINVAL);
        return platform::Outcome::Failed;
    }
    int failure = 0;
    const platform::Outcome outcome = posix_adapter::RunWatched(
        [picture, nativePath, form](WatchedWork& watched) {
            try {
                return WriteImage(InForm(*picture, form), nativePath,
                                  {kFormats[form.kind], form.quality, {}}, watched);
            } catch (const std::bad_alloc&) {
                return ENOMEM;
            }
        },
        report, ownThread, failure);
    if (outcome == platform::Outcome::Failed) {
        error.message = posix_adapter::ErrorText(failure);
    }
    return outcome;
}

}  // namespace imaging
