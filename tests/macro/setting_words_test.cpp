// Words that set what the menus set, and what they set for the show alone.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "macro_support.h"
#include "model/menu.h"
#include "model/windows/main_window.h"
#include "model/windows/picture_holder.h"

namespace {

using macro_tests::MacroShow;
using testing::ElementsAre;

struct SettingWords : testing::Test, MacroShow {};

/// The word with each value sets the field; the menu follows unless told otherwise.
struct Value {
    const char16_t* line;
    int field;
    int checked;  // -1: not looked at
};

template <class Field>
void ExpectEach(MacroShow& show, Field model::ShowState::*field, model::MenuArray& menu,
                std::initializer_list<Value> values) {
    for (const Value& value : values) {
        show.Play(value.line);
        EXPECT_EQ(show.state.*field, value.field) << text::ToUtf8(value.line);
        for (int i = 0; value.checked >= 0 && i < menu.Count(); ++i) {
            EXPECT_EQ(menu(i).Checked(), i == value.checked) << text::ToUtf8(value.line) << i;
        }
    }
}

TEST_F(SettingWords, OverlapStoresAnythingButTheMenuKnowsOnlyItsOwn) {
    ExpectEach(*this, &model::ShowState::OverlayMode, form1.mnuKASANE,
               {{u"Overlap=4", 4, 4}, {u"Overlap=2.9", 3, 3}, {u"Overlap=1", 1, 1}});
    EXPECT_EQ(state.ResetScreenOnce, 1);
    EXPECT_TRUE(form1.mnuKAHAI.Visible);
    state.ResetScreenOnce = 0;
    ExpectEach(*this, &model::ShowState::OverlayMode, form1.mnuKASANE,
               {{u"Overlap=9", 9, 1}, {u"Overlap=-1", -1, 1}, {u"Overlap=5", 5, 1}});
    EXPECT_EQ(state.ResetScreenOnce, 0);
    Play(u"Overlap=0\r\n");
    EXPECT_FALSE(form1.mnuKAHAI.Visible);
}

TEST_F(SettingWords, DownSizeTakesSevenSizes) {
    ExpectEach(*this, &model::ShowState::OverlaySize, form1.mnuKASAS,
               {{u"DownSize=6", 6, 6},
                {u"DownSize=2.9", 2, 2},
                {u"DownSize=10", 2, 2},
                {u"DownSize=100", 2, 2},
                {u"DownSize=7", 2, 2},
                {u"DownSize=6.5", 2, 2},
                {u"DownSize=-1", 2, 2},
                {u"DownSize=0", 0, 0}});
}

TEST_F(SettingWords, EffectsCountFromNone) {
    ExpectEach(*this, &model::ShowState::ShowEffect, form1.mnuHKO,
               {{u"Kouka=1", 0, 0},
                {u"Kouka=0", 11, 11},
                {u"Kouka=11", 10, 10},
                {u"Kouka=12", 10, 10},
                {u"Kouka=-1", 10, 10}});
    ExpectEach(*this, &model::ShowState::EraseEffect, form1.mnuSYOUKO,
               {{u"DelKouka=1", 0, 0},
                {u"DelKouka=0", 12, 12},
                {u"DelKouka=12", 11, 11},
                {u"DelKouka=13", 11, 11}});
}

TEST_F(SettingWords, EffectSpeeds) {
    Play(u"KoukaSP=-60\r\nDelKoukaSP=10\r\n");
    EXPECT_EQ(state.ShowEffectSpeed, -60);
    EXPECT_EQ(state.EraseEffectSpeed, 10);
    Play(u"KoukaSP=-2.5\r\nDelKoukaSP=11\r\n");
    EXPECT_EQ(state.ShowEffectSpeed, -3) << "rounded down";
    EXPECT_EQ(state.EraseEffectSpeed, 10);
    Play(u"KSPSet=1\r\n");
    EXPECT_EQ(state.EffectSpeedFixed, 1);
    EXPECT_EQ(state.ShowEffectSpeed, -30);
    EXPECT_EQ(state.EraseEffectSpeed, -30);
    EXPECT_FALSE(form1.mnuHKSP.Visible || form1.mnuSKSP.Visible);
    EXPECT_TRUE(form1.mnuKSPSEL(1).Checked);
    Play(u"KoukaSP=5\r\nKSPSet=2\r\n");
    EXPECT_EQ(state.EffectSpeedFixed, 1);
    EXPECT_EQ(state.ShowEffectSpeed, -30) << "still fixed";
    Play(u"KSPSet=0\r\nKoukaSP=5\r\nKSPSet=2\r\n");
    EXPECT_EQ(state.EffectSpeedFixed, 0);
    EXPECT_EQ(state.ShowEffectSpeed, 5);
    EXPECT_TRUE(form1.mnuHKSP.Visible && form1.mnuSKSP.Visible);
}

TEST_F(SettingWords, PlaceOfThePictureInPercent) {
    Play(u"Position=50.25\r\n");
    EXPECT_EQ(state.PicturePositionFixed, 1);
    EXPECT_EQ(state.PicturePositionXFactor, 0.5);
    EXPECT_EQ(state.PicturePositionYFactor, 0.25);
    Play(u"Position=10.5\r\n");
    EXPECT_EQ(state.PicturePositionXFactor, 0.1);
    EXPECT_EQ(state.PicturePositionYFactor, 0.05) << "five percent, not fifty";
    Play(u"Position=100.200\r\n");
    EXPECT_EQ(state.PicturePositionXFactor, 1);
    EXPECT_EQ(state.PicturePositionYFactor, 1);
    Play(u"Position=-5.100\r\n");
    EXPECT_EQ(state.PicturePositionXFactor, 0);
    Play(u"Position=100     .5\r\n");
    EXPECT_EQ(state.PicturePositionFixed, 0) << "the point lies after the eighth character";
}

TEST_F(SettingWords, PlaceWithoutAPointIsByChanceOrInTheMiddle) {
    ExpectEach(*this, &model::ShowState::PicturePosition, form1.mnuHICHI,
               {{u"Position=1", 1, 1},
                {u"Position=2", 1, 1},
                {u"Position=0", 0, 0},
                {u"PicRnd=1", 1, 1},
                {u"PicRnd=7", 1, 1},
                {u"PicRnd=0", 0, 0}});
    for (const char16_t* line : {u"PicRnd=9", u"Position=9"}) {
        state.PicturePositionFixed = 1;
        Play(line);
        EXPECT_EQ(state.PicturePositionFixed, 0);
    }
    state.PicturePositionFixed = 1;
    Play(u"Position=99999\r\nCurrentX=5\r\n");
    EXPECT_EQ(form1.Picture1.canvas.penX, 0) << "too big a number ends the run";
}

TEST_F(SettingWords, ScaleOfTheNextPictures) {
    for (const auto& [line, scale] :
         {std::pair(u"PicResize=150", 1.5), {u"PicResize=5", 0.1}, {u"PicResize=999", 2.0}}) {
        Play(line);
        EXPECT_EQ(state.PictureScale, scale);
    }
}

TEST_F(SettingWords, IntervalOfTheShow) {
    state.SlideIntervalSec = 3;
    Play(u"Interval=60\r\n");
    EXPECT_EQ(form1.Timer1.Interval(), 60000);
    EXPECT_EQ(state.SlideIntervalSec, 60);
    Play(u"Interval=0\r\nInterval=61\r\nInterval=0.9\r\n");
    EXPECT_EQ(state.SlideIntervalSec, 60);
    Play(u"Interval=1\r\n");
    EXPECT_EQ(form1.Timer1.Interval(), 1000);
}

TEST_F(SettingWords, BackColourIsSixCharactersOrBlack) {
    Play(u"BackColor=\"fF8000\"  //orange\r\n");
    EXPECT_EQ(state.OverlayBackText, u"fF8000");
    EXPECT_EQ(state.ResetScreenOnce, 1);
    for (const char16_t* line : {u"BackColor=\"FF80\"", u"BackColor=\"FF80001\""}) {
        state.OverlayBackText.clear();
        Play(line);
        EXPECT_EQ(state.OverlayBackText, u"000000");
    }
    state.OverlayBackText = u"123456";
    state.ResetScreenOnce = 0;
    Play(u"BackColor=\"\"\r\nBackColor=FF8000\r\n");
    EXPECT_EQ(state.OverlayBackText, u"123456");
    EXPECT_EQ(state.ResetScreenOnce, 0);
}

TEST_F(SettingWords, FrameOffTakesAnyNumber) {
    Play(u"Borderless=-7\r\n");
    EXPECT_EQ(state.OverlayFrameOff, -7);
    Play(u"Borderless=0\r\n");
    EXPECT_EQ(state.OverlayFrameOff, 0);
}

TEST_F(SettingWords, SizeAdjustmentCountsOtherwiseThanItsMenu) {
    fake.PutPicture(u"C:\\show\\p1.bmp", 30, 20);
    app.windows.form4.Lead1.imaging->Load(u"C:\\show\\p1.bmp", {});
    ExpectEach(*this, &model::ShowState::SizeAdjust, form1.mnuSIZE, {{u"SizeCtrl=0", 2, 2}});
    EXPECT_FALSE(app.windows.form4.Lead2.imaging->Holds());
    ExpectEach(*this, &model::ShowState::SizeAdjust, form1.mnuSIZE,
               {{u"SizeCtrl=1", 0, 0},
                {u"SizeCtrl=2", 1, 1},
                {u"SizeCtrl=3", 1, 1},
                {u"SizeCtrl=-1", 1, 1}});
    EXPECT_EQ(app.windows.form4.Lead2.imaging->HeldSize().width, 30);
}

TEST_F(SettingWords, TextOriginMovesThePenOfTheWindowToo) {
    GoFullScreen();
    Play(u"CurrentY=7\r\n");
    EXPECT_EQ(form1.Picture1.canvas.penY, 7) << "the window's pen counts from its canvas";
    EXPECT_EQ(screen.P2.canvas.penY, 37);
    Play(u"ScreenXY=0\r\n");
    EXPECT_EQ(form1.Picture1.canvas.penY, 30) << "but here it takes the picture's place as well";
    EXPECT_EQ(screen.P2.canvas.penY, 30);
}

TEST_F(SettingWords, TextOriginOfTheRunKeepsTheSettingsOwn) {
    for (const int16_t own : {int16_t(0), int16_t(1)}) {
        state.TextOriginScreen = own;
        Play(u"ScreenXY=1\r\nScreenXY=0\r\nScreenXY=1\r\n");
        EXPECT_EQ(state.TextOriginScreen, 1);
        EXPECT_EQ(model::OwnTextOrigin(state), own);
        Play(u"ScreenXY=7\r\nScreenXY=0\r\n");
        EXPECT_EQ(state.TextOriginScreen, 0);
        EXPECT_EQ(model::OwnTextOrigin(state), own);
        macro::ResetShowSettings(app);
        EXPECT_EQ(state.TextOriginScreen, own);
        EXPECT_EQ(model::OwnTextOrigin(state), own);
    }
    Play(u"ScreenXY=1\r\n");
    model::SetNewDefaults(state);
    EXPECT_EQ(state.TextOriginScreen, 0);
    EXPECT_EQ(model::OwnTextOrigin(state), 0);
}

TEST_F(SettingWords, SettingsOfTheShowGoBackTogether) {
    Play(
        u"BorderColor=3\r\nLineSpace=7\r\nBorderless=1\r\nBackColor=\"112233\"\r\n"
        u"PicResize=50\r\nMP3Vol=10\r\nPosition=10.20\r\nScreenXY=1\r\nLock=1\r\n");
    EXPECT_EQ(state.LineSpaceExtra, 7);
    macro::ResetShowSettings(app);
    EXPECT_EQ(state.BorderColorIndex, 0);
    EXPECT_EQ(state.LineSpaceExtra, 0);
    EXPECT_EQ(state.OverlayFrameOff, 0);
    EXPECT_EQ(state.OverlayBackText, u"");
    EXPECT_EQ(state.PictureScale, 0);
    EXPECT_EQ(state.Mp3VolumeOffset, 0);
    EXPECT_EQ(state.PicturePositionFixed, 0);
    EXPECT_EQ(state.TextOriginScreen, 0) << "the setting's own value";
    EXPECT_EQ(state.MacroWaitClick, 1);
}

}  // namespace
