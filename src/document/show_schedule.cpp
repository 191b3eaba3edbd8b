#include "document/show_schedule.h"

#include <numeric>
#include <vector>

#include "model/list_controls.h"
#include "model/windows/slide_list.h"
#include "text/paths.h"

namespace document {

namespace {

constexpr int kNoRow = -1;

/// For each entry of SlideList its row in the lists. An AVI file stands in them only where its own
/// path does: other sources of the lists than a document leave none out.
std::vector<int> RowsOfSlides(const Application& app) {
    const model::TextArray& slides = app.state.SlideList;
    const model::ListBox& list = app.windows.form3.List1;
    std::vector<int> rows;
    int next = 0;
    for (int i = 1; i <= slides.Count(); ++i) {
        const bool leftOut = text::KindOf(slides(i)) == u"AVI" &&
                             (next >= list.ListCount() || list.List(next) != slides(i));
        rows.push_back(leftOut ? kNoRow : next++);
    }
    if (next == list.ListCount()) {
        return rows;
    }
    rows.clear();
    rows.resize(static_cast<size_t>(app.windows.form3.List2.ListCount()));
    std::iota(rows.begin(), rows.end(), 0);
    return rows;
}

}  // namespace

std::optional<int> RowOfSlide(const Application& app, int slide) {
    const std::vector<int> rows = RowsOfSlides(app);
    const auto i = static_cast<size_t>(slide - 1);
    return slide >= 1 && i < rows.size() && rows[i] != kNoRow ? std::optional(rows[i])
                                                              : std::nullopt;
}

void RebuildSchedule(Application& app) {
    const std::vector<int> rows = RowsOfSlides(app);
    const model::ListBox& list = app.windows.form3.List2;
    const auto rebuild = [&](model::TextArray& array, Text (*part)(TextView row)) {
        const model::TextArray old = array;
        array.Erase();
        for (int i = 1; i <= static_cast<int>(rows.size()); ++i) {
            const int row = rows[static_cast<size_t>(i - 1)];
            if (row != kNoRow) {
                array.Set(i, part(list.List(row)));
            } else {
                array.Set(i, old(i).empty() ? part(model::BlankScheduleRow()) : old(i));
            }
        }
    };
    rebuild(app.state.ScheduleFrom, model::ScheduleFromOfRow);
    rebuild(app.state.ScheduleTo, model::ScheduleToOfRow);
}

}  // namespace document
