#include "authoring/slide_list/preview.h"

#include <algorithm>
#include <memory>

#include "model/windows/slide_list.h"

namespace authoring {

namespace {

constexpr int kShareOfFrame = 90;  // percent
constexpr int kBelowCentre = 60;   // twips
/// Pixels of the preview for one of its frame, so that it is sharp on a monitor of 200 %.
constexpr int kSharpness = 2;

/// Twips that a picture of that size takes in the frame, keeping its proportions.
platform::Size SizeInFrame(const model::Frame& frame, platform::Size own) {
    const int64_t width = frame.Width * kShareOfFrame / 100;
    const int64_t height = frame.Height * kShareOfFrame / 100;
    if (own.Empty() || width <= 0 || height <= 0) {
        return {};
    }
    if (own.width * height >= own.height * width) {
        return {static_cast<int>(width), static_cast<int>(width * own.height / own.width)};
    }
    return {static_cast<int>(height * own.width / own.height), static_cast<int>(height)};
}

void Place(model::Form3& form3, platform::Size own) {
    const platform::Size size = SizeInFrame(form3.Frame1, own);
    form3.Image1.Width = size.width;
    form3.Image1.Height = size.height;
    form3.Image1.Left = (form3.Frame1.Width - size.width) / 2;
    form3.Image1.Top = (form3.Frame1.Height - size.height) / 2 + kBelowCentre;
}

class PreviewPlace : public model::Listener {
public:
    explicit PreviewPlace(model::Form3& form3) : form3_(form3) { form3.Frame1.Listen(this); }

    void PropertyChanged(model::Control&, model::PropertyBase& property) override {
        const platform::BitmapPtr& picture = form3_.Image1.Picture();
        const bool size = &property == &form3_.Frame1.Width || &property == &form3_.Frame1.Height;
        if (size && picture) {
            Place(form3_, {picture->width, picture->height});
        }
    }

private:
    model::Form3& form3_;
};

void ShowPicture(Application& app, const Text& file) {
    model::Form3& form3 = app.windows.form3;
    const std::unique_ptr<platform::ImagingControl> control = app.platform.imaging.MakeControl();
    const auto wanted = [&frame = form3.Frame1](platform::Size own) -> platform::Size {
        const platform::Size twips = SizeInFrame(frame, own);
        constexpr int k = platform::kTwipsPerPixel;
        return {twips.width * kSharpness / k, twips.height * kSharpness / k};
    };
    if (!control->Load(file, wanted)) {
        form3.Picture1.SetPicture(nullptr);
        form3.Image1.SetPicture(nullptr);
        return;
    }
    const platform::Size own = control->HeldSize();
    const platform::Size size = wanted(own);
    if (!size.Empty() && size.width < own.width) {
        control->Resize(size.width, size.height, 0);
    }
    form3.Picture1.SetPicture(control->Picture());
    form3.Image1.SetPicture(form3.Picture1.Picture());
    Place(form3, own);
}

}  // namespace

std::shared_ptr<model::Listener> KeepPreviewPlaced(Application& app) {
    return std::make_shared<PreviewPlace>(app.windows.form3);
}

void ShowPreview(Application& app, const Text& path) {
    if (path.empty() || path == app.state.LastPreviewPath || app.windows.form3.Check1.Value == 0) {
        return;
    }
    app.state.LastPreviewPath = path;
    app.windows.SetPointer(model::kPointerBusy);
    ShowPicture(app, text::IsVideoKind(path) ? app.state.AppFolder + u"mp4.bmp" : path);
    app.windows.SetPointer(model::kPointerNormal);
}

void ClearPreview(Application& app) {
    app.windows.form3.Picture1.SetPicture(nullptr);
    app.windows.form3.Image1.SetPicture(nullptr);
    app.state.LastPreviewPath.clear();
}

}  // namespace authoring
