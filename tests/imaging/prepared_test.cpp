// Pictures decoded ahead: the same results as without, and what is held how long.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <time.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <string>
#include <thread>
#include <vector>

#include "imaging/imaging_support.h"
#include "picture/fit.h"

namespace {

using imaging::PreparedPictures;
using platform::BitmapPtr;
using platform::FitFunction;
using platform::Pixel;
using platform::Size;

constexpr Pixel kRed = 0xFFFF0000u, kWhite = 0xFFFFFFFFu;

FitFunction Fit(int width, int height) {
    return [=](Size) { return Size{width, height}; };
}

/// Threads of this process that decode ahead.
int PreparingThreads() {
    int count = 0;
    for (const auto& task : std::filesystem::directory_iterator("/proc/self/task")) {
        std::string name;
        std::getline(std::ifstream(task.path() / "comm"), name);
        count += name == imaging::kPreparingThread ? 1 : 0;
    }
    return count;
}

bool HasChildNow() {
    for (const auto& task : std::filesystem::directory_iterator("/proc/self/task")) {
        if (int child = 0; std::ifstream(task.path() / "children") >> child) {
            return true;
        }
    }
    return false;
}

/// Waits for it.
bool HasChild() {
    for (int i = 0; i < 10000 && !HasChildNow(); ++i) {
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    return HasChildNow();
}

/// Waits for it: one that has been joined stands in the system's list a moment longer.
bool NoneIsLeft() {
    for (int i = 0; i < 10000 && PreparingThreads() > 0; ++i) {
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    return PreparingThreads() == 0;
}

/// Meets the worker at another point of its work each time.
void LetOthersRun(int turns) {
    std::this_thread::sleep_for(std::chrono::microseconds(400 * turns));
}

class Prepared : public ::testing::Test {
protected:
    Text PutFlat(const std::string& name, int width, int height, QColor color,
                 const char* format = "png") {
        QImage image(width, height, QImage::Format_RGB32);
        image.fill(color);
        return folder_.Put(name, Encoded(image, format));
    }
    std::string Native(const std::string& name) { return folder_.Folder().Path(name); }
    /// Asks for it and waits until it is decoded.
    void Prepare(const std::vector<platform::Wanted>& wanted) {
        folder_.Imaging().Prepare(wanted);
        Ahead().Finish();
    }
    PreparedPictures& Ahead() { return folder_.Imaging().Prepared(); }

    ImagingFolder folder_;
    std::unique_ptr<platform::ImagingControl> control_ = folder_.Control();
};

// What a show does with a picture: everything that comes out, in order.
std::vector<BitmapPtr> ShowWith(platform::Imaging& imaging, const Text& path,
                                const FitFunction& fit, Size refit) {
    std::vector<BitmapPtr> seen;
    const auto lead = imaging.MakeControl();
    const auto unscaled = imaging.MakeControl();
    if (!lead->ReadInformation(path) || !lead->Load(path, fit)) {
        return seen;
    }
    if (lead->BitsPerPixel() != 24) {
        lead->SetColorResolution(24, 4, 0, 0);
    }
    unscaled->CopyFrom(*lead);
    const Size fitted = fit(lead->HeldSize());
    if (!fitted.Empty()) {
        lead->Resize(fitted.width, fitted.height, 0);
    }
    seen.push_back(lead->Picture());
    // The window changed: fitted anew from the unscaled twin.
    const auto anew = imaging.MakeControl();
    anew->CopyFrom(*unscaled);
    anew->Resize(refit.width, refit.height, 0);
    seen.push_back(anew->Picture());
    anew->CopyFrom(*unscaled);
    anew->GrayScale();
    seen.push_back(anew->Picture());
    lead->SetColorResolution(1, 1, 1, 0);
    seen.push_back(lead->Picture());
    seen.push_back(unscaled->Picture());
    return seen;
}

TEST_F(Prepared, EveryKindAndFitHasTheSamePixelsAsWithout) {
    imaging::QtImaging without(folder_.Files(), false);
    const QImage quarters = Quarters(400, 300);
    QImage clear = quarters.convertToFormat(QImage::Format_ARGB32);
    clear.setPixel(7, 9, qRgba(10, 200, 30, 100));
    const std::vector<Text> paths = {
        folder_.Put("a.jpg", Encoded(quarters, "jpg", 90)),
        folder_.Put("turned.jpg", WithOrientation(Encoded(quarters, "jpg", 90), 6)),
        folder_.Put("a.png", Encoded(clear, "png")),
        folder_.Put("eight.png", Encoded(quarters.convertToFormat(QImage::Format_Indexed8), "png")),
        folder_.Put("one.png", Encoded(quarters.convertToFormat(QImage::Format_Mono), "png")),
        folder_.Put("a.bmp", Encoded(quarters, "bmp")),
        folder_.Put("a.tif", Encoded(quarters, "tiff")),
        folder_.Put("a.webp", Encoded(quarters, "webp", 80)),
        folder_.Put("a.gif", TinyGif(std::string("\0\1\2\3", 4))),
    };
    int compared = 0;
    for (const Text& path : paths) {
        for (const bool fullScreen : {false, true}) {
            for (const int16_t sizeAdjust : {0, 1, 2}) {
                for (const int16_t overlayMode : {0, 1}) {
                    for (const int16_t overlaySize : {0, 2, 5, 6}) {
                        // 200 × 100 pixels for pictures of 400 × 300, or 2 × 2.
                        const picture::FitRule rule{
                            fullScreen, sizeAdjust, overlayMode, overlaySize, 0, 1.0, {3000, 1500}};
                        const FitFunction fit = [rule](Size own) {
                            return picture::FittedSize(rule, own).value_or(Size{});
                        };
                        const Size refit{150, 113};
                        const auto expected = ShowWith(without, path, fit, refit);
                        Prepare({{path, fit}});
                        ASSERT_EQ(Ahead().HeldCount(), 1);
                        const int begun = Ahead().DecodingsBegun();
                        const auto seen = ShowWith(folder_.Imaging(), path, fit, refit);
                        EXPECT_EQ(Ahead().DecodingsBegun(), begun);
                        EXPECT_EQ(Ahead().HeldCount(), 1) << "served, not turned down";
                        folder_.Imaging().Prepare({});
                        ASSERT_EQ(seen.size(), 5u);
                        ASSERT_EQ(expected.size(), 5u);
                        for (size_t i = 0; i < seen.size(); ++i) {
                            EXPECT_EQ(seen[i]->width, expected[i]->width);
                            EXPECT_TRUE(seen[i]->pixels == expected[i]->pixels)
                                << text::ToUtf8(path) << " " << fullScreen << sizeAdjust
                                << overlayMode << overlaySize << " " << i;
                            ++compared;
                        }
                    }
                }
            }
        }
    }
    EXPECT_EQ(compared, 9 * 2 * 3 * 2 * 4 * 5);
}

TEST_F(Prepared, TheFittedPictureIsHeldAndNotTheWhole) {
    const Text path = PutFlat("a.png", 1000, 500, Qt::red);
    Prepare({{path, Fit(100, 50)}});
    EXPECT_EQ(Ahead().HeldBytes(), 100 * 50 * 4);
    ASSERT_TRUE(control_->Load(path, Fit(100, 50)));
    EXPECT_EQ(control_->HeldSize(), (Size{1000, 500}));
    // Whoever needs the whole has it decoded.
    EXPECT_EQ(control_->Picture()->width, 1000);
}

TEST_F(Prepared, IsTakenWithoutReadingTheFileAgain) {
    const Text path = PutFlat("a.png", 400, 200, Qt::red);
    Prepare({{path, Fit(100, 50)}});
    ASSERT_TRUE(control_->Load(path, Fit(100, 50)));
    control_->Resize(100, 50, 0);
    const BitmapPtr first = control_->Picture();
    ASSERT_TRUE(control_->Load(path, Fit(100, 50)));
    control_->Resize(100, 50, 0);
    EXPECT_EQ(control_->Picture(), first) << "the very pixels that are held";
}

TEST_F(Prepared, AFileThatChangedIsDecodedAgain) {
    const Text path = PutFlat("a.bmp", 40, 20, Qt::red, "bmp");
    Prepare({{path, Fit(10, 5)}});
    PutFlat("a.bmp", 40, 20, Qt::white, "bmp");
    ASSERT_TRUE(control_->Load(path, Fit(10, 5)));
    control_->Resize(10, 5, 0);
    EXPECT_EQ(control_->Picture()->Row(0)[0], kWhite);
    EXPECT_EQ(Ahead().HeldCount(), 0);
}

TEST_F(Prepared, AChangeThatHidesItsTimeAndSizeIsSeen) {
    const Text path = PutFlat("a.bmp", 40, 20, Qt::red, "bmp");
    struct stat before {};
    ASSERT_EQ(stat(Native("a.bmp").c_str(), &before), 0);
    Prepare({{path, Fit(10, 5)}});
    ASSERT_EQ(Ahead().HeldCount(), 1);
    {
        QImage image(40, 20, QImage::Format_RGB32);
        image.fill(Qt::white);
        const std::string bytes = Encoded(image, "bmp").toStdString();
        ASSERT_EQ(static_cast<off_t>(bytes.size()), before.st_size);
        std::fstream file(Native("a.bmp"), std::ios::in | std::ios::out | std::ios::binary);
        file << bytes;
    }
    const timespec times[] = {before.st_atim, before.st_mtim};
    ASSERT_EQ(utimensat(AT_FDCWD, Native("a.bmp").c_str(), times, 0), 0);
    struct stat after {};
    ASSERT_EQ(stat(Native("a.bmp").c_str(), &after), 0);
    ASSERT_EQ(after.st_ino, before.st_ino);
    ASSERT_EQ(after.st_mtim.tv_nsec, before.st_mtim.tv_nsec);
    ASSERT_EQ(after.st_size, before.st_size);
    ASSERT_TRUE(control_->Load(path, Fit(10, 5)));
    control_->Resize(10, 5, 0);
    EXPECT_EQ(control_->Picture()->Row(0)[0], kWhite);
}

TEST_F(Prepared, AFileThatWentAwayFails) {
    const Text path = PutFlat("a.png", 40, 20, Qt::red);
    Prepare({{path, Fit(10, 5)}});
    std::filesystem::remove(Native("a.png"));
    EXPECT_FALSE(control_->ReadInformation(path));
    EXPECT_FALSE(control_->Load(path, Fit(10, 5)));
    EXPECT_FALSE(control_->Holds());
}

TEST_F(Prepared, AFileThatIsMendedMeanwhileLoads) {
    QByteArray bytes = Encoded(Quarters(300, 200), "png");
    const Text path = folder_.Put("a.png", bytes.left(bytes.size() / 2));
    Prepare({{path, Fit(30, 20)}});
    ASSERT_EQ(Ahead().HeldCount(), 1);
    EXPECT_FALSE(control_->Load(path, Fit(30, 20)));
    EXPECT_FALSE(control_->Load(path, Fit(30, 20)));
    EXPECT_EQ(Ahead().HeldCount(), 1) << "the failure is held";
    EXPECT_EQ(Ahead().HeldBytes(), 0);
    EXPECT_EQ(Ahead().DecodingsBegun(), 1);
    folder_.Put("a.png", bytes);
    ASSERT_TRUE(control_->Load(path, Fit(30, 20)));
    control_->Resize(30, 20, 0);
    EXPECT_LE(Distance(control_->Picture()->Row(2)[2], kRed), 3);
}

TEST_F(Prepared, AnotherSizeIsDecodedAnew) {
    imaging::QtImaging without(folder_.Files(), false);
    const Text path = folder_.Put("a.jpg", Encoded(Quarters(400, 300), "jpg", 90));
    Prepare({{path, Fit(100, 75)}});
    const auto expected = ShowWith(without, path, Fit(200, 150), {50, 50});
    const auto seen = ShowWith(folder_.Imaging(), path, Fit(200, 150), {50, 50});
    ASSERT_EQ(seen.size(), expected.size());
    for (size_t i = 0; i < seen.size(); ++i) {
        EXPECT_TRUE(seen[i]->pixels == expected[i]->pixels) << i;
    }
    EXPECT_EQ(Ahead().HeldCount(), 0) << "of no more use";
}

TEST_F(Prepared, TheSameListCostsNothingAndAnotherReplacesIt) {
    const Text a = PutFlat("a.png", 40, 20, Qt::red);
    const Text b = PutFlat("b.png", 40, 20, Qt::white);
    Prepare({{a, Fit(10, 5)}, {b, Fit(10, 5)}, {a, Fit(10, 5)}});
    EXPECT_EQ(Ahead().HeldCount(), 2);
    EXPECT_EQ(Ahead().DecodingsBegun(), 2);
    Prepare({{b, Fit(10, 5)}});
    EXPECT_EQ(Ahead().HeldCount(), 1);
    EXPECT_EQ(Ahead().DecodingsBegun(), 2);
    Prepare({{b, Fit(20, 10)}});
    EXPECT_EQ(Ahead().HeldBytes(), 20 * 10 * 4);
    EXPECT_EQ(Ahead().DecodingsBegun(), 3) << "fitted to another size";
    PutFlat("b.png", 60, 20, Qt::red);
    Prepare({{b, Fit(20, 10)}});
    EXPECT_EQ(Ahead().DecodingsBegun(), 4) << "another file";
    Prepare({});
    EXPECT_EQ(Ahead().HeldCount(), 0);
    EXPECT_EQ(Ahead().HeldBytes(), 0);
}

TEST_F(Prepared, WhatIsHeldStaysBelowItsBound) {
    // 6000 × 1200 pixels are 28.8 million bytes: four of them fit below 128 MiB.
    std::vector<platform::Wanted> wanted;
    for (const char* name : {"a.jpg", "b.jpg", "c.jpg", "d.jpg", "e.jpg"}) {
        wanted.push_back({folder_.Put(name, FlatJpeg(6000, 1200, std::string(1, '\x80'))), {}});
    }
    Prepare(wanted);
    EXPECT_EQ(Ahead().HeldCount(), 4);
    EXPECT_EQ(Ahead().HeldBytes(), int64_t{4} * 6000 * 1200 * 4);
    EXPECT_TRUE(control_->Load(wanted[4].path, {}));
    // 36 million pixels alone are above it.
    Prepare({{folder_.Put("f.jpg", FlatJpeg(6000, 6000, std::string(1, '\x80'))), {}}});
    EXPECT_EQ(Ahead().HeldCount(), 0);
    EXPECT_EQ(Ahead().DecodingsBegun(), 4);
}

TEST_F(Prepared, AWholeDecodingAboveItsBoundIsNotBegun) {
    // 8300 × 8300 × 4 bytes are above 256 MiB.
    QImage bits(8300, 8300, QImage::Format_Mono);
    bits.fill(0);
    const Text large = folder_.Put("a.png", Encoded(bits, "png"));
    Prepare({{large, Fit(100, 100)}});
    EXPECT_EQ(Ahead().DecodingsBegun(), 0);
    EXPECT_EQ(Ahead().HeldCount(), 0);
    EXPECT_TRUE(control_->ReadInformation(large)) << "for its size alone";
    const Text small = folder_.Put("b.png", Encoded(bits.copy(0, 0, 900, 900), "png"));
    Prepare({{large, Fit(100, 100)}, {small, Fit(100, 100)}});
    EXPECT_EQ(Ahead().DecodingsBegun(), 1);
    EXPECT_EQ(Ahead().HeldCount(), 1);
}

TEST_F(Prepared, DrawingsAreDrawnAheadAndFailuresAreHeld) {
    const Text svg = folder_.Put("a.svg",
                                 "<svg xmlns='http://www.w3.org/2000/svg' width='40' height='20'>"
                                 "<rect width='40' height='20' fill='red'/></svg>");
    const Text bad = folder_.Put("b.png", "no picture");
    Prepare({{svg, Fit(80, 40)}, {bad, {}}, {folder_.Folder().TextPath("none.png"), {}}});
    EXPECT_EQ(Ahead().HeldCount(), 2);
    EXPECT_EQ(Ahead().HeldBytes(), 80 * 40 * 4);
    EXPECT_FALSE(control_->Load(bad, {}));
    ASSERT_TRUE(control_->Load(svg, Fit(80, 40)));
    EXPECT_EQ(control_->HeldSize(), (Size{40, 20}));
    control_->Resize(80, 40, 0);
    EXPECT_EQ(control_->Picture()->pixels, std::vector<Pixel>(80 * 40, kRed));
    EXPECT_EQ(Ahead().DecodingsBegun(), 1);
}

/// Pictures whose decoder does what they say.
struct PreparedSandboxed : ::testing::Test {
    ImagingFolder folder{{PARAPICO_STAND_IN, {"limited"}, 60000}};
    std::unique_ptr<platform::ImagingControl> control = folder.Control();

    /// What the worker's process counted up to; the control's own process counts apart from it.
    Pixel Counted(const Text& path) {
        return control->Load(path, {}) ? control->Picture()->pixels[0] & 0xFFFFFFu : 0;
    }
};

TEST_F(PreparedSandboxed, TheWorkerHasAProcessOfItsOwn) {
    // Another one: what was shown is held without decoding once its time stamp is old enough.
    const Text other = folder.Put("b.psd", "8BPScount"), path = folder.Put("a.psd", "8BPScount");
    EXPECT_EQ(Counted(other), 1u);
    EXPECT_EQ(Counted(other), 2u);
    folder.Imaging().Prepare({{path, {}}});
    folder.Imaging().Prepared().Finish();
    EXPECT_EQ(Counted(path), 1u) << "the worker's";
    EXPECT_EQ(Counted(path), 1u) << "taken again as long as it is wanted";
    folder.Imaging().Prepare({});
    EXPECT_EQ(Counted(path), 3u);
}

TEST_F(PreparedSandboxed, AFailureIsHeldUntilTheFileChanges) {
    const Text path = folder.Put("a.psd", "8BPSthrow");
    folder.Imaging().Prepare({{path, {}}});
    folder.Imaging().Prepared().Finish();
    EXPECT_EQ(folder.Imaging().Prepared().HeldCount(), 1);
    EXPECT_EQ(Counted(path), 0u);
    folder.Put("a.psd", "8BPScount");
    EXPECT_EQ(Counted(path), 1u);
}

TEST_F(PreparedSandboxed, WhatSaysNothingOfTheFileIsNotHeld) {
    ImagingFolder nowhere({"/nonexistent", {}, 60000});
    nowhere.Imaging().Prepare({{nowhere.Put("a.psd", "8BPSpicture"), {}}});
    nowhere.Imaging().Prepared().Finish();
    EXPECT_EQ(nowhere.Imaging().Prepared().HeldCount(), 0) << "no process is no failure";
}

/// It would wait a day.
TEST(PreparedHanging, TheEndDoesNotWaitForADecoderThatHangs) {
    constexpr int kDay = 24 * 60 * 60 * 1000;
    ImagingFolder folder({PARAPICO_STAND_IN, {"hang"}, kDay});
    folder.Imaging().Prepare({{folder.Put("a.psd", "8BPSanything"), {}}});
    ASSERT_TRUE(HasChild());
    LetOthersRun(20);
}

TEST_F(Prepared, ThePictureLeftBehindIsHeldWithoutDecoding) {
    const FitFunction fit = Fit(20, 10);
    const Text one = PutFlat("1.png", 40, 20, Qt::red), two = PutFlat("2.png", 40, 20, Qt::white),
               three = PutFlat("3.png", 40, 20, Qt::red);
    // Time stamps of files that are loaded at once must have settled.
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    ASSERT_TRUE(control_->Load(one, fit));
    Prepare({{two, fit}});
    EXPECT_EQ(Ahead().DecodingsBegun(), 1);
    ASSERT_TRUE(control_->Load(two, fit));
    Prepare({{three, fit}, {one, fit}});
    EXPECT_EQ(Ahead().DecodingsBegun(), 2) << "the third only";
    EXPECT_EQ(Ahead().HeldCount(), 2);
    // Another size, and a file that changed, are decoded.
    ASSERT_TRUE(control_->Load(one, fit));
    Prepare({{two, Fit(10, 5)}});
    EXPECT_EQ(Ahead().DecodingsBegun(), 3);
    ASSERT_TRUE(control_->Load(two, Fit(10, 5)));
    PutFlat("1.png", 40, 20, Qt::white);
    Prepare({{one, fit}});
    EXPECT_EQ(Ahead().DecodingsBegun(), 4);
    ASSERT_TRUE(control_->Load(one, fit));
    EXPECT_EQ(control_->Picture()->pixels[0], kWhite);
}

TEST_F(Prepared, ALoadMeetsTheWorkerWhereverItIs) {
    imaging::QtImaging without(folder_.Files(), false);
    const Text path = folder_.Put("a.jpg", Encoded(Quarters(2000, 1500), "jpg", 90));
    const auto expected = ShowWith(without, path, Fit(1000, 750), {50, 50});
    for (int round = 0; round < 40; ++round) {
        folder_.Imaging().Prepare({{path, Fit(1000, 750)}});
        LetOthersRun(round);
        ASSERT_TRUE(control_->Load(path, Fit(1000, 750)));
        control_->Resize(1000, 750, 0);
        ASSERT_TRUE(control_->Picture()->pixels == expected[0]->pixels);
        if (round % 2 == 0) {
            folder_.Imaging().Prepare({});
        }
    }
}

TEST_F(Prepared, TheThreadComesWithTheFirstWishAndEndsWithTheImaging) {
    {
        imaging::QtImaging imaging(folder_.Files());
        EXPECT_TRUE(NoneIsLeft());
        imaging.Prepare({});
        EXPECT_EQ(PreparingThreads(), 0);
        const Text large = folder_.Put("a.png", Encoded(Quarters(3000, 2000), "png"));
        imaging.Prepare({{large, Fit(10, 10)}});
        imaging.Prepared().Finish();
        EXPECT_EQ(PreparingThreads(), 1);
    }
    EXPECT_TRUE(NoneIsLeft());
    for (int round = 0; round < 20; ++round) {
        // Left at every stage of its work.
        imaging::QtImaging imaging(folder_.Files());
        imaging.Prepare({{folder_.Folder().TextPath("a.png"), Fit(10, 10)}});
        LetOthersRun(round);
    }
    EXPECT_TRUE(NoneIsLeft());
}

TEST_F(Prepared, SwitchedOffNothingIsDecodedAhead) {
    imaging::QtImaging imaging(folder_.Files(), false);
    imaging.Prepare({{PutFlat("a.png", 40, 20, Qt::red), Fit(10, 5)}});
    imaging.Prepared().Finish();
    EXPECT_EQ(imaging.Prepared().HeldCount(), 0);
    EXPECT_TRUE(NoneIsLeft());
}

double ThreadSeconds() {
    timespec used{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &used);
    return static_cast<double>(used.tv_sec) + static_cast<double>(used.tv_nsec) / 1e9;
}

TEST_F(Prepared, APicturesTimeCountsFromItsOpening) {
    PutFlat("a.png", 40, 20, Qt::red);
    imaging::ReadingContext context;
    context.mostSeconds = 0.2;
    const auto spend = [&] {
        for (const double until = ThreadSeconds() + 0.3; ThreadSeconds() < until;) {
        }
    };
    spend();
    EXPECT_TRUE(imaging::PictureFile::Recognises(Native("a.png"), context));
    spend();
    const auto file = imaging::PictureFile::Open(Native("a.png"), context);
    ASSERT_TRUE(file);
    EXPECT_TRUE(file->Decode(file->OwnSize(), nullptr, context));
    spend();
    EXPECT_FALSE(file->Decode(file->OwnSize(), nullptr, context)) << "its time is used up";
    context.Begin();
    EXPECT_TRUE(file->Decode(file->OwnSize(), nullptr, context));
}

TEST_F(Prepared, AReaderThatGaveUpEnds) {
    PutFlat("a.png", 400, 200, Qt::red);
    imaging::ReadingContext context;
    const auto file = imaging::PictureFile::Open(Native("a.png"), context);
    ASSERT_TRUE(file);
    context.giveUp = true;
    EXPECT_EQ(file->Decode(file->OwnSize(), nullptr, context), nullptr);
    context.giveUp = false;
    EXPECT_NE(file->Decode(file->OwnSize(), nullptr, context), nullptr);
}

}  // namespace
