// The folders of a tree, one at a time.
#include "authoring/shared/tree_walk.h"

#include <gtest/gtest.h>

#include "support/fake_platform.h"

namespace authoring {
namespace {

std::vector<Text> All(platform::Folders& folders, const Text& root) {
    std::vector<Text> all;
    TreeWalk walk(folders, root, u"*.jpg");
    while (const auto folder = walk.Next([] { return true; })) {
        all.push_back(folder->path);
    }
    return all;
}

TEST(TreeWalk, EachFolderComesBeforeThoseInIt) {
    fakes::FakePlatform around;
    for (const char16_t* path :
         {u"D:\\t\\b\\x.jpg", u"D:\\t\\a\\one\\x.jpg", u"D:\\t\\a\\two\\x.jpg"}) {
        around.files.Put(path, "");
    }
    EXPECT_EQ(All(around.folders, u"D:\\t"),
              (std::vector<Text>{u"D:\\t", u"D:\\t\\a", u"D:\\t\\a\\one", u"D:\\t\\a\\two",
                                 u"D:\\t\\b"}));
}

TEST(TreeWalk, LinksThatLeadBackAreEnteredOnce) {
    fakes::FakePlatform around;
    around.files.Put(u"D:\\t\\a\\x.jpg", "");
    around.files.Put(u"D:\\t\\a\\loop\\a\\x.jpg", "");
    around.files.Put(u"D:\\t\\b\\x.jpg", "");
    around.folders.links[u"D:\\t\\a\\loop"] = u"D:\\t";
    around.folders.links[u"D:\\t\\b"] = u"D:\\t\\a";
    EXPECT_EQ(All(around.folders, u"D:\\t"), (std::vector<Text>{u"D:\\t", u"D:\\t\\a"}));
}

TEST(TreeWalk, BringsTheFilesOfEachFolder) {
    fakes::FakePlatform around;
    around.files.Put(u"D:\\t\\x.jpg", "");
    around.files.Put(u"D:\\t\\a\\y.jpg", "");
    TreeWalk walk(around.folders, u"D:\\t", u"*.jpg");
    const auto goOn = [] { return true; };
    EXPECT_EQ(walk.Next(goOn)->files, std::vector<Text>{u"x.jpg"});
    EXPECT_EQ(walk.Next(goOn)->files, std::vector<Text>{u"y.jpg"});
    EXPECT_FALSE(walk.Next(goOn));
}

TEST(TreeWalk, AFolderThatIsNotThereHasNone) {
    fakes::FakePlatform around;
    EXPECT_EQ(All(around.folders, u"D:\\gone"), std::vector<Text>{});
}

}  // namespace
}  // namespace authoring
