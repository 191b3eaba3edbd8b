// A sound device whose files take their time on the virtual clock and make no sound.
#pragma once

#include <map>

#include "adapters/virtual/virtual_cd.h"
#include "adapters/virtual/virtual_recorder.h"
#include "platform/event_loop.h"
#include "platform/files.h"
#include "platform/sound.h"
#include "platform/sound_command.h"

namespace virtual_adapter {

/// Understood are: open "FILE" type TYPE alias NAME, play NAME from N, stop NAME, close NAME, set
/// NAME time format milliseconds, status NAME mode ("playing" or "stopped"), status NAME position.
/// Places other than the beginning need that time format. Every file that exists can be opened;
/// what cannot be played, or does not tell its length, is "stopped" as soon as it plays. The device
/// cdaudio has a drive, and recordings are VirtualRecorder's. Everything else answers with the
/// empty text. A sound that is played synchronously lets its length pass, with the loop pumping.
class VirtualSound : public platform::Sound {
public:
    explicit VirtualSound(platform::EventLoop& loop) : cd(loop), loop_(loop), recorder_(loop) {}

    VirtualCd cd;  // empty

    /// Where files are found; without it none can be opened.
    void Follow(platform::Files& files) {
        files_ = &files;
        recorder_.Follow(files);
    }

    Text MciSendString(TextView command) override;
    std::optional<platform::RecordingState> Recording(TextView alias) override {
        return recorder_.State(alias);
    }
    void SndPlaySound(const std::optional<Text>& file, int flags) override;

private:
    struct Piece {
        double milliseconds = 0;
        double ends = 0;              // ms of the loop; over: it does not play
        bool inMilliseconds = false;  // the time format

        /// Milliseconds of the piece that "from N" means.
        double PlaceOf(TextView from) const;
    };

    void Open(const platform::SoundCommand& command);

    platform::EventLoop& loop_;
    platform::Files* files_ = nullptr;
    std::map<Text, Piece> pieces_;  // by alias
    VirtualRecorder recorder_;
    int played_ = 0;  // sounds that SndPlaySound has begun or ended
};

}  // namespace virtual_adapter
