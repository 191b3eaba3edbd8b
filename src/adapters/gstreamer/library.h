// The library's own start, which takes a while and therefore happens on a worker.
#pragma once

namespace gst_adapter {

/// Starts the library at the first call; every routine of a worker calls it first. Any thread.
void EnsureLibrary();

/// Loads what playing will need, once, on a thread of its own: the first load takes long enough to
/// be seen as a stutter.
void WarmUp();

/// Path of a MIDI instrument file, or null when the system has none.
const char* SoundFont();

}  // namespace gst_adapter
