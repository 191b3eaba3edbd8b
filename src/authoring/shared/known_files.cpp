#include "authoring/shared/known_files.h"

#include <algorithm>
#include <utility>

namespace authoring {

namespace {

using model::KnownFile;

/// Far more than rows can be in sight.
constexpr size_t kMostKnown = 12000;

void TakeFacts(const FilesOfRows& files, const Text& path, const platform::FileFacts& facts) {
    const auto found = files.known.files.find(path);
    if (found == files.known.files.end()) {
        return;
    }
    KnownFile& file = found->second;
    file.asked = false;
    file.fresh = true;
    const std::vector<int> rows = std::exchange(file.rows, {});
    if (std::exchange(file.there, facts.there) == facts.there) {
        return;
    }
    for (const int row : rows) {
        // Rows that have moved meanwhile ask again when they are drawn in their new places.
        files.rows.FacesChanged(row, row < files.rows.ListCount() ? 1 : 0);
    }
}

KnownFile& Known(model::KnownFiles& known, const Text& path, bool presumed) {
    const auto [place, isNew] = known.files.try_emplace(path);
    if (isNew) {
        place->second.there = presumed;
        known.order.push_back(path);
        while (known.order.size() > kMostKnown) {
            known.files.erase(known.order.front());
            known.order.pop_front();
        }
    }
    return place->second;
}

}  // namespace

bool IsThere(const FilesOfRows& files, int row, const Text& path, bool presumed) {
    KnownFile& file = Known(files.known, path, presumed);
    if (file.fresh) {
        return file.there;
    }
    if (std::exchange(file.asked, true)) {
        if (std::find(file.rows.begin(), file.rows.end(), row) == file.rows.end()) {
            file.rows.push_back(row);
        }
        return file.there;
    }
    // An answer from within comes before the row waits for it.
    files.app.platform.fileInquiry.Ask(
        &files.known, {path}, platform::FileInquiry::Presence,
        [files](const Text& of, const platform::FileFacts& facts) { TakeFacts(files, of, facts); });
    if (file.asked) {
        file.rows.push_back(row);
    }
    return file.there;
}

void AskAgain(const FilesOfRows& files) {
    for (auto& [path, file] : files.known.files) {
        file.fresh = false;
    }
    files.rows.FacesChanged(0, files.rows.ListCount());
}

void AskAgain(const FilesOfRows& files, const Text& path) {
    const auto found = files.known.files.find(path);
    if (found != files.known.files.end()) {
        found->second.fresh = false;
        files.rows.FacesChanged(0, files.rows.ListCount());
    }
}

}  // namespace authoring
