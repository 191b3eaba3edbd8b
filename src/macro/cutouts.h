// Cut-out pieces: small pictures laid over the slide.
#pragma once

#include "macro/run.h"

namespace macro {

constexpr int kLastCutout = 62;
/// CutoutType of a piece whose shape stands in a coordinate file.
constexpr int16_t kDataFileShape = 999;

/// PICPBDATA(n,"file"): names the coordinate file of piece n.
Flow NameCutoutData(Run& run, double);
/// PICPBTYPE=n: shape of the pieces that follow.
Flow SetCutoutShape(Run& run, double shape);
/// PICPBnn(jump,"picture","action"): shows a piece; with an empty picture removes it.
Flow ShowCutout(Run& run, double);

/// Every piece of both windows vanishes, menu buttons' places too: in full screen the background
/// comes back. Tables of pieces and menus become empty.
void RemoveObjects(Application& app);

/// Folder of the slide: its path up to the last separator or ':'.
Text SlideFolder(const Application& app);

}  // namespace macro
