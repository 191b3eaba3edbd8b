#include "app/start_up.h"

#include <cerrno>

#include "app/dropped_files.h"
#include "app/exit.h"
#include "app/keep_awake.h"
#include "app/link_start.h"
#include "app/main_menus.h"
#include "app/play_menu.h"
#include "app/slide_count.h"
#include "app/timers.h"
#include "app/title_screen.h"
#include "app/window_size.h"
#include "authoring/attach.h"
#include "authoring/shared/window_memory.h"
#include "authoring/slide_list/signs.h"
#include "document/link_document.h"
#include "document/settings_to_controls.h"
#include "document/show_document.h"
#include "document/slide_rows.h"
#include "document/state_files.h"
#include "macro/macro.h"
#include "model/controls.h"
#include "model/monitors.h"
#include "model/windows/link_list.h"
#include "model/windows/main_window.h"
#include "model/windows/picture_holder.h"
#include "model/windows/slide_list.h"
#include "model/windows/slide_screen.h"
#include "model/windows/sound_list.h"
#include "picture/screen.h"
#include "picture/video_window.h"
#include "playback/control_box.h"
#include "playback/full_screen.h"
#include "playback/prepare.h"
#include "playback/run.h"
#include "playback/transport.h"
#include "text/numbers.h"
#include "text/paths.h"

namespace app {

namespace {

constexpr int kHeightWithoutMargin = 8200;  // twips

Text BeforeQuote(TextView command) {
    return Text(command.substr(0, command.find(u'"')));
}

Text FromDriveLetter(TextView command) {
    const size_t colon = text::InStr(command, u":");
    return colon > 1 ? text::Mid(command, colon - 1) : Text(command);
}

void MakeImagingControls(Application& app) {
    app.windows.form4.Lead1.imaging = app.platform.imaging.MakeControl();
    app.windows.form4.Lead2.imaging = app.platform.imaging.MakeControl();
    app.state.LeadVersion =
        text::ToInt16(text::SafeNumber(text::Right(app.platform.imaging.VersionText(), 4)))
            .value_or(0);
}

void FindMonitors(Application& app) {
    model::FillMonitorTable(app);
    errno = 0;
    const std::vector<platform::Rect> monitors = app.platform.monitors.Enumerate();
    const int error = errno;
    for (const platform::Rect& monitor : monitors) {
        if (monitor.Empty()) {
            app.platform.dialogs.Message(u"APIｴﾗｰｺｰﾄﾞ = " + text::FromUtf8(std::to_string(error)),
                                         platform::kStop, u"パラピコ");
        }
    }
}

void ClearMacroSlots(Application& app) {
    macro::ClearMacroObjects(app);
    for (auto& slot : app.windows.form1.Picture2) {
        slot->BackColor = model::kSystemButtonColor;
    }
}

void SetStartButtons(Application& app) {
    model::Form1& form1 = app.windows.form1;
    for (model::Button* button : {&form1.Command1, &form1.Command2, &form1.Command3,
                                  &form1.Command4, &form1.Command5, &form1.Command7}) {
        button->Enabled = false;
    }
    for (model::Button* button : {&form1.Command6, &form1.Command10, &form1.Command11}) {
        button->Enabled = true;
    }
}

void CentreOnScreen(Application& app) {
    model::Centre(app.windows.form1, model::MonitorTwips(app, app.state.PrimaryMonitor));
}

void SetDefaults(Application& app) {
    model::ZeroReset(app.state);
    MakeImagingControls(app);
    app.windows.form1.Timer1.Enabled = false;
    app.state.AppFolder = app.platform.system.AppFolder();
    app.windows.form1.Label1.Caption = Text();
    app.windows.slidescreen.Label1.Caption = Text();
    model::SetStartDefaults(app.state);
    playback::SetSlideInterval(app);
    document::FollowAllSettings(app);
}

void ReadStateFiles(Application& app) {
    app.state.ReadingDocument = 1;
    document::ReadSoundListFile(app);
    app.state.ReadingDocument = 0;
    document::ReadLinkStateFile(app);
    document::ReadStateFile(app);
    app.state.StateAtHand = true;
}

void ReadCommandLineDocument(Application& app) {
    model::ShowState& state = app.state;
    state.LoadingFromStart = 1;
    if (state.CommandLineKind > 0) {
        state.BaseFolder = text::FolderPart(state.CommandLineArg);
    }
    if (state.CommandLineKind == 1) {
        document::ReadShowDocument(app, state.CommandLineArg);
    } else if (state.CommandLineKind == 2) {
        document::ReadLinkDocument(app, state.CommandLineArg);
    }
    state.LoadingFromStart = 0;
}

void TakeLinkListAtStart(Application& app) {
    const model::ShowState& state = app.state;
    const bool automatic = app.windows.form9.List1.ListCount() > 0 && state.LinkAutoFlag == 1 &&
                           state.CommandLineKind == 0;
    if (automatic || state.CommandLineKind == 2) {
        TakeLinkList(app);
    }
}

bool StartsByItself(const Application& app) {
    const model::ShowState& state = app.state;
    if (state.CommandLineKind == 2 && state.LinkRunning != 1 &&
        app.windows.form3.List1.ListCount() > 0) {
        return false;  // a list without shows does not start that of the last session
    }
    return (app.windows.form3.List1.ListCount() > 0 && state.AutoStartFlag == 0) ||
           (app.windows.form9.List1.ListCount() > 0 && state.LinkAutoFlag == 1) ||
           state.CommandLineKind > 0;
}

void StartInFullScreen(Application& app) {
    model::ShowState& state = app.state;
    document::CountSlides(app);
    state.SplashDone = 1;
    picture::SizePreview(app);
    app.windows.form1.Hide();
    state.FullScreenActive = 1;
    state.IgnoreNextResize = 1;
    playback::PlaceFullScreen(app);
    app.windows.slidescreen.Show();
}

void Form1_Load(Application& app, bool roomy) {
    model::ShowState& state = app.state;
    state.PrimaryMonitor = 0;
    FindMonitors(app);
    state.MainBottomMargin = app.windows.form1.Height - kHeightWithoutMargin;
    ClearMacroSlots(app);
    SetDefaults(app);
    // After the margin, which belongs to the window as it is declared.
    RestoreWindowSize(app, roomy);
    CentreOnScreen(app);
    SetStartButtons(app);
    ReadStateFiles(app);
    if (app.platform.system.PreviousInstance() && state.AllowDuplicate == 1) {
        throw platform::ProgramEnd{};
    }
    ReadCommandLineDocument(app);
    document::FollowAllSettings(app);
    if (app.windows.form3.List1.ListCount() > 0) {
        app.windows.form1.Command1.Enabled = true;
        app.windows.form1.Command4.Enabled = true;
        document::CountSlides(app);
    }
    TakeLinkListAtStart(app);
    // Decoded while the windows are built.
    if (StartsByItself(app)) {
        playback::PrepareStart(app, true);
    }
}

void Form1_Resize(Application& app) {
    if (app.state.IgnoreNextResize == 1) {
        app.state.IgnoreNextResize = 0;
        return;
    }
    NoteWindowSize(app);
    picture::SizePreview(app);
    ShowTitleScreen(app);
}

void Form1_Activate(Application& app) {
    document::FollowMenuVisibility(app);
    picture::SizePreview(app);
}

}  // namespace

CommandLine ReadCommandLine(TextView commandText) {
    Text command = text::LTrim(commandText);
    if (command.starts_with(u"\"/")) {
        command = BeforeQuote(TextView(command).substr(1));
    } else if (!text::IsNativePath(command)) {
        command = BeforeQuote(FromDriveLetter(command));
    }
    CommandLine result;
    result.argument = text::LTrim(command);
    const Text kind = text::KindOf(result.argument);
    result.kind = kind == u"KVS" ? 1 : kind == u"KVL" ? 2 : 0;
    return result;
}

void RunProgram(Application& application, const StartOptions& options) {
    model::Form1& form1 = application.windows.form1;
    TimerRunner timers(application);
    const KeepAwake keepAwake(application);
    const SlideCount slideCount(application);
    const CommandLine command = ReadCommandLine(options.commandText);
    application.state.CommandLineArg = command.argument;
    application.state.CommandLineKind = command.kind;
    application.state.SplashDone = options.title ? 0 : 1;
    playback::AttachTransport(application);
    playback::AttachFullScreen(application);
    playback::AttachControlBox(application);
    picture::AttachVideoWindow(application);
    AttachMainMenus(application);
    authoring::AttachWindows(application);
    const authoring::SlideListSigns slideListSigns(application);
    const authoring::WindowMemory windowMemory(
        application, {&application.windows.form3, &application.windows.form10});
    const PlayMenu playMenu(application);
    AttachDroppedFiles(application);
    form1.OnLoad = [&] { Form1_Load(application, options.roomy); };
    form1.OnResize = [&] { Form1_Resize(application); };
    form1.OnActivate = [&] { Form1_Activate(application); };
    form1.OnUnload = [&] {
        KeepWindowSize(application);
        ExitProgram(application);
    };
    form1.Load();
    if (StartsByItself(application)) {
        StartInFullScreen(application);
    } else {
        form1.Show();
        playback::PrepareStart(application, false);
    }
    application.platform.loop.RunUntil([] { return false; });
    throw platform::ProgramEnd{};
}

}  // namespace app
