// The menu that does what the buttons do, and the keys.
#include "app/play_menu.h"

#include <gtest/gtest.h>

#include "menu_support.h"
#include "model/controls.h"
#include "model/menu.h"
#include "model/windows/main_window.h"
#include "model/windows/slide_list.h"
#include "playback/run.h"
#include "playback/transport.h"

namespace app_tests {
namespace {

TEST(PlayMenu, EveryEntryPressesItsButtonAndIsEnabledAsItIs) {
    Menus menus;
    model::Form1& form1 = menus.form1;
    const app::PlayMenu playMenu(menus.app);
    const std::pair<model::MenuEntry*, model::Button*> rows[] = {
        {&form1.mnuSTART, &form1.Command1},    {&form1.mnuPAUSE, &form1.Command2},
        {&form1.mnuSTOP, &form1.Command3},     {&form1.mnuFULL, &form1.Command4},
        {&form1.mnuPREVIOUS, &form1.Command5}, {&form1.mnuLIST, &form1.Command6},
        {&form1.mnuNEXT, &form1.Command7},     {&form1.mnuSOUNDS, &form1.Command10},
        {&form1.mnuSCHEDULE, &form1.Command11}};
    for (const auto& [entry, button] : rows) {
        SCOPED_TRACE(entry->Name());
        EXPECT_EQ(entry->Caption(), button->Caption());
        int pressed = 0;
        button->Click.Anew() = [&] { ++pressed; };
        button->Enabled = true;
        EXPECT_TRUE(entry->Enabled);
        entry->Click();
        EXPECT_EQ(pressed, 1);
        button->Enabled = false;
        EXPECT_FALSE(entry->Enabled);
        entry->Click();
        EXPECT_EQ(pressed, 1);
    }
}

TEST(PlayMenu, StartAndPauseAreNeverBothThere) {
    Menus menus;
    const app::PlayMenu playMenu(menus.app);
    menus.app.windows.form3.List1.AddItem(u"a.png");
    for (const auto buttons : {playback::Buttons::Idle, playback::Buttons::Running}) {
        playback::SetButtons(menus.app, buttons);
        EXPECT_NE(menus.form1.mnuSTART.Enabled(), menus.form1.mnuPAUSE.Enabled());
    }
}

TEST(Keys, AreThoseOfTheMenus) {
    Menus menus;
    std::map<Text, std::vector<std::string>> keys;
    for (model::Control* control : menus.form1.Controls()) {
        const auto* entry = dynamic_cast<const model::MenuEntry*>(control);
        if (entry && !entry->Shortcut().empty()) {
            keys[entry->Shortcut()].push_back(entry->Name());
        }
    }
    const std::map<Text, std::vector<std::string>> wanted{
        {u"Ctrl+N", {"mnuNEW"}},    {u"Ctrl+O", {"mnuOPEN"}}, {u"Ctrl+S", {"mnuSAVE"}},
        {u"Ctrl+Q", {"nmuEND"}},    {u"F5", {"mnuFULL"}},     {u"Space", {"mnuSTART", "mnuPAUSE"}},
        {u"Left", {"mnuPREVIOUS"}}, {u"Right", {"mnuNEXT"}}};
    EXPECT_EQ(keys, wanted);
}

}  // namespace
}  // namespace app_tests
