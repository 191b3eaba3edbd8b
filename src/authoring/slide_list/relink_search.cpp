#include "authoring/slide_list/relink_search.h"

#include <map>
#include <set>
#include <string>
#include <utility>

#include "authoring/shared/tree_walk.h"
#include "authoring/slide_list/remembered_files.h"
#include "text/paths.h"

namespace authoring {

namespace {

/// Files that are asked about at once, so that the answers come while the next folders are read.
constexpr size_t kAskedAtOnce = 1000;

/// Of the files that have one of the paths' endings.
Text Patterns(const std::vector<Text>& paths) {
    std::set<Text> patterns;
    for (const Text& path : paths) {
        const Text name = text::BareName(path);
        const size_t dot = name.rfind(u'.');
        const Text ending = dot == Text::npos ? Text() : text::Upper(name.substr(dot));
        // One that could not stand in a pattern counts as none.
        patterns.insert(ending.find_first_of(u"*?;") == Text::npos ? u"*" + ending : u"*");
    }
    Text all;
    for (const Text& pattern : patterns) {
        all += (all.empty() ? u"" : u";") + pattern;
    }
    return all;
}

/// Goes through the tree until the work is stopped; `take` gets every folder.
template <class Take>
void ForEachFolder(Application& app, ListWork& work, const Text& root, const Text& patterns,
                   Take take) {
    TreeWalk walk(app.platform.folders, root, patterns);
    int64_t files = 0;
    const auto goOn = [&] { return work.GoOn(files, 0); };
    while (goOn()) {
        const std::optional<WalkedFolder> folder = walk.Next(goOn);
        if (!folder) {
            return;
        }
        files += static_cast<int64_t>(folder->files.size());
        take(*folder);
    }
}

Findings ByName(Application& app, ListWork& work, const Text& root,
                const std::vector<Text>& missing) {
    NameSearch search(missing);
    ForEachFolder(app, work, root, Patterns(missing), [&](const WalkedFolder& folder) {
        for (const Text& name : folder.files) {
            search.Look(folder.path, name);
        }
    });
    return search.Found();
}

/// Files that a missing one may be by what is known of it.
class ContentSearch {
public:
    ContentSearch(Application& app, ListWork& work, const std::vector<Text>& missing)
        : app_(app), work_(work) {
        const RememberedFiles known = RememberedFiles::Read(app);
        for (const Text& path : missing) {
            if (const std::optional<FileTraits> file = known.Find(path)) {
                sizes_.insert(file->size);
                wanted_[{file->size, file->beginning}].push_back(path);
                known_.push_back(path);
            }
        }
    }

    bool Wanted() const { return !wanted_.empty(); }

    Findings Search(const Text& root) {
        ForEachFolder(app_, work_, root, Patterns(known_), [&](const WalkedFolder& folder) {
            for (const Text& name : folder.files) {
                met_.push_back(text::WithSeparator(folder.path) + name);
                if (met_.size() >= kAskedAtOnce) {
                    Ask();
                }
            }
        });
        Ask();
        return std::move(found_);
    }

private:
    /// Those of the size are opened.
    void Ask() {
        if (met_.empty()) {
            return;
        }
        const auto sizes =
            AskFacts(app_, work_, std::exchange(met_, {}), platform::FileInquiry::Presence);
        std::vector<Text> alike;
        for (const auto& [path, facts] : sizes.value_or(FactsOfFiles())) {
            if (facts.there && sizes_.contains(facts.size)) {
                alike.push_back(path);
            }
        }
        if (alike.empty()) {
            return;
        }
        const auto opened =
            AskFacts(app_, work_, std::move(alike), platform::FileInquiry::Beginning);
        // By path, so that the first of equal ones is always the same.
        const std::map<Text, platform::FileFacts> sorted(
            opened ? opened->begin() : FactsOfFiles::const_iterator(),
            opened ? opened->end() : FactsOfFiles::const_iterator());
        for (const auto& [path, facts] : sorted) {
            const auto same =
                facts.beginning ? wanted_.find({facts.size, *facts.beginning}) : wanted_.end();
            for (const Text& missing : same == wanted_.end() ? std::vector<Text>() : same->second) {
                Consider(found_, missing, path);
            }
        }
    }

    Application& app_;
    ListWork& work_;
    std::vector<Text> known_;  // missing files of which something is known
    std::set<int64_t> sizes_;
    std::map<std::pair<int64_t, uint64_t>, std::vector<Text>> wanted_;
    std::vector<Text> met_;
    Findings found_;
};

}  // namespace

Findings SearchFolder(Application& app, ListWork& work, const Text& folder,
                      const std::vector<Text>& missing) {
    Findings found = ByName(app, work, folder, missing);
    std::vector<Text> left;
    for (const Text& path : missing) {
        if (!found.contains(path)) {
            left.push_back(path);
        }
    }
    if (ContentSearch search(app, work, left); search.Wanted() && !work.Stopped()) {
        found.merge(search.Search(folder));
    }
    return found;
}

Findings FollowMoves(Application& app, ListWork& work, const std::vector<FolderMove>& moves,
                     const std::vector<Text>& missing) {
    std::vector<Text> candidates;
    for (const FolderMove& move : moves) {
        for (const Text& path : missing) {
            if (std::optional<Text> after = PathAfter(move, path)) {
                candidates.push_back(std::move(*after));
            }
        }
    }
    Findings found;
    const auto facts = candidates.empty()
                           ? std::nullopt
                           : AskFacts(app, work, candidates, platform::FileInquiry::Presence);
    if (!facts) {
        return found;
    }
    for (const FolderMove& move : moves) {
        for (const Text& path : missing) {
            const std::optional<Text> after = PathAfter(move, path);
            if (after && facts->at(*after).there) {
                found.try_emplace(path, Finding{*after, FoldersAlike(path, *after)});
            }
        }
    }
    return found;
}

}  // namespace authoring
