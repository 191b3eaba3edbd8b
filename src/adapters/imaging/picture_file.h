// One picture file: its header, and decoding at a chosen size.
#pragma once

#include <sys/types.h>
#include <time.h>

#include <atomic>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "adapters/imaging/sniff.h"
#include "adapters/sandbox/client.h"
#include "platform/imaging.h"

class QImage;

namespace imaging {

/// Largest picture that is decoded, as opaque pixels.
constexpr int64_t kMostBytes = sandbox::kMostPixelBytes;
bool FitsMemory(platform::Size size);

/// Which file it is, and in what state of its content. The last change of the inode counts too:
/// whoever puts size and write time back cannot put that back.
struct FileIdentity {
    dev_t device = 0;
    ino_t node = 0;
    off_t size = 0;
    timespec written{}, changed{};
    friend bool operator==(const FileIdentity& a, const FileIdentity& b);
};

/// Nullopt where there is no plain file.
std::optional<FileIdentity> IdentityOf(const std::string& nativePath);

/// Why a picture was not read, where a file that cannot be read is not the reason.
enum class Hindrance {
    None,
    Passing,  // memory, descriptors or processes are lacking at the moment
    Large,    // beyond the context's bound
};

/// What each thread that reads pictures has of its own.
struct ReadingContext {
    explicit ReadingContext(sandbox::ClientOptions options = {})
        : decoder(std::move(options), &giveUp) {}

    /// A picture begins, or a later decoding of it: nothing hinders it yet, and it may take this
    /// thread's processor for mostSeconds. PictureFile does this when it opens a file.
    void Begin();
    /// Whether what is being read is to end: given up, or no end in sight.
    bool MustEnd() const;

    /// Less than any wait for a process, more than the largest picture takes.
    double mostSeconds = 8;

    /// May be set by another thread: from then on reads fail, so that a decoder ends soon.
    std::atomic<bool> giveUp{false};
    Hindrance hindrance = Hindrance::None;
    sandbox::Client decoder;

private:
    double begunAt_ = 0;  // seconds of the thread's processor time
};

/// A file whose header was read. Immutable; stays usable when the file is gone, but for decoding.
/// One thread may open it and another one decode it. SVG, and what the toolkit does not read, is
/// decoded in the sandbox.
class PictureFile {
public:
    /// False where the file's start shows that Open would fail. Decodes nothing, never throws.
    static bool Recognises(const std::string& nativePath, ReadingContext& context);

    /// Nullptr where the file is no plain file, cannot be opened, is of no known kind or has an
    /// unreadable header. Waits for nothing but the decoder in the sandbox; never throws. Where
    /// nothing less tells the size, the picture is decoded here, and the first Decode has it ready.
    static std::shared_ptr<PictureFile> Open(const std::string& nativePath,
                                             ReadingContext& context);

    const FileIdentity& Identity() const { return identity_; }

    /// The picture's own size, turned upright.
    platform::Size OwnSize() const { return own_; }

    /// True for a drawing without pixels of its own, sharp at every size.
    bool IsDrawing() const {
        return foreign_ == sandbox::Kind::Svg || foreign_ == sandbox::Kind::Eps;
    }

    /// Whether decoding at this size is less work than decoding whole.
    bool DecodesScaledTo(platform::Size size) const;

    /// Size at which to decode a picture that will be wanted at `wanted`: that, where it is known
    /// and not larger than the picture, otherwise the own size. A drawing takes any.
    platform::Size SizeToDecode(platform::Size wanted) const;

    /// Memory that decoding at `size` takes on its way, without the result.
    int64_t WorkingBytes(platform::Size size) const;

    /// Opaque pixels of the given size, decoded whole and scaled down where no scaled decoding is
    /// to be had. Null when the file is damaged, gone, or another one than it was, when the
    /// context gave up, or when the memory would not do. `depth` (may be null) gets the file's
    /// bits per pixel.
    platform::BitmapPtr Decode(platform::Size size, int* depth, ReadingContext& context) const;

    /// The same with what the file holds beside colours: alpha, depth and colour profile, where
    /// the toolkit decodes it. `size` may be smaller than the own one only where DecodesScaledTo.
    QImage DecodeImage(platform::Size size, ReadingContext& context) const;

    /// False where a JPEG or BMP file is shorter than its picture: decoding makes up the rest.
    /// Also where it is gone or another one.
    bool IsWhole(ReadingContext& context) const;

    /// The toolkit's name of the kind; empty where the file is decoded in the sandbox.
    const char* KindName() const { return ReaderName(kind_); }

private:
    friend class PictureReader;

    QImage DecodeHere(platform::Size size, int* depth, ReadingContext& context) const;
    platform::BitmapPtr DecodeForeign(platform::Size size, ReadingContext& context) const;

    std::string path_;
    Kind kind_ = Kind::None;
    sandbox::Kind foreign_ = sandbox::Kind::None;  // what is decoded in the sandbox
    int foreignDepth_ = 0;
    mutable std::atomic<platform::BitmapPtr> ready_;  // of the own size, until the first Decode
    FileIdentity identity_;
    platform::Size own_;
    bool sideways_ = false;          // stored turned by a quarter
    int64_t scaledDecodeBytes_ = 0;  // working memory of a scaled decode beside its result
};

}  // namespace imaging
