#include "authoring/settings/cd_program.h"

#include <algorithm>
#include <string>
#include <vector>

#include "authoring/shared/open_window.h"
#include "document/row_edits.h"
#include "model/monitors.h"
#include "model/windows/cd_program.h"
#include "sound/cd.h"
#include "text/numbers.h"

namespace authoring {

namespace {

using model::Application;

constexpr int kMostEntries = 99;
constexpr int kKeyDelete = 46;
constexpr int kSecondsPerMinute = 60;

document::EditedList Program(model::Form14& form14) {
    return {form14.List1, nullptr, form14.Label1, form14.history, {}};
}

Text NumberText(int number) {
    return text::FromUtf8(std::to_string(number));
}

/// "4:05".
Text LengthText(int seconds) {
    const Text rest = NumberText(seconds % kSecondsPerMinute);
    return NumberText(seconds / kSecondsPerMinute) + (rest.size() < 2 ? u":0" : u":") + rest;
}

/// Of "mm:ss:ff"; 0 where nothing is known.
int SecondsOf(const Text& length) {
    const size_t colon = length.find(u':');
    if (colon == Text::npos) {
        return 0;
    }
    return static_cast<int>(text::SafeNumber(text::Left(length, colon))) * kSecondsPerMinute +
           static_cast<int>(text::SafeNumber(length.substr(colon + 1)));
}

void ShowTotal(model::Form14& form14) {
    int seconds = 0;
    for (const Text& row : form14.List1.Rows()) {
        const auto track = static_cast<int>(text::SafeNumber(row));
        if (track >= 1 && track <= model::Form14::kMostTracks) {
            seconds += SecondsOf(form14.Command3(track).Detail());
        }
    }
    form14.Label4.Caption = seconds > 0 ? u"合計 " + LengthText(seconds) : Text();
}

void ShowTracks(model::Form14& form14, const sound::DiscContents& disc) {
    for (int track = 1; track <= model::Form14::kMostTracks; ++track) {
        model::TrackButton& button = form14.Command3(track);
        const auto i = static_cast<size_t>(track - 1);
        const int seconds = i < disc.lengths.size() ? SecondsOf(disc.lengths[i]) : 0;
        button.Detail = seconds > 0 ? LengthText(seconds) : Text();
        button.Visible = track <= disc.tracks;
    }
}

void TakeSettings(Application& app) {
    model::Form14& form14 = app.windows.form14;
    std::vector<model::ListRow> rows;
    for (int i = 1; i <= std::min<int>(app.state.CdProgramCount, kMostEntries); ++i) {
        rows.push_back({app.state.CdProgram(i), {}});
    }
    document::ClearRows(Program(form14));
    document::AppendRows(Program(form14), std::move(rows));
    document::ForgetSteps(Program(form14));
    form14.List1.ListIndex = -1;
    form14.programStop = app.state.CdProgramStop;
    form14.Check1.Value = app.state.CdProgramStop;
    ShowTotal(form14);
}

void Command3_Click(Application& app, int track) {
    model::Form14& form14 = app.windows.form14;
    if (form14.List1.ListCount() >= kMostEntries) {
        app.platform.dialogs.Message(u"これ以上登録できません", platform::kPlain,
                                     u"曲順リストエラー");
        return;
    }
    document::AppendRows(Program(form14), {{NumberText(track), {}}});
    form14.List1.ListIndex = form14.List1.ListCount() - 1;  // in sight
    ShowTotal(form14);
}

void Command4_Click(Application& app) {
    model::Form14& form14 = app.windows.form14;
    if (form14.List1.ListCount() > 0 &&
        app.platform.dialogs.Message(u"曲順リストをすべて消去しますか ?", platform::kYesNoQuestion,
                                     u"一括取消") == platform::Answer::Yes) {
        document::ClearRows(Program(form14));
        ShowTotal(form14);
    }
}

void Command5_Click(model::Form14& form14) {
    document::RemoveRows(Program(form14), form14.List1.SelectedRows());
    ShowTotal(form14);
}

void Command1_Click(Application& app) {
    model::ShowState& state = app.state;
    model::Form14& form14 = app.windows.form14;
    const int count = form14.List1.ListCount();
    state.CdProgram.Erase();
    for (int i = 1; i <= count; ++i) {
        state.CdProgram.Set(i, form14.List1.List(i - 1));
    }
    state.CdProgramCount = static_cast<int16_t>(count);
    state.CdTrackSetting = u"1";
    form14.programStop = form14.Check1.Value;
    form14.Unload();
}

}  // namespace

void AttachCdProgram(Application& app) {
    model::Form14& form14 = app.windows.form14;
    for (int track = 1; track <= model::Form14::kMostTracks; ++track) {
        form14.Command3(track).Caption = NumberText(track);
        form14.Command3(track).Click = [&app, track] { Command3_Click(app, track); };
    }
    form14.OnUnload = [&app] {
        app.state.CdProgramStop = static_cast<int16_t>(app.windows.form14.programStop);
    };
    form14.Check1.Click = [&app] {
        app.state.CdProgramStop = static_cast<int16_t>(app.windows.form14.Check1.Value());
    };
    form14.List1.RowsDragged = [&form14](int before) {
        document::MoveRows(Program(form14), form14.List1.SelectedRows(), before);
    };
    form14.List1.KeyDown = [&form14](int code) {
        if (code == kKeyDelete) {
            Command5_Click(form14);
        }
    };
    form14.Command4.Click = [&app] { Command4_Click(app); };
    form14.Command5.Click = [&form14] { Command5_Click(form14); };
    form14.Command1.Click = [&app] { Command1_Click(app); };
    form14.Command2.Click = [&form14] { form14.Unload(); };
}

void OpenCdProgram(Application& app) {
    model::Form14& form14 = app.windows.form14;
    if (!CanOpen(app, form14) || app.windows.Pointer() != model::kPointerNormal) {
        return;
    }
    const sound::DiscContents disc = sound::LookAtDisc(app, true);
    if (disc.tracks == 0) {
        sound::SayNoDisc(app);
        return;
    }
    ShowTracks(form14, disc);
    TakeSettings(app);
    form14.Load();
    model::CentreOnMonitor(app, form14);
    form14.ShowModal(app.platform.loop);
}

}  // namespace authoring
