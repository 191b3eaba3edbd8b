#include "authoring/link_list/documents.h"

#include "authoring/link_list/links.h"
#include "authoring/shared/list_window.h"
#include "document/link_document.h"
#include "model/windows/link_list.h"
#include "text/paths.h"

namespace authoring {

namespace {

constexpr TextView kFilter = u"ＫＶＳリンクFiles (*.kvl)|*.kvl|すべてのﾌｧｲﾙ(*.*)|*.*";
constexpr TextView kAnyName = u"*.kvl";

void OpenLinkDocument(Application& app) {
    if (StoppedWork(Links(app))) {
        return;
    }
    platform::Dialogs::FileRequest request;
    request.title = u"パラピコ　ファイルを開く";
    request.filter = kFilter;
    request.initial = kAnyName;
    if (const auto path = app.platform.dialogs.ChooseFile(request)) {
        app.state.BaseFolder = text::FolderPart(*path);
        document::ReadLinkDocument(app, *path);
    }
}

void SaveAs(Application& app, TextView title, int16_t distribution) {
    platform::Dialogs::FileRequest request;
    request.save = true;
    request.title = title;
    request.filter = kFilter;
    request.initial = kAnyName;
    if (const auto path = app.platform.dialogs.ChooseFile(request)) {
        app.state.DistributionSaveFlag = distribution;
        if (document::WriteLinkDocument(app, *path)) {
            SayDone(app.windows.form9.Notice,
                    text::BareName(app.state.LinkDocumentPath) + u" に保存しました");
        }
    }
}

bool RefusedWithoutLinks(Application& app) {
    if (app.windows.form9.List1.ListCount() > 0) {
        return false;
    }
    app.platform.dialogs.Message(u"ＫＶＳリンクリストがないので保存できんません。",
                                 platform::kExclamation, u"ファイルの保存");
    return true;
}

void SaveForDistribution(Application& app) {
    if (StoppedWork(Links(app)) || RefusedWithoutLinks(app)) {
        return;
    }
    const TextView question =
        u"配布用ＫＶＬファイルを作成しますか？"
        u"\r\n配布用ＫＶＬファイルはＫＶＳリンクのパスが消去され、"
        u"\r\nＫＶＬファイルを開いた時にＫＶＳリンクの画像パスが"
        u"\r\nＫＶＬファイルのパスに変換されます。"
        u"\r\nＫＶＬとＫＶＳファイルは同一フォルダに保存して下さい。";
    if (app.platform.dialogs.Message(question, platform::kYesNoQuestion,
                                     u"配布用ＫＶＬファイルの保存") == platform::Answer::Yes) {
        SaveAs(app, u"パラピコ　配布用ＫＶＬファイルの保存", 1);
    }
}

}  // namespace

void SaveLinkDocument(Application& app) {
    if (!StoppedWork(Links(app)) && !RefusedWithoutLinks(app)) {
        SaveAs(app, u"パラピコ　ファイルの保存", 0);
    }
}

void AttachLinkDocuments(Application& app) {
    model::Form9& form9 = app.windows.form9;
    form9.Command6.Click = [&app] { OpenLinkDocument(app); };
    form9.Command7.Click = [&app] { SaveLinkDocument(app); };
    form9.Command8.Click = [&app] { SaveForDistribution(app); };
}

}  // namespace authoring
