// Where sound goes: the first sink that works, or with none a silent one that keeps time, so that
// a show runs the same without a sound card.
#pragma once

#include <gst/gst.h>

#include <chrono>
#include <memory>
#include <string>
#include <vector>

namespace gst_adapter {

class AudioOutput {
public:
    /// Names of sinks in order of choice. `searchLimit`: how long the first sink waits for a
    /// server to answer.
    explicit AudioOutput(std::vector<std::string> sinks = {"pulsesink", "alsasink"},
                         std::chrono::milliseconds searchLimit = std::chrono::seconds(2));

    /// A new sink with a floating reference. From a worker only: the first call waits for the
    /// search, at most `searchLimit`, and until the search has an answer the sink is silent.
    /// `silent`: the silent one in any case.
    GstElement* MakeSink(bool silent = false);

    /// Any thread: a sink of this output broke. Sinks are silent until a new search, which a later
    /// MakeSink starts, finds one that works.
    void Broke();

private:
    struct State;
    std::shared_ptr<State> state_;
};

}  // namespace gst_adapter
