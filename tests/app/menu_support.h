// The main window's menus in fake surroundings.
#pragma once

#include "app/main_menus.h"
#include "app_support.h"
#include "document/settings_to_controls.h"
#include "model/windows/main_window.h"

namespace app_tests {

struct Menus : fakes::FakePlatform {
    model::Form1& form1 = app.windows.form1;
    model::ShowState& state = app.state;
    Menus() {
        app::AttachMainMenus(app);
        document::FollowAllSettings(app);
        PutText(u"C:\\show\\two.kvs", ShowOf({u"a.png", u"b.png"}));
        PutText(u"C:\\show\\refused.kvs", u"vue\r\n" + ShowOf({u"a.png"}));
    }
    /// Text, flags and title of the only message so far, and none else.
    void ExpectMessage(TextView text, int flags, TextView title) {
        ASSERT_EQ(dialogs.messages.size(), 1u);
        EXPECT_EQ(dialogs.messages[0].text, text);
        EXPECT_EQ(dialogs.messages[0].flags, flags);
        EXPECT_EQ(dialogs.messages[0].title, title);
    }
};

}  // namespace app_tests
