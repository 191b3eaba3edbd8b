// Any bytes as a show document: never a crash, at most one message, and what was accepted comes
// back the same after a save.
#include <cstdlib>

#include "../tests/support/fake_platform.h"
#include "document/show_document.h"
#include "model/windows/main_window.h"
#include "model/windows/slide_list.h"

namespace {

constexpr const char16_t* kPath = u"C:\\show\\fuzz.kvs";

void Require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

/// Line ends inside a value cannot come from a file, a comma ends the folder's item.
void CompareAfterSave(fakes::FakePlatform& first) {
    fakes::FakePlatform second;
    document::WriteShowDocument(first.app, kPath);
    Require(first.dialogs.messages.empty());
    second.files.Put(kPath, first.files.Get(kPath)->content);
    second.app.state.BaseFolder = first.app.state.BaseFolder;
    document::ReadShowDocument(second.app, kPath);
    Require(second.dialogs.messages.empty());
    Require(first.app.windows.form3.List1.Rows() == second.app.windows.form3.List1.Rows());
    Require(first.app.state.SlideIntervalSec == second.app.state.SlideIntervalSec);
    Require(first.app.state.EraseEffect == second.app.state.EraseEffect);
    Require(first.app.state.OverlayMode == second.app.state.OverlayMode);
    Require(first.app.state.CdProgramCount == second.app.state.CdProgramCount);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    fakes::FakePlatform program;
    program.files.Put(kPath, std::string_view(reinterpret_cast<const char*>(data), size));
    program.app.state.BaseFolder = u"C:\\show\\";
    document::ReadShowDocument(program.app, kPath);
    const bool refused = program.app.state.ShowAbort == 1;
    Require(program.dialogs.messages.size() == (refused ? 1u : 0u));
    const auto& form3 = program.app.windows.form3;
    Require(form3.List1.ListCount() == form3.List2.ListCount());
    Require(program.app.windows.form1.MousePointer == model::kPointerNormal);
    if (!refused) {
        CompareAfterSave(program);
    }
    return 0;
}
