#include "app/keep_awake.h"

#include "model/windows/main_window.h"
#include "model/windows/slide_screen.h"

namespace app {

KeepAwake::KeepAwake(Application& application) : application_(application) {
    for (model::Control* sign : Signs()) {
        sign->Listen(this);
    }
}

KeepAwake::~KeepAwake() {
    for (model::Control* sign : Signs()) {
        sign->Unlisten(this);
    }
    Follow(false);
}

void KeepAwake::PropertyChanged(model::Control&, model::PropertyBase&) {
    const model::Windows& windows = application_.windows;
    Follow(windows.slidescreen.Visible || !windows.form1.mnuOPTION.Enabled);
}

std::array<model::Control*, 2> KeepAwake::Signs() {
    return {&application_.windows.slidescreen, &application_.windows.form1.mnuOPTION};
}

void KeepAwake::Follow(bool awake) {
    if (awake != awake_) {
        awake_ = awake;
        application_.platform.monitors.KeepAwake(awake);
    }
}

}  // namespace app
