// Any bytes as the macro of a slide, in full screen or in the window: never a crash, and a run that
// ends once the show is stopped. The same bytes are looked through by the check.
#include <cstdlib>

#include "../tests/support/fake_platform.h"
#include "macro/check.h"
#include "macro/macro.h"
#include "model/picture_controls.h"
#include "model/windows/main_window.h"
#include "model/windows/slide_screen.h"

namespace {

constexpr const char16_t* kMacro = u"C:\\show\\p1.txt";
constexpr int kPumpsAtMost = 2000;  // until someone presses STOP
constexpr size_t kBytesAtMost = 4096;
constexpr int kSide = 24 * 15;  // twips: canvases are small, as drawing is not what is sought

/// Counts what the run asks of the loop, and stops the show when that is enough.
void StopInTime(fakes::FakePlatform& program, int& pumps) {
    program.loop.onPump = [&program, &pumps] {
        if (++pumps > kPumpsAtMost) {
            program.app.state.StopRequest = 1;
            program.app.state.MacroDelayWaiting = 0;
        }
    };
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size == 0 || size > kBytesAtMost) {
        return 0;
    }
    const std::string_view bytes(reinterpret_cast<const char*>(data) + 1, size - 1);
    fakes::FakePlatform program;
    model::ShowState& state = program.app.state;
    model::Windows& windows = program.app.windows;
    program.files.Put(kMacro, bytes);
    program.PutPicture(u"C:\\show\\a.bmp", 5, 4);
    program.files.Put(u"C:\\show\\a.dat", "KVS_PICTYPE_DATA,1,1,4,1,2,3\r\n");
    state.TextMacroFlag = 0;
    state.SlideList.Set(1, u"C:\\show\\p1.bmp");
    state.SlideList.Set(2, u"C:\\show\\p2.bmp");
    state.SlideListEnd = 3;
    state.SlideIndex = 1;
    state.FullScreenActive = data[0] & 1;
    state.PictureX = state.PictureY = 2;
    windows.form1.Picture1.SetSize(kSide, kSide);
    for (model::PictureBox* layer :
         {&windows.slidescreen.P2, &windows.slidescreen.P3, &windows.slidescreen.P4}) {
        layer->SetSize(kSide, kSide);
    }
    int pumps = 0;
    StopInTime(program, pumps);
    try {
        macro::RunTextMacro(program.app);
        macro::ClearMacroObjects(program.app);
    } catch (const platform::ProgramEnd&) {
    }
    if (state.SlideIndex < -1) {
        std::abort();
    }
    macro::CheckMacro(program.files, {u"C:\\show\\", 1, 2},
                      text::DecodeHandWrittenFile(bytes, program.codePage));
    return 0;
}
