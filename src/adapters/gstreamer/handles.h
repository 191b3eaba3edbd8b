// Owning pointers for GStreamer's counted objects.
#pragma once

#include <gst/gst.h>

#include <memory>

namespace gst_adapter {

struct Unref {
    void operator()(gpointer object) const { gst_object_unref(object); }
    void operator()(GstCaps* caps) const { gst_caps_unref(caps); }
    void operator()(GstSample* sample) const { gst_sample_unref(sample); }
};

using ElementPtr = std::unique_ptr<GstElement, Unref>;
using PadPtr = std::unique_ptr<GstPad, Unref>;
using BusPtr = std::unique_ptr<GstBus, Unref>;
using CapsPtr = std::unique_ptr<GstCaps, Unref>;
using SamplePtr = std::unique_ptr<GstSample, Unref>;

}  // namespace gst_adapter
