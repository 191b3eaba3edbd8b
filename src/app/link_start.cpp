#include "app/link_start.h"

#include "playback/link_run.h"

namespace app {

void TakeLinkList(Application& app) {
    playback::TakeLinkRows(app);
    if (!app.state.LinkList(1).empty()) {
        app.state.LinkRunning = 1;
    }
}

}  // namespace app
