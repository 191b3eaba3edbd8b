#include "macro/telop.h"

namespace macro {

namespace {

void EmptyCaptions(Application& app) {
    app.windows.form1.Label1.Caption = Text();
    app.windows.slidescreen.Label1.Caption = Text();
}

/// Places are pixels of the canvas under the label.
void Scroll(Application& app, model::Label& label, model::Timer& timer,
            const model::PictureBox& canvas) {
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
        label.Caption = state.TelopText;
        label.Left = canvas.ScaleWidth();
    }
}

}  // namespace

void ScrollTelopInWindow(Application& app) {
    model::Form1& form1 = app.windows.form1;
    Scroll(app, form1.Label1, form1.Timer4, form1.Picture1);
}

void ScrollTelopOnScreen(Application& app) {
    model::Slidescreen& slidescreen = app.windows.slidescreen;
    Scroll(app, slidescreen.Label1, slidescreen.Timer1, slidescreen.P2);
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
