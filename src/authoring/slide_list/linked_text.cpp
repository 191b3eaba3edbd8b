#include "authoring/slide_list/linked_text.h"

#include "authoring/slide_list/linked_work.h"
#include "authoring/slide_list/row_faces.h"
#include "authoring/slide_list/selection.h"
#include "authoring/slide_list/stopped_search.h"
#include "macro/macro.h"
#include "macro/macro_text.h"
#include "model/windows/slide_list.h"

namespace authoring {

namespace {

/// Path of the one selected slide; empty, after a warning, where there is not exactly one.
Text SelectedPath(Application& app, TextView title) {
    const std::optional<int> row = AskForOneSlide(app, title);
    return row ? app.windows.form3.List1.List(*row) : Text();
}

void Command16_Click(Application& app) {
    if (StoppedSearch(app)) {
        return;
    }
    const Text slide = SelectedPath(app, u"テキスト編集");
    if (slide.empty()) {
        return;
    }
    const Text path = macro::MacroFile(app, slide);
    if (app.platform.files.Exists(path) || AskForLinkedText(app, path)) {
        MakeLinkedText(app, slide);
    }
}

void Command17_Click(Application& app) {
    if (StoppedSearch(app)) {
        return;
    }
    const Text slide = SelectedPath(app, u"テキスト削除");
    const Text path = slide.empty() ? Text() : macro::MacroFile(app, slide);
    if (app.platform.files.Exists(path)) {
        AskToDeleteLinkedText(app, slide, path);
    }
}

}  // namespace

bool AskForLinkedText(Application& app, const Text& shown) {
    return app.platform.dialogs.Message(shown + u"\r\nのテキストファイルを作成しますか ?",
                                        platform::kYesNoQuestion,
                                        u"テキスト作成") == platform::Answer::Yes;
}

void MakeLinkedText(Application& app, const Text& slide) {
    StopLinkedWork(app);
    if (macro::EditMacroText(app, slide)) {
        ForgetFacts(app, macro::MacroFile(app, slide));
        app.windows.form3.Command17.Enabled = true;
    }
}

void AskToDeleteLinkedText(Application& app, const Text& slide, const Text& shown) {
    if (app.platform.dialogs.Message(shown + u"\r\nのテキストファイルを削除しますか ?",
                                     platform::kYesNoQuestion,
                                     u"テキスト削除") != platform::Answer::Yes) {
        return;
    }
    StopLinkedWork(app);
    const Text path = macro::MacroFile(app, slide);
    Text kept;
    platform::FileError error;
    if (app.platform.fileChanges.Trash(path, kept, error)) {
        ForgetFacts(app, path);
        app.windows.form3.Command17.Enabled = false;
    } else {
        app.platform.dialogs.Message(u"テキストファイルが削除できません。", platform::kExclamation,
                                     u"テキストファイル削除エラー");
    }
}

void AttachLinkedText(Application& app) {
    app.windows.form3.Command16.Click = [&app] { Command16_Click(app); };
    app.windows.form3.Command17.Click = [&app] { Command17_Click(app); };
}

}  // namespace authoring
