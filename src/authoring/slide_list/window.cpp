#include "authoring/slide_list/window.h"

#include <algorithm>

#include "authoring/batch_conversion.h"
#include "authoring/shared/file_browser.h"
#include "authoring/shared/list_clipboard.h"
#include "authoring/shared/list_filter.h"
#include "authoring/shared/list_search.h"
#include "authoring/shared/list_sorting.h"
#include "authoring/shared/open_window.h"
#include "authoring/slide_list/adding.h"
#include "authoring/slide_list/check_boxes.h"
#include "authoring/slide_list/commit.h"
#include "authoring/slide_list/copies.h"
#include "authoring/slide_list/documents.h"
#include "authoring/slide_list/double_click.h"
#include "authoring/slide_list/history.h"
#include "authoring/slide_list/kinds.h"
#include "authoring/slide_list/linked_sound.h"
#include "authoring/slide_list/linked_text.h"
#include "authoring/slide_list/linked_work.h"
#include "authoring/slide_list/preview.h"
#include "authoring/slide_list/relink.h"
#include "authoring/slide_list/row_faces.h"
#include "authoring/slide_list/rows.h"
#include "authoring/slide_list/run_from_selection.h"
#include "authoring/slide_list/selection.h"
#include "authoring/slide_list/slides.h"
#include "authoring/slide_list/stopped_search.h"
#include "document/main_caption.h"
#include "model/monitors.h"
#include "model/windows/declared_windows.h"
#include "model/windows/file_search.h"
#include "model/windows/main_window.h"
#include "model/windows/slide_list.h"
#include "model/windows/sound_list.h"
#include "model/windows/text_display.h"
#include "playback/run.h"

namespace authoring {

namespace {

constexpr int kLeastWidth = 12030, kLeastHeight = 8745;   // twips
constexpr int kNormalWidth = 9450, kNormalHeight = 5460;  // what 標準 asks for

void Form_Load(Application& app) {
    model::Form3& form3 = app.windows.form3;
    app.state.SlideListLimit = model::kSlideListLimit;
    model::CentreOnMonitor(app, form3);
    form3.File1.Pattern = Text(kSlidePatterns);
    form3.Label1.Visible = false;
    DisableSlideButtons(app);
    ShowCheckBoxes(app);
    OpenBrowser(app, form3.Drive1, form3.Dir1, form3.File1, app.platform.folders.Home());
}

/// Where it was put it stays while it is open; only the monitor in use can call it elsewhere.
void TakePlace(Application& app) {
    model::Form3& form3 = app.windows.form3;
    const platform::Rect monitor = model::MonitorTwips(app, model::MonitorOfMainWindow(app));
    const platform::Rect place{form3.Left, form3.Top, form3.Width, form3.Height};
    if (app.state.SlideListWindowOpen == 0 || platform::Intersection(place, monitor).Empty()) {
        model::CentreOnMonitor(app, form3);
    }
}

void Form_Activate(Application& app) {
    app.windows.form3.Dir1.Refresh();
    RefreshFiles(app, app.windows.form3.File1);
    RefreshFaces(app);
    if (app.state.ListWasClicked == 1) {
        FollowSelection(app);
    }
    TakePlace(app);
    app.state.SlideListWindowOpen = 1;
    app.state.SlideListDirty = 1;
    app.state.ReturnToSlideList = 0;
}

void Form_Resize(Application& app) {
    model::Form3& form3 = app.windows.form3;
    if (form3.WindowState == model::kWindowNormal) {
        form3.Width = std::max(form3.Width(), kLeastWidth);
        form3.Height = std::max(form3.Height(), kLeastHeight);
    }
}

void ForgetDocument(Application& app) {
    model::ShowState& state = app.state;
    model::Form1& form1 = app.windows.form1;
    for (model::Button* button :
         {&form1.Command1, &form1.Command2, &form1.Command3, &form1.Command4}) {
        button->Enabled = false;
    }
    for (Text* field : {&state.DocumentName, &state.DocumentPath, &state.DocumentFileDate}) {
        field->clear();
    }
    document::ShowDocumentCaption(app);
}

/// A search is stopped first, but nothing holds up the end of the program.
void Form_QueryUnload(Application& app, bool& stay) {
    stay = StoppedSearch(app) && !app.windows.form1.Unloading();
}

void Form_Unload(Application& app) {
    StopLinkedWork(app);
    if (app.windows.form1.Unloading()) {
        return;
    }
    playback::EndRun(app);
    if (app.state.SlideListDirty == 1 && app.windows.form3.List1.ListCount() > 0) {
        if (app.platform.dialogs.Message(u"スライドリストを保存しますか ?",
                                         platform::kYesNoQuestion,
                                         u"ファイル選択") == platform::Answer::Yes) {
            SaveDocument(app);
        }
        ForgetDocument(app);
    }
    app.state.SlideListDirty = 0;
    app.state.ListWasClicked = 0;
    ClearPreview(app);
    BackToMainWindow(app);
}

void Command12_Click(Application& app) {
    if (StoppedSearch(app) || app.windows.form3.List1.ListCount() == 0) {
        return;
    }
    if (SelectedSlides(app).empty()) {
        app.platform.dialogs.Message(
            u"ファイルが選択されておりません。"
            u"\r\nスライドリストをドラッグし、選択して下さい。",
            platform::kExclamation, u"変換コピー選択エラー");
        return;
    }
    OpenBatchConversion(app);
}

void AttachLife(Application& app) {
    model::Form3& form3 = app.windows.form3;
    AttachBrowser(form3.Drive1, form3.Dir1, form3.File1);
    form3.OnLoad = [&app] { Form_Load(app); };
    form3.OnActivate = [&app] { Form_Activate(app); };
    form3.OnResize = [&app, preview = KeepPreviewPlaced(app)] { Form_Resize(app); };
    form3.OnPaint = [&app] { app.state.SlideListDirty = 1; };
    form3.OnDeactivate = [&app] { app.state.SlideListDirty = 0; };
    form3.OnQueryUnload = [&app](bool& stay) { Form_QueryUnload(app, stay); };
    form3.OnUnload = [&app] { Form_Unload(app); };
}

void AttachButtons(Application& app) {
    model::Form3& form3 = app.windows.form3;
    form3.Command10.Click = [&form3] { form3.WindowState = model::kWindowMaximised; };
    form3.Command11.Click = [&form3] {
        form3.WindowState = model::kWindowNormal;
        form3.ResizeTo(kNormalWidth, kNormalHeight);
    };
    form3.Command12.Click = [&app] { Command12_Click(app); };
    form3.Command23.Click = [&app] { OpenWindow(app, app.windows.form10); };
    form3.Command24.Click = [&app] { OpenModal(app, app.windows.form15); };
    form3.Command25.Click = [&app] {
        if (AskForOneSlide(app, u"切取ﾏｸﾛ生成")) {
            OpenWindow(app, app.windows.form23);
        }
    };
}

/// What every list of this kind can do.
void AttachListAbilities(Application& app) {
    model::Form3& form3 = app.windows.form3;
    const ListWindow slides = Slides(app);
    AttachTreeSearch({slides, form3.Dir1, form3.File1, kSlidePatterns, app.windows.form18,
                      form3.Searched, form3.Found, u"枚"});
    AttachClipboardRows(
        slides, {form3.mnuCUT, form3.mnuCOPY, form3.mnuPASTE, form3.mnuREMOVE, form3.mnuALL},
        [&app] { RemoveSelectedSlides(app); });
    AttachSorting(slides, {form3.mnuSORTNAME, form3.mnuSORTDATE, form3.mnuSORTFOLDER,
                           form3.mnuSHUFFLE, form3.mnuREVERSE, &form3.mnuSORTTAKEN});
    AttachFilter(slides, form3.Filter, form3.SeenCount, u"枚");
}

}  // namespace

void AttachSlideList(Application& app) {
    AttachLife(app);
    AttachButtons(app);
    AttachAdding(app);
    AttachRows(app);
    AttachSelection(app);
    AttachCheckBoxes(app);
    AttachCommit(app);
    AttachDocuments(app);
    AttachLinkedText(app);
    AttachLinkedSound(app);
    AttachDoubleClick(app);
    AttachRunFromSelection(app);
    AttachCopies(app);
    AttachRowFaces(app);
    AttachHistory(app);
    AttachRelink(app);
    AttachListAbilities(app);
}

}  // namespace authoring
