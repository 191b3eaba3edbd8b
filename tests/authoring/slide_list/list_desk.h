// Form3 as a person has it before them, with rows whose schedules tell them apart.
#pragma once

#include <string>
#include <vector>

#include "authoring/slide_list/window.h"
#include "document/slide_rows.h"
#include "model/windows/relink_preview.h"
#include "model/windows/slide_list.h"
#include "support/fake_platform.h"

namespace authoring {

struct ListDesk : fakes::FakePlatform {
    model::ShowState& state = app.state;
    model::Form3& form3 = app.windows.form3;

    explicit ListDesk(const std::vector<Text>& paths = {}) {
        AttachSlideList(app);
        form3.Show();
        state.SlideListLimit = 30000;
        Fill(paths);
    }
    /// The rows, without a way back to what was there before.
    void Fill(const std::vector<Text>& paths) {
        const document::EditedList list = document::SlideRows(app);
        document::ClearRows(list);
        std::vector<model::ListRow> rows;
        for (const Text& path : paths) {
            rows.push_back({path, ScheduleOf(path)});
        }
        document::AppendRows(list, std::move(rows));
        document::ForgetSteps(list);
    }
    static Text ScheduleOf(const Text& path) {
        Text schedule = path;
        schedule.resize(30, u' ');
        return schedule;
    }
    /// The paths; "!" after one whose schedule is another row's.
    std::vector<Text> Rows() const {
        std::vector<Text> rows;
        for (int row = 0; row < form3.List1.ListCount(); ++row) {
            const Text& path = form3.List1.List(row);
            rows.push_back(form3.List2.List(row) == ScheduleOf(path) ? path : path + u"!");
        }
        EXPECT_EQ(form3.List2.ListCount(), form3.List1.ListCount());
        EXPECT_EQ(text::ToUtf8(form3.Label4.Caption()), std::to_string(form3.List1.ListCount()));
        return rows;
    }
    std::vector<Text> Selected() const {
        std::vector<Text> rows;
        for (const int row : form3.List1.SelectedRows()) {
            rows.push_back(form3.List1.List(row));
        }
        return rows;
    }
    size_t Steps() const { return form3.history.undo.size(); }
};

using Paths = std::vector<Text>;

}  // namespace authoring
