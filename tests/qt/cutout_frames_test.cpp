// What a person sees of cut-out pieces, frame by frame: no trails, no flicker, shapes as regions.
#include <gtest/gtest.h>

#include <QApplication>
#include <QFontInfo>
#include <QImage>
#include <QMouseEvent>
#include <QWidget>
#include <algorithm>

#include "adapters/qt/desktop.h"
#include "adapters/qt/form_loader.h"
#include "macro/macro.h"
#include "model/picture_controls.h"
#include "model/windows/slide_screen.h"
#include "support/fake_platform.h"

namespace {

using qt_adapter::Desktop;

constexpr int kWidth = 160, kHeight = 120;
constexpr QRgb kPiece = 0xFFFF8000;

platform::Pixel PhotoPixel(int x, int y) {
    return 0xFF000000u | static_cast<uint32_t>(x * 97 % 256) << 16 |
           static_cast<uint32_t>(y * 53 % 256) << 8 | static_cast<uint32_t>(x * y % 256);
}

struct CutoutFrames : testing::Test {
    int argc = 0;
    Desktop desktop{argc, nullptr, {true, {}}};
    fakes::FakePlatform fake;
    Application& app = fake.app;
    model::Slidescreen& screen = app.windows.slidescreen;
    std::vector<std::string> wrong;  // what the frames showed where they should not
    int frames = 0;

    void SetUp() override {
        app.state.TextMacroFlag = 0;
        app.state.FullScreenActive = 1;
        app.state.SlideList.Set(1, u"C:\\show\\p1.bmp");
        app.state.SlideListEnd = 2;
        app.state.SlideIndex = 1;
        SetPixels({kWidth, kHeight});
        fake.files.Put(u"C:\\show\\piece.bmp", "PIC 40 30 ff8000");
        desktop.MakeViews(app.windows);
        screen.Show();
        macro::ClearMacroObjects(app);
        desktop.Loop().PumpEvents();
    }
    void TearDown() override { desktop.UnmakeViews(); }

    /// The canvas keeps its units.
    void SetPixels(platform::Size pixels) {
        screen.Width = pixels.width * 15;
        screen.Height = pixels.height * 15;
        for (model::PictureBox* layer : {&screen.P2, &screen.P3, &screen.P4}) {
            layer->SetSize(kWidth * 15, kHeight * 15, pixels);
            for (int y = 0; y < pixels.height; ++y) {
                for (int x = 0; x < pixels.width; ++x) {
                    layer->canvas.Writable().Row(y)[x] = PhotoPixel(x, y);
                }
            }
            layer->canvas.Touch({0, 0, pixels.width, pixels.height});
        }
    }

    QImage Frame() {
        desktop.Loop().PumpEvents();
        return desktop.WidgetOf(screen)->grab().toImage();
    }
    struct Standing {
        int left, top;  // pixels
        const platform::Bitmap& shown;
        platform::RegionPtr region;

        bool Covers(int x, int y) const {
            const int inX = x - left, inY = y - top;
            return inX >= 0 && inY >= 0 && inX < shown.width && inY < shown.height &&
                   (!region || region->Contains(inX, inY));
        }
    };
    std::vector<Standing> Pieces() {
        const platform::Scale& scale = screen.P2.canvas.Scaling();
        std::vector<Standing> pieces;
        for (auto& piece : screen.Picture1) {
            if (piece->Visible) {
                pieces.push_back({scale.X(piece->Left), scale.Y(piece->Top), piece->Shown(),
                                  piece->WindowRgn()});
            }
        }
        return pieces;
    }
    /// The photo with every piece that stands, by the region it has.
    static QRgb Expected(const std::vector<Standing>& pieces, int x, int y) {
        const bool covered = std::any_of(pieces.begin(), pieces.end(),
                                         [&](const Standing& piece) { return piece.Covers(x, y); });
        return covered ? kPiece : PhotoPixel(x, y);
    }
    void CheckFrame() {
        ++frames;
        const QImage frame = Frame();
        const platform::Size& pixels = screen.P2.canvas.Scaling().pixels;
        const std::vector<Standing> pieces = Pieces();
        ASSERT_EQ(frame.size(), QSize(pixels.width, pixels.height));
        for (int y = 0; y < pixels.height; ++y) {
            for (int x = 0; x < pixels.width; ++x) {
                if ((frame.pixel(x, y) | 0xFF000000u) != Expected(pieces, x, y)) {
                    wrong.push_back("frame " + std::to_string(frames) + " at " + std::to_string(x) +
                                    "," + std::to_string(y));
                    return;
                }
            }
        }
    }
    void Play(TextView macro) {
        fake.PutText(u"C:\\show\\p1.txt", macro);
        macro::RunTextMacro(app);
    }
};

TEST_F(CutoutFrames, AMovingPieceLeavesNoTrail) {
    for (const TextView type : {u"0", u"1", u"2", u"3", u"4"}) {
        frames = 0;
        fake.loop.onPump = [this] { CheckFrame(); };
        Play(Text(u"PicPBType=") + Text(type) +
             u"\r\nCurrentX=20\r\nCurrentY=15\r\nPicPB1(0,\"piece.bmp\",\"\")\r\nMovPB1(12,-9)\r\n"
             u"MovPB1(-40,5)\r\nPicPB1(0,\"\",\"\")\r\n");
        fake.loop.onPump = nullptr;
        CheckFrame();
        EXPECT_GT(frames, 40);
        EXPECT_EQ(wrong, std::vector<std::string>()) << "shape " << text::ToUtf8(type);
    }
}

TEST_F(CutoutFrames, APieceOnAnEnlargedCanvasLeavesNoTrail) {
    fake.files.Put(u"C:\\show\\cut.dat", "KVS_PICTYPE_DATA\r\n5,4\r\n35,8\r\n20,25\r\n");
    for (const platform::Size pixels :
         {platform::Size{320, 240}, {213, 160}, {114, 85}, {160, 120}}) {
        SetPixels(pixels);
        fake.loop.onPump = [this] { CheckFrame(); };
        for (const TextView type : {u"PicPBType=0", u"PicPBType=3", u"PicPBData(1,\"cut.dat\")"}) {
            Play(Text(type) +
                 u"\r\nCurrentX=20\r\nCurrentY=15\r\nPicPB1(0,\"piece.bmp\",\"\")\r\nMovPB1(7,-5)"
                 u"\r\nMovPB1(-13,5)\r\nPicPB1(0,\"\",\"\")\r\n");
        }
        fake.loop.onPump = nullptr;
        CheckFrame();
        EXPECT_EQ(wrong, std::vector<std::string>()) << pixels.width;
        wrong.clear();
    }
}

TEST_F(CutoutFrames, ButtonsAndTheScrollingTextGrowWithTheCanvas) {
    SetPixels({320, 240});
    screen.menu1.Caption = Text(u"menu");
    screen.menu1.Left = 10;
    screen.menu1.Top = 20;
    screen.menu1.Visible = true;
    screen.Label1.FontName = Text(u"ＭＳ ゴシック");
    screen.Label1.FontSize = 18;
    screen.Label1.Caption = Text(u"流れる");
    screen.Label1.Width = 72;
    screen.Label1.Height = 24;
    screen.Label1.Left = -3;
    screen.Label1.Top = 60;
    screen.Label1.Visible = true;
    desktop.Loop().PumpEvents();
    QWidget* window = desktop.WidgetOf(screen);
    const auto* button = window->findChild<QWidget*>(qt_adapter::WidgetName("menu1"));
    ASSERT_NE(button, nullptr);
    EXPECT_EQ(button->pos(), QPoint(20, 40));
    EXPECT_EQ(button->width(), screen.menu1.Width / 15 * 2);
    EXPECT_DOUBLE_EQ(button->font().pointSizeF(),
                     2 * QFontInfo(QApplication::font(button)).pointSizeF());
    const auto* label = window->findChild<QWidget*>(qt_adapter::WidgetName("Label1"));
    ASSERT_NE(label, nullptr);
    EXPECT_EQ(label->pos(), QPoint(-6, 120));
    // 18 points are 24 pixels, and three full-width letters as many each.
    EXPECT_EQ(QFontInfo(label->font()).pixelSize(), 48);
    EXPECT_EQ(label->fontMetrics().horizontalAdvance(QStringLiteral("流れる")), 144);
    EXPECT_GE(label->width(), 144);
    // Another monitor: they follow at once.
    SetPixels({480, 360});
    EXPECT_EQ(button->pos(), QPoint(30, 60));
    EXPECT_EQ(QFontInfo(label->font()).pixelSize(), 72);
}

TEST_F(CutoutFrames, APolygonWithABoxLeavesNoTrail) {
    fake.files.Put(u"C:\\show\\cut.dat", "KVS_PICTYPE_DATA\r\n5,4\r\n35,8\r\n20,25\r\n");
    fake.loop.onPump = [this] { CheckFrame(); };
    Play(u"PicPBData(1,\"cut.dat\")\r\nPicPB1(0,\"piece.bmp\",\"\")\r\nMovPB1(30,20)\r\n");
    fake.loop.onPump = nullptr;
    EXPECT_EQ(wrong, std::vector<std::string>());
    EXPECT_EQ(Frame().pixel(30 + 6, 20 + 5) | 0xFF000000u, kPiece);
}

TEST_F(CutoutFrames, AReplacedPictureOfTheSameSizeIsSeen) {
    fake.files.Put(u"C:\\show\\other.bmp", "PIC 40 30 00ff00");
    Play(u"PicPB1(0,\"piece.bmp\",\"\")\r\n");
    EXPECT_EQ(Frame().pixel(5, 5) | 0xFF000000u, kPiece);
    Play(u"PicPB1(0,\"other.bmp\",\"\")\r\n");
    EXPECT_EQ(Frame().pixel(5, 5) | 0xFF000000u, 0xFF00FF00u);
}

TEST_F(CutoutFrames, APressBesideTheShapeGoesToTheCanvas) {
    Play(u"PicPBType=2\r\nPicPB1(0,\"piece.bmp\",\"\")\r\n");
    desktop.Loop().PumpEvents();
    QWidget* canvas = desktop.WidgetOf(screen)->findChild<QWidget*>("P2");
    QWidget* piece =
        desktop.WidgetOf(screen)->findChild<QWidget*>(qt_adapter::WidgetName("Picture1(1)"));
    ASSERT_NE(canvas, nullptr);
    ASSERT_NE(piece, nullptr);
    EXPECT_EQ(canvas->childAt(20, 15), piece);
    EXPECT_NE(canvas->childAt(1, 1), piece);
    EXPECT_EQ(piece->cursor().shape(), Qt::ArrowCursor);
}

TEST_F(CutoutFrames, AClickablePieceHasAHand) {
    fake.loop.At(10, [&] { app.state.StopRequest = 1; });
    Play(u"PicPB1(1,\"piece.bmp\",\"\")\r\n");
    QWidget* piece =
        desktop.WidgetOf(screen)->findChild<QWidget*>(qt_adapter::WidgetName("Picture1(1)"));
    EXPECT_EQ(piece->cursor().shape(), Qt::PointingHandCursor);
}

TEST_F(CutoutFrames, AShapeOfNothingIsNotSeen) {
    fake.files.Put(u"C:\\show\\cut.dat", "KVS_PICTYPE_DATA\r\n5,4\r\n6,4\r\n7,4\r\n");
    Play(u"PicPBData(1,\"cut.dat\")\r\nPicPB1(0,\"piece.bmp\",\"\")\r\n");
    CheckFrame();
    EXPECT_EQ(wrong, std::vector<std::string>());
    EXPECT_EQ(Frame().pixel(5, 4), PhotoPixel(5, 4));
}

}  // namespace
