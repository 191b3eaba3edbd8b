// Pictures made for the tests of the imaging control, and a control to load them.
#pragma once

#include <QByteArray>
#include <QImage>
#include <memory>
#include <string>

#include "adapters/imaging/qt_imaging.h"
#include "adapters/posix/posix_files.h"
#include "posix/temporary_folder.h"

/// Image whose four quarters are red (top left), green (top right), blue (bottom left) and black.
QImage Quarters(int width, int height);

/// The image encoded as "png", "jpg", "bmp", "tiff", "webp", ...
QByteArray Encoded(const QImage& image, const char* format, int quality = -1);

/// A JPEG with an EXIF segment put in that says how to turn it (1 to 8).
QByteArray WithOrientation(const QByteArray& jpeg, int orientation);

/// Baseline JPEG of one flat colour, component by component as stored: 1 (grey) or 4 (CMYK with
/// the usual mark, stored inverted) values, each 0 to 255.
QByteArray FlatJpeg(int width, int height, const std::string& components);

/// Uncompressed TIFF of 8-bit inks, 255 full ink: four bytes a pixel.
QByteArray CmykTiff(int width, int height, const std::string& pixels);

/// GIF of 2 × 2 pixels with the palette white, red, green, transparent.
QByteArray TinyGif(const std::string& fourIndexes);

/// PNG with nothing but its header: right in itself, of any size.
QByteArray PngHeader(int width, int height);

class ImagingFolder {
public:
    /// Without options a picture has all the time that a slow machine may need.
    explicit ImagingFolder(const sandbox::ClientOptions& decoder = {"", {}, 600000})
        : imaging_(files_, true, decoder) {}

    Text Put(const std::string& name, const QByteArray& bytes) {
        folder_.Put(name, bytes.toStdString());
        return folder_.TextPath(name);
    }
    const TemporaryFolder& Folder() const { return folder_; }
    std::unique_ptr<platform::ImagingControl> Control() { return imaging_.MakeControl(); }
    imaging::QtImaging& Imaging() { return imaging_; }
    platform::Files& Files() { return files_; }

private:
    TemporaryFolder folder_;
    posix_adapter::PosixFiles files_{folder_.Path("program")};
    imaging::QtImaging imaging_;
};

/// Largest difference of a colour part between two pixels.
int Distance(platform::Pixel a, platform::Pixel b);
