// A click on a slide: its preview, and the buttons that work on it.
#include "model/sound_modes.h"
#include "slide_list_support.h"

namespace authoring {
namespace {

struct Selection : SlideListTest {
    void SetUp() override {
        SlideListTest::SetUp();
        form3.Frame1.Width = 4000;
        form3.Frame1.Height = 2000;
    }
};

TEST_F(Selection, OnePictureWithoutLinkedFiles) {
    Fill({u"C:\\s\\a.png", u"C:\\s\\b.mp4"});
    form3.List1.Choose({0});
    EXPECT_EQ(EnabledSlideButtons(), "16 18 20 25 ");
    EXPECT_EQ(state.ListWasClicked, 1);
}

TEST_F(Selection, OneFilm) {
    Fill({u"C:\\s\\a.png", u"C:\\s\\b.mp4"});
    files.Put(u"C:\\s\\b.txt", "x");
    files.Put(u"C:\\s\\b.wav", "x");
    form3.List1.Choose({1});
    EXPECT_EQ(EnabledSlideButtons(), "18 19 20 ");
}

TEST_F(Selection, TwoSlides) {
    Fill({u"C:\\s\\a.png", u"C:\\s\\c.png"});
    EnableSlideButtons();
    form3.List1.Choose({0, 1});
    EXPECT_EQ(EnabledSlideButtons(), "");
}

TEST_F(Selection, LinkedFilesOfTheModeInForce) {
    Fill({u"C:\\s\\a.png"});
    files.Put(u"C:\\s\\a.txt", "x");
    files.Put(u"C:\\s\\a.mp3", "x");
    form3.List1.Choose({0});
    EXPECT_EQ(EnabledSlideButtons(), "16 17 18 20 25 ");
    state.SoundMode = model::kLinkedMp3Sound;
    form3.List1.Choose({0});
    EXPECT_EQ(EnabledSlideButtons(), "16 17 18 19 20 25 ");
}

TEST_F(Selection, LinkedFilesOfTheLinkedFolder) {
    Fill({u"C:\\s\\a.png"});
    files.Put(u"C:\\s\\a.png", "x");
    files.Put(u"C:\\s\\a.txt", "x");
    files.Put(u"D:\\l\\a.wav", "x");
    state.LinkedFolderFlag = 1;
    state.LinkedFolder = u"D:\\l";
    form3.List1.Choose({0});
    EXPECT_EQ(EnabledSlideButtons(), "16 18 19 20 25 ");
}

TEST_F(Selection, WithoutThePreviewNoButtonChanges) {
    Fill({u"C:\\s\\a.png"});
    PutPicture(u"C:\\s\\a.png", 40, 30);
    form3.Check1.Press();
    EXPECT_EQ(state.ListShowPicture, 0);
    form3.List1.Choose({0});
    EXPECT_EQ(EnabledSlideButtons(), "");
    EXPECT_EQ(state.LastPreviewPath, u"");
    EXPECT_FALSE(form3.Image1.Picture());
    EXPECT_EQ(state.ListWasClicked, 1);
}

TEST_F(Selection, ThePreviewTakesNineTenthsOfItsFrameALittleBelowItsCentre) {
    Fill({u"C:\\s\\wide.png", u"C:\\s\\tall.png"});
    PutPicture(u"C:\\s\\wide.png", 40, 10);
    PutPicture(u"C:\\s\\tall.png", 10, 30);
    form3.List1.Choose({0});
    EXPECT_EQ(form3.Image1.Width, 3600);
    EXPECT_EQ(form3.Image1.Height, 900);
    EXPECT_EQ(form3.Image1.Left, 200);
    EXPECT_EQ(form3.Image1.Top, 610);
    EXPECT_EQ(form3.Image1.Picture()->width, 40);
    EXPECT_EQ(form3.Picture1.Picture(), form3.Image1.Picture());
    EXPECT_EQ(state.LastPreviewPath, u"C:\\s\\wide.png");
    EXPECT_EQ(windows.Pointer(), 0);
    form3.List1.Choose({1});
    EXPECT_EQ(form3.Image1.Width, 600);
    EXPECT_EQ(form3.Image1.Height, 1800);
    form3.Frame1.Height = 4000;
    EXPECT_EQ(form3.Image1.Height, 3600);
    EXPECT_EQ(form3.Image1.Top, 260);
}

TEST_F(Selection, TheSamePathIsLoadedOnce) {
    Fill({u"C:\\s\\a.png", u"C:\\s\\a.png"});
    PutPicture(u"C:\\s\\a.png", 40, 10);
    form3.List1.Choose({0});
    form3.List1.Choose({1});
    EXPECT_THAT(imaging.log, ElementsAre("load C:\\s\\a.png"));
    form3.List1.Choose({0});
    form3.Command5.Press();
    EXPECT_FALSE(form3.Image1.Picture());
    EXPECT_FALSE(form3.Picture1.Picture());
    form3.List1.Choose({0});
    EXPECT_TRUE(form3.Image1.Picture());
}

TEST_F(Selection, AFilmIsShownByTheProgramsOwnPicture) {
    PutPicture(u"C:\\app\\mp4.bmp", 40, 10);
    state.AppFolder = u"C:\\app\\";
    Fill({u"C:\\s\\a.MP4", u"C:\\s\\bad.png"});
    form3.List1.Choose({0});
    EXPECT_THAT(imaging.log, ElementsAre("load C:\\app\\mp4.bmp"));
    EXPECT_TRUE(form3.Image1.Picture());
    form3.List1.Choose({1});
    EXPECT_FALSE(form3.Image1.Picture());
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

TEST_F(Selection, ALargePictureIsBroughtToTheFramesSize) {
    Fill({u"C:\\s\\a.png"});
    PutPicture(u"C:\\s\\a.png", 4000, 3000);
    form3.List1.Choose({0});
    EXPECT_EQ(form3.Image1.Width, 2400);
    EXPECT_EQ(form3.Image1.Height, 1800);
    EXPECT_EQ(form3.Image1.Picture()->width, 320);  // two pixels for one
}

}  // namespace
}  // namespace authoring
