// Devices that can do nothing, for programs that show nothing.
#pragma once

#include <memory>

#include "platform/canvas.h"
#include "platform/file_changes.h"
#include "platform/file_inquiry.h"
#include "platform/imaging.h"
#include "platform/thumbnails.h"

namespace virtual_adapter {

/// No picture can be read.
class BlindControl : public platform::ImagingControl {
public:
    bool ReadInformation(TextView) override { return false; }
    bool Load(TextView, const platform::FitFunction&) override { return false; }
    bool Holds() const override { return false; }
    platform::Size HeldSize() const override { return {}; }
    int BitsPerPixel() const override { return 0; }
    void SetColorResolution(int, int, int, int) override {}
    void Resize(int, int, int) override {}
    void ResizeTo(platform::Size, platform::Size) override {}
    void GrayScale() override {}
    void Reverse() override {}
    void Mosaic(int) override {}
    void Flip() override {}
    void Invert() override {}
    void EdgeFilter(int) override {}
    void Emboss(int, int) override {}
    platform::BitmapPtr Picture() override { return nullptr; }
    void CopyFrom(const platform::ImagingControl&) override {}
    void Clear() override {}
};

class BlindImaging : public platform::Imaging {
public:
    void Prepare(const std::vector<platform::Wanted>&) override {}
    platform::Outcome Save(const platform::BitmapPtr&, TextView, const platform::SaveForm&,
                           const platform::Report&, platform::FileError&) override {
        return platform::Outcome::Failed;
    }
    platform::Converted Convert(TextView, TextView, const platform::Conversion&,
                                const platform::Report&, platform::FileError&) override {
        return platform::Converted::Unreadable;
    }
    Text VersionText() const override { return u"0"; }
    std::unique_ptr<platform::ImagingControl> MakeControl() override {
        return std::make_unique<BlindControl>();
    }
};

/// Texts have no extent and leave nothing.
class NoText : public platform::TextRenderer {
public:
    Extent Measure(const platform::Font&, TextView) override { return {}; }
    void Draw(platform::Canvas&, int, int, const platform::Font&, platform::Color,
              TextView) override {}
    void DrawTurned(platform::Canvas&, int, int, const platform::Font&, const platform::Turn&,
                    platform::Color, TextView, std::span<const platform::Offset>) override {}
};

/// Nothing on the disk changes.
class NoFileChanges : public platform::FileChanges {
public:
    platform::Outcome Copy(TextView, TextView, const platform::Report&,
                           platform::FileError&) override {
        return platform::Outcome::Failed;
    }
    platform::Outcome Move(TextView, TextView, const platform::Report&,
                           platform::FileError&) override {
        return platform::Outcome::Failed;
    }
    bool Trash(TextView, Text&, platform::FileError&) override { return false; }
    bool Restore(TextView, TextView, platform::FileError&) override { return false; }
    bool MakeFolder(TextView, platform::FileError&) override { return false; }
    bool CanWrite(TextView) override { return false; }
};

class NoThumbnails : public platform::Thumbnails {
public:
    void Want(const void*, const std::vector<Text>&, int, Ready) override {}
};

/// No file is there.
class NoFileInquiry : public platform::FileInquiry {
public:
    void Ask(const void*, std::vector<Text> paths, What, Ready ready) override {
        for (const Text& path : paths) {
            ready(path, {});
        }
    }
    void Forget(const void*) override {}
};

}  // namespace virtual_adapter
