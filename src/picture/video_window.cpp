#include "picture/video_window.h"

#include "model/controls.h"
#include "model/monitors.h"
#include "model/picture_controls.h"
#include "model/windows/slide_list.h"
#include "model/windows/video_window.h"
#include "picture/film_place.h"
#include "picture/screen.h"

namespace picture {

namespace {

using platform::VideoState;

constexpr int kSizeLimitMs = 300;

void Move(model::VisibleControl& control, const platform::Rect& pixels) {
    constexpr int k = platform::kTwipsPerPixel;
    control.Left = pixels.x * k;
    control.Top = pixels.y * k;
    control.Width = pixels.width * k;
    control.Height = pixels.height * k;
}

FilmRule RuleOf(Application& app) {
    constexpr int k = platform::kTwipsPerPixel;
    model::ShowState& state = app.state;
    FilmRule rule;
    rule.slide = app.windows.form24.purpose == model::Form24::Purpose::Slide;
    rule.fullScreen = state.FullScreenActive == 1;
    rule.ownSize = app.platform.settings.filmsKeepTheirSize;
    const platform::Rect twips = model::MonitorTwips(
        app, rule.fullScreen ? state.MonitorIndex : model::MonitorOfMainWindow(app));
    rule.monitor = {twips.x / k, twips.y / k, twips.width / k, twips.height / k};
    return rule;
}

void Place(Application& app) {
    model::Form24& form24 = app.windows.form24;
    FilmRule rule = RuleOf(app);
    rule.own = form24.placedFor = app.platform.video.NaturalSize();
    const FilmPlace place = PlaceFilm(rule);
    Move(form24.WindowsMediaPlayer1, place.film);
    Move(form24, place.window);
}

void ClosePlayer(Application& app) {
    app.platform.video.SetLoop(false);
    app.platform.video.Close();
}

void CloseWindow(Application& app) {
    ClosePlayer(app);
    app.windows.form24.Unload();
}

void Form_Load(Application& app) {
    model::Form24& form24 = app.windows.form24;
    const FilmRule rule = RuleOf(app);
    if (!rule.slide || !rule.fullScreen || rule.ownSize) {
        // Its size comes from the film's, and is not to change before the person's eyes.
        app.platform.video.AwaitSize(kSizeLimitMs);
    }
    Place(app);
    form24.Timer1.Enabled = true;
    form24.Timer2.Enabled = true;
    app.windows.form3.Timer1.Enabled = false;
}

void Form_Activate(Application& app) {
    Place(app);
    if (app.state.VideoCloseRequest == 1) {
        app.windows.form24.Unload();
    } else {
        app.platform.video.Play();
    }
}

/// Other routines can close the window, too: no video may play on without it.
void Form_Unload(Application& app) {
    model::ShowState& state = app.state;
    model::Form24& form24 = app.windows.form24;
    form24.Timer1.Enabled = false;
    form24.Timer2.Enabled = false;
    if (app.platform.video.Status() != VideoState::Nothing) {
        ClosePlayer(app);
    }
    app.windows.form3.Timer1.Enabled = true;
    state.MacroMovieActive = 0;
    state.VideoStarted = 0;
    state.VideoCloseRequest = 0;
}

void TellFailure(Application& app) {
    app.platform.dialogs.Message(u"以下の動画が再生できません。" +
                                     app.windows.form24.WindowsMediaPlayer1.URL() +
                                     u"\r\n動画ファイルを確認してください。",
                                 platform::kExclamation, u"動画再生エラー");
    app.state.VideoStoppedByUser = 1;
}

/// True when the window was closed.
bool FollowPlayer(Application& app) {
    model::ShowState& state = app.state;
    const VideoState status = app.platform.video.Status();
    if (status == VideoState::Ready && state.VideoStarted == 0) {
        TellFailure(app);
        CloseWindow(app);
        return true;
    }
    if (status == VideoState::Playing) {
        state.VideoStarted = 1;
    }
    if (app.platform.video.NaturalSize() != app.windows.form24.placedFor) {
        Place(app);
    }
    const bool ended = status == VideoState::Ready || status == VideoState::Stopped ||
                       status == VideoState::Paused;
    const bool closesItself =
        app.windows.form24.WindowsMediaPlayer1.uiMode() == u"none" && state.MacroMovieActive == 0;
    if ((ended && closesItself) || state.VideoCloseRequest == 1) {
        CloseWindow(app);
        return true;
    }
    return false;
}

/// Off meanwhile: the box about a failure lets timers run.
void Timer1_Tick(Application& app) {
    model::Timer& timer = app.windows.form24.Timer1;
    timer.Enabled = false;
    if (!FollowPlayer(app)) {
        timer.Enabled = app.windows.form24.Loaded();
    }
}

void Form_Click(Application& app) {
    if (!app.windows.form24.Timer2.Enabled) {
        app.state.VideoCloseRequest = 1;
    }
}

void Form_KeyDown(Application& app, int code) {
    if (code == model::kKeyEscape) {
        app.state.VideoCloseRequest = 1;
    }
}

void Player_KeyDown(Application& app, int code) {
    if (code == model::kKeyEscape || code == model::kKeyEnter) {
        app.state.VideoCloseRequest = 1;
        app.state.VideoStoppedByUser = 1;
    }
}

void OpenFile(Application& app, const Text& path, model::Form24::Purpose purpose) {
    app.windows.form24.Unload();
    app.windows.form24.purpose = purpose;
    model::Player& player = app.windows.form24.WindowsMediaPlayer1;
    player.uiMode = u"none";
    player.URL = path;
    app.platform.video.SetUrl(path);
}

}  // namespace

void AttachVideoWindow(Application& app) {
    model::Form24& form24 = app.windows.form24;
    form24.OnLoad = [&app] { Form_Load(app); };
    form24.OnActivate = [&app] { Form_Activate(app); };
    form24.OnUnload = [&app] { Form_Unload(app); };
    form24.Timer1.Tick = [&app] { Timer1_Tick(app); };
    form24.Timer2.Tick = [&form24] { form24.Timer2.Enabled = false; };
    form24.Click = [&app] { Form_Click(app); };
    form24.WindowsMediaPlayer1.Click = [&app] { Form_Click(app); };
    form24.KeyDown = [&app](int code) { Form_KeyDown(app, code); };
    form24.WindowsMediaPlayer1.KeyDown = [&app](int code) { Player_KeyDown(app, code); };
    model::Timer& guard = app.windows.form3.Timer1;
    guard.Tick = [&guard] { guard.Enabled = false; };
}

void PlayVideo(Application& app, const Text& path) {
    OpenFile(app, path, model::Form24::Purpose::Slide);
    app.state.VideoStoppedByUser = 0;
    app.windows.form24.ShowModal(app.platform.loop);
}

void ShowVideo(Application& app, const Text& path) {
    OpenFile(app, path, model::Form24::Purpose::Beside);
    app.windows.form24.Show();
}

void ShowMacroMovie(Application& app, const Text& path, int mode) {
    if (path.empty()) {
        CloseWindow(app);
        return;
    }
    OpenFile(app, path, model::Form24::Purpose::Beside);
    app.windows.SetPointer(model::kPointerNormal);
    app.platform.video.SetLoop(mode == static_cast<int>(MacroMovie::Loop));
    if (!app.platform.files.Exists(path)) {
        return;  // a macro says nothing of what is missing, and must not wait for it
    }
    switch (static_cast<MacroMovie>(mode)) {
        case MacroMovie::Open:
        case MacroMovie::Loop:
            app.state.MacroMovieActive = 1;
            app.windows.form24.Show();
            break;
        case MacroMovie::Modal:
            app.windows.form24.ShowModal(app.platform.loop);
            break;
        default:
            break;
    }
}

}  // namespace picture
