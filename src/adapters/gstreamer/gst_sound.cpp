#include "adapters/gstreamer/gst_sound.h"

#include <cmath>
#include <string>
#include <utility>

#include "adapters/gstreamer/library.h"
#include "adapters/gstreamer/worker.h"

namespace gst_adapter {

namespace {

constexpr int kFullVolume = 1000;
constexpr double kMillisecondsASecond = 1000;
constexpr int kAsynchronous = 1;
constexpr int kLooped = 8;
constexpr int kPumpMs = 10;
constexpr int kWarmUpAfterMs = 300;  // the main window comes first
constexpr int kFarewellMs = 300;

struct TypeRow {
    TextView type;
    Media::Kind kind;
};
constexpr TypeRow kTypes[] = {
    {u"waveaudio", Media::Kind::Wave},
    {u"sequencer", Media::Kind::Midi},
    {u"MPEGVideo", Media::Kind::Any},
};

}  // namespace

GstSound::GstSound(platform::Files& files, platform::EventLoop& loop,
                   std::shared_ptr<AudioOutput> output, OpenDisc openDisc, std::string cdDevice,
                   Microphones microphones)
    : files_(files),
      loop_(loop),
      output_(std::move(output)),
      microphones_(std::move(microphones)),
      cd_(std::move(openDisc), std::move(cdDevice), output_, loop) {
    loop_.SetTimer(this, kWarmUpAfterMs, [this] {
        loop_.CancelTimer(this);
        WarmUp();
    });
}

GstSound::~GstSound() {
    loop_.CancelTimer(this);
    pieces_.clear();
    recorders_.clear();
    effect_.reset();
    cd_.Send({u"close", u"cdaudio", {}, {}, {}});
    WaitForThreads(kFarewellMs);
}

Text GstSound::MciSendString(TextView text) {
    const platform::SoundCommand command = platform::ParseSoundCommand(text);
    if (command.device == u"cdaudio" && command.file.empty()) {
        return cd_.Send(command);
    }
    if (command.verb == u"open") {
        Open(command);
        return {};
    }
    if (command.verb == u"open new") {
        OpenNew(command);
        return {};
    }
    if (const auto recorder = recorders_.find(command.device); recorder != recorders_.end()) {
        if (command.verb == u"close") {
            recorders_.erase(recorder);
            return {};
        }
        return Send(*recorder->second, command);
    }
    const auto found = pieces_.find(command.device);
    if (found == pieces_.end()) {
        return {};
    }
    if (command.verb == u"close") {
        pieces_.erase(found);
        return {};
    }
    return Send(found->second, command);
}

void GstSound::Open(const platform::SoundCommand& command) {
    for (const TypeRow& row : kTypes) {
        if (command.type != row.type || command.device.empty() ||
            pieces_.contains(command.device) || recorders_.contains(command.device)) {
            continue;
        }
        if (const auto path = files_.Find(command.file)) {
            Media media;
            media.kind = row.kind;
            media.nativePath = *path;
            pieces_[command.device].player = std::make_unique<Player>(std::move(media), output_);
        }
    }
}

Text GstSound::Send(Piece& piece, const platform::SoundCommand& command) {
    Player& player = *piece.player;
    if (command.verb == u"play" && command.rest.starts_with(u"from ")) {
        const int place = platform::WholeNumber(TextView(command.rest).substr(5), 0);
        player.Play(piece.inMilliseconds ? place / kMillisecondsASecond : 0);
    } else if (command.verb == u"set" && command.rest.starts_with(platform::kTimeFormat)) {
        piece.inMilliseconds = command.rest.ends_with(u" milliseconds");
    } else if (command.verb == u"status" && command.rest == u"position" && piece.inMilliseconds) {
        player.WantPosition();
        return text::FromUtf8(
            std::to_string(std::llround(player.Position() * kMillisecondsASecond)));
    } else if (command.verb == u"stop") {
        player.Stop();
    } else if (command.verb == u"setaudio" && command.rest.starts_with(u"volume to ")) {
        const int volume = platform::WholeNumber(TextView(command.rest).substr(10), -1);
        if (volume >= 0 && volume <= kFullVolume) {
            player.SetVolume(static_cast<double>(volume) / kFullVolume);
        }
    } else if (command.verb == u"status" && command.rest == u"mode") {
        return player.Playing() ? u"playing" : u"stopped";
    }
    return {};
}

void GstSound::OpenNew(const platform::SoundCommand& command) {
    if (command.type == u"waveaudio" && !command.device.empty() &&
        !pieces_.contains(command.device) && !recorders_.contains(command.device)) {
        recorders_[command.device] = std::make_unique<Recorder>(microphones_);
    }
}

Text GstSound::Send(Recorder& recorder, const platform::SoundCommand& command) {
    if (command.verb == u"set") {
        platform::WaveFormat format;
        if (platform::ReadWaveFormat(command.rest, format)) {
            recorder.SetFormat(format);
        }
    } else if (command.verb == u"record") {
        recorder.Record();
    } else if (command.verb == u"stop") {
        recorder.Stop();
    } else if (command.verb == u"save") {
        return recorder.Save(files_, command.file) ? u"saved" : u"";
    }
    return {};
}

std::optional<platform::RecordingState> GstSound::Recording(TextView alias) {
    const auto found = recorders_.find(Text(alias));
    return found == recorders_.end() ? std::nullopt : found->second->State();
}

void GstSound::SndPlaySound(const std::optional<Text>& file, int flags) {
    const int number = ++effects_;
    effect_.reset();
    const auto path = file ? files_.Find(*file) : std::nullopt;
    if (!path) {
        return;
    }
    Media media;
    media.kind = Media::Kind::Wave;
    media.nativePath = *path;
    const bool asynchronous = (flags & kAsynchronous) != 0;
    media.loop = asynchronous && (flags & kLooped) != 0;
    effect_ = std::make_unique<Player>(std::move(media), output_);
    effect_->Play();
    while (!asynchronous && number == effects_ && effect_ && effect_->Playing()) {
        loop_.Sleep(kPumpMs);
        loop_.PumpEvents();
    }
}

}  // namespace gst_adapter
