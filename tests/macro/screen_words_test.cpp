// Filters, saving and clearing the screen, pointer, control box, programs, the window's state.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QImage>

#include "adapters/imaging/qt_imaging.h"
#include "adapters/posix/posix_files.h"
#include "macro_support.h"
#include "model/picture_controls.h"
#include "model/windows/control_box.h"
#include "model/windows/main_window.h"
#include "model/windows/picture_holder.h"
#include "posix/temporary_folder.h"

namespace {

using macro_tests::MacroShow;
using testing::ElementsAre;

struct ScreenWords : testing::Test, MacroShow {
    model::Form4& form4 = app.windows.form4;
    model::Slidescreen2& box = app.windows.slidescreen2;

    ScreenWords() {
        fake.files.Put(u"C:\\show\\p1.bmp", "PIC 20 10 306090");
        form4.Lead1.imaging->Load(u"C:\\show\\p1.bmp", {});
        form4.Picture1.SetPicture(form4.Lead1.imaging->Picture());
        form1.Picture1.SetPicture(form4.Picture1.Picture());
        fake.imaging.log.clear();
    }
    /// What the control was asked for by the line.
    std::vector<std::string> Filters(TextView line) {
        fake.imaging.log.clear();
        Play(line);
        return fake.imaging.log;
    }
    bool PointerSeen() {
        const int count = app.windows.ShowCursor(true) - 1;
        app.windows.ShowCursor(false);
        return count >= 0;
    }
    platform::Color OnScreen(int x, int y) { return screen.P2.canvas.Point(x, y); }
};

constexpr platform::Color kGray = 0x606060, kMark = 0x0000FF, kPicture = 0x906030;

TEST_F(ScreenWords, EachFilterAsksForItsOperations) {
    const std::string back = "colors 24";
    EXPECT_THAT(Filters(u"Bit"), ElementsAre("colors 1", back));
    EXPECT_THAT(Filters(u"Reverse"), ElementsAre("reverse", back));
    EXPECT_THAT(Filters(u"Flip"), ElementsAre("flip", back));
    EXPECT_THAT(Filters(u"Pencil"), ElementsAre("edges 8", "gray", "invert", back));
    EXPECT_THAT(Filters(u"Metal"), ElementsAre("emboss 0 700", "gray", back));
    EXPECT_THAT(Filters(u"Mosaic"), ElementsAre("mosaic 8", back));
    EXPECT_THAT(Filters(u"GrayScale"), ElementsAre("gray", back));
}

TEST_F(ScreenWords, FilterInTheWindowTakesTheTextAway) {
    form1.Picture1.canvas.Fill(kMark);
    screen.P2.canvas.Fill(kMark);
    Play(u"CurrentX=9\r\nCurrentY=70\r\nGrayScale\r\n");
    EXPECT_EQ(form1.Picture1.canvas.Point(19, 9), kGray);
    EXPECT_NE(form1.Picture1.canvas.Point(20, 9), kMark);
    EXPECT_EQ(form4.Picture1.Picture()->pixels[0], 0xFF606060u);
    EXPECT_EQ(OnScreen(0, 0), kMark);
    EXPECT_EQ(form1.Picture1.canvas.penX, 9);
    EXPECT_EQ(form1.Picture1.canvas.penY, 0);
}

TEST_F(ScreenWords, FilterInFullScreenReachesAllLayers) {
    GoFullScreen();
    for (model::PictureBox* layer : {&screen.P2, &screen.P3, &screen.P4}) {
        layer->canvas.Fill(kMark);
    }
    Play(u"CurrentY=70\r\nGrayScale\r\n");
    for (model::PictureBox* layer : {&screen.P2, &screen.P3, &screen.P4}) {
        EXPECT_EQ(layer->canvas.Point(40, 30), kGray);
        EXPECT_EQ(layer->canvas.Point(59, 39), kGray);
        EXPECT_EQ(layer->canvas.Point(60, 39), kMark);
        EXPECT_EQ(layer->canvas.Point(0, 0), kMark);
    }
    EXPECT_EQ(state.EffectDc, form4.Picture1.Picture());
    EXPECT_EQ(screen.P2.canvas.penY, 30);
    state.TextOriginScreen = 1;
    Play(u"CurrentY=70\r\nMosaic\r\n");
    EXPECT_NE(OnScreen(0, 0), kMark);
    EXPECT_EQ(OnScreen(40, 30), kGray) << "filters add up";
    EXPECT_EQ(screen.P2.canvas.penY, 0);
}

/// Real pictures of 12 × 9 pixels, given by a colour 0xRRGGBB for each pixel.
struct RealFilters : ScreenWords {
    TemporaryFolder folder;
    posix_adapter::PosixFiles files{folder.Path("program")};
    imaging::QtImaging imaging{files};

    template <class ColorAt>
    void Hold(ColorAt colorAt) {
        QImage image(12, 9, QImage::Format_RGB32);
        for (int y = 0; y < 9; ++y) {
            for (int x = 0; x < 12; ++x) {
                image.setPixel(x, y, 0xFF000000u | colorAt(x, y));
            }
        }
        ASSERT_TRUE(image.save(QString::fromStdString(folder.Path("a.png"))));
        form4.Lead1.imaging = imaging.MakeControl();
        ASSERT_TRUE(form4.Lead1.imaging->Load(folder.TextPath("a.png"), {}));
    }
    /// Both modes: the preview, then every layer with the picture at (40, 30).
    template <class ColorAt>
    void ExpectShown(ColorAt colorAt) {
        const bool full = state.FullScreenActive == 1;
        std::vector<std::pair<model::PictureBox*, int>> boxes = {{&form1.Picture1, 0}};
        if (full) {
            boxes = {{&screen.P2, 1}, {&screen.P3, 1}, {&screen.P4, 1}, {&form1.Picture1, 0}};
        }
        for (const auto& [shown, placed] : boxes) {
            for (int y = 0; y < 9; ++y) {
                for (int x = 0; x < 12; ++x) {
                    const platform::Pixel p =
                        platform::ToPixel(shown->canvas.Point(x + 40 * placed, y + 30 * placed));
                    ASSERT_EQ(p & 0xFFFFFFu, colorAt(x, y)) << shown->Name() << x << ' ' << y;
                }
            }
        }
    }
    template <class Before, class After>
    void ExpectFilter(TextView line, Before before, After after) {
        for (const int16_t full : {0, 1}) {
            GoFullScreen();
            state.FullScreenActive = full;
            Hold(before);
            Play(line);
            ExpectShown(after);
        }
    }
};

uint32_t Gray(int level) {
    return static_cast<uint32_t>(level) * 0x010101u;
}

/// A step in brightness from 40 to 200 between the columns 7 and 8.
uint32_t Step(int x, int) {
    return Gray(x < 8 ? 40 : 200);
}

TEST_F(RealFilters, ReverseAndFlip) {
    const auto coloured = [](int x, int y) { return static_cast<uint32_t>(x * 0x150000 + y); };
    ExpectFilter(u"Reverse", coloured, [&](int x, int y) { return coloured(11 - x, y); });
    ExpectFilter(u"Flip", coloured, [&](int x, int y) { return coloured(x, 8 - y); });
    ExpectFilter(u"Reverse\r\nReverse\r\n", coloured, coloured);
}

TEST_F(RealFilters, PencilDrawsEdgesBlackOnWhite) {
    // 4 × 160 is more than full; so the two columns at the step are black.
    ExpectFilter(u"Pencil", Step, [](int x, int) { return Gray(x == 7 || x == 8 ? 0 : 255); });
}

TEST_F(RealFilters, MetalIsARelief) {
    // 128 + (40 - 200) × 0.7 where the light falls onto the rising step.
    ExpectFilter(u"Metal", Step, [](int x, int) { return Gray(x == 7 || x == 8 ? 16 : 128); });
}

TEST_F(RealFilters, MosaicTakesTheMeanOfBlocks) {
    // Of four columns of 0 and four of 80; the blocks at the right and lower edge are cut.
    ExpectFilter(
        u"Mosaic", [](int x, int) { return Gray(x < 4   ? 0
                                                : x < 8 ? 80
                                                        : 200); },
        [](int x, int) { return Gray(x < 8 ? 40 : 200); });
}

TEST_F(RealFilters, GrayScaleKeepsTheBrightness) {
    // 0.299 × 255 = 76 of red.
    ExpectFilter(
        u"GrayScale", [](int x, int) { return x < 6 ? 0xFF0000u : 0xFFFFFFu; },
        [](int x, int) { return Gray(x < 6 ? 76 : 255); });
}

TEST_F(RealFilters, BitKeepsBlackAndWhite) {
    const auto halves = [](int x, int) { return Gray(x < 6 ? 0 : 255); };
    ExpectFilter(u"Bit", halves, halves);
}

TEST_F(ScreenWords, SavedPictureIsTheWholeScreen) {
    screen.P2.canvas.Fill(kMark);
    Play(u"SavePic\r\n");
    EXPECT_EQ(screen.P3.canvas.Point(0, 0), 0u) << "not in the window";
    GoFullScreen();
    int pumpsWithoutText = 0;
    screen.Label1.Visible = true;
    screen.Timer1.Enabled = true;
    fake.loop.onPump = [&] { pumpsWithoutText += screen.Label1.Visible ? 0 : 1; };
    Play(u"SavePic  //x\r\n");
    EXPECT_EQ(screen.P3.canvas.Point(0, 0), kMark);
    EXPECT_EQ(screen.P3.canvas.Point(799, 599), kMark);
    EXPECT_EQ(pumpsWithoutText, 1);
    EXPECT_TRUE(screen.Label1.Visible);
    EXPECT_EQ(screen.P4.canvas.Point(0, 0), 0u);
    fake.loop.onPump = [&] {
        if (!screen.Label1.Visible) {
            screen.Timer1.Enabled = false;
        }
    };
    Play(u"SavePic\r\n");
    EXPECT_FALSE(screen.Label1.Visible) << "the text ran out meanwhile";
}

TEST_F(ScreenWords, ClearingTheWindowTakesThePictureToo) {
    form1.Picture1.BackColor = 0x123456;
    screen.P2.canvas.Fill(kMark);
    Play(u"CurrentY=70\r\nCls\r\n");
    EXPECT_EQ(form1.Picture1.canvas.Point(0, 0), 0x123456u);
    EXPECT_EQ(form1.Picture1.canvas.Point(639, 479), 0x123456u);
    EXPECT_EQ(form1.Picture1.canvas.penY, 0);
    EXPECT_EQ(OnScreen(0, 0), kMark);
}

TEST_F(ScreenWords, ClearingTheFullScreenBringsThePictureBack) {
    GoFullScreen();
    screen.P2.canvas.Fill(kMark);
    screen.P4.canvas.Fill(kPicture);
    Play(u"CurrentY=70\r\nCls\r\n");
    EXPECT_EQ(OnScreen(0, 0), kPicture);
    EXPECT_EQ(OnScreen(799, 599), kPicture);
    EXPECT_EQ(screen.P3.canvas.Point(799, 599), kPicture);
    EXPECT_EQ(screen.P2.canvas.penY, 30);
}

TEST_F(ScreenWords, PointerHidesWithTheBoxAndComesBack) {
    GoFullScreen();
    box.Show();
    Play(u"Cursor=0\r\n");
    EXPECT_FALSE(PointerSeen());
    EXPECT_EQ(state.MacroCursorHidden, 1);
    EXPECT_EQ(state.ControlBoxFlag, 1);
    EXPECT_TRUE(form1.mnuCTL(1).Checked);
    EXPECT_FALSE(box.Visible);
    Play(u"Cursor=2\r\n");
    EXPECT_EQ(state.MacroCursorHidden, 1);
    Play(u"Cursor=1\r\n");
    EXPECT_TRUE(PointerSeen());
    EXPECT_EQ(state.MacroCursorHidden, 0);
    EXPECT_EQ(state.ControlBoxFlag, 1) << "the box does not come back with it";
}

TEST_F(ScreenWords, PointerOfTheWindowStays) {
    Play(u"Cursor=0\r\n");
    EXPECT_TRUE(PointerSeen());
    EXPECT_EQ(state.MacroCursorHidden, 0);
    EXPECT_EQ(state.ControlBoxFlag, 1);
    state.MacroCursorHidden = 1;
    Play(u"Cursor=1\r\n");
    EXPECT_EQ(state.MacroCursorHidden, 0) << "in both modes";
}

TEST_F(ScreenWords, BoxLeavesNoTraceInTheLayers) {
    GoFullScreen();
    screen.Left = 100 * 15;
    box.Left = (100 + 200) * 15;
    box.Top = 50 * 15;
    box.Width = 80 * 15;
    box.Height = 20 * 15;
    box.Show();
    screen.P2.canvas.Fill(kMark);
    Play(u"CtrlBox=0\r\n");
    EXPECT_FALSE(box.Visible);
    EXPECT_EQ(state.ControlBoxFlag, 1);
    for (model::PictureBox* layer : {&screen.P3, &screen.P4}) {
        EXPECT_EQ(layer->canvas.Point(199, 49), kMark);
        EXPECT_EQ(layer->canvas.Point(280, 70), kMark);
        EXPECT_EQ(layer->canvas.Point(198, 49), 0u);
        EXPECT_EQ(layer->canvas.Point(281, 70), 0u);
        EXPECT_EQ(layer->canvas.Point(199, 48), 0u);
        EXPECT_EQ(layer->canvas.Point(280, 71), 0u);
    }
    Play(u"CtrlBox=2\r\n");
    EXPECT_FALSE(box.Visible);
    app.windows.ForceCursor(false);
    state.MacroCursorHidden = 1;
    Play(u"CtrlBox=1\r\n");
    EXPECT_TRUE(box.Visible);
    EXPECT_EQ(state.ControlBoxFlag, 0);
    EXPECT_TRUE(form1.mnuCTL(0).Checked);
    EXPECT_TRUE(PointerSeen());
    EXPECT_EQ(state.MacroCursorHidden, 0);
}

TEST_F(ScreenWords, BoxOfTheWindowIsOnlySet) {
    Play(u"CtrlBox=0\r\n");
    EXPECT_EQ(state.ControlBoxFlag, 1);
    Play(u"CtrlBox=1\r\n");
    EXPECT_EQ(state.ControlBoxFlag, 0);
    EXPECT_FALSE(box.Visible);
}

TEST_F(ScreenWords, ProgramsStartAsWrittenAndAreTracedInUpperCase) {
    state.DocumentPath = u"C:\\show\\s.kvs";
    Play(u"Shell=\"c:\\prog\\a.exe //x\"\r\nShell=\"\"\r\nShell=c:\\b.exe\r\nShell \"b\r\n");
    ASSERT_EQ(fake.system.started.size(), 1u);
    EXPECT_EQ(fake.system.started[0].first, u"c:\\prog\\a.exe //x");
    const auto told = fake.trace.Of("shell");
    ASSERT_EQ(told.size(), 1u);
    EXPECT_EQ(told[0].String("command"), u"C:\\PROG\\A.EXE //X");
    EXPECT_EQ(fake.system.started[0].second, u"C:\\show\\s.kvs");
    EXPECT_EQ(Now(), 0);
}

TEST_F(ScreenWords, WindowIsMaximisedOnlyInWindowMode) {
    Play(u"WinState=2\r\n");
    EXPECT_EQ(form1.WindowState(), 2);
    Play(u"WinState=1\r\nWinState=3\r\n");
    EXPECT_EQ(form1.WindowState(), 2);
    GoFullScreen();
    Play(u"WinState=0\r\n");
    EXPECT_EQ(form1.WindowState(), 2);
    state.FullScreenActive = 0;
    Play(u"WinState=0\r\n");
    EXPECT_EQ(form1.WindowState(), 0);
}

}  // namespace
