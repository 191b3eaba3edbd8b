#include "authoring/shared/file_search.h"

#include "model/monitors.h"
#include "model/windows/file_search.h"

namespace authoring {

namespace {

using model::Application;

using Boxes = model::ControlArray<model::CheckBox>;

void Tick(Boxes& boxes, int value) {
    for (const auto& box : boxes) {
        box->Value = value;
    }
}

Text PatternOf(Boxes& boxes) {
    Text pattern;
    for (const auto& box : boxes) {
        if (box->Value == 1) {
            pattern += (pattern.empty() ? u"*." : u";*.") + box->Caption();
        }
    }
    return pattern;
}

/// What both dialogs have. A closing by the frame is a cancel, too.
template <class Dialog>
void AttachDialog(Application& app, Dialog& dialog) {
    dialog.OnLoad = [&app, &dialog] {
        model::CentreOnMonitor(app, dialog);
        app.state.SearchPattern.clear();
        Tick(dialog.Check1, 0);
        dialog.Check2.Value = 0;
    };
    dialog.Command3.Click = [&app, &dialog] {
        app.state.SearchPattern = PatternOf(dialog.Check1);
        app.state.SearchWindowsFolderFlag = dialog.Check2.Value == 1 ? 1 : 0;
        dialog.Unload();
    };
    dialog.Command4.Click = [&app, &dialog] {
        app.state.SearchPattern.clear();
        dialog.Unload();
    };
}

}  // namespace

void AttachFileSearch(Application& app) {
    model::Form18& form18 = app.windows.form18;
    AttachDialog(app, form18);
    AttachDialog(app, app.windows.form19);
    form18.Command1.Click = [&form18] { Tick(form18.Check1, 1); };
    form18.Command2.Click = [&form18] { Tick(form18.Check1, 0); };
}

}  // namespace authoring
