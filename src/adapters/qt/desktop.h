// The desktop as the program meets it: event loop, boxes, monitors, text, and the windows that a
// person sees.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "adapters/qt/end_watch.h"
#include "model/windows.h"
#include "platform/dialogs.h"
#include "platform/event_loop.h"
#include "platform/monitors.h"
#include "platform/program_answer.h"
#include "platform/video.h"

class QWidget;

namespace qt_adapter {

class Desktop {
public:
    struct Options {
        /// No display is touched: windows exist, are laid out and can be grabbed.
        bool offscreen = false;
        /// Monitors to report instead of the real ones, in physical pixels. Empty: the real ones.
        std::vector<platform::Rect> screens;
    };

    /// Makes the application object unless the process has one already; `argc` and `argv` must
    /// outlive the desktop. At most one desktop at a time.
    Desktop(int& argc, char** argv, const Options& options);
    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;
    ~Desktop();

    platform::EventLoop& Loop();
    /// Runs the call on this thread, from the event loop, some time later. Any thread; not any
    /// more once the desktop is gone.
    void Post(std::function<void()> call);
    platform::Dialogs& Dialogs();
    platform::Monitors& Monitors();
    /// Asks whether the show may start a program.
    platform::ProgramAnswer AskProgram(const platform::ProgramQuestion& question);
    /// Works without any window.
    platform::TextRenderer& TextRenderer();

    /// From now on the program is left or saved when its end comes from outside; see end_watch.h.
    void WatchEnd(Ending ending);
    /// Signals end the process again. Call it before what the ending uses goes.
    void UnwatchEnd();

    /// From now on every window that has a form is shown as its model says, and what a person does
    /// with it reaches the model. `windows` must outlive the views. Windows without a form are
    /// passed over.
    /// `video`: what players show; it must outlive the views too. Null: players stay black.
    void MakeViews(model::Windows& windows, platform::Video* video = nullptr);
    /// Takes the windows off the screen; the model notices nothing. Call it before the
    /// model goes. Nothing happens without views.
    void UnmakeViews();

    /// Writes a PNG of what a person would see of the window, shown or not. No handler of the
    /// model runs. False when the window has no view or the file cannot be written.
    bool Shot(model::Window& window, const std::string& file);
    /// Two picture files of the same size and pixels; false also when one cannot be read.
    static bool SamePixels(const std::string& file, const std::string& other);

    /// Opens the text in the desktop's own editor. False where the desktop has none.
    static bool OpenText(TextView path);

    /// The window's widget, made if need be; null without a view.
    QWidget* WidgetOf(model::Window& window);

private:
    struct Parts;
    std::unique_ptr<Parts> parts_;
};

}  // namespace qt_adapter
