#include "authoring/slide_list/relink_match.h"

#include <algorithm>
#include <utility>

#include "text/paths.h"

namespace authoring {

namespace {

bool IsSeparator(TextView path, size_t at) {
    return path[at] == u'/' ||
           (!text::IsNativePath(path) && (path[at] == u'\\' || path[at] == u':'));
}

/// The folders' path without its last folder; with a separator at its end, or empty.
TextView Above(TextView path, TextView folder) {
    size_t length = folder.size();
    while (length > 0 && IsSeparator(path, length - 1)) {
        --length;
    }
    while (length > 0 && !IsSeparator(path, length - 1)) {
        --length;
    }
    return folder.substr(0, length);
}

TextView LastFolder(TextView path, TextView folder) {
    TextView last = folder.substr(Above(path, folder).size());
    while (!last.empty() && IsSeparator(path, folder.size() - 1)) {
        folder.remove_suffix(1);
        last.remove_suffix(1);
    }
    return last;
}

TextView FoldersOf(TextView path) {
    return path.substr(0, text::FolderPart(path).size());
}

}  // namespace

int FoldersAlike(TextView path, TextView other) {
    TextView folders = FoldersOf(path), others = FoldersOf(other);
    int alike = 0;
    while (true) {
        const TextView last = LastFolder(path, folders);
        if (last.empty() || text::Upper(last) != text::Upper(LastFolder(other, others))) {
            return alike;
        }
        ++alike;
        folders = Above(path, folders);
        others = Above(other, others);
    }
}

FolderMove MoveOf(TextView path, TextView newPath) {
    TextView from = FoldersOf(path), to = FoldersOf(newPath);
    for (int alike = FoldersAlike(path, newPath); alike > 0; --alike) {
        from = Above(path, from);
        to = Above(newPath, to);
    }
    return {Text(from), Text(to)};
}

std::optional<Text> PathAfter(const FolderMove& move, TextView path) {
    const size_t length = move.from.size();
    if (path.size() <= length || text::Upper(path.substr(0, length)) != text::Upper(move.from)) {
        return std::nullopt;
    }
    Text rest(path.substr(length));
    if (text::IsNativePath(move.to) && !text::IsNativePath(path)) {
        std::replace(rest.begin(), rest.end(), u'\\', u'/');
    }
    return move.to + rest;
}

void Consider(Findings& found, const Text& missing, const Text& path) {
    const int alike = FoldersAlike(missing, path);
    const auto [place, first] = found.try_emplace(missing, Finding{path, alike});
    if (first) {
        return;
    }
    if (alike > place->second.alike) {
        place->second = {path, alike};
    } else if (alike == place->second.alike) {
        ++place->second.choices;
    }
}

NameSearch::NameSearch(std::vector<Text> missing) : missing_(std::move(missing)) {
    for (size_t i = 0; i < missing_.size(); ++i) {
        byName_[text::Upper(text::BareName(missing_[i]))].push_back(i);
    }
}

void NameSearch::Look(const Text& folder, const Text& name) {
    const auto wanted = byName_.find(text::Upper(name));
    if (wanted == byName_.end()) {
        return;
    }
    const Text path = text::WithSeparator(folder) + name;
    for (const size_t i : wanted->second) {
        Consider(found_, missing_[i], path);
    }
}

}  // namespace authoring
