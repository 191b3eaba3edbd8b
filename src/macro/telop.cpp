#include "macro/telop.h"

#include <algorithm>

#include "macro/arguments.h"
#include "macro/printing.h"
#include "model/controls.h"
#include "model/picture_controls.h"
#include "model/windows/main_window.h"
#include "model/windows/slide_screen.h"
#include "text/numbers.h"

namespace macro {

namespace {

constexpr double kUnsaidNumber = 100;  // of interval and step
constexpr double kHighestNumber = 1000;
constexpr int kMsPerInterval = 10;
// Characters. Loops can append to a line without end; so much takes minutes to go by.
constexpr size_t kLongestCaption = 4096;

struct Telop {
    int interval, step;  // hundredths of a second, pixels
    Text text;
};

/// A text with commas needs both numbers before it: kept.
Telop ReadTelop(const Run& run) {
    const auto fields = CallFields(BeforeComment(run.MacroLine), 3);
    const auto number = [&](size_t index) {
        const bool said = index + 1 < fields.size();
        const double value = said ? NumberField(fields, index) : kUnsaidNumber;
        return static_cast<int>(std::clamp(text::RoundHalfEven(value), 1.0, kHighestNumber));
    };
    return {number(0), number(1), fields.empty() ? Text() : Printable(Unquoted(fields.back()))};
}

struct Line {
    model::Label& label;
    model::Timer& timer;
    const model::PictureBox& box;
};

Line LineOnScreen(Application& app) {
    model::Slidescreen& screen = app.windows.slidescreen;
    return {screen.Label1, screen.Timer1, screen.P2};
}

Line LineInWindow(Application& app) {
    model::Form1& form1 = app.windows.form1;
    return {form1.Label1, form1.Timer4, form1.Picture1};
}

/// The label is as large as its text.
void FitToCaption(Application& app, model::Label& label) {
    const auto extent = app.platform.textRenderer.Measure(
        {label.FontName, label.FontSize, label.FontBold, label.FontItalic, false}, label.Caption());
    label.Width = extent.width;
    label.Height = extent.height;
}

void SetCaption(Application& app, model::Label& label, Text caption) {
    caption.resize(std::min(caption.size(), kLongestCaption));
    if (caption != label.Caption()) {
        label.Caption = std::move(caption);
        FitToCaption(app, label);
    }
}

void TakeLook(Application& app, model::Label& label, const platform::Canvas& canvas) {
    label.FontName = canvas.font.name;
    label.FontSize = canvas.font.sizePoints;
    label.FontBold = canvas.font.bold;
    label.FontItalic = canvas.font.italic;
    label.ForeColor = static_cast<int>(canvas.color);
    FitToCaption(app, label);
}

void EmptyCaptions(Application& app) {
    app.windows.form1.Label1.Caption = Text();
    app.windows.slidescreen.Label1.Caption = Text();
}

/// Places are pixels of the canvas under the label.
void Scroll(Application& app, const Line& line) {
    const auto& [label, timer, box] = line;
    model::ShowState& state = app.state;
    label.Left = label.Left - state.TelopStep;
    if (label.Left + label.Width >= 0) {
        return;
    }
    if (state.TelopRunning == 1) {
        EmptyCaptions(app);
        label.Visible = false;
        timer.Enabled = false;
        state.TelopRunning = 0;
    } else {
        SetCaption(app, label, state.TelopText);
        label.Left = box.ScaleWidth();
    }
}

}  // namespace

Flow StartTelop(Run& run, double) {
    Application& app = run.app;
    model::ShowState& state = app.state;
    const bool once = run.MacroLineUpper.starts_with(u"TELOP1");
    const Telop telop = ReadTelop(run);
    state.TelopText.clear();
    if (telop.text.empty()) {
        CancelTelop(app);
        return Flow::GoOn;
    }
    const auto [label, timer, box] = InFullScreen(state) ? LineOnScreen(app) : LineInWindow(app);
    state.TelopStep = static_cast<int16_t>(telop.step);
    state.TelopRunning = once ? 1 : 0;
    label.Top = box.canvas.penY;
    if (!timer.Enabled) {
        label.Left = box.ScaleWidth();
        TakeLook(app, label, box.canvas);
    }
    if (once) {
        SetCaption(app, label, label.Caption() + telop.text);
    } else {
        state.TelopText = telop.text;
        if (label.Caption().empty()) {
            SetCaption(app, label, telop.text);
        }
    }
    label.Visible = true;
    timer.Interval = telop.interval * kMsPerInterval;
    timer.Enabled = true;
    return Flow::GoOn;
}

void ScrollTelopInWindow(Application& app) {
    Scroll(app, LineInWindow(app));
}

void ScrollTelopOnScreen(Application& app) {
    Scroll(app, LineOnScreen(app));
}

void CancelTelop(Application& app) {
    EmptyCaptions(app);
    app.windows.form1.Label1.Visible = false;
    app.windows.slidescreen.Label1.Visible = false;
    app.windows.form1.Timer4.Enabled = false;
    app.windows.slidescreen.Timer1.Enabled = false;
    app.state.TelopRunning = 0;
}

}  // namespace macro
