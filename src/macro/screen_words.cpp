#include "macro/screen_words.h"

#include "macro/arguments.h"
#include "macro/buttons.h"
#include "model/picture_controls.h"
#include "model/windows/control_box.h"
#include "model/windows/main_window.h"
#include "model/windows/picture_holder.h"
#include "model/windows/slide_screen.h"
#include "picture/overlay.h"

namespace macro {

namespace {

constexpr int kMosaicBlock = 8;  // pixels
constexpr int kPencilLevel = 8;
constexpr int kEmbossDepth = 700;

void ReturnPens(Run& run) {
    run.app.windows.form1.Picture1.canvas.penY = 0;
    run.app.windows.slidescreen.P2.canvas.penY = run.state.TextOriginY;
}

template <class Operation>
Flow Filter(Run& run, Operation operation) {
    operation(*run.app.windows.form4.Lead1.imaging);
    picture::RedrawProcessedPicture(run.app);
    ReturnPens(run);
    return Flow::GoOn;
}

/// The layers take what shows where the box stood, or its place would come back with the box in
/// it; one pixel more on each side.
void CoverBoxPlace(Application& app) {
    model::Slidescreen& screen = app.windows.slidescreen;
    const platform::Rect box = PlaceOf(app.windows.slidescreen2);
    const platform::Rect pixels{
        box.x / platform::kTwipsPerPixel - screen.Left / platform::kTwipsPerPixel - 1,
        box.y / platform::kTwipsPerPixel - screen.Top / platform::kTwipsPerPixel - 1, box.width + 2,
        box.height + 2};
    const platform::Bitmap& shown = screen.P2.canvas.Pixels();
    for (model::PictureBox* layer : {&screen.P4, &screen.P3}) {
        layer->canvas.Lay(pixels, shown, {0, 0, shown.width, shown.height});
    }
}

void SetBoxSetting(Application& app, int16_t value) {
    app.state.ControlBoxFlag = value;
    app.windows.form1.mnuCTL.Check(value);
}

void RemoveControlBox(Application& app) {
    SetBoxSetting(app, 1);
    if (InFullScreen(app.state)) {
        app.windows.slidescreen2.Hide();
        CoverBoxPlace(app);
    }
}

}  // namespace

Flow FilterBit(Run& run, double) {
    return Filter(run, [](auto& lead) { lead.SetColorResolution(1, 1, 1, 0); });
}

Flow FilterReverse(Run& run, double) {
    return Filter(run, [](auto& lead) { lead.Reverse(); });
}

Flow FilterFlip(Run& run, double) {
    return Filter(run, [](auto& lead) { lead.Flip(); });
}

Flow FilterPencil(Run& run, double) {
    return Filter(run, [](auto& lead) {
        lead.EdgeFilter(kPencilLevel);
        lead.GrayScale();
        lead.Invert();
    });
}

Flow FilterMetal(Run& run, double) {
    return Filter(run, [](auto& lead) {
        lead.Emboss(0, kEmbossDepth);
        lead.GrayScale();
    });
}

Flow FilterMosaic(Run& run, double) {
    return Filter(run, [](auto& lead) { lead.Mosaic(kMosaicBlock); });
}

Flow FilterGrayScale(Run& run, double) {
    return Filter(run, [](auto& lead) { lead.GrayScale(); });
}

Flow SavePicture(Run& run, double) {
    if (!InFullScreen(run.state)) {
        return Flow::GoOn;
    }
    model::Slidescreen& screen = run.app.windows.slidescreen;
    const bool scrolling = screen.Label1.Visible;
    if (scrolling) {
        screen.Label1.Visible = false;
        run.app.platform.loop.PumpEvents();
    }
    CopyLayer(screen.P3, screen.P2);
    // The text may have run out in the pump.
    if (scrolling && screen.Timer1.Enabled) {
        screen.Label1.Visible = true;
    }
    return Flow::GoOn;
}

Flow ClearScreen(Run& run, double) {
    const model::ShowState& state = run.state;
    model::Slidescreen& screen = run.app.windows.slidescreen;
    model::PictureBox& preview = run.app.windows.form1.Picture1;
    preview.canvas.Fill(static_cast<platform::Color>(preview.BackColor()));
    if (InFullScreen(state)) {
        if (state.OverlayMode == 0 && state.TextOriginScreen == 1) {
            screen.P2.Cls();
        }
        CopyLayer(screen.P2, screen.P4);
        CopyLayer(screen.P3, screen.P4);
        FocusScreen(run.app);
    }
    ReturnPens(run);
    return Flow::GoOn;
}

Flow SetCursor(Run& run, double mode) {
    if (mode == 0) {
        if (InFullScreen(run.state)) {
            run.app.windows.ForceCursor(false);
            run.state.MacroCursorHidden = 1;
        }
        RemoveControlBox(run.app);
    } else if (mode == 1) {
        ShowPointer(run.app);
    }
    return Flow::GoOn;
}

Flow SetControlBox(Run& run, double mode) {
    if (mode == 0) {
        RemoveControlBox(run.app);
    } else if (mode == 1) {
        SetBoxSetting(run.app, 0);
        if (InFullScreen(run.state)) {
            run.app.windows.slidescreen2.Show();
            ShowPointer(run.app);
        }
    }
    return Flow::GoOn;
}

Flow StartProgram(Run& run, double) {
    const TextView path = Quoted(run.MacroLine);
    if (!path.empty()) {
        // The trace has the line's upper-case form, as the other words' files do. What is started
        // is what was written: case counts here.
        run.app.platform.trace.Event("shell", {{"command", Text(Quoted(run.MacroLineUpper))}});
        run.app.platform.system.Shell(path, run.state.DocumentPath);
    }
    return Flow::GoOn;
}

Flow SetWindowState(Run& run, double mode) {
    if (!InFullScreen(run.state) && (mode == 0 || mode == 2)) {
        run.app.windows.form1.WindowState = static_cast<int>(mode);
    }
    return Flow::GoOn;
}

}  // namespace macro
