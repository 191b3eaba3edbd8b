// One running program: what it remembers, its windows, and its surroundings.
#pragma once

#include "model/show_state.h"
#include "model/windows.h"
#include "platform/platform.h"

namespace model {

struct Application {
    explicit Application(platform::Platform surroundings) : platform(surroundings) {}

    platform::Platform platform;
    ShowState state;
    Windows windows;
};

}  // namespace model

using model::Application;
