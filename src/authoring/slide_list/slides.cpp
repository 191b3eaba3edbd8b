#include "authoring/slide_list/slides.h"

#include "authoring/slide_list/kinds.h"
#include "authoring/slide_list/preview.h"
#include "authoring/slide_list/selection.h"
#include "document/slide_rows.h"
#include "model/windows/slide_list.h"

namespace authoring {

namespace {

void NothingSelected(Application& app) {
    DisableSlideButtons(app);
    ClearPreview(app);
}

}  // namespace

ListWindow Slides(Application& app) {
    model::Form3& form3 = app.windows.form3;
    return {.app = app,
            .window = form3,
            .list = document::SlideRows(app),
            .limit = app.state.SlideListLimit,
            .dirty = &app.state.SlideListDirty,
            .searching = app.state.SlideSearchActive,
            .full = app.state.SlideSearchStop,
            .fullTitle = u"ﾊﾟﾗﾋﾟｺ",
            .insert = form3.Check6,
            .doing = form3.Label1,
            .stop = form3.Command8,
            .stopCaption = u"検索",
            .takes = IsDroppedKind,
            .rowOf = document::SlideRow,
            .follow = FollowSelection,
            .deselected = NothingSelected};
}

}  // namespace authoring
