// A show that runs while its document changes on disk.
#include <gtest/gtest.h>

#include "app_support.h"

namespace app_tests {
namespace {

/// Times and names of the slides shown.
struct Shown {
    double time;
    Text path;
    friend bool operator==(const Shown&, const Shown&) = default;
};

struct RunningShow : Program {
    std::vector<Shown> shown;

    /// Plays the document in the full screen and looks at what is on the screen every 500 ms.
    void Play(const Text& document, double milliseconds) {
        for (double time = 250; time < milliseconds; time += 500) {
            around.loop.At(time, [this, time] {
                const Text name = state.CurrentName;
                if (shown.empty() || shown.back().path != name) {
                    shown.push_back({time, name});
                }
            });
        }
        EXPECT_EQ(Run(document, false, milliseconds), kTimeOut);
    }
};

TEST(RunningShow, StartsOverWhenItsDocumentChanges) {
    RunningShow show;
    show.around.PutPicture(u"C:\\show\\c.png", 320, 240);
    show.around.loop.At(4000, [&] {
        show.around.PutText(u"C:\\show\\two.kvs", ShowOf({u"c.png", u"b.png", u"a.png"}));
    });
    show.Play(u"C:\\show\\two.kvs", 13000);
    // The tick at 6000 would have ended the show of two slides.
    EXPECT_EQ(show.shown, (std::vector<Shown>{{250, u"a.png"},
                                              {3250, u"b.png"},
                                              {6250, u"c.png"},
                                              {9250, u"b.png"},
                                              {12250, u"a.png"}}));
    EXPECT_EQ(show.state.SlideListEnd, 4);
}

TEST(RunningShow, GoesOnWhenItsDocumentIsGone) {
    RunningShow show;
    show.around.loop.At(1000, [&] { show.around.files.Remove(u"C:\\show\\two.kvs"); });
    show.Play(u"C:\\show\\two.kvs", 5000);
    EXPECT_EQ(show.shown, (std::vector<Shown>{{250, u"a.png"}, {3250, u"b.png"}}));
    EXPECT_EQ(show.around.dialogs.messages.size(), 1u);  // the question at the start
}

TEST(RunningShow, UntouchedDocumentIsNotReadAgain) {
    RunningShow show;
    show.Play(u"C:\\show\\two.kvs", 5000);
    int reads = 0;
    for (const Text& path : show.around.files.read) {
        reads += path == u"C:\\show\\two.kvs" ? 1 : 0;
    }
    EXPECT_EQ(reads, 1);
}

}  // namespace
}  // namespace app_tests
