#include "authoring/slide_list/commit.h"

#include "authoring/shared/browser_memory.h"
#include "authoring/slide_list/linked_work.h"
#include "authoring/slide_list/preview.h"
#include "authoring/slide_list/selection.h"
#include "authoring/slide_list/stopped_search.h"
#include "document/slide_rows.h"
#include "model/windows/main_window.h"
#include "model/windows/slide_list.h"
#include "playback/prepare.h"
#include "playback/run.h"

namespace authoring {

namespace {

void Command1_Click(Application& app) {
    if (!StoppedSearch(app)) {
        RememberFolder(app, app.windows.form3.Dir1.Path());
        CommitSlideList(app);
    }
}

void Command2_Click(Application& app) {
    if (StoppedSearch(app)) {
        return;
    }
    StopLinkedWork(app);
    document::RevertSlideRows(app);
    DisableSlideButtons(app);
    ClearPreview(app);
    playback::SetButtons(app, playback::Buttons::Idle);
    BackToMainWindow(app);
}

}  // namespace

void CommitSlideList(Application& app) {
    document::CommitSlides(app);
    playback::EndRun(app);
    playback::PrepareStart(app, false);
    BackToMainWindow(app);
}

void BackToMainWindow(Application& app) {
    app.state.SlideListWindowOpen = 0;
    app.windows.form1.Show();
    app.windows.form3.Hide();
}

void AttachCommit(Application& app) {
    app.windows.form3.Command1.Click = [&app] { Command1_Click(app); };
    app.windows.form3.Command2.Click = [&app] { Command2_Click(app); };
}

}  // namespace authoring
