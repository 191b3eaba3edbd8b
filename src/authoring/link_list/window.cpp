#include "authoring/link_list/window.h"

#include "authoring/link_list/documents.h"
#include "authoring/link_list/links.h"
#include "authoring/link_list/row_faces.h"
#include "authoring/link_list/rows.h"
#include "authoring/link_list/run.h"
#include "authoring/shared/file_browser.h"
#include "model/monitors.h"
#include "model/windows/link_list.h"
#include "model/windows/main_window.h"
#include "playback/link_run.h"

namespace authoring {

namespace {

constexpr int16_t kMostLinks = 999;

void Form_Load(Application& app) {
    model::Form9& form9 = app.windows.form9;
    app.state.LinkListLimit = kMostLinks;
    model::CentreOnMonitor(app, form9);
    form9.File1.Pattern = u"*.kvs";
    form9.Label1.Visible = false;
    form9.Stop.Visible = false;
    OpenBrowser(app, form9.Drive1, form9.Dir1, form9.File1, app.platform.folders.Home());
}

void Form_Activate(Application& app) {
    model::Form9& form9 = app.windows.form9;
    form9.Dir1.Refresh();
    form9.File1.Refresh();
    app.state.LinkListDirty = 1;
    ShowWhereChainStood(app);
}

void BackToMainWindow(Application& app) {
    app.state.LinkWindowOpen = 0;
    playback::TakeLinkRows(app);
    app.windows.form1.Show();
    app.windows.form9.Hide();
}

void Command2_Click(Application& app) {
    if (!StoppedWork(Links(app))) {
        BackToMainWindow(app);
    }
}

/// Work is stopped first, but nothing holds up the end of the program.
void Form_QueryUnload(Application& app, bool& stay) {
    stay = StoppedWork(Links(app)) && !app.windows.form1.Unloading();
}

void Form_Unload(Application& app) {
    if (app.windows.form1.Unloading()) {
        return;
    }
    model::Form9& form9 = app.windows.form9;
    if (app.state.LinkListDirty == 1 && form9.List1.ListCount() > 0) {
        if (app.platform.dialogs.Message(u"ＫＶＳリンクリストを保存しますか ?",
                                         platform::kYesNoQuestion,
                                         u"ＫＶＳリンク") == platform::Answer::Yes) {
            SaveLinkDocument(app);
        }
        form9.Caption = Text(model::Form9::kFirstCaption);
    }
    app.state.LinkListDirty = 0;
    BackToMainWindow(app);
}

void Check1_Click(Application& app) {
    const int value = app.windows.form9.Check1.Value;
    app.state.LinkAutoFlag = static_cast<int16_t>(value);
    if (value == 1 && app.state.LinkListDirty == 1) {
        app.platform.dialogs.Message(
            u"パラピコ再立ち上げ時に自動的にＫＶＳリンクをスタートします。", platform::kPlain,
            u"ＫＶＳリンクオートスタートあり");
    }
}

void AttachLife(Application& app, const std::function<void()>& lookAgain) {
    model::Form9& form9 = app.windows.form9;
    AttachBrowser(form9.Drive1, form9.Dir1, form9.File1);
    form9.OnLoad = [&app] { Form_Load(app); };
    form9.OnActivate = [&app, lookAgain] {
        Form_Activate(app);
        lookAgain();
    };
    form9.OnPaint = [&app] { app.state.LinkListDirty = 1; };
    form9.OnQueryUnload = [&app](bool& stay) { Form_QueryUnload(app, stay); };
    form9.OnUnload = [&app] { Form_Unload(app); };
}

}  // namespace

void AttachLinkList(Application& app) {
    model::Form9& form9 = app.windows.form9;
    AttachLife(app, AttachLinkFaces(app));
    AttachLinkRows(app);
    AttachLinkDocuments(app);
    AttachLinkRun(app);
    form9.Check1.Click = [&app] { Check1_Click(app); };
    form9.Check2.Click = [&app, &form9] {
        app.state.LinkRepeat = static_cast<int16_t>(form9.Check2.Value);
    };
    form9.Check3.Click = [&app, &form9] {
        app.state.LinkCheck3 = static_cast<int16_t>(form9.Check3.Value);
    };
    form9.Command2.Click = [&app] { Command2_Click(app); };
    form9.Command9.Click = [&form9] { form9.WindowState = model::kWindowMaximised; };
    form9.Command10.Click = [&form9] { form9.WindowState = model::kWindowNormal; };
}

}  // namespace authoring
