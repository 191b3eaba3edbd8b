#include "document/document_file.h"

namespace document {

std::optional<Text> OpenDocument(Application& app, TextView path) {
    std::string bytes;
    platform::FileError error;
    if (!app.platform.files.Read(path, bytes, error)) {
        app.platform.dialogs.Message(error.message, platform::kPlain, u"");
        return std::nullopt;
    }
    return text::DecodeFile(bytes, app.platform.codePage);
}

void RefuseDocument(Application& app, TextView path) {
    app.platform.dialogs.Message(Text(path) + u"\r\nこのファイル名は適合しません。",
                                 platform::kExclamation, u"ファイルを開く");
}

void EndIfLoadingFromStart(const Application& app) {
    if (app.state.LoadingFromStart == 1) {
        throw platform::ProgramEnd{};
    }
}

}  // namespace document
