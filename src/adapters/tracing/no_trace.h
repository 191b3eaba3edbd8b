// A trace that keeps nothing.
#pragma once

#include "platform/trace.h"

namespace tracing {

class NoTrace : public platform::Trace {
public:
    void Event(std::string_view, std::initializer_list<platform::TraceField>) override {}
};

}  // namespace tracing
