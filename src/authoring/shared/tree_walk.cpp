#include "authoring/shared/tree_walk.h"

#include "text/paths.h"

namespace authoring {

namespace {

/// Of one folder: far more than a person has, and no more than memory holds.
constexpr size_t kMostFiles = 500000;

}  // namespace

std::optional<WalkedFolder> TreeWalk::Next(const std::function<bool()>& goOn) {
    while (!coming_.empty()) {
        const Text folder = std::move(coming_.back());
        coming_.pop_back();
        platform::FolderContent content = folders_.Read(folder, patterns_, kMostFiles, goOn);
        if (content.identity.empty() ||
            !entered_.insert(std::hash<Text>()(content.identity)).second) {
            continue;
        }
        const Text inside = text::WithSeparator(folder);
        for (auto name = content.folders.rbegin(); name != content.folders.rend(); ++name) {
            coming_.push_back(inside + *name);
        }
        return WalkedFolder{folder, std::move(content.files)};
    }
    return std::nullopt;
}

}  // namespace authoring
