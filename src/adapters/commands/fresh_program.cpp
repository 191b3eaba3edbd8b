#include "adapters/commands/fresh_program.h"

#include <filesystem>

#include "adapters/posix/posix_system.h"
#include "text/paths.h"

namespace commands {

Text AbsolutePath(const std::string& path) {
    const Text given = text::FromUtf8(path);
    if (given.empty() || text::IsNativePath(given) || (given.size() > 1 && given[1] == u':')) {
        return given;
    }
    std::string_view name = path;
    while (name.starts_with("./")) {
        name.remove_prefix(2);
    }
    std::error_code ignored;
    return text::FromUtf8((std::filesystem::current_path(ignored) / name).string());
}

FreshProgram::FreshProgram(const Text& path)
    : surroundings(posix_adapter::ProgramFolder("")), app(surroundings.Get()) {
    model::ZeroReset(app.state);
    model::SetStartDefaults(app.state);
    app.state.AppFolder = app.platform.system.AppFolder();
    app.state.BaseFolder = text::FolderPart(path);
}

}  // namespace commands
