#include "macro/cutouts.h"

#include <algorithm>

#include "document/cutout_points.h"
#include "macro/arguments.h"
#include "macro/buttons.h"
#include "macro/named_files.h"
#include "macro/shapes.h"
#include "model/picture_controls.h"
#include "model/windows/main_window.h"
#include "model/windows/slide_screen.h"
#include "text/code_page.h"
#include "text/numbers.h"
#include "text/paths.h"

namespace macro {

namespace {

struct PieceLine {
    int16_t jump = 0;
    Text picture, action;  // as written; empty without
};

PieceLine ReadPieceLine(TextView line) {
    PieceLine piece;
    const size_t open = line.find(u'(');
    const size_t comma = open == TextView::npos ? open : line.find(u',', open);
    if (comma != TextView::npos) {
        // A number beyond 16 bits jumps nowhere.
        const double jump = text::SafeNumber(line.substr(open + 1, comma - open - 1));
        piece.jump = text::ToInt16(jump).value_or(0);
    }
    piece.picture = Quoted(line);
    if (const size_t first = line.find(u'"'); first != TextView::npos) {
        const size_t second = line.find(u'"', first + 1);
        piece.action = second == TextView::npos ? Text() : Text(Quoted(line.substr(second + 1)));
    }
    return piece;
}

bool IsClickable(const PieceLine& piece) {
    const Text kind = text::KindOf(piece.action);
    return piece.jump != 0 || kind == u"WAV" || kind == u"EXE" || text::IsVideoKind(piece.action);
}

/// One pixel more on every side.
platform::Rect Widened(const platform::Rect& place) {
    return {place.x - 1, place.y - 1, place.width + 2, place.height + 2};
}

/// Where the background comes back under a piece that is shown anew.
platform::Rect OldPlace(const model::ShowState& state, int index, const platform::Rect& place) {
    const auto i = static_cast<size_t>(index);
    if (state.CutoutType[i] != kDataFileShape) {
        return Widened(place);
    }
    return {place.x + state.CutoutMinX[i], place.y + state.CutoutMinY[i],
            state.CutoutMaxX[i] - state.CutoutMinX[i] + 1,
            state.CutoutMaxY[i] - state.CutoutMinY[i] + 1};
}

bool IsSeenInFullScreen(Application& app, int index) {
    return app.state.CutoutActive[static_cast<size_t>(index)] == 1 && InFullScreen(app.state) &&
           app.windows.slidescreen.Picture1(index).Visible;
}

void Empty(model::PictureBox& box) {
    box.Visible = false;
    if (box.Picture() || box.WindowRgn()) {
        box.SetPicture(nullptr);
        box.SetWindowRgn(nullptr);
    }
}

void RemovePiece(Application& app, int index) {
    model::PictureBox& onScreen = app.windows.slidescreen.Picture1(index);
    const platform::Rect place = PlaceOf(onScreen);
    const bool seen = IsSeenInFullScreen(app, index);
    if (app.state.CutoutActive[static_cast<size_t>(index)] == 1) {
        TraceCutout(app, index, u"removed");
    }
    Empty(app.windows.form1.Picture2(index));
    Empty(onScreen);
    if (seen) {
        app.platform.loop.PumpEvents();
        RestoreBackground(app, Widened(place));
        app.platform.loop.PumpEvents();
    }
    app.state.CutoutActive[static_cast<size_t>(index)] = 0;
}

void HideOldPiece(Application& app, int index) {
    model::PictureBox& onScreen = app.windows.slidescreen.Picture1(index);
    if (!IsSeenInFullScreen(app, index)) {
        return;
    }
    onScreen.Visible = false;
    app.platform.loop.PumpEvents();
    RestoreBackground(app, OldPlace(app.state, index, PlaceOf(onScreen)));
    app.platform.loop.PumpEvents();
}

/// The piece's picture in both windows, in as many pixels as each window's canvas has for it. None
/// for an empty name and for a file that is no picture.
void LoadPicture(Application& app, int index, TextView path) {
    model::PictureBox& inWindow = app.windows.form1.Picture2(index);
    model::PictureBox& onScreen = app.windows.slidescreen.Picture1(index);
    const auto imaging = app.platform.imaging.MakeControl();
    if (path.empty() || !imaging->Load(path, {})) {
        inWindow.SetPicture(nullptr);
        onScreen.SetPicture(nullptr);
        return;
    }
    const platform::Size size = imaging->HeldSize();
    inWindow.SetPicture(imaging->Picture(), size);
    imaging->ResizeTo(size, app.windows.slidescreen.P2.canvas.Scaling().ToPixels(size));
    onScreen.SetPicture(imaging->Picture(), size);
}

/// A coordinate that no 16 bits hold leaves its bound as it was.
void Bound(int16_t& lowest, int16_t& highest, int32_t value) {
    if (const auto fits = text::ToInt16(value)) {
        lowest = std::min(lowest, *fits);
        highest = std::max(highest, *fits);
    }
}

/// Corners of the coordinate file; sets the piece's bounds. Nothing where the file cannot be read
/// or is none.
std::vector<platform::Point> DataFilePoints(Application& app, size_t i) {
    model::ShowState& state = app.state;
    state.CutoutMinX[i] = state.CutoutMinY[i] = kNoMinimum;
    state.CutoutMaxX[i] = state.CutoutMaxY[i] = kNoMaximum;
    std::vector<platform::Point> points;
    std::string bytes;
    platform::FileError error;
    if (state.CutoutDataFile[i].empty() ||
        !app.platform.files.Read(state.CutoutDataFile[i], bytes, error)) {
        return points;
    }
    const auto read = document::ReadCutoutPoints(text::DecodeFile(bytes, app.platform.codePage));
    for (const document::CutoutPoint& point : read.value_or(std::vector<document::CutoutPoint>())) {
        points.push_back({point.x, point.y});
        Bound(state.CutoutMinX[i], state.CutoutMaxX[i], point.x);
        Bound(state.CutoutMinY[i], state.CutoutMaxY[i], point.y);
    }
    return points;
}

/// The shape in pixels of the piece's picture.
platform::RegionPtr RegionOf(Application& app, int index, int shape) {
    const model::PictureBox& piece = CutoutInForce(app, index);
    const platform::Bitmap& shown = piece.Shown();
    const platform::Size pixels{shown.width, shown.height};
    if (shape != kDataFileShape) {
        return platform::CreatePolyPolygonRgn(ShapePoints(shape, pixels), pixels);
    }
    const platform::Scale scale{{piece.ScaleWidth(), piece.ScaleHeight()}, pixels};
    std::vector<platform::Point> points = DataFilePoints(app, static_cast<size_t>(index));
    for (platform::Point& point : points) {
        point = {scale.X(point.x), scale.Y(point.y)};
    }
    return platform::CreatePolyPolygonRgn(points, pixels);
}

/// Only the window of the mode in force gets the shape; the piece of the other one is whole.
void Shape(Application& app, int index) {
    model::ShowState& state = app.state;
    model::PictureBox& inWindow = app.windows.form1.Picture2(index);
    model::PictureBox& onScreen = app.windows.slidescreen.Picture1(index);
    inWindow.Visible = false;
    onScreen.Visible = false;
    inWindow.SetWindowRgn(nullptr);
    onScreen.SetWindowRgn(nullptr);
    CutoutInForce(app, index).SetWindowRgn(RegionOf(app, index, state.PicPbType));
    state.CutoutType[static_cast<size_t>(index)] = state.PicPbType;
}

void ShowPiece(Run& run, int index, const PieceLine& piece) {
    Application& app = run.app;
    model::ShowState& state = run.state;
    model::PictureBox& inWindow = app.windows.form1.Picture2(index);
    model::PictureBox& onScreen = app.windows.slidescreen.Picture1(index);
    const bool clickable = IsClickable(piece);
    for (model::PictureBox* box : {&inWindow, &onScreen}) {
        box->MousePointer = clickable ? model::kPointerCustom : model::kPointerDefault;
    }
    if (clickable) {
        state.MacroButtonsShown = 1;
        ShowPointer(app);
    }
    HideOldPiece(app, index);
    if (Stopping(state)) {
        return;  // the objects were cleared meanwhile: none may come up now
    }

    const Text folder = SlideFolder(app);
    const auto i = static_cast<size_t>(index);
    state.CutoutPicture[i] = NamedFile(app.platform.files, folder, piece.picture);
    LoadPicture(app, index, state.CutoutPicture[i]);
    inWindow.Left = run.CurrentXValue;
    inWindow.Top = app.windows.form1.Picture1.canvas.penY;
    onScreen.Left = state.TextOriginX + run.CurrentXValue;
    onScreen.Top = app.windows.slidescreen.P2.canvas.penY;
    state.CutoutJump[i] = piece.jump;
    state.CutoutActive[i] = 1;
    state.CutoutAction[i] =
        piece.action.empty() ? Text() : NamedFile(app.platform.files, folder, piece.action);
    Shape(app, index);
    inWindow.Visible = true;
    onScreen.Visible = true;
    TraceCutout(app, index, u"shown");
}

}  // namespace

void RefitPieces(Application& app) {
    const model::ShowState& state = app.state;
    for (int index = 0; index <= kLastCutout; ++index) {
        const auto i = static_cast<size_t>(index);
        if (state.CutoutActive[i] == 1) {
            LoadPicture(app, index, state.CutoutPicture[i]);
            CutoutInForce(app, index).SetWindowRgn(RegionOf(app, index, state.CutoutType[i]));
        }
    }
}

Text SlideFolder(const Application& app) {
    return text::FolderPart(app.state.SlideList(app.state.SlideIndex));
}

std::optional<int> CutoutIndex(TextView line) {
    const auto index = text::ToInt16(text::SafeNumber(text::Mid(line, 6, 2)));
    return index && *index >= 0 && *index <= kLastCutout ? std::optional<int>(*index)
                                                         : std::nullopt;
}

model::PictureBox& CutoutInForce(Application& app, int index) {
    return InFullScreen(app.state) ? app.windows.slidescreen.Picture1(index)
                                   : app.windows.form1.Picture2(index);
}

void TraceCutout(Application& app, int index, TextView what) {
    const model::ShowState& state = app.state;
    const auto i = static_cast<size_t>(index);
    const platform::Rect place = PlaceOf(CutoutInForce(app, index));
    app.platform.trace.Event("cutout", {{"index", double(index)},
                                        {"x", double(place.x)},
                                        {"y", double(place.y)},
                                        {"width", double(place.width)},
                                        {"height", double(place.height)},
                                        {"picture", state.CutoutPicture[i]},
                                        {"jump", double(state.CutoutJump[i])},
                                        {"action", state.CutoutAction[i]},
                                        {"shape", double(state.CutoutType[i])},
                                        {"state", Text(what)}});
}

Flow NameCutoutData(Run& run, double) {
    const TextView line = BeforeComment(run.MacroLineUpper);
    const auto fields = CallFields(line, 2);
    const auto index = text::ToInt16(NumberField(fields, 0));
    if (!index || *index > kLastCutout) {
        return Flow::GoOn;
    }
    run.state.PicPbType = kDataFileShape;
    if (*index >= 0) {
        const Text name = CallText(line, 1, Unwrapped);
        run.state.CutoutDataFile[static_cast<size_t>(*index)] =
            name.empty() ? Text() : NamedFile(run.app.platform.files, SlideFolder(run.app), name);
    }
    return Flow::GoOn;
}

Flow SetCutoutShape(Run& run, double shape) {
    run.state.PicPbType = static_cast<int16_t>(shape);
    return Flow::GoOn;
}

Flow ShowCutout(Run& run, double) {
    const TextView line = BeforeComment(run.MacroLineUpper);
    const auto index = CutoutIndex(line);
    const PieceLine piece = ReadPieceLine(line);
    if (!index || piece.picture.empty()) {
        if (index) {
            RemovePiece(run.app, *index);
        }
        ClearLine(run);
        return Flow::GoOn;
    }
    ShowPiece(run, *index, piece);
    // In the text the line counts as one that is not empty.
    SetLine(run, u"\n");
    FocusScreen(run.app);
    return Flow::GoOn;
}

void RemoveObject(Application& app, int index) {
    model::ShowState& state = app.state;
    const auto i = static_cast<size_t>(index);
    model::PictureBox& onScreen = app.windows.slidescreen.Picture1(index);
    if (state.CutoutActive[i] == 1) {
        TraceCutout(app, index, u"removed");
    }
    Empty(app.windows.form1.Picture2(index));
    if (IsSeenInFullScreen(app, index)) {
        RestoreBackground(app, Widened(PlaceOf(onScreen)));
    }
    Empty(onScreen);
    state.CutoutPicture[i].clear();
    state.CutoutAction[i].clear();
    for (auto* table : {&state.CutoutJump, &state.CutoutActive, &state.CutoutType,
                        &state.CutoutMinX, &state.CutoutMinY, &state.CutoutMaxX, &state.CutoutMaxY,
                        &state.MenuJump, &state.MenuActive}) {
        (*table)[i] = 0;
    }
}

}  // namespace macro
