// Cut-out pieces: small pictures laid over the slide. Piece n stands in Form1.Picture2(n) and in
// Slidescreen.Picture1(n), each over its window's canvas; Left and Top are units of that canvas.
#pragma once

#include <optional>

#include "macro/run.h"
#include "model/picture_controls.h"

namespace macro {

constexpr int kLastCutout = 62;
/// CutoutType of a piece whose shape stands in a coordinate file.
constexpr int16_t kDataFileShape = 999;
/// Bounds of a piece that has no polygon.
constexpr int16_t kNoMinimum = 9999, kNoMaximum = 0;

/// PICPBDATA(n,"file"): names the coordinate file of piece n.
Flow NameCutoutData(Run& run, double);
/// PICPBTYPE=n: shape of the pieces that follow.
Flow SetCutoutShape(Run& run, double shape);
/// PICPBnn(jump,"picture","action"): shows a piece; with an empty picture removes it. A picture
/// that cannot be loaded leaves a piece without size, silently.
Flow ShowCutout(Run& run, double);

/// Number of the piece that a line's two characters after a word of five letters name; nullopt
/// where there is no such piece.
std::optional<int> CutoutIndex(TextView line);

/// The piece's control in the window of the mode in force.
model::PictureBox& CutoutInForce(Application& app, int index);

/// Writes a trace line: "shown", "removed" or "moved".
void TraceCutout(Application& app, int index, TextView what);

/// The piece vanishes from both windows; in full screen the background comes back where it was
/// seen. Its row in the tables of pieces and of menus becomes empty.
void RemoveObject(Application& app, int index);

/// The pieces that are up take as many pixels as the full-screen canvas now has for them.
void RefitPieces(Application& app);

/// Folder of the slide: its path up to the last separator or ':'.
Text SlideFolder(const Application& app);

}  // namespace macro
