// Any bytes as each of the files of the program folder and as coordinates: never a crash or a
// message, lists in step, and what was read comes back the same from what is written.
#include <cstdlib>

#include "../tests/support/fake_platform.h"
#include "document/cutout_points.h"
#include "document/state_files.h"
#include "model/windows/link_list.h"
#include "model/windows/main_window.h"
#include "model/windows/slide_list.h"

namespace {

constexpr const char16_t* kState = u"C:\\app\\autstart.dat";
constexpr const char16_t* kLinks = u"C:\\app\\uautst.dat";
constexpr const char16_t* kSounds = u"C:\\app\\wavlist.dat";

void Require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

void ReadAll(fakes::FakePlatform& program) {
    document::ReadSoundListFile(program.app);
    document::ReadLinkStateFile(program.app);
    document::ReadStateFile(program.app);
    const auto& windows = program.app.windows;
    Require(program.dialogs.messages.empty());
    Require(windows.form3.List1.ListCount() == windows.form3.List2.ListCount());
    Require(windows.form9.List1.ListCount() <= model::kLinkListLast);
    Require(windows.form1.MousePointer == model::kPointerNormal);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    fakes::FakePlatform first, second;
    for (const char16_t* path : {kState, kLinks, kSounds}) {
        first.files.Put(path, bytes);
    }
    ReadAll(first);
    document::WriteSoundListFile(first.app);
    document::WriteLinkStateFile(first.app);
    document::WriteStateFile(first.app);
    for (const char16_t* path : {kState, kLinks, kSounds}) {
        second.files.Put(path, first.files.Get(path)->content);
    }
    ReadAll(second);
    const auto& was = first.app.windows;
    const auto& is = second.app.windows;
    Require(was.form3.List1.Rows() == is.form3.List1.Rows());
    Require(was.form9.List1.Rows() == is.form9.List1.Rows());
    Require(first.app.state.AutoStartFlag == second.app.state.AutoStartFlag);
    Require(first.app.state.UserHeaderFlag == second.app.state.UserHeaderFlag);
    const auto points = document::ReadCutoutPoints(text::DecodeFile(bytes, first.codePage));
    Require(!points || points->size() <= document::kCutoutPointsMost);
    return 0;
}
