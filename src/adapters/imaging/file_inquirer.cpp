#include "adapters/imaging/file_inquirer.h"

#include <pthread.h>
#include <sys/stat.h>

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <deque>
#include <fstream>
#include <map>
#include <mutex>
#include <new>
#include <set>
#include <system_error>
#include <thread>
#include <utility>

#include "adapters/imaging/exif_date.h"
#include "adapters/media/media_length.h"
#include "adapters/posix/path_finder.h"
#include "adapters/posix/posix_files.h"

namespace imaging {

using platform::FileFacts;
using What = platform::FileInquiry::What;

namespace {

/// Answers handed over before the event loop has its turn again.
constexpr size_t kMostAtOnce = 256;
constexpr std::chrono::milliseconds kMomentToEnd{300};

std::optional<platform::PieceLength> LengthOf(int fd, What what) {
    // The file that was looked at, whatever has its name by now.
    std::ifstream file("/proc/self/fd/" + std::to_string(fd), std::ios::binary);
    const auto length = media_adapter::LengthOfMedia(
        file, what == platform::FileInquiry::SoundLength ? media_adapter::Reading::Beginning
                                                         : media_adapter::Reading::Whole);
    return length ? std::optional(platform::PieceLength{length->milliseconds / 1000, length->exact})
                  : std::nullopt;
}

/// What is asked for beside Presence.
void LookInto(const std::string& nativePath, What what, FileFacts& facts) {
    const posix_adapter::Descriptor file = posix_adapter::OpenPlainFile(nativePath);
    if (!file.Valid()) {
        return;
    }
    switch (what) {
        case platform::FileInquiry::DateTaken:
            facts.taken = DateTaken(
                [&](uint64_t at, size_t count) { return BytesAt(file.Get(), at, count); });
            break;
        case platform::FileInquiry::Content:
            if (facts.size <= platform::kMostContent) {
                facts.content = std::make_shared<const std::string>(
                    BytesAt(file.Get(), 0, static_cast<size_t>(facts.size)));
            }
            break;
        case platform::FileInquiry::Beginning:
            facts.beginning =
                platform::BeginningSum(BytesAt(file.Get(), 0, platform::kBeginningBytes));
            break;
        default:
            facts.length = LengthOf(file.Get(), what);
            break;
    }
}

FileFacts FactsOf(const Text& path, What what, posix_adapter::PathFinder& finder,
                  const FileInquirerOptions& options, const std::function<bool()>& goOn) {
    FileFacts facts;
    const std::optional<std::string> native = finder.Find(path);
    struct stat status {};
    if (!native || stat(native->c_str(), &status) != 0 || !S_ISREG(status.st_mode)) {
        return facts;
    }
    facts.there = true;
    facts.size = status.st_size;
    facts.changed = posix_adapter::WrittenAt(status);
    if (what == platform::FileInquiry::SoundLevels) {
        facts.levels = options.levels ? options.levels(*native, goOn) : std::vector<uint8_t>();
    } else if (what != platform::FileInquiry::Presence) {
        LookInto(*native, what, facts);
    }
    return facts;
}

}  // namespace

struct FileInquirer::Core : std::enable_shared_from_this<Core> {
    struct Question {
        int64_t number;
        What what;
        std::deque<Text> paths;
    };
    struct Asked {
        const void* owner;
        Ready ready;
        size_t unanswered;
    };
    struct Answer {
        int64_t number;
        Text path;
        FileFacts facts;
    };

    explicit Core(FileInquirerOptions given) : options(std::move(given)) {}

    /// With the mutex held.
    void StartThreads() {
        const int count = options.threads > 0 ? options.threads : kMostInquiring;
        try {
            while (alive < count) {
                std::thread([core = shared_from_this()] { core->Run(); }).detach();
                ++alive;
            }
        } catch (const std::system_error&) {
            // Fewer threads, or none, do: a question may then stay without an answer.
        }
    }

    void Run() {
        pthread_setname_np(pthread_self(), "file-inquiry");
        posix_adapter::PathFinder finder(options.programFolder);
        std::unique_lock lock(mutex);
        while (!ending) {
            if (questions.empty()) {
                changed.wait(lock);
                continue;
            }
            Question& newest = questions.back();
            Answer answer{newest.number, std::move(newest.paths.front()), {}};
            const What what = newest.what;
            newest.paths.pop_front();
            if (newest.paths.empty()) {
                questions.pop_back();
            }
            lock.unlock();
            try {
                answer.facts = FactsOf(answer.path, what, finder, options,
                                       [this, number = answer.number] { return IsWanted(number); });
            } catch (const std::bad_alloc&) {
                answer.facts = {};
            }
            lock.lock();
            if (!ending) {
                answers.push_back(std::move(answer));
                PostDelivery();
            }
        }
        --alive;
        changed.notify_all();
    }

    /// The question's owner still waits for it.
    bool IsWanted(int64_t number) {
        const std::lock_guard lock(mutex);
        return !ending && wanted.contains(number);
    }

    /// With the mutex held.
    void PostDelivery() {
        if (!posted) {
            posted = true;
            options.post([weak = weak_from_this()] {
                if (const auto core = weak.lock()) {
                    core->Deliver();
                }
            });
        }
    }

    /// On the asking thread.
    void Deliver() {
        std::vector<Answer> ripe;
        {
            const std::lock_guard lock(mutex);
            if (ending) {
                return;
            }
            const size_t count = std::min(answers.size(), kMostAtOnce);
            std::move(answers.begin(), answers.begin() + static_cast<ptrdiff_t>(count),
                      std::back_inserter(ripe));
            answers.erase(answers.begin(), answers.begin() + static_cast<ptrdiff_t>(count));
            posted = false;
            if (!answers.empty()) {
                PostDelivery();
            }
        }
        for (const Answer& answer : ripe) {
            HandOver(answer);
        }
    }

    /// What is called may ask, forget, or end all.
    void HandOver(const Answer& answer) {
        const auto found = asked.find(answer.number);
        if (found == asked.end()) {
            return;
        }
        const Ready ready = found->second.ready;
        if (--found->second.unanswered == 0) {
            asked.erase(found);
            const std::lock_guard lock(mutex);
            wanted.erase(answer.number);
        }
        ready(answer.path, answer.facts);
    }

    const FileInquirerOptions options;
    // Of the asking thread.
    int64_t lastNumber = 0;
    std::map<int64_t, Asked> asked;
    std::optional<posix_adapter::PathFinder> ownFinder;

    std::mutex mutex;  // of all below
    std::condition_variable changed;
    std::vector<Question> questions;  // the newest at the end
    std::set<int64_t> wanted;         // numbers of those that an owner still waits for
    std::deque<Answer> answers;
    bool posted = false;
    bool ending = false;
    int alive = 0;
};

FileInquirer::FileInquirer(FileInquirerOptions options)
    : core_(std::make_shared<Core>(std::move(options))) {}

FileInquirer::~FileInquirer() {
    std::unique_lock lock(core_->mutex);
    core_->ending = true;
    core_->asked.clear();
    core_->changed.notify_all();
    core_->changed.wait_for(lock, kMomentToEnd, [this] { return core_->alive == 0; });
}

void FileInquirer::Ask(const void* owner, std::vector<Text> paths, What what, Ready ready) {
    Core& core = *core_;
    if (paths.empty()) {
        return;
    }
    if (!core.options.post) {
        if (!core.ownFinder) {
            core.ownFinder.emplace(core.options.programFolder);
        }
        for (const Text& path : paths) {
            ready(path, FactsOf(path, what, *core.ownFinder, core.options, [] { return true; }));
        }
        return;
    }
    const int64_t number = ++core.lastNumber;
    core.asked[number] = {owner, std::move(ready), paths.size()};
    const std::lock_guard lock(core.mutex);
    core.wanted.insert(number);
    core.questions.push_back(
        {number,
         what,
         {std::make_move_iterator(paths.begin()), std::make_move_iterator(paths.end())}});
    core.StartThreads();
    core.changed.notify_all();
}

void FileInquirer::Forget(const void* owner) {
    Core& core = *core_;
    std::erase_if(core.asked, [&](const auto& entry) { return entry.second.owner == owner; });
    const std::lock_guard lock(core.mutex);
    std::erase_if(core.wanted, [&](int64_t number) { return !core.asked.contains(number); });
    std::erase_if(core.questions, [&](const Core::Question& question) {
        return !core.asked.contains(question.number);
    });
}

}  // namespace imaging
