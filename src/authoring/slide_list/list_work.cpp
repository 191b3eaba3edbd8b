#include "authoring/slide_list/list_work.h"

#include <algorithm>
#include <string>
#include <utility>

#include "authoring/slide_list/stopped_search.h"
#include "model/windows/slide_list.h"

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

void AttachCommand(Application& app, model::MenuEntry& entry, TextView keys,
                   std::function<void(Application&)> command) {
    entry.Shortcut = Text(keys);
    entry.Click = [&app, command = std::move(command)] {
        if (!StoppedSearch(app)) {
            command(app);
        }
    };
}

ListWork::ListWork(Application& app, Text doing)
    : app_(app),
      doing_(std::move(doing)),
      work_(app, {app.windows.form3}, [&app] { return app.state.SlideSearchActive == 0; }) {
    model::Form3& form3 = app.windows.form3;
    app.state.SlideSearchActive = 1;
    form3.Command8.Caption = u"中止";
    form3.Label1.Caption = doing_;
    form3.Label1.Visible = true;
}

ListWork::~ListWork() {
    model::Form3& form3 = app_.windows.form3;
    app_.state.SlideSearchActive = 0;
    form3.Command8.Caption = u"検索";
    form3.Label1.Visible = false;
    form3.Label1.Caption = u"検索中";
}

bool ListWork::GoOn(int64_t done, int64_t whole) {
    const double now = app_.platform.loop.Milliseconds();
    if (now - shownAt_ >= kBetweenTexts) {
        shownAt_ = now;
        app_.windows.form3.Label1.Caption =
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
