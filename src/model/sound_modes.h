// The sound modes: one row each says what plays and when. Whatever hangs on the mode in force asks
// its row.
#pragma once

#include "model/show_state.h"

namespace model {

/// Values of SoundMode.
enum SoundModeNumber : int16_t {
    kCommonSound,
    kLinkedWavSound,
    kCdSound,
    kWavSound,
    kMidiSound,
    kLinkedMidiSound,
    kListSound,
    kNoSound,
    kMp3Sound,
    kLinkedMp3Sound,
};

struct SoundModeRow {
    enum class Starts {
        Never,
        EachPicture,  // linked: a sound of its own with every picture
        OnAndOn,      // background: one piece after the other, whatever the pictures
    };
    enum class BesideVideo {
        PlaysOn,
        Linked,    // the video's own linked sound takes its place
        GivesWay,  // stops, for the video's linked WAV where one may play on top
    };

    int16_t mode;
    Starts starts = Starts::Never;
    /// Alias of the mode's piece, which its volume goes to; null: none.
    const char16_t* alias = nullptr;
    /// Field with the path of its piece; null: none, or found out when it starts.
    Text ShowState::*piece = nullptr;
    /// Extension of the files that bear a picture's name; null: none belong to the mode.
    const char16_t* linked = nullptr;
    /// Where that file is missing DefaultEffectSound takes its place.
    bool takesDefault = false;
    /// Setting that keeps the linked sound away unless it is 0; null: none.
    int16_t ShowState::*mutedBy = nullptr;
    /// Setting that, at 1, lets a linked WAV play on top; null: none.
    int16_t ShowState::*onTop = nullptr;
    BesideVideo besideVideo = BesideVideo::PlaysOn;
    /// PAUSE stops the piece.
    bool pauseStops = false;
};

/// A number that is no mode is taken as kNoSound.
const SoundModeRow& RowOfSoundMode(int mode);
/// The row of the mode in force.
const SoundModeRow& SoundModeInForce(const ShowState& state);

/// The mode in force brings a sound of its own with every picture.
bool PlaysPerPicture(const ShowState& state);
/// It plays anything that StartSound starts: the audio CD is not that.
bool PlaysPieces(const ShowState& state);
/// A linked WAV plays on top of its background piece.
bool PlaysLinkedOnTop(const ShowState& state);
/// Its sounds begin with pictures, so that a step waits for them.
bool SoundsWithPictures(const ShowState& state);

}  // namespace model
