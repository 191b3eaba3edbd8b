// What is seen of the rows of the slide list.
#include "authoring/slide_list/row_faces.h"

#include <gtest/gtest.h>

#include "model/sound_modes.h"
#include "model/windows/slide_list.h"
#include "support/fake_platform.h"

namespace authoring {
namespace {

using model::kMarkFilm;
using model::kMarkMissing;
using model::kMarkSound;
using model::kMarkText;

/// Rows that are to be drawn anew.
struct Redrawn : model::Listener {
    std::vector<int> rows;
    int times = 0;
    void RowsChanged(model::Control&, const model::RowChange& change) override {
        ++times;
        for (int i = 0; i < change.count; ++i) {
            rows.push_back(change.row + i);
        }
    }
};

struct Faces : testing::Test {
    fakes::FakePlatform around;
    model::Application& app = around.app;
    model::ShowState& state = app.state;
    model::ListBox& list = app.windows.form3.List1;
    fakes::FakeFileInquiry& inquiry = around.fileInquiry;

    void SetUp() override {
        state.AppFolder = u"C:\\program\\";
        state.SoundMode = model::kLinkedWavSound;
        AttachRowFaces(app);
    }
    void Add(const Text& path, const Text& schedule = Text(30, u' ')) {
        list.AddItem(path);
        app.windows.form3.List2.AddItem(schedule);
    }
    unsigned MarksOf(int row) { return list.face(row).marks; }
};

TEST_F(Faces, HaveNameAndFolderApart) {
    Add(u"D:\\photos\\sea\\umi01.jpg");
    Add(u"/home/me/写真/b.png");
    Add(u"bare.jpg");
    const model::RowFace face = list.face(0);
    EXPECT_EQ(face.file, u"D:\\photos\\sea\\umi01.jpg");
    EXPECT_EQ(face.title, u"umi01.jpg");
    EXPECT_EQ(face.detail, u"D:\\photos\\sea");
    EXPECT_EQ(face.aside, u"");
    EXPECT_EQ(list.face(1).detail, u"/home/me/写真");
    EXPECT_EQ(list.face(2).file, u"C:\\program\\bare.jpg") << "where the show would look";
    EXPECT_EQ(list.face(2).detail, u"");
    EXPECT_EQ(list.thumbnails, &app.platform.thumbnails);
}

TEST_F(Faces, SayTheScheduleInShort) {
    EXPECT_EQ(ScheduleInShort(u"2026/01/0108:002026/01/3117:30"),
              u"2026/01/01 08:00 – 2026/01/31 17:30");
    EXPECT_EQ(ScheduleInShort(u"2026/01/0108:002026/01/31     "), u"2026/01/01 08:00 – 2026/01/31");
    EXPECT_EQ(ScheduleInShort(u"2026/01/01                    "), u"2026/01/01 –");
    EXPECT_EQ(ScheduleInShort(u"               2026/01/3117:30"), u"– 2026/01/31 17:30");
    EXPECT_EQ(ScheduleInShort(u"          22:00          06:00"), u"22:00 – 06:00");
    EXPECT_EQ(ScheduleInShort(Text(30, u' ')), u"");
    EXPECT_EQ(ScheduleInShort(u""), u"") << "a row that is not there";
    Add(u"D:\\a.jpg", u"2026/01/01                    ");
    EXPECT_EQ(list.face(0).aside, u"2026/01/01 –");
}

TEST_F(Faces, AreMarkedForWhatLiesBesideThem) {
    around.files.Put(u"D:\\a.jpg", "x");
    around.files.Put(u"D:\\a.txt", "x");
    around.files.Put(u"D:\\b.mp4", "x");
    around.files.Put(u"D:\\b.wav", "x");
    Add(u"D:\\a.jpg");
    Add(u"D:\\b.mp4");
    Add(u"D:\\c.jpg");
    Add(u"D:\\gone.AVI");
    EXPECT_EQ(MarksOf(0), unsigned{kMarkText});
    EXPECT_EQ(MarksOf(1), unsigned{kMarkSound | kMarkFilm});
    EXPECT_EQ(MarksOf(2), unsigned{kMarkMissing});
    EXPECT_EQ(MarksOf(3), unsigned{kMarkMissing | kMarkFilm});
}

/// A text's name loses four characters, a sound's three.
TEST_F(Faces, ALongEndingHasTheLinkedFilesThatAShowWouldTake) {
    around.files.Put(u"D:\\a.jpeg", "x");
    around.files.Put(u"D:\\a.jtxt", "x");
    Add(u"D:\\a.jpeg");
    EXPECT_EQ(MarksOf(0), 0u);
    around.files.Put(u"D:\\a..txt", "x");
    around.files.Put(u"D:\\a.jwav", "x");
    RefreshFaces(app);
    MarksOf(0);
    EXPECT_EQ(MarksOf(0), unsigned{kMarkText | kMarkSound});
}

TEST_F(Faces, MarkTheSoundOfTheModeInForce) {
    around.files.Put(u"D:\\a.jpg", "x");
    Add(u"D:\\a.jpg");
    for (const char16_t* kind : {u"wav", u"mid", u"mp3"}) {
        around.files.Put(Text(u"D:\\a.") + kind, "x");
        RefreshFaces(app);
        for (int16_t mode = 0; mode <= 9; ++mode) {
            state.SoundMode = mode;
            const TextView played = mode == 9 ? u"mp3" : mode == 5 ? u"mid" : u"wav";
            EXPECT_EQ(MarksOf(0), played == kind ? unsigned{kMarkSound} : 0u)
                << text::ToUtf8(kind) << " in mode " << mode;
        }
        around.files.Remove(Text(u"D:\\a.") + kind);
    }
}

TEST_F(Faces, LookInTheFolderOfLinkedFiles) {
    around.files.Put(u"D:\\a.jpg", "x");
    around.files.Put(u"E:\\linked\\a.txt", "x");
    around.files.Put(u"E:\\linked\\gone.txt", "x");
    Add(u"D:\\a.jpg");
    Add(u"D:\\gone.jpg");
    EXPECT_EQ(MarksOf(0), 0u);
    state.LinkedFolderFlag = 1;
    state.LinkedFolder = u"E:\\linked";
    EXPECT_EQ(MarksOf(0), unsigned{kMarkText});
    EXPECT_EQ(MarksOf(1), unsigned{kMarkMissing}) << "it has no name there";
    around.files.Put(u"D:\\gone.txt", "x");
    state.LinkedFolderFlag = 0;
    EXPECT_EQ(MarksOf(1), unsigned{kMarkMissing | kMarkText});
}

TEST_F(Faces, AskWithoutTouchingTheDiskThemselves) {
    Add(u"D:\\a.jpg");
    const size_t read = around.files.read.size();
    state.LinkedFolderFlag = 1;
    state.LinkedFolder = u"E:\\linked";
    inquiry.late = true;
    EXPECT_EQ(MarksOf(0), 0u) << "nothing is known yet";
    EXPECT_EQ(inquiry.asked,
              (std::vector<Text>{u"D:\\a.jpg", u"E:\\linked\\a.txt", u"E:\\linked\\a.wav"}));
    EXPECT_EQ(around.files.read.size(), read);
    MarksOf(0);
    EXPECT_EQ(inquiry.asked.size(), 3u) << "once";
    inquiry.Answer();
    MarksOf(0);
    EXPECT_EQ(inquiry.asked.size(), 3u);
}

TEST_F(Faces, AreDrawnAnewWhereAnAnswerChangesThem) {
    around.files.Put(u"D:\\a.jpg", "x");
    around.files.Put(u"D:\\b.jpg", "x");
    around.files.Put(u"D:\\b.txt", "x");
    for (const char16_t* path : {u"D:\\a.jpg", u"D:\\b.jpg", u"D:\\gone.jpg", u"D:\\b.jpg"}) {
        Add(path);
    }
    inquiry.late = true;
    for (int row = 0; row < 4; ++row) {
        MarksOf(row);
    }
    Redrawn redrawn;
    list.Listen(&redrawn);
    inquiry.Answer();
    list.Unlisten(&redrawn);
    EXPECT_EQ(redrawn.rows, (std::vector<int>{1, 3, 2})) << "as presumed: row 0";
    EXPECT_EQ(MarksOf(3), unsigned{kMarkText});
}

TEST_F(Faces, AnAnswerForRowsThatAreGoneDoesNoHarm) {
    inquiry.late = true;
    Add(u"D:\\a.jpg");
    Add(u"D:\\b.jpg");
    MarksOf(0);
    MarksOf(1);
    list.Clear();
    app.windows.form3.List2.Clear();
    inquiry.Answer();
    Add(u"D:\\b.jpg");
    EXPECT_EQ(MarksOf(0), unsigned{kMarkMissing});
}

TEST_F(Faces, KeepTheirMarksWhileTheyAskAnew) {
    Add(u"D:\\a.jpg");
    EXPECT_EQ(MarksOf(0), unsigned{kMarkMissing});
    around.files.Put(u"D:\\a.jpg", "x");
    EXPECT_EQ(MarksOf(0), unsigned{kMarkMissing}) << "nobody asked";
    inquiry.late = true;
    Redrawn redrawn;
    list.Listen(&redrawn);
    RefreshFaces(app);
    EXPECT_EQ(redrawn.rows, std::vector<int>{0});
    EXPECT_EQ(MarksOf(0), unsigned{kMarkMissing});
    inquiry.Answer();
    list.Unlisten(&redrawn);
    EXPECT_EQ(redrawn.rows, (std::vector<int>{0, 0}));
    EXPECT_EQ(MarksOf(0), 0u);
}

TEST_F(Faces, OneFileCanBeForgotten) {
    around.files.Put(u"D:\\a.jpg", "x");
    Add(u"D:\\a.jpg");
    EXPECT_EQ(MarksOf(0), 0u);
    around.files.Put(u"D:\\a.txt", "x");
    around.files.Put(u"D:\\a.wav", "x");
    inquiry.asked.clear();
    ForgetFacts(app, u"D:\\a.txt");
    EXPECT_EQ(MarksOf(0), unsigned{kMarkText});
    EXPECT_EQ(inquiry.asked, std::vector<Text>{u"D:\\a.txt"});
    ForgetFacts(app, u"D:\\never.txt");
}

TEST_F(Faces, WhatIsKnownHasBounds) {
    for (int i = 0; i < 30000; ++i) {
        Add(u"D:\\" + text::FromUtf8(std::to_string(i)) + u".jpg");
        MarksOf(i);
    }
    const model::KnownFiles& known = app.windows.form3.known;
    EXPECT_LE(known.files.size(), 12000u);
    EXPECT_EQ(known.files.size(), known.order.size());
    inquiry.asked.clear();
    EXPECT_EQ(MarksOf(29999), unsigned{kMarkMissing});
    EXPECT_TRUE(inquiry.asked.empty());
    EXPECT_EQ(MarksOf(0), unsigned{kMarkMissing});
    EXPECT_EQ(inquiry.asked.size(), 3u) << "it was let go";
}

TEST_F(Faces, AreLinesOrPicturesAsAPersonChooses) {
    model::Form3& form3 = app.windows.form3;
    form3.mnuFACE(1).Choose();
    EXPECT_TRUE(list.AsGrid);
    form3.mnuFACE(0).Choose();
    EXPECT_FALSE(list.AsGrid);
}

}  // namespace
}  // namespace authoring
