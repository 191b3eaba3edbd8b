#include "document/linked_names.h"

#include "text/paths.h"

namespace document {

namespace {

/// Extensions are replaced by plain count: kept, files of existing shows are named so.
Text WithoutThree(TextView name) {
    return Text(name.substr(0, name.size() < 3 ? 0 : name.size() - 3));
}

/// The stored folder has no separator of its own at the end; one without any name is the root.
Text Folder(const model::ShowState& state) {
    return state.LinkedFolder.empty() ? Text(u"\\") : text::WithSeparator(state.LinkedFolder);
}

}  // namespace

Text LinkedName(Application& app, TextView slidePath, TextView extension) {
    if (app.state.LinkedFolderFlag == 0) {
        return WithoutThree(slidePath) + Text(extension);
    }
    const Text name = app.platform.files.Dir(slidePath);
    return name.empty() ? Folder(app.state)
                        : Folder(app.state) + WithoutThree(name) + Text(extension);
}

Text LinkedNameAsWritten(const model::ShowState& state, TextView slidePath, TextView extension) {
    const bool apart = state.LinkedFolderFlag != 0;
    return (apart ? Folder(state) + WithoutThree(text::BareName(slidePath))
                  : WithoutThree(slidePath)) +
           Text(extension);
}

}  // namespace document
