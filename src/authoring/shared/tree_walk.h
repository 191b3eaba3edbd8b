// The folders of a tree, one at a time.
#pragma once

#include <cstdint>
#include <optional>
#include <unordered_set>
#include <vector>

#include "platform/folders.h"

namespace authoring {

/// Each folder once, however many links lead to it, and before those in it. Folders that cannot be
/// read have nothing in them. Remembers a few bytes for each folder and the names of those that are
/// still to come beside and above the present one.
class TreeWalk {
public:
    TreeWalk(platform::Folders& folders, Text root) : folders_(folders), coming_{std::move(root)} {}

    /// Full path of the next folder; reads its subfolders. Nothing at the end.
    std::optional<Text> Next();

private:
    platform::Folders& folders_;
    std::vector<Text> coming_;  // the next one at the end
    std::unordered_set<uint64_t> entered_;
};

}  // namespace authoring
