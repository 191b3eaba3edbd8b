#include "authoring/link_list/links.h"

#include "document/link_rows.h"
#include "model/windows/link_list.h"
#include "text/paths.h"

namespace authoring {

namespace {

bool IsShow(TextView path) {
    return text::KindOf(path) == u"KVS";
}

model::ListRow LinkRow(Text path) {
    return {std::move(path), {}};
}

/// No button hangs on the selection.
void Nothing(Application&) {}

}  // namespace

ListWindow Links(Application& app) {
    model::Form9& form9 = app.windows.form9;
    return {.app = app,
            .window = form9,
            .list = document::LinkRows(app),
            .limit = app.state.LinkListLimit,
            .dirty = &app.state.LinkListDirty,
            .searching = app.state.LinkSearchActive,
            .full = app.state.LinkSearchStop,
            .fullTitle = u"ＫＶＳリンク",
            .insert = form9.Check4,
            .doing = form9.Label1,
            .stop = form9.Stop,
            .stopCaption = u"",
            .takes = IsShow,
            .rowOf = LinkRow,
            .follow = Nothing,
            .deselected = Nothing};
}

}  // namespace authoring
