// A run over a link list: from document to document, back over a border, and its ends.
#include <gtest/gtest.h>

#include "document/show_document.h"
#include "model/windows/control_box.h"
#include "model/windows/link_list.h"
#include "model/windows/main_window.h"
#include "model/windows/slide_list.h"
#include "show_support.h"

namespace playback_tests {
namespace {

/// Documents a (slides a1 a2), b (b1), c (c1 c2 c3) in folders of their own; 3 s a slide.
class LinkShow : public Show {
public:
    model::Slidescreen2& box = windows.slidescreen2;

    explicit LinkShow(const std::vector<Text>& documents = {u"a", u"b", u"c"}) : Show(0) {
        PutDocument(u"a", 2);
        PutDocument(u"b", 1);
        PutDocument(u"c", 3);
        PutDocument(u"empty", 0);
        files.Put(u"C:\\bad\\bad.kvs", "no document");
        for (const Text& name : documents) {
            state.LinkEnd = static_cast<int16_t>(state.LinkEnd + 1);
            state.LinkList.Set(state.LinkEnd, u"C:\\" + name + u"\\" + name + u".kvs");
        }
        state.LinkEnd = static_cast<int16_t>(state.LinkEnd + 1);
        state.LinkRunning = 1;
        state.LinkRepeat = 0;
        state.ControlBoxFlag = 0;
        // No effects, which would take time; documents this old leave these settings alone.
        state.ShowEffect = 11;
        state.EraseEffect = 12;
    }
    void Run() {
        playback::PlaceFullScreen(app);
        screen.Show();
    }
    /// Names of the pictures shown, in order: "a1 a2".
    std::string Names() const {
        std::string names;
        for (const auto& line : trace.Of("slide")) {
            const Text path = line.String("path");
            const size_t start = path.rfind(u'\\') + 1;
            names += (names.empty() ? "" : " ") +
                     text::ToUtf8(path.substr(start, path.rfind(u'.') - start));
        }
        return names;
    }

    void PutDocument(const Text& name, int slides) {
        // The oldest form: file name, interval, repeat (1: none), sound mode, sound file, slides.
        Text lines = u"vue2\r\nx.kvs\r\n 3000 \r\n 1 \r\n 7 \r\n*.wav\r\n";
        lines += text::FromUtf8(" " + std::to_string(slides) + " \r\n");
        for (int i = 1; i <= slides; ++i) {
            const Text picture = name + text::FromUtf8(std::to_string(i)) + u".png";
            lines += picture + u"\r\n";
            PutPicture(u"C:\\" + name + u"\\" + picture, 10, 10);
        }
        PutText(u"C:\\" + name + u"\\" + name + u".kvs", lines);
    }
};

TEST(LinkRun, BeginsWithTheFirstDocumentAndAsksNothing) {
    LinkShow show;
    show.Run();
    EXPECT_TRUE(show.dialogs.messages.empty());
    EXPECT_EQ(show.state.LinkIndex, 2) << "the next entry";
    EXPECT_EQ(show.state.BaseFolder, u"C:\\a\\");
    EXPECT_EQ(show.state.SlideListEnd, 3);
    EXPECT_EQ(show.state.SlideList(1), u"C:\\a\\a1.png");
    EXPECT_EQ(show.state.SlideList(3), u"");
    EXPECT_EQ(show.state.SlideIndex, 2);
    EXPECT_EQ(show.Names(), "a1");
}

TEST(LinkRun, PlaysAllDocumentsOnceAndEnds) {
    LinkShow show;
    show.Run();
    show.loop.Run(17999);
    EXPECT_EQ(show.Names(), "a1 a2 b1 c1 c2 c3");
    EXPECT_EQ(show.state.LinkIndex, 4);
    EXPECT_EQ(show.state.ShowRunning, 1);
    show.loop.Run(1);
    EXPECT_FALSE(show.screen.Loaded);
    EXPECT_EQ(show.state.LinkRunning, 0);
    EXPECT_EQ(show.state.LinkIndex, 0);
    EXPECT_EQ(show.state.ShowRunning, 0);
    EXPECT_TRUE(show.form1.Visible);
    EXPECT_EQ(show.Buttons(), "SF");
}

TEST(LinkRun, EveryDocumentBeginsWithoutWhatMacrosSetBefore) {
    LinkShow show;
    show.Run();
    show.state.OverlayFrameOff = show.state.PicturePositionFixed = 1;
    show.state.Mp3VolumeOffset = 500;
    show.loop.Run(3000);
    EXPECT_EQ(show.Names(), "a1 a2");
    EXPECT_EQ(show.state.OverlayFrameOff, 1);
    show.loop.Run(3000);
    EXPECT_EQ(show.Names(), "a1 a2 b1");
    EXPECT_EQ(show.state.OverlayFrameOff, 0);
    EXPECT_EQ(show.state.PicturePositionFixed, 0);
    EXPECT_EQ(show.state.Mp3VolumeOffset, 0);
}

TEST(LinkRun, SlidesAfterAFilmThatTheListLeavesOutKeepTheirSchedule) {
    LinkShow show({u"x"});
    Show other(0);
    for (const char16_t* name : {u"f.avi", u"1.png", u"2.png"}) {
        other.AddSlide(Text(u"C:\\x\\") + name);
        show.PutPicture(Text(u"C:\\x\\") + name, 10, 10);
    }
    other.form3.List2.SetRow(1, Text(15, u' ') + u"2000/01/0100:00");  // over
    document::WriteShowDocument(other.app, u"C:\\x\\x.kvs");
    show.files.Put(u"C:\\x\\x.kvs", other.files.Get(u"C:\\x\\x.kvs")->content);
    show.Run();
    show.loop.Run(1);
    EXPECT_EQ(show.Skipped(), Numbers{1});
    EXPECT_EQ(show.Names(), "2");
    EXPECT_EQ(show.state.ScheduleFrom(3), u"");
}

TEST(LinkRun, ReturnsToTheLinkWindow) {
    LinkShow show({u"b"});
    show.state.LinkWindowOpen = 1;
    show.Run();
    show.loop.Run(3000);
    EXPECT_FALSE(show.screen.Loaded);
    EXPECT_TRUE(show.windows.form9.Visible);
    EXPECT_FALSE(show.form1.Visible);
}

TEST(LinkRun, RepeatsTheWholeList) {
    LinkShow show({u"b", u"a"});
    show.state.LinkRepeat = 1;
    show.Run();
    show.loop.Run(12000);
    EXPECT_EQ(show.Names(), "b1 a1 a2 b1 a1");
    EXPECT_EQ(show.state.LinkIndex, 3);
}

TEST(LinkRun, OverrulesADocumentsRepeatAndRandomOrder) {
    for (const int16_t repeat : {0, 1}) {
        LinkShow show({u"c"});
        show.Run();
        show.state.RepeatFlag = repeat;
        show.state.RandomFlag = 0;
        show.loop.Run(9000);
        EXPECT_EQ(show.Names(), "c1 c2 c3");
        EXPECT_FALSE(show.screen.Loaded);
    }
}

TEST(LinkRun, ARefusedFirstDocumentEndsItWithAMessage) {
    LinkShow show({u"bad", u"a"});
    show.Run();
    EXPECT_EQ(show.dialogs.messages.size(), 1u);
    EXPECT_FALSE(show.screen.Loaded);
    EXPECT_EQ(show.state.ShowAbort, 0);
    EXPECT_EQ(show.state.LinkRunning, 0);
    EXPECT_TRUE(show.form1.Visible);
    show.loop.Run(10000);
    EXPECT_EQ(show.Names(), "");
}

TEST(LinkRun, ARefusedLaterDocumentEndsItWithAMessage) {
    LinkShow show({u"b", u"bad", u"a"});
    show.Run();
    show.loop.Run(10000);
    EXPECT_EQ(show.dialogs.messages.size(), 1u);
    EXPECT_EQ(show.Names(), "b1");
    EXPECT_FALSE(show.screen.Loaded);
    EXPECT_EQ(show.state.ShowAbort, 0);
    EXPECT_EQ(show.state.LinkRunning, 0);
    EXPECT_FALSE(show.form1.Timer1.Enabled);
}

TEST(LinkRun, AFailingFirstSlideOfALaterDocumentEndsIt) {
    LinkShow show({u"b", u"a"});
    show.files.Put(u"C:\\a\\a1.png", "no picture");
    show.dialogs.answers = {platform::Answer::No};
    show.Run();
    show.loop.Run(10000);
    EXPECT_EQ(show.Names(), "b1");
    EXPECT_FALSE(show.screen.Loaded);
    EXPECT_EQ(show.state.ShowAbort, 0);
    EXPECT_EQ(show.state.LinkRunning, 0);
}

TEST(LinkRun, AnEmptyDocumentIsOverAtItsFirstTick) {
    struct {
        std::vector<Text> documents;
        double b1;  // ms
    } const cases[] = {
        {{u"empty", u"b"}, 1},
        {{u"empty", u"empty", u"b"}, 2},
        {{u"b", u"empty", u"a"}, 0},
    };
    for (const auto& one : cases) {
        LinkShow show(one.documents);
        show.Run();
        EXPECT_EQ(show.state.ShowRunning, 1);
        show.loop.Run(one.b1);
        EXPECT_EQ(show.Names(), "b1");
        show.loop.Run(3000);
        EXPECT_EQ(show.Names(), "b1");
        show.loop.Run(1);
        EXPECT_EQ(show.Names(), one.b1 == 0 ? "b1 a1" : "b1");
    }
}

TEST(LinkRun, AnEmptyLastDocumentEndsItOneTickLater) {
    LinkShow show({u"b", u"empty"});
    show.Run();
    show.loop.Run(3000);
    EXPECT_TRUE(show.screen.Loaded);
    show.loop.Run(1);
    EXPECT_FALSE(show.screen.Loaded);
    EXPECT_EQ(show.state.LinkRunning, 0);
}

TEST(LinkRun, EmptyDocumentsInARepeatingListAreGoneThroughEachTime) {
    LinkShow show({u"empty", u"b"});
    show.state.LinkRepeat = 1;
    show.Run();
    show.loop.Run(3 * 3001);
    EXPECT_EQ(show.Names(), "b1 b1 b1");
}

TEST(LinkRun, ARoundOfEmptyDocumentsEndsIt) {
    for (const int16_t repeat : {0, 1}) {
        for (const int count : {1, 3}) {
            LinkShow show(std::vector<Text>(static_cast<size_t>(count), u"empty"));
            show.state.LinkRepeat = repeat;
            show.Run();
            show.loop.Run(count - 1);
            EXPECT_TRUE(show.screen.Loaded);
            show.loop.Run(1);
            EXPECT_FALSE(show.screen.Loaded) << repeat << count;
            EXPECT_EQ(show.state.LinkRunning, 0);
            EXPECT_TRUE(show.form1.Visible);
            EXPECT_TRUE(show.MenusOn());
            EXPECT_EQ(show.Buttons(), "");
        }
    }
}

TEST(LinkRun, ADocumentThatLosesItsSlidesOnDiskCountsAsEmpty) {
    LinkShow show({u"b"});
    show.state.LinkRepeat = 1;
    show.Run();
    show.PutDocument(u"b", 0);
    show.loop.Run(20000);
    EXPECT_EQ(show.Names(), "b1");
    EXPECT_FALSE(show.screen.Loaded);
}

TEST(LinkRun, DocumentsThatCannotBeOpenedAreReportedAndPassedOver) {
    struct {
        std::vector<Text> documents;
        const char* names;
        size_t messages;
    } const cases[] = {
        {{u"gone", u"b", u"a"}, "b1 a1 a2", 1},        {{u"b", u"gone", u"a"}, "b1 a1 a2", 1},
        {{u"b", u"a", u"gone"}, "b1 a1 a2", 1},        {{u"gone", u"lost", u"b"}, "b1", 2},
        {{u"gone", u"empty", u"lost", u"b"}, "b1", 2},
    };
    for (const auto& one : cases) {
        LinkShow show(one.documents);
        show.Run();
        show.loop.Run(20000);
        EXPECT_EQ(show.Names(), one.names);
        EXPECT_EQ(show.dialogs.messages.size(), one.messages);
        EXPECT_EQ(show.dialogs.messages[0].title, u"");
        EXPECT_FALSE(show.screen.Loaded);
        EXPECT_EQ(show.state.LinkRunning, 0);
    }
}

TEST(LinkRun, TheyAreReportedInEachRound) {
    LinkShow show({u"gone", u"b"});
    show.state.LinkRepeat = 1;
    show.Run();
    show.loop.Run(6000);
    EXPECT_EQ(show.Names(), "b1 b1 b1");
    EXPECT_EQ(show.dialogs.messages.size(), 3u);
    EXPECT_EQ(show.state.LinkIndex, 3);
}

TEST(LinkRun, ARoundWithoutADocumentThatOpensEndsIt) {
    for (const int16_t repeat : {0, 1}) {
        LinkShow show({u"gone", u"lost"});
        show.AddPicture();  // what stood in the list before
        show.state.LinkRepeat = repeat;
        show.Run();
        EXPECT_EQ(show.dialogs.messages.size(), 2u);
        EXPECT_FALSE(show.screen.Loaded);
        EXPECT_EQ(show.state.LinkRunning, 0);
        EXPECT_TRUE(show.form1.Visible);
        EXPECT_EQ(show.Buttons(), "SF") << "the list from before is as it was";
        show.loop.Run(10000);
        EXPECT_EQ(show.Names(), "");
    }
}

TEST(LinkRun, WhenAllDocumentsVanishTheRoundIsTheLast) {
    LinkShow show({u"b", u"a"});
    show.state.LinkRepeat = 1;
    show.Run();
    show.files.Remove(u"C:\\a\\a.kvs");
    show.files.Remove(u"C:\\b\\b.kvs");
    show.loop.Run(10000);
    EXPECT_EQ(show.Names(), "b1");
    EXPECT_EQ(show.dialogs.messages.size(), 2u);
    EXPECT_FALSE(show.screen.Loaded);
}

TEST(LinkRun, ByHandDocumentsThatBringNoSlideArePassedOver) {
    LinkShow show({u"a", u"gone", u"empty", u"b"});
    show.Run();
    show.loop.Run(3500);
    show.box.Command3.Click();
    show.box.Command5.Click();
    EXPECT_EQ(show.Names(), "a1 a2 b1");
    EXPECT_EQ(show.state.LinkIndex, 5);
    EXPECT_EQ(show.state.BaseFolder, u"C:\\b\\");
    EXPECT_FALSE(show.box.Command5.Enabled);
    show.box.Command4.Click();
    EXPECT_EQ(show.Names(), "a1 a2 b1 a2");
    EXPECT_EQ(show.state.LinkIndex, 2);
    EXPECT_EQ(show.dialogs.messages.size(), 2u) << "one for each time it was passed over";
}

TEST(LinkRun, ByHandNothingHappensWhereNoDocumentOpens) {
    LinkShow show({u"gone", u"b", u"lost"});
    show.Run();
    show.box.Command3.Click();
    show.dialogs.messages.clear();
    show.box.Command4.Click();
    EXPECT_EQ(show.dialogs.messages.size(), 1u);
    EXPECT_EQ(show.state.SlideIndex, 1);
    EXPECT_EQ(show.state.LinkIndex, 3);
    EXPECT_EQ(show.state.BaseFolder, u"C:\\b\\");
    show.box.Command5.Click();
    EXPECT_EQ(show.dialogs.messages.size(), 2u);
    EXPECT_EQ(show.state.SlideIndex, 1);
    EXPECT_EQ(show.Names(), "b1");
    EXPECT_TRUE(show.box.Command2.Enabled);
    EXPECT_EQ(show.state.StepBusy, 0);
}

TEST(LinkRun, ByHandIntoAnEmptyEndTheShowCanGoOn) {
    LinkShow show({u"empty", u"b", u"empty"});
    show.Run();
    show.loop.Run(1);
    show.box.Command3.Click();
    show.box.Command5.Click();
    EXPECT_EQ(show.state.SlideIndex, 0);
    EXPECT_EQ(show.state.LinkIndex, 4);
    EXPECT_FALSE(show.box.Command5.Enabled);
    show.box.Command4.Click();
    EXPECT_EQ(show.Names(), "b1 b1");
    show.box.Command4.Click();
    EXPECT_EQ(show.state.LinkIndex, 2);
    EXPECT_FALSE(show.box.Command4.Enabled);
    show.box.Command2.Click();
    show.loop.Run(3000);
    EXPECT_EQ(show.Names(), "b1 b1 b1");
}

TEST(LinkRun, ByHandOverABorderOntoAVideoTheShowStaysFree) {
    LinkShow show({u"a", u"b"});
    show.PutText(u"C:\\b\\b.kvs",
                 u"vue2\r\nx.kvs\r\n 3000 \r\n 1 \r\n 7 \r\n*.wav\r\n 1 \r\nfilm.mp4\r\n");
    show.files.Put(u"C:\\b\\film.mp4", "film");
    show.Run();
    show.loop.Run(3500);
    show.box.Command3.Click();
    show.box.Command5.Click();
    EXPECT_EQ(show.state.LinkIndex, 3);
    EXPECT_EQ(show.state.StepBusy, 0);
    show.box.Command4.Click();
    EXPECT_EQ(show.Names(), "a1 a2 a2");
}

TEST(LinkRun, NoBorderSkipsTheWaitForALinkedSound) {
    LinkShow show({u"b", u"a"});
    show.Run();
    ASSERT_EQ(show.state.SkipSyncWaitOnce, 0);
    show.loop.Run(3000);
    ASSERT_EQ(show.Names(), "b1 a1");
    EXPECT_EQ(show.state.SkipSyncWaitOnce, 0) << "the next step waits for the sound of a1";
}

TEST(LinkRun, TheLockOfAMacroEndsWithIt) {
    LinkShow show({u"b"});
    show.Run();
    show.state.MacroWaitClick = 1;
    show.loop.Run(3000);
    EXPECT_FALSE(show.screen.Loaded);
    EXPECT_EQ(show.state.MacroWaitClick, 0);
}

TEST(LinkRun, PreviousReachesTheLastSlideOfTheDocumentBefore) {
    LinkShow show;
    show.Run();
    show.loop.Run(7000);  // b1 stands
    show.box.Command3.Click();
    ASSERT_EQ(show.state.LinkIndex, 3);
    show.box.Command4.Click();
    EXPECT_EQ(show.Names(), "a1 a2 b1 a2");
    EXPECT_EQ(show.state.LinkIndex, 2);
    EXPECT_EQ(show.state.SlideIndex, 2);
    EXPECT_EQ(show.state.BaseFolder, u"C:\\a\\");
    show.box.Command4.Click();
    show.box.Command4.Click();
    EXPECT_EQ(show.Names(), "a1 a2 b1 a2 a1");
    EXPECT_EQ(show.state.SlideIndex, 0) << "before the first document there is nothing";
}

TEST(LinkRun, NextReachesTheFirstSlideOfTheDocumentAfter) {
    LinkShow show({u"a", u"b"});
    show.Run();
    show.box.Command3.Click();
    for (int i = 0; i < 4; ++i) {
        show.box.Command5.Click();
    }
    EXPECT_EQ(show.Names(), "a1 a2 b1");
    EXPECT_EQ(show.state.LinkIndex, 3);
    EXPECT_FALSE(show.box.Command5.Enabled);
    EXPECT_TRUE(show.box.Command4.Enabled);
    show.box.Command2.Click();
    show.loop.Run(3000);
    EXPECT_FALSE(show.screen.Loaded) << "START after the last slide ends the run with its tick";
}

TEST(LinkRun, StartAtADocumentsEndGoesOnWithTheNext) {
    LinkShow show({u"b", u"a"});
    show.Run();
    show.box.Command3.Click();
    show.box.Command2.Click();
    EXPECT_EQ(show.Names(), "b1");
    EXPECT_FALSE(show.box.Command2.Enabled);
    EXPECT_TRUE(show.box.Command3.Enabled);
    show.loop.Run(3000);
    EXPECT_EQ(show.Names(), "b1 a1");
}

TEST(LinkRun, ARefusedNeighbourEndsTheRun) {
    LinkShow show({u"b", u"bad"});
    show.Run();
    show.box.Command3.Click();
    show.box.Command5.Click();
    EXPECT_EQ(show.dialogs.messages.size(), 1u);
    EXPECT_FALSE(show.screen.Loaded);
    EXPECT_FALSE(show.box.Visible);
    EXPECT_EQ(show.state.LinkRunning, 0);
}

TEST(LinkRun, EscapeEndsItThoughAWindowShowWouldGoOn) {
    LinkShow show;
    show.Run();
    ASSERT_EQ(show.state.AlwaysFullFlag, 1);
    show.screen.KeyDown(27);
    EXPECT_EQ(show.state.LinkRunning, 0);
    show.loop.Run(10000);
    EXPECT_EQ(show.Names(), "a1");
}

}  // namespace
}  // namespace playback_tests
