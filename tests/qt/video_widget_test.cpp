// The video window's player on the screen.
#include "adapters/qt/video_widget.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QKeyEvent>
#include <QMouseEvent>
#include <vector>

#include "adapters/qt/desktop.h"
#include "model/windows.h"
#include "model/windows/video_window.h"
#include "support/fake_platform.h"

namespace {

/// One picture of one colour.
class StillVideo : public fakes::FakeVideo {
public:
    using FakeVideo::FakeVideo;
    platform::Size natural{64, 64};
    std::vector<uint32_t> pixels = std::vector<uint32_t>(32 * 64, 0x0012C834);  // 32 x 64 of it
    bool shows = true;

    platform::VideoState Status() override { return platform::VideoState::Playing; }
    platform::Size NaturalSize() override { return natural; }
    void SetRoom(platform::Size size) override { room = size; }
    platform::Size room;
    platform::VideoFrame Frame() override {
        if (!shows) {
            return {};
        }
        return {reinterpret_cast<const uint8_t*>(pixels.data()), 32, 64, 32 * 4, nullptr};
    }
};

struct VideoView : testing::Test {
    int argc = 0;
    qt_adapter::Desktop desktop{argc, nullptr, {true, {}}};
    fakes::FakePlatform around;
    StillVideo video{around.noTrace, around.loop};
    model::Windows windows;

    void SetUp() override { desktop.MakeViews(windows, &video); }
    void TearDown() override { desktop.UnmakeViews(); }

    QWidget* Root() { return desktop.WidgetOf(windows.form24); }
    qt_adapter::VideoWidget* Screen() {
        return Root()->findChild<qt_adapter::VideoWidget*>("WindowsMediaPlayer1");
    }
};

TEST_F(VideoView, ThePictureIsFittedInItsOwnShapeWithBlackAround) {
    ASSERT_TRUE(Screen());
    // 400 x 200: a square picture of pixels twice as wide as high stands in the middle 200 x 200.
    Root()->resize(400, 200);
    const QImage seen = Root()->grab().toImage();
    ASSERT_EQ(seen.size(), QSize(400, 200));
    const QColor picture(0x12, 0xC8, 0x34);
    for (const QPoint& inside : {QPoint(101, 1), QPoint(298, 198), QPoint(200, 100)}) {
        EXPECT_EQ(seen.pixelColor(inside), picture);
    }
    for (const QPoint& outside : {QPoint(98, 100), QPoint(301, 100), QPoint(0, 0)}) {
        EXPECT_EQ(seen.pixelColor(outside), QColor(Qt::black));
    }
}

TEST_F(VideoView, ThePlayerIsToldTheRoomInTheMonitorsPixels) {
    ASSERT_TRUE(Screen());
    windows.form24.Show();
    Root()->resize(400, 200);
    EXPECT_EQ(video.room, (platform::Size{400, 200}));
    // The model says less: the film stands in the middle of the black window.
    windows.form24.WindowsMediaPlayer1.Width = 100 * 15;
    windows.form24.WindowsMediaPlayer1.Height = 50 * 15;
    EXPECT_EQ(video.room, (platform::Size{100, 50}));
    const QImage seen = Root()->grab().toImage();
    EXPECT_EQ(seen.pixelColor(200, 100), QColor(0x12, 0xC8, 0x34));
    EXPECT_EQ(seen.pixelColor(176, 76), QColor(0x12, 0xC8, 0x34));
    for (const QPoint& outside : {QPoint(173, 100), QPoint(226, 100), QPoint(200, 74)}) {
        EXPECT_EQ(seen.pixelColor(outside), QColor(Qt::black));
    }
}

TEST_F(VideoView, APictureOfTheRightSizeIsShownPixelByPixel) {
    ASSERT_TRUE(Screen());
    video.natural = {32, 64};
    for (size_t i = 0; i < video.pixels.size(); ++i) {
        video.pixels[i] = static_cast<uint32_t>(i * 7919);
    }
    Root()->resize(32, 64);
    const QImage seen = Root()->grab().toImage();
    for (int y = 0; y < 64; ++y) {
        for (int x = 0; x < 32; ++x) {
            ASSERT_EQ(seen.pixel(x, y) & 0xFFFFFF, video.pixels[size_t(y) * 32 + x] & 0xFFFFFF);
        }
    }
}

TEST_F(VideoView, WithoutAPictureItIsBlack) {
    video.shows = false;
    Root()->resize(100, 100);
    const QImage seen = Root()->grab().toImage();
    EXPECT_EQ(seen.pixelColor(50, 50), QColor(Qt::black));
    EXPECT_EQ(seen.pixelColor(0, 0), QColor(Qt::black));
}

TEST_F(VideoView, ANewPictureAsksForARepaint) {
    ASSERT_TRUE(Screen());
    ASSERT_TRUE(video.onFrame);
    desktop.UnmakeViews();
    EXPECT_FALSE(video.onFrame);
}

TEST_F(VideoView, ClicksAndKeysReachThePlayer) {
    int clicks = 0;
    std::vector<int> keys, windowKeys;
    windows.form24.WindowsMediaPlayer1.Click.Anew() = [&] { ++clicks; };
    windows.form24.KeyDown.Anew() = [&](int key) { windowKeys.push_back(key); };
    windows.form24.Show();
    const QPointF place(20, 20);
    for (const auto kind : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        QMouseEvent event(kind, place, Screen()->mapToGlobal(place), Qt::LeftButton, Qt::LeftButton,
                          {});
        QApplication::sendEvent(Screen(), &event);
    }
    EXPECT_EQ(clicks, 1);
    const auto press = [&](int key) {
        QKeyEvent event(QEvent::KeyPress, key, {});
        QApplication::sendEvent(Screen(), &event);
    };
    press(Qt::Key_Escape);  // nobody listens at the player: the window gets it
    EXPECT_EQ(windowKeys, std::vector<int>{27});
    windows.form24.WindowsMediaPlayer1.KeyDown.Anew() = [&](int key) { keys.push_back(key); };
    press(Qt::Key_Escape);
    press(Qt::Key_Return);
    EXPECT_EQ(keys, (std::vector<int>{27, 13}));
    EXPECT_EQ(windowKeys.size(), 1u);
}

}  // namespace
