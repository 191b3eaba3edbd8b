#include "adapters/robot/values.h"

#include <gtest/gtest.h>

#include "model/windows/background_sound.h"
#include "model/windows/main_window.h"
#include "model/windows/slide_list.h"
#include "support/fake_platform.h"

namespace robot {
namespace {

class Values : public ::testing::Test {
protected:
    std::string Read(const std::string& name) {
        std::string error;
        const auto value = ReadByName(around.app, name, error);
        EXPECT_EQ(value.has_value(), error.empty()) << name;
        return value ? ToJson(*value) : "! " + error;
    }

    fakes::FakePlatform around;
    model::Windows& windows = around.app.windows;
    model::ShowState& state = around.app.state;
};

TEST_F(Values, FieldsOfEveryKind) {
    state.SlideIndex = -3;
    state.DocumentName = u"旅\"1\".kvs";
    state.ShowDateTime = platform::FromCalendar({2026, 3, 4, 5, 6, 7});
    EXPECT_EQ(Read("SlideIndex"), "-3");
    EXPECT_EQ(Read("DocumentName"), "\"旅\\\"1\\\".kvs\"");
    EXPECT_EQ(Read("ShowDateTime"), "\"2026/03/04 05:06:07\"");
    EXPECT_EQ(Read("SlideIntervalSec"), "3");
    EXPECT_EQ(Read("Nonsense"), "! no such field: Nonsense");
    EXPECT_EQ(Read("SlideIndex(1)"), "! no such field: SlideIndex(1)");
    EXPECT_EQ(Read(""), "! no such field: ");
}

TEST_F(Values, SomeFieldsHaveASecondName) {
    state.SlideListDirty = 1;
    state.ListDblClickRecord = 2;
    state.ListDblClickWallpaper = 3;
    state.ListDblClickText = 4;
    state.ListDblClickStart = 5;
    EXPECT_EQ(Read("ListWindowPainted"), "1");
    EXPECT_EQ(Read("ListCheck2Flag"), "2");
    EXPECT_EQ(Read("ListCheck3Flag"), "3");
    EXPECT_EQ(Read("ListCheck4Flag"), "4");
    EXPECT_EQ(Read("ListCheck5Flag"), "5");
}

TEST_F(Values, EverySettingAndRunFieldCanBeRead) {
    for (const model::Setting& setting : model::Settings()) {
        EXPECT_NE(Read(std::string(setting.name)).front(), '!') << setting.name;
    }
    for (const model::RunField& field : model::RunFields()) {
        EXPECT_NE(Read(std::string(field.name)).front(), '!') << field.name;
    }
}

TEST_F(Values, ArraysAreWholeFromIndex1OrByElement) {
    EXPECT_EQ(Read("SlideList"), "[]");
    state.SlideList.Set(1, u"a.jpg");
    state.SlideList.Set(3, u"c.jpg");
    state.LinkList.Set(1, u"x.kvs");
    EXPECT_EQ(Read("SlideList"), R"(["a.jpg","","c.jpg"])");
    EXPECT_EQ(Read("SlideList(3)"), "\"c.jpg\"");
    EXPECT_EQ(Read("SlideList(30010)"), "\"\"");
    EXPECT_EQ(Read("SlideList(30011)"), "! no such index: (30011)");
    EXPECT_EQ(Read("SlideList(-1)"), "! no such index: (-1)");
    EXPECT_EQ(Read("SlideList()"), "! no such index: ()");
    EXPECT_EQ(Read("SlideList("), "! no such index: (");
    EXPECT_EQ(Read("SlideList(1"), "! no such index: (1");
    EXPECT_EQ(Read("LinkList(1)"), "\"x.kvs\"");
    for (const char* name : {"ScheduleFrom", "ScheduleTo", "CdProgram", "SoundList"}) {
        EXPECT_EQ(Read(name), "[]") << name;
    }
}

TEST_F(Values, PropertiesOfControlsAndWindows) {
    windows.form1.Command1.Enabled = false;
    windows.form1.Picture2(3).Left = 150;
    windows.form8.Text1.Content = u"あ";
    windows.form1.mnuKUFL.Check(1);
    windows.form1.Caption = u"題";
    EXPECT_EQ(Read("Form1.Command1.Enabled"), "false");
    EXPECT_EQ(Read("form1.command1.caption"), "\"START\"");
    EXPECT_EQ(Read("Form1.Picture2(3).Left"), "150");
    EXPECT_EQ(Read("Form8.Text1.Text"), "\"あ\"");
    EXPECT_EQ(Read("Form1.mnuKUFL(1).Checked"), "true");
    EXPECT_EQ(Read("Form1.mnuKUFL(0).Checked"), "false");
    EXPECT_EQ(Read("Form1.Caption"), "\"題\"");
    EXPECT_EQ(Read("Form1.Visible"), "false");
    EXPECT_EQ(Read("Form1.Timer1.Interval"), "3000");
    EXPECT_EQ(Read("Form3.Label4.Caption"), "\"0\"");
    EXPECT_EQ(Read("Form3.Check1.Value"), "0");
}

TEST_F(Values, ListsGiveTheirRowsAndCounts) {
    windows.form3.List1.AddItem(u"a");
    windows.form3.List1.AddItem(u"b");
    windows.form3.List1.Select(1, true);
    EXPECT_EQ(Read("Form3.List1"), R"(["a","b"])");
    EXPECT_EQ(Read("Form3.List1.ListCount"), "2");
    EXPECT_EQ(Read("Form3.List1.SelCount"), "1");
    EXPECT_EQ(Read("Form3.List1.ListIndex"), "-1");
}

TEST_F(Values, WhatIsNotThereIsReported) {
    EXPECT_EQ(Read("Form99.Caption"), "! no such window: Form99");
    EXPECT_EQ(Read("Form1.Nothing"), "! Form1 has no control or property Nothing");
    EXPECT_EQ(Read("Form1.Command99.Caption"), "! Form1 has no control Command99");
    EXPECT_EQ(Read("Form1.Command1.Nothing"), "! Command1 has no control or property Nothing");
    EXPECT_EQ(Read("Form1.Command1"), "! Command1 is no list: name one of its properties");
    EXPECT_EQ(Read("Form1."), "! Form1 has no control or property ");
}

TEST(ScriptJson, ReadsWhatItWrites) {
    const std::vector<ScriptValue> values = {1.0,
                                             -0.5,
                                             1e20,
                                             true,
                                             false,
                                             Text(u""),
                                             Text(u"a\"\\\r\n\tあ𠮷\x01/"),
                                             std::vector<Text>{},
                                             std::vector<Text>{u"a,b", u"]", u""}};
    for (const ScriptValue& value : values) {
        EXPECT_EQ(ParseJson(ToJson(value)), value) << ToJson(value);
    }
    EXPECT_EQ(ParseJson(R"( [ "a" , "\u3042\/\b\f" ] )"),
              ScriptValue(std::vector<Text>{u"a", u"あ/\b\f"}));
}

TEST(ScriptJson, OtherTextIsNone) {
    for (const char* text :
         {"",           "  ",   "abc",    "True",     "truex",         "+1",
          "007",        ".5",   "1.",     "-",        "1 2",           "0x10",
          "nan",        "inf",  "\"open", "\"a\"b",   "\"\\q\"",       "\"\\u12g4\"",
          "\"\\u12",    "[",    "[\"a\"", "[\"a\",]", "[\"a\" \"b\"]", "[1,\"a\"]",
          "2026/01/01", "null", "{}"}) {
        EXPECT_EQ(ParseJson(text), std::nullopt) << text;
    }
}

TEST(ScriptJson, ExpectedIsJsonOrThePlainText) {
    EXPECT_TRUE(Matches(3.0, u"3"));
    EXPECT_TRUE(Matches(3.0, u"3.0"));
    EXPECT_FALSE(Matches(3.0, u"4"));
    EXPECT_FALSE(Matches(3.0, u"\"3\""));
    EXPECT_TRUE(Matches(true, u"true"));
    EXPECT_FALSE(Matches(true, u"1"));
    EXPECT_FALSE(Matches(1.0, u"true"));
    EXPECT_TRUE(Matches(Text(u"a b"), u"a b"));
    EXPECT_TRUE(Matches(Text(u"a b"), u"\"a b\""));
    EXPECT_TRUE(Matches(Text(), u"\"\""));
    EXPECT_TRUE(Matches(Text(u"12"), u"12"));  // a caption that is a number
    EXPECT_FALSE(Matches(Text(u"12"), u"12.0"));
    EXPECT_FALSE(Matches(Text(u"a"), u"A"));
    EXPECT_TRUE(Matches(std::vector<Text>{u"a"}, u"[\"a\"]"));
    EXPECT_FALSE(Matches(std::vector<Text>{u"a"}, u"[]"));
}

}  // namespace
}  // namespace robot
