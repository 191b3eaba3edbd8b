#include "adapters/virtual/virtual_sound.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "adapters/media/media_length.h"

namespace virtual_adapter {

using media_adapter::LengthOfMediaFile;
using media_adapter::MediaKind;
using media_adapter::MediaLength;

namespace {

constexpr int kAsynchronous = 1;
constexpr int kWaitPollMs = 10;

constexpr TextView kCdDevice = u"cdaudio";
constexpr TextView kMidiType = u"sequencer";
constexpr TextView kTypes[] = {u"waveaudio", kMidiType, u"MPEGVideo"};

}  // namespace

Text VirtualSound::MciSendString(TextView line) {
    const platform::SoundCommand command = platform::ParseSoundCommand(line);
    if (command.device == kCdDevice && command.file.empty()) {
        return cd.Send(command);
    }
    if (const std::optional<Text> answer = recorder_.Send(command)) {
        return *answer;
    }
    if (command.verb == u"open") {
        Open(command);
        return {};
    }
    const auto found = pieces_.find(command.device);
    if (found == pieces_.end()) {
        return {};
    }
    Piece& piece = found->second;
    if (command.verb == u"play" && command.rest.starts_with(u"from ")) {
        piece.ends = loop_.Milliseconds() + piece.milliseconds - piece.PlaceOf(command.rest);
    } else if (command.verb == u"set" && command.rest.starts_with(platform::kTimeFormat)) {
        piece.inMilliseconds = command.rest.ends_with(u" milliseconds");
    } else if (command.verb == u"status" && command.rest == u"position" && piece.inMilliseconds) {
        const double left = std::max(0.0, piece.ends - loop_.Milliseconds());
        return text::FromUtf8(std::to_string(std::llround(piece.milliseconds - left)));
    } else if (command.verb == u"stop") {
        piece.ends = 0;
    } else if (command.verb == u"close") {
        pieces_.erase(found);
    } else if (command.verb == u"status" && command.rest == u"mode") {
        return loop_.Milliseconds() < piece.ends ? u"playing" : u"stopped";
    }
    return {};
}

double VirtualSound::Piece::PlaceOf(TextView from) const {
    const int place = platform::WholeNumber(from.substr(from.find(u' ')), 0);
    return inMilliseconds ? std::min<double>(place, milliseconds) : 0;
}

void VirtualSound::Open(const platform::SoundCommand& command) {
    const bool known =
        std::find(std::begin(kTypes), std::end(kTypes), command.type) != std::end(kTypes);
    if (!known || command.device.empty() || !files_ || !files_->Find(command.file) ||
        pieces_.contains(command.device)) {
        return;
    }
    const std::optional<MediaLength> length = LengthOfMediaFile(*files_, command.file);
    const bool plays = length && (command.type != kMidiType || length->kind == MediaKind::Midi);
    pieces_[command.device].milliseconds = plays ? length->milliseconds : 0;
}

void VirtualSound::SndPlaySound(const std::optional<Text>& file, int flags) {
    const int mine = ++played_;
    if (!file || (flags & kAsynchronous) != 0 || !files_) {
        return;
    }
    const std::optional<MediaLength> length = LengthOfMediaFile(*files_, *file);
    const double end = loop_.Milliseconds() + (length ? length->milliseconds : 0);
    // Ended early by the sound after it.
    while (played_ == mine && loop_.Milliseconds() < end) {
        const double left = end - loop_.Milliseconds();
        loop_.Sleep(std::clamp(static_cast<int>(left), 1, kWaitPollMs));
        loop_.PumpEvents();
    }
}

}  // namespace virtual_adapter
