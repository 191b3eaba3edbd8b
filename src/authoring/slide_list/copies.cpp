#include "authoring/slide_list/copies.h"

#include "authoring/slide_list/collect.h"
#include "authoring/slide_list/stopped_search.h"
#include "model/windows/slide_list.h"

namespace authoring {

void AttachCopies(model::Application& app) {
    app.windows.form3.Collect.Click = [&app] {
        if (!StoppedSearch(app)) {
            CollectShow(app);
        }
    };
}

}  // namespace authoring
