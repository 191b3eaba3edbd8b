// Clicks on pieces with a place: the shape takes them, what lies beside it does not.
#include <gtest/gtest.h>

#include "model/picture_controls.h"
#include "model/windows/main_window.h"
#include "robot_run.h"

namespace robot {
namespace {

TEST(CutoutClicks, APressBesideTheShapeIsOneOnTheCanvas) {
    RobotRun run(
        "click Form1.Picture2(3) 5 1\n"
        "click Form1.Picture2(3) 5 5\n"
        "click Form1.Picture2(3) 0 0\n"
        "click Form1.Picture2(3) 10 5\n"
        "click Form1.Picture2(3)\n"
        "quit\n");
    model::PictureBox& piece = run.windows.form1.Picture2(3);
    piece.SetPicture(std::make_shared<platform::Bitmap>(10, 10));
    piece.SetWindowRgn(
        platform::CreatePolyPolygonRgn({{5, 0}, {0, 5}, {5, 10}, {10, 5}}, {10, 10}));
    piece.Visible = true;
    int onPiece = 0, onCanvas = 0;
    piece.Click = [&] { ++onPiece; };
    run.windows.form1.Picture1.Click = [&] { ++onCanvas; };
    EXPECT_EQ(run.Play(), 0);
    EXPECT_EQ(onPiece, 3);
    EXPECT_EQ(onCanvas, 2);
}

TEST(CutoutClicks, AWholePieceTakesThemAll) {
    RobotRun run("click Form1.Picture2(3) 0 0\nquit\n");
    model::PictureBox& piece = run.windows.form1.Picture2(3);
    piece.SetPicture(std::make_shared<platform::Bitmap>(10, 10));
    piece.Visible = true;
    int onPiece = 0;
    piece.Click = [&] { ++onPiece; };
    EXPECT_EQ(run.Play(), 0);
    EXPECT_EQ(onPiece, 1);
}

}  // namespace
}  // namespace robot
