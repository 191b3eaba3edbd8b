#include "authoring/slide_list/row_faces.h"

#include "authoring/shared/known_files.h"
#include "document/linked_names.h"
#include "macro/macro.h"
#include "model/sound_modes.h"
#include "model/windows/slide_list.h"
#include "text/paths.h"

namespace authoring {

namespace {

using model::Application;

FilesOfRows SlideFiles(Application& app) {
    return {app, app.windows.form3.known, app.windows.form3.List1};
}

unsigned Marks(Application& app, int row, const Text& path) {
    const FilesOfRows files = SlideFiles(app);
    const bool missing = !IsThere(files, row, path, true);
    const char16_t* own = model::SoundModeInForce(app.state).linked;
    unsigned marks = text::IsVideoKind(path) ? model::kMarkFilm : 0u;
    marks |= missing ? model::kMarkMissing : 0u;
    // In a folder of their own linked files go by the name on the disk, which is not there.
    if (!missing || app.state.LinkedFolderFlag == 0) {
        const Text sound = document::LinkedNameAsWritten(app.state, path, own ? own : u"wav");
        marks |= IsThere(files, row, macro::MacroFile(app, path), false) ? model::kMarkText : 0u;
        marks |= IsThere(files, row, sound, false) ? model::kMarkSound : 0u;
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
    AskAgain(SlideFiles(app));
}

void ForgetFacts(Application& app, const Text& path) {
    AskAgain(SlideFiles(app), path);
}

void AttachRowFaces(Application& app) {
    model::Form3& form3 = app.windows.form3;
    form3.List1.face = [&app](int row) { return Face(app, row); };
    form3.List1.thumbnails = &app.platform.thumbnails;
    form3.mnuFACE.Click = [&form3](int index) { form3.List1.AsGrid = index == 1; };
}

}  // namespace authoring
