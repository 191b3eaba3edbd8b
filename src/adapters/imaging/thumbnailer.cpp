#include "adapters/imaging/thumbnailer.h"

#include <pthread.h>

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <deque>
#include <map>
#include <mutex>
#include <set>
#include <system_error>
#include <thread>
#include <utility>

#include "adapters/imaging/pixels.h"
#include "adapters/imaging/thumbnail_cache.h"
#include "adapters/posix/path_finder.h"

namespace imaging {

using platform::BitmapPtr;
using platform::Size;

namespace {

constexpr int kMostThreads = 4;
constexpr int kLargestSide = 1024;

Size Within(Size own, int side, bool enlarged) {
    const int longest = std::max(own.width, own.height);
    if (longest <= side && !enlarged) {
        return own;
    }
    const auto scaled = [&](int edge) {
        return std::max(1, static_cast<int>((int64_t{edge} * side + longest / 2) / longest));
    };
    return {scaled(own.width), scaled(own.height)};
}

/// What one thread works with.
struct Worker {
    explicit Worker(const std::string& programFolder) : finder(programFolder) {}
    posix_adapter::PathFinder finder;
    ReadingContext context;
};

/// Null where there is no picture.
BitmapPtr Decode(const std::string& path, const FileIdentity& identity, int side,
                 ReadingContext& context) {
    const std::shared_ptr<PictureFile> file = PictureFile::Open(path, context);
    if (!file) {
        return nullptr;
    }
    if (!(file->Identity() == identity)) {
        context.hindrance = Hindrance::Passing;  // it changes just now
        return nullptr;
    }
    return file->Decode(Within(file->OwnSize(), side, file->IsDrawing()), nullptr, context);
}

BitmapPtr Make(const Text& path, int side, const ThumbnailCache& cache, Worker& worker) {
    const std::optional<std::string> native = worker.finder.Find(path);
    const std::optional<FileIdentity> identity = native ? IdentityOf(*native) : std::nullopt;
    if (!identity) {
        return nullptr;
    }
    const ThumbnailOf file{*native, identity->written.tv_sec, identity->size};
    const int keptSide = KeptSide(side);
    BitmapPtr pixels;
    if (auto found = cache.Find(file, keptSide)) {
        pixels = found->pixels;
    } else if (!text::IsVideoKind(path)) {
        worker.context.hindrance = Hindrance::None;
        pixels = Decode(*native, *identity, keptSide, worker.context);
        if (pixels || (worker.context.hindrance == Hindrance::None && !worker.context.MustEnd())) {
            cache.Keep(file, pixels, keptSide);
        }
    }
    const Size size = pixels ? Size{pixels->width, pixels->height} : Size{};
    const Size wanted = pixels ? Within(size, side, false) : Size{};
    return size == wanted ? pixels : Smooth(*pixels, wanted);
}

}  // namespace

struct Thumbnailer::Core : std::enable_shared_from_this<Core> {
    struct Wish {
        const void* owner;
        Text path;
        int side;
        auto operator<=>(const Wish&) const = default;
    };
    struct Owner {
        std::set<Text> waiting;
        int side = 0;
        Ready ready;
    };

    explicit Core(ThumbnailOptions given) : options(std::move(given)), cache(options.cacheFolder) {}

    void StartThreads() {
        if (!threads.empty()) {
            return;
        }
        const int processors = static_cast<int>(std::thread::hardware_concurrency());
        const int count =
            options.threads > 0 ? options.threads : std::clamp(processors, 1, kMostThreads);
        try {
            for (int i = 0; i < count; ++i) {
                workers.push_back(std::make_unique<Worker>(options.programFolder));
                threads.emplace_back([this, worker = workers.back().get()] { Run(*worker); });
            }
        } catch (const std::system_error&) {
            // Fewer threads, or none, do: a wish may then stay without an answer.
        }
    }

    void Run(Worker& worker) {
        pthread_setname_np(pthread_self(), "thumbnails");
        std::unique_lock lock(mutex);
        while (!ending) {
            if (queue.empty()) {
                changed.wait(lock);
                continue;
            }
            const Wish wish = std::move(queue.front());
            queue.pop_front();
            working.insert(wish);
            lock.unlock();
            BitmapPtr picture = MakeOne(wish, worker);
            lock.lock();
            working.erase(wish);
            if (!ending) {
                options.post([weak = weak_from_this(), wish, picture = std::move(picture)] {
                    if (const auto core = weak.lock()) {
                        core->Answer(wish, picture);
                    }
                });
            }
        }
    }

    BitmapPtr MakeOne(const Wish& wish, Worker& worker) {
        ++made;
        try {
            return Make(wish.path, wish.side, cache, worker);
        } catch (const std::bad_alloc&) {
            return nullptr;
        }
    }

    /// On the asking thread.
    void Answer(const Wish& wish, const BitmapPtr& picture) {
        const auto found = owners.find(wish.owner);
        if (found == owners.end() || found->second.side != wish.side ||
            found->second.waiting.erase(wish.path) == 0) {
            return;
        }
        const Ready ready = found->second.ready;  // it may want something else at once
        ready(wish.path, picture);
    }

    const ThumbnailOptions options;
    const ThumbnailCache cache;
    std::atomic<int> made{0};
    std::map<const void*, Owner> owners;  // of the asking thread

    std::mutex mutex;  // of all below
    std::condition_variable changed;
    std::deque<Wish> queue;
    std::set<Wish> working;
    bool ending = false;
    std::vector<std::unique_ptr<Worker>> workers;
    std::vector<std::thread> threads;
};

Thumbnailer::Thumbnailer(ThumbnailOptions options)
    : core_(std::make_shared<Core>(std::move(options))) {}

Thumbnailer::~Thumbnailer() {
    {
        const std::lock_guard lock(core_->mutex);
        core_->ending = true;
        for (const auto& worker : core_->workers) {
            worker->context.giveUp = true;
        }
    }
    core_->changed.notify_all();
    for (std::thread& thread : core_->threads) {
        thread.join();
    }
}

void Thumbnailer::Want(const void* owner, const std::vector<Text>& paths, int side, Ready ready) {
    Core& core = *core_;
    side = std::clamp(side, 1, kLargestSide);
    if (paths.empty()) {
        core.owners.erase(owner);
    } else {
        core.owners[owner] = {{paths.begin(), paths.end()}, side, std::move(ready)};
    }
    if (!core.options.post) {
        if (core.workers.empty()) {
            core.workers.push_back(std::make_unique<Worker>(core.options.programFolder));
        }
        for (const Text& path : paths) {
            const Core::Wish wish{owner, path, side};
            core.Answer(wish, core.MakeOne(wish, *core.workers.front()));
        }
        return;
    }
    {
        const std::lock_guard lock(core.mutex);
        std::erase_if(core.queue, [&](const Core::Wish& wish) { return wish.owner == owner; });
        // Before what other owners wait for: somebody looks at these now.
        auto place = core.queue.begin();
        for (const Text& path : paths) {
            Core::Wish wish{owner, path, side};
            if (!core.working.contains(wish)) {
                place = std::next(core.queue.insert(place, std::move(wish)));
            }
        }
    }
    if (!paths.empty()) {
        core.StartThreads();
        core.changed.notify_all();
    }
}

int Thumbnailer::Made() const {
    return core_->made;
}

}  // namespace imaging
