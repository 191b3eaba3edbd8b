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

constexpr TextView kEveryFile = u"*.*";
/// Files that are asked about at once, so that the answers come while the next folders are read.
constexpr size_t kAskedAtOnce = 1000;

Findings ByName(Application& app, ListWork& work, const Text& root,
                const std::vector<Text>& missing) {
    NameSearch search(missing);
    TreeWalk walk(app.platform.folders, root);
    int64_t files = 0;
    while (work.GoOn(files, 0)) {
        const std::optional<Text> folder = walk.Next();
        if (!folder) {
            break;
        }
        for (const Text& name : app.platform.folders.Files(*folder, kEveryFile)) {
            search.Look(*folder, name);
            ++files;
        }
    }
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
                patterns_.insert(u"*" + Ending(path));
            }
        }
    }

    bool Wanted() const { return !wanted_.empty(); }

    Findings Search(const Text& root) {
        Text patterns;
        for (const Text& pattern : patterns_) {
            patterns += (patterns.empty() ? u"" : u";") + pattern;
        }
        TreeWalk walk(app_.platform.folders, root);
        int64_t files = 0;
        while (work_.GoOn(files, 0)) {
            const std::optional<Text> folder = walk.Next();
            if (!folder) {
                Ask();
                break;
            }
            for (const Text& name : app_.platform.folders.Files(*folder, patterns)) {
                met_.push_back(text::WithSeparator(*folder) + name);
                ++files;
            }
            if (met_.size() >= kAskedAtOnce) {
                Ask();
            }
        }
        return std::move(found_);
    }

private:
    /// ".jpg"; empty for a name without one, and for one that could not stand in a pattern.
    static Text Ending(const Text& path) {
        const Text name = text::BareName(path);
        const size_t dot = name.rfind(u'.');
        const Text ending = dot == Text::npos ? Text() : name.substr(dot);
        return ending.find_first_of(u"*?;") == Text::npos ? ending : Text();
    }

    /// Those of the size are opened.
    void Ask() {
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
    std::set<int64_t> sizes_;
    std::map<std::pair<int64_t, uint64_t>, std::vector<Text>> wanted_;
    std::set<Text> patterns_;
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
