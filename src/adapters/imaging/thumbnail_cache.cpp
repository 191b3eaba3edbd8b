#include "adapters/imaging/thumbnail_cache.h"

#include <sys/stat.h>

#include <QBuffer>
#include <QCryptographicHash>
#include <QImage>
#include <QImageReader>
#include <QImageWriter>
#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <filesystem>

#include "adapters/imaging/pixels.h"
#include "adapters/posix/new_file.h"

namespace imaging {

using platform::BitmapPtr;

namespace {

struct Level {
    int side;
    const char* folder;
};
constexpr Level kLevels[] = {{128, "normal"}, {256, "large"}, {512, "x-large"}, {1024, "xx-large"}};

constexpr const char* kFailFolder = "fail/parapico-1";
constexpr const char* kUriKey = "Thumb::URI";
constexpr const char* kTimeKey = "Thumb::MTime";
constexpr const char* kSizeKey = "Thumb::Size";

/// Of the PNG writer: nearly its fastest.
constexpr int kFastCompression = 11;

/// A file that was written this short a time ago could change once more without another date.
constexpr int64_t kSettledAfterSeconds = 2;

bool StaysInUri(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
           (c != 0 && std::strchr("-_.!~*'()/&=:@+$,", c) != nullptr);
}

std::string FileName(const ThumbnailOf& file) {
    const QByteArray uri = QByteArray::fromStdString(FileUri(file.path));
    return QCryptographicHash::hash(uri, QCryptographicHash::Md5).toHex().toStdString() + ".png";
}

/// Whether the PNG's words speak of this state of this file.
bool Shows(const QImage& image, const ThumbnailOf& file) {
    const QString size = image.text(kSizeKey);
    return image.text(kUriKey).toStdString() == FileUri(file.path) &&
           image.text(kTimeKey) == QString::number(file.written) &&
           (size.isEmpty() || size == QString::number(file.size));
}

bool IsPlainFile(const std::string& path) {
    struct stat status {};
    return stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode);
}

/// Null where it is missing, damaged, of another file or state, or larger than it may be.
BitmapPtr ReadKept(const std::string& path, const ThumbnailOf& file, int mostSide) {
    if (!IsPlainFile(path)) {
        return nullptr;
    }
    QImageReader reader(QString::fromStdString(path), "png");
    const QSize size = reader.size();
    if (size.isEmpty() || size.width() > mostSide || size.height() > mostSide) {
        return nullptr;
    }
    QImage image = reader.read();
    return image.isNull() || !Shows(image, file) ? nullptr : OverWhite(std::move(image));
}

/// For the user alone: thumbnails show what is in private folders.
bool MakePrivateFolder(const std::filesystem::path& folder) {
    namespace fs = std::filesystem;
    std::error_code failed;
    if (fs::is_directory(folder, failed)) {
        return true;
    }
    return (!folder.has_parent_path() || folder == folder.parent_path() ||
            MakePrivateFolder(folder.parent_path())) &&
           (mkdir(folder.c_str(), 0700) == 0 || fs::is_directory(folder, failed));
}

void WriteKept(const std::string& path, QImage image, const ThumbnailOf& file) {
    image.setText(kUriKey, QString::fromStdString(FileUri(file.path)));
    image.setText(kTimeKey, QString::number(file.written));
    image.setText(kSizeKey, QString::number(file.size));
    image.setText("Software", "parapico");
    QBuffer bytes;
    QImageWriter writer(&bytes, "png");
    writer.setCompression(kFastCompression);
    posix_adapter::NewFile target;
    if (!writer.write(image) || !MakePrivateFolder(std::filesystem::path(path).parent_path()) ||
        target.Begin(path) != 0) {
        return;
    }
    const QByteArray& content = bytes.data();
    if (fchmod(target.Fd(), 0600) == 0 &&
        target.Write({content.constData(), static_cast<size_t>(content.size())}) == 0) {
        target.Commit(false);
    }
}

}  // namespace

std::string FileUri(const std::string& nativePath) {
    constexpr char kDigits[] = "0123456789ABCDEF";
    std::string uri = "file://";
    for (const char c : nativePath) {
        if (StaysInUri(c)) {
            uri += c;
        } else {
            const auto byte = static_cast<unsigned char>(c);
            uri += {'%', kDigits[byte >> 4], kDigits[byte & 15]};
        }
    }
    return uri;
}

int KeptSide(int side) {
    for (const Level& level : kLevels) {
        if (side <= level.side) {
            return level.side;
        }
    }
    return std::end(kLevels)[-1].side;
}

std::string ThumbnailCache::OfDesktop() {
    const char* cache = std::getenv("XDG_CACHE_HOME");
    if (cache && cache[0] == '/') {
        return std::string(cache) + "/thumbnails";
    }
    const char* home = std::getenv("HOME");
    return home && home[0] == '/' ? std::string(home) + "/.cache/thumbnails" : std::string();
}

std::optional<ThumbnailCache::Found> ThumbnailCache::Find(const ThumbnailOf& file, int side) const {
    if (folder_.empty()) {
        return std::nullopt;
    }
    const std::string name = FileName(file);
    for (const Level& level : kLevels) {
        if (level.side < side) {
            continue;
        }
        if (BitmapPtr kept =
                ReadKept(folder_ + "/" + level.folder + "/" + name, file, level.side)) {
            return Found{std::move(kept)};
        }
    }
    const std::string failed = folder_ + "/" + kFailFolder + "/" + name;
    return ReadKept(failed, file, kLevels[0].side) ? std::optional(Found{}) : std::nullopt;
}

void ThumbnailCache::Keep(const ThumbnailOf& file, const BitmapPtr& pixels, int side) const {
    const bool ownPicture = file.path.starts_with(folder_ + "/");
    if (folder_.empty() || ownPicture || std::time(nullptr) - file.written < kSettledAfterSeconds) {
        return;
    }
    const std::string name = FileName(file);
    if (!pixels) {
        QImage nothing(1, 1, QImage::Format_ARGB32);
        nothing.fill(Qt::transparent);
        WriteKept(folder_ + "/" + kFailFolder + "/" + name, nothing, file);
        return;
    }
    const QImage image(reinterpret_cast<const uchar*>(pixels->pixels.data()), pixels->width,
                       pixels->height, QImage::Format_RGB32);
    for (const Level& level : kLevels) {
        if (level.side == KeptSide(side)) {
            WriteKept(folder_ + "/" + level.folder + "/" + name, image, file);
        }
    }
}

}  // namespace imaging
