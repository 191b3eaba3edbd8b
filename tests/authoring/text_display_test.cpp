// Form15: whether macro texts are shown, and where their coordinates begin.
#include "authoring/settings/text_display.h"

#include <gtest/gtest.h>

#include "model/windows/main_window.h"
#include "model/windows/text_display.h"
#include "support/fake_platform.h"

namespace authoring {
namespace {

struct TextDisplay : testing::Test {
    fakes::FakePlatform around;
    model::ShowState& state = around.app.state;
    model::Form15& form15 = around.app.windows.form15;

    void SetUp() override { AttachTextDisplay(around.app); }
};

TEST_F(TextDisplay, FollowsTheSettingsWheneverItComesUp) {
    state.TextOriginScreen = 1;
    state.TextMacroFlag = 0;
    form15.Show();
    EXPECT_FALSE(form15.Option1.Value);
    EXPECT_TRUE(form15.Option2.Value);
    EXPECT_EQ(form15.Check1.Value, 1);
    form15.Hide();
    state.TextOriginScreen = 0;
    state.TextMacroFlag = 1;
    form15.Show();  // still loaded
    EXPECT_TRUE(form15.Option1.Value);
    EXPECT_FALSE(form15.Option2.Value);
    EXPECT_EQ(form15.Check1.Value, 0);
}

TEST_F(TextDisplay, ComesUpInTheMiddleOfTheMonitorInUse) {
    around.monitors.monitors = {{0, 0, 1920, 1080}, {1920, 0, 1280, 1024}};
    around.monitors.ofMainWindow = 1;
    form15.Show();
    EXPECT_EQ(form15.Left, (1920 + (1280 - 440) / 2) * 15);
    EXPECT_EQ(form15.Top, (1024 - 320) / 2 * 15);
}

TEST_F(TextDisplay, OptionsChooseTheOrigin) {
    form15.Show();
    form15.Option2.Press();
    EXPECT_EQ(state.TextOriginScreen, 1);
    EXPECT_FALSE(form15.Option1.Value);
    form15.Option1.Press();
    EXPECT_EQ(state.TextOriginScreen, 0);
    EXPECT_FALSE(form15.Option2.Value);
}

/// In a paused show: STOP brings the setting back, and that is what the person chose meanwhile.
TEST_F(TextDisplay, AChoiceOutlastsWhatAMacroSet) {
    state.TextOriginScreen = 0;
    model::SetTextOriginOfRun(state, 1);
    form15.Show();
    EXPECT_TRUE(form15.Option2.Value);
    form15.Option1.Press();
    form15.Option2.Press();
    EXPECT_EQ(state.TextOriginScreen, 1);
    EXPECT_EQ(model::OwnTextOrigin(state), 1);
    model::RestoreTextOrigin(state);
    EXPECT_EQ(state.TextOriginScreen, 1);
}

TEST_F(TextDisplay, TheMenusCheckMovesWithTheBox) {
    state.TextMacroFlag = 1;
    form15.Show();
    form15.Check1.Press();
    EXPECT_EQ(state.TextMacroFlag, 0);
    EXPECT_TRUE(around.app.windows.form1.mnuTEXT(0).Checked);
    EXPECT_FALSE(around.app.windows.form1.mnuTEXT(1).Checked);
    form15.Check1.Press();
    EXPECT_EQ(state.TextMacroFlag, 1);
    EXPECT_TRUE(around.app.windows.form1.mnuTEXT(1).Checked);
}

TEST_F(TextDisplay, ItsButtonClosesIt) {
    form15.Show();
    form15.Command1.Press();
    EXPECT_FALSE(form15.Loaded);
}

}  // namespace
}  // namespace authoring
