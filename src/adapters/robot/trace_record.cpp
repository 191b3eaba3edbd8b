#include "adapters/robot/trace_record.h"

namespace robot {

const TracedValue* TracedEvent::Field(std::string_view field) const {
    for (const auto& each : fields) {
        if (each.first == field) {
            return &each.second;
        }
    }
    return nullptr;
}

const Text* TracedEvent::TextOf(std::string_view field) const {
    const TracedValue* value = Field(field);
    return value ? std::get_if<Text>(value) : nullptr;
}

void TraceRecord::Event(std::string_view event,
                        std::initializer_list<platform::TraceField> fields) {
    if (kept_) {
        TracedEvent kept{loop_.Milliseconds(), std::string(event), {}};
        for (const platform::TraceField& field : fields) {
            kept.fields.emplace_back(field.name, field.value);
        }
        events_.push_back(std::move(kept));
    }
    next_.Event(event, fields);
}

}  // namespace robot
