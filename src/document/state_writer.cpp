// Writing autstart.dat: always today's form.
#include "document/interval.h"
#include "document/line_writer.h"
#include "document/state_files.h"
#include "document/state_lines.h"
#include "model/monitors.h"
#include "model/sound_modes.h"
#include "model/windows/slide_list.h"

namespace document {

namespace {

using model::ShowState;

void WriteField(LineWriter& lines, const ShowState& state, const model::FieldPointer& field) {
    if (field == model::FieldPointer(&ShowState::TextOriginScreen)) {
        lines.Number(model::OwnTextOrigin(state));
    } else if (const auto* textField = std::get_if<Text ShowState::*>(&field)) {
        lines.Line(state.**textField);
    } else {
        lines.Number(state.*std::get<int16_t ShowState::*>(field));
    }
}

LineWriter StateLines(Application& app) {
    const ShowState& state = app.state;
    const auto& slides = app.windows.form3.List1;
    const auto& rows = app.windows.form3.List2;
    LineWriter lines;
    lines.Line(kStateTag);
    for (const StateLine& line : kStateHead) {
        WriteField(lines, state, line.field);
    }
    lines.Line(state.DocumentPath);
    lines.Number(IntervalMs(state));
    lines.Number(state.RepeatFlag);
    lines.Number(state.SoundMode);
    lines.Line(state.DefaultEffectSound);
    lines.Number(slides.ListCount());
    for (const Text& path : slides.Rows()) {
        lines.Line(path);
    }
    lines.Number(state.CdProgramCount);
    for (int i = 1; i <= state.CdProgramCount; ++i) {
        lines.Line(state.CdProgram(i));
    }
    for (const StateTailLine& line : kStateTail) {
        WriteField(lines, state, line.field);
    }
    for (int16_t value : {state.Mp3LinkedWavFlag, state.SoundListCheck5, state.ControlBoxPos,
                          state.SoundListCheck6}) {
        lines.Number(value);
    }
    // One row a slide whatever the second list holds: the lines after them must be found again.
    for (int i = 0; i < slides.ListCount(); ++i) {
        lines.Line(u"-" + (i < rows.ListCount() ? rows.List(i) : model::BlankScheduleRow()));
    }
    lines.Number(model::MonitorOfMainWindow(app));
    lines.Number(state.UserHeaderFlag);
    return lines;
}

}  // namespace

bool WriteStateFile(Application& app) {
    ShowState& state = app.state;
    state.Mp3ModeFlag = state.SoundMode == model::kMp3Sound ? 1 : 0;
    if (state.SoundMode == model::kMp3Sound) {
        state.SoundMode =
            model::kNoSound;  // Kept: not put back, for the reader or the exit follows.
    }
    return WriteProgramFile(app, StateFilePath(app), StateLines(app).Content());
}

}  // namespace document
