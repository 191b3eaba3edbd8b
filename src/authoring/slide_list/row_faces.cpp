#include "authoring/slide_list/row_faces.h"

#include <algorithm>
#include <utility>

#include "document/linked_names.h"
#include "macro/macro.h"
#include "model/sound_modes.h"
#include "model/windows/slide_list.h"
#include "text/paths.h"

namespace authoring {

namespace {

using model::Application;
using model::KnownFile;
using platform::FileFacts;

/// Far more than rows can be in sight.
constexpr size_t kMostKnown = 12000;

void TakeFacts(Application& app, const Text& path, const FileFacts& facts) {
    model::Form3& form3 = app.windows.form3;
    const auto found = form3.known.files.find(path);
    if (found == form3.known.files.end()) {
        return;
    }
    KnownFile& file = found->second;
    file.asked = false;
    file.fresh = true;
    const std::vector<int> rows = std::exchange(file.rows, {});
    if (std::exchange(file.there, facts.there) == facts.there) {
        return;
    }
    for (const int row : rows) {
        // Rows that have moved meanwhile ask again when they are drawn in their new places.
        form3.List1.FacesChanged(row, row < form3.List1.ListCount() ? 1 : 0);
    }
}

KnownFile& Known(model::KnownFiles& known, const Text& path, bool presumed) {
    const auto [place, isNew] = known.files.try_emplace(path);
    if (isNew) {
        place->second.there = presumed;
        known.order.push_back(path);
        while (known.order.size() > kMostKnown) {
            known.files.erase(known.order.front());
            known.order.pop_front();
        }
    }
    return place->second;
}

/// Whether the file is there, as far as it is known; `presumed` until then. Asks where that is
/// too long ago.
bool IsThere(Application& app, int row, const Text& path, bool presumed) {
    model::KnownFiles& known = app.windows.form3.known;
    KnownFile& file = Known(known, path, presumed);
    if (file.fresh) {
        return file.there;
    }
    if (std::exchange(file.asked, true)) {
        if (std::find(file.rows.begin(), file.rows.end(), row) == file.rows.end()) {
            file.rows.push_back(row);
        }
        return file.there;
    }
    // An answer from within comes before the row waits for it.
    app.platform.fileInquiry.Ask(
        &known, {path}, platform::FileInquiry::Presence,
        [&app](const Text& of, const FileFacts& facts) { TakeFacts(app, of, facts); });
    if (file.asked) {
        file.rows.push_back(row);
    }
    return file.there;
}

unsigned Marks(Application& app, int row, const Text& path) {
    const bool missing = !IsThere(app, row, path, true);
    const char16_t* own = model::SoundModeInForce(app.state).linked;
    unsigned marks = text::IsVideoKind(path) ? model::kMarkFilm : 0u;
    marks |= missing ? model::kMarkMissing : 0u;
    // In a folder of their own linked files go by the name on the disk, which is not there.
    if (!missing || app.state.LinkedFolderFlag == 0) {
        const Text sound = document::LinkedNameAsWritten(app.state, path, own ? own : u"wav");
        marks |= IsThere(app, row, macro::MacroFile(app, path), false) ? model::kMarkText : 0u;
        marks |= IsThere(app, row, sound, false) ? model::kMarkSound : 0u;
    }
    return marks;
}

model::RowFace Face(Application& app, int row) {
    const model::Form3& form3 = app.windows.form3;
    const Text& path = form3.List1.List(row);
    model::RowFace face;
    face.file = text::WithFolder(app.state.AppFolder, path);
    face.title = text::BareName(path);
    face.detail = text::WithoutSeparator(text::FolderPart(path));
    face.aside = ScheduleInShort(form3.List2.List(row));
    face.marks = Marks(app, row, face.file);
    return face;
}

/// Date and time of one end of a schedule, whichever of them are not blank.
Text Moment(TextView date, TextView time) {
    return text::Trim(text::Trim(date) + u' ' + text::Trim(time));
}

}  // namespace

Text ScheduleInShort(TextView row) {
    const Text from = Moment(text::Mid(row, 1, 10), text::Mid(row, 11, 5));
    const Text to = Moment(text::Mid(row, 16, 10), text::Mid(row, 26, 5));
    return from.empty() && to.empty() ? Text() : text::Trim(from + u" – " + to);
}

void RefreshFaces(Application& app) {
    model::Form3& form3 = app.windows.form3;
    for (auto& [path, file] : form3.known.files) {
        file.fresh = false;
    }
    form3.List1.FacesChanged(0, form3.List1.ListCount());
}

void ForgetFacts(Application& app, const Text& path) {
    model::Form3& form3 = app.windows.form3;
    const auto found = form3.known.files.find(path);
    if (found != form3.known.files.end()) {
        found->second.fresh = false;
        form3.List1.FacesChanged(0, form3.List1.ListCount());
    }
}

void AttachRowFaces(Application& app) {
    model::Form3& form3 = app.windows.form3;
    form3.List1.face = [&app](int row) { return Face(app, row); };
    form3.List1.thumbnails = &app.platform.thumbnails;
    form3.mnuFACE.Click = [&form3](int index) { form3.List1.AsGrid = index == 1; };
}

}  // namespace authoring
