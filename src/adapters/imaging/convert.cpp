#include "adapters/imaging/convert.h"

#include <QByteArray>
#include <QColorSpace>
#include <QImage>
#include <QRgba64>
#include <algorithm>
#include <atomic>
#include <iterator>
#include <memory>
#include <new>
#include <string_view>

#include "adapters/imaging/exif_date.h"
#include "adapters/imaging/picture_file.h"
#include "adapters/imaging/pixels.h"
#include "adapters/imaging/save.h"
#include "adapters/posix/error_text.h"
#include "adapters/posix/posix_files.h"
#include "adapters/posix/watched_work.h"

namespace imaging {

using platform::Conversion;
using platform::Converted;
using platform::Size;
using posix_adapter::WatchedWork;

namespace {

/// What is known of a kind of files that can be written.
struct Writer {
    std::string_view name;  // the toolkit's
    bool holdsAlpha;
    bool holdsProfile;
    DatePiece (*date)(const platform::DateTime& taken);
};
constexpr Writer kWriters[] = {{"bmp", false, false, nullptr},
                               {"jpeg", false, true, JpegDate},
                               {"png", true, true, PngDate},
                               {"tiff", true, true, nullptr},
                               {"webp", true, true, nullptr}};
constexpr std::string_view kNameOf[] = {"", "bmp", "jpeg", "png"};  // by Conversion::Kind

constexpr int kMostPaletteBits = 8;

const Writer* FindWriter(const Conversion& conversion, const PictureFile& source) {
    const std::string_view name =
        conversion.kind == Conversion::Same ? source.KindName() : kNameOf[conversion.kind];
    const auto* found = std::find_if(std::begin(kWriters), std::end(kWriters),
                                     [name](const Writer& writer) { return writer.name == name; });
    return found == std::end(kWriters) ? nullptr : found;
}

/// Profiles of inks say nothing of the colours that a decoder made of them.
QColorSpace ProfileOf(const QImage& image) {
    constexpr qsizetype kSpaceAt = 16, kSpaceLength = 4;
    const QColorSpace space = image.colorSpace();
    return space.iccProfile().mid(kSpaceAt, kSpaceLength) == "CMYK" ? QColorSpace() : space;
}

/// The same pixels under another name of their form. The toolkit's own conversion between these
/// two (Qt 6.4) applies the alpha twice.
QImage WithEach(QImage image, QRgba64 (*change)(QRgba64), QImage::Format format) {
    for (int y = 0; y < image.height(); ++y) {
        auto* row = reinterpret_cast<QRgba64*>(image.scanLine(y));
        std::transform(row, row + image.width(), row, change);
    }
    image.reinterpretAsFormat(format);
    return image;
}

/// In a form whose pixels can be mixed: palettes hold numbers of colours, and of their own only
/// what is grey stays as small.
QImage Mixable(const QImage& image) {
    if (image.format() == QImage::Format_RGBA64) {
        return WithEach(image, qPremultiply, QImage::Format_RGBA64_Premultiplied);
    }
    if (image.depth() > kMostPaletteBits || image.format() == QImage::Format_Grayscale8) {
        return image;
    }
    if (image.hasAlphaChannel()) {
        return image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    }
    return image.convertToFormat(image.convertToFormat(QImage::Format_Indexed8).isGrayscale()
                                     ? QImage::Format_Grayscale8
                                     : QImage::Format_RGB32);
}

QImage Scaled(const QImage& image, Size size) {
    if (image.width() == size.width && image.height() == size.height) {
        return image;
    }
    const QImage scaled = Mixable(image).scaled(size.width, size.height, Qt::IgnoreAspectRatio,
                                                Qt::SmoothTransformation);
    switch (scaled.format()) {
        case QImage::Format_RGBA64_Premultiplied:
            return WithEach(scaled, qUnpremultiply, QImage::Format_RGBA64);
        case QImage::Format_ARGB32_Premultiplied:
            return scaled.convertToFormat(QImage::Format_ARGB32);
        default:
            // Smoothing makes true colours of greys, too.
            return image.depth() <= kMostPaletteBits && scaled.isGrayscale()
                       ? scaled.convertToFormat(QImage::Format_Grayscale8)
                       : scaled;
    }
}

/// What the kind has no room for, in the form that comes nearest.
QImage InForm(QImage image, const Writer& writer) {
    const QColorSpace profile = ProfileOf(image);
    const int depth = image.depth();
    if (image.hasAlphaChannel() && !writer.holdsAlpha) {
        image = ImageOf(OverWhite(std::move(image)));
        if (depth <= kMostPaletteBits) {
            image = image.convertToFormat(QImage::Format_Indexed8, Qt::ThresholdDither);
        }
    }
    if (image.format() == QImage::Format_Grayscale16 && !writer.holdsAlpha) {
        image = image.convertToFormat(QImage::Format_Grayscale8);
    }
    image.setColorSpace(profile);
    if (!writer.holdsProfile && profile.isValid() && profile != QColorSpace::SRgb) {
        image.convertToColorSpace(QColorSpace::SRgb);
    }
    return image;
}

DatePiece DateOf(const std::string& path, const Writer& writer) {
    const posix_adapter::Descriptor file =
        writer.date ? posix_adapter::OpenPlainFile(path) : posix_adapter::Descriptor();
    const auto taken =
        DateTaken([&](uint64_t at, size_t count) { return BytesAt(file.Get(), at, count); });
    return taken ? writer.date(*taken) : DatePiece();
}

/// One conversion; the thread that works on it may outlast the wait for it.
struct Job {
    Job(std::string source, std::string result, Conversion wanted,
        const sandbox::ClientOptions& decoder)
        : from(std::move(source)),
          to(std::move(result)),
          conversion(std::move(wanted)),
          context(decoder) {}

    const std::string from, to;
    const Conversion conversion;
    ReadingContext context;
    std::atomic<Converted> verdict{Converted::Unreadable};

    /// 0, or errno of a failure to write.
    int Run(WatchedWork& watched) {
        const std::shared_ptr<PictureFile> file = PictureFile::Open(from, context);
        if (!file) {
            return 0;
        }
        const Size own = file->OwnSize();
        const Size size = conversion.fit ? conversion.fit(own) : own;
        const Writer* writer = FindWriter(conversion, *file);
        if (conversion.kind == Conversion::Same && (size == own || writer == nullptr)) {
            verdict = size == own ? Converted::Needless : Converted::NoWriter;
            return 0;
        }
        context.Begin();
        const QImage image = file->DecodeImage(file->DecodesScaledTo(size) ? size : own, context);
        if (image.isNull() || !file->IsWhole(context)) {
            return watched.Stopped() ? ECANCELED : 0;
        }
        const QColorSpace profile = ProfileOf(image);
        QImage scaled = Scaled(image, size);
        scaled.setColorSpace(profile);
        verdict = Converted::Failed;
        const int failure =
            WriteImage(InForm(std::move(scaled), *writer), to,
                       {writer->name.data(), conversion.quality, DateOf(from, *writer)}, watched);
        verdict = failure == 0 ? Converted::Done : Converted::Failed;
        return failure;
    }
};

/// However the wait for it ends, decoding ends with it.
struct GiveUp {
    Job& job;
    ~GiveUp() { job.context.giveUp = true; }
};

}  // namespace

Converted ConvertPicture(const std::string& from, const std::string& to,
                         const Conversion& conversion, const ConvertOptions& options,
                         platform::FileError& error) {
    const auto job = std::make_shared<Job>(from, to, conversion, options.decoder);
    const GiveUp atEnd{*job};
    int failure = 0;
    const platform::Outcome outcome = posix_adapter::RunWatched(
        [job](WatchedWork& watched) {
            try {
                return job->Run(watched);
            } catch (const std::bad_alloc&) {
                return ENOMEM;
            }
        },
        options.report, options.ownThread, failure);
    if (outcome == platform::Outcome::Stopped) {
        return Converted::Stopped;
    }
    if (outcome == platform::Outcome::Failed) {
        error.message = posix_adapter::ErrorText(failure);
        return Converted::Failed;
    }
    return job->verdict;
}

}  // namespace imaging
