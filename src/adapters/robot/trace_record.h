// What happened in a run, kept for the script's expectations of it.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "platform/event_loop.h"
#include "platform/trace.h"

namespace robot {

using TracedValue = decltype(platform::TraceField::value);

struct TracedEvent {
    double milliseconds = 0;
    std::string name;
    std::vector<std::pair<std::string, TracedValue>> fields;

    /// Null when it has none of that name.
    const TracedValue* Field(std::string_view field) const;
    /// Of a field that is a text; otherwise null.
    const Text* TextOf(std::string_view field) const;
};

/// Passes every event on; keeps them all as well when somebody will ask.
class TraceRecord : public platform::Trace {
public:
    TraceRecord(platform::Trace& next, platform::EventLoop& loop) : next_(next), loop_(loop) {}

    void Event(std::string_view event, std::initializer_list<platform::TraceField> fields) override;

    void Keep() { kept_ = true; }
    const std::vector<TracedEvent>& Events() const { return events_; }

private:
    platform::Trace& next_;
    platform::EventLoop& loop_;
    bool kept_ = false;
    std::vector<TracedEvent> events_;
};

}  // namespace robot
