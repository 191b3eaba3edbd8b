// The menus' boxes that ask for a number.
#include "app/number_dialogs.h"

#include <gtest/gtest.h>

#include "menu_support.h"
#include "model/menu.h"
#include "model/windows/main_window.h"

namespace app_tests {
namespace {

using Entries = std::deque<std::optional<Text>>;

TEST(IntervalDialog, SetsTheIntervalOfTheShow) {
    Menus menus;
    menus.state.SlideIntervalSec = 7;
    menus.dialogs.inputAnswers = {Text(u"60")};
    menus.form1.mnuTIME.Click();
    ASSERT_EQ(menus.dialogs.inputs.size(), 1u);
    EXPECT_EQ(menus.dialogs.inputs[0].title, u"スライド間隔");
    EXPECT_EQ(menus.dialogs.inputs[0].text,
              u"スライド間隔（秒）を設定してください。\r\n(１～６０秒）");
    EXPECT_EQ(menus.dialogs.initials[0], u"7");
    EXPECT_EQ(menus.state.SlideIntervalSec, 60);
    EXPECT_EQ(menus.form1.Timer1.Interval, 60000);
    EXPECT_TRUE(menus.dialogs.messages.empty());
}

TEST(IntervalDialog, TakesFractionsForTheNextTickAndWholeSecondsForTheSetting) {
    const struct {
        Text entry;
        int seconds, interval;
    } rows[] = {{u"1", 1, 1000},
                {u"2.5", 2, 2500},
                {u"3.5", 4, 3500},
                {u"59.6", 60, 59600},
                {u" 1 2 s", 12, 12000}};
    for (const auto& row : rows) {
        Menus menus;
        menus.dialogs.inputAnswers = {row.entry};
        menus.form1.mnuTIME.Click();
        EXPECT_EQ(menus.state.SlideIntervalSec, row.seconds);
        EXPECT_EQ(menus.form1.Timer1.Interval, row.interval);
    }
}

TEST(IntervalDialog, TakesFullWidthDigits) {
    const struct {
        Text entry;
        int seconds, interval;
    } rows[] = {{u"５", 5, 5000}, {u"３．５", 4, 3500}, {u"　１　２秒", 12, 12000}};
    for (const auto& row : rows) {
        Menus menus;
        menus.dialogs.inputAnswers = {row.entry};
        menus.form1.mnuTIME.Click();
        EXPECT_TRUE(menus.dialogs.messages.empty());
        EXPECT_EQ(menus.state.SlideIntervalSec, row.seconds);
        EXPECT_EQ(menus.form1.Timer1.Interval, row.interval);
    }
    Menus menus;
    menus.dialogs.inputAnswers = {Text(u"６１")};
    menus.form1.mnuTIME.Click();
    menus.ExpectMessage(u"設定が不適切です", 48, u"ｽﾗｲﾄﾞ間隔");
}

TEST(IntervalDialog, OutsideTheRangeNothingChangesAndNothingIsAskedAgain) {
    for (const Text entry : {u"0", u"0.9", u"60.1", u"61", u"-3", u"abc", u" ", u"1e400"}) {
        Menus menus;
        menus.form1.Timer1.Interval = 1234;
        menus.dialogs.inputAnswers = {entry};
        menus.form1.mnuTIME.Click();
        menus.ExpectMessage(u"設定が不適切です", 48, u"ｽﾗｲﾄﾞ間隔");
        EXPECT_EQ(menus.dialogs.inputs.size(), 1u);
        EXPECT_EQ(menus.state.SlideIntervalSec, 3);
        EXPECT_EQ(menus.form1.Timer1.Interval, 1234);
    }
}

TEST(IntervalDialog, EmptyAndCancelLeaveIt) {
    for (const std::optional<Text>& entry : Entries{Text(), std::nullopt}) {
        Menus menus;
        menus.form1.Timer1.Interval = 1234;
        menus.dialogs.inputAnswers = {entry};
        menus.form1.mnuTIME.Click();
        EXPECT_TRUE(menus.dialogs.messages.empty());
        EXPECT_EQ(menus.state.SlideIntervalSec, 3);
        EXPECT_EQ(menus.form1.Timer1.Interval, 1234);
    }
}

/// The boxes that repeat: which entry asks, and what.
struct Repeating {
    model::MenuArray model::Form1::*menu;  // null: `entry`
    int index;
    model::MenuEntry model::Form1::*entry;
    int16_t model::ShowState::*field;
    Text title, prompt;
    int lowest, highest;
};

const std::vector<Repeating>& Boxes() {
    using F = model::Form1;
    using S = model::ShowState;
    static const std::vector<Repeating> table{
        {&F::mnuHKO, 6, nullptr, &S::ShowSlitCount, u"画面表示効果スリット数",
         u"画面表示効果スリット数を設定してください。\r\n(２～１００）", 2, 100},
        {&F::mnuHKO, 7, nullptr, &S::ShowSlitCount, u"画面表示効果スリット数",
         u"画面表示効果スリット数を設定してください。\r\n(２～１００）", 2, 100},
        {&F::mnuHKO, 8, nullptr, &S::ShowMosaicCount, u"画面表示効果モザイク数",
         u"画面表示効果モザイク数を設定してください。\r\n(５～１００）", 5, 100},
        {&F::mnuSYOUKO, 6, nullptr, &S::EraseSlitCount, u"画面消去効果スリット数",
         u"画面消去効果スリット数を設定してください。\r\n(２～１００）", 2, 100},
        {&F::mnuSYOUKO, 7, nullptr, &S::EraseSlitCount, u"画面消去効果スリット数",
         u"画面消去効果スリット数を設定してください。\r\n(２～１００）", 2, 100},
        {&F::mnuSYOUKO, 8, nullptr, &S::EraseMosaicCount, u"画面消去効果モザイク数",
         u"画面消去効果モザイク数を設定してください。\r\n(５～１００）", 5, 100},
        {nullptr, 0, &F::mnuHKSP, &S::ShowEffectSpeed, u"画面表示効果スピード",
         u"画面表示効果スピードを設定してください。\r\n(遅い   -999 ～ 10   速い)", -999, 10},
        {nullptr, 0, &F::mnuSKSP, &S::EraseEffectSpeed, u"画面消去効果スピード",
         u"画面消去効果スピードを設定してください。\r\n(遅い   -999 ～ 10   速い)", -999, 10},
        {nullptr, 0, &F::mnuHOSEI, &S::EffectSpeedTrim, u"画面効果スピード補正",
         u"画面表示及び消去効果の低速スピード(1～5)の補正が必要な場合に設定してください。\r\n"
         u"(低　１～１０　高）\r\n●基準値 ５",
         1, 10},
    };
    return table;
}

void Open(Menus& menus, const Repeating& box) {
    if (box.menu) {
        (menus.form1.*box.menu)(box.index).Click();
    } else {
        (menus.form1.*box.entry).Click();
    }
}

Text Number(int value) {
    return text::FromUtf8(std::to_string(value));
}

TEST(NumberBoxes, AskUntilTheNumberFits) {
    for (const Repeating& box : Boxes()) {
        Menus menus;
        SCOPED_TRACE(text::ToUtf8(box.title));
        menus.state.*box.field = 9;
        menus.dialogs.inputAnswers = {Number(box.lowest - 1), Number(box.highest + 1),
                                      Number(box.highest) + u".5", Text(u"-1000"),
                                      Number(box.highest)};
        Open(menus, box);
        ASSERT_EQ(menus.dialogs.inputs.size(), 5u);
        for (const auto& input : menus.dialogs.inputs) {
            EXPECT_EQ(input.title, box.title);
            EXPECT_EQ(input.text, box.prompt);
        }
        EXPECT_EQ(menus.dialogs.initials[0], u"9");
        ASSERT_EQ(menus.dialogs.messages.size(), 4u);
        for (const auto& message : menus.dialogs.messages) {
            EXPECT_EQ(message.text, u"設定が不適切です");
            EXPECT_EQ(message.title, box.title);
            EXPECT_EQ(message.flags, 48);
        }
        EXPECT_EQ(menus.state.*box.field, box.highest);
        menus.dialogs.inputAnswers = {Number(box.lowest)};
        Open(menus, box);
        EXPECT_EQ(menus.state.*box.field, box.lowest);
        EXPECT_EQ(menus.dialogs.messages.size(), 4u);
    }
}

TEST(NumberBoxes, StoreTheWholePart) {
    for (const Repeating& box : Boxes()) {
        Menus menus;
        menus.dialogs.inputAnswers = {Text(u"7.9")};
        Open(menus, box);
        EXPECT_EQ(menus.state.*box.field, 7);
    }
}

TEST(NumberBoxes, TakeFullWidthDigits) {
    for (const Repeating& box : Boxes()) {
        Menus menus;
        menus.dialogs.inputAnswers = {Text(u"１０")};
        Open(menus, box);
        EXPECT_EQ(menus.state.*box.field, 10);
        EXPECT_TRUE(menus.dialogs.messages.empty());
        menus.dialogs.inputAnswers = {Text(u"－３０"), Text(u"８．９")};
        Open(menus, box);
        EXPECT_EQ(menus.state.*box.field, box.lowest < 0 ? -30 : 8);
    }
}

TEST(NumberBoxes, EmptyAndCancelKeepTheOldValueAlsoAfterABadEntry) {
    for (const Repeating& box : Boxes()) {
        for (const std::optional<Text>& last : Entries{Text(), std::nullopt}) {
            Menus menus;
            menus.state.*box.field = 9;
            menus.dialogs.inputAnswers = {Text(u"5000"), last};
            Open(menus, box);
            EXPECT_EQ(menus.dialogs.inputs.size(), 2u);
            EXPECT_EQ(menus.dialogs.messages.size(), 1u);
            EXPECT_EQ(menus.state.*box.field, 9);
        }
    }
}

TEST(NumberBoxes, OfferSomethingThatFits) {
    for (const Repeating& box : Boxes()) {
        Menus menus;
        menus.state.*box.field = 32767;  // a document can hold it
        Open(menus, box);                // answered as it stands
        EXPECT_EQ(menus.dialogs.inputs.size(), 1u);
        EXPECT_EQ(menus.state.*box.field, box.highest);
    }
}

TEST(EffectMenus, AskByTheEffect) {
    using F = model::Form1;
    for (auto [menu, word, last] : {std::tuple(&F::mnuHKO, Text(u"画面表示効果"), 11),
                                    std::tuple(&F::mnuSYOUKO, Text(u"画面消去効果"), 12)}) {
        for (int effect = 0; effect <= last; ++effect) {
            Menus menus;
            (menus.form1.*menu)(effect).Click();
            std::vector<Text> titles, wanted;
            for (const auto& input : menus.dialogs.inputs) {
                titles.push_back(input.title);
            }
            if (effect == 6 || effect == 7 || effect == 9 || effect == 10) {
                wanted.push_back(word + u"スリット数");
            }
            if (effect == 8 || effect == 9 || effect == 10) {
                wanted.push_back(word + u"モザイク数");
            }
            EXPECT_EQ(titles, wanted) << effect;
        }
    }
}

struct CdMenus : Menus {
    explicit CdMenus(TextView tracks) {
        sound.answer = [tracks = Text(tracks)](TextView command) {
            return command == u"status cdaudio number of tracks" ? tracks : Text();
        };
    }
};

TEST(TrackDialog, AsksForATrackOfTheDisc) {
    CdMenus menus(u"12");
    menus.state.CdTrackSetting = u"4";
    menus.dialogs.inputAnswers = {Text(u"12")};
    menus.form1.mnuCD.Click();
    ASSERT_EQ(menus.dialogs.inputs.size(), 1u);
    EXPECT_EQ(menus.dialogs.inputs[0].title, u"ＣＤ再生トラック");
    EXPECT_EQ(menus.dialogs.inputs[0].text,
              u"ＣＤ再生開始トラックを設定してください。\r\n( 1～12 )\r\n（曲順設定がランダムまたは"
              u"プログラムの場合は無効です。）");
    EXPECT_EQ(menus.dialogs.initials[0], u"4");
    EXPECT_EQ(menus.state.CdTrackSetting, u"12");
    menus.dialogs.inputAnswers = {Text(u"１１")};
    menus.form1.mnuCD.Click();
    EXPECT_EQ(menus.state.CdTrackSetting, u"11");
    menus.state.CdTrackSetting = u"12";
    for (const Text entry : {u"13", u"０", u"0", u"x"}) {
        menus.dialogs.messages.clear();
        menus.dialogs.inputAnswers = {entry};
        menus.form1.mnuCD.Click();
        menus.ExpectMessage(u"設定が不適切です。", 48, u"ＣＤ再生トラック");
        EXPECT_EQ(menus.state.CdTrackSetting, u"12");
    }
    menus.dialogs.messages.clear();
    menus.dialogs.inputAnswers = {Text(), std::nullopt};
    menus.form1.mnuCD.Click();
    menus.form1.mnuCD.Click();
    EXPECT_TRUE(menus.dialogs.messages.empty());
    EXPECT_EQ(menus.state.CdTrackSetting, u"12");
}

TEST(TrackDialog, WithoutADiscSaysSo) {
    for (const Text tracks : {u"", u"1", u"no disc"}) {
        CdMenus menus(tracks);
        menus.form1.mnuCD.Click();
        menus.ExpectMessage(u"ＣＤが準備できていません。", 48, u"ＣＤ再生");
        EXPECT_TRUE(menus.dialogs.inputs.empty());
    }
}

}  // namespace
}  // namespace app_tests
