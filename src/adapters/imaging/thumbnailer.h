// Thumbnails by worker threads and the desktop's cache.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "adapters/imaging/picture_file.h"
#include "platform/thumbnails.h"

namespace imaging {

struct ThumbnailOptions {
    std::string programFolder = {};  // of the drive table
    std::string cacheFolder = {};    // see ThumbnailCache; empty: none
    /// Runs a call on the asking thread, from its event loop. Empty: no threads; Want answers.
    std::function<void(std::function<void()>)> post = {};
    int threads = 0;  // 0: as many as the processor has, four at most
};

/// Threads start with the first wish and sleep while there is none. Each finds and reads files by
/// itself and has processes of its own for the kinds that are decoded apart.
class Thumbnailer : public platform::Thumbnails {
public:
    explicit Thumbnailer(ThumbnailOptions options);
    /// Waits for the threads, after asking their readers to give up. No answer comes any more.
    ~Thumbnailer() override;
    Thumbnailer(const Thumbnailer&) = delete;
    Thumbnailer& operator=(const Thumbnailer&) = delete;

    void Want(const void* owner, const std::vector<Text>& paths, int side, Ready ready) override;

    /// Pictures that were looked for in the cache or decoded, for tests.
    int Made() const;

private:
    struct Core;
    std::shared_ptr<Core> core_;
};

}  // namespace imaging
