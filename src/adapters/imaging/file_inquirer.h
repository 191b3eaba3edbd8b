// Files looked at by worker threads.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/file_inquiry.h"

namespace imaging {

struct FileInquirerOptions {
    std::string programFolder = {};  // of the drive table
    /// Runs a call on the asking thread, from its event loop. Empty: no threads; Ask answers.
    std::function<void(std::function<void()>)> post = {};
    int threads = 0;  // 0: kMostInquiring
    /// Answers FileFacts::levels on a worker; `goOn` is asked often, and false ends it. Empty: no
    /// levels.
    std::function<std::vector<uint8_t>(const std::string& nativePath,
                                       const std::function<bool()>& goOn)>
        levels = {};
};

/// Mostly they wait for a disk, so their number has nothing to do with that of processors.
constexpr int kMostInquiring = 4;

/// Threads start with the first question and sleep while there is none. Nobody waits for one that
/// hangs on a disk.
class FileInquirer : public platform::FileInquiry {
public:
    explicit FileInquirer(FileInquirerOptions options);
    /// Gives threads that are not held up a moment to end. No answer comes any more.
    ~FileInquirer() override;
    FileInquirer(const FileInquirer&) = delete;
    FileInquirer& operator=(const FileInquirer&) = delete;

    void Ask(const void* owner, std::vector<Text> paths, What what, Ready ready) override;
    void Forget(const void* owner) override;

private:
    struct Core;
    std::shared_ptr<Core> core_;
};

}  // namespace imaging
