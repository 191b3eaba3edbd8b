#include "adapters/tracing/json_trace.h"

#include <cstdio>
#include <utility>

#include "adapters/posix/json.h"

namespace tracing {

namespace {

using posix_adapter::JsonArray, posix_adapter::JsonNumber, posix_adapter::JsonText,
    posix_adapter::JsonUtf8;

struct ValueWriter {
    std::string operator()(double value) const { return JsonNumber(value); }
    std::string operator()(bool value) const { return value ? "true" : "false"; }
    std::string operator()(const Text& value) const { return JsonText(value); }
    std::string operator()(std::nullptr_t) const { return "null"; }
    template <class Element>
    std::string operator()(const std::vector<Element>& elements) const {
        return JsonArray(elements, *this);
    }
};

class JsonTrace : public platform::Trace {
public:
    JsonTrace(FILE* file, bool owned, std::function<double()> milliseconds)
        : file_(file), owned_(owned), milliseconds_(std::move(milliseconds)) {}

    ~JsonTrace() override {
        if (owned_) {
            std::fclose(file_);
        }
    }

    JsonTrace(const JsonTrace&) = delete;
    JsonTrace& operator=(const JsonTrace&) = delete;

    void Event(std::string_view event,
               std::initializer_list<platform::TraceField> fields) override {
        std::string line =
            "{\"t\":" + JsonNumber(milliseconds_()) + ",\"event\":" + JsonUtf8(event);
        for (const platform::TraceField& field : fields) {
            line += "," + JsonUtf8(field.name) + ":" + std::visit(ValueWriter{}, field.value);
        }
        line += "}\n";
        std::fwrite(line.data(), 1, line.size(), file_);
        std::fflush(file_);
    }

private:
    FILE* file_;
    bool owned_;
    std::function<double()> milliseconds_;
};

}  // namespace

std::unique_ptr<platform::Trace> MakeTraceWriter(const std::string& nativePath,
                                                 std::function<double()> milliseconds) {
    const bool standardOutput = nativePath == "-";
    FILE* file = standardOutput ? stdout : std::fopen(nativePath.c_str(), "we");
    if (file == nullptr) {
        return nullptr;
    }
    return std::make_unique<JsonTrace>(file, !standardOutput, std::move(milliseconds));
}

}  // namespace tracing
