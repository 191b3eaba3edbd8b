// Words that steer the reading itself: waits, loops, comments, jumps, the lock, the end.
#pragma once

#include "macro/run.h"

namespace macro {

Flow Comment(Run& run, double);
Flow StartLoop(Run& run, double count);
/// Goes back to the line feed that ended the line of LOOP.
Flow EndLoop(Run& run, double);
Flow SleepFor(Run& run, double seconds);
/// Waits, then leaves the slide; the last one ends the show.
Flow EndAfter(Run& run, double seconds);
/// Kept: one slide further than the same number in a menu or with Yes.
Flow Skip(Run& run, double slides);
/// 1 locks, 2 unlocks; others change nothing.
Flow Lock(Run& run, double mode);
/// 1 ends the show, 2 the program.
Flow End(Run& run, double mode);

}  // namespace macro
