// A show under test: slides with pictures, the transport attached, timers on the virtual clock.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "app/timers.h"
#include "model/controls.h"
#include "model/windows/main_window.h"
#include "model/windows/slide_list.h"
#include "model/windows/slide_screen.h"
#include "picture/screen.h"
#include "picture/video_window.h"
#include "playback/control_box.h"
#include "playback/full_screen.h"
#include "playback/run.h"
#include "playback/slide_step.h"
#include "playback/transport.h"
#include "support/fake_platform.h"

namespace playback_tests {

using Numbers = std::vector<int>;
using Texts = std::vector<Text>;

/// Starts idle at 2026-01-01 12:00:00 with slides of 10 × 10 pixels named C:\pic\1.png and on.
/// Settings are the start defaults: 3 s, repeat, list order, no sound, no macros, main window.
class Show : public fakes::FakePlatform {
public:
    model::ShowState& state = app.state;
    model::Windows& windows = app.windows;
    model::Form1& form1 = app.windows.form1;
    model::Form3& form3 = app.windows.form3;
    model::Slidescreen& screen = app.windows.slidescreen;

    explicit Show(int slides = 3) : timers_(app) {
        playback::AttachTransport(app);
        playback::AttachFullScreen(app);
        playback::AttachControlBox(app);
        picture::AttachVideoWindow(app);
        form1.Timer1.Enabled = false;
        for (int i = 1; i <= slides; ++i) {
            AddPicture();
        }
        state.MainBottomMargin = form1.Height - 8200;
        picture::SizePreview(app);
        form1.Show();
        playback::SetButtons(app, playback::Buttons::Idle);
    }

    static Text PathOf(int slide) {
        return u"C:\\pic\\" + text::FromUtf8(std::to_string(slide)) + u".png";
    }
    void AddSlide(const Text& path) {
        form3.List1.AddItem(path);
        form3.List2.AddItem(model::BlankScheduleRow());
        const int count = form3.List1.ListCount();
        state.SlideList.Set(count, path);
        state.SlideListEnd = static_cast<int16_t>(count + 1);
    }
    void AddPicture() {
        const Text path = PathOf(form3.List1.ListCount() + 1);
        PutPicture(path, 10, 10);
        AddSlide(path);
    }
    /// Each field has 16 columns: "2026/01/02 10:30", blanks where a part is missing.
    void Schedule(int slide, const Text& from, const Text& to = Text(16, u' ')) {
        state.ScheduleFrom.Set(slide, from);
        state.ScheduleTo.Set(slide, to);
    }
    /// Never shown: its time is over.
    void PutOut(int slide) { Schedule(slide, Text(16, u' '), u"2000/01/01 00:00"); }
    /// The slide's picture cannot be read.
    void Break(int slide) { files.Put(PathOf(slide), "no picture"); }

    /// Runs one step for the slide as the running show would.
    void Step(int slide) {
        state.SlideIndex = static_cast<int16_t>(slide);
        form1.Command1.Enabled = false;
        playback::RunSlideStep(app);
    }
    void Start() { form1.Command1.Click(); }
    void Pause() { form1.Command2.Click(); }
    void Stop() { form1.Command3.Click(); }
    void Previous() { form1.Command5.Click(); }
    void Next() { form1.Command7.Click(); }

    void GoFullScreen() {
        playback::PlaceFullScreen(app);
        state.FullScreenActive = 1;
    }

    /// Slides whose picture came up, in order.
    Numbers Shown() const { return IndexesOf("slide"); }
    Numbers Skipped() const { return IndexesOf("skip"); }

    /// Commands to the sound device that begin with, or hold, the text.
    Texts CommandsFrom(TextView beginning) const {
        return Commands([&](const Text& command) { return command.starts_with(beginning); });
    }
    Texts CommandsWith(TextView part) const {
        return Commands([&](const Text& command) { return command.find(part) != Text::npos; });
    }
    /// The file reached the sound: handed over by name, or already in a command.
    bool SoundAskedFor(const Text& path) const {
        return state.LinkedWavPath == path || state.LinkedMediaPath == path ||
               !CommandsWith(path).empty();
    }

    /// START, PAUSE, STOP, previous, next, full screen: enabled ones as letters.
    std::string Buttons() const {
        std::string letters;
        const std::pair<const model::Button&, char> buttons[] = {
            {form1.Command1, 'S'}, {form1.Command2, 'P'}, {form1.Command3, 'X'},
            {form1.Command5, '<'}, {form1.Command7, '>'}, {form1.Command4, 'F'}};
        for (const auto& [button, letter] : buttons) {
            letters += button.Enabled ? std::string(1, letter) : std::string();
        }
        return letters;
    }
    /// The buttons that open the slide list, the sound list and the schedule.
    std::string ToolButtons() const {
        std::string digits;
        for (const model::Button* button : {&form1.Command6, &form1.Command10, &form1.Command11}) {
            digits += button->Enabled ? '1' : '0';
        }
        return digits;
    }
    bool FileEntriesShown() const {
        return form1.mnuNEW.Visible && form1.mnuOPEN.Visible && form1.mnuSAVE.Visible &&
               form1.mnuHAIHU.Visible;
    }
    bool FileEntriesHidden() const {
        return !form1.mnuNEW.Visible && !form1.mnuOPEN.Visible && !form1.mnuSAVE.Visible &&
               !form1.mnuHAIHU.Visible;
    }
    bool MenusOn() const {
        return form1.mnuOPTION.Enabled && form1.mnuGKO.Enabled && form1.mnuURU.Enabled &&
               form1.mnuCDM.Enabled;
    }
    bool MenusOff() const {
        return !form1.mnuOPTION.Enabled && !form1.mnuGKO.Enabled && !form1.mnuURU.Enabled &&
               !form1.mnuCDM.Enabled && !form1.mnuICHI.Enabled;
    }
    bool PreviewEmpty() const { return form1.Picture1.Picture() == nullptr; }

private:
    Numbers IndexesOf(std::string_view event) const {
        Numbers indexes;
        for (const auto& line : trace.Of(event)) {
            indexes.push_back(static_cast<int>(line.Number("SlideIndex")));
        }
        return indexes;
    }
    template <class Test>
    Texts Commands(Test test) const {
        Texts found;
        std::copy_if(sound.commands.begin(), sound.commands.end(), std::back_inserter(found), test);
        return found;
    }

    app::TimerRunner timers_;
};

}  // namespace playback_tests
