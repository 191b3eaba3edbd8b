#include "adapters/cdio/cdio_disc.h"

#include <cdio/cdio.h>
#include <cdio/logging.h>
#include <sys/stat.h>

#include <cstdlib>
#include <mutex>

namespace cdio_adapter {

namespace {

constexpr int kMostTracks = 99;

class CdioDisc : public gst_adapter::Disc {
public:
    explicit CdioDisc(CdIo_t* disc) : disc_(disc) {}
    ~CdioDisc() override { cdio_destroy(disc_); }
    CdioDisc(const CdioDisc&) = delete;
    CdioDisc& operator=(const CdioDisc&) = delete;

    bool ReadTracks() {
        const track_t first = cdio_get_first_track_num(disc_);
        const track_t count = cdio_get_num_tracks(disc_);
        if (first == CDIO_INVALID_TRACK || count == CDIO_INVALID_TRACK || count > kMostTracks) {
            return false;
        }
        for (int i = 0; i < count; ++i) {
            const auto track = static_cast<track_t>(first + i);
            const lsn_t start = cdio_get_track_lsn(disc_, track);
            const lsn_t last = cdio_get_track_last_lsn(disc_, track);
            if (start == CDIO_INVALID_LSN || last == CDIO_INVALID_LSN || last < start) {
                return false;
            }
            tracks.push_back({start, last - start + 1,
                              cdio_get_track_format(disc_, track) == TRACK_FORMAT_AUDIO});
        }
        return true;
    }

    bool Read(int sector, int count, int16_t* frames) override {
        return cdio_read_audio_sectors(disc_, frames, sector, static_cast<uint32_t>(count)) ==
               DRIVER_OP_SUCCESS;
    }

private:
    CdIo_t* disc_;
};

/// The library's own handler would end the program at a worse message.
void Ignore(cdio_log_level_t, const char*) {}

CdIo_t* Open(const std::string& device) {
    struct stat status {};
    if (device.empty()) {
        return cdio_open(nullptr, DRIVER_DEVICE);
    }
    if (stat(device.c_str(), &status) != 0) {
        return nullptr;
    }
    return cdio_open(device.c_str(), S_ISREG(status.st_mode) ? DRIVER_UNKNOWN : DRIVER_DEVICE);
}

}  // namespace

std::unique_ptr<gst_adapter::Disc> OpenDisc(const std::string& device) {
    // Its drivers keep static lists.
    static std::mutex mutex;
    const std::lock_guard lock(mutex);
    cdio_log_set_handler(Ignore);
    CdIo_t* opened = Open(device);
    if (!opened) {
        return nullptr;
    }
    auto disc = std::make_unique<CdioDisc>(opened);
    return disc->ReadTracks() ? std::move(disc) : nullptr;
}

}  // namespace cdio_adapter
