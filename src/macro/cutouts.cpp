#include "macro/cutouts.h"

#include "text/paths.h"

namespace macro {

Text SlideFolder(const Application& app) {
    return text::FolderPart(app.state.SlideList(app.state.SlideIndex));
}

Flow NameCutoutData(Run&, double) {
    return Flow::GoOn;
}

Flow SetCutoutShape(Run& run, double shape) {
    run.state.PicPbType = static_cast<int16_t>(shape);
    return Flow::GoOn;
}

Flow ShowCutout(Run&, double) {
    return Flow::GoOn;
}

void RemoveObjects(Application& app) {
    model::ShowState& state = app.state;
    for (auto* slots : {&app.windows.form1.Picture2, &app.windows.slidescreen.Picture1}) {
        for (auto& slot : *slots) {
            slot->Visible = false;
            if (slot->Picture()) {
                slot->SetPicture(nullptr);
            }
        }
    }
    state.CutoutJump.fill(0);
    state.CutoutAction.fill({});
}

}  // namespace macro
