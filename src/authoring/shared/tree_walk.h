// The folders of a tree, one at a time.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <unordered_set>
#include <utility>
#include <vector>

#include "platform/folders.h"

namespace authoring {

struct WalkedFolder {
    Text path;                // full
    std::vector<Text> files;  // bare names of those that match
};

/// Each folder once, however many links lead to it, and before those in it. Folders that cannot be
/// read have nothing in them. Remembers a few bytes for each folder and the names of those that are
/// still to come beside and above the present one.
class TreeWalk {
public:
    /// `patterns` as of Folders::Files.
    TreeWalk(platform::Folders& folders, Text root, Text patterns)
        : folders_(folders), patterns_(std::move(patterns)), coming_{std::move(root)} {}

    /// Reads the next folder; `goOn` as of Folders::Read. Nothing at the end.
    std::optional<WalkedFolder> Next(const std::function<bool()>& goOn);

private:
    platform::Folders& folders_;
    Text patterns_;
    std::vector<Text> coming_;  // the next one at the end
    std::unordered_set<uint64_t> entered_;
};

}  // namespace authoring
