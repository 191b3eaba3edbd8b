// The menu that does what the main window's buttons do.
#pragma once

#include "model/application.h"

namespace app {

/// As long as it lives the entries of the menu press the buttons and are enabled as these are.
class PlayMenu : public model::Listener {
public:
    explicit PlayMenu(Application& application);
    ~PlayMenu() override;
    PlayMenu(const PlayMenu&) = delete;
    PlayMenu& operator=(const PlayMenu&) = delete;

    void PropertyChanged(model::Control& control, model::PropertyBase& property) override;

private:
    Application& application_;
};

}  // namespace app
