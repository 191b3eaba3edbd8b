// What is kept of a document's files.
#include "authoring/slide_list/remembered_files.h"

#include <gtest/gtest.h>

#include "list_desk.h"

namespace authoring {
namespace {

TEST(RememberedFiles, ComeBackFromTheirFile) {
    fakes::FakePlatform around;
    around.app.state.AppFolder = u"C:\\app\\";
    RememberedFiles known = RememberedFiles::Read(around.app);
    EXPECT_EQ(known.Find(u"/p/a.jpg"), std::nullopt);
    known.Put(u"/p/a.jpg", {123, 0xFEDCBA9876543210u});
    known.Put(u"/p/絵.jpg", {5000000000, 1});
    known.Put(u"/p/a.jpg", {124, 2});
    known.Write(around.app);
    const RememberedFiles again = RememberedFiles::Read(around.app);
    EXPECT_EQ(again.Find(u"/p/a.jpg"), (FileTraits{124, 2}));
    EXPECT_EQ(again.Find(u"/p/絵.jpg"), (FileTraits{5000000000, 1}));
    EXPECT_EQ(again.Find(u"/p/A.jpg"), std::nullopt);
}

TEST(RememberedFiles, TheOldestGo) {
    fakes::FakePlatform around;
    RememberedFiles known;
    for (int i = 0; i < 60001; ++i) {
        known.Put(text::FromUtf8(std::to_string(i)), {i, 0});
    }
    known.Write(around.app);
    const RememberedFiles again = RememberedFiles::Read(around.app);
    EXPECT_EQ(again.Find(u"0"), std::nullopt);
    EXPECT_TRUE(again.Find(u"1"));
    EXPECT_TRUE(again.Find(u"60000"));
}

TEST(RememberedFiles, AFileOfAnotherFormIsNone) {
    for (const char* content : {"", "known9\n1 2 3\n", "known1\nwords\n", "known1\n1 2"}) {
        fakes::FakePlatform around;
        around.files.Put(around.app.state.AppFolder + u"known.dat", content);
        EXPECT_EQ(RememberedFiles::Read(around.app).Find(u"a"), std::nullopt) << content;
    }
}

TEST(RememberedFiles, OnlyFilesThatAreThereAndNotKnownAreKept) {
    ListDesk desk({u"a", u"gone"});
    desk.files.Put(u"a", "content");
    RememberFiles(desk.app);
    const RememberedFiles known = RememberedFiles::Read(desk.app);
    EXPECT_EQ(known.Find(u"a"), (FileTraits{7, platform::BeginningSum("content")}));
    EXPECT_EQ(known.Find(u"gone"), std::nullopt);
    desk.files.written.clear();
    RememberFiles(desk.app);
    EXPECT_TRUE(desk.files.written.empty());
}

}  // namespace
}  // namespace authoring
