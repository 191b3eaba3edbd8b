// Reading show documents of every version. The version tag grew by a digit with each block of
// lines; what was added later without a new tag shows by the end of the file.
#include <algorithm>

#include "document/document_file.h"
#include "document/interval.h"
#include "document/line_reader.h"
#include "document/main_caption.h"
#include "document/settings_to_controls.h"
#include "document/show_document.h"
#include "document/show_tag.h"
#include "document/slide_rows.h"
#include "document/sound_rows.h"
#include "document/state_files.h"
#include "model/effect_speed.h"
#include "model/sound_modes.h"
#include "model/windows/background_sound.h"
#include "model/windows/main_window.h"
#include "model/windows/slide_list.h"
#include "model/windows/slide_screen.h"
#include "model/windows/sound_list.h"
#include "text/numbers.h"
#include "text/paths.h"

namespace document {

namespace {

constexpr int kFastestEffectSpeed = 10;
constexpr TextView kNoDefaultSound = u"*.wav";

class ShowReader {
public:
    ShowReader(Application& app, Text content)
        : app_(app), state_(app.state), reader_(std::move(content)) {}

    /// Throws ReadFailure; what was read until then stays.
    void Read();

    bool CarriedSoundList() const { return carriedSoundList_; }

private:
    void ReadTag();
    void ReadTiming();
    void ReadSoundAndEffects();
    void ReadMarksOf31678();
    void ReadSlides(SlideIntake& slides);
    void ReadOverlay();
    void ConvertOldSpeeds();
    void ReadCdProgram();
    void ReadScreenSettings();
    void ReadSoundList();
    void ReadMp3AndModes();
    void ReadLinkedWavFlagsAndRows(SlideIntake& slides);
    void ReadRows(SlideIntake& slides, TextView firstRow);

    bool Holds(TextView block) const { return tag_.starts_with(block); }
    /// Next line as a number, or the default where the file has ended.
    int16_t Int16Or(int otherwise) {
        return reader_.AtEnd() ? static_cast<int16_t>(otherwise) : reader_.Int16();
    }
    Text PathLine() { return text::WithFolder(state_.BaseFolder, reader_.Line()); }
    Text PathLineOrEmpty() {
        const TextView line = reader_.Line();
        return line.empty() ? Text() : text::WithFolder(state_.BaseFolder, line);
    }

    Application& app_;
    model::ShowState& state_;
    LineReader reader_;
    Text tag_;
    bool carriedSoundList_ = false;
};

void ShowReader::Read() {
    ReadTag();
    {
        SlideIntake slides(app_);
        ReadTiming();
        ReadSoundAndEffects();
        ReadMarksOf31678();
        ReadSlides(slides);
        ReadOverlay();
        ReadCdProgram();
        ReadScreenSettings();
        ReadSoundList();
        ReadMp3AndModes();
        ReadLinkedWavFlagsAndRows(slides);
    }
    RebuildSchedule(app_);
}

void ShowReader::ReadTag() {
    std::optional<Text> tag = ShowTag(reader_.Line());
    if (!tag) {
        throw ReadFailure{};
    }
    tag_ = std::move(*tag);
}

void ShowReader::ReadTiming() {
    state_.DocumentName = reader_.Line();
    TakeInterval(app_, reader_.Int32());
    state_.RepeatFlag = reader_.Int16();
}

void ShowReader::ReadSoundAndEffects() {
    state_.SoundMode = reader_.Int16();
    // The modes' numbers meant something else before their blocks were added.
    if (tag_ == u"vue2" || (state_.SoundMode == model::kListSound && !Holds(u"vue316789")) ||
        (state_.SoundMode == model::kMidiSound && !Holds(u"vue3167"))) {
        state_.SoundMode = model::kNoSound;
    }
    const TextView defaultSound = reader_.Line();
    state_.DefaultEffectSound = defaultSound == kNoDefaultSound
                                    ? Text(defaultSound)
                                    : text::WithFolder(state_.BaseFolder, defaultSound);
    if (Holds(u"vue3")) {
        state_.WavFile = PathLineOrEmpty();
        for (int16_t model::ShowState::*field :
             {&model::ShowState::ShowEffect, &model::ShowState::ShowEffectSpeed,
              &model::ShowState::EraseEffect, &model::ShowState::EraseEffectSpeed,
              &model::ShowState::ShowSlitCount, &model::ShowState::EraseSlitCount,
              &model::ShowState::CdRepeatFlag}) {
            state_.*field = reader_.Int16();
        }
        state_.CdTrackSetting = reader_.Line();
    }
    if (Holds(u"vue31")) {
        state_.ShowMosaicCount = reader_.Int16();
        state_.EraseMosaicCount = reader_.Int16();
    }
    if (Holds(u"vue316")) {
        state_.TextMacroFlag = reader_.Int16();
    }
    if (Holds(u"vue3167")) {
        const TextView midi = reader_.Line();
        state_.MidiFile = midi.empty() ? Text() : text::WithFolder(state_.BaseFolder, midi);
        if (!midi.empty() && !text::HoldsSeparator(midi)) {
            app_.windows.form8.Text1.Content = state_.MidiFile;
        }
        state_.SoundSyncFlag = reader_.Int16();
    }
}

void ShowReader::ReadMarksOf31678() {
    if (!Holds(u"vue31678")) {
        state_.LinkedSoundPosition = 1;
        return;
    }
    state_.LinkedSoundPosition = reader_.Int16();
    const TextView random = reader_.Item();
    state_.RandomFlag = random.empty() ? int16_t{1} : NumberOfItem(random);
    if (state_.RandomFlag == 0) {
        state_.RepeatFlag = 0;  // a random show cannot stop by itself
    }
    state_.CdOrder = reader_.Int16();
    state_.LinkedFolderFlag = reader_.Int16();
    state_.LinkedFolder = reader_.ItemOfLine();
}

void ShowReader::ReadSlides(SlideIntake& slides) {
    const int32_t count = std::max<int32_t>(reader_.Int32(), 0);
    if (!slides.Expect(count)) {
        throw ReadFailure{};
    }
    for (int32_t i = 0; i < count; ++i) {
        Text path = PathLine();
        // Kept: an AVI film has no row, though it is counted and played.
        const bool withRow = text::KindOf(path) != u"AVI";
        if (!slides.Add(std::move(path), withRow)) {
            throw ReadFailure{};
        }
    }
}

void ShowReader::ReadOverlay() {
    if (reader_.AtEnd()) {
        ConvertOldSpeeds();
        state_.OverlayMode = 0;
        state_.OverlaySize = 0;
        return;
    }
    reader_.Number();  // always 480
    state_.OverlayMode = reader_.Int16();
    state_.OverlaySize = reader_.Int16();
    if (state_.OverlayMode == 0 && tag_ != u"vue3167893") {
        state_.OverlaySize = 0;
    }
}

/// Documents from before the overlay block count effect speeds on another scale.
void ShowReader::ConvertOldSpeeds() {
    for (int16_t* speed : {&state_.ShowEffectSpeed, &state_.EraseEffectSpeed}) {
        const double converted = *speed + 6 - text::Int(*speed * 0.7);
        *speed = static_cast<int16_t>(std::min<double>(converted, kFastestEffectSpeed));
    }
}

void ShowReader::ReadCdProgram() {
    state_.CdProgram.Erase();
    state_.CdProgramCount = reader_.AtEnd() ? int16_t{0} : reader_.Count16();
    for (int i = 1; i <= state_.CdProgramCount; ++i) {
        state_.CdProgram.Set(i, Text(reader_.Line()));
    }
    if (state_.CdOrder != 2) {
        state_.CdProgram.Erase();
        state_.CdProgramCount = 0;
    }
}

void ShowReader::ReadScreenSettings() {
    state_.TextOriginScreen = Int16Or(0);
    state_.CdPlusLinkedWav = Int16Or(1);
    state_.CdProgramStop = Int16Or(0);
    state_.OverlayBackColor = Int16Or(0);
    app_.windows.slidescreen.GroundChanged();
    state_.PicturePosition = Int16Or(state_.OverlayMode != 0 ? 1 : 0);
}

void ShowReader::ReadSoundList() {
    struct Mark {
        int16_t& flag;
        explicit Mark(int16_t& f) : flag(f) { flag = 1; }
        ~Mark() { flag = 0; }
    };
    state_.SoundListUsed = Int16Or(0);
    if (state_.SoundListUsed != 1) {
        return;
    }
    const Mark mark(state_.ReadingDocument);
    state_.SoundListCount = reader_.Count16();
    state_.SoundList.Erase();
    struct Shown {
        Application& app;
        int count = 0;
        ~Shown() { ShowSounds(app, count); }
    } shown{app_};
    for (int i = 1; i <= state_.SoundListCount; ++i) {
        state_.SoundList.Set(i, PathLine());
        shown.count = i;
    }
    carriedSoundList_ = true;
}

void ShowReader::ReadMp3AndModes() {
    state_.MidiLinkedWavFlag = Int16Or(0);
    state_.Mp3File = reader_.AtEnd() ? Text() : PathLineOrEmpty();
    state_.Mp3ModeFlag = Int16Or(0);
    if (state_.Mp3ModeFlag == 1) {
        state_.SoundMode = model::kMp3Sound;
    }
    state_.AlwaysFullFlag = Int16Or(1);
    state_.EffectSpeedFixed = Int16Or(0);
    if (state_.EffectSpeedFixed == 1) {
        state_.ShowEffectSpeed = model::kFixedEffectSpeed;
        state_.EraseEffectSpeed = model::kFixedEffectSpeed;
    }
    state_.LoadMode = Int16Or(0);
}

/// Documents with rows are older than the two flags in front of them: an item that begins with the
/// rows' protecting "-" is the first row already.
void ShowReader::ReadLinkedWavFlagsAndRows(SlideIntake& slides) {
    state_.Mp3LinkedWavFlag = 0;
    state_.SoundListCheck5 = 0;
    TextView firstRow;
    if (!reader_.AtEnd()) {
        const TextView item = reader_.Item();
        if (item.starts_with(u'-')) {
            firstRow = item;
        } else {
            state_.Mp3LinkedWavFlag = NumberOfItem(item);
            state_.SoundListCheck5 = Int16Or(0);
        }
    }
    // Kept: the test for a file without rows comes first, so that a first row which was taken for
    // a flag and ends the file is lost.
    if (!reader_.AtEnd()) {
        ReadRows(slides, firstRow);
    }
}

/// `firstRow`: already read, or empty.
void ShowReader::ReadRows(SlideIntake& slides, TextView firstRow) {
    for (int slide = 1; slide <= slides.Count(); ++slide) {
        TextView row = slide == 1 && !firstRow.empty() ? firstRow : reader_.Item();
        row.remove_prefix(std::min<size_t>(1, row.size()));
        slides.SetSchedule(slide, Text(row));
    }
}

void TakeIdentity(Application& app, TextView path) {
    auto& state = app.state;
    state.DocumentPath = path;
    ShowDocumentCaption(app);
    state.DocumentName = app.platform.files.Dir(path);
    state.ResumeIndex = 0;
    if (!path.empty()) {
        const auto date = app.platform.files.LastWrite(path);
        state.DocumentFileDate = date ? platform::DateTimeText(*date) : Text();
    }
}

}  // namespace

bool ReadShowDocument(Application& app, TextView documentPath) {
    const Text path(documentPath);  // the caller may pass a field that reading changes
    auto content = OpenDocument(app, path);
    if (!content) {
        return false;
    }
    auto& pointer = app.windows.form1.MousePointer;
    pointer = model::kPointerBusy;
    app.state.RandomFlag = 1;
    model::RestoreTextOrigin(app.state);
    app.windows.form3.Command16.Enabled = false;
    app.windows.form3.Command17.Enabled = false;
    ShowReader reader(app, std::move(*content));
    try {
        reader.Read();
    } catch (const ReadFailure&) {
        FollowDocumentSettings(app);
        RefuseDocument(app, path);
        pointer = model::kPointerNormal;
        app.state.ShowAbort = 1;
        EndIfLoadingFromStart(app);
        return true;
    }
    FollowDocumentSettings(app);
    TakeIdentity(app, path);
    if (reader.CarriedSoundList()) {
        WriteSoundListFile(app);
    }
    pointer = model::kPointerNormal;
    return true;
}

}  // namespace document
