// Thumbnails, and the desktop's cache of them.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QCryptographicHash>
#include <QImage>
#include <deque>
#include <map>
#include <mutex>
#include <thread>

#include "adapters/imaging/thumbnail_cache.h"
#include "adapters/imaging/thumbnailer.h"
#include "imaging_support.h"

namespace imaging {
namespace {

using platform::BitmapPtr;
using platform::Pixel;

constexpr Pixel kRed = 0xFFFF0000u, kBlue = 0xFF0000FFu;

QByteArray Flat(int width, int height, Pixel color, const char* format = "png") {
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(color);
    return Encoded(image, format);
}

struct Thumbnails : testing::Test {
    TemporaryFolder folder;
    std::map<Text, BitmapPtr> ready;
    platform::Thumbnails::Ready keep = [this](const Text& path, const BitmapPtr& picture) {
        EXPECT_FALSE(ready.contains(path)) << "answered twice";
        ready[path] = picture;
    };

    /// The file, written an hour ago.
    Text Put(const std::string& name, const QByteArray& bytes) {
        folder.Put(name, bytes.toStdString());
        Date(name, 3600);
        return folder.TextPath(name);
    }
    void Date(const std::string& name, int secondsAgo) {
        const timespec then{time(nullptr) - secondsAgo, 0};
        const timespec times[2] = {then, then};
        utimensat(AT_FDCWD, folder.Path(name).c_str(), times, 0);
    }
    std::string Cache() const { return folder.Path("cache/thumbnails"); }
    std::string KeptFile(const std::string& level, const std::string& name) const {
        const auto uri = QByteArray::fromStdString(FileUri(folder.Path(name)));
        return Cache() + "/" + level + "/" +
               QCryptographicHash::hash(uri, QCryptographicHash::Md5).toHex().toStdString() +
               ".png";
    }
    ThumbnailOptions AtOnce() const { return {folder.Path("program"), Cache(), {}, 0}; }
    BitmapPtr Get(const Text& path, int side = 128) {
        Thumbnailer thumbnails(AtOnce());
        ready.clear();
        thumbnails.Want(this, {path}, side, keep);
        EXPECT_TRUE(ready.contains(path)) << text::ToUtf8(path);
        return ready[path];
    }
};

TEST(FileUri, IsSpeltAsDesktopsSpellIt) {
    EXPECT_EQ(FileUri("/home/jens/photos/me.png"), "file:///home/jens/photos/me.png");
    EXPECT_EQ(FileUri("/a b/100%#?;[1].jpg"), "file:///a%20b/100%25%23%3F%3B%5B1%5D.jpg");
    EXPECT_EQ(FileUri("/-_.!~*'()&=:@+$,"), "file:///-_.!~*'()&=:@+$,");
    EXPECT_EQ(FileUri("/写\n"), "file:///%E5%86%99%0A");
}

TEST_F(Thumbnails, FitTheSquareAndAreNeverEnlarged) {
    const BitmapPtr wide = Get(Put("wide.png", Flat(640, 320, kRed)));
    ASSERT_TRUE(wide);
    EXPECT_EQ(wide->width, 128);
    EXPECT_EQ(wide->height, 64);
    EXPECT_EQ(wide->Row(30)[60], kRed);
    const BitmapPtr tall = Get(Put("tall.jpg", Flat(300, 900, kRed, "jpg")), 90);
    ASSERT_TRUE(tall);
    EXPECT_EQ(tall->width, 30);
    EXPECT_EQ(tall->height, 90);
    const BitmapPtr small = Get(Put("small.png", Flat(20, 10, kBlue)), 256);
    ASSERT_TRUE(small);
    EXPECT_EQ(small->width, 20);
    const BitmapPtr line = Get(Put("line.png", Flat(2000, 1, kBlue)));
    ASSERT_TRUE(line);
    EXPECT_EQ(line->height, 1);
}

TEST_F(Thumbnails, AreTurnedAsTheCameraWasHeld) {
    const QByteArray lying = Encoded(Quarters(640, 320), "jpg", 100);
    const BitmapPtr turned = Get(Put("turned.jpg", WithOrientation(lying, 6)));
    ASSERT_TRUE(turned);
    EXPECT_EQ(turned->width, 64);
    EXPECT_EQ(turned->height, 128);
    // A quarter to the right: what was the bottom left is the top left now.
    EXPECT_LT(Distance(turned->Row(20)[10], kBlue), 30);
    EXPECT_LT(Distance(turned->Row(20)[50], kRed), 30);
}

TEST_F(Thumbnails, AreKeptForOtherPrograms) {
    const std::string name = "写真 100%#\n.png";
    Get(Put(name, Flat(640, 320, kRed)), 100);
    struct stat status {};
    ASSERT_EQ(stat(KeptFile("normal", name).c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0600u);
    ASSERT_EQ(stat((Cache() + "/normal").c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0700u);
    const QImage kept(QString::fromStdString(KeptFile("normal", name)));
    EXPECT_EQ(kept.size(), QSize(128, 64)) << "the whole size, whatever was asked for";
    EXPECT_EQ(kept.text("Thumb::URI").toStdString(), FileUri(folder.Path(name)));
    ASSERT_EQ(stat(folder.Path(name).c_str(), &status), 0);
    EXPECT_EQ(kept.text("Thumb::MTime"), QString::number(status.st_mtim.tv_sec));
    EXPECT_EQ(folder.Count("cache/thumbnails/normal"), 1u);
    Get(folder.TextPath(name), 129);
    EXPECT_EQ(QImage(QString::fromStdString(KeptFile("large", name))).size(), QSize(256, 128));
}

/// A blue thumbnail by another program for a red picture.
struct Foreign {
    QString uri, time;
    int side = 128;
};

void PutForeign(const std::string& path, const Foreign& foreign) {
    std::filesystem::create_directories(std::filesystem::path(path).parent_path());
    QImage image(foreign.side, foreign.side / 2, QImage::Format_RGB32);
    image.fill(kBlue);
    image.setText("Thumb::URI", foreign.uri);
    image.setText("Thumb::MTime", foreign.time);
    ASSERT_TRUE(image.save(QString::fromStdString(path)));
}

TEST_F(Thumbnails, OfOtherProgramsAreUsedWhileTheyAreTrue) {
    const Text path = Put("a.png", Flat(640, 320, kRed));
    struct stat status {};
    ASSERT_EQ(stat(folder.Path("a.png").c_str(), &status), 0);
    const QString uri = QString::fromStdString(FileUri(folder.Path("a.png")));
    const QString time = QString::number(status.st_mtim.tv_sec);
    const std::string kept = KeptFile("normal", "a.png");
    PutForeign(kept, {uri, time});
    EXPECT_EQ(Get(path)->Row(0)[0], kBlue);
    EXPECT_EQ(Get(path, 64)->width, 64) << "scaled to what was asked for";
    for (const Foreign& untrue : {Foreign{uri, "1"}, Foreign{uri + "x", time}, Foreign{uri, ""},
                                  Foreign{"", time}, Foreign{uri, time, 4000}}) {
        PutForeign(kept, untrue);
        EXPECT_EQ(Get(path)->Row(0)[0], kRed) << untrue.uri.toStdString();
    }
    PutForeign(KeptFile("large", "a.png"), {uri, time, 256});
    std::filesystem::remove(kept);
    const BitmapPtr ofLarge = Get(path);
    EXPECT_EQ(ofLarge->Row(0)[0], kBlue);
    EXPECT_EQ(ofLarge->width, 128);
    // A file that is written anew has another date.
    Date("a.png", 60);
    EXPECT_EQ(Get(path)->Row(0)[0], kRed);
}

TEST_F(Thumbnails, BrokenOnesAreMadeAnew) {
    const Text path = Put("a.png", Flat(640, 320, kRed));
    for (const std::string& broken :
         {std::string(), std::string("no picture"), PngHeader(128, 64).toStdString(),
          PngHeader(30000, 30000).toStdString()}) {
        folder.Put(std::filesystem::relative(KeptFile("normal", "a.png"), folder.Path()).string(),
                   broken);
        ASSERT_TRUE(Get(path));
        EXPECT_EQ(Get(path)->Row(0)[0], kRed);
        EXPECT_EQ(QImage(QString::fromStdString(KeptFile("normal", "a.png"))).size(),
                  QSize(128, 64));
    }
    // A folder or a pipe in its place is left alone.
    std::filesystem::remove(KeptFile("normal", "a.png"));
    ASSERT_EQ(mkfifo(KeptFile("normal", "a.png").c_str(), 0600), 0);
    EXPECT_TRUE(Get(path));
    std::filesystem::remove(KeptFile("normal", "a.png"));
    std::filesystem::create_directories(KeptFile("normal", "a.png"));
    EXPECT_TRUE(Get(path));
}

TEST_F(Thumbnails, DamagedPicturesAreTriedOnceForEachState) {
    const Text path = Put("bad.jpg", Flat(64, 64, kRed, "jpg").left(30));
    EXPECT_FALSE(Get(path));
    EXPECT_TRUE(std::filesystem::exists(KeptFile("fail/parapico-1", "bad.jpg")));
    struct stat status {};
    ASSERT_EQ(stat(folder.Path("bad.jpg").c_str(), &status), 0);
    const auto found = ThumbnailCache(Cache()).Find(
        {folder.Path("bad.jpg"), status.st_mtim.tv_sec, status.st_size}, 128);
    ASSERT_TRUE(found);
    EXPECT_FALSE(found->pixels);
    Put("bad.jpg", Flat(64, 64, kRed, "jpg"));
    Date("bad.jpg", 100);
    EXPECT_TRUE(Get(path)) << "it was mended meanwhile";
}

TEST_F(Thumbnails, NothingIsKeptWhereItWouldBeWrong) {
    EXPECT_FALSE(Get(folder.TextPath("none.png")));
    std::filesystem::create_directories(folder.Path("folder.png"));
    EXPECT_FALSE(Get(folder.TextPath("folder.png")));
    EXPECT_FALSE(Get(Put("film.mp4", "no film")));
    const Text fresh = Put("fresh.png", Flat(300, 300, kRed));
    Date("fresh.png", 0);
    EXPECT_TRUE(Get(fresh)) << "it may change once more within this second";
    EXPECT_FALSE(std::filesystem::exists(Cache()));
    Thumbnailer without({folder.Path("program"), "", {}, 0});
    ready.clear();
    without.Want(this, {Put("a.png", Flat(300, 300, kRed))}, 128, keep);
    EXPECT_TRUE(ready.begin()->second);
    // A thumbnail of a thumbnail.
    Get(Put("cache/thumbnails/normal/x.png", Flat(300, 300, kRed)));
    EXPECT_EQ(folder.Count("cache/thumbnails/normal"), 1u);
}

TEST_F(Thumbnails, PicturesOfTheKindsThatAreDecodedApart) {
    const BitmapPtr drawing =
        Get(Put("d.svg",
                "<svg xmlns='http://www.w3.org/2000/svg' width='20' height='10'>"
                "<rect width='20' height='10' fill='red'/></svg>"));
    ASSERT_TRUE(drawing);
    EXPECT_EQ(drawing->width, 128) << "a drawing is sharp at every size";
    EXPECT_EQ(drawing->Row(30)[60], kRed);
}

/// A loop of its own for the thread that asks.
struct Loop {
    std::mutex mutex;
    std::deque<std::function<void()>> calls;

    std::function<void(std::function<void()>)> Post() {
        return [this](std::function<void()> call) {
            const std::lock_guard lock(mutex);
            calls.push_back(std::move(call));
        };
    }
    bool RunOne() {
        std::unique_lock lock(mutex);
        if (calls.empty()) {
            return false;
        }
        const auto call = std::move(calls.front());
        calls.pop_front();
        lock.unlock();
        call();
        return true;
    }
    void RunUntil(const std::function<bool()>& done) {
        while (!done()) {
            if (!RunOne()) {
                std::this_thread::yield();
            }
        }
    }
};

TEST_F(Thumbnails, ComeLaterByTheEventLoop) {
    Loop loop;
    Thumbnailer thumbnails({folder.Path("program"), Cache(), loop.Post(), 2});
    std::vector<Text> paths;
    for (int i = 0; i < 20; ++i) {
        paths.push_back(Put(std::to_string(i) + ".png", Flat(200 + i, 100, kRed)));
    }
    paths.push_back(folder.TextPath("none.png"));
    thumbnails.Want(this, paths, 128, keep);
    EXPECT_TRUE(ready.empty()) << "never from within";
    loop.RunUntil([&] { return ready.size() == paths.size(); });
    EXPECT_TRUE(ready[paths[3]]);
    EXPECT_FALSE(ready[paths[20]]);
}

TEST_F(Thumbnails, WhatScrolledAwayIsNotMade) {
    Loop loop;
    Thumbnailer thumbnails({folder.Path("program"), Cache(), loop.Post(), 1});
    std::vector<Text> gone;
    for (int i = 0; i < 500; ++i) {
        gone.push_back(Put("gone" + std::to_string(i) + ".png", Flat(64, 64, kRed)));
    }
    const Text seen = Put("seen.png", Flat(300, 100, kBlue));
    int answersOfGone = 0;
    // Of one thread at most one is under way when they are given up.
    thumbnails.Want(this, gone, 128, [&](const Text&, const BitmapPtr&) { ++answersOfGone; });
    thumbnails.Want(this, {seen}, 128, keep);
    loop.RunUntil([&] { return ready.size() == 1; });
    EXPECT_EQ(answersOfGone, 0);
    EXPECT_LT(thumbnails.Made(), 500);
    // Another owner's wishes stay.
    int other = 0;
    const Text more = Put("more.png", Flat(300, 100, kBlue));
    thumbnails.Want(&other, {more}, 128, keep);
    thumbnails.Want(this, {}, 128, {});
    loop.RunUntil([&] { return ready.size() == 2; });
    // What nobody wants any more is not told, even where it is ready.
    thumbnails.Want(&other, {gone[499]}, 128, keep);
    while (thumbnails.Made() < 3) {
        std::this_thread::yield();
    }
    thumbnails.Want(&other, {}, 128, {});
    loop.RunOne();
    EXPECT_EQ(ready.size(), 2u);
}

TEST_F(Thumbnails, EndInTheMiddleOfWork) {
    Loop loop;
    {
        Thumbnailer thumbnails({folder.Path("program"), Cache(), loop.Post(), 2});
        std::vector<Text> paths;
        for (int i = 0; i < 100; ++i) {
            paths.push_back(Put(std::to_string(i) + ".jpg", Flat(2000, 1000, kRed, "jpg")));
        }
        thumbnails.Want(this, paths, 128, keep);
    }
    while (loop.RunOne()) {
    }
    EXPECT_TRUE(ready.empty()) << "no answer comes after the end";
}

}  // namespace
}  // namespace imaging
