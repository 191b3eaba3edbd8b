#include "authoring/slide_list/relink.h"

#include <algorithm>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "authoring/shared/browser_memory.h"
#include "authoring/slide_list/relink_search.h"
#include "authoring/slide_list/selection.h"
#include "authoring/slide_list/slides.h"
#include "document/slide_rows.h"
#include "model/monitors.h"
#include "model/windows/relink_preview.h"
#include "model/windows/slide_list.h"
#include "text/paths.h"

namespace authoring {

namespace {

using model::Application;

constexpr TextView kTitle = u"見つからないファイルを探す";
constexpr size_t kMostMoves = 32;

Text NumberText(size_t number) {
    return text::FromUtf8(std::to_string(number));
}

/// The rows whose files are missing, and what was found for them.
class Relinking {
public:
    explicit Relinking(Application& app) : app_(app) {}

    /// From the press of the button to the change, or to nothing.
    void Run() {
        if (!FindMissing() || (found_.empty() && !SearchOneFolder())) {
            return;
        }
        while (Ask() == Choice::More) {
            SearchOneFolder();
        }
        if (choice_ == Choice::Change) {
            Change();
        }
    }

    void Choose(bool change) { End(change ? Choice::Change : Choice::Cancel); }
    void SearchMore() { End(Choice::More); }

    void Check1_Click() {
        model::RelinkPreview& window = app_.windows.relinkPreview;
        window.List1.Clear();
        std::vector<Text> rows;
        shown_.clear();
        for (const Text& path : missing_) {
            if (const Finding* finding = Taken(path)) {
                shown_.push_back(path);
                rows.push_back(path + u" → " + finding->path);
            }
        }
        window.Command1.Enabled = !rows.empty();
        window.List1.InsertRows(0, std::move(rows));
    }

    model::RowFace FaceOf(int row) const {
        const Finding& finding = found_.at(shown_.at(static_cast<size_t>(row)));
        model::RowFace face;
        face.file = finding.path;
        face.title = text::BareName(finding.path);
        face.detail = shown_[static_cast<size_t>(row)] + u" → " + finding.path;
        if (finding.choices > 1) {
            face.aside = u"候補 " + NumberText(static_cast<size_t>(finding.choices));
        }
        return face;
    }

private:
    enum class Choice { Cancel, Change, More };

    /// Asks which files are missing, and looks where earlier ones went. False where there is
    /// nothing to do.
    bool FindMissing() {
        missing_.clear();
        found_.clear();
        {
            ListWork work(Slides(app_), u"確認中");
            const auto& rows = app_.windows.form3.List1.Rows();
            const auto facts =
                AskFacts(app_, work, {rows.begin(), rows.end()}, platform::FileInquiry::Presence);
            if (!facts) {
                return false;
            }
            FactsOfFiles unmet = *facts;
            for (const Text& path : app_.windows.form3.List1.Rows()) {
                const auto fact = unmet.find(path);
                if (fact != unmet.end() && !fact->second.there) {
                    missing_.push_back(path);
                    unmet.erase(fact);
                }
            }
            found_ = FollowMoves(app_, work, moves_, missing_);
        }
        if (missing_.empty()) {
            app_.platform.dialogs.Message(u"見つからないファイルはありません。",
                                          platform::kInformation, kTitle);
        }
        return !missing_.empty();
    }

    /// In a folder that the person chooses. False where nothing was found for any file.
    bool SearchOneFolder() {
        std::vector<Text> left;
        for (const Text& path : missing_) {
            if (!found_.contains(path)) {
                left.push_back(path);
            }
        }
        platform::Dialogs::FileRequest request;
        request.title = Text(kTitle) + u"（" + NumberText(left.size()) + u"個）";
        request.folder = app_.state.BaseFolder;
        const std::optional<Text> folder = app_.platform.dialogs.ChooseFolder(request);
        if (!folder) {
            return !found_.empty();
        }
        RememberFolder(app_, *folder);
        Findings found;
        {
            ListWork work(Slides(app_), u"検索中");
            found = SearchFolder(app_, work, *folder, left);
        }
        if (found.empty()) {
            app_.platform.dialogs.Message(
                *folder + u"\r\nこのフォルダの中には見つかりませんでした。", platform::kInformation,
                kTitle);
        }
        found_.merge(found);
        return !found_.empty();
    }

    Choice Ask() {
        model::RelinkPreview& window = app_.windows.relinkPreview;
        const auto several =
            static_cast<size_t>(std::count_if(found_.begin(), found_.end(), [](const auto& found) {
                return found.second.choices > 1;
            }));
        window.Label1.Caption = u"見つからないファイル " + NumberText(missing_.size()) +
                                u"個のうち、" + NumberText(found_.size()) +
                                u"個が次の場所で見つかりました。";
        window.Check1.Caption =
            u"候補が複数あるファイル（" + NumberText(several) + u"個）も変更する";
        window.Check1.Visible = several > 0;
        window.Check1.Value = 1;
        window.Command3.Visible = found_.size() < missing_.size();
        Check1_Click();
        choice_ = Choice::Cancel;
        window.ShowModal(app_.platform.loop);
        window.List1.Clear();
        return choice_;
    }

    void End(Choice choice) {
        choice_ = choice;
        app_.windows.relinkPreview.Unload();
    }

    /// Null for a file that stays missing.
    const Finding* Taken(const Text& path) const {
        const auto found = found_.find(path);
        const bool taken = found != found_.end() && (found->second.choices == 1 ||
                                                     app_.windows.relinkPreview.Check1.Value == 1);
        return taken ? &found->second : nullptr;
    }

    void Change() {
        const document::EditedList list = document::SlideRows(app_);
        std::vector<int> places;
        std::vector<model::ListRow> rows;
        for (int row = 0; row < list.rows.ListCount(); ++row) {
            if (const Finding* finding = Taken(list.rows.List(row))) {
                places.push_back(row);
                rows.push_back({finding->path, document::RowAt(list, row).schedule});
            }
        }
        RememberMoves();
        document::ReplaceRows(list, places, std::move(rows));
        app_.state.SlideListDirty = 1;
        FollowSelection(app_);
    }

    /// Those of most files first, and before those of earlier times.
    void RememberMoves() {
        std::map<std::pair<Text, Text>, int> counts;
        for (const auto& [path, finding] : found_) {
            if (Taken(path) && text::BareName(path).size() == text::BareName(finding.path).size()) {
                const FolderMove move = MoveOf(path, finding.path);
                ++counts[{move.from, move.to}];
            }
        }
        std::vector<std::pair<int, FolderMove>> ranked;
        for (const auto& [move, count] : counts) {
            ranked.push_back({count, {move.first, move.second}});
        }
        std::stable_sort(ranked.begin(), ranked.end(),
                         [](const auto& a, const auto& b) { return a.first > b.first; });
        std::vector<FolderMove> moves;
        for (const auto& [count, move] : ranked) {
            moves.push_back(move);
        }
        for (const FolderMove& earlier : moves_) {
            if (std::find(moves.begin(), moves.end(), earlier) == moves.end()) {
                moves.push_back(earlier);
            }
        }
        moves.resize(std::min(moves.size(), kMostMoves));
        moves_ = std::move(moves);
    }

    Application& app_;
    std::vector<FolderMove> moves_;  // of this run of the program
    std::vector<Text> missing_;      // each path once, in the list's order
    Findings found_;
    std::vector<Text> shown_;  // missing files by row of the window
    Choice choice_ = Choice::Cancel;
};

}  // namespace

void AttachRelink(Application& app) {
    model::Form3& form3 = app.windows.form3;
    model::RelinkPreview& window = app.windows.relinkPreview;
    const auto relinking = std::make_shared<Relinking>(app);
    AttachCommand(Slides(app), form3.mnuRELINK, u"", [relinking] { relinking->Run(); });
    form3.Relink.Click = [&form3] { form3.mnuRELINK.Choose(); };
    window.OnLoad = [&app, &window] { model::CentreOnMonitor(app, window); };
    window.Check1.Click = [relinking] { relinking->Check1_Click(); };
    window.Command1.Click = [relinking] { relinking->Choose(true); };
    window.Command2.Click = [relinking] { relinking->Choose(false); };
    window.Command3.Click = [relinking] { relinking->SearchMore(); };
    window.List1.thumbnails = &app.platform.thumbnails;
    window.List1.face = [relinking](int row) { return relinking->FaceOf(row); };
}

}  // namespace authoring
