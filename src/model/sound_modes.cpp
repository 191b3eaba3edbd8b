#include "model/sound_modes.h"

#include <iterator>

namespace model {

namespace {

using Starts = SoundModeRow::Starts;
using BesideVideo = SoundModeRow::BesideVideo;

constexpr SoundModeRow kRows[] = {
    {.mode = kCommonSound, .starts = Starts::EachPicture},
    {.mode = kLinkedWavSound,
     .starts = Starts::EachPicture,
     .alias = u"wav",
     .piece = &ShowState::LinkedWavPath,
     .linked = u"wav",
     .takesDefault = true,
     .besideVideo = BesideVideo::Linked,
     .pauseStops = true},
    {.mode = kCdSound,
     .starts = Starts::EachPicture,
     .alias = u"cdaudio",
     .piece = &ShowState::LinkedWavPath,
     .linked = u"wav",
     .takesDefault = true,
     .mutedBy = &ShowState::CdPlusLinkedWav,
     .pauseStops = true},
    {.mode = kWavSound,
     .starts = Starts::OnAndOn,
     .alias = u"wav",
     .piece = &ShowState::WavFile,
     .pauseStops = true},
    {.mode = kMidiSound,
     .starts = Starts::OnAndOn,
     .alias = u"mid",
     .piece = &ShowState::MidiFile,
     .onTop = &ShowState::MidiLinkedWavFlag,
     .pauseStops = true},
    {.mode = kLinkedMidiSound,
     .starts = Starts::EachPicture,
     .alias = u"mid",
     .piece = &ShowState::LinkedMediaPath,
     .linked = u"mid",
     .pauseStops = true},
    {.mode = kListSound,
     .starts = Starts::OnAndOn,
     .alias = u"wav",
     .onTop = &ShowState::SoundListCheck5,
     .besideVideo = BesideVideo::GivesWay,
     .pauseStops = true},
    {.mode = kNoSound},
    {.mode = kMp3Sound,
     .starts = Starts::OnAndOn,
     .alias = u"mp3",
     .piece = &ShowState::Mp3File,
     .onTop = &ShowState::Mp3LinkedWavFlag,
     .besideVideo = BesideVideo::GivesWay,
     .pauseStops = false},  // kept: the background MP3 alone plays on
    {.mode = kLinkedMp3Sound,
     .starts = Starts::EachPicture,
     .alias = u"mp3",
     .piece = &ShowState::LinkedMediaPath,
     .linked = u"mp3",
     .besideVideo = BesideVideo::Linked,
     .pauseStops = true},
};

constexpr bool RowsStandByNumber() {
    for (size_t i = 0; i < std::size(kRows); ++i) {
        if (kRows[i].mode != static_cast<int>(i)) {
            return false;
        }
    }
    return true;
}
static_assert(RowsStandByNumber());

}  // namespace

const SoundModeRow& RowOfSoundMode(int mode) {
    const auto place = static_cast<size_t>(mode);
    return kRows[place < std::size(kRows) ? place : size_t{kNoSound}];
}

const SoundModeRow& SoundModeInForce(const ShowState& state) {
    return RowOfSoundMode(state.SoundMode);
}

bool PlaysPerPicture(const ShowState& state) {
    const SoundModeRow& row = SoundModeInForce(state);
    return row.starts == Starts::EachPicture && (row.mutedBy == nullptr || state.*row.mutedBy == 0);
}

bool PlaysPieces(const ShowState& state) {
    return PlaysPerPicture(state) || SoundModeInForce(state).starts == Starts::OnAndOn;
}

bool PlaysLinkedOnTop(const ShowState& state) {
    const SoundModeRow& row = SoundModeInForce(state);
    return row.onTop != nullptr && state.*row.onTop == 1;
}

bool SoundsWithPictures(const ShowState& state) {
    return PlaysPerPicture(state) || PlaysLinkedOnTop(state) || state.SoundMode == kListSound;
}

}  // namespace model
