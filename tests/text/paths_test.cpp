#include "text/paths.h"

#include <gtest/gtest.h>

#include <random>

namespace {

TEST(BareName, StandsAfterTheLastSeparatorOrDrive) {
    EXPECT_EQ(text::BareName(u"C:\\pics\\a.jpg"), u"a.jpg");
    EXPECT_EQ(text::BareName(u"C:a.jpg"), u"a.jpg");
    EXPECT_EQ(text::BareName(u"pics/a.jpg"), u"a.jpg");
    EXPECT_EQ(text::BareName(u"a.jpg"), u"a.jpg");
    EXPECT_EQ(text::BareName(u"C:\\pics\\"), u"");
    EXPECT_EQ(text::BareName(u""), u"");
    EXPECT_EQ(text::BareName(u"C:\\表\\能.jpg"), u"能.jpg");
}

TEST(BareName, OfANativePathStopsAtSlashesOnly) {
    EXPECT_EQ(text::BareName(u"/home/u/a.jpg"), u"a.jpg");
    EXPECT_EQ(text::BareName(u"/home/u/a\\b:c.jpg"), u"a\\b:c.jpg");
    EXPECT_EQ(text::BareName(u"/"), u"");
}

TEST(FolderPart, KeepsItsEnd) {
    EXPECT_EQ(text::FolderPart(u"C:\\pics\\a.jpg"), u"C:\\pics\\");
    EXPECT_EQ(text::FolderPart(u"C:a.jpg"), u"C:");
    EXPECT_EQ(text::FolderPart(u"a.jpg"), u"");
    EXPECT_EQ(text::FolderPart(u"/a\\b"), u"/");
}

TEST(HoldsSeparator, CountsSlashesButNoColon) {
    EXPECT_TRUE(text::HoldsSeparator(u"a\\b"));
    EXPECT_TRUE(text::HoldsSeparator(u"a/b"));
    EXPECT_TRUE(text::HoldsSeparator(u"/b"));
    EXPECT_FALSE(text::HoldsSeparator(u"C:a"));
    EXPECT_FALSE(text::HoldsSeparator(u""));
}

TEST(WithFolder, PutsItInFrontOfBareNamesOnly) {
    EXPECT_EQ(text::WithFolder(u"/show/", u"a.jpg"), u"/show/a.jpg");
    EXPECT_EQ(text::WithFolder(u"/show/", u"sub\\a.jpg"), u"sub\\a.jpg");
    EXPECT_EQ(text::WithFolder(u"C:\\show\\", u"/a.jpg"), u"/a.jpg");
}

TEST(WithSeparator, AddsOneOfTheFoldersOwnKind) {
    EXPECT_EQ(text::WithSeparator(u"/show"), u"/show/");
    EXPECT_EQ(text::WithSeparator(u"/show/"), u"/show/");
    EXPECT_EQ(text::WithSeparator(u"/sho\\"), u"/sho\\/");
    EXPECT_EQ(text::WithSeparator(u"C:\\show"), u"C:\\show\\");
    EXPECT_EQ(text::WithSeparator(u"C:\\show\\"), u"C:\\show\\");
    EXPECT_EQ(text::WithSeparator(u"C:/show"), u"C:/show/");
    EXPECT_EQ(text::WithSeparator(u"C:"), u"C:\\");
    EXPECT_EQ(text::WithSeparator(u""), u"");
}

TEST(WithoutSeparator, LeavesRootsAlone) {
    EXPECT_EQ(text::WithoutSeparator(u"/home/"), u"/home");
    EXPECT_EQ(text::WithoutSeparator(u"/home//"), u"/home");
    EXPECT_EQ(text::WithoutSeparator(u"/home\\"), u"/home\\");
    EXPECT_EQ(text::WithoutSeparator(u"C:\\pic\\"), u"C:\\pic");
    EXPECT_EQ(text::WithoutSeparator(u"C:\\pic/"), u"C:\\pic");
    for (const TextView whole : {u"/", u"C:\\", u"C:/", u"\\", u"/home", u"C:", u""}) {
        EXPECT_EQ(text::WithoutSeparator(whole), whole);
    }
}

TEST(WithDefaultExtension, LooksAtTheLastFourCharacters) {
    EXPECT_EQ(text::WithDefaultExtension(u"show", u".kvs"), u"show.kvs");
    EXPECT_EQ(text::WithDefaultExtension(u"show.txt", u".kvs"), u"show.txt");
    EXPECT_EQ(text::WithDefaultExtension(u"a.b", u".kvs"), u"a.b");
    EXPECT_EQ(text::WithDefaultExtension(u"show.jpeg", u".kvs"), u"show.jpeg.kvs");
    EXPECT_EQ(text::WithDefaultExtension(u"", u".kvl"), u".kvl");
}

TEST(Paths, EveryPathIsItsFolderAndItsName) {
    std::mt19937 random(3);
    const TextView letters = u"ab.\\/:表 ";
    for (int i = 0; i < 20000; ++i) {
        Text path;
        for (size_t length = random() % 12; length > 0; --length) {
            path.push_back(letters[random() % letters.size()]);
        }
        const Text name = text::BareName(path);
        ASSERT_EQ(text::FolderPart(path) + name, path);
        const Text native = u"/" + path;
        ASSERT_EQ(text::FolderPart(native) + text::BareName(native), native);
        ASSERT_EQ(text::BareName(native).find(u'/'), Text::npos);
        if (!text::IsNativePath(path)) {
            ASSERT_EQ(name.find_first_of(u"\\/:"), Text::npos);
            ASSERT_EQ(text::BareName(name), name);
        }
        ASSERT_EQ(text::WithSeparator(text::WithSeparator(path)), text::WithSeparator(path));
    }
}

}  // namespace
