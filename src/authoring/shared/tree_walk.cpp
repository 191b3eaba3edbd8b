#include "authoring/shared/tree_walk.h"

#include <functional>
#include <utility>

#include "text/paths.h"

namespace authoring {

std::optional<Text> TreeWalk::Next() {
    while (!coming_.empty()) {
        Text folder = std::move(coming_.back());
        coming_.pop_back();
        const Text identity = folders_.Identity(folder);
        if (identity.empty() || !entered_.insert(std::hash<Text>()(identity)).second) {
            continue;
        }
        const std::vector<Text> inside = folders_.Subfolders(folder);
        for (auto name = inside.rbegin(); name != inside.rend(); ++name) {
            coming_.push_back(text::WithSeparator(folder) + *name);
        }
        return folder;
    }
    return std::nullopt;
}

}  // namespace authoring
