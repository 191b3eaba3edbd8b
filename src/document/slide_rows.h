// The slides: the rows of Form3's lists and what a show plays. All that changes either is here and
// in row_edits.
//
// Rows are what a person works on: List1 (paths), List2 (schedules), Label4 (their count). Slides
// are what a show plays: SlideList, ScheduleFrom, ScheduleTo and SlideListEnd. A document brings
// both; a change of the rows reaches the slides when they are committed. AVI films of a document
// are slides without a row.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "document/row_edits.h"
#include "model/application.h"

namespace document {

/// The rows for row_edits. DocumentPath, DocumentName, BaseFolder and DocumentFileDate are their
/// identity.
EditedList SlideRows(Application& app);

/// A row without schedule.
model::ListRow SlideRow(Text path);

/// Undo and Redo of SlideRows. Where another document comes back so does its caption; slides that a
/// step replaced come back with it.
bool UndoSlideRows(Application& app);
bool RedoSlideRows(Application& app);

/// The document was saved: steps that bring it back bring it back as it is on the disk now, or a
/// show would take it for changed by others and read it anew.
void KnowSavedDocument(Application& app);

/// The slides become what the rows are; films without a row are gone.
void CommitSlides(Application& app);
/// The rows become what the slides are, with blank schedules, and none is selected or current. No
/// step where they were that already.
void RevertSlideRows(Application& app);

/// No rows and no slides, SlideListEnd 0: a new document. Nothing can be undone afterwards, unless
/// a step is under way (UndoStep), of which it then is a part.
void ClearSlides(Application& app);

/// Takes the slide (from 1) out with its row and schedule. SlideIndex is the caller's.
void RemoveSlide(Application& app, int slide);

/// Path of the slide, with AppFolder in front of a bare name; SlideList keeps it so, the row not.
const Text& CompleteSlidePath(Application& app, int slide);

/// SlideListEnd: one more than there are slides, films included.
void CountSlides(Application& app);

/// Row of the slide (from 1); nothing for a film without a row. Where a person has edited the rows
/// since they were committed, the nearest one that has the slide's path.
std::optional<int> RowOfSlide(const Application& app, int slide);

/// ScheduleFrom and ScheduleTo anew, one entry for each slide: that of its own row. Films without a
/// row keep what the arrays hold for them. Where rows and slides do not belong together, as while a
/// person edits the rows, entry i is that of row i.
void RebuildSchedule(Application& app);

/// Slides as a reader finds them. Making one empties the slides; its end replaces the rows by those
/// that were added, also where reading fails on the way; RebuildSchedule then fills the arrays.
/// Nothing can be undone afterwards, unless a step is under way.
class SlideIntake {
public:
    explicit SlideIntake(Application& app);
    ~SlideIntake();
    SlideIntake(const SlideIntake&) = delete;
    SlideIntake& operator=(const SlideIntake&) = delete;

    /// SlideListEnd for that many slides. False, and nothing changed, where it cannot hold them.
    bool Expect(int32_t slides);
    /// One more slide, with or without a row. False, and nothing added, where there is no room.
    bool Add(Text path, bool withRow = true);
    /// Of a slide that was added, from 1.
    void SetSchedule(int slide, Text schedule);
    int Count() const { return static_cast<int>(rowOfSlide_.size()); }

private:
    Application& app_;
    std::vector<model::ListRow> rows_;
    std::vector<int> rowOfSlide_;  // -1: none
};

}  // namespace document
