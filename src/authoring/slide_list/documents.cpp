#include "authoring/slide_list/documents.h"

#include "authoring/shared/list_window.h"
#include "authoring/slide_list/linked_work.h"
#include "authoring/slide_list/preview.h"
#include "authoring/slide_list/remembered_files.h"
#include "authoring/slide_list/selection.h"
#include "authoring/slide_list/stopped_search.h"
#include "authoring/sound_list/window.h"
#include "document/main_caption.h"
#include "document/settings_to_controls.h"
#include "document/show_document.h"
#include "document/slide_rows.h"
#include "document/state_files.h"
#include "model/controls.h"
#include "model/windows/main_window.h"
#include "model/windows/slide_list.h"
#include "playback/prepare.h"
#include "playback/run.h"
#include "text/paths.h"

namespace authoring {

namespace {

constexpr TextView kFilter = u"ｽﾗｲﾄﾞFiles (*.kvs)|*.kvs|すべてのﾌｧｲﾙ(*.*)|*.*";
constexpr TextView kAnyName = u"*.kvs";
constexpr int kNewIntervalMs = 3000;

void ClearLists(Application& app) {
    model::ShowState& state = app.state;
    document::ClearSlides(app);
    state.CdProgram.Erase();
    state.CdProgramCount = 0;
    state.SlideListDirty = 0;
    ClearSoundList(app);
}

bool RefusedWithoutSlides(Application& app) {
    if (app.windows.form3.List1.ListCount() > 0) {
        return false;
    }
    app.platform.dialogs.Message(u"スライドリストがないので保存できんません。",
                                 platform::kExclamation, u"ファイルの保存");
    return true;
}

/// The document in use was written by another program since it was read or saved here.
bool ChangedByOthers(Application& app, const Text& path) {
    const model::ShowState& state = app.state;
    const auto date = app.platform.files.LastWrite(path);
    return path == state.DocumentPath && !state.DocumentFileDate.empty() && date &&
           platform::DateTimeText(*date) != state.DocumentFileDate;
}

void SaveAs(Application& app, TextView title, int16_t distribution) {
    platform::Dialogs::FileRequest request;
    request.save = true;
    request.title = title;
    request.filter = kFilter;
    request.initial =
        app.state.DocumentName.empty() ? Text(kAnyName) : document::NameInCaption(app);
    const auto chosen = app.platform.dialogs.ChooseFile(request);
    if (!chosen) {
        return;
    }
    const Text path = text::WithDefaultExtension(*chosen, u".kvs");
    if (ChangedByOthers(app, path) &&
        app.platform.dialogs.Message(
            path + u"\r\nこのファイルは開いた後にほかで変更されています。\r\n上書きしますか ?",
            platform::kYesNoQuestion, u"ファイルの保存") != platform::Answer::Yes) {
        return;
    }
    app.state.DistributionSaveFlag = distribution;
    if (document::WriteShowDocument(app, path)) {
        SayDone(app.windows.form3.Notice,
                text::BareName(app.state.DocumentPath) + u" に保存しました");
    }
    RememberFiles(app);
}

}  // namespace

bool NewDocument(Application& app) {
    if (StoppedSearch(app)) {
        return false;
    }
    if (app.platform.dialogs.Message(u"スライドリストとすべての設定を初期状態にしますか ?",
                                     platform::kYesNoQuestion,
                                     u"新規作成") != platform::Answer::Yes) {
        return false;
    }
    model::ShowState& state = app.state;
    StopLinkedWork(app);
    app.windows.SetPointer(model::kPointerBusy);
    const document::UndoStep step(document::SlideRows(app));
    ClearLists(app);
    model::SetNewDefaults(state);
    state.DocumentPath.clear();
    state.DocumentName.clear();
    state.BaseFolder.clear();
    state.DocumentFileDate.clear();
    state.SlideIndex = 0;
    playback::ForgetPrepared(app);
    document::ShowDocumentCaption(app);
    app.windows.form1.Timer1.Interval = kNewIntervalMs;
    DisableSlideButtons(app);
    ClearPreview(app);
    // The read-back brings menus and controls in line. A file that could not be written still holds
    // the old settings: they must not come back.
    if (document::WriteStateFile(app)) {
        document::ReadStateFile(app);
        document::WriteSoundListFile(app);
    } else {
        document::FollowAllSettings(app);
    }
    playback::SetButtons(app, playback::Buttons::Idle);
    app.windows.SetPointer(model::kPointerNormal);
    return true;
}

bool OpenDocument(Application& app) {
    if (StoppedSearch(app)) {
        return false;
    }
    platform::Dialogs::FileRequest request;
    request.title = u"パラピコ　ファイルを開く";
    request.filter = kFilter;
    request.initial = kAnyName;
    const auto path = app.platform.dialogs.ChooseFile(request);
    if (!path) {
        return false;
    }
    OpenDocument(app, *path);
    return true;
}

void OpenDocument(Application& app, TextView path) {
    if (StoppedSearch(app)) {
        return;
    }
    const document::UndoStep step(document::SlideRows(app));
    app.state.BaseFolder = text::FolderPart(path);
    StopLinkedWork(app);
    DisableSlideButtons(app);
    document::ReadShowDocument(app, path);
    document::LeaveIdentityAsItIs(document::SlideRows(app));  // of one that was refused
    ClearPreview(app);
    playback::PrepareStart(app, false);
}

void SaveDocument(Application& app) {
    if (!StoppedSearch(app) && !RefusedWithoutSlides(app)) {
        SaveAs(app, u"パラピコ　ファイルの保存", 0);
    }
}

void SaveForDistribution(Application& app) {
    if (StoppedSearch(app) || RefusedWithoutSlides(app)) {
        return;
    }
    const TextView question =
        u"配布用ＫＶＳファイルを作成しますか？"
        u"\r\n配布用ＫＶＳファイルはスライドリストのパスが消去され、"
        u"\r\nＫＶＳファイルを開いた時にスライドリストの画像パスが"
        u"\r\nＫＶＳファイルのパスに変換されます。"
        u"\r\nＫＶＳファイルと画像は同一フォルダに保存して下さい。";
    if (app.platform.dialogs.Message(question, platform::kYesNoQuestion,
                                     u"配布用ＫＶＳファイルの保存") == platform::Answer::Yes) {
        SaveAs(app, u"パラピコ　配布用ＫＶＳファイルの保存", 1);
    }
}

void AttachDocuments(Application& app) {
    model::Form3& form3 = app.windows.form3;
    form3.Command6.Click = [&app] { OpenDocument(app); };
    form3.Command7.Click = [&app] { SaveDocument(app); };
    form3.Command9.Click = [&app] { SaveForDistribution(app); };
    form3.Command15.Click = [&app] { NewDocument(app); };
}

}  // namespace authoring
