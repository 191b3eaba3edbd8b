// Reading autstart.dat, of every age. The tag says which of the lines before the slides a file
// holds; what was added after them shows by the end of the file.
#include <algorithm>

#include "document/interval.h"
#include "document/line_reader.h"
#include "document/main_caption.h"
#include "document/settings_to_controls.h"
#include "document/slide_rows.h"
#include "document/state_files.h"
#include "document/state_lines.h"
#include "document/unread_files.h"
#include "model/monitors.h"
#include "model/sound_modes.h"
#include "model/windows/main_window.h"
#include "text/paths.h"

namespace document {

namespace {

using model::ShowState;

class StateReader {
public:
    StateReader(Application& app, Text content)
        : app_(app), state_(app.state), reader_(std::move(content)) {}

    /// False, with nothing changed, for a first line that is neither a tag nor a number. Throws
    /// ReadFailure further on; what was read until then stays.
    bool ReadTag();
    void ReadLines();
    /// The oldest files are a number and no more.
    bool EndsAfterNumber() const { return tag_.empty() && reader_.AtEnd(); }
    bool HoldsMore() const { return reader_.HoldsMore(); }

private:
    void ReadHead(const StateLine& line);
    void ReadDocument();
    void ReadSlides(SlideIntake& slides, int32_t count);
    void ReadCdProgram();
    void ReadTail(const StateTailLine& line);
    void ReadLinkedWavFlagsAndRows(SlideIntake& slides);

    int16_t Int16OrZero() { return reader_.AtEnd() ? int16_t{0} : reader_.Int16(); }

    Application& app_;
    ShowState& state_;
    LineReader reader_;
    Text tag_;
};

bool StateReader::ReadTag() {
    if (reader_.AtEnd()) {
        return false;
    }
    const TextView line = reader_.Line();
    if (line.starts_with(kTaggedState)) {
        tag_ = line;
        return true;
    }
    if (text::Trim(line).empty()) {
        return false;
    }
    try {
        state_.AutoStartFlag = ToField16(DecimalNumber(line));
    } catch (const ReadFailure&) {
        return false;
    }
    return true;
}

void StateReader::ReadLines() {
    for (const StateLine& line : kStateHead) {
        if (tag_.starts_with(line.block)) {
            ReadHead(line);
        }
    }
    ReadDocument();
    const int32_t slideCount = reader_.Int32();
    SlideIntake slides(app_);
    ReadSlides(slides, slideCount);
    ReadCdProgram();
    for (const StateTailLine& line : kStateTail) {
        ReadTail(line);
    }
    if (state_.Mp3ModeFlag == 1) {
        state_.SoundMode = model::kMp3Sound;
    }
    ReadLinkedWavFlagsAndRows(slides);
    state_.MonitorIndex = Int16OrZero();
    state_.UserHeaderFlag = Int16OrZero();
}

void StateReader::ReadHead(const StateLine& line) {
    if (const auto* textField = std::get_if<Text ShowState::*>(&line.field)) {
        state_.** textField = line.item ? reader_.ItemOfLine() : reader_.Line();
        return;
    }
    const auto field = std::get<int16_t ShowState::*>(line.field);
    const double number = reader_.Number();
    // A measured unit of an earlier run is of use only to a show that starts by itself.
    if (field != &ShowState::MosaicDelayUnit || state_.AutoStartFlag == 0) {
        state_.*field = ToField16(number);
    }
}

void StateReader::ReadDocument() {
    state_.DocumentPath = reader_.Line();
    state_.DocumentName = state_.DocumentPath;
    TakeInterval(app_, reader_.Int32());
    state_.RepeatFlag = reader_.Int16();
    state_.SoundMode = reader_.Int16();
    state_.DefaultEffectSound = reader_.Line();
}

void StateReader::ReadSlides(SlideIntake& slides, int32_t count) {
    for (int32_t i = 0; i < count; ++i) {
        if (!slides.Add(text::WithFolder(state_.AppFolder, reader_.Line()))) {
            throw ReadFailure{};
        }
    }
}

void StateReader::ReadCdProgram() {
    state_.CdProgram.Erase();
    state_.CdProgramCount = 0;
    const int16_t count = reader_.AtEnd() ? int16_t{0} : reader_.Count16();
    for (int i = 1; i <= count; ++i) {
        state_.CdProgram.Set(i, Text(reader_.Line()));
        state_.CdProgramCount = static_cast<int16_t>(i);
    }
}

void StateReader::ReadTail(const StateTailLine& line) {
    if (const auto* textField = std::get_if<Text ShowState::*>(&line.field)) {
        state_.** textField = reader_.AtEnd() ? TextView() : reader_.Line();
        return;
    }
    const auto field = std::get<int16_t ShowState::*>(line.field);
    if (!reader_.AtEnd()) {
        state_.*field = reader_.Int16();
    } else if (line.otherwise == kByOverlayMode) {
        state_.*field = state_.OverlayMode != 0 ? 1 : 0;
    } else {
        state_.*field = static_cast<int16_t>(line.otherwise);
    }
}

/// Files with rows are older than the four flags in front of them: an item that begins with the
/// rows' protecting "-" is the first row already.
void StateReader::ReadLinkedWavFlagsAndRows(SlideIntake& slides) {
    TextView firstRow;
    const TextView item = reader_.AtEnd() ? TextView() : reader_.Item();
    if (item.starts_with(u'-')) {
        firstRow = item;
        for (auto field : {&ShowState::Mp3LinkedWavFlag, &ShowState::SoundListCheck5,
                           &ShowState::ControlBoxPos, &ShowState::SoundListCheck6}) {
            state_.*field = 0;
        }
    } else {
        state_.Mp3LinkedWavFlag = NumberOfItem(item);
        state_.SoundListCheck5 = Int16OrZero();
        state_.ControlBoxPos = Int16OrZero();
        state_.SoundListCheck6 = Int16OrZero();
    }
    for (int slide = 1; slide <= slides.Count(); ++slide) {
        if (firstRow.empty() && reader_.AtEnd()) {
            return;  // the rows that are missing stay blank
        }
        TextView row = firstRow.empty() ? reader_.Item() : firstRow;
        firstRow = {};
        row.remove_prefix(std::min<size_t>(1, row.size()));
        slides.SetSchedule(slide, Text(row));
    }
}

/// On the monitor that the main window was on. Kept: one whose left edge is 0 counts with the
/// primary monitor's size, and so does one that is gone. A window that stands there maximised or
/// minimised has its place already.
void CentreMainWindow(Application& app) {
    auto& form1 = app.windows.form1;
    if (form1.Visible && form1.WindowState != model::kWindowNormal) {
        return;
    }
    const std::vector<platform::Rect> monitors = app.platform.monitors.Enumerate();
    const int index = app.state.MonitorIndex;
    const int count = std::min(static_cast<int>(monitors.size()), model::kMonitorsMost);
    platform::Rect monitor;
    if (index >= 0 && index < count) {
        monitor = monitors[static_cast<size_t>(index)];
    }
    if (monitor.x == 0 && !monitors.empty()) {
        monitor.width = monitors.front().width;
        monitor.height = monitors.front().height;
    }
    constexpr int k = platform::kTwipsPerPixel;
    model::Centre(form1, {monitor.x * k, monitor.y * k, monitor.width * k, monitor.height * k});
}

void TakeIdentity(Application& app) {
    auto& state = app.state;
    if (state.DocumentPath.empty()) {
        return;
    }
    ShowDocumentCaption(app);
    const auto date = app.platform.files.LastWrite(state.DocumentPath);
    state.DocumentFileDate = date ? platform::DateTimeText(*date) : Text();
}

}  // namespace

Taken ReadStateFile(Application& app, TextView path) {
    std::string bytes;
    platform::FileError ignored;
    if (!app.platform.files.Read(path, bytes, ignored)) {
        app.windows.SetPointer(model::kPointerNormal);
        return Taken::Nothing;
    }
    StateReader reader(app, text::DecodeFile(bytes, app.platform.codePage));
    Taken taken = Taken::Nothing;
    if (reader.ReadTag()) {
        taken = reader.EndsAfterNumber() ? Taken::Whole : Taken::Partly;
        bool whole = false;
        try {
            reader.ReadLines();
            whole = true;
        } catch (const ReadFailure&) {
            // Kept: what stands before the fault is in force, and no box comes up.
        }
        RebuildSchedule(app);
        FollowAllSettings(app);
        if (whole) {
            taken = reader.HoldsMore() ? Taken::Partly : Taken::Whole;
            CentreMainWindow(app);
            TakeIdentity(app);
        }
    }
    app.windows.SetPointer(model::kPointerNormal);
    return taken;
}

void ReadStateFile(Application& app) {
    const Text path = StateFilePath(app);
    NoteTaken(app, path, ReadStateFile(app, path));
}

}  // namespace document
