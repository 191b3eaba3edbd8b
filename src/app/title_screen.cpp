#include "app/title_screen.h"

#include "model/windows/main_window.h"

namespace app {

namespace {

using platform::Rgb;

// Everything in twips; the panel's origin.
constexpr int kX0 = 1000;
constexpr int kY0 = 1200;

constexpr platform::Color kWhite = 0xFFFFFF;
constexpr platform::Color kMidGrey = 0x808080;
constexpr platform::Color kBrightCyan = Rgb(0, 255, 255);  // colour number 11

constexpr double kHoldSeconds = 2.0;
constexpr double kSecondsPerDay = 86400.0;
constexpr int kClockPollMs = 10;

/// The preview in twips.
class TwipsCanvas {
public:
    explicit TwipsCanvas(Application& app)
        : app_(app), canvas_(app.windows.form1.Picture1.canvas) {}

    void Line(int x1, int y1, int x2, int y2, platform::Color color) {
        canvas_.Line(Px(x1), Px(y1), Px(x2), Px(y2), color);
    }
    void Fill(int x1, int y1, int x2, int y2, platform::Color color) {
        canvas_.FillRect({Px(x1), Px(y1), Px(x2) - Px(x1) + 1, Px(y2) - Px(y1) + 1}, color);
    }
    void Frame(int x1, int y1, int x2, int y2, platform::Color color) {
        Line(x1, y1, x2, y1, color);
        Line(x2, y1, x2, y2, color);
        Line(x2, y2, x1, y2, color);
        Line(x1, y2, x1, y1, color);
    }
    bool Holds(int x, int y) const { return Px(x) < canvas_.Width() && Px(y) < canvas_.Height(); }
    platform::Color Point(int x, int y) const { return canvas_.Point(Px(x), Px(y)); }
    void Print(int x, int y, double points, platform::Color color, TextView text) {
        platform::Font font;
        font.sizePoints = points;
        app_.platform.textRenderer.Draw(canvas_, Px(x), Px(y), font, color, text);
    }

private:
    static int Px(int twips) { return twips / platform::kTwipsPerPixel; }
    Application& app_;
    platform::Canvas& canvas_;
};

/// A display of 256 colours or fewer cannot show the panel's colour: it reads back as another. A
/// preview too small for the place that is read tells nothing.
void TestColors(Application& app, TwipsCanvas& canvas) {
    canvas.Fill(kX0 + 1016, kY0 + 716, kX0 + 3984, kY0 + 2684, Rgb(230, 230, 250));
    canvas.Frame(kX0 + 1000, kY0 + 700, kX0 + 4000, kY0 + 2700, 0);
    if (!canvas.Holds(kX0 + 2000, kY0 + 2000)) {
        return;
    }
    const platform::Color seen = canvas.Point(kX0 + 2000, kY0 + 2000);
    if (seen == kWhite || seen == kMidGrey) {
        app.state.LowColorFlag = 1;
        app.platform.dialogs.Message(
            u"２５６色以下の環境では使用できません。"
            u"\r\nカラーパレットを High Color以上に設定してください。",
            platform::kStop, u"");
        throw platform::ProgramEnd{};
    }
}

void DrawShadow(Application& app, TwipsCanvas& canvas) {
    const platform::Color grey = Rgb(150, 150, 150);
    for (int i = 1084; i <= 4010; i += 30) {
        canvas.Line(kX0 + i, kY0 + 2716, kX0 + 5500, kY0 + 3184, grey);
        app.platform.loop.PumpEvents();
    }
    for (int i = 1008; i <= 3020; i += 14) {
        canvas.Line(kX0 + 4016, kY0 + i - 300, kX0 + 5500, kY0 + 3184, grey);
        app.platform.loop.PumpEvents();
    }
    canvas.Line(kX0 + 1000, kY0 + 2700, kX0 + 5516, kY0 + 3200, 0);
    canvas.Line(kX0 + 4000, kY0 + 700, kX0 + 5516, kY0 + 3200, 0);
}

void DrawTitle(TwipsCanvas& canvas) {
    constexpr TextView kTitle = u"パラピコ";
    constexpr TextView kSubTitle = u"for Windows Ver.9.10";
    for (int i = 100; i >= 1; --i) {
        canvas.Print(kX0 + 400 + i, kY0 + 1000 + i, 35, Rgb(20, 20, 20), kTitle);
    }
    canvas.Print(kX0 + 400, kY0 + 1000, 35, Rgb(150, 150, 255), kTitle);
    for (int i = 50; i >= 1; --i) {
        canvas.Print(kX0 + 1600 + i, kY0 + 2100 + i, 18, Rgb(80, 80, 80), kSubTitle);
    }
    canvas.Print(kX0 + 1600, kY0 + 2100, 18, kBrightCyan, kSubTitle);
}

/// The clock falls back at midnight: a reading below the start counts for the next day.
void Hold(Application& app) {
    const double start = app.platform.loop.Timer();
    for (double now = start; now < start + kHoldSeconds;) {
        app.platform.loop.Sleep(kClockPollMs);
        now = app.platform.loop.Timer();
        if (now < start) {
            now += kSecondsPerDay;
        }
    }
}

}  // namespace

void ShowTitleScreen(Application& app) {
    if (app.state.SplashDone == 1) {
        return;
    }
    app.state.SplashDone = 1;  // the pumping below may bring further resizes
    app.windows.form1.Picture1.AutoRedraw = false;
    app.windows.SetPointer(model::kPointerBusy);
    TwipsCanvas canvas(app);
    TestColors(app, canvas);
    DrawShadow(app, canvas);
    DrawTitle(canvas);
    app.platform.loop.PumpEvents();
    Hold(app);
    app.windows.SetPointer(model::kPointerNormal);
    app.state.MosaicDelayUnit = 0;
    app.windows.form1.Picture1.Cls();
    app.windows.form1.Picture1.AutoRedraw = true;
}

}  // namespace app
