#include "document/document_file.h"

namespace document {

namespace {

constexpr int kNoDocument = 1;  // exit status

}  // namespace

std::optional<Text> OpenDocument(Application& app, TextView path) {
    std::string bytes;
    platform::FileError error;
    if (!app.platform.files.Read(path, bytes, error)) {
        app.platform.dialogs.Message(error.message, platform::kPlain, u"");
        EndIfLoadingFromStart(app);
        return std::nullopt;
    }
    return text::DecodeFile(bytes, app.platform.codePage);
}

bool SaveDocumentFile(Application& app, TextView path, TextView content) {
    platform::FileError error;
    if (app.platform.files.Write(path, text::EncodeFile(content, app.platform.codePage), error)) {
        return true;
    }
    if (error.whileOpening) {
        app.platform.dialogs.Message(error.message, platform::kPlain, u"");
    } else {
        app.platform.dialogs.Message(error.message, platform::kExclamation, u"ファイルの保存");
    }
    return false;
}

void RefuseDocument(Application& app, TextView path) {
    app.platform.dialogs.Message(Text(path) + u"\r\nこのファイル名は適合しません。",
                                 platform::kExclamation, u"ファイルを開く");
}

void EndIfLoadingFromStart(const Application& app) {
    if (app.state.LoadingFromStart == 1) {
        throw platform::ProgramEnd{kNoDocument};
    }
}

}  // namespace document
