// The slide list's window on fake surroundings.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "authoring/slide_list/window.h"
#include "document/slide_rows.h"
#include "model/controls.h"
#include "model/windows/main_window.h"
#include "model/windows/slide_list.h"
#include "support/fake_platform.h"

namespace authoring {

using testing::ElementsAre;
using testing::IsEmpty;

struct SlideListTest : testing::Test, fakes::FakePlatform {
    model::ShowState& state = app.state;
    model::Windows& windows = app.windows;
    model::Form1& form1 = app.windows.form1;
    model::Form3& form3 = app.windows.form3;

    void SetUp() override {
        AttachSlideList(app);
        form1.Show();
        form3.Show();
    }

    /// Rows with these paths, each with a schedule of its own, and no steps to undo.
    void Fill(const std::vector<Text>& paths) {
        std::vector<model::ListRow> rows;
        for (const Text& path : paths) {
            Text schedule = model::BlankScheduleRow();
            schedule[0] = path.empty() ? u' ' : path.front();
            rows.push_back({path, schedule});
        }
        document::AppendRows(document::SlideRows(app), std::move(rows));
        document::ForgetSteps(document::SlideRows(app));
    }
    /// So many rows "0.png" and on.
    void FillWith(int count) {
        std::vector<Text> paths;
        for (int i = 0; i < count; ++i) {
            paths.push_back(text::FromUtf8(std::to_string(i)) + u".png");
        }
        Fill(paths);
    }
    std::vector<Text> Rows() const {
        return {form3.List1.Rows().begin(), form3.List1.Rows().end()};
    }
    /// First characters of the schedule rows, which Fill took from the paths.
    Text Schedules() const {
        Text marks;
        for (const Text& row : form3.List2.Rows()) {
            marks += row.front();
        }
        return marks;
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
    std::vector<model::Button*> SlideButtons() {
        return {&form3.Command16, &form3.Command17, &form3.Command18,
                &form3.Command19, &form3.Command20, &form3.Command25};
    }
    void EnableSlideButtons() {
        for (model::Button* button : SlideButtons()) {
            button->Enabled = true;
        }
    }
    std::string EnabledSlideButtons() {
        std::string names;
        for (model::Button* button : SlideButtons()) {
            names += button->Enabled ? button->Name().substr(7) + " " : "";
        }
        return names;
    }
};

}  // namespace authoring
