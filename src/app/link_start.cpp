#include "app/link_start.h"

#include "model/list_controls.h"
#include "model/windows/link_list.h"

namespace app {

void TakeLinkList(Application& app) {
    model::ShowState& state = app.state;
    const model::ListBox& list = app.windows.form9.List1;
    state.LinkList.Erase();
    for (int row = 0; row < list.ListCount(); ++row) {
        state.LinkList.Set(row + 1, list.List(row));
    }
    state.LinkEnd = static_cast<int16_t>(list.ListCount() + 1);
    if (!state.LinkList(1).empty()) {
        state.LinkRunning = 1;
    }
}

}  // namespace app
