#include "picture/load.h"

#include <gtest/gtest.h>

#include "model/controls.h"
#include "model/windows/control_box.h"
#include "model/windows/declared_windows.h"
#include "model/windows/main_window.h"
#include "model/windows/picture_holder.h"
#include "model/windows/slide_list.h"
#include "model/windows/slide_screen.h"
#include "picture/screen.h"
#include "support/fake_platform.h"

namespace picture {
namespace {

using fakes::FakePlatform;
using Log = std::vector<std::string>;

constexpr int kTwips = platform::kTwipsPerPixel;

/// A main window whose preview is 800 × 450 pixels, and slides in all the lists.
struct Loading : FakePlatform {
    model::ShowState& state = app.state;
    model::Windows& windows = app.windows;
    model::Form1& form1 = app.windows.form1;
    model::Slidescreen& screen = app.windows.slidescreen;

    Loading() {
        state.MainBottomMargin = form1.Height - 8200;
        SizePreview(app);
        form1.Caption = Text(u"before");
        windows.slidescreen2.Caption = Text(u"before");
    }

    void AddSlide(const Text& path, const Text& row = model::BlankScheduleRow()) {
        windows.form3.List1.AddItem(path);
        windows.form3.List2.AddItem(row);
        const int count = windows.form3.List1.ListCount();
        state.SlideList.Set(count, path);
        state.ScheduleFrom.Set(count, model::ScheduleFromOfRow(row));
        state.ScheduleTo.Set(count, model::ScheduleToOfRow(row));
        state.SlideListEnd = static_cast<int16_t>(count + 1);
        state.SlideIndex = 1;
    }
    void AddPicture(const Text& path, int width, int height) {
        PutPicture(path, width, height);
        AddSlide(path);
    }
    void GoFullScreen() {
        screen.Load();
        screen.Width = 1920 * kTwips;
        screen.Height = 1080 * kTwips;
        SizeLayers(app);
        state.FullScreenActive = 1;
    }
    platform::Size Lead1() { return windows.form4.Lead1.imaging->HeldSize(); }
    platform::Size Lead2() { return windows.form4.Lead2.imaging->HeldSize(); }
    platform::Size Holder() {
        return {windows.form4.Picture1.ScaleWidth(), windows.form4.Picture1.ScaleHeight()};
    }
};

TEST(Load, ConvertsTo24BitsBeforeItScales) {
    Loading at;
    at.files.Put(u"C:\\pic\\a.png", "PIC 1600 600 102030 8");
    at.AddSlide(u"C:\\pic\\a.png");
    ASSERT_TRUE(LoadSlidePicture(at.app));
    EXPECT_EQ(at.imaging.log, (Log{"load C:\\pic\\a.png", "colors 24", "resize 800 300"}));
}

TEST(Load, LeavesA24BitPictureThatFitsAlone) {
    Loading at;
    at.state.SizeAdjust = 0;
    at.AddPicture(u"C:\\pic\\a.png", 400, 300);
    ASSERT_TRUE(LoadSlidePicture(at.app));
    EXPECT_EQ(at.imaging.log, (Log{"load C:\\pic\\a.png"}));
    EXPECT_EQ(at.Holder(), (platform::Size{400, 300}));
}

TEST(Load, SecondControlKeepsTheUnscaledPicture) {
    struct Setting {
        int16_t sizeAdjust, overlayMode;
        bool copied;
    };
    for (const Setting& setting :
         {Setting{0, 0, true}, {1, 0, true}, {2, 0, false}, {2, 1, true}, {2, 4, true}}) {
        Loading at;
        at.state.SizeAdjust = setting.sizeAdjust;
        at.state.OverlayMode = setting.overlayMode;
        at.files.Put(u"C:\\pic\\a.png", "PIC 1600 600 102030 8");
        at.AddSlide(u"C:\\pic\\a.png");
        ASSERT_TRUE(LoadSlidePicture(at.app));
        const platform::ImagingControl& twin = *at.windows.form4.Lead2.imaging;
        EXPECT_EQ(twin.Holds(), setting.copied) << setting.sizeAdjust << setting.overlayMode;
        if (setting.copied) {
            EXPECT_EQ(at.Lead2(), (platform::Size{1600, 600}));
            EXPECT_EQ(twin.BitsPerPixel(), 24);
        }
    }
}

TEST(Load, RemembersTheSizeBeforeScaling) {
    Loading at;
    at.AddPicture(u"C:\\pic\\a.png", 1600, 600);
    ASSERT_TRUE(LoadSlidePicture(at.app));
    EXPECT_EQ(at.state.PictureWidthPx, 1600);
    EXPECT_EQ(at.state.PictureHeightPx, 600);
    EXPECT_EQ(at.state.PictureWidthTwips, 24000);
    EXPECT_EQ(at.state.PictureHeightTwips, 9000);
    EXPECT_EQ(at.windows.form4.Picture1.Width, 12000);
    EXPECT_EQ(at.windows.form4.Picture1.Height, 4500);
}

TEST(Load, PreviewFollowsTheWindowAfterTheFit) {
    Loading at;
    at.form1.Picture1.SetSize(6000, 3375);
    at.AddPicture(u"C:\\pic\\a.png", 1600, 600);
    ASSERT_TRUE(LoadSlidePicture(at.app));
    // Fitted to the 400 pixels that the preview had; then it takes the window's size:
    // 12600 − 600 by 8800 − 1450 − (8800 − 8200).
    EXPECT_EQ(at.Holder(), (platform::Size{400, 150}));
    EXPECT_EQ(at.form1.Picture1.Width, 12000);
    EXPECT_EQ(at.form1.Picture1.Height, 6750);
    EXPECT_EQ(at.form1.Picture1.Picture(), at.windows.form4.Picture1.Picture());
    EXPECT_NE(at.form1.Picture1.Picture(), nullptr);
}

TEST(Load, NamesAndCaptions) {
    Loading at;
    at.PutPicture(u"C:\\pic\\Aoi.PNG", 10, 10);
    at.AddSlide(u"C:\\PIC\\aoi.png");
    ASSERT_TRUE(LoadSlidePicture(at.app));
    EXPECT_EQ(at.state.CurrentName, u"Aoi.PNG") << "as the disk spells it";
    EXPECT_EQ(at.state.CurrentPath, u"C:\\PIC\\aoi.png");
    EXPECT_EQ(at.form1.Caption(), u"Aoi.PNG");
    EXPECT_EQ(at.windows.slidescreen2.Caption(), u"Aoi.PNG");
}

TEST(Load, BareNameGetsTheProgramFolderAndIsStoredBack) {
    Loading at;
    at.PutPicture(u"C:\\app\\mp4.bmp", 10, 10);
    at.AddSlide(u"mp4.bmp");
    ASSERT_TRUE(LoadSlidePicture(at.app));
    EXPECT_EQ(at.state.SlideList(1), u"C:\\app\\mp4.bmp");
    EXPECT_EQ(at.state.CurrentPath, u"C:\\app\\mp4.bmp");
    EXPECT_EQ(at.windows.form3.List1.List(0), u"mp4.bmp") << "the master list stays";
}

TEST(Load, PathsWithASeparatorStayAsTheyAre) {
    for (const Text path : {u"pic\\a.png", u"/pic/a.png", u"pic/a.png"}) {
        Loading at;
        at.AddPicture(path, 10, 10);
        ASSERT_TRUE(LoadSlidePicture(at.app));
        EXPECT_EQ(at.state.SlideList(1), path);
    }
}

TEST(Load, HidesTheVideoPlaceholders) {
    Loading at;
    at.form1.Picture3.Visible = true;
    at.screen.Picture2.Visible = true;
    at.AddPicture(u"C:\\pic\\a.png", 10, 10);
    ASSERT_TRUE(LoadSlidePicture(at.app));
    EXPECT_FALSE(at.form1.Picture3.Visible);
    EXPECT_FALSE(at.screen.Picture2.Visible);
}

TEST(Load, AFailureChangesNothingOnTheScreen) {
    Loading at;
    at.AddPicture(u"C:\\pic\\a.png", 100, 50);
    at.AddSlide(u"C:\\pic\\broken.png");
    at.GoFullScreen();
    ASSERT_TRUE(LoadSlidePicture(at.app));
    at.screen.P2.canvas.Fill(0x00FFFF);
    at.files.Put(u"C:\\pic\\broken.png", "no picture");
    at.state.SlideIndex = 2;
    EXPECT_FALSE(LoadSlidePicture(at.app));
    EXPECT_EQ(at.form1.Caption(), u"a.png");
    EXPECT_EQ(at.windows.slidescreen2.Caption(), u"a.png");
    EXPECT_EQ(at.screen.P2.canvas.Point(5, 5), 0x00FFFFu);
    EXPECT_EQ(at.Lead2(), (platform::Size{100, 50}));
    EXPECT_EQ(at.state.PictureWidthPx, 100);
    EXPECT_EQ(at.state.CurrentPath, u"C:\\pic\\broken.png");
    EXPECT_EQ(at.windows.Pointer(), model::kPointerArrowBusy);
}

TEST(Load, MissingAndEmptyFilesFailLikeBrokenOnes) {
    Loading at;
    at.AddSlide(u"C:\\pic\\missing.png");
    at.AddSlide(u"C:\\pic\\empty.png");
    at.files.Put(u"C:\\pic\\empty.png", "");
    EXPECT_FALSE(LoadSlidePicture(at.app));
    at.state.SlideIndex = 2;
    EXPECT_FALSE(LoadSlidePicture(at.app));
    EXPECT_EQ(at.windows.Pointer(), model::kPointerNormal) << "busy in full screen only";
}

TEST(LoadFullScreen, FitsToTheMonitorInUse) {
    Loading at;
    at.monitors.monitors = {{0, 0, 1920, 1080}, {1920, 0, 1280, 1024}};
    at.state.MonitorIndex = 1;
    at.state.SizeAdjust = 0;
    at.AddPicture(u"C:\\pic\\a.png", 2560, 1024);
    at.GoFullScreen();
    ASSERT_TRUE(LoadSlidePicture(at.app));
    EXPECT_EQ(at.Holder(), (platform::Size{1280, 512}));
    EXPECT_EQ(at.form1.Picture1.Picture(), at.windows.form4.Picture1.Picture())
        << "the preview shows it too";
}

TEST(LoadFullScreen, WithoutOverlayTheCanvasIsCleared) {
    Loading at;
    at.AddPicture(u"C:\\pic\\a.png", 10, 10);
    at.GoFullScreen();
    at.screen.P2.canvas.Fill(0x00FFFF);
    at.state.EffectDcValid = 1;
    at.state.EraseEffect = 12;
    ASSERT_TRUE(LoadSlidePicture(at.app));
    EXPECT_EQ(at.screen.P2.canvas.Point(5, 5), 0u);
    EXPECT_EQ(at.screen.P2.Picture(), nullptr);
    EXPECT_EQ(at.state.EffectDcValid, 0);
}

TEST(LoadFullScreen, WithOverlayTheCanvasStays) {
    Loading at;
    at.AddPicture(u"C:\\pic\\a.png", 10, 10);
    at.GoFullScreen();
    at.state.OverlayMode = 1;
    at.screen.P2.canvas.Fill(0x00FFFF);
    at.state.EffectDcValid = 1;
    ASSERT_TRUE(LoadSlidePicture(at.app));
    EXPECT_EQ(at.screen.P2.canvas.Point(5, 5), 0x00FFFFu);
    EXPECT_EQ(at.state.EffectDcValid, 0);
}

TEST(LoadWindow, NothingIsErased) {
    Loading at;
    at.AddPicture(u"C:\\pic\\a.png", 10, 10);
    at.GoFullScreen();
    at.state.FullScreenActive = 0;
    at.screen.P2.canvas.Fill(0x00FFFF);
    ASSERT_TRUE(LoadSlidePicture(at.app));
    EXPECT_EQ(at.screen.P2.canvas.Point(5, 5), 0x00FFFFu);
}

TEST(LoadResetScreen, GivesTheCanvasItsGroundPlaceAndSize) {
    struct Ground {
        int16_t overlayMode;
        int color;
    };
    for (const Ground& ground : {Ground{0, 0x000000}, {2, 0xC0C0FF}}) {
        Loading at;
        at.AddPicture(u"C:\\pic\\a.png", 10, 10);
        at.GoFullScreen();
        at.state.OverlayMode = ground.overlayMode;
        at.state.OverlayBackColor = 3;  // pale red, FF C0 C0
        at.state.ResetScreenOnce = 1;
        at.screen.P2.Left = 150;
        at.screen.P2.Top = 150;
        at.screen.P2.SetSize(1500, 1500);
        at.screen.P2.canvas.Fill(0x00FFFF);
        ASSERT_TRUE(LoadSlidePicture(at.app));
        EXPECT_EQ(at.screen.P2.BackColor(), ground.color);
        EXPECT_EQ(at.screen.P2.canvas.Point(5, 5), static_cast<platform::Color>(ground.color));
        EXPECT_EQ(at.screen.P2.canvas.Point(1919, 1079),
                  static_cast<platform::Color>(ground.color));
        EXPECT_EQ(at.screen.P2.Left, 0);
        EXPECT_EQ(at.screen.P2.Top, 0);
        EXPECT_EQ(at.screen.P2.Width, 28800);
        EXPECT_EQ(at.screen.P2.Height, 16200);
        EXPECT_EQ(at.state.ResetScreenOnce, 0);
    }
}

TEST(LoadRandomShare, DrawsOneNumberInFullScreenOnly) {
    Loading at;
    at.state.SizeAdjust = 0;
    at.state.OverlaySize = 5;
    at.AddPicture(u"C:\\pic\\a.png", 4000, 3000);
    at.loop.randomNumbers = {0.6, 0.25};
    ASSERT_TRUE(LoadSlidePicture(at.app));
    EXPECT_EQ(at.loop.randomNumbers.size(), 2u);
    at.GoFullScreen();
    ASSERT_TRUE(LoadSlidePicture(at.app));
    // 0.5 × 0.6 + 0.2 = half of the screen, on both axes.
    EXPECT_EQ(at.Holder(), (platform::Size{720, 540}));
    EXPECT_EQ(at.loop.randomNumbers.size(), 1u);
}

/// Three slides of which the second fails.
struct Failing : Loading {
    int unloadedViews = 0;

    Failing() {
        AddPicture(u"C:\\pic\\1.png", 10, 10);
        AddSlide(u"C:\\pic\\2.png", u"2026/01/0110:002026/01/0211:00");
        AddSlide(u"C:\\pic\\3.png", u"2026/02/0112:002026/02/0213:00");
        state.SlideIndex = 2;
        state.ResumeIndex = 2;
        state.CurrentPath = u"C:\\pic\\2.png";
        form1.Timer1.Interval = 3000;
        form1.Picture1.SetPicture(std::make_shared<platform::Bitmap>(10, 10));
        windows.form4.Picture1.SetPicture(std::make_shared<platform::Bitmap>(10, 10));
        windows.form5.OnUnload.Anew() = [this] { ++unloadedViews; };
        windows.form5.Load();
        windows.SetPointer(model::kPointerArrowBusy);
    }
    void ExpectEmptyPreviews() {
        EXPECT_EQ(form1.Picture1.Picture(), nullptr);
        EXPECT_EQ(windows.form4.Picture1.Picture(), nullptr);
        EXPECT_EQ(windows.Pointer(), model::kPointerNormal);
    }
    void ExpectListsUntouched() {
        EXPECT_EQ(windows.form3.List1.ListCount(), 3);
        EXPECT_EQ(windows.form3.List2.ListCount(), 3);
        EXPECT_EQ(state.SlideList(2), u"C:\\pic\\2.png");
        EXPECT_EQ(state.SlideListEnd, 4);
        EXPECT_EQ(state.SlideIndex, 2);
        EXPECT_EQ(state.ResumeIndex, 2);
        EXPECT_EQ(unloadedViews, 0);
    }
    void ExpectEntryRemoved() {
        EXPECT_EQ(windows.form3.List1.ListCount(), 2);
        EXPECT_EQ(windows.form3.List1.List(1), u"C:\\pic\\3.png");
        EXPECT_EQ(windows.form3.List2.ListCount(), 2);
        EXPECT_EQ(windows.form3.List2.List(1), u"2026/02/0112:002026/02/0213:00");
        EXPECT_EQ(state.SlideList(1), u"C:\\pic\\1.png");
        EXPECT_EQ(state.SlideList(2), u"C:\\pic\\3.png");
        EXPECT_EQ(state.SlideList(3), u"");
        EXPECT_EQ(state.ScheduleFrom(2), u"2026/02/01 12:00");
        EXPECT_EQ(state.ScheduleTo(2), u"2026/02/02 13:00");
        EXPECT_EQ(state.ScheduleFrom(3), u"");
        EXPECT_EQ(state.ScheduleTo(3), u"");
        EXPECT_EQ(state.SlideListEnd, 3);
        EXPECT_EQ(state.SlideIndex, 1);
        EXPECT_EQ(state.ResumeIndex, 0);
        EXPECT_EQ(windows.form3.Label4.Caption(), u"2");
        EXPECT_EQ(form1.Timer1.Interval, 10);
        EXPECT_EQ(state.ShowAbort, 0);
        EXPECT_EQ(unloadedViews, 1);
    }
};

/// Slides f.avi, 1, 2, g.AVI, 3, each with a day of its own, as a document leaves them: the lists
/// know nothing of the films.
void AviFirst(Loading& at) {
    for (const char16_t day : {u'1', u'2', u'3'}) {
        at.AddSlide(u"C:\\pic\\" + Text(1, day) + u".png",
                    u"2026/0" + Text(1, day) + u"/01" + Text(20, u' '));
    }
    const Text slides[]{u"f.avi", u"1.png", u"2.png", u"g.AVI", u"3.png"};
    const Text days[]{u"2020/01", u"2026/01", u"2026/02", u"2021/01", u"2026/03"};
    for (int i = 1; i <= 5; ++i) {
        at.state.SlideList.Set(i, u"C:\\pic\\" + slides[i - 1]);
        at.state.ScheduleFrom.Set(i, days[i - 1] + u"/01      ");
        at.state.ScheduleTo.Set(i, Text(16, u' '));
    }
    at.state.SlideListEnd = 6;
}

TEST(LoadFailure, AsksAndRemovesOnYes) {
    Failing at;
    at.dialogs.answers = {platform::Answer::Yes};
    HandleLoadFailure(at.app);
    at.ExpectEmptyPreviews();
    ASSERT_EQ(at.dialogs.messages.size(), 1u);
    EXPECT_EQ(at.dialogs.messages[0].text,
              u"C:\\pic\\2.png\r\n画像ファイルが読み込めません。\r\n"
              u"スライドリストから削除して継続しますか？");
    EXPECT_EQ(at.dialogs.messages[0].flags, 36);
    EXPECT_EQ(at.dialogs.messages[0].title, u"画像ファイル読込エラー");
    at.ExpectEntryRemoved();
}

TEST(LoadFailure, TakesItsOwnRowsAfterAFilmThatTheListsLeaveOut) {
    Loading at;
    AviFirst(at);
    at.state.SlideIndex = 3;
    at.state.ListErrorDelete = 1;
    HandleLoadFailure(at.app);
    EXPECT_EQ(at.windows.form3.List1.ListCount(), 2);
    EXPECT_EQ(at.windows.form3.List1.List(0), u"C:\\pic\\1.png");
    EXPECT_EQ(at.windows.form3.List1.List(1), u"C:\\pic\\3.png");
    EXPECT_EQ(at.windows.form3.List2.List(1), u"2026/03/01" + Text(20, u' '));
    const Text slides[]{u"C:\\pic\\f.avi", u"C:\\pic\\1.png", u"C:\\pic\\g.AVI", u"C:\\pic\\3.png",
                        u""};
    const Text blank(6, u' ');
    const Text from[]{u"2020/01/01" + blank, u"2026/01/01" + blank, u"2021/01/01" + blank,
                      u"2026/03/01" + blank, u""};
    for (int i = 1; i <= 5; ++i) {
        EXPECT_EQ(at.state.SlideList(i), slides[i - 1]) << i;
        EXPECT_EQ(at.state.ScheduleFrom(i), from[i - 1]) << i;
    }
    EXPECT_EQ(at.state.SlideListEnd, 5);
    EXPECT_EQ(at.state.SlideIndex, 2);
    EXPECT_EQ(at.state.ResumeIndex, 1);
    EXPECT_EQ(at.windows.form3.Label4.Caption(), u"2");
    EXPECT_EQ(at.state.ShowAbort, 0);
}

TEST(LoadFailure, FilmsThatAreLeftGoOn) {
    Loading at;
    AviFirst(at);
    at.state.ListErrorDelete = 1;
    for (const int16_t slide : {2, 2, 3}) {  // later ones move up
        at.state.SlideIndex = slide;
        HandleLoadFailure(at.app);
    }
    EXPECT_TRUE(at.dialogs.messages.empty());
    EXPECT_EQ(at.state.ShowAbort, 0);
    EXPECT_EQ(at.state.SlideListEnd, 3);
    EXPECT_EQ(at.state.SlideList(2), u"C:\\pic\\g.AVI");
    EXPECT_EQ(at.windows.form3.List1.ListCount(), 0);
}

TEST(LoadFailure, EndsTheShowOnNo) {
    Failing at;
    at.dialogs.answers = {platform::Answer::No};
    HandleLoadFailure(at.app);
    at.ExpectEmptyPreviews();
    at.ExpectListsUntouched();
    EXPECT_EQ(at.state.ShowAbort, 1);
}

TEST(LoadFailure, RemovesWithoutAskingWhereThatIsSet) {
    Failing at;
    at.state.ListErrorDelete = 1;
    HandleLoadFailure(at.app);
    at.ExpectEmptyPreviews();
    EXPECT_TRUE(at.dialogs.messages.empty());
    at.ExpectEntryRemoved();
}

TEST(LoadFailure, MinimisedNeitherAsksNorRemoves) {
    for (const int16_t automatic : {0, 1}) {
        Failing at;
        at.state.ListErrorDelete = automatic;
        at.form1.WindowState = 1;
        HandleLoadFailure(at.app);
        at.ExpectEmptyPreviews();
        at.ExpectListsUntouched();
        EXPECT_TRUE(at.dialogs.messages.empty());
        EXPECT_EQ(at.form1.Timer1.Interval, 3000);
        EXPECT_EQ(at.state.ShowAbort, 0);
    }
}

TEST(LoadFailure, AnAbortThatCameFirstNeitherAsksNorRemoves) {
    Failing at;
    at.state.ShowAbort = 1;
    HandleLoadFailure(at.app);
    at.ExpectEmptyPreviews();
    at.ExpectListsUntouched();
    EXPECT_TRUE(at.dialogs.messages.empty());
    EXPECT_EQ(at.form1.Timer1.Interval, 3000);
}

TEST(LoadFailure, TheLastPictureOfTheListEndsTheShow) {
    Loading at;
    at.AddSlide(u"C:\\pic\\1.png");
    at.state.ListErrorDelete = 1;
    HandleLoadFailure(at.app);
    ASSERT_EQ(at.dialogs.messages.size(), 1u);
    EXPECT_EQ(at.dialogs.messages[0].text, u"スライドリストに　画像ファイルが見つかりません。");
    EXPECT_EQ(at.dialogs.messages[0].flags, 48);
    EXPECT_EQ(at.dialogs.messages[0].title, u"パラピコ");
    for (model::Button* button :
         {&at.form1.Command1, &at.form1.Command2, &at.form1.Command3, &at.form1.Command4}) {
        EXPECT_FALSE(button->Enabled) << button->Name();
    }
    EXPECT_EQ(at.state.ShowAbort, 1);
    EXPECT_EQ(at.state.SlideList(1), u"");
    EXPECT_EQ(at.state.SlideListEnd, 1);
    EXPECT_EQ(at.state.SlideIndex, 0);
    EXPECT_EQ(at.windows.form3.Label4.Caption(), u"0");
    EXPECT_EQ(at.form1.Timer1.Interval, 10);
}

TEST(LoadFailure, TouchesNoFile) {
    Failing at;
    at.files.Put(u"C:\\pic\\2.png", "broken");
    at.state.DocumentPath = u"C:\\show\\a.kvs";
    at.state.ListErrorDelete = 1;
    HandleLoadFailure(at.app);
    EXPECT_TRUE(at.files.written.empty());
    ASSERT_NE(at.files.Get(u"C:\\pic\\2.png"), nullptr);
    EXPECT_EQ(at.files.Get(u"C:\\pic\\2.png")->content, "broken");
}

}  // namespace
}  // namespace picture
