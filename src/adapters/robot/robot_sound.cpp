#include "adapters/robot/robot_sound.h"

#include <algorithm>

#include "adapters/robot/media_length.h"

namespace robot {

namespace {

using TraceValue = decltype(platform::TraceField::value);

constexpr int kAsynchronous = 1;
constexpr int kWaitPollMs = 10;

/// Words parted by blanks; what stands in quotes is one word, without them.
std::vector<Text> WordsOf(TextView command) {
    std::vector<Text> words;
    size_t at = 0;
    while (at < command.size()) {
        if (command[at] == u' ') {
            ++at;
            continue;
        }
        const bool quoted = command[at] == u'"';
        const size_t first = quoted ? at + 1 : at;
        const size_t last = std::min(command.find(quoted ? u'"' : u' ', first), command.size());
        words.emplace_back(command.substr(first, last - first));
        at = last + (quoted ? 1 : 0);
    }
    return words;
}

bool Fits(const Text& type, MediaKind kind) {
    return type == u"WAVEAUDIO"   ? kind == MediaKind::Wav
           : type == u"SEQUENCER" ? kind == MediaKind::Midi
                                  : type == u"MPEGVIDEO" && kind != MediaKind::Midi;
}

}  // namespace

Text RobotSound::MciSendString(TextView command) {
    const Text result = Answer(WordsOf(command));
    trace_.Event("mci", {{"command", Text(command)}, {"result", result}});
    return result;
}

Text RobotSound::Answer(const std::vector<Text>& words) {
    if (words.size() < 2) {
        return {};
    }
    const Text verb = text::Upper(words[0]);
    if (verb == u"OPEN") {
        Open(words);
        return {};
    }
    const auto found = pieces_.find(text::Upper(words[1]));
    if (found == pieces_.end()) {
        return {};
    }
    Piece& piece = found->second;
    if (verb == u"PLAY") {
        const bool fromStart = words.size() > 3 && text::Upper(words[2]) == u"FROM";
        piece.started = loop_.Milliseconds() - (fromStart ? 0 : piece.position);
        piece.playing = true;
    } else if (verb == u"STOP" && piece.playing) {
        piece.position = std::min(loop_.Milliseconds() - piece.started, piece.milliseconds);
        piece.playing = false;
    } else if (verb == u"CLOSE") {
        pieces_.erase(found);
    } else if (verb == u"STATUS" && words.size() > 2 && text::Upper(words[2]) == u"MODE") {
        return StillPlays(piece) ? u"playing" : u"stopped";
    }
    return {};
}

/// open FILE type TYPE alias NAME
void RobotSound::Open(const std::vector<Text>& words) {
    if (words.size() != 6 || !files_ || pieces_.contains(text::Upper(words[5]))) {
        return;
    }
    const std::optional<MediaLength> length = LengthOfMediaFile(*files_, words[1]);
    if (length && Fits(text::Upper(words[3]), length->kind)) {
        pieces_[text::Upper(words[5])].milliseconds = length->milliseconds;
    }
}

bool RobotSound::StillPlays(const Piece& piece) const {
    return piece.playing && loop_.Milliseconds() - piece.started < piece.milliseconds;
}

void RobotSound::SndPlaySound(const std::optional<Text>& file, int flags) {
    trace_.Event("sndPlaySound", {{"file", file ? TraceValue(*file) : TraceValue(nullptr)},
                                  {"flags", static_cast<double>(flags)}});
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

}  // namespace robot
