#include "authoring/shared/long_work.h"

#include <string>
#include <utility>

namespace authoring {

namespace {

/// No eye follows more, and every change of a text is painted.
constexpr double kBetweenTexts = 50;  // milliseconds

Text NumberText(int64_t number) {
    return text::FromUtf8(std::to_string(number));
}

}  // namespace

LongWork::LongWork(Application& app, const LongWorkFace& face, std::function<bool()> stopAsked)
    : app_(app),
      face_(face),
      stopAsked_(std::move(stopAsked)),
      formerPointer_(app.windows.Pointer()),
      formerWindowPointer_(face.window.MousePointer) {
    app.windows.SetPointer(model::kPointerBusy);
    face_.window.MousePointer = model::kPointerBusy;
    if (face_.doing) {
        face_.doing->Visible = true;
    }
    if (face_.howFar) {
        face_.howFar->Caption = Text();
        face_.howFar->Visible = true;
    }
    if (face_.stop) {
        face_.stop->Enabled = true;
        face_.stop->Visible = true;
    }
}

LongWork::~LongWork() {
    app_.windows.SetPointer(static_cast<model::MousePointerShape>(formerPointer_));
    face_.window.MousePointer = formerWindowPointer_;
    if (face_.doing) {
        face_.doing->Visible = false;
    }
    if (face_.howFar) {
        face_.howFar->Visible = false;
    }
    if (face_.stop) {
        face_.stop->Visible = false;
    }
}

bool LongWork::GoOn(int64_t done, int64_t whole) {
    ShowHowFar(done, whole);
    return RunHandlers();
}

platform::Report LongWork::Report() {
    return [this](const platform::Progress&) { return RunHandlers(); };
}

bool LongWork::RunHandlers() {
    if (!stopped_) {
        app_.platform.loop.PumpEvents();
        stopped_ = !face_.window.Loaded || (stopAsked_ && stopAsked_());
    }
    return !stopped_;
}

void LongWork::ShowHowFar(int64_t done, int64_t whole) {
    const double now = app_.platform.loop.Milliseconds();
    if (!face_.howFar || (now - shownAt_ < kBetweenTexts && done != whole)) {
        return;
    }
    shownAt_ = now;
    face_.howFar->Caption =
        whole > 0 ? NumberText(done) + u" / " + NumberText(whole) : NumberText(done);
}

int64_t ForEachPiece(LongWork& work, int64_t count, const std::function<bool(int64_t)>& piece) {
    for (int64_t i = 0; i < count; ++i) {
        if (!work.GoOn(i, count) || !piece(i)) {
            return i;
        }
    }
    work.GoOn(count, count);
    return count;
}

}  // namespace authoring
