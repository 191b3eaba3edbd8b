// Work that takes long, in the same shape in every window: busy pointer, what is being done, how
// far it is, and a way to stop.
#pragma once

#include <cstdint>
#include <functional>

#include "model/application.h"
#include "model/controls.h"
#include "platform/progress.h"

namespace authoring {

/// The controls of a window that show it. Any may be missing. They are seen while it runs only.
struct LongWorkFace {
    model::Window& window;
    model::Label* doing = nullptr;   // says what is being done
    model::Label* howFar = nullptr;  // "12 / 340"
    model::Button* stop = nullptr;   // its Click sets what `stopAsked` asks
};

/// One piece of work from its making to its end, however it is left.
///
/// A person's stop is answered as soon as the current piece is done, so a piece takes 20 ms at
/// most: a folder read, a picture asked for. Copying and saving, which take longer, get Report and
/// then stop in their middle; either leaves no half-made file.
class LongWork {
public:
    /// `stopAsked` is asked after handlers ran; without one only closing the window stops it.
    LongWork(Application& app, const LongWorkFace& face, std::function<bool()> stopAsked = {});
    ~LongWork();
    LongWork(const LongWork&) = delete;
    LongWork& operator=(const LongWork&) = delete;

    /// Before every piece: shows how many of how many are done (`whole` 0: not known) and runs
    /// handlers, a stop among them. False: the work is to end. May throw ProgramEnd.
    bool GoOn(int64_t done, int64_t whole);

    /// For what the platform does within a piece: runs handlers and stops as GoOn does. The work
    /// must outlive its use.
    platform::Report Report();

    /// True from the first answer on that said so.
    bool Stopped() const { return stopped_; }

private:
    bool RunHandlers();
    void ShowHowFar(int64_t done, int64_t whole);

    Application& app_;
    LongWorkFace face_;
    std::function<bool()> stopAsked_;
    int formerPointer_, formerWindowPointer_;
    double shownAt_ = -1e9;  // milliseconds
    bool stopped_ = false;
};

/// Does `piece` for 0 to `count` - 1 as one work, until it is stopped or a piece answers false.
/// Answers how many are done.
int64_t ForEachPiece(LongWork& work, int64_t count, const std::function<bool(int64_t)>& piece);

}  // namespace authoring
