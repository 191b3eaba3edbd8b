#include "macro/motion.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "macro/arguments.h"
#include "macro/buttons.h"
#include "macro/cutouts.h"
#include "model/picture_controls.h"
#include "model/windows/main_window.h"
#include "model/windows/picture_holder.h"
#include "model/windows/slide_screen.h"
#include "text/numbers.h"

namespace macro {

namespace {

constexpr int kWaitMost = 1000;  // milliseconds
constexpr int kStepsMost = 32767;
constexpr int kWithinPicture = -1, kUnbounded = 1;

enum Axis : size_t { X, Y };
using Pair = std::array<int, 2>;  // by Axis

constexpr std::array<model::Property<int> model::VisibleControl::*, 2> kPlace = {
    &model::VisibleControl::Left, &model::VisibleControl::Top};

struct Direction {
    Axis axis;
    int sign;
};

/// In the order in which a pass tries them.
constexpr std::array<Direction, 4> kDirections = {{{X, 1}, {X, -1}, {Y, 1}, {Y, -1}}};

struct Motion {
    Motion(Application& application, int piece) : app(application), index(piece) {}

    Application& app;
    const int index;
    int shape = 0;
    std::array<double, 2> target{};  // pixels from the start
    Pair moved{}, previous{};        // pixels done; those of the pass before
    Pair start{};                    // of the full screen's piece
    Pair nearExtent{}, farExtent{};  // from the piece's left and top
    std::array<bool, 4> done{};      // by direction
};

Pair SizeOf(const model::PictureBox& box) {
    return {box.ScaleWidth(), box.ScaleHeight()};
}

const model::PictureBox& CanvasInForce(Application& app) {
    return InFullScreen(app.state) ? app.windows.slidescreen.P2 : app.windows.form1.Picture1;
}

void ReadExtent(Motion& motion) {
    const model::ShowState& state = motion.app.state;
    const auto i = static_cast<size_t>(motion.index);
    motion.shape = state.CutoutType[i];
    if (motion.shape == kDataFileShape) {
        motion.nearExtent = {state.CutoutMinX[i], state.CutoutMinY[i]};
        motion.farExtent = {state.CutoutMaxX[i], state.CutoutMaxY[i]};
    } else {
        motion.farExtent = SizeOf(motion.app.windows.form1.Picture2(motion.index));
    }
}

bool IsWithinBounds(const Motion& motion, const Direction& direction) {
    Application& app = motion.app;
    const int mode = app.state.OverPicMode;
    if (mode == kUnbounded) {
        return true;
    }
    const Axis axis = direction.axis;
    const int place = CutoutInForce(app, motion.index).*kPlace[axis];
    const int nearEdge = place + motion.nearExtent[axis];
    const int farEdge = place + motion.farExtent[axis];
    if (mode != kWithinPicture) {
        return direction.sign > 0 ? farEdge < SizeOf(CanvasInForce(app))[axis] : nearEdge > 0;
    }
    const Pair corner =
        InFullScreen(app.state) ? Pair{app.state.PictureX, app.state.PictureY} : Pair{};
    const int picture = SizeOf(app.windows.form4.Picture1)[axis];
    return direction.sign > 0 ? farEdge < picture + corner[axis] : nearEdge > corner[axis];
}

bool MayStep(const Motion& motion, const Direction& direction) {
    const int moved = motion.moved[direction.axis] * direction.sign;
    const double target = motion.target[direction.axis] * direction.sign;
    // The steps are counted in 16 bits.
    return target > 0 && target > moved && moved < kStepsMost && IsWithinBounds(motion, direction);
}

/// What a rectangle uncovers by one step. Kept: one pixel longer where it leaves left and top.
platform::Rect UncoveredStrip(const platform::Rect& place, const Direction& direction) {
    if (direction.axis == X) {
        return direction.sign > 0 ? platform::Rect{place.x - 1, place.y, 1, place.height + 1}
                                  : platform::Rect{place.x + place.width, place.y, 1, place.height};
    }
    return direction.sign > 0 ? platform::Rect{place.x, place.y - 1, place.width + 1, 1}
                              : platform::Rect{place.x, place.y + place.height, place.width, 1};
}

void StepRectangle(Motion& motion, const Direction& direction) {
    Application& app = motion.app;
    model::PictureBox& piece = CutoutInForce(app, motion.index);
    auto& place = piece.*kPlace[direction.axis];
    place = place + direction.sign;
    app.platform.loop.PumpEvents();
    if (InFullScreen(app.state)) {
        RestoreBackground(app, UncoveredStrip(PlaceOf(piece), direction));
        app.platform.loop.PumpEvents();
    }
}

void TryDirections(Motion& motion) {
    for (size_t i = 0; i < kDirections.size(); ++i) {
        const Direction& direction = kDirections[i];
        if (!MayStep(motion, direction)) {
            motion.done[i] = true;
            continue;
        }
        motion.moved[direction.axis] += direction.sign;
        if (motion.shape == 0) {
            StepRectangle(motion, direction);
        }
    }
}

/// The old place of a shaped piece: a polygon's box, where it has a whole one.
platform::Rect UncoveredBox(const Motion& motion) {
    const int x = motion.start[X] + motion.previous[X];
    const int y = motion.start[Y] + motion.previous[Y];
    const auto isBound = [](int value) { return value != kNoMinimum && value != kNoMaximum; };
    const Pair& low = motion.nearExtent;
    const Pair& high = motion.farExtent;
    if (motion.shape == kDataFileShape && isBound(low[X]) && isBound(low[Y]) && isBound(high[X]) &&
        isBound(high[Y])) {
        return {x + low[X], y + low[Y], high[X] - low[X], high[Y] - low[Y]};
    }
    const Pair size = SizeOf(motion.app.windows.slidescreen.Picture1(motion.index));
    return {x, y, size[X], size[Y]};
}

void MoveShape(Motion& motion) {
    Application& app = motion.app;
    if (InFullScreen(app.state)) {
        model::PictureBox& piece = app.windows.slidescreen.Picture1(motion.index);
        piece.Left = motion.start[X] + motion.moved[X];
        piece.Top = motion.start[Y] + motion.moved[Y];
        app.platform.loop.PumpEvents();
        RestoreBackground(app, UncoveredBox(motion));
    } else {
        model::PictureBox& piece = app.windows.form1.Picture2(motion.index);
        piece.Left = piece.Left + motion.moved[X] - motion.previous[X];
        piece.Top = piece.Top + motion.moved[Y] - motion.previous[Y];
    }
    app.platform.loop.PumpEvents();
    motion.previous = motion.moved;
}

void Move(Motion& motion, int waitMs) {
    const model::ShowState& state = motion.app.state;
    while (true) {
        TryDirections(motion);
        if (motion.shape > 0) {
            MoveShape(motion);
        }
        const bool arrived =
            std::all_of(motion.done.begin(), motion.done.end(), [](bool flag) { return flag; });
        if (arrived || state.MacroJumpChosen == 1 || Stopping(state)) {
            return;
        }
        motion.app.platform.loop.Sleep(waitMs);
    }
}

/// `span`: what RND ranges over, up to as much less 1 either way.
double Distance(Application& app, TextView field, int span) {
    platform::EventLoop& loop = app.platform.loop;
    const Text word = text::Trim(field);
    if (word == u"RND") {
        return text::Int(loop.Rnd() * 2 * span) - span;
    }
    if (word == u"RND+-") {
        return std::trunc(loop.Rnd() * 20 - 10);
    }
    if (word == u"RND+") {
        return std::trunc(loop.Rnd() * 10);
    }
    if (word == u"RND-") {
        return std::trunc(loop.Rnd() * -10);
    }
    return text::SafeNumber(word);
}

int WaitOf(const std::vector<TextView>& fields) {
    if (fields.size() < 3 || text::Trim(fields[2]).empty()) {
        return 1;
    }
    return static_cast<int>(
        text::RoundHalfEven(std::clamp(text::SafeNumber(fields[2]), 0.0, double(kWaitMost))));
}

}  // namespace

Flow MoveCutout(Run& run, double) {
    Application& app = run.app;
    const TextView line = BeforeComment(run.MacroLineUpper);
    const auto index = CutoutIndex(line);
    if (!index || !(app.windows.form1.Picture2(*index).Visible ||
                    app.windows.slidescreen.Picture1(*index).Visible)) {
        return Flow::GoOn;
    }
    const auto fields = CallFields(line, 3);
    const Pair span = SizeOf(app.state.OverPicMode == kWithinPicture ? app.windows.form4.Picture1
                                                                     : CanvasInForce(app));
    Motion motion(app, *index);
    for (const Axis axis : {X, Y}) {
        motion.target[axis] =
            Distance(app, axis < fields.size() ? fields[axis] : TextView(), span[axis]);
        motion.start[axis] = app.windows.slidescreen.Picture1(*index).*kPlace[axis];
    }
    ReadExtent(motion);
    Move(motion, WaitOf(fields));
    if (app.state.CutoutActive[static_cast<size_t>(*index)] == 1) {
        TraceCutout(app, *index, u"moved");
    }
    return Flow::GoOn;
}

Flow SetMotionBounds(Run& run, double mode) {
    if (mode >= -1 && mode <= 1) {
        run.state.OverPicMode = static_cast<int16_t>(mode);
    }
    return Flow::GoOn;
}

}  // namespace macro
