// Pictures decoded before their Load, by one thread that has nothing else to do.
#pragma once

#include <condition_variable>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "adapters/imaging/picture_file.h"

namespace imaging {

/// What loading a file brings.
struct LoadedPicture {
    std::shared_ptr<const PictureFile> file;  // null: it is no picture file
    platform::BitmapPtr pixels;               // at SizeToDecode; null: it cannot be decoded
    int bitsPerPixel = 24;                    // as the file stores it
};

/// Reads the header and decodes at the size that `fit` (may be empty) leads to. Never throws.
LoadedPicture LoadPicture(const std::string& nativePath, const platform::FitFunction& fit,
                          ReadingContext& context);

/// Bounds in bytes. Together all pictures that are held, or are just being decoded, stay below the
/// first; a picture whose decoding takes more than the second beside its result is not begun.
constexpr int64_t kMostHeldBytes = int64_t{128} << 20;
constexpr int64_t kMostWorkingBytes = int64_t{256} << 20;

/// Name that the system shows for the worker.
constexpr const char* kPreparingThread = "picture ahead";

/// Used by one thread. The worker starts when something is wanted first and ends with the object;
/// it sleeps while there is nothing to do.
class PreparedPictures {
public:
    struct Wanted {
        std::string nativePath;
        platform::FitFunction fit;  // called on the worker: a pure function of values it holds
    };

    explicit PreparedPictures(sandbox::ClientOptions decoder = {});
    /// Waits for the worker, whose reader is made to give up.
    ~PreparedPictures();
    PreparedPictures(const PreparedPictures&) = delete;
    PreparedPictures& operator=(const PreparedPictures&) = delete;

    /// What is wanted from now on, the most urgent first; all else is let go. What is held already
    /// stays, unless its file has changed or it would be fitted to another size.
    void Prepare(const std::vector<Wanted>& wanted);

    /// What LoadPicture would bring now, where that is held; work on it that was begun is waited
    /// for. Nullopt, and the path is no longer wanted, where it is not held, the file is another
    /// one than it was, or `fit` leads to another size.
    std::optional<LoadedPicture> Take(const std::string& nativePath,
                                      const platform::FitFunction& fit);

    /// The picture of a Load, whether taken from here or not: where it is wanted again by the first
    /// Prepare after the next Load, as the picture before that one, it is held without decoding.
    void Remember(const std::string& nativePath, const platform::FitFunction& fit,
                  const LoadedPicture& loaded);

    /// Waits until everything wanted is held or has turned out not to be held.
    void Finish();

    /// Pictures that are held, failures included, and their bytes.
    int HeldCount();
    int64_t HeldBytes();
    /// Decodings that the worker has begun since the object was made.
    int DecodingsBegun();

private:
    /// Refused: not to be decoded ahead, as it is; it stays so that nobody tries again.
    enum class Stage { Waiting, Opening, Decoding, Refused, Done };
    struct Entry {
        std::string path;
        platform::FitFunction fit;
        Stage stage = Stage::Waiting;
        FileIdentity identity;  // from Opening on
        // From Decoding on, where the file could be opened.
        platform::Size size;
        LoadedPicture loaded;
    };
    using EntryPtr = std::shared_ptr<Entry>;
    using Lock = std::unique_lock<std::mutex>;

    static bool Serves(const Entry& entry, const platform::FitFunction& fit);
    EntryPtr Find(const std::string& nativePath) const;
    EntryPtr NextWaiting() const;
    bool IsWanted(const EntryPtr& entry) const;
    static bool IsSettled(const EntryPtr& entry);
    void Drop(const EntryPtr& entry);
    int64_t BytesInUse() const;
    void StartWorker();
    void Run();
    void Work(Lock& lock, const EntryPtr& entry);
    std::optional<FileIdentity> SettledIdentity(Lock& lock, const EntryPtr& entry);

    std::mutex mutex_;  // of all below
    std::condition_variable changed_;
    std::vector<EntryPtr> entries_;
    EntryPtr shown_, before_;  // of the last Load and of the one before it
    EntryPtr working_;
    bool ending_ = false;
    int begun_ = 0;
    ReadingContext context_;  // the worker's; giveUp is set under the mutex
    std::thread worker_;
};

}  // namespace imaging
