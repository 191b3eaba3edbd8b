#include "authoring/link_list/run.h"

#include "authoring/link_list/links.h"
#include "model/windows/link_list.h"
#include "playback/full_screen.h"
#include "playback/link_run.h"
#include "playback/run.h"

namespace authoring {

namespace {

/// From the row (from 0) on, in the full screen, which comes back to this window.
void RunChain(Application& app, int row) {
    model::ShowState& state = app.state;
    playback::EndRun(app);
    state.LinkWindowOpen = 1;
    state.LinkRunning = 1;
    state.LinkStart = static_cast<int16_t>(row + 1);
    app.windows.form9.Hide();
    playback::StartFullScreen(app);
}

void Command1_Click(Application& app) {
    if (StoppedWork(Links(app))) {
        return;
    }
    playback::TakeLinkRows(app);
    if (app.state.LinkList(1).empty() || playback::RefusedByListWindow(app)) {
        return;
    }
    if (app.platform.dialogs.Message(u"ＫＶＳリンクをスタートしますか ?"
                                     u"\r\n（リスト上のkvsファイルをリンクして実行します。）",
                                     platform::kYesNoQuestion,
                                     u"ＫＶＳリンク") == platform::Answer::Yes) {
        RunChain(app, 0);
    }
}

void RunFromRow(Application& app, int row) {
    if (!playback::RefusedByListWindow(app)) {
        playback::TakeLinkRows(app);
        RunChain(app, row);
    }
}

void List1_DblClick(Application& app) {
    const model::ListBox& list = app.windows.form9.List1;
    if (!StoppedWork(Links(app)) && !list.List(list.ListIndex).empty()) {
        RunFromRow(app, list.ListIndex);
    }
}

void Command13_Click(Application& app) {
    if (StoppedWork(Links(app))) {
        return;
    }
    if (const auto row = AskForOneRow(app, app.windows.form9.List1, u"選択実行不可")) {
        RunFromRow(app, *row);
    }
}

}  // namespace

void ShowWhereChainStood(Application& app) {
    model::ListBox& list = app.windows.form9.List1;
    const int row = app.state.LinkStoodAt - 1;
    app.state.LinkStoodAt = 0;
    if (row < 0 || row >= list.ListCount()) {
        return;
    }
    list.SelectRows(0, list.ListCount(), false);
    list.Select(row, true);
    list.ListIndex = row;
    list.TopIndex = row;
}

void AttachLinkRun(Application& app) {
    model::Form9& form9 = app.windows.form9;
    form9.Command1.Click = [&app] { Command1_Click(app); };
    form9.Command13.Click = [&app] { Command13_Click(app); };
    form9.List1.DblClick = [&app] { List1_DblClick(app); };
}

}  // namespace authoring
