// The sound list's window on fake surroundings.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "authoring/sound_list/window.h"
#include "document/sound_rows.h"
#include "model/windows/main_window.h"
#include "model/windows/sound_list.h"
#include "support/fake_platform.h"

namespace authoring {

using testing::ElementsAre;
using testing::IsEmpty;

struct SoundListTest : testing::Test, fakes::FakePlatform {
    model::ShowState& state = app.state;
    model::Form10& form10 = app.windows.form10;

    void SetUp() override {
        state.AppFolder = u"C:\\app\\";
        state.SoundMode = 7;
        AttachSoundList(app);
        app.windows.form1.Show();
        form10.Show();
    }

    void Fill(const std::vector<Text>& paths) {
        std::vector<model::ListRow> rows;
        for (const Text& path : paths) {
            rows.push_back({path, {}});
        }
        document::AppendRows(document::SoundRows(app), std::move(rows));
        document::ForgetSteps(document::SoundRows(app));
    }
    void FillWith(int count) {
        std::vector<Text> paths;
        for (int i = 0; i < count; ++i) {
            paths.push_back(text::FromUtf8(std::to_string(i)) + u".wav");
        }
        Fill(paths);
    }
    std::vector<Text> Rows() const {
        return {form10.List1.Rows().begin(), form10.List1.Rows().end()};
    }
    /// Titles and texts of all boxes so far, which are forgotten.
    std::vector<Text> TakeMessages() {
        std::vector<Text> told;
        for (const auto& message : dialogs.messages) {
            told.push_back(message.title + u"|" + message.text);
        }
        dialogs.messages.clear();
        return told;
    }
    Text Aside(int row) const { return form10.List1.face(row).aside; }
};

}  // namespace authoring
