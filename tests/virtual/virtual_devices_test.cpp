// The boxes and monitors of a run on the virtual clock.
#include <gtest/gtest.h>

#include "adapters/virtual/virtual_dialogs.h"
#include "adapters/virtual/virtual_monitors.h"
#include "support/fake_platform.h"

namespace virtual_adapter {
namespace {

using platform::Answer;
using Line = fakes::FakeTrace::Line;

constexpr int kOkCancelButtons = 1;
constexpr int kYesNoCancelButtons = 3;

std::vector<std::string> FieldNames(const Line& line) {
    std::vector<std::string> names;
    for (const auto& [name, value] : line.fields) {
        names.push_back(name);
    }
    return names;
}

const auto& FieldOf(const Line& line, const std::string& name) {
    for (const auto& [field, value] : line.fields) {
        if (field == name) {
            return value;
        }
    }
    throw std::runtime_error("no field " + name);
}

TEST(VirtualDialogs, MessageTakesTheQueuedAnswerAndIsTraced) {
    fakes::FakeTrace trace;
    VirtualDialogs dialogs(trace);
    dialogs.answers.push_back(Answer::No);
    EXPECT_EQ(dialogs.Message(u"消す?", platform::kYesNoQuestion, u"確認"), Answer::No);
    ASSERT_EQ(trace.lines.size(), 1u);
    const Line& line = trace.lines[0];
    EXPECT_EQ(line.event, "message");
    EXPECT_EQ(FieldNames(line), (std::vector<std::string>{"title", "text", "flags", "answer"}));
    EXPECT_EQ(line.String("title"), u"確認");
    EXPECT_EQ(line.String("text"), u"消す?");
    EXPECT_EQ(line.Number("flags"), 36);
    EXPECT_EQ(line.String("answer"), u"no");
}

TEST(VirtualDialogs, UnansweredMessageTakesOkOrYes) {
    fakes::FakeTrace trace;
    VirtualDialogs dialogs(trace);
    EXPECT_EQ(dialogs.Message(u"a", platform::kStop, u""), Answer::Ok);
    EXPECT_EQ(dialogs.Message(u"a", platform::kYesNoQuestion, u""), Answer::Yes);
    for (const Line& line : trace.lines) {
        EXPECT_EQ(FieldOf(line, "unanswered"), decltype(platform::TraceField::value)(true));
    }
    EXPECT_EQ(trace.lines[0].String("answer"), u"ok");
    EXPECT_EQ(trace.lines[1].String("answer"), u"yes");
}

TEST(VirtualDialogs, AnswerThatABoxDoesNotOfferIsTheNearestOne) {
    struct {
        int buttons;
        Answer queued, taken;
    } const cases[] = {
        {platform::kPlain, Answer::Yes, Answer::Ok},
        {platform::kPlain, Answer::No, Answer::Ok},
        {platform::kPlain, Answer::Cancel, Answer::Ok},
        {platform::kYesNo, Answer::Ok, Answer::Yes},
        {platform::kYesNo, Answer::Cancel, Answer::No},
        {kOkCancelButtons, Answer::Yes, Answer::Ok},
        {kOkCancelButtons, Answer::No, Answer::Cancel},
        {kYesNoCancelButtons, Answer::Ok, Answer::Yes},
        {kYesNoCancelButtons, Answer::No, Answer::No},
        {kYesNoCancelButtons, Answer::Cancel, Answer::Cancel},
    };
    fakes::FakeTrace trace;
    VirtualDialogs dialogs(trace);
    for (const auto& one : cases) {
        dialogs.answers.push_back(one.queued);
        EXPECT_EQ(dialogs.Message(u"", one.buttons | platform::kQuestion, u""), one.taken)
            << one.buttons << " " << static_cast<int>(one.queued);
    }
}

TEST(VirtualDialogs, EachSortOfBoxHasItsOwnQueueInOrder) {
    fakes::FakeTrace trace;
    VirtualDialogs dialogs(trace);
    dialogs.fileAnswers.push_back(u"/a.kvs");
    dialogs.fileAnswers.push_back(std::nullopt);
    dialogs.inputAnswers.push_back(u"5");
    dialogs.inputAnswers.push_back(std::nullopt);
    dialogs.answers.push_back(Answer::No);
    EXPECT_EQ(dialogs.Input(u"秒", u"時間", u"3"), Text(u"5"));
    EXPECT_EQ(dialogs.Input(u"秒", u"時間", u"3"), std::nullopt);
    EXPECT_EQ(dialogs.ChooseFile({false, u"開く", u"KVS|*.kvs", u"*.kvs", {}}), Text(u"/a.kvs"));
    EXPECT_EQ(dialogs.ChooseFile({true, u"保存", u"KVS|*.kvs", u"x.kvs", {}}), std::nullopt);
    EXPECT_EQ(dialogs.Message(u"", platform::kYesNo, u""), Answer::No);
    ASSERT_EQ(trace.lines.size(), 5u);
    EXPECT_EQ(trace.lines[0].event, "input");
    EXPECT_EQ(trace.lines[0].String("prompt"), u"秒");
    EXPECT_EQ(trace.lines[0].String("default"), u"3");
    EXPECT_EQ(trace.lines[0].String("answer"), u"5");
    EXPECT_EQ(FieldOf(trace.lines[1], "answer"), decltype(platform::TraceField::value)(nullptr));
    EXPECT_EQ(trace.lines[2].event, "dialog");
    EXPECT_EQ(FieldOf(trace.lines[2], "save"), decltype(platform::TraceField::value)(false));
    EXPECT_EQ(trace.lines[2].String("path"), u"/a.kvs");
    EXPECT_EQ(FieldOf(trace.lines[3], "path"), decltype(platform::TraceField::value)(nullptr));
    EXPECT_EQ(FieldNames(trace.lines[3]),
              (std::vector<std::string>{"title", "save", "initial", "path"}));
}

TEST(VirtualDialogs, UnansweredInputKeepsItsDefaultAndAFileDialogCancels) {
    fakes::FakeTrace trace;
    VirtualDialogs dialogs(trace);
    EXPECT_EQ(dialogs.Input(u"", u"", u"3"), Text(u"3"));
    EXPECT_EQ(dialogs.ChooseFile({}), std::nullopt);
    for (const Line& line : trace.lines) {
        EXPECT_EQ(FieldOf(line, "unanswered"), decltype(platform::TraceField::value)(true));
    }
}

TEST(VirtualMonitors, StandSideBySide) {
    VirtualMonitors monitors({{0, 0, 1920, 1080}, {5, 5, 1280, 1024}});
    const std::vector<platform::Rect> expected{{0, 0, 1920, 1080}, {1920, 0, 1280, 1024}};
    EXPECT_EQ(monitors.Enumerate(), expected);
    EXPECT_EQ(monitors.OfMainWindow(), 0);
    EXPECT_EQ(VirtualMonitors().Enumerate().size(), 1u);
}

TEST(VirtualMonitors, MainWindowIsWhereItsCentreLies) {
    VirtualMonitors monitors({{0, 0, 1000, 800}, {0, 0, 1000, 800}});
    model::Window window("Form1");
    monitors.Follow(&window);
    window.Width = 400 * 15;
    window.Height = 300 * 15;
    window.Left = 799 * 15;  // centre at 999 pixels
    EXPECT_EQ(monitors.OfMainWindow(), 0);
    window.Left = 800 * 15;
    EXPECT_EQ(monitors.OfMainWindow(), 1);
    window.Left = 5000 * 15;
    EXPECT_EQ(monitors.OfMainWindow(), 0);
}

}  // namespace
}  // namespace virtual_adapter
