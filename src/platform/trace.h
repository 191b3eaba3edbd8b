// What the program does, written as it happens, one event a line.
#pragma once

#include <initializer_list>
#include <string_view>
#include <variant>
#include <vector>

#include "text/text.h"

namespace platform {

struct TraceField {
    std::string_view name;
    std::variant<double, bool, Text, std::nullptr_t, std::vector<Text>, std::vector<double>,
                 std::vector<std::vector<Text>>>
        value;
};

class Trace {
public:
    virtual ~Trace() = default;
    /// The implementation adds the time and the event's name. Costs nothing without a trace.
    virtual void Event(std::string_view event, std::initializer_list<TraceField> fields) = 0;
};

}  // namespace platform
