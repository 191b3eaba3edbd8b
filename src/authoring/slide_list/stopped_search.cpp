#include "authoring/slide_list/stopped_search.h"

namespace authoring {

bool StoppedSearch(Application& app) {
    const bool runs = app.state.SlideSearchActive == 1;
    app.state.SlideSearchActive = 0;
    return runs;
}

}  // namespace authoring
