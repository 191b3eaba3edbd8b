// Chooses the adapters and starts the program: on the desktop, or under the robot.

#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include "adapters/gstreamer/gst_sound.h"
#include "adapters/gstreamer/gst_video.h"
#include "adapters/imaging/qt_imaging.h"
#include "adapters/posix/iconv_code_page.h"
#include "adapters/posix/json_trace.h"
#include "adapters/posix/memory.h"
#include "adapters/posix/posix_files.h"
#include "adapters/posix/posix_folders.h"
#include "adapters/posix/posix_system.h"
#include "adapters/posix/settings_file.h"
#include "adapters/posix/start_paths.h"
#include "adapters/qt/desktop.h"
#include "adapters/robot/check_command.h"
#include "adapters/robot/inspect.h"
#include "adapters/robot/manual_command.h"
#include "adapters/robot/options.h"
#include "adapters/robot/robot.h"
#include "adapters/robot/robot_sound.h"
#include "adapters/robot/script.h"
#include "adapters/robot/traced_dialogs.h"
#include "adapters/robot/traced_sound.h"
#include "adapters/robot/traced_system.h"
#include "adapters/robot/window_tracer.h"
#include "app/exit.h"
#include "app/start_up.h"
#include "playback/transport.h"
#ifdef PARAPICO_HAS_CD
#include "adapters/cdio/cdio_disc.h"
#endif

namespace {

constexpr int kWrongUsage = 2;
constexpr int kFault = 70;  // the program's own, by sysexits.h

constexpr const char* kUsage =
    "使い方 / usage:\n"
    "  parapico [--trace FILE] [DOCUMENT]\n"
    "  parapico --inspect FILE\n"
    "  parapico --resave IN OUT [--distribution]\n"
    "  parapico --check [--json] [--screen WxH] FILE...\n"
    "  parapico --manual [--code-page] [FILE]\n"
    "  parapico --robot SCRIPT [--trace FILE] [--app-folder DIR] [--seed N]\n"
    "           [--now \"YYYY-MM-DD hh:mm:ss\"] [--screen WxH[,WxH…]]\n"
    "           [--prepare on|off] [--title] [DOCUMENT]\n"
    "画面がなくても動くもの / need no display: --inspect --resave --check --manual --robot\n"
    "詳しくは / more: man parapico\n";

/// Nobody listens.
class NoTrace : public platform::Trace {
public:
    void Event(std::string_view, std::initializer_list<platform::TraceField>) override {}
};

/// A loop that is made after the trace that asks it for the time.
struct LateClock {
    platform::EventLoop* loop = nullptr;
    double operator()() const { return loop ? loop->Milliseconds() : 0.0; }
};

std::unique_ptr<platform::Trace> OpenTrace(const std::string& file,
                                           const std::shared_ptr<LateClock>& clock) {
    if (file.empty()) {
        return std::make_unique<NoTrace>();
    }
    auto trace = posix_adapter::MakeTraceWriter(file, [clock] { return (*clock)(); });
    if (!trace) {
        std::cerr << "parapico: cannot write the trace " << file << "\n";
    }
    return trace;
}

/// A document given relative to the current folder; anything that is no file there stays as typed.
Text CommandText(const std::string& argument) {
    if (argument.empty() || argument[0] == '/') {
        return text::FromUtf8(argument);
    }
    return text::FromUtf8(posix_adapter::AbsoluteIfFile(argument));
}

/// Everything but the loop, the boxes and the devices is the same on the desktop and in the robot.
struct Surroundings {
    explicit Surroundings(const std::string& appFolder, bool prepare = true)
        : programFolder(posix_adapter::ProgramFolder(appFolder)),
          files(programFolder),
          imaging(files, prepare),
          system(programFolder, posix_adapter::AssetsFolder(PARAPICO_ASSETS)),
          folders(files) {}

    std::string programFolder;
    posix_adapter::IconvCodePage codePage;
    posix_adapter::PosixFiles files;
    imaging::QtImaging imaging;
    posix_adapter::PosixSystem system;
    posix_adapter::PosixFolders folders;
};

/// The views of a program's windows, for as long as the windows live: gone before them however the
/// program is left.
class Views {
public:
    Views(qt_adapter::Desktop& desktop, Application& application) : desktop_(desktop) {
        desktop_.MakeViews(application.windows, &application.platform.video);
    }
    ~Views() { desktop_.UnmakeViews(); }
    Views(const Views&) = delete;
    Views& operator=(const Views&) = delete;

private:
    qt_adapter::Desktop& desktop_;
};

/// An exception that nobody takes ends the program, but not what it was to keep.
int EndByFault(Application& application, const char* words) {
    std::cerr << "parapico: " << words << "\n";
    try {
        app::SaveState(application);
    } catch (...) {
        std::cerr << "parapico: the state could not be saved\n";
    }
    return kFault;
}

int RunUntilEnd(Application& application, const app::StartOptions& options) {
    try {
        app::RunProgram(application, options);
    } catch (const platform::ProgramEnd& end) {
        return end.exitStatus;
    } catch (const robot::ScriptError&) {
        throw;
    } catch (const std::exception& fault) {
        return EndByFault(application, fault.what());
    } catch (...) {
        return EndByFault(application, "unknown exception");
    }
}

/// The program hears of its end from outside for as long as it runs.
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

/// Nothing in a program that was built without the reader of discs.
gst_adapter::OpenDisc DiscReader() {
#ifdef PARAPICO_HAS_CD
    return cdio_adapter::OpenDisc;
#else
    return {};
#endif
}

int RunDesktop(int argc, char** argv, const std::string& traceFile, const std::string& document) {
    posix_adapter::ReuseFreedPictures();
    qt_adapter::Desktop desktop(argc, argv, {});
    auto clock = std::make_shared<LateClock>();
    clock->loop = &desktop.Loop();
    const std::unique_ptr<platform::Trace> trace = OpenTrace(traceFile, clock);
    if (!trace) {
        return kWrongUsage;
    }
    Surroundings around{std::string()};
    robot::TracedDialogs dialogs(desktop.Dialogs(), *trace);
    const auto output = std::make_shared<gst_adapter::AudioOutput>();
    gst_adapter::GstSound device(around.files, desktop.Loop(), output, DiscReader(),
                                 posix_adapter::UserSetting(around.programFolder, "cd"));
    robot::TracedSound sound(device, *trace);
    gst_adapter::GstVideo video(around.files, output, [&desktop](std::function<void()> call) {
        desktop.Post(std::move(call));
    });
    around.system.ask = [&desktop](const platform::ProgramQuestion& question) {
        return desktop.AskProgram(question);
    };
    robot::TracedSystem system(around.system, *trace, true);
    robot::WindowTracer windows(*trace);
    Application application({desktop.Loop(), around.files, dialogs, desktop.Monitors(),
                             around.imaging, desktop.TextRenderer(), sound, video, system, *trace,
                             around.codePage, around.folders,
                             posix_adapter::ReadUserSettings(around.programFolder)});
    around.system.endShow = [&application] { playback::StopShow(application); };
    around.system.textOpener = [](TextView path) { return qt_adapter::Desktop::OpenText(path); };
    windows.Attach(application.windows);
    const Views views(desktop, application);
    const EndFromOutside end(desktop, application);
    return RunUntilEnd(application, {CommandText(document), true, true});
}

int RunRobot(int argc, char** argv, const std::vector<std::string>& arguments) {
    std::string error;
    const auto options = robot::ParseRobotArguments(arguments, error);
    if (!options) {
        std::cerr << "parapico: " << error << "\n" << kUsage;
        return kWrongUsage;
    }
    auto clock = std::make_shared<LateClock>();
    const std::unique_ptr<platform::Trace> trace = OpenTrace(options->trace, clock);
    if (!trace) {
        return kWrongUsage;
    }
    try {
        robot::Robot robot(*options, *trace);
        clock->loop = &robot.Loop();
        qt_adapter::Desktop desktop(argc, argv, {.offscreen = true, .screens = options->screens});
        Surroundings around(robot.AppFolder(), options->prepare);
        robot::TracedSystem system(around.system, *trace, false);
        Application application({robot.Loop(), around.files, robot.Dialogs(), robot.Monitors(),
                                 around.imaging, desktop.TextRenderer(), robot.Sound(),
                                 robot.Video(), system, *trace, around.codePage, around.folders,
                                 posix_adapter::ReadUserSettings(around.programFolder)});
        const Views views(desktop, application);
        robot.Attach(application, [&](model::Window& window, const std::string& file) {
            return desktop.Shot(window, file);
        });
        const int status =
            RunUntilEnd(application, {CommandText(options->document), options->title});
        return status != 0 ? status : robot.ExitStatus();
    } catch (const robot::ScriptError& scriptError) {
        std::cerr << scriptError.what() << "\n";
        return kWrongUsage;
    }
}

int Desktop(int argc, char** argv, std::vector<std::string> arguments) {
    std::string trace;
    if (arguments.size() >= 2 && arguments[0] == "--trace") {
        trace = arguments[1];
        arguments.erase(arguments.begin(), arguments.begin() + 2);
    }
    if (!arguments.empty() && arguments[0] == "--") {
        arguments.erase(arguments.begin());
    } else if (!arguments.empty() && arguments[0].rfind("--", 0) == 0) {
        std::cerr << "parapico: " << arguments[0] << "?\n" << kUsage;
        return kWrongUsage;
    }
    if (arguments.size() > 1) {
        std::cerr << kUsage;
        return kWrongUsage;
    }
    return RunDesktop(argc, argv, trace, arguments.empty() ? std::string() : arguments[0]);
}

}  // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    const std::string door = arguments.empty() ? std::string() : arguments[0];
    if (door == "--help" || door == "-h") {
        std::cout << kUsage;
        return 0;
    }
    if (door == "--inspect" || door == "--resave") {
        return robot::RunDocumentCommand(arguments, std::cout, std::cerr);
    }
    if (door == "--check") {
        return robot::RunCheckCommand(arguments, std::cout, std::cerr);
    }
    if (door == "--manual") {
        return robot::RunManualCommand(arguments, std::cout, std::cerr);
    }
    for (const std::string& argument : arguments) {
        if (argument == "--robot") {
            return RunRobot(argc, argv, arguments);
        }
    }
    return Desktop(argc, argv, arguments);
}
