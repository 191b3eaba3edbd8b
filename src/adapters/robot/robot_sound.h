// A sound device whose files take their time on the virtual clock and make no sound.
#pragma once

#include <map>

#include "platform/event_loop.h"
#include "platform/files.h"
#include "platform/sound.h"
#include "platform/trace.h"

namespace robot {

/// Traces every command (event "mci": command, result; "sndPlaySound": file or null, flags).
/// Understood are: open "FILE" type TYPE alias NAME (a file that is of the type and tells its
/// length), play NAME [from N], stop NAME, close NAME, status NAME mode ("playing" or "stopped").
/// Everything else answers with the empty text, as there is no CD drive. A sound that is played
/// synchronously lets its length pass, with the loop pumping.
class RobotSound : public platform::Sound {
public:
    RobotSound(platform::Trace& trace, platform::EventLoop& loop) : trace_(trace), loop_(loop) {}

    /// Where files are found; without it none can be opened.
    void Follow(platform::Files& files) { files_ = &files; }

    Text MciSendString(TextView command) override;
    void SndPlaySound(const std::optional<Text>& file, int flags) override;

private:
    struct Piece {
        double milliseconds = 0;
        double position = 0;  // ms from the beginning, where it stood when it was stopped
        double started = 0;   // ms of the loop, where it plays
        bool playing = false;
    };

    Text Answer(const std::vector<Text>& words);
    void Open(const std::vector<Text>& words);
    bool StillPlays(const Piece& piece) const;

    platform::Trace& trace_;
    platform::EventLoop& loop_;
    platform::Files* files_ = nullptr;
    std::map<Text, Piece> pieces_;  // by alias, in upper case
    int played_ = 0;                // sounds that SndPlaySound has begun or ended
};

}  // namespace robot
