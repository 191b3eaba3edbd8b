// Pictures that are decoded in a process of their own, as the imaging control shows them.
#include <gtest/gtest.h>

#include "imaging/imaging_support.h"

namespace {

using platform::Size;

/// Its decoder does what the file says after the mark of a kind.
class Sandboxed : public ::testing::Test {
protected:
    /// The number that the decoder counted up to with this picture, or -1.
    int64_t Counted(const Text& path) {
        return control_->Load(path, {}) ? (control_->Picture()->pixels[0] & 0xFFFFFFu) : -1;
    }

    ImagingFolder folder_{{PARAPICO_STAND_IN, {"limited"}, 60000}};
    std::unique_ptr<platform::ImagingControl> control_ = folder_.Control();
};

TEST_F(Sandboxed, APictureIsHeldAsAnyOther) {
    const Text path = folder_.Put("a.psd", "8BPSpicture");
    ASSERT_TRUE(control_->ReadInformation(path));
    ASSERT_TRUE(control_->Load(path, [](Size own) {
        EXPECT_EQ(own, (Size{2, 1}));
        return Size{1, 1};
    }));
    EXPECT_EQ(control_->HeldSize(), (Size{2, 1}));
    EXPECT_EQ(control_->BitsPerPixel(), 4);
    EXPECT_EQ(control_->Picture()->pixels, (std::vector<uint32_t>{0xFF102030, 0xFF405060}));
    control_->SetColorResolution(24, 4, 0, 0);
    EXPECT_EQ(control_->BitsPerPixel(), 24);
    control_->Reverse();
    EXPECT_EQ(control_->Picture()->pixels, (std::vector<uint32_t>{0xFF405060, 0xFF102030}));
    control_->Resize(4, 2, 0);
    EXPECT_EQ(control_->Picture()->width, 4);
}

TEST_F(Sandboxed, InformationDecodesNothing) {
    const Text path = folder_.Put("a.psd", "8BPScount");
    ASSERT_TRUE(control_->ReadInformation(path));
    EXPECT_EQ(Counted(path), 1);
    EXPECT_EQ(Counted(path), 2);
    EXPECT_TRUE(control_->ReadInformation(folder_.Put("bad.psd", "8BPScrash")));
    EXPECT_EQ(Counted(path), 3) << "the process still counts";
}

TEST_F(Sandboxed, AFileThatChangedInBetweenIsDecodedAnew) {
    const Text path = folder_.Put("a.psd", "8BPScount");
    ASSERT_TRUE(control_->ReadInformation(path));
    folder_.Put("a.psd", "8BPSpicture");
    ASSERT_TRUE(control_->Load(path, {}));
    EXPECT_EQ(control_->HeldSize(), (Size{2, 1}));
    ASSERT_TRUE(control_->ReadInformation(path));
    std::filesystem::remove(folder_.Folder().Path("a.psd"));
    EXPECT_FALSE(control_->Load(path, {}));
}

TEST_F(Sandboxed, WhatFailsOrCrashesIsUnreadableAndTheNextIsNot) {
    for (const char* word : {"no such word", "crash", "throw", "too few pixels", "spin"}) {
        const Text path = folder_.Put("bad.psd", QByteArray("8BPS") + word);
        EXPECT_FALSE(control_->Load(path, {})) << word;
        EXPECT_FALSE(control_->Holds());
        EXPECT_TRUE(control_->Load(folder_.Put("good.psd", "8BPSpicture"), {})) << word;
        control_->Clear();
    }
}

TEST(SandboxMissing, WithoutTheProgramOnlyThoseKindsAreUnreadable) {
    ImagingFolder folder({"/nonexistent", {}, 1000});
    const auto control = folder.Control();
    EXPECT_FALSE(control->Load(folder.Put("a.psd", "8BPSpicture"), {}));
    EXPECT_FALSE(control->Load(
        folder.Put("a.svg", "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>"), {}));
    EXPECT_TRUE(control->Load(folder.Put("a.png", Encoded(Quarters(4, 4), "png")), {}));
}

}  // namespace
