// What bench/sound_video.py measures: the real adapters and nothing around them.
//   sound_video_player start FILE    milliseconds from the play command to running sound
//   sound_video_player sound FILE…   plays them together to their end
//   sound_video_player video FILE    plays it in a window; prints how many pictures were painted
//   sound_video_player film FILE WIDTH HEIGHT    the same in a window of that size
#include <QApplication>
#include <chrono>
#include <cstdio>
#include <string>
#include <thread>

#include "adapters/gstreamer/gst_sound.h"
#include "adapters/gstreamer/gst_video.h"
#include "adapters/gstreamer/library.h"
#include "adapters/posix/posix_files.h"
#include "adapters/qt/desktop.h"
#include "adapters/qt/video_widget.h"

namespace {

using platform::VideoState;

struct Bench {
    Bench(int& argc, char** argv)
        : desktop(argc, argv, {}), output(std::make_shared<gst_adapter::AudioOutput>()) {}

    void PlayAll(gst_adapter::GstSound& sound, int argc, char** argv) {
        for (int i = 2; i < argc; ++i) {
            const std::string alias = "a" + std::to_string(i);
            const bool wave = std::string(argv[i]).ends_with("wav");
            sound.MciSendString(text::FromUtf8(std::string("open \"") + argv[i] + "\" type " +
                                               (wave ? "waveaudio" : "MPEGVideo") + " alias " +
                                               alias));
            sound.MciSendString(text::FromUtf8("play " + alias + " from 1"));
        }
        for (int i = 2; i < argc; ++i) {
            const Text question = text::FromUtf8("status a" + std::to_string(i) + " mode");
            while (sound.MciSendString(question) == u"playing") {
                desktop.Loop().Sleep(50);
                desktop.Loop().PumpEvents();
            }
        }
    }

    /// As the program plays a linked sound: opened and played in one go.
    double MillisecondsToSound(const std::string& file) {
        gst_adapter::Media media;
        media.kind = gst_adapter::Media::Kind::Wave;
        media.nativePath = file;
        media.wantsPosition = true;
        gst_adapter::EnsureLibrary();
        gst_adapter::Player first(media, output);  // the sinks are searched, the parts loaded
        first.Play();
        std::this_thread::sleep_for(std::chrono::milliseconds(500));
        first.Stop();
        const double start = desktop.Loop().Milliseconds();
        gst_adapter::Player player(media, output);
        player.Play();
        while (player.Position() <= 0) {
            std::this_thread::sleep_for(std::chrono::microseconds(200));
        }
        return desktop.Loop().Milliseconds() - start - player.Position() * 1000;
    }

    int PicturesOf(gst_adapter::GstVideo& video, const std::string& file, QSize size) {
        qt_adapter::VideoWidget screen(&video);
        screen.setWindowFlags(Qt::FramelessWindowHint);
        screen.setGeometry(QRect(QPoint(), size));
        screen.show();
        int painted = 0;
        const auto repaint = video.onFrame;
        const uint8_t* last = nullptr;
        video.onFrame = [&] {
            repaint();
            const uint8_t* now = video.Frame().pixels;
            painted += now != last ? 1 : 0;  // a call may also report a state
            last = now;
        };
        video.SetUrl(text::FromUtf8(file));
        video.Play();
        desktop.Loop().RunUntil([&] {
            return video.Status() == VideoState::Stopped || video.Status() == VideoState::Ready;
        });
        video.onFrame = nullptr;
        return painted;
    }

    qt_adapter::Desktop desktop;
    posix_adapter::PosixFiles files{"/"};
    std::shared_ptr<gst_adapter::AudioOutput> output;
};

}  // namespace

int main(int argc, char** argv) {
    if (argc < 3) {
        return 2;
    }
    Bench bench(argc, argv);
    const std::string what = argv[1];
    if (what == "video" || (what == "film" && argc == 5)) {
        const QSize size =
            argc == 5 ? QSize(std::stoi(argv[3]), std::stoi(argv[4])) : QSize(1920, 1080);
        gst_adapter::GstVideo video(bench.files, bench.output, [&](std::function<void()> call) {
            bench.desktop.Post(std::move(call));
        });
        std::printf("%d\n", bench.PicturesOf(video, argv[2], size));
    } else if (what == "start") {
        std::printf("%.2f\n", bench.MillisecondsToSound(argv[2]));
    } else {
        gst_adapter::GstSound sound(bench.files, bench.desktop.Loop(), bench.output);
        bench.PlayAll(sound, argc, argv);
    }
    return 0;
}
