#include "adapters/imaging/prepared_pictures.h"

#include <pthread.h>

#include <algorithm>
#include <chrono>
#include <new>
#include <system_error>
#include <utility>

namespace imaging {

using platform::FitFunction;
using platform::Size;

namespace {

Size SizeFor(const PictureFile& file, const FitFunction& fit) {
    return file.SizeToDecode(fit ? fit(file.OwnSize()) : Size());
}

int64_t Bytes(Size size) {
    return int64_t{size.width} * size.height * static_cast<int64_t>(sizeof(platform::Pixel));
}

/// Seconds until a further change of the file would show in its identity; 0 or less: it would
/// now. Time stamps advance in steps: of some milliseconds, or of up to two seconds where a disk
/// keeps whole seconds.
double SecondsUntilSettled(const FileIdentity& identity) {
    constexpr double kFineStep = 0.02, kCoarseStep = 2.1;
    timespec now{};
    clock_gettime(CLOCK_REALTIME, &now);
    const timespec& changed = identity.changed;
    const double age = static_cast<double>(now.tv_sec - changed.tv_sec) +
                       static_cast<double>(now.tv_nsec - changed.tv_nsec) / 1e9;
    const double step = changed.tv_nsec == 0 ? kCoarseStep : kFineStep;
    return std::min(step, step - age);
}

}  // namespace

LoadedPicture LoadPicture(const std::string& nativePath, const FitFunction& fit,
                          ReadingContext& context) {
    LoadedPicture loaded;
    loaded.file = PictureFile::Open(nativePath, context);
    if (loaded.file) {
        loaded.pixels =
            loaded.file->Decode(SizeFor(*loaded.file, fit), &loaded.bitsPerPixel, context);
    }
    return loaded;
}

namespace {

/// What is decoded whole in the sandbox comes whole into this process as well.
sandbox::ClientOptions Bounded(sandbox::ClientOptions options) {
    options.mostPixels = std::min<int64_t>(options.mostPixels, kMostWorkingBytes / 4);
    return options;
}

}  // namespace

PreparedPictures::PreparedPictures(sandbox::ClientOptions decoder)
    : context_(Bounded(std::move(decoder))) {}

PreparedPictures::~PreparedPictures() {
    {
        const Lock lock(mutex_);
        ending_ = true;
        entries_.clear();
        context_.giveUp = true;
    }
    changed_.notify_all();
    if (worker_.joinable()) {
        worker_.join();
    }
}

void PreparedPictures::Prepare(const std::vector<Wanted>& wanted) {
    {
        const Lock lock(mutex_);
        std::vector<EntryPtr> entries;
        for (const Wanted& one : wanted) {
            const auto same = [&](const EntryPtr& entry) { return entry->path == one.nativePath; };
            if (std::any_of(entries.begin(), entries.end(), same)) {
                continue;
            }
            EntryPtr entry = Find(one.nativePath);
            for (const EntryPtr& loaded : {before_, shown_}) {
                entry = !entry && loaded && loaded->path == one.nativePath ? loaded : entry;
            }
            if (!entry || (entry->stage != Stage::Waiting && !Serves(*entry, one.fit))) {
                entry = std::make_shared<Entry>();
                entry->path = one.nativePath;
            }
            entry->fit = one.fit;
            entries.push_back(std::move(entry));
        }
        entries_ = std::move(entries);
        before_ = nullptr;
        shown_ = wanted.empty() ? nullptr : shown_;
        if (working_ && !IsWanted(working_)) {
            context_.giveUp = true;
        }
        if (!NextWaiting()) {
            return;
        }
        StartWorker();
    }
    changed_.notify_all();
}

std::optional<LoadedPicture> PreparedPictures::Take(const std::string& nativePath,
                                                    const FitFunction& fit) {
    Lock lock(mutex_);
    const EntryPtr entry = Find(nativePath);
    if (!entry) {
        return std::nullopt;
    }
    if (entry->stage == Stage::Waiting || !Serves(*entry, fit)) {
        Drop(entry);
        return std::nullopt;
    }
    changed_.wait(lock, [&] { return IsSettled(entry) || !IsWanted(entry); });
    if (entry->stage == Stage::Refused) {
        return std::nullopt;
    }
    if (!IsWanted(entry) || !Serves(*entry, fit)) {
        Drop(entry);
        return std::nullopt;
    }
    return entry->loaded;
}

void PreparedPictures::Remember(const std::string& nativePath, const FitFunction& fit,
                                const LoadedPicture& loaded) {
    const Lock lock(mutex_);
    before_ = std::move(shown_);
    shown_ = nullptr;
    if (loaded.pixels && SecondsUntilSettled(loaded.file->Identity()) <= 0) {
        shown_ = std::make_shared<Entry>();
        shown_->path = nativePath;
        shown_->fit = fit;
        shown_->stage = Stage::Done;
        shown_->identity = loaded.file->Identity();
        shown_->size = SizeFor(*loaded.file, fit);
        shown_->loaded = loaded;
    }
}

void PreparedPictures::Finish() {
    Lock lock(mutex_);
    changed_.wait(lock, [&] { return std::all_of(entries_.begin(), entries_.end(), IsSettled); });
}

int PreparedPictures::HeldCount() {
    const Lock lock(mutex_);
    return static_cast<int>(
        std::count_if(entries_.begin(), entries_.end(),
                      [](const EntryPtr& entry) { return entry->stage == Stage::Done; }));
}

int64_t PreparedPictures::HeldBytes() {
    const Lock lock(mutex_);
    return BytesInUse();
}

int PreparedPictures::DecodingsBegun() {
    const Lock lock(mutex_);
    return begun_;
}

/// Whether what is known of an entry that was begun is what `fit` would lead to now.
bool PreparedPictures::Serves(const Entry& entry, const FitFunction& fit) {
    const bool sizeKnown = entry.stage >= Stage::Decoding && entry.loaded.file;
    return IdentityOf(entry.path) == entry.identity &&
           (!sizeKnown || SizeFor(*entry.loaded.file, fit) == entry.size);
}

PreparedPictures::EntryPtr PreparedPictures::Find(const std::string& nativePath) const {
    const auto found = std::find_if(entries_.begin(), entries_.end(), [&](const EntryPtr& entry) {
        return entry->path == nativePath;
    });
    return found == entries_.end() ? nullptr : *found;
}

PreparedPictures::EntryPtr PreparedPictures::NextWaiting() const {
    const auto found = std::find_if(entries_.begin(), entries_.end(), [](const EntryPtr& entry) {
        return entry->stage == Stage::Waiting;
    });
    return found == entries_.end() ? nullptr : *found;
}

bool PreparedPictures::IsWanted(const EntryPtr& entry) const {
    return std::find(entries_.begin(), entries_.end(), entry) != entries_.end();
}

/// Nothing more will come of it.
bool PreparedPictures::IsSettled(const EntryPtr& entry) {
    return entry->stage == Stage::Refused || entry->stage == Stage::Done;
}

void PreparedPictures::Drop(const EntryPtr& entry) {
    std::erase(entries_, entry);
    if (entry == working_) {
        context_.giveUp = true;
    }
}

int64_t PreparedPictures::BytesInUse() const {
    int64_t bytes = 0;
    for (const EntryPtr& entry : entries_) {
        const bool holds = entry->stage == Stage::Decoding || entry->loaded.pixels;
        bytes += holds ? Bytes(entry->size) : 0;
    }
    return bytes;
}

void PreparedPictures::StartWorker() {
    if (worker_.joinable()) {
        return;
    }
    try {
        worker_ = std::thread([this] { Run(); });
    } catch (const std::system_error&) {
        entries_.clear();  // without a thread every Load decodes for itself
    }
}

void PreparedPictures::Run() {
    pthread_setname_np(pthread_self(), kPreparingThread);
    Lock lock(mutex_);
    while (!ending_) {
        working_ = NextWaiting();
        if (!working_) {
            changed_.wait(lock);
            continue;
        }
        context_.giveUp = false;
        const EntryPtr entry = working_;
        Work(lock, entry);
        if (!IsSettled(entry)) {
            std::erase(entries_, entry);
        }
        working_ = nullptr;
        changed_.notify_all();
    }
}

/// Leaves the entry settled where its result is to stay; a failure that may pass is not.
void PreparedPictures::Work(Lock& lock, const EntryPtr& entry) {
    const std::optional<FileIdentity> identity = SettledIdentity(lock, entry);
    if (!identity || !IsWanted(entry)) {
        return;
    }
    entry->identity = *identity;
    entry->stage = Stage::Opening;
    lock.unlock();
    const std::shared_ptr<PictureFile> file = PictureFile::Open(entry->path, context_);
    lock.lock();
    if (file) {
        entry->size = SizeFor(*file, entry->fit);
        entry->loaded.file = file;
        if (!(file->Identity() == *identity)) {
            return;
        }
        if (file->WorkingBytes(entry->size) > kMostWorkingBytes ||
            BytesInUse() + Bytes(entry->size) > kMostHeldBytes) {
            entry->loaded.file = nullptr;
            entry->stage = Stage::Refused;
            return;
        }
        entry->stage = Stage::Decoding;
        ++begun_;
        lock.unlock();
        int depth = entry->loaded.bitsPerPixel;
        platform::BitmapPtr pixels = file->Decode(entry->size, &depth, context_);
        lock.lock();
        entry->loaded.bitsPerPixel = depth;
        entry->loaded.pixels = std::move(pixels);
    }
    if (context_.hindrance == Hindrance::Large) {
        entry->stage = Stage::Refused;
    } else if (context_.hindrance == Hindrance::None && !context_.giveUp) {
        entry->stage = Stage::Done;
    }
}

/// A file that was written a moment ago could change once more without another time stamp: it is
/// given that moment, once.
std::optional<FileIdentity> PreparedPictures::SettledIdentity(Lock& lock, const EntryPtr& entry) {
    for (const bool again : {true, false}) {
        lock.unlock();
        const std::optional<FileIdentity> identity = IdentityOf(entry->path);
        lock.lock();
        const double seconds = identity ? SecondsUntilSettled(*identity) : 0;
        if (seconds <= 0) {
            return identity;
        }
        if (again) {
            changed_.wait_for(lock, std::chrono::duration<double>(seconds),
                              [&] { return ending_ || !IsWanted(entry); });
        }
        if (ending_ || !IsWanted(entry)) {
            return std::nullopt;
        }
    }
    return std::nullopt;
}

}  // namespace imaging
