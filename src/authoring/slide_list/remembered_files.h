// What is kept of a document's files, so that they are known again under other names: known.dat of
// the program folder.
#pragma once

#include <cstdint>
#include <optional>
#include <unordered_map>
#include <vector>

#include "model/application.h"

namespace authoring {

struct FileTraits {
    int64_t size = 0;        // bytes
    uint64_t beginning = 0;  // platform::BeginningSum
    bool operator==(const FileTraits&) const = default;
};

/// Files by their paths, of which only a sum is kept.
class RememberedFiles {
public:
    /// Empty where there is no file, or none of this form.
    static RememberedFiles Read(Application& app);
    /// What cannot be written is not kept.
    void Write(Application& app) const;

    std::optional<FileTraits> Find(const Text& path) const;
    /// Where there are too many the oldest ones go.
    void Put(const Text& path, const FileTraits& file);

private:
    std::vector<uint64_t> order_;  // the oldest first
    std::unordered_map<uint64_t, FileTraits> files_;
};

/// Keeps size and beginning of the rows' files that are not known yet; they are asked about and
/// written by and by. For a list that was saved.
void RememberFiles(Application& app);

}  // namespace authoring
