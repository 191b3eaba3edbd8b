// The imaging control over Qt's picture readers.
#pragma once

#include "adapters/imaging/prepared_pictures.h"
#include "adapters/sandbox/client.h"
#include "platform/files.h"
#include "platform/imaging.h"

namespace imaging {

/// PNG, JPEG, BMP, TIFF, GIF and WebP, told apart by content. SVG, what is none of these, and what
/// the toolkit reads wrongly of them (BMP of 16 bits, some tiled TIFFs) is decoded in the sandbox.
/// Pictures above 1 GiB of pixels are refused, in the sandbox above half of it, but JPEG and
/// drawings where the fitted size does. Everything runs on the caller's thread but what is
/// prepared, which has one of its own; nothing throws.
class QtImaging : public platform::Imaging {
public:
    /// `files` must outlive this object, and this object its controls. With `prepares` false
    /// Prepare does nothing; with `savesApart` false Save and Convert run on the caller's thread.
    explicit QtImaging(platform::Files& files, bool prepares = true,
                       const sandbox::ClientOptions& decoder = {}, bool savesApart = true);

    Text VersionText() const override;
    std::unique_ptr<platform::ImagingControl> MakeControl() override;
    void Prepare(const std::vector<platform::Wanted>& wanted) override;
    platform::Outcome Save(const platform::BitmapPtr& picture, TextView path,
                           const platform::SaveForm& form, const platform::Report& report,
                           platform::FileError& error) override;
    platform::Converted Convert(TextView from, TextView to, const platform::Conversion& conversion,
                                const platform::Report& report,
                                platform::FileError& error) override;

    /// What stands ready; for measuring and tests.
    PreparedPictures& Prepared() { return prepared_; }

private:
    platform::Files& files_;
    bool prepares_;
    bool savesApart_;
    sandbox::ClientOptions decoder_;
    ReadingContext context_;  // of the caller's thread
    PreparedPictures prepared_;
};

}  // namespace imaging
