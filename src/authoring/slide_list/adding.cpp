#include "authoring/slide_list/adding.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <optional>
#include <utility>

#include "authoring/slide_list/selection.h"
#include "document/slide_rows.h"
#include "model/windows/slide_list.h"
#include "text/paths.h"

namespace authoring {

const TextView kSlidePatterns =
    u"*.png;*.psd;*.bmp;*.jpg;*.jff;*.jtf;*.tif;*.tga;*.pcx;*.cal;*.mac;*.img;*.msp;*.wpg;*.ras;"
    u"*.pct;*.eps;*.pcd;*.cmp;*.mp4;*.wmv;*.mov;*.avi";

namespace {

/// A drop takes fewer kinds than the browser shows.
constexpr std::array<TextView, 7> kDropKinds{u"JPG", u"BMP", u"PNG", u"MP4",
                                             u"WMV", u"MOV", u"AVI"};

/// Rows that the list still takes.
int Room(const Application& app) {
    return std::max(0, app.state.SlideListLimit - app.windows.form3.List1.ListCount());
}

bool ToldFull(Application& app) {
    if (Room(app) > 0) {
        return false;
    }
    app.platform.dialogs.Message(u"これ以上登録できません", platform::kPlain, u"ﾊﾟﾗﾋﾟｺ");
    return true;
}

/// The row in front of which what is added comes; nothing where it goes to the end.
std::optional<int> InsertionRow(const Application& app) {
    const model::Form3& form3 = app.windows.form3;
    const std::optional<int> selected =
        form3.Check6.Value == 1 ? OnlySelectedSlide(app) : std::nullopt;
    const int current = form3.List1.ListIndex;
    return selected && current >= 0 && form3.List1.Seen(current) ? current : selected;
}

void ScrollBy(model::Form3& form3, int rows) {
    const int last = std::max(0, form3.List1.ListCount() - 1);
    form3.List1.TopIndex = std::clamp(form3.List1.TopIndex + rows, 0, last);
    form3.List2.TopIndex = std::clamp(form3.List2.TopIndex + rows, 0, last);
}

/// After a bulk of so many files, whether they were taken or not.
void ScrollPast(model::Form3& form3, size_t files) {
    const int count = static_cast<int>(files);
    if (form3.List1.ListCount() > 0) {
        const int top = form3.List1.TopIndex + count - (form3.List1.TopIndex > 0 ? 0 : 1);
        const int kept = std::clamp(top, 0, form3.List1.ListCount() - 1);
        form3.List1.TopIndex = kept;
        form3.List2.TopIndex = kept;
    }
}

void File1_Click(Application& app) {
    model::Form3& form3 = app.windows.form3;
    const Text name = form3.File1.List(form3.File1.ListIndex);
    if (name.empty() || !AddSlides(app, {text::WithSeparator(form3.File1.Path()) + name})) {
        return;
    }
    if (form3.List1.ListCount() > 1) {
        ScrollBy(form3, 1);
    }
}

void Command3_Click(Application& app) {
    const model::FileList& files = app.windows.form3.File1;
    const Text inside = text::WithSeparator(files.Path());
    std::vector<Text> paths;
    for (const Text& name : files.Rows()) {
        paths.push_back(inside + name);
    }
    AddFiles(app, std::move(paths));
}

void List1_FilesDropped(Application& app, const std::vector<Text>& paths) {
    app.state.SlideSearchStop = 0;
    std::vector<Text> taken;
    std::copy_if(paths.begin(), paths.end(), std::back_inserter(taken), IsDroppedKind);
    if (AddSlides(app, std::move(taken))) {
        ScrollPast(app.windows.form3, paths.size());
    } else {
        app.state.SlideSearchStop = 1;
    }
}

}  // namespace

bool IsDroppedKind(TextView path) {
    return std::find(kDropKinds.begin(), kDropKinds.end(), text::KindOf(path)) != kDropKinds.end();
}

bool InsertSlides(Application& app, int before, std::vector<model::ListRow> rows) {
    if (ToldFull(app)) {
        return false;
    }
    const auto room = static_cast<size_t>(Room(app));
    const bool fills = rows.size() >= room;
    rows.resize(std::min(rows.size(), room));
    if (!rows.empty()) {
        document::InsertRows(document::SlideRows(app), before, std::move(rows));
        app.state.SlideListDirty = 1;
    }
    return !fills || !ToldFull(app);
}

bool AddSlides(Application& app, std::vector<Text> paths) {
    model::Form3& form3 = app.windows.form3;
    std::vector<model::ListRow> rows;
    rows.reserve(paths.size());
    for (Text& path : paths) {
        rows.push_back(document::SlideRow(std::move(path)));
    }
    const std::optional<int> before = InsertionRow(app);
    const bool room = InsertSlides(app, before.value_or(form3.List1.ListCount()), std::move(rows));
    if (before) {
        form3.List2.ListIndex = form3.List1.ListIndex();
    }
    return room;
}

void AddFiles(Application& app, std::vector<Text> paths) {
    app.state.SlideSearchStop = 0;
    const size_t count = paths.size();
    if (AddSlides(app, std::move(paths))) {
        ScrollPast(app.windows.form3, count);
    } else {
        app.state.SlideSearchStop = 1;
        app.state.SlideSearchActive = 0;
    }
}

void AttachAdding(Application& app) {
    model::Form3& form3 = app.windows.form3;
    form3.File1.Click = [&app] { File1_Click(app); };
    form3.Command3.Click = [&app] { Command3_Click(app); };
    form3.List1.FilesDropped = [&app](const std::vector<Text>& paths) {
        List1_FilesDropped(app, paths);
    };
}

}  // namespace authoring
