#include "document/slide_rows.h"

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <numeric>

#include "document/main_caption.h"
#include "model/windows/slide_list.h"
#include "text/numbers.h"
#include "text/paths.h"

namespace document {

namespace {

constexpr int kNoRow = -1;

/// For each slide its row. An AVI film has one only where its own path stands there: other sources
/// of the rows than a document leave none out.
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

/// The row shows what the slide plays; a slide keeps a bare name with its folder in front.
bool IsRowOf(const Application& app, int row, int slide) {
    const Text& path = app.windows.form3.List1.List(row);
    return path == app.state.SlideList(slide) ||
           text::WithFolder(app.state.AppFolder, path) == app.state.SlideList(slide);
}

/// Each row is that of its slide: nobody has edited the rows since.
bool RowsAreCommitted(const Application& app, const std::vector<int>& rows) {
    for (int slide = 1; slide <= static_cast<int>(rows.size()); ++slide) {
        const int row = rows[static_cast<size_t>(slide - 1)];
        if (row != kNoRow && !IsRowOf(app, row, slide)) {
            return false;
        }
    }
    return true;
}

/// The row nearest to `from` that is the slide's, kNoRow without one.
int NearestRowOf(const Application& app, int slide, int from) {
    const int rows = app.windows.form3.List1.ListCount();
    for (int away = 0; away < rows + std::abs(from); ++away) {
        for (const int row : {from - away, from + away}) {
            if (row >= 0 && row < rows && IsRowOf(app, row, slide)) {
                return row;
            }
        }
    }
    return kNoRow;
}

void EraseSlides(model::ShowState& state) {
    for (model::TextArray* array : {&state.SlideList, &state.ScheduleFrom, &state.ScheduleTo}) {
        array->Erase();
    }
}

struct PlayedSlides {
    model::TextArray slides, from, to;
    int16_t end;
};

/// Before the slides are replaced within a step: they come back with it. Films without a row do,
/// too, and the rows stay ahead of the slides as far as they were.
void KeepSlides(Application& app) {
    model::RowStep& step = app.windows.form3.history.open;
    if (app.windows.form3.history.depth == 0 || step.exchange) {
        return;
    }
    model::ShowState& state = app.state;
    const auto kept = std::make_shared<PlayedSlides>(
        PlayedSlides{state.SlideList, state.ScheduleFrom, state.ScheduleTo, state.SlideListEnd});
    step.exchange = [&state, kept] {
        std::swap(state.SlideList, kept->slides);
        std::swap(state.ScheduleFrom, kept->from);
        std::swap(state.ScheduleTo, kept->to);
        std::swap(state.SlideListEnd, kept->end);
    };
}

/// What a reader brings is no change of a person's, unless it is part of a step.
void LayRows(Application& app, std::vector<model::ListRow> rows) {
    const EditedList list = SlideRows(app);
    ClearRows(list);
    AppendRows(list, std::move(rows));
    if (list.history.depth == 0) {
        ForgetSteps(list);
    }
}

bool HoldsRows(const EditedList& list, const std::vector<model::ListRow>& rows) {
    if (list.rows.ListCount() != static_cast<int>(rows.size())) {
        return false;
    }
    int row = 0;
    return std::all_of(rows.begin(), rows.end(),
                       [&](const model::ListRow& wanted) { return RowAt(list, row++) == wanted; });
}

bool GoBack(Application& app, bool (*back)(const EditedList& list)) {
    const Text path = app.state.DocumentPath;
    const bool done = back(SlideRows(app));
    if (app.state.DocumentPath != path) {
        ShowDocumentCaption(app);
    }
    return done;
}

}  // namespace

EditedList SlideRows(Application& app) {
    model::ShowState& state = app.state;
    model::Form3& form3 = app.windows.form3;
    return {form3.List1,
            &form3.List2,
            form3.Label4,
            form3.history,
            {&state.DocumentPath, &state.DocumentName, &state.BaseFolder, &state.DocumentFileDate}};
}

model::ListRow SlideRow(Text path) {
    return {std::move(path), model::BlankScheduleRow()};
}

bool UndoSlideRows(Application& app) {
    return GoBack(app, Undo);
}

bool RedoSlideRows(Application& app) {
    return GoBack(app, Redo);
}

void KnowSavedDocument(Application& app) {
    constexpr size_t kPath = 0, kDate = 3;
    model::RowHistory& history = app.windows.form3.history;
    for (auto* steps : {&history.undo, &history.redo}) {
        for (model::RowStep& step : *steps) {
            if (!step.identity.empty() && step.identity[kPath] == app.state.DocumentPath) {
                step.identity[kDate] = app.state.DocumentFileDate;
            }
        }
    }
}

void CommitSlides(Application& app) {
    const model::ListBox& rows = app.windows.form3.List1;
    const int slides = std::min(rows.ListCount(), model::kSlideListLast);
    app.state.SlideList.Erase();
    for (int row = 0; row < slides; ++row) {
        app.state.SlideList.Set(row + 1, rows.List(row));
    }
    app.state.SlideListEnd = static_cast<int16_t>(slides + 1);
    RebuildSchedule(app);
}

void RevertSlideRows(Application& app) {
    const EditedList list = SlideRows(app);
    std::vector<model::ListRow> rows;
    for (int slide = 1; slide <= app.state.SlideList.Count(); ++slide) {
        rows.push_back(SlideRow(app.state.SlideList(slide)));
    }
    if (HoldsRows(list, rows)) {
        for (model::ListBox* box : {&list.rows, list.schedules}) {
            box->SelectRows(0, box->ListCount(), false);
            box->ListIndex = -1;
            box->TopIndex = 0;
        }
        return;
    }
    const UndoStep step(list);
    ClearRows(list);
    AppendRows(list, std::move(rows));
}

void ClearSlides(Application& app) {
    KeepSlides(app);
    EraseSlides(app.state);
    app.state.SlideListEnd = 0;
    LayRows(app, {});
}

void RemoveSlide(Application& app, int slide) {
    model::ShowState& state = app.state;
    const bool committed = RowsAreCommitted(app, RowsOfSlides(app));
    if (const auto row = RowOfSlide(app, slide)) {
        RemoveRows(SlideRows(app), {*row});
    }
    for (model::TextArray* array : {&state.SlideList, &state.ScheduleFrom, &state.ScheduleTo}) {
        array->Remove(slide);
    }
    if (committed) {
        RebuildSchedule(app);
    }
    CountSlides(app);
}

const Text& CompleteSlidePath(Application& app, int slide) {
    model::TextArray& slides = app.state.SlideList;
    slides.Set(slide, text::WithFolder(app.state.AppFolder, slides(slide)));
    return slides(slide);
}

void CountSlides(Application& app) {
    app.state.SlideListEnd = static_cast<int16_t>(app.state.SlideList.Count() + 1);
}

std::optional<int> RowOfSlide(const Application& app, int slide) {
    const std::vector<int> rows = RowsOfSlides(app);
    const auto i = static_cast<size_t>(slide - 1);
    if (slide < 1 || slide > app.state.SlideList.Count()) {
        return std::nullopt;
    }
    int row = i < rows.size() ? rows[i] : slide - 1;
    if (row != kNoRow && !IsRowOf(app, row, slide)) {
        row = NearestRowOf(app, slide, row);
    }
    return row != kNoRow ? std::optional(row) : std::nullopt;
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

SlideIntake::SlideIntake(Application& app) : app_(app) {
    KeepSlides(app);
    EraseSlides(app.state);
}

SlideIntake::~SlideIntake() {
    LayRows(app_, std::move(rows_));
}

bool SlideIntake::Expect(int32_t slides) {
    const auto end = text::ToInt16(slides + 1.0);
    if (end) {
        app_.state.SlideListEnd = *end;
    }
    return end.has_value();
}

bool SlideIntake::Add(Text path, bool withRow) {
    if (!app_.state.SlideList.Set(Count() + 1, path)) {
        return false;
    }
    rowOfSlide_.push_back(withRow ? static_cast<int>(rows_.size()) : kNoRow);
    if (withRow) {
        rows_.push_back(SlideRow(std::move(path)));
    }
    return true;
}

void SlideIntake::SetSchedule(int slide, Text schedule) {
    const int row = rowOfSlide_[static_cast<size_t>(slide - 1)];
    if (row != kNoRow) {
        rows_[static_cast<size_t>(row)].schedule = std::move(schedule);
        return;
    }
    app_.state.ScheduleFrom.Set(slide, model::ScheduleFromOfRow(schedule));
    app_.state.ScheduleTo.Set(slide, model::ScheduleToOfRow(schedule));
}

}  // namespace document
