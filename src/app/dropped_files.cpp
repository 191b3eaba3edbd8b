#include "app/dropped_files.h"

#include <algorithm>

#include "app/link_start.h"
#include "authoring/slide_list/documents.h"
#include "document/document_file.h"
#include "document/link_document.h"
#include "model/windows/main_window.h"
#include "playback/full_screen.h"
#include "playback/run.h"
#include "text/paths.h"

namespace app {

namespace {

bool IsShow(const Text& path) {
    return text::KindOf(path) == u"KVS";
}

bool IsLinkList(const Text& path) {
    return text::KindOf(path) == u"KVL";
}

void PlayLinkList(Application& app, const Text& path) {
    app.state.BaseFolder = text::FolderPart(path);
    if (!document::ReadLinkDocument(app, path)) {
        return;
    }
    TakeLinkList(app);
    if (app.state.LinkRunning == 1) {
        playback::Command4_Click(app);
    }
}

void Form1_FilesDropped(Application& app, const std::vector<Text>& files) {
    // The entry is hidden while a show is under way.
    const bool mayOpen = app.windows.form1.mnuOPEN.Visible && app.state.StepBusy != 1 &&
                         app.windows.Pointer() == model::kPointerNormal;
    if (!mayOpen || files.empty() || playback::RefusedByListWindow(app)) {
        return;
    }
    const auto document = std::find_if(files.begin(), files.end(), [](const Text& path) {
        return IsShow(path) || IsLinkList(path);
    });
    if (document == files.end()) {
        document::RefuseDocument(app, files.front());
    } else if (IsLinkList(*document)) {
        PlayLinkList(app, *document);
    } else {
        authoring::OpenDocument(app, *document);
        playback::SetButtons(app, playback::Buttons::Idle);
    }
}

}  // namespace

void AttachDroppedFiles(Application& application) {
    application.windows.form1.FilesDropped = [&application](const std::vector<Text>& files) {
        Form1_FilesDropped(application, files);
    };
}

}  // namespace app
