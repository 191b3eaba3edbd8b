// A show of three slides whose first one has a macro file.
#pragma once

#include "app/timers.h"
#include "macro/macro.h"
#include "model/windows/main_window.h"
#include "model/windows/slide_screen.h"
#include "support/fake_platform.h"

namespace macro_tests {

struct MacroShow {
    fakes::FakePlatform fake;
    Application& app = fake.app;
    model::ShowState& state = app.state;
    model::Form1& form1 = app.windows.form1;
    model::Slidescreen& screen = app.windows.slidescreen;
    app::TimerRunner timers{app};

    MacroShow() {
        state.TextMacroFlag = 0;
        for (int i = 1; i <= 3; ++i) {
            state.SlideList.Set(i, u"C:\\show\\p" + Text(1, char16_t(u'0' + i)) + u".bmp");
        }
        state.SlideListEnd = 4;
        state.SlideIndex = 1;
        form1.Timer1.Interval = 3000;
        form1.Picture1.SetSize(640 * 15, 480 * 15);
        screen.P2.SetSize(800 * 15, 600 * 15);
        screen.P3.SetSize(800 * 15, 600 * 15);
        screen.P4.SetSize(800 * 15, 600 * 15);
        form1.Timer3.Tick.Anew() = [this] { state.MacroDelayWaiting = 0; };
    }

    /// Runs the text as the macro of slide 1.
    void Play(TextView macro) {
        fake.PutText(u"C:\\show\\p1.txt", macro);
        macro::RunTextMacro(app);
    }
    /// In full screen with the picture at (40, 30).
    void GoFullScreen() {
        state.FullScreenActive = 1;
        state.PictureX = 40;
        state.PictureY = 30;
    }
    /// The words carried out, in order, as "line word".
    std::vector<std::string> Words() const {
        std::vector<std::string> words;
        for (const auto& line : fake.trace.Of("macro")) {
            words.push_back(std::to_string(static_cast<int>(line.Number("line"))) + " " +
                            text::ToUtf8(line.String("keyword")));
        }
        return words;
    }
    double Now() { return fake.loop.Milliseconds(); }
};

}  // namespace macro_tests
