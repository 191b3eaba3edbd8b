#include "authoring/shared/open_window.h"

#include "model/windows/main_window.h"

namespace authoring {

bool CanOpen(Application& app, const model::Window& window) {
    if (!window.HasView) {
        app.platform.dialogs.Message(u"この版にはまだありません。", platform::kPlain, u"");
    }
    return window.HasView;
}

void OpenWindow(Application& app, model::Window& window) {
    if (CanOpen(app, window)) {
        window.Show();
    }
}

void OpenModal(Application& app, model::Window& window) {
    if (CanOpen(app, window)) {
        window.ShowModal(app.platform.loop);
    }
}

void OpenInstead(Application& app, model::Window& window) {
    if (CanOpen(app, window)) {
        app.windows.form1.Hide();
        window.Show();
    }
}

}  // namespace authoring
