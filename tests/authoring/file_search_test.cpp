// Form18 and Form19: what a search of a folder tree looks for.
#include "authoring/shared/file_search.h"

#include <gtest/gtest.h>

#include "model/windows/file_search.h"
#include "support/fake_platform.h"

namespace authoring {
namespace {

struct FileSearch : testing::Test {
    fakes::FakePlatform around;
    model::ShowState& state = around.app.state;
    model::Form18& form18 = around.app.windows.form18;
    model::Form19& form19 = around.app.windows.form19;

    void SetUp() override { AttachFileSearch(around.app); }
};

TEST_F(FileSearch, HasABoxForEachType) {
    EXPECT_EQ(form18.Caption(), u"画像・動画ﾌｧｲﾙ検索");
    EXPECT_EQ(form18.Label1.Caption(), u"選択されたフォルダ以下を検索し、ｽﾗｲﾄﾞﾘｽﾄに登録します。");
    EXPECT_EQ(form18.Check1.Count(), 23);
    EXPECT_EQ(form18.Check1(0).Caption(), u"BMP");
    EXPECT_EQ(form18.Check1(18).Caption(), u"PNG");
    EXPECT_EQ(form18.Check1(22).Caption(), u"AVI");
    EXPECT_EQ(form19.Caption(), u"音声ﾌｧｲﾙ検索");
    EXPECT_EQ(form19.Check1.Count(), 3);
    EXPECT_EQ(form19.Check1(2).Caption(), u"MP3");
}

TEST_F(FileSearch, ThePatternKeepsTheOrderOfTheBoxes) {
    form18.Show();
    form18.Check1(19).Press();
    form18.Check1(1).Press();
    form18.Check1(0).Press();
    form18.Check1(18).Press();
    form18.Check1(0).Press();  // off again
    form18.Command3.Press();
    EXPECT_EQ(state.SearchPattern, u"*.JPG;*.PNG;*.MP4");
    EXPECT_EQ(state.SearchWindowsFolderFlag, 0);
    EXPECT_FALSE(form18.Loaded);
}

TEST_F(FileSearch, AllTypesAndNone) {
    form18.Show();
    form18.Command1.Press();
    form18.Command3.Press();
    EXPECT_EQ(state.SearchPattern,
              u"*.BMP;*.JPG;*.JFF;*.JTF;*.TIF;*.TGA;*.PCX;*.CAL;*.MAC;*.IMG;*.MSP;*.WPG;*.RAS;"
              u"*.PCT;*.PCD;*.EPS;*.PSD;*.CMP;*.PNG;*.MP4;*.WMV;*.MOV;*.AVI");
    form18.Show();
    form18.Command1.Press();
    form18.Command2.Press();
    form18.Command3.Press();
    EXPECT_EQ(state.SearchPattern, u"");
}

TEST_F(FileSearch, StartsAnewEachTime) {
    form18.Show();
    form18.Check1(4).Press();
    form18.Check2.Press();
    form18.Command3.Press();
    EXPECT_EQ(state.SearchPattern, u"*.TIF");
    EXPECT_EQ(state.SearchWindowsFolderFlag, 1);
    form18.Show();
    EXPECT_EQ(state.SearchPattern, u"");
    EXPECT_EQ(form18.Check1(4).Value, 0);
    EXPECT_EQ(form18.Check2.Value, 0);
    form18.Command3.Press();
    EXPECT_EQ(state.SearchWindowsFolderFlag, 0);
}

TEST_F(FileSearch, CancelAndClosingLeaveNoPattern) {
    form18.Show();
    form18.Command1.Press();
    form18.Check2.Press();
    state.SearchPattern = u"*.BMP";
    form18.Command4.Press();
    EXPECT_EQ(state.SearchPattern, u"");
    EXPECT_EQ(state.SearchWindowsFolderFlag, 0);
    EXPECT_FALSE(form18.Loaded);
    state.SearchPattern = u"*.BMP";
    form18.Show();
    form18.Command1.Press();
    form18.Unload();
    EXPECT_EQ(state.SearchPattern, u"");
}

TEST_F(FileSearch, StandsInTheMiddleOfTheScreen) {
    form18.Width = 400 * 15;
    form18.Height = 200 * 15;
    form18.Show();
    EXPECT_EQ(form18.Left, (1920 - 400) / 2 * 15);
    EXPECT_EQ(form18.Top, (1080 - 200) / 2 * 15);
}

TEST_F(FileSearch, SoundsInTheSameManner) {
    form19.Show();
    form19.Check1(2).Press();
    form19.Check1(0).Press();
    form19.Check2.Press();
    form19.Command3.Press();
    EXPECT_EQ(state.SearchPattern, u"*.WAV;*.MP3");
    EXPECT_EQ(state.SearchWindowsFolderFlag, 1);
    form19.Show();
    EXPECT_EQ(state.SearchPattern, u"");
    form19.Check1(1).Press();
    form19.Command4.Press();
    EXPECT_EQ(state.SearchPattern, u"");
    EXPECT_FALSE(form19.Loaded);
}

}  // namespace
}  // namespace authoring
