// Sound on GStreamer: each alias is a piece of its own.
//   open "FILE" type waveaudio|sequencer|MPEGVideo alias A    a missing file opens nothing, nor
//   does
//                                                              an alias that is open
//   open new type waveaudio alias A    a recording, which "set A channels …" gives its format;
//                                      record A, stop A, save A "FILE", close A
//   open cdaudio
//   set A time format milliseconds
//   play A from N       in that format from there, else from the piece's beginning; cdaudio: from
//                       N [to M], tracks
//   status A position   in that format
//   status A mode       "playing" from the play on until the end, else "stopped"; cdaudio more
//   setaudio A volume to N    0 to 1000; other numbers change nothing
//   set A …             else taken; changes nothing but the time format of cdaudio
//   stop A, close A
// Anything else, and anything sent to an alias that is not open, is answered by the empty text.
// No call waits for the sound server; "save" waits for the disk.
#pragma once

#include <map>
#include <memory>
#include <string>

#include "adapters/gstreamer/audio_output.h"
#include "adapters/gstreamer/cd_audio.h"
#include "adapters/gstreamer/disc.h"
#include "adapters/gstreamer/player.h"
#include "adapters/gstreamer/recorder.h"
#include "platform/event_loop.h"
#include "platform/files.h"
#include "platform/sound.h"

namespace gst_adapter {

class GstSound : public platform::Sound {
public:
    /// `loop` is pumped while a synchronous sound plays. `output` may be shared with the video.
    GstSound(platform::Files& files, platform::EventLoop& loop, std::shared_ptr<AudioOutput> output,
             OpenDisc openDisc = {}, std::string cdDevice = {}, Microphones microphones = {});
    /// Ends every sound; waits a moment for that, no longer.
    ~GstSound() override;

    Text MciSendString(TextView command) override;
    std::optional<platform::RecordingState> Recording(TextView alias) override;

    /// Flags: 1 asynchronous, 8 looped (with 1), 2 no default sound (there is none in any case).
    /// Without 1 it returns when the sound has ended, was replaced, or was ended by a handler that
    /// ran meanwhile. A sound that plays ends first, even where the new one cannot be found.
    void SndPlaySound(const std::optional<Text>& file, int flags) override;

private:
    struct Piece {
        std::unique_ptr<Player> player;
        bool inMilliseconds = false;  // the time format
    };

    void Open(const platform::SoundCommand& command);
    void OpenNew(const platform::SoundCommand& command);
    Text Send(Piece& piece, const platform::SoundCommand& command);
    Text Send(Recorder& recorder, const platform::SoundCommand& command);

    platform::Files& files_;
    platform::EventLoop& loop_;
    std::shared_ptr<AudioOutput> output_;
    std::map<Text, Piece> pieces_;
    const Microphones microphones_;
    std::map<Text, std::unique_ptr<Recorder>> recorders_;
    std::unique_ptr<Player> effect_;  // of SndPlaySound
    int effects_ = 0;                 // counts SndPlaySound
    CdAudio cd_;
};

}  // namespace gst_adapter
