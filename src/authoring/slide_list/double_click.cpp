#include "authoring/slide_list/double_click.h"

#include <array>

#include "authoring/shared/open_window.h"
#include "authoring/slide_list/linked_sound.h"
#include "authoring/slide_list/linked_text.h"
#include "authoring/slide_list/linked_work.h"
#include "authoring/slide_list/selection.h"
#include "model/monitors.h"
#include "model/windows/declared_windows.h"
#include "model/windows/picture_holder.h"
#include "model/windows/slide_list.h"
#include "picture/fit.h"
#include "picture/video_window.h"

namespace authoring {

namespace {

constexpr int kFullColour = 24;  // bits per pixel
constexpr int kReadableFile = 1;

/// Kept: the folder of linked files does not count here, though it does for what is made or
/// deleted afterwards.
Text Beside(TextView slide, TextView ending) {
    return Text(slide.substr(0, slide.size() < 4 ? 0 : slide.size() - 4)) + Text(ending);
}

bool CanBeOpened(Application& app, const Text& path) {
    return app.platform.files.Readable(path) == kReadableFile;
}

void OfferRecording(Application& app, const Text& slide) {
    const Text sound = Beside(slide, u".wav");
    if (app.platform.dialogs.Message(sound + u"\r\nの画像連動効果音を録音しますか ?",
                                     platform::kYesNoQuestion,
                                     u"効果音録音") == platform::Answer::Yes) {
        RecordLinkedSound(app, slide);
    } else if (CanBeOpened(app, sound)) {
        AskToDeleteLinkedSound(app, slide, LinkedSound::Wav, sound);
    }
}

void OfferText(Application& app, const Text& slide) {
    const Text path = Beside(slide, u".txt");
    if (AskForLinkedText(app, path)) {
        MakeLinkedText(app, slide);
    } else if (CanBeOpened(app, path)) {
        AskToDeleteLinkedText(app, slide, path);
    }
}

void ShowFilm(Application& app, const Text& slide) {
    model::Timer& guard = app.windows.form3.Timer1;
    if (guard.Enabled) {
        return;
    }
    app.platform.video.SetLoop(false);
    guard.Enabled = true;
    picture::ShowVideo(app, slide);
}

/// Into the imaging control and the box of Form7, as large as the monitor in use lets it be.
bool LoadDetail(Application& app, const Text& slide) {
    const platform::Rect monitor = model::MonitorTwips(app, model::MonitorOfMainWindow(app));
    picture::FitRule rule;
    rule.fullScreen = true;
    rule.sizeAdjust = app.state.SizeAdjust;
    rule.areaTwips = {monitor.width, monitor.height};
    const auto fitted = [rule](platform::Size own) {
        return picture::FittedSize(rule, own).value_or(own);
    };
    platform::ImagingControl& control = *app.windows.form4.Lead1.imaging;
    if (!control.Load(slide, fitted)) {
        return false;
    }
    if (control.BitsPerPixel() != kFullColour) {
        control.SetColorResolution(kFullColour, 0, 0, 0);
    }
    const platform::Size size = fitted(control.HeldSize());
    if (!(size == control.HeldSize())) {
        control.Resize(size.width, size.height, 0);
    }
    app.windows.form7.Picture1.SetPicture(control.Picture());
    app.windows.form7.Picture1.Visible = true;
    return true;
}

void ShowPictureDetail(Application& app, const Text& slide) {
    app.windows.SetPointer(model::kPointerBusy);
    const bool loaded = LoadDetail(app, slide);
    app.windows.SetPointer(model::kPointerNormal);
    if (loaded) {
        OpenWindow(app, app.windows.form7);
    } else {
        app.platform.dialogs.Message(u"画像ファイルが表示できません。", platform::kExclamation,
                                     u"画像ファイルエラー");
    }
}

void ShowDetail(Application& app, const Text& slide) {
    if (text::IsVideoKind(slide)) {
        ShowFilm(app, slide);
    } else {
        ShowPictureDetail(app, slide);
    }
}

void DoNothing(Application&, const Text&) {}

using Flags = std::array<int16_t, 4>;

struct Function {
    Flags flags;  // ListCheck1Flag and those of Check2, Check3, Check4
    void (*run)(Application& app, const Text& slide);
};
constexpr Function kFunctions[] = {
    {{0, 1, 0, 0}, OfferRecording}, {{0, 0, 0, 1}, OfferText}, {{0, 0, 0, 0}, DoNothing}};

void List1_DblClick(Application& app) {
    const model::ShowState& state = app.state;
    model::Form3& form3 = app.windows.form3;
    const int current = RowInSight(app);
    const Text slide = form3.List1.List(current);
    if (slide.empty()) {
        return;
    }
    app.windows.form7.Picture1.Visible = false;
    DisableLinkedFileButtons(app);
    StopLinkedWork(app);
    form3.List1.Select(current, false);
    form3.List2.Select(current, false);
    const Flags flags{state.ListCheck1Flag, state.ListDblClickRecord, state.ListDblClickWallpaper,
                      state.ListDblClickText};
    for (const Function& function : kFunctions) {
        if (function.flags == flags) {
            return function.run(app, slide);
        }
    }
    ShowDetail(app, slide);
}

}  // namespace

void AttachDoubleClick(Application& app) {
    model::Form3& form3 = app.windows.form3;
    form3.List1.DblClick = [&app] { List1_DblClick(app); };
    form3.Image1.Click = [&app] {
        if (app.windows.form3.Image1.Picture()) {
            List1_DblClick(app);
        }
    };
}

}  // namespace authoring
