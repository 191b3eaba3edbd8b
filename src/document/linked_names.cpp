#include "document/linked_names.h"

#include "text/paths.h"

namespace document {

namespace {

/// Extensions are replaced by plain count: kept, files of existing shows are named so.
Text WithoutThree(TextView name) {
    return Text(name.substr(0, name.size() < 3 ? 0 : name.size() - 3));
}

}  // namespace

Text LinkedName(Application& app, TextView slidePath, TextView extension) {
    const auto& state = app.state;
    if (state.LinkedFolderFlag == 0) {
        return WithoutThree(slidePath) + Text(extension);
    }
    // The stored folder has no separator of its own at the end; one without any name is the root.
    const Text folder =
        state.LinkedFolder.empty() ? Text(u"\\") : text::WithSeparator(state.LinkedFolder);
    const Text name = app.platform.files.Dir(slidePath);
    return name.empty() ? folder : folder + WithoutThree(name) + Text(extension);
}

}  // namespace document
