#include "authoring/slide_list/remembered_files.h"

#include <charconv>
#include <cinttypes>
#include <cstdio>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "model/windows/slide_list.h"

namespace authoring {

namespace {

constexpr std::string_view kTag = "known1\n";
constexpr size_t kMostFiles = 60000;
constexpr size_t kLongestFile = 8u << 20;  // bytes

constexpr int kDecimal = 10, kHexadecimal = 16;

Text FilePath(const Application& app) {
    return app.state.AppFolder + u"known.dat";
}

uint64_t SumOfPath(const Text& path) {
    return platform::BeginningSum(text::ToUtf8(path));
}

/// Takes a number and the blank or line end after it off the beginning. False where there is none.
template <class Number>
bool TakeNumber(std::string_view& rest, Number& number, int base) {
    const char* const last = rest.data() + rest.size();
    const auto [end, error] = std::from_chars(rest.data(), last, number, base);
    if (error != std::errc() || end == last) {
        return false;
    }
    rest.remove_prefix(static_cast<size_t>(end + 1 - rest.data()));
    return true;
}

}  // namespace

RememberedFiles RememberedFiles::Read(Application& app) {
    RememberedFiles known;
    std::string bytes;
    platform::FileError error;
    if (!app.platform.files.Exists(FilePath(app)) ||
        !app.platform.files.Read(FilePath(app), bytes, error, kLongestFile) ||
        !bytes.starts_with(kTag)) {
        return known;
    }
    std::string_view rest(bytes);
    rest.remove_prefix(kTag.size());
    uint64_t path = 0;
    FileTraits file;
    while (TakeNumber(rest, path, kHexadecimal) && TakeNumber(rest, file.size, kDecimal) &&
           TakeNumber(rest, file.beginning, kHexadecimal)) {
        if (known.files_.insert_or_assign(path, file).second) {
            known.order_.push_back(path);
        }
    }
    return known;
}

void RememberedFiles::Write(Application& app) const {
    std::string bytes(kTag);
    const size_t first = order_.size() > kMostFiles ? order_.size() - kMostFiles : 0;
    for (size_t i = first; i < order_.size(); ++i) {
        const FileTraits& file = files_.at(order_[i]);
        char line[64];
        std::snprintf(line, sizeof line, "%" PRIx64 " %" PRId64 " %" PRIx64 "\n", order_[i],
                      file.size, file.beginning);
        bytes += line;
    }
    platform::FileError ignored;
    app.platform.files.Write(FilePath(app), bytes, ignored);
}

std::optional<FileTraits> RememberedFiles::Find(const Text& path) const {
    const auto found = files_.find(SumOfPath(path));
    return found == files_.end() ? std::nullopt : std::optional(found->second);
}

void RememberedFiles::Put(const Text& path, const FileTraits& file) {
    const uint64_t sum = SumOfPath(path);
    if (files_.insert_or_assign(sum, file).second) {
        order_.push_back(sum);
    }
}

void RememberFiles(Application& app) {
    struct Asked {
        RememberedFiles known;
        size_t waiting = 0;
        bool more = false;
    };
    const auto asked = std::make_shared<Asked>();
    asked->known = RememberedFiles::Read(app);
    std::vector<Text> paths;
    for (const Text& path : app.windows.form3.List1.Rows()) {
        if (!asked->known.Find(path)) {
            paths.push_back(path);
        }
    }
    asked->waiting = paths.size();
    app.platform.fileInquiry.Ask(asked.get(), std::move(paths), platform::FileInquiry::Beginning,
                                 [&app, asked](const Text& path, const platform::FileFacts& facts) {
                                     if (facts.beginning) {
                                         asked->known.Put(path, {facts.size, *facts.beginning});
                                         asked->more = true;
                                     }
                                     if (--asked->waiting == 0 && asked->more) {
                                         asked->known.Write(app);
                                     }
                                 });
}

}  // namespace authoring
