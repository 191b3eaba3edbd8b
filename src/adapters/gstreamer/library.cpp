#include "adapters/gstreamer/library.h"

#include <gst/gst.h>
#include <unistd.h>

#include <mutex>

#include "adapters/gstreamer/worker.h"

namespace gst_adapter {

namespace {

constexpr const char* kWarmed[] = {
    "appsrc",    "filesrc",      "decodebin", "typefind",       "audioconvert", "audioresample",
    "fakesink",  "capsfilter",   "appsink",   "mpegaudioparse", "avdec_mp3",    "mpg123audiodec",
    "midiparse", "fluiddec",     "qtdemux",   "h264parse",      "avdec_h264",   "avdec_aac",
    "queue",     "videoconvert", "videoflip", "multiqueue",     "id3demux",
};

constexpr const char* kSoundFonts[] = {
    "/usr/share/sounds/sf2/default-GM.sf2",
    "/usr/share/sounds/sf3/default-GM.sf3",
    "/usr/share/sounds/sf2/TimGM6mb.sf2",
    "/usr/share/sounds/sf2/FluidR3_GM.sf2",
};

}  // namespace

void EnsureLibrary() {
    static std::once_flag once;
    std::call_once(once, [] { gst_init(nullptr, nullptr); });
}

void WarmUp() {
    static std::once_flag once;
    std::call_once(once, [] {
        StartThread([] {
            EnsureLibrary();
            for (const char* name : kWarmed) {
                if (GstElement* element = gst_element_factory_make(name, nullptr)) {
                    gst_object_unref(gst_object_ref_sink(element));
                }
            }
        });
    });
}

const char* SoundFont() {
    for (const char* path : kSoundFonts) {
        if (access(path, R_OK) == 0) {
            return path;
        }
    }
    return nullptr;
}

}  // namespace gst_adapter
