// The record's arrays, its fields by name, and schedule rows.
#include "model/show_state.h"

#include <gtest/gtest.h>

#include <set>

namespace model {
namespace {

TEST(TextArray, ReadsEmptyWhereNothingWasSet) {
    const TextArray array(10);
    for (int index : {-1, 0, 1, 10, 11, 30000}) {
        EXPECT_EQ(array(index), u"") << index;
    }
    EXPECT_EQ(array.Used(), 0);
}

TEST(TextArray, TakesIndexZeroToTheLastAndNoOther) {
    TextArray array(10);
    EXPECT_TRUE(array.Set(0, u"zero"));
    EXPECT_TRUE(array.Set(10, u"last"));
    EXPECT_FALSE(array.Set(-1, u"x"));
    EXPECT_FALSE(array.Set(11, u"x"));
    EXPECT_EQ(array(0), u"zero");
    EXPECT_EQ(array(5), u"");
    EXPECT_EQ(array(10), u"last");
    EXPECT_EQ(array(11), u"");
    EXPECT_EQ(array.Used(), 10);
    EXPECT_EQ(array.Last(), 10);
}

TEST(TextArray, EraseForgetsEverything) {
    TextArray array(10);
    array.Set(3, u"three");
    array.Erase();
    EXPECT_EQ(array(3), u"");
    EXPECT_EQ(array.Used(), 0);
    EXPECT_TRUE(array.Set(1, u"again"));
    EXPECT_EQ(array.Used(), 1);
}

TEST(ShowState, ListsReachAsFarAsTheyMust) {
    ShowState state;
    EXPECT_TRUE(state.SlideList.Set(30010, u"a"));
    EXPECT_FALSE(state.SlideList.Set(30011, u"a"));
    EXPECT_TRUE(state.LinkList.Set(1010, u"a"));
    EXPECT_FALSE(state.LinkList.Set(1011, u"a"));
    EXPECT_EQ(kSlideListLimit, 30000);
}

TEST(ShowState, EveryFieldIsFoundByItsNameOnce) {
    std::set<std::string_view> names;
    for (const Setting& setting : Settings()) {
        EXPECT_TRUE(names.insert(setting.name).second) << setting.name;
        EXPECT_NE(FindField(setting.name), nullptr) << setting.name;
    }
    for (const RunField& field : RunFields()) {
        EXPECT_TRUE(names.insert(field.name).second) << field.name;
        EXPECT_NE(FindField(field.name), nullptr) << field.name;
    }
    EXPECT_EQ(FindField("slideindex"), nullptr);  // names are exact
    EXPECT_EQ(FindField(""), nullptr);
}

TEST(ShowState, SharedRunFieldsExist) {
    for (const char* name : {"DocumentPath",
                             "DocumentName",
                             "DocumentFileDate",
                             "BaseFolder",
                             "AppFolder",
                             "DistributionSaveFlag",
                             "Mp3ModeFlag",
                             "SlideListEnd",
                             "SlideIndex",
                             "CdProgramCount",
                             "SoundListCount",
                             "ShowRunning",
                             "StartLatch",
                             "StopRequest",
                             "StepBusy",
                             "ShowAbort",
                             "FullScreenActive",
                             "FullScreenClosed",
                             "FullScreenClosedByUser",
                             "ExitToMainOnClose",
                             "ReturnToSlideList",
                             "JumpRequested",
                             "JumpTarget",
                             "ScheduleSkipped",
                             "PreviousPictureOnScreen",
                             "ResetScreenOnce",
                             "LastWasVideo",
                             "VideoStoppedByUser",
                             "MacroWaitClick",
                             "MacroDelayWaiting",
                             "MacroButtonsShown",
                             "MacroJumpChosen",
                             "MacroNextPressed",
                             "MacroBackPressed",
                             "MacroEndShow",
                             "MacroCursorHidden",
                             "TelopRunning",
                             "TelopStep",
                             "TelopText",
                             "SoundPaused",
                             "CdPaused",
                             "CdPausedTrack",
                             "SoundPlaying",
                             "SoundOpen",
                             "RestartSoundFlag",
                             "SoundListPos",
                             "SoundListNext",
                             "SoundListStarted",
                             "ListMp3Playing",
                             "LinkRunning",
                             "LinkIndex",
                             "LinkEnd",
                             "ShowDateText",
                             "PictureWidthPx",
                             "PictureHeightPx",
                             "CurrentName",
                             "CurrentPath",
                             "LinkedWavPath",
                             "LinkedMediaPath",
                             "CommandLineArg",
                             "CommandLineKind",
                             "LoadingFromStart",
                             "PrimaryMonitor",
                             "MainBottomMargin",
                             "LeadVersion",
                             "SplashDone",
                             "LowColorFlag"}) {
        EXPECT_NE(FindField(name), nullptr) << name;
    }
}

TEST(ShowState, FieldsTakeWhatFitsTheirWidth) {
    ShowState state;
    const FieldPointer small = *FindField("SlideIndex");
    const FieldPointer wide = *FindField("SlideIntervalSec");
    const FieldPointer real = *FindField("PictureScale");
    const FieldPointer text = *FindField("WavFile");
    EXPECT_TRUE(WriteField(state, small, -32768.0));
    EXPECT_EQ(state.SlideIndex, -32768);
    EXPECT_FALSE(WriteField(state, small, 32768.0));
    EXPECT_FALSE(WriteField(state, small, 1.5));
    EXPECT_FALSE(WriteField(state, small, Text(u"1")));
    EXPECT_EQ(state.SlideIndex, -32768);
    EXPECT_TRUE(WriteField(state, wide, 2147483647.0));
    EXPECT_FALSE(WriteField(state, wide, 2147483648.0));
    EXPECT_TRUE(WriteField(state, real, 0.75));
    EXPECT_EQ(state.PictureScale, 0.75);
    EXPECT_TRUE(WriteField(state, text, Text(u"絵.wav")));
    EXPECT_FALSE(WriteField(state, text, 1.0));
    EXPECT_EQ(ReadField(state, text), (std::variant<double, Text>(Text(u"絵.wav"))));
    EXPECT_EQ(ReadField(state, wide), (std::variant<double, Text>(2147483647.0)));
}

TEST(ScheduleRow, HasFourColumns) {
    const Text row = u"2026/01/0210:302027/12/3123:59";
    ASSERT_EQ(row.size(), 30u);
    EXPECT_EQ(ScheduleFromOfRow(row), u"2026/01/02 10:30");
    EXPECT_EQ(ScheduleToOfRow(row), u"2027/12/31 23:59");
}

TEST(ScheduleRow, BlankColumnsStayBlanks) {
    EXPECT_EQ(BlankScheduleRow(), Text(30, u' '));
    EXPECT_EQ(ScheduleFromOfRow(BlankScheduleRow()), Text(16, u' '));
    EXPECT_EQ(ScheduleToOfRow(BlankScheduleRow()), Text(16, u' '));
    const Text timeOnly = Text(10, u' ') + u"09:00" + Text(15, u' ');
    EXPECT_EQ(ScheduleFromOfRow(timeOnly), Text(11, u' ') + u"09:00");
}

TEST(ScheduleRow, ShortRowGivesWhatItHas) {
    EXPECT_EQ(ScheduleFromOfRow(u"2026/01/02"), u"2026/01/02 ");
    EXPECT_EQ(ScheduleToOfRow(u"2026/01/02"), u" ");
}

}  // namespace
}  // namespace model
