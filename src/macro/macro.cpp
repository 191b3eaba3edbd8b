#include "macro/macro.h"

#include "macro/buttons.h"
#include "macro/cutouts.h"
#include "macro/jump_exit.h"
#include "macro/reader.h"
#include "macro/text_words.h"
#include "model/windows/slide_screen.h"
#include "text/paths.h"

namespace macro {

namespace {

void ResetForSlide(Run& run) {
    model::ShowState& state = run.state;
    for (auto flag : {&model::ShowState::MacroButtonsShown, &model::ShowState::MacroJumpChosen,
                      &model::ShowState::MacroNextPressed, &model::ShowState::MacroBackPressed,
                      &model::ShowState::OverPicMode, &model::ShowState::PicPbType}) {
        state.*flag = 0;
    }
    state.TextOriginX = state.TextOriginScreen == 0 ? state.PictureX : 0;
    state.TextOriginY = state.TextOriginScreen == 0 ? state.PictureY : 0;
    state.MenuJump.fill(0);
    ResetTextOfSlide(run);
}

/// ".txt" in place of the last four characters; empty for a path that is shorter.
Text WithTextKind(Text path) {
    return path.size() < 4 ? Text() : path.replace(path.size() - 4, 4, u".txt");
}

}  // namespace

Text MacroFile(const Application& app) {
    const model::ShowState& state = app.state;
    return WithTextKind(state.LinkedFolderFlag == 0
                            ? state.SlideList(state.SlideIndex)
                            : text::WithSeparator(state.LinkedFolder) + state.CurrentName);
}

Text MacroFile(const Application& app, TextView slide) {
    const model::ShowState& state = app.state;
    return WithTextKind(state.LinkedFolderFlag == 0
                            ? Text(slide)
                            : text::WithSeparator(state.LinkedFolder) + text::BareName(slide));
}

void RunTextMacro(Application& app) {
    if (app.state.TextMacroFlag == 1 || app.state.ShowAbort == 1) {
        return;
    }
    Run run(app);
    ResetForSlide(run);
    std::string bytes;
    platform::FileError error;
    const Text path = MacroFile(app);
    if (path.empty() || !app.platform.files.Read(path, bytes, error)) {
        return;
    }
    KeepBackground(app);
    run.source = text::DecodeHandWrittenFile(bytes, app.platform.codePage);
    if (ReadLines(run) == Flow::Jump && !model::StepOutlived(app.state)) {
        LeaveSlide(run);
    }
}

void KeepBackground(Application& app) {
    if (InFullScreen(app.state)) {
        CopyLayer(app.windows.slidescreen.P3, app.windows.slidescreen.P4);
    }
}

void ClearMacroObjects(Application& app) {
    HideButtons(app);
    for (int index = 0; index <= kLastCutout; ++index) {
        RemoveObject(app, index);
    }
}

void ResetShowSettings(Application& app) {
    model::ShowState& state = app.state;
    for (auto setting : {&model::ShowState::BorderColorIndex, &model::ShowState::LineSpaceExtra,
                         &model::ShowState::OverlayFrameOff, &model::ShowState::Mp3VolumeOffset,
                         &model::ShowState::PicturePositionFixed}) {
        state.*setting = 0;
    }
    state.OverlayBackText.clear();
    state.PictureScale = 0;
    model::RestoreTextOrigin(state);
}

}  // namespace macro
