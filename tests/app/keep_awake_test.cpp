// The monitors are kept awake from the start of a show to its end.
#include <gtest/gtest.h>

#include "app/keep_awake.h"
#include "model/windows/slide_screen.h"
#include "playback/run.h"
#include "support/fake_platform.h"

namespace app_tests {
namespace {

using Calls = std::vector<bool>;

TEST(KeepAwake, FollowsTheMenusOfAShowAndTheFullScreen) {
    fakes::FakePlatform around;
    {
        const app::KeepAwake keep(around.app);
        EXPECT_TRUE(around.monitors.awake.empty());
        playback::EnableShowMenus(around.app, false);
        EXPECT_EQ(around.monitors.awake, Calls{true});
        around.app.windows.slidescreen.Show();
        playback::EnableShowMenus(around.app, true);
        EXPECT_EQ(around.monitors.awake, Calls{true}) << "the full screen is still up";
        around.app.windows.slidescreen.Unload();
        EXPECT_EQ(around.monitors.awake, (Calls{true, false}));
        around.app.windows.slidescreen.Show();
        EXPECT_EQ(around.monitors.awake, (Calls{true, false, true}));
    }
    EXPECT_EQ(around.monitors.awake, (Calls{true, false, true, false})) << "at the program's end";
    around.app.windows.slidescreen.Unload();
    EXPECT_EQ(around.monitors.awake.size(), 4u);
}

}  // namespace
}  // namespace app_tests
