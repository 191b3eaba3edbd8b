#include "document/sound_rows.h"

#include <algorithm>

#include "model/windows/sound_list.h"

namespace document {

namespace {

std::vector<Text> Entries(const model::ShowState& state, int count) {
    std::vector<Text> paths;
    for (int i = 1; i <= count; ++i) {
        paths.push_back(state.SoundList(i));
    }
    return paths;
}

/// False where the rows are so already.
bool ReplaceAll(const EditedList& list, const std::vector<Text>& paths) {
    const std::deque<Text>& rows = list.rows.Rows();
    if (std::equal(rows.begin(), rows.end(), paths.begin(), paths.end())) {
        return false;
    }
    std::vector<model::ListRow> wanted;
    for (const Text& path : paths) {
        wanted.push_back({path, {}});
    }
    const UndoStep step(list);
    ClearRows(list);
    AppendRows(list, std::move(wanted));
    return true;
}

}  // namespace

EditedList SoundRows(Application& app) {
    model::Form10& form10 = app.windows.form10;
    return {form10.List1, nullptr, form10.Label4, form10.history, {}};
}

void ShowSounds(Application& app, int count) {
    const EditedList list = SoundRows(app);
    if (ReplaceAll(list, Entries(app.state, count))) {
        ForgetSteps(list);
    }
}

void CommitSounds(Application& app) {
    model::ShowState& state = app.state;
    const std::deque<Text>& rows = app.windows.form10.List1.Rows();
    state.SoundList.Erase();
    state.SoundListCount = static_cast<int16_t>(rows.size());
    for (size_t i = 0; i < rows.size(); ++i) {
        state.SoundList.Set(static_cast<int>(i) + 1, rows[i]);
    }
}

void RevertSoundRows(Application& app) {
    ReplaceAll(SoundRows(app), Entries(app.state, app.state.SoundListCount));
}

void ClearSounds(Application& app) {
    app.state.SoundList.Erase();
    app.state.SoundListCount = 0;
    ShowSounds(app, 0);
}

}  // namespace document
