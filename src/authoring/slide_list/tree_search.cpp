#include "authoring/slide_list/tree_search.h"

#include <algorithm>
#include <new>
#include <string>
#include <unordered_set>
#include <utility>
#include <vector>

#include "authoring/shared/long_work.h"
#include "authoring/shared/open_window.h"
#include "authoring/slide_list/adding.h"
#include "authoring/slide_list/stopped_search.h"
#include "document/slide_rows.h"
#include "model/windows/file_search.h"
#include "model/windows/slide_list.h"
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
    explicit SearchFace(Application& app) : app_(app) {
        app.windows.form3.Command8.Caption = u"中止";
    }
    ~SearchFace() {
        app_.state.SlideSearchActive = 0;
        app_.windows.form3.Searched.Caption = Text();
        app_.windows.form3.Found.Caption = Text();
        app_.windows.form3.Command8.Caption = u"検索";
        app_.windows.form3.File1.Pattern = Text(kSlidePatterns);
    }
    SearchFace(const SearchFace&) = delete;
    SearchFace& operator=(const SearchFace&) = delete;

private:
    Application& app_;
};

class TreeSearch {
public:
    explicit TreeSearch(Application& app)
        : app_(app),
          pattern_(app.state.SearchPattern),
          work_(app, {app.windows.form3, &app.windows.form3.Label1}) {}

    /// True when the search was stopped.
    bool Walk(const Text& folder) {
        model::ShowState& state = app_.state;
        searched_ = folder;
        const bool due = IsDue();
        if (due) {
            AddFound();
        }
        state.SlideSearchActive = 1;
        if (due) {
            Pump();
        }
        if (!Goes()) {
            return true;
        }
        if (state.SlideSearchStop == 1) {
            state.SlideSearchStop = 0;
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
            AddFiles(app_, std::exchange(found_, {}));
        }
    }

private:
    bool Goes() const { return app_.state.SlideSearchActive == 1 && app_.windows.form3.Loaded; }

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
        model::Form3& form3 = app_.windows.form3;
        form3.Searched.Caption = searched_;
        form3.Found.Caption = NumberText(entered_.size()) + u" フォルダ、" +
                              NumberText(all_ + found_.size()) + u" 枚";
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
        const int room = app_.state.SlideListLimit - app_.windows.form3.List1.ListCount();
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

void Search(Application& app) {
    const document::UndoStep step(document::SlideRows(app));
    const SearchFace face(app);
    TreeSearch search(app);
    const Text root = app.windows.form3.Dir1.Path;  // a person may look elsewhere meanwhile
    try {
        search.Walk(root);
        search.AddFound();
    } catch (const std::bad_alloc&) {
        app.platform.dialogs.Message(u"ﾘｽﾄ ﾎﾞｯｸｽがいっぱいになりました。検索を中止します。",
                                     platform::kPlain, u"");
    }
}

void Command8_Click(Application& app) {
    if (StoppedSearch(app)) {
        return;
    }
    model::FolderList& dir = app.windows.form3.Dir1;
    if (dir.ListIndex >= 0) {
        dir.Path = Text(dir.List(dir.ListIndex));
    }
    app.state.SearchPattern.clear();
    OpenModal(app, app.windows.form18);
    if (!app.state.SearchPattern.empty()) {
        app.state.SlideSearchStop = 0;
        Search(app);
    }
}

}  // namespace

void AttachTreeSearch(Application& app) {
    app.windows.form3.Command8.Click = [&app] { Command8_Click(app); };
}

}  // namespace authoring
