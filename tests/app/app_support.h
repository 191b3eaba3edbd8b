// A program that starts in fake surroundings, and documents for it.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "app/start_up.h"
#include "document/state_files.h"
#include "model/windows/main_window.h"
#include "model/windows/slide_list.h"
#include "support/fake_platform.h"

namespace app_tests {

/// A show document in the newest form: no effects, no sound, three seconds a slide.
inline Text ShowOf(const std::vector<Text>& slides) {
    Text text =
        u"21vue3167893\r\nx.kvs\r\n 3000 \r\n 1 \r\n 7 \r\n*.wav\r\n\r\n 11 \r\n-30 \r\n 12 \r\n"
        u"-30 \r\n 10 \r\n 10 \r\n 1 \r\n1\r\n 20 \r\n 20 \r\n 0 \r\n\r\n 0 \r\n 0 \r\n 1 \r\n 0 "
        u"\r\n"
        u" 0 \r\n\r\n" +
        text::FromUtf8(" " + std::to_string(slides.size()) + " \r\n");
    for (const Text& slide : slides) {
        text += slide + u"\r\n";
    }
    return text +
           u"480\r\n 0 \r\n 0 \r\n 0 \r\n 0 \r\n 1 \r\n 0 \r\n 0 \r\n 0 \r\n 0 \r\n 0 \r\n\r\n 0 "
           u"\r\n"
           u" 1 \r\n 0 \r\n 0 \r\n 0 \r\n 0 \r\n";
}

/// Asked for another instance in the middle of the start, after the state files: there a test can
/// put what those files would have brought.
class AskedSystem : public fakes::FakeSystem {
public:
    std::function<void()> asked;
    bool PreviousInstance() override {
        if (asked) {
            asked();
        }
        return previousInstance;
    }
};

struct Program {
    fakes::FakePlatform around;
    AskedSystem system;
    Application app{platform::Platform{around.loop, around.files, around.dialogs, around.monitors,
                                       around.imaging, around.textRenderer, around.sound,
                                       around.video, system, around.trace, around.codePage,
                                       around.folders, around.fileChanges, around.clipboard,
                                       around.wallpaper, around.thumbnails, around.fileInquiry}};
    model::ShowState& state = app.state;
    model::Windows& windows = app.windows;
    model::Form1& form1 = app.windows.form1;

    Program() {
        around.PutPicture(u"C:\\show\\a.png", 320, 240);
        around.PutPicture(u"C:\\show\\b.png", 320, 240);
        around.PutText(u"C:\\show\\two.kvs", ShowOf({u"a.png", u"b.png"}));
        around.PutText(u"C:\\show\\one.kvs", ShowOf({u"a.png"}));
        around.PutText(u"C:\\show\\refused.kvs", u"vue\r\n" + ShowOf({u"a.png"}));
    }

    struct LastRun {
        int16_t autoStart = 1, allowDuplicate = 0;
        int monitor = 0;
        std::vector<Text> slides{};  // of C:\show\two.kvs; without slides no document
    };
    /// Leaves the state file of such a run in the program folder.
    static void PutState(fakes::FakePlatform& folder, const LastRun& run) {
        fakes::FakePlatform last;
        last.app.state.AutoStartFlag = run.autoStart;
        last.app.state.AllowDuplicate = run.allowDuplicate;
        last.app.state.DocumentPath = run.slides.empty() ? u"" : u"C:\\show\\two.kvs";
        last.monitors.monitors = folder.monitors.monitors;
        last.monitors.ofMainWindow = run.monitor;
        for (const Text& slide : run.slides) {
            last.app.windows.form3.List1.AddItem(slide);
            last.app.windows.form3.List2.AddItem(model::BlankScheduleRow());
        }
        document::WriteStateFile(last.app);
        folder.files.Put(u"C:\\app\\autstart.dat",
                         last.files.Get(u"C:\\app\\autstart.dat")->content);
    }

    /// Runs until nothing is left to do, at most `milliseconds`; answers the exit status.
    int Run(TextView commandText = u"", bool title = false, double milliseconds = 100) {
        around.loop.At(milliseconds, [] { throw platform::ProgramEnd{kTimeOut}; });
        try {
            app::RunProgram(app, {Text(commandText), title});
        } catch (const platform::ProgramEnd& end) {
            return end.exitStatus;
        }
    }
    static constexpr int kTimeOut = 99;  // the program was still there
};

}  // namespace app_tests
