// Writing show documents: always today's form.
#include <functional>
#include <utility>

#include "document/document_file.h"
#include "document/interval.h"
#include "document/line_writer.h"
#include "document/main_caption.h"
#include "document/show_document.h"
#include "document/slide_rows.h"
#include "model/sound_modes.h"
#include "model/windows/main_window.h"
#include "model/windows/slide_list.h"
#include "text/paths.h"

namespace document {

namespace {

constexpr TextView kTag = u"21vue3167893";

/// A name as it goes into the file.
using NameInFile = std::function<Text(const Text&)>;

/// Builds the document's text and changes nothing: a save that fails leaves the record alone.
class ShowWriter {
public:
    ShowWriter(const Application& app, NameInFile named, bool linkedFolder)
        : state_(app.state),
          form3_(app.windows.form3),
          named_(std::move(named)),
          linkedFolder_(linkedFolder) {}

    const Text& Write(const Text& path);

private:
    void WriteSoundAndEffects();
    void WriteSlides();
    void WriteScreenSettings();
    void WriteSoundList();
    void WriteModesAndRows();

    void Path(const Text& path) { lines_.Line(named_(path)); }

    const model::ShowState& state_;
    const model::Form3& form3_;
    const NameInFile named_;
    const bool linkedFolder_;
    LineWriter lines_;
};

const Text& ShowWriter::Write(const Text& path) {
    lines_.Line(kTag);
    Path(path);
    lines_.Number(IntervalMs(state_));
    lines_.Number(state_.RepeatFlag);
    WriteSoundAndEffects();
    WriteSlides();
    WriteScreenSettings();
    WriteSoundList();
    WriteModesAndRows();
    return lines_.Content();
}

void ShowWriter::WriteSoundAndEffects() {
    lines_.Number(state_.SoundMode == model::kMp3Sound ? int{model::kNoSound} : state_.SoundMode);
    Path(state_.DefaultEffectSound);
    Path(state_.WavFile);
    for (int16_t value :
         {state_.ShowEffect, state_.ShowEffectSpeed, state_.EraseEffect, state_.EraseEffectSpeed,
          state_.ShowSlitCount, state_.EraseSlitCount, state_.CdRepeatFlag}) {
        lines_.Number(value);
    }
    lines_.Line(state_.CdTrackSetting);
    for (int16_t value : {state_.ShowMosaicCount, state_.EraseMosaicCount, state_.TextMacroFlag}) {
        lines_.Number(value);
    }
    Path(state_.MidiFile);
    for (int16_t value :
         {state_.SoundSyncFlag, state_.LinkedSoundPosition, state_.RandomFlag, state_.CdOrder}) {
        lines_.Number(value);
    }
    lines_.Number(linkedFolder_ ? state_.LinkedFolderFlag : 0);
    lines_.Line(linkedFolder_ ? TextView(state_.LinkedFolder) : TextView());
}

void ShowWriter::WriteSlides() {
    lines_.Number(form3_.List1.ListCount());
    for (const Text& path : form3_.List1.Rows()) {
        Path(path);
    }
}

void ShowWriter::WriteScreenSettings() {
    lines_.Line(u"480");
    lines_.Number(state_.OverlayMode);
    lines_.Number(state_.OverlaySize);
    lines_.Number(state_.CdProgramCount);
    for (int i = 1; i <= state_.CdProgramCount; ++i) {
        lines_.Line(state_.CdProgram(i));
    }
    for (int16_t value : {model::OwnTextOrigin(state_), state_.CdPlusLinkedWav,
                          state_.CdProgramStop, state_.OverlayBackColor, state_.PicturePosition}) {
        lines_.Number(value);
    }
}

void ShowWriter::WriteSoundList() {
    lines_.Number(state_.SoundListUsed);
    if (state_.SoundListUsed != 1) {
        return;
    }
    lines_.Number(state_.SoundListCount);
    for (int i = 1; i <= state_.SoundListCount; ++i) {
        Path(state_.SoundList(i));
    }
}

void ShowWriter::WriteModesAndRows() {
    lines_.Number(state_.MidiLinkedWavFlag);
    Path(state_.Mp3File);
    lines_.Number(state_.SoundMode == model::kMp3Sound ? 1 : 0);
    for (int16_t value : {state_.AlwaysFullFlag, state_.EffectSpeedFixed, state_.LoadMode,
                          state_.Mp3LinkedWavFlag, state_.SoundListCheck5}) {
        lines_.Number(value);
    }
    for (const Text& row : form3_.List2.Rows()) {
        lines_.Line(u"-" + row);
    }
}

}  // namespace

bool WriteShowDocument(Application& app, TextView requestedPath) {
    auto& state = app.state;
    auto& form1 = app.windows.form1;
    auto& files = app.platform.files;
    const Text path = text::WithDefaultExtension(requestedPath, u".kvs");
    form1.MousePointer = model::kPointerBusy;
    // A distribution save drops the folders.
    const bool distribution = state.DistributionSaveFlag == 1;
    ShowWriter writer(
        app,
        [distribution](const Text& name) { return distribution ? text::BareName(name) : name; },
        !distribution);
    if (!SaveDocumentFile(app, path, writer.Write(path))) {
        form1.MousePointer = model::kPointerNormal;
        return false;
    }
    if (distribution) {
        // Kept: for good, the program goes on without a linked folder.
        state.LinkedFolderFlag = 0;
        state.LinkedFolder.clear();
    }
    state.Mp3ModeFlag = state.SoundMode == model::kMp3Sound ? 1 : 0;
    RebuildSchedule(app);
    form1.MousePointer = model::kPointerNormal;
    state.DocumentPath = path;
    ShowDocumentCaption(app);
    state.DocumentName = files.Dir(path);
    const auto date = files.LastWrite(path);
    state.DocumentFileDate = date ? platform::DateTimeText(*date) : Text();
    KnowSavedDocument(app);
    return true;
}

Text TextOfCopiedShow(const Application& app, TextView path, const NameInFile& named) {
    return ShowWriter(app, named, false).Write(Text(path));
}

}  // namespace document
