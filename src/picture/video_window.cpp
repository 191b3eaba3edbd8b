#include "picture/video_window.h"

#include <algorithm>

#include "picture/screen.h"

namespace picture {

namespace {

using platform::VideoState;

constexpr int kKeyEnter = 13;
constexpr int kKeyEscape = 27;

void Centre(Application& app) {
    FillMonitorTable(app);
    const platform::Rect monitor = MonitorTwips(app, MonitorOfMainWindow(app));
    model::Form24& form24 = app.windows.form24;
    form24.Width = std::min(form24.Width(), monitor.width);
    form24.Height = std::min(form24.Height(), monitor.height);
    form24.Left = monitor.x + (monitor.width - form24.Width) / 2;
    form24.Top = monitor.y + (monitor.height - form24.Height) / 2;
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
    Centre(app);
    form24.Timer1.Enabled = true;
    form24.Timer2.Enabled = true;
    app.windows.form3.Timer1.Enabled = false;
}

void Form_Activate(Application& app) {
    Centre(app);
    if (app.state.VideoCloseRequest == 1) {
        app.windows.form24.Unload();
    } else {
        app.platform.video.Play();
    }
}

/// The window can go by other roads than its own: no video goes on unseen.
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
    if (code == kKeyEscape) {
        app.state.VideoCloseRequest = 1;
    }
}

void Player_KeyDown(Application& app, int code) {
    if (code == kKeyEscape || code == kKeyEnter) {
        app.state.VideoCloseRequest = 1;
        app.state.VideoStoppedByUser = 1;
    }
}

void OpenFile(Application& app, const Text& path) {
    app.windows.form24.Unload();
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
    OpenFile(app, path);
    app.state.VideoStoppedByUser = 0;
    app.windows.form24.ShowModal(app.platform.loop);
}

void ShowVideo(Application& app, const Text& path) {
    OpenFile(app, path);
    app.windows.form24.Show();
}

void ShowMacroMovie(Application& app, const Text& path, int mode) {
    if (path.empty()) {
        CloseWindow(app);
        return;
    }
    OpenFile(app, path);
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
