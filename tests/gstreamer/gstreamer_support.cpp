#include "gstreamer/gstreamer_support.h"

#include <gtest/gtest.h>
#include <malloc.h>

#include <QCoreApplication>
#include <chrono>
#include <cmath>
#include <cstring>
#include <filesystem>
#include <thread>

#include "adapters/gstreamer/handles.h"
#include "adapters/gstreamer/library.h"
#include "adapters/gstreamer/worker.h"

#ifdef __SANITIZE_ADDRESS__
// The compiler comes without the header that has it.
extern "C" size_t __sanitizer_get_current_allocated_bytes();
#endif

namespace gst_tests {

namespace {

using Clock = std::chrono::steady_clock;

std::string Little(uint32_t value, int bytes) {
    std::string text;
    for (int i = 0; i < bytes; ++i) {
        text += static_cast<char>(value >> (8 * i));
    }
    return text;
}

std::string SampleBytes(float sample, int bits) {
    if (bits == 32) {
        uint32_t word = 0;
        std::memcpy(&word, &sample, sizeof word);
        return Little(word, 4);
    }
    const auto full = static_cast<float>((int64_t{1} << (bits - 1)) - 1);
    const auto value = static_cast<int32_t>(std::lround(sample * full));
    return Little(static_cast<uint32_t>(bits == 8 ? value + 128 : value), bits / 8);
}

}  // namespace

void RealLoop::PumpEvents() {
    QtLoop::PumpEvents();
    if (onPump) {
        onPump();
    }
}

bool Eventually(const std::function<bool()>& condition) {
    const auto limit = Clock::now() + std::chrono::milliseconds(kHangMs);
    while (!condition()) {
        if (Clock::now() > limit) {
            return false;
        }
        QCoreApplication::processEvents();
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
    return true;
}

std::string WaveBytes(const std::vector<float>& samples, const WaveForm& form) {
    const auto frameBytes = static_cast<uint32_t>(form.channels * form.bits / 8);
    const uint32_t dataBytes =
        static_cast<uint32_t>(samples.size()) * static_cast<uint32_t>(form.bits / 8);
    std::string bytes =
        "RIFF" + Little(36 + dataBytes, 4) + "WAVEfmt " + Little(16, 4) +
        Little(form.bits == 32 ? 3 : 1, 2) + Little(static_cast<uint32_t>(form.channels), 2) +
        Little(static_cast<uint32_t>(form.rate), 4) +
        Little(static_cast<uint32_t>(form.rate) * frameBytes, 4) + Little(frameBytes, 2) +
        Little(static_cast<uint32_t>(form.bits), 2) + "data" + Little(dataBytes, 4);
    for (const float sample : samples) {
        bytes += SampleBytes(sample, form.bits);
    }
    return bytes;
}

std::vector<float> Tone(double seconds, const WaveForm& form) {
    std::vector<float> samples;
    for (int frame = 0; frame < static_cast<int>(seconds * form.rate); ++frame) {
        const double angle = 2 * M_PI * 440 * frame / form.rate;
        samples.insert(samples.end(), static_cast<size_t>(form.channels),
                       static_cast<float>(0.5 * std::sin(angle)));
    }
    return samples;
}

std::string MidiBytes(int milliseconds) {
    // 1000 ticks a quarter of one second: a tick is a millisecond.
    const auto variable = [](int value) {
        std::string bytes(1, static_cast<char>(value & 0x7f));
        for (value >>= 7; value > 0; value >>= 7) {
            bytes.insert(bytes.begin(), static_cast<char>(0x80 | (value & 0x7f)));
        }
        return bytes;
    };
    const std::string track = std::string("\x00\xff\x51\x03\x0f\x42\x40", 7) +
                              std::string("\x00\x90\x45\x7f", 4) + variable(milliseconds) +
                              std::string("\x80\x45\x00", 3) + std::string("\x00\xff\x2f\x00", 4);
    return std::string("MThd\x00\x00\x00\x06\x00\x00\x00\x01\x03\xe8MTrk\x00\x00\x00", 21) +
           static_cast<char>(track.size()) + track;
}

bool RunPipeline(const std::string& description) {
    gst_adapter::EnsureLibrary();
    GstElement* made = gst_parse_launch(description.c_str(), nullptr);
    if (!made) {
        return false;
    }
    const gst_adapter::ElementPtr pipeline(GST_ELEMENT(gst_object_ref_sink(made)));
    gst_element_set_state(pipeline.get(), GST_STATE_PLAYING);
    const gst_adapter::BusPtr bus(gst_element_get_bus(pipeline.get()));
    GstMessage* message = gst_bus_timed_pop_filtered(
        bus.get(), 60 * GST_SECOND,
        static_cast<GstMessageType>(GST_MESSAGE_EOS | GST_MESSAGE_ERROR));
    const bool ended = message && GST_MESSAGE_TYPE(message) == GST_MESSAGE_EOS;
    if (message) {
        gst_message_unref(message);
    }
    gst_element_set_state(pipeline.get(), GST_STATE_NULL);
    return ended;
}

int OpenDescriptors() {
    int count = 0;
    for ([[maybe_unused]] const auto& entry :
         std::filesystem::directory_iterator("/proc/self/fd")) {
        ++count;
    }
    return count;
}

int Threads() {
    int count = 0;
    for ([[maybe_unused]] const auto& entry :
         std::filesystem::directory_iterator("/proc/self/task")) {
        ++count;
    }
    return count;
}

int64_t HeldKiB() {
#ifdef __SANITIZE_ADDRESS__
    return static_cast<int64_t>(__sanitizer_get_current_allocated_bytes()) / 1024;
#else
    const struct mallinfo2 all = mallinfo2();
    return static_cast<int64_t>(all.uordblks + all.hblkhd) / 1024;
#endif
}

Studio::Studio(std::vector<std::string> sinks, gst_adapter::OpenDisc openDisc, std::string cdDevice,
               int searchLimitMs, gst_adapter::Microphones microphones)
    : files(folder.Path()),
      output(std::make_shared<gst_adapter::AudioOutput>(std::move(sinks),
                                                        std::chrono::milliseconds(searchLimitMs))),
      sound(std::make_unique<gst_adapter::GstSound>(files, loop, output, std::move(openDisc),
                                                    std::move(cdDevice), std::move(microphones))) {
    ResetTestSink();
}

Studio::~Studio() {
    HoldTestSink(Hold::Nothing);
    sound.reset();
    // A sink that is let go late would tell its samples to the next test.
    EXPECT_TRUE(gst_adapter::WaitForThreads(kHangMs));
}

std::string Studio::Write(const std::string& name, const std::string& bytes) {
    folder.Put(name, bytes);
    return folder.Path(name);
}

Text Studio::Send(const std::string& command) {
    return sound->MciSendString(text::FromUtf8(command));
}

void Studio::Open(const std::string& name, const std::string& type, const std::string& alias) {
    Send("open \"" + folder.Path(name) + "\" type " + type + " alias " + alias);
}

std::string Studio::Mode(const std::string& alias) {
    return text::ToUtf8(Send("status " + alias + " mode"));
}

bool Studio::Stops(const std::string& alias) {
    return Eventually([&] { return Mode(alias) == "stopped"; });
}

}  // namespace gst_tests
