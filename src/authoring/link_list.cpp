#include "authoring/link_list.h"

#include "model/windows/link_list.h"

namespace authoring {

void ClearLinkList(Application& app) {
    model::ShowState& state = app.state;
    model::Form9& form9 = app.windows.form9;
    form9.List1.Clear();
    form9.Label4.Caption = u"0";
    form9.Caption = Text(model::Form9::kFirstCaption);
    state.LinkDocumentName.clear();
    state.LinkList.Erase();
    state.LinkEnd = 0;
    state.LinkRunning = 0;
    state.LinkListDirty = 0;
}

}  // namespace authoring
