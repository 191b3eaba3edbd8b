#include "authoring/shared/list_work.h"

#include <algorithm>
#include <string>
#include <utility>

namespace authoring {

namespace {

constexpr double kBetweenTexts = 50;  // milliseconds
constexpr int kBetweenLooks = 5;      // milliseconds

Text NumberText(int64_t number) {
    return text::FromUtf8(std::to_string(number));
}

/// Answers that are waited for; none comes any more once this is gone.
struct Asked {
    explicit Asked(Application& application) : app(application) {}
    ~Asked() { app.platform.fileInquiry.Forget(this); }
    Asked(const Asked&) = delete;
    Asked& operator=(const Asked&) = delete;

    Application& app;
    FactsOfFiles facts;
};

}  // namespace

void AttachCommand(const ListWindow& window, model::MenuEntry& entry, TextView keys,
                   std::function<void()> command) {
    entry.Shortcut = Text(keys);
    entry.Click = [window, command = std::move(command)] {
        if (!StoppedWork(window)) {
            command();
        }
    };
}

void ShowStop(const ListWindow& window, bool runs) {
    window.stop.Caption = runs ? Text(u"中止") : Text(window.stopCaption);
    window.stop.Visible = runs || !window.stopCaption.empty();
}

ListWork::ListWork(const ListWindow& window, Text doing)
    : window_(window),
      doing_(std::move(doing)),
      work_(window.app, {window.window},
            [&searching = window.searching] { return searching == 0; }) {
    window_.searching = 1;
    ShowStop(window_, true);
    window_.doing.Caption = doing_;
    window_.doing.Visible = true;
}

ListWork::~ListWork() {
    window_.searching = 0;
    ShowStop(window_, false);
    window_.doing.Visible = false;
    window_.doing.Caption = u"検索中";
}

bool ListWork::GoOn(int64_t done, int64_t whole) {
    const double now = window_.app.platform.loop.Milliseconds();
    if (now - shownAt_ >= kBetweenTexts) {
        shownAt_ = now;
        window_.doing.Caption =
            doing_ + u" " + NumberText(done) + (whole > 0 ? u" / " + NumberText(whole) : Text());
    }
    return work_.GoOn(done, whole);
}

std::optional<FactsOfFiles> AskFacts(Application& app, ListWork& work, std::vector<Text> paths,
                                     platform::FileInquiry::What what) {
    std::sort(paths.begin(), paths.end());
    paths.erase(std::unique(paths.begin(), paths.end()), paths.end());
    const size_t whole = paths.size();
    Asked asked(app);
    app.platform.fileInquiry.Ask(&asked, std::move(paths), what,
                                 [&asked](const Text& path, const platform::FileFacts& facts) {
                                     asked.facts[path] = facts;
                                 });
    while (work.GoOn(static_cast<int64_t>(asked.facts.size()), static_cast<int64_t>(whole))) {
        if (asked.facts.size() >= whole) {
            return std::move(asked.facts);
        }
        app.platform.loop.Sleep(kBetweenLooks);
    }
    return std::nullopt;
}

}  // namespace authoring
