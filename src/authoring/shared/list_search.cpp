#include "authoring/shared/list_search.h"

#include <algorithm>
#include <new>
#include <string>
#include <unordered_set>
#include <utility>
#include <vector>

#include "authoring/shared/list_rows.h"
#include "authoring/shared/list_work.h"
#include "authoring/shared/long_work.h"
#include "authoring/shared/open_window.h"
#include "text/paths.h"

namespace authoring {

namespace {

/// A running clock lets handlers run this often, which no person notices. What is found meanwhile
/// comes into the list at once, as each change of a long list costs its view some time.
constexpr double kBetweenPumps = 20;  // milliseconds
/// More names than this are read once more rather than kept while the subfolders are searched.
constexpr size_t kMostKeptNames = 1000;

/// Kept: also where the dialog's box for these folders is ticked.
bool IsExcluded(TextView folder) {
    Text upper = text::Upper(folder);
    std::replace(upper.begin(), upper.end(), u'/', u'\\');
    return upper.find(u"\\WINDOWS\\WINSXS") != Text::npos ||
           upper.find(u"\\WINDOWS.OLD") != Text::npos;
}

Text NumberText(size_t number) {
    return text::FromUtf8(std::to_string(number));
}

/// What is seen of a search, from its beginning to its end, however it is left.
class SearchFace {
public:
    explicit SearchFace(const SearchPlace& place) : place_(place) { ShowStop(place.list, true); }
    ~SearchFace() {
        place_.list.searching = 0;
        place_.searched.Caption = Text();
        place_.found.Caption = Text();
        ShowStop(place_.list, false);
        place_.files.Pattern = Text(place_.pattern);
    }
    SearchFace(const SearchFace&) = delete;
    SearchFace& operator=(const SearchFace&) = delete;

private:
    const SearchPlace& place_;
};

class TreeSearch {
public:
    explicit TreeSearch(const SearchPlace& place)
        : place_(place),
          list_(place.list),
          app_(list_.app),
          pattern_(app_.state.SearchPattern),
          work_(app_, {list_.window, &list_.doing}) {}

    /// True when the search was stopped.
    bool Walk(const Text& folder) {
        searched_ = folder;
        const bool due = IsDue();
        if (due) {
            AddFound();
        }
        list_.searching = 1;
        if (due) {
            Pump();
        }
        if (!Goes()) {
            return true;
        }
        if (list_.full == 1) {
            list_.full = 0;
            return true;
        }
        platform::FolderContent content = Read(folder);
        if (!Goes()) {
            return true;
        }
        if (content.identity.empty() || !entered_.insert(content.identity).second) {
            return false;
        }
        const bool many = content.files.size() > kMostKeptNames;
        if (many) {
            content.files = {};
        }
        const Text inside = text::WithSeparator(folder);
        for (auto name = content.folders.rbegin(); name != content.folders.rend(); ++name) {
            const Text path = inside + *name;
            if (!IsExcluded(path) && Walk(path)) {
                return true;
            }
        }
        if (Goes()) {
            Find(inside, many ? Read(folder).files : content.files);
        }
        return false;
    }

    /// Puts into the list what was found since the last time.
    void AddFound() {
        if (folders_ > 0) {
            folders_ = 0;
            all_ += found_.size();
            AddFolderFiles(list_, std::exchange(found_, {}));
        }
    }

private:
    bool Goes() const { return list_.searching == 1 && list_.window.Loaded; }

    /// A clock that stands still, as a script's, has waited long enough.
    bool IsDue() const {
        const double now = app_.platform.loop.Milliseconds();
        return now == pumpedAt_ || now - pumpedAt_ >= kBetweenPumps;
    }

    void Pump() {
        SayHowFar();
        work_.GoOn(0, 0);
        pumpedAt_ = app_.platform.loop.Milliseconds();
    }

    void SayHowFar() {
        place_.searched.Caption = searched_;
        place_.found.Caption = NumberText(entered_.size()) + u" フォルダ、" +
                               NumberText(all_ + found_.size()) + u' ' + Text(place_.unit);
    }

    /// Within a folder that takes long to read.
    bool Yield() {
        if (IsDue()) {
            AddFound();
            if (Goes()) {
                Pump();
            }
        }
        return Goes();
    }

    /// Rows that the list still takes, and one more that is refused.
    size_t Room() const {
        const int room = list_.limit - list_.list.rows.ListCount();
        return static_cast<size_t>(std::max(0, room)) + 1;
    }

    platform::FolderContent Read(const Text& folder) {
        return app_.platform.folders.Read(folder, pattern_, Room(), [this] { return Yield(); });
    }

    void Find(const Text& inside, const std::vector<Text>& names) {
        ++folders_;
        for (const Text& name : names) {
            found_.push_back(inside + name);
        }
        if (found_.size() >= Room()) {
            AddFound();
        }
    }

    const SearchPlace& place_;
    const ListWindow& list_;
    Application& app_;
    const Text pattern_;
    LongWork work_;
    std::unordered_set<Text> entered_;  // identities
    std::vector<Text> found_;           // paths, not in the list yet
    size_t all_ = 0;                    // files found before these
    int folders_ = 0;                   // that they were found in
    Text searched_;                     // folder
    double pumpedAt_ = 0;
};

void Search(const SearchPlace& place) {
    const document::UndoStep step(place.list.list);
    const SearchFace face(place);
    TreeSearch search(place);
    const Text root = place.dir.Path;  // a person may look elsewhere meanwhile
    try {
        search.Walk(root);
        search.AddFound();
    } catch (const std::bad_alloc&) {
        place.list.app.platform.dialogs.Message(
            u"ﾘｽﾄ ﾎﾞｯｸｽがいっぱいになりました。検索を中止します。", platform::kPlain, u"");
    }
}

void AskAndSearch(const SearchPlace& place) {
    if (StoppedWork(place.list)) {
        return;
    }
    Application& app = place.list.app;
    model::FolderList& dir = place.dir;
    if (dir.ListIndex >= 0) {
        dir.Path = Text(dir.List(dir.ListIndex));
    }
    app.state.SearchPattern.clear();
    OpenModal(app, place.dialog);
    if (!app.state.SearchPattern.empty()) {
        place.list.full = 0;
        Search(place);
    }
}

}  // namespace

void AttachTreeSearch(const SearchPlace& place) {
    place.list.stop.Click = [place] { AskAndSearch(place); };
}

}  // namespace authoring
