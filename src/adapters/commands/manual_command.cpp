#include "adapters/commands/manual_command.h"

#include <fstream>
#include <ostream>

#include "adapters/posix/iconv_code_page.h"
#include "macro/manual.h"

namespace commands {

namespace {

constexpr int kWritten = 0, kNotWritten = 1, kWrongUsage = 2;

/// False where a character has no form in the code page.
bool Write(bool codePage, std::ostream& out) {
    const Text manual = macro::Manual();
    if (!codePage) {
        out << text::MarkedUtf8(manual);
        return bool(out.flush());
    }
    const auto bytes = posix_adapter::IconvCodePage().Encode(manual);
    return bytes && (out << *bytes).flush();
}

}  // namespace

int RunManualCommand(const std::vector<std::string>& arguments, std::ostream& out,
                     std::ostream& err) {
    bool codePage = false;
    std::vector<std::string> files;
    bool wrong = false;
    for (size_t i = 1; i < arguments.size(); ++i) {
        if (arguments[i] == "--code-page") {
            codePage = true;
        } else if (arguments[i].empty() || arguments[i].starts_with("--")) {
            wrong = true;
        } else {
            files.push_back(arguments[i]);
        }
    }
    if (wrong || files.size() > 1) {
        err << "usage: parapico --manual [--code-page] [FILE]\n";
        return kWrongUsage;
    }
    if (files.empty()) {
        return Write(codePage, out) ? kWritten : kNotWritten;
    }
    std::ofstream file(files[0], std::ios::binary);
    if (!file || !Write(codePage, file)) {
        err << "parapico: " << files[0] << ": 書き込めません\n";
        return kNotWritten;
    }
    return kWritten;
}

}  // namespace commands
