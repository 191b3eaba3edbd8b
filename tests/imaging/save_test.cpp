// Saving pictures: form, and whole or not at all.
#include <gtest/gtest.h>
#include <sys/resource.h>

#include <QImage>
#include <QImageReader>

#include "imaging_support.h"

namespace {

using platform::FileError;
using platform::Outcome;
using platform::SaveForm;

struct Save : testing::Test {
    ImagingFolder folder;
    FileError error;

    platform::BitmapPtr Picture() {
        auto bitmap = std::make_shared<platform::Bitmap>(64, 48, 0xFFFFFFFFu);
        for (int y = 0; y < 24; ++y) {
            for (int x = 0; x < 32; ++x) {
                bitmap->Row(y)[x] = 0xFFC01020u;
            }
        }
        return bitmap;
    }
    Outcome Put(const std::string& name, const SaveForm& form,
                const platform::Report& report = {}) {
        return folder.Imaging().Save(Picture(), folder.Folder().TextPath(name), form, report,
                                     error);
    }
    QImage Read(const std::string& name, const char* format) {
        QImageReader reader(QString::fromStdString(folder.Folder().Path(name)), format);
        return reader.read();
    }
};

TEST_F(Save, WritesEachKindWhateverTheName) {
    const struct {
        SaveForm::Kind kind;
        const char* format;
        int most;  // difference of a colour part
    } rows[] = {{SaveForm::Bmp, "bmp", 0}, {SaveForm::Png, "png", 0}, {SaveForm::Jpeg, "jpeg", 12}};
    for (const auto& row : rows) {
        // A name may say another kind than the one that was asked for.
        ASSERT_EQ(Put("絵 1%#.bmp", {row.kind, 24, 90}), Outcome::Done) << row.format;
        const QImage image = Read("絵 1%#.bmp", row.format);
        ASSERT_EQ(image.size(), QSize(64, 48)) << row.format;
        EXPECT_LE(Distance(image.pixel(10, 10) | 0xFF000000u, 0xFFC01020u), row.most);
        EXPECT_LE(Distance(image.pixel(50, 40) | 0xFF000000u, 0xFFFFFFFFu), row.most);
    }
}

TEST_F(Save, KeepsTheDepthThatWasAskedFor) {
    ASSERT_EQ(Put("1.bmp", {SaveForm::Bmp, 1}), Outcome::Done);
    EXPECT_EQ(Read("1.bmp", "bmp").depth(), 1);
    ASSERT_EQ(Put("1.png", {SaveForm::Png, 1}), Outcome::Done);
    EXPECT_EQ(Read("1.png", "png").depth(), 1);
    ASSERT_EQ(Put("8.bmp", {SaveForm::Bmp, 8}), Outcome::Done);
    EXPECT_EQ(Read("8.bmp", "bmp").format(), QImage::Format_Indexed8);
    EXPECT_EQ(Read("8.bmp", "bmp").pixel(60, 40), 0xFFFFFFFFu);
    ASSERT_EQ(Put("4.png", {SaveForm::Png, 4}), Outcome::Done);
    EXPECT_EQ(Read("4.png", "png").depth(), 8) << "the nearest one";
    ASSERT_EQ(Put("8.jpg", {SaveForm::Jpeg, 8}), Outcome::Done);
    EXPECT_TRUE(Read("8.jpg", "jpeg").isGrayscale());
    ASSERT_EQ(Put("48.bmp", {SaveForm::Bmp, 48}), Outcome::Done);
    EXPECT_EQ(Read("48.bmp", "bmp").format(), QImage::Format_RGB32);
}

TEST_F(Save, ABetterJpegIsLarger) {
    ASSERT_EQ(Put("good.jpg", {SaveForm::Jpeg, 24, 95}), Outcome::Done);
    ASSERT_EQ(Put("bad.jpg", {SaveForm::Jpeg, 24, 5}), Outcome::Done);
    ASSERT_EQ(Put("beyond.jpg", {SaveForm::Jpeg, 24, 1000}), Outcome::Done);
    const auto size = [&](const char* name) {
        return std::filesystem::file_size(folder.Folder().Path(name));
    };
    EXPECT_GT(size("good.jpg"), size("bad.jpg"));
    EXPECT_GE(size("beyond.jpg"), size("good.jpg"));
}

TEST_F(Save, LeavesTheOldFileWhateverFails) {
    folder.Folder().Put("old.bmp", "old");
    const auto stop = [](const platform::Progress&) { return false; };
    EXPECT_EQ(Put("old.bmp", {}, stop), Outcome::Stopped);
    EXPECT_EQ(Put("none/a.bmp", {}), Outcome::Failed);
    EXPECT_EQ(error.message, u"フォルダが見つかりません。");
    EXPECT_EQ(folder.Imaging().Save(nullptr, folder.Folder().TextPath("old.bmp"), {}, {}, error),
              Outcome::Failed);
    EXPECT_EQ(folder.Imaging().Save(Picture(), u"", {}, {}, error), Outcome::Failed);
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit small{1000, before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &small);
    EXPECT_EQ(Put("old.bmp", {}), Outcome::Failed);
    EXPECT_EQ(Put("old.bmp", {}, [](const platform::Progress&) { return true; }), Outcome::Failed);
    setrlimit(RLIMIT_FSIZE, &before);
    EXPECT_FALSE(error.message.empty());
    EXPECT_EQ(folder.Folder().Content("old.bmp"), "old");
    EXPECT_EQ(folder.Folder().Count(), 1u);
}

}  // namespace
