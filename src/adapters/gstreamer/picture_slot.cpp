#include "adapters/gstreamer/picture_slot.h"

#include <gst/app/gstappsink.h>

#include <algorithm>
#include <string>

namespace gst_adapter {

namespace {

using platform::Size;

// A header that asks for more is taken for damage.
constexpr const char* kDecodedCaps = "video/x-raw,width=[1,8192],height=[1,8192]";
constexpr int kLongestSide = 8192;
constexpr Size kRoomUntilTold{1920, 1080};
/// Above, two samples a pixel would leave some of the picture out.
constexpr int kMostByTwoSamples = 2;

struct MappedFrame {
    std::shared_ptr<GstBuffer> buffer;
    GstVideoFrame frame{};
    bool mapped = false;
    ~MappedFrame() {
        if (mapped) {
            gst_video_frame_unmap(&frame);
        }
    }
};

bool OnItsSide(GstVideoOrientationMethod turn) {
    return turn == GST_VIDEO_ORIENTATION_90R || turn == GST_VIDEO_ORIENTATION_90L ||
           turn == GST_VIDEO_ORIENTATION_UL_LR || turn == GST_VIDEO_ORIENTATION_UR_LL;
}

Size Turned(Size size, GstVideoOrientationMethod turn) {
    return OnItsSide(turn) ? Size{size.height, size.width} : size;
}

Size AtMost(Size size, Size room) {
    return size.width <= room.width && size.height <= room.height ? size
                                                                  : platform::Fitted(size, room);
}

/// With square pixels as high as the film's.
Size OwnSize(const GstVideoInfo& format) {
    const auto across = static_cast<gint>(std::max(1, GST_VIDEO_INFO_PAR_N(&format)));
    const auto down = static_cast<gint>(std::max(1, GST_VIDEO_INFO_PAR_D(&format)));
    const guint64 width = gst_util_uint64_scale_int_round(
        static_cast<guint64>(GST_VIDEO_INFO_WIDTH(&format)), across, down);
    constexpr guint64 kMost = 1U << 24;
    return AtMost(
        {static_cast<int>(std::clamp<guint64>(width, 1, kMost)), GST_VIDEO_INFO_HEIGHT(&format)},
        {kLongestSide, kLongestSide});
}

}  // namespace

void PictureSlot::TakeSample(GstSample* sample) {
    GstVideoInfo given;
    GstBuffer* buffered = sample ? gst_sample_get_buffer(sample) : nullptr;
    if (!buffered || !gst_video_info_from_caps(&given, gst_sample_get_caps(sample))) {
        return;
    }
    {
        const std::lock_guard lock(mutex_);
        format_ = given;
        newest_.reset(gst_buffer_ref(buffered), [](GstBuffer* old) { gst_buffer_unref(old); });
    }
    onPicture();
}

void PictureSlot::Turn(const GstTagList& tags) {
    const bool streams = gst_tag_list_get_scope(&tags) == GST_TAG_SCOPE_STREAM;
    GstVideoOrientationMethod said = GST_VIDEO_ORIENTATION_IDENTITY;
    auto* list = const_cast<GstTagList*>(&tags);  // the library reads it only
    if ((turnIsTheStreams_ && !streams) || !gst_video_orientation_from_tag(list, &said)) {
        return;
    }
    turn_ = said;
    turnIsTheStreams_ = streams;
    g_object_set(flip_.get(), "video-direction", turn_, nullptr);
}

/// What the decoder says before its pictures.
void PictureSlot::TakeEvent(GstEvent& event) {
    const std::lock_guard lock(mutex_);
    if (GST_EVENT_TYPE(&event) == GST_EVENT_TAG) {
        GstTagList* tags = nullptr;
        gst_event_parse_tag(&event, &tags);
        Turn(*tags);
    } else if (GST_EVENT_TYPE(&event) == GST_EVENT_CAPS) {
        GstCaps* caps = nullptr;
        GstVideoInfo format;
        gst_event_parse_caps(&event, &caps);
        if (!gst_video_info_from_caps(&format, caps)) {
            return;
        }
        own_ = OwnSize(format);
    } else {
        return;
    }
    Fit();
}

Size PictureSlot::ShownSize() const {
    const Size upright = Turned(own_, turn_);
    return room_.Empty() ? AtMost(upright, kRoomUntilTold) : platform::Fitted(upright, room_);
}

void PictureSlot::Fit() {
    const Size shown = ShownSize();
    if (!size_ || shown.Empty()) {
        return;
    }
    const Size scaled = Turned(shown, turn_);
    const bool coarse = own_.width > scaled.width * kMostByTwoSamples ||
                        own_.height > scaled.height * kMostByTwoSamples;
    gst_util_set_object_arg(G_OBJECT(scale_.get()), "method", coarse ? "bilinear2" : "bilinear");
    const CapsPtr caps(gst_caps_new_simple(
        "video/x-raw", "format", G_TYPE_STRING, "BGRx", "width", G_TYPE_INT, shown.width, "height",
        G_TYPE_INT, shown.height, "pixel-aspect-ratio", GST_TYPE_FRACTION, 1, 1, nullptr));
    g_object_set(size_.get(), "caps", caps.get(), nullptr);
}

GstElement* PictureSlot::MakeTail() {
    GstElement* bin = gst_bin_new(nullptr);
    GstElement* parts[] = {
        gst_element_factory_make("capsfilter", nullptr),
        gst_element_factory_make("videoscale", nullptr),
        gst_element_factory_make("videoconvert", nullptr),
        gst_element_factory_make("videoflip", nullptr),  // telephones write down how they were held
        gst_element_factory_make("capsfilter", nullptr),
        gst_element_factory_make("appsink", nullptr),
    };
    const auto& [entry, scale, convert, flip, size, sink] = parts;
    bool whole = true;
    for (GstElement* part : parts) {
        whole = part && gst_bin_add(GST_BIN(bin), part) && whole;
    }
    if (!whole || !gst_element_link_many(entry, scale, convert, flip, size, sink, nullptr)) {
        gst_object_unref(gst_object_ref_sink(bin));
        return nullptr;
    }
    const CapsPtr decoded(gst_caps_from_string(kDecodedCaps));
    g_object_set(entry, "caps", decoded.get(), nullptr);
    g_object_set(scale, "add-borders", FALSE, nullptr);
    g_object_set(sink, "max-buffers", 2, "qos", TRUE, nullptr);
    using Shared = std::shared_ptr<PictureSlot>;
    GstAppSinkCallbacks callbacks{};
    callbacks.new_preroll = [](GstAppSink* from, gpointer data) {
        const SamplePtr sample(gst_app_sink_pull_preroll(from));
        (*static_cast<Shared*>(data))->TakeSample(sample.get());
        return GST_FLOW_OK;
    };
    callbacks.new_sample = [](GstAppSink* from, gpointer data) {
        const SamplePtr sample(gst_app_sink_pull_sample(from));
        (*static_cast<Shared*>(data))->TakeSample(sample.get());
        return GST_FLOW_OK;
    };
    const auto forget = [](gpointer data) { delete static_cast<Shared*>(data); };
    gst_app_sink_set_callbacks(GST_APP_SINK(sink), &callbacks, new Shared(shared_from_this()),
                               forget);
    const PadPtr pad(gst_element_get_static_pad(entry, "sink"));
    const auto hear = [](GstPad*, GstPadProbeInfo* info, gpointer data) {
        (*static_cast<Shared*>(data))->TakeEvent(*gst_pad_probe_info_get_event(info));
        return GST_PAD_PROBE_OK;
    };
    gst_pad_add_probe(pad.get(), GST_PAD_PROBE_TYPE_EVENT_DOWNSTREAM, hear,
                      new Shared(shared_from_this()), forget);
    // This bin alone follows a new size: the decoder is not asked to set itself up anew.
    const auto keep = [](GstPad*, GstPadProbeInfo* info, gpointer) {
        return GST_EVENT_TYPE(gst_pad_probe_info_get_event(info)) == GST_EVENT_RECONFIGURE
                   ? GST_PAD_PROBE_DROP
                   : GST_PAD_PROBE_OK;
    };
    gst_pad_add_probe(pad.get(), GST_PAD_PROBE_TYPE_EVENT_UPSTREAM, keep, nullptr, nullptr);
    gst_element_add_pad(bin, gst_ghost_pad_new("sink", pad.get()));

    const std::lock_guard lock(mutex_);
    const auto hold = [](GstElement* part) {
        return ElementPtr(GST_ELEMENT(gst_object_ref(part)));
    };
    scale_ = hold(scale);
    flip_ = hold(flip);
    size_ = hold(size);
    turn_ = GST_VIDEO_ORIENTATION_IDENTITY;
    turnIsTheStreams_ = false;
    return bin;
}

void PictureSlot::SetRoom(Size room) {
    const std::lock_guard lock(mutex_);
    if (room_ != room) {
        room_ = room;
        Fit();
    }
}

Size PictureSlot::NaturalSize() {
    const std::lock_guard lock(mutex_);
    return Turned(own_, turn_);
}

platform::VideoFrame PictureSlot::Newest() {
    auto mapped = std::make_shared<MappedFrame>();
    const std::lock_guard lock(mutex_);
    mapped->buffer = newest_;
    if (!mapped->buffer ||
        !gst_video_frame_map(&mapped->frame, &format_, mapped->buffer.get(), GST_MAP_READ)) {
        return {};
    }
    mapped->mapped = true;
    const GstVideoFrame& frame = mapped->frame;
    return {static_cast<const uint8_t*>(GST_VIDEO_FRAME_PLANE_DATA(&frame, 0)),
            GST_VIDEO_FRAME_WIDTH(&frame), GST_VIDEO_FRAME_HEIGHT(&frame),
            GST_VIDEO_FRAME_PLANE_STRIDE(&frame, 0), mapped};
}

void PictureSlot::Clear() {
    const std::lock_guard lock(mutex_);
    newest_.reset();
}

}  // namespace gst_adapter
