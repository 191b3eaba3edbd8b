// Which file stands for one that is missing: by its name, its folders, and where others went.
#pragma once

#include <optional>
#include <unordered_map>
#include <vector>

#include "text/text.h"

namespace authoring {

/// A folder and what it has become, with separators at their ends. What lay below the one is
/// looked for below the other.
struct FolderMove {
    Text from, to;
    bool operator==(const FolderMove&) const = default;
};

/// How many folders of the two are the same, counted from the file upwards, without case.
int FoldersAlike(TextView path, TextView other);

/// What has become of the folders above those that are alike.
FolderMove MoveOf(TextView path, TextView newPath);

/// Where the file lies if its folder moved so; nothing for one that did not lie below it.
std::optional<Text> PathAfter(const FolderMove& move, TextView path);

/// A file that may stand for a missing one.
struct Finding {
    Text path;
    int alike = 0;    // FoldersAlike
    int choices = 1;  // files for which as much speaks; this one was met first
};

/// What was found for the missing files, by their paths.
using Findings = std::unordered_map<Text, Finding>;

/// Looks for missing files among others.
class NameSearch {
public:
    /// Each path once.
    explicit NameSearch(std::vector<Text> missing);

    /// A file that is there. Of several with the name the one wins whose folders are most alike.
    void Look(const Text& folder, const Text& name);

    const Findings& Found() const { return found_; }

private:
    std::vector<Text> missing_;
    std::unordered_map<Text, std::vector<size_t>> byName_;  // in upper case
    Findings found_;
};

/// Takes `path` as a finding for `missing`, or counts it where it is no better than what is there.
void Consider(Findings& found, const Text& missing, const Text& path);

}  // namespace authoring
