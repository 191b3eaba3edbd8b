#include "adapters/gstreamer/audio_output.h"

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <utility>

#include "adapters/gstreamer/handles.h"
#include "adapters/gstreamer/library.h"
#include "adapters/gstreamer/worker.h"

namespace gst_adapter {

using Clock = std::chrono::steady_clock;

struct AudioOutput::State {
    std::mutex mutex;
    std::condition_variable changed;
    std::vector<std::string> sinks;
    std::chrono::milliseconds searchLimit{};
    std::string chosen;  // empty: silent
    bool searching = false;
    bool searched = false;
    Clock::time_point lastSearch;
};

namespace {

constexpr auto kSearchAgainAfter = std::chrono::seconds(10);

GstElement* MakeSilentSink() {
    GstElement* sink = gst_element_factory_make("fakesink", nullptr);
    if (sink) {
        g_object_set(sink, "sync", TRUE, nullptr);
    }
    return sink;
}

/// Opens the device and closes it again.
bool Works(const std::string& name) {
    GstElement* made = gst_element_factory_make(name.c_str(), nullptr);
    if (!made) {
        return false;
    }
    const ElementPtr sink(GST_ELEMENT(gst_object_ref_sink(made)));
    const bool works =
        gst_element_set_state(sink.get(), GST_STATE_READY) != GST_STATE_CHANGE_FAILURE;
    gst_element_set_state(sink.get(), GST_STATE_NULL);
    return works;
}

}  // namespace

AudioOutput::AudioOutput(std::vector<std::string> sinks, std::chrono::milliseconds searchLimit)
    : state_(std::make_shared<State>()) {
    state_->sinks = std::move(sinks);
    state_->searchLimit = searchLimit;
}

GstElement* AudioOutput::MakeSink(bool silent) {
    EnsureLibrary();
    if (silent) {
        return MakeSilentSink();
    }
    std::unique_lock lock(state_->mutex);
    const bool again = state_->searched && state_->chosen.empty() &&
                       Clock::now() - state_->lastSearch > kSearchAgainAfter;
    if (!state_->searching && (!state_->searched || again)) {
        state_->searching = StartThread([state = state_] {
            std::string found;
            for (const std::string& name : state->sinks) {
                if (Works(name)) {
                    found = name;
                    break;
                }
            }
            const std::lock_guard done(state->mutex);
            state->chosen = found;
            state->searching = false;
            state->searched = true;
            state->lastSearch = Clock::now();
            state->changed.notify_all();
        });
    }
    if (!state_->searched) {
        // A server that hangs is not waited for a second time.
        const bool answered = state_->changed.wait_for(lock, state_->searchLimit,
                                                       [this] { return state_->searched; });
        if (!answered) {
            state_->searched = true;
            state_->lastSearch = Clock::now();
        }
    }
    const std::string name = state_->chosen;
    lock.unlock();
    GstElement* sink = name.empty() ? nullptr : gst_element_factory_make(name.c_str(), nullptr);
    return sink ? sink : MakeSilentSink();
}

void AudioOutput::Broke() {
    const std::lock_guard lock(state_->mutex);
    state_->chosen.clear();
    state_->searched = true;
    state_->lastSearch = Clock::now();
}

}  // namespace gst_adapter
