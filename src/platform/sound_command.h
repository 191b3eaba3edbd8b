// The command strings of platform::Sound, taken apart for its devices.
#pragma once

#include "text/text.h"

namespace platform {

struct SoundCommand {
    Text verb;    // open, open new, set, setaudio, play, record, status, stop, save, close
    Text device;  // the alias; of an opening, the alias that it gives
    Text rest;    // what follows the alias, without blanks around it
    Text file;    // of "open" and "save": without its quotes
    Text type;    // of both openings: waveaudio, sequencer, MPEGVideo
};

/// What follows the alias in "set wav time format samples", up to the format's name. Pieces are
/// played from their beginning, whatever number stands there, unless the format is milliseconds.
constexpr TextView kTimeFormat = u"time format ";

/// Words are compared as they stand, capitals included. A file's name ends at the last quote, as it
/// may hold quotes itself. An opening or saving that is not of the known form, or is without a
/// closing quote, gives an empty verb.
SoundCommand ParseSoundCommand(TextView command);

/// A whole number that is all of `value` but blanks before it; `otherwise` where it is none or
/// does not fit.
int WholeNumber(TextView value, int otherwise);

}  // namespace platform
