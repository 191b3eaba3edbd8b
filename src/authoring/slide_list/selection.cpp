#include "authoring/slide_list/selection.h"

#include "authoring/shared/list_window.h"
#include "authoring/slide_list/preview.h"
#include "document/linked_names.h"
#include "macro/macro.h"
#include "model/sound_modes.h"
#include "model/windows/slide_list.h"

namespace authoring {

namespace {

bool LinkedTextExists(Application& app, const Text& slide) {
    return app.platform.files.Exists(macro::MacroFile(app, slide));
}

bool LinkedSoundExists(Application& app, const Text& slide) {
    const bool mp3 = app.state.SoundMode == model::kLinkedMp3Sound;
    return app.platform.files.Exists(document::LinkedName(app, slide, mp3 ? u"mp3" : u"wav"));
}

void List1_Click(Application& app) {
    app.state.ListWasClicked = 1;
    FollowSelection(app);
}

}  // namespace

std::vector<int> SelectedSlides(const Application& app) {
    return SelectedRows(app.windows.form3.List1);
}

std::optional<int> AskForOneSlide(Application& app, TextView title) {
    return AskForOneRow(app, app.windows.form3.List1, title);
}

int RowInSight(const Application& app) {
    const model::ListBox& list = app.windows.form3.List1;
    if (list.ListIndex < 0 || list.Seen(list.ListIndex)) {
        return list.ListIndex;
    }
    const std::vector<int> rows = SelectedSlides(app);
    return rows.empty() ? -1 : rows.front();
}

void FollowSelection(Application& app) {
    model::Form3& form3 = app.windows.form3;
    ShowPreview(app, Text(form3.List1.List(RowInSight(app))));
    if (form3.Check1.Value == 0) {
        return;
    }
    const std::optional<int> row = OnlySelectedRow(form3.List1);
    const Text slide = row ? form3.List1.List(*row) : Text();
    const bool picture = row && !text::IsVideoKind(slide);
    form3.Command25.Enabled = picture;
    form3.Command16.Enabled = picture;
    form3.Command17.Enabled = picture && LinkedTextExists(app, slide);
    form3.Command18.Enabled = row.has_value();
    form3.Command20.Enabled = row.has_value();
    form3.Command19.Enabled = row && LinkedSoundExists(app, slide);
}

void DisableLinkedFileButtons(Application& app) {
    model::Form3& form3 = app.windows.form3;
    for (model::Button* button : {&form3.Command16, &form3.Command17, &form3.Command18,
                                  &form3.Command19, &form3.Command20}) {
        button->Enabled = false;
    }
}

void DisableSlideButtons(Application& app) {
    DisableLinkedFileButtons(app);
    app.windows.form3.Command25.Enabled = false;
}

void AttachSelection(Application& app) {
    app.windows.form3.List1.Click = [&app] { List1_Click(app); };
}

}  // namespace authoring
