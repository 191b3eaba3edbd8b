#include "programs/desktop_program.h"

#include <iostream>

#include "adapters/commands/usage.h"
#include "adapters/gstreamer/gst_sound.h"
#include "adapters/gstreamer/gst_video.h"
#include "adapters/gstreamer/sound_levels.h"
#include "adapters/imaging/file_inquirer.h"
#include "adapters/imaging/thumbnail_cache.h"
#include "adapters/imaging/thumbnailer.h"
#include "adapters/posix/desktop_trash.h"
#include "adapters/posix/memory.h"
#include "adapters/posix/posix_file_changes.h"
#include "adapters/qt/desktop_wallpaper.h"
#include "adapters/qt/qt_clipboard.h"
#include "adapters/tracing/traced_desk.h"
#include "adapters/tracing/traced_dialogs.h"
#include "adapters/tracing/traced_sound.h"
#include "adapters/tracing/traced_system.h"
#include "adapters/tracing/window_tracer.h"
#include "app/exit.h"
#include "playback/run.h"
#include "programs/program.h"
#ifdef PARAPICO_HAS_CD
#include "adapters/cdio/cdio_disc.h"
#endif

namespace programs {

namespace {

/// For as long as it lives, an end from outside reaches the program.
class EndFromOutside {
public:
    EndFromOutside(qt_adapter::Desktop& desktop, Application& application) : desktop_(desktop) {
        desktop_.WatchEnd({[&application] { app::LeaveProgram(application); },
                           [&application] { app::SaveState(application); }});
    }
    ~EndFromOutside() { desktop_.UnwatchEnd(); }
    EndFromOutside(const EndFromOutside&) = delete;
    EndFromOutside& operator=(const EndFromOutside&) = delete;

private:
    qt_adapter::Desktop& desktop_;
};

/// A wallpaper that is not lasting goes with the program.
class PassingWallpaper {
public:
    explicit PassingWallpaper(platform::Wallpaper& wallpaper) : wallpaper_(wallpaper) {}
    ~PassingWallpaper() { wallpaper_.PutBack(); }
    PassingWallpaper(const PassingWallpaper&) = delete;
    PassingWallpaper& operator=(const PassingWallpaper&) = delete;

private:
    platform::Wallpaper& wallpaper_;
};

std::function<void(std::function<void()>)> PostTo(qt_adapter::Desktop& desktop) {
    return [&desktop](std::function<void()> call) { desktop.Post(std::move(call)); };
}

/// What the windows do to a person's files, clipboard and wallpaper, told to the trace.
struct Desk {
    Desk(qt_adapter::Desktop& desktop, Surroundings& around, platform::Trace& trace)
        : posixChanges(around.files, posix_adapter::MoveToDesktopTrash),
          fileChanges(posixChanges, trace),
          clipboard(qtClipboard, trace),
          desktopWallpaper(around.files),
          wallpaper(desktopWallpaper, trace),
          thumbnails({.programFolder = around.programFolder,
                      .cacheFolder = imaging::ThumbnailCache::OfDesktop(),
                      .post = PostTo(desktop)}),
          fileInquiry({.programFolder = around.programFolder,
                       .post = PostTo(desktop),
                       .levels = [](const std::string& nativePath, const auto& goOn) {
                           return gst_adapter::LevelsOf(nativePath, platform::kSoundParts, goOn);
                       }}) {}

    posix_adapter::PosixFileChanges posixChanges;
    tracing::TracedFileChanges fileChanges;
    qt_adapter::QtClipboard qtClipboard;
    tracing::TracedClipboard clipboard;
    qt_adapter::DesktopWallpaper desktopWallpaper;
    tracing::TracedWallpaper wallpaper;
    imaging::Thumbnailer thumbnails;
    imaging::FileInquirer fileInquiry;
};

/// Nothing in a program that was built without the reader of discs.
gst_adapter::OpenDisc DiscReader() {
#ifdef PARAPICO_HAS_CD
    return cdio_adapter::OpenDisc;
#else
    return {};
#endif
}

int Run(int& argc, char** argv, const std::string& traceFile, const std::string& document) {
    posix_adapter::ReuseFreedPictures();
    qt_adapter::Desktop desktop(argc, argv, {});
    auto clock = std::make_shared<LateClock>();
    clock->loop = &desktop.Loop();
    const std::unique_ptr<platform::Trace> trace = OpenTrace(traceFile, clock);
    if (!trace) {
        return commands::kWrongUsage;
    }
    Surroundings around{std::string()};
    tracing::TracedDialogs dialogs(desktop.Dialogs(), *trace);
    const auto output = std::make_shared<gst_adapter::AudioOutput>();
    gst_adapter::GstSound device(around.files, desktop.Loop(), output, DiscReader(),
                                 posix_adapter::UserSetting(around.programFolder, "cd"));
    tracing::TracedSound sound(device, *trace);
    gst_adapter::GstVideo video(around.files, output, PostTo(desktop));
    around.system.ask = [&desktop](const platform::ProgramQuestion& question) {
        return desktop.AskProgram(question);
    };
    tracing::TracedSystem system(around.system, *trace, true);
    tracing::WindowTracer windows(*trace);
    Desk desk(desktop, around, *trace);
    Application application({desktop.Loop(), around.files, dialogs, desktop.Monitors(),
                             around.imaging, desktop.TextRenderer(), sound, video, system, *trace,
                             around.codePage, around.folders, desk.fileChanges, desk.clipboard,
                             desk.wallpaper, desk.thumbnails, desk.fileInquiry,
                             posix_adapter::ReadUserSettings(around.programFolder)});
    around.system.endShow = [&application] { playback::StopShow(application); };
    around.system.textOpener = [](TextView path) { return qt_adapter::Desktop::OpenText(path); };
    windows.Attach(application.windows);
    const Views views(desktop, application);
    const PassingWallpaper passing(desk.wallpaper);
    const EndFromOutside end(desktop, application);
    return RunUntilEnd(application, {CommandText(document), true, true});
}

}  // namespace

int RunDesktop(int& argc, char** argv, std::vector<std::string> arguments) {
    std::string trace;
    if (arguments.size() >= 2 && arguments[0] == "--trace") {
        trace = arguments[1];
        arguments.erase(arguments.begin(), arguments.begin() + 2);
    }
    if (!arguments.empty() && arguments[0] == "--") {
        arguments.erase(arguments.begin());
    } else if (!arguments.empty() && arguments[0].rfind("--", 0) == 0) {
        std::cerr << "parapico: " << arguments[0] << "?\n" << commands::Usage();
        return commands::kWrongUsage;
    }
    if (arguments.size() > 1) {
        std::cerr << commands::Usage();
        return commands::kWrongUsage;
    }
    return Run(argc, argv, trace, arguments.empty() ? std::string() : arguments[0]);
}

}  // namespace programs
