// Slides and their rows: what a document brings, what a person's changes reach, and when.
#include "document/slide_rows.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "document_support.h"
#include "model/windows/main_window.h"

namespace document_tests {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const Text kOtherRow = u"2027/03/0408:152027/05/0619:45";
const Text kFrom = u"2026/01/02 10:30", kTo = u"2026/12/31 23:59";
const Text kOtherFrom = u"2027/03/04 08:15", kOtherTo = u"2027/05/06 19:45";
const Text kBlankField = Text(16, u' ');

struct Slides : Program {
    document::EditedList list = document::SlideRows(app);

    static std::vector<Text> Of(const model::TextArray& array) {
        std::vector<Text> values;
        for (int i = 1; i <= array.Used(); ++i) {
            values.push_back(array(i));
        }
        return values;
    }
    std::vector<Text> Played() const { return Of(app.state.SlideList); }
    std::vector<Text> From() const { return Of(app.state.ScheduleFrom); }
    std::vector<Text> To() const { return Of(app.state.ScheduleTo); }
    Text Count() const { return app.windows.form3.Label4.Caption(); }

    /// f.avi, a, b, g.AVI, c: rows and schedules as a document would give them.
    void WithFilms() {
        document::SlideIntake slides(app);
        EXPECT_TRUE(slides.Expect(5));
        for (const char16_t* path : {u"f.avi", u"a", u"b", u"g.AVI", u"c"}) {
            EXPECT_TRUE(slides.Add(path, Text(path).size() == 1));
        }
        slides.SetSchedule(1, kOtherRow);
        slides.SetSchedule(3, kRow);
    }
};

TEST(SlideRows, AReaderBringsSlidesAndRows) {
    Slides slides;
    document::AppendRows(slides.list, {document::SlideRow(u"old")});
    slides.WithFilms();
    document::RebuildSchedule(slides.app);
    EXPECT_THAT(slides.List1(), ElementsAre(u"a", u"b", u"c"));
    EXPECT_THAT(slides.List2(), ElementsAre(kBlankRow, kRow, kBlankRow));
    EXPECT_EQ(slides.Count(), u"3");
    EXPECT_THAT(slides.Played(), ElementsAre(u"f.avi", u"a", u"b", u"g.AVI", u"c"));
    EXPECT_EQ(slides.app.state.SlideListEnd, 6);
    EXPECT_THAT(slides.From(),
                ElementsAre(kOtherFrom, kBlankField, kFrom, kBlankField, kBlankField));
    EXPECT_THAT(slides.To(), ElementsAre(kOtherTo, kBlankField, kTo, kBlankField, kBlankField));
    EXPECT_FALSE(document::UndoSlideRows(slides.app)) << "the old rows belong to another document";
}

TEST(SlideRows, WhatWasReadUntilAFailureStays) {
    Slides slides;
    try {
        document::SlideIntake intake(slides.app);
        intake.Expect(2);
        intake.Add(u"a");
        throw 1;
    } catch (int) {
    }
    EXPECT_THAT(slides.List1(), ElementsAre(u"a"));
    EXPECT_EQ(slides.Count(), u"1");
    EXPECT_EQ(slides.app.state.SlideListEnd, 3);
}

TEST(SlideRows, AReaderFindsTheListFull) {
    Slides slides;
    document::SlideIntake intake(slides.app);
    EXPECT_TRUE(intake.Expect(32766));
    EXPECT_FALSE(intake.Expect(32767));
    EXPECT_EQ(slides.app.state.SlideListEnd, 32767);
    for (int i = 1; i <= model::kSlideListLast; ++i) {
        ASSERT_TRUE(intake.Add(u"a"));
    }
    EXPECT_FALSE(intake.Add(u"a"));
    EXPECT_EQ(intake.Count(), model::kSlideListLast);
}

TEST(SlideRows, AChangeReachesTheShowWhenItIsCommitted) {
    Slides slides;
    slides.WithFilms();
    document::RebuildSchedule(slides.app);
    document::MoveRows(slides.list, {1}, 0);
    document::AppendRows(slides.list, {document::SlideRow(u"d")});
    EXPECT_THAT(slides.Played(), ElementsAre(u"f.avi", u"a", u"b", u"g.AVI", u"c"));
    EXPECT_EQ(slides.app.state.SlideListEnd, 6);
    document::CommitSlides(slides.app);
    EXPECT_THAT(slides.List1(), ElementsAre(u"b", u"a", u"c", u"d"));
    EXPECT_THAT(slides.Played(), ElementsAre(u"b", u"a", u"c", u"d")) << "no film has a row";
    EXPECT_THAT(slides.From(), ElementsAre(kFrom, kBlankField, kBlankField, kBlankField));
    EXPECT_THAT(slides.To(), ElementsAre(kTo, kBlankField, kBlankField, kBlankField));
    EXPECT_EQ(slides.app.state.SlideListEnd, 5);
    EXPECT_TRUE(document::UndoSlideRows(slides.app));
    EXPECT_THAT(slides.List1(), ElementsAre(u"b", u"a", u"c"));
    EXPECT_THAT(slides.Played(), ElementsAre(u"b", u"a", u"c", u"d"));
}

TEST(SlideRows, GoingBackToTheShowsSlidesBlanksTheSchedules) {
    Slides slides;
    slides.WithFilms();
    document::RebuildSchedule(slides.app);
    document::ClearRows(slides.list);
    document::AppendRows(slides.list, {{u"x", kRow}});
    document::RevertSlideRows(slides.app);
    EXPECT_THAT(slides.List1(), ElementsAre(u"f.avi", u"a", u"b", u"g.AVI", u"c"));
    EXPECT_THAT(slides.List2(), ElementsAre(kBlankRow, kBlankRow, kBlankRow, kBlankRow, kBlankRow));
    EXPECT_EQ(slides.Count(), u"5");
    EXPECT_EQ(slides.From()[2], kFrom) << "the show keeps its own";
    EXPECT_TRUE(document::UndoSlideRows(slides.app));
    EXPECT_THAT(slides.List2(), ElementsAre(kRow));
}

TEST(SlideRows, ASlideGoesWithItsOwnRow) {
    Slides slides;
    slides.WithFilms();
    document::RebuildSchedule(slides.app);
    document::RemoveSlide(slides.app, 2);  // a
    EXPECT_THAT(slides.List1(), ElementsAre(u"b", u"c"));
    EXPECT_THAT(slides.List2(), ElementsAre(kRow, kBlankRow));
    EXPECT_EQ(slides.Count(), u"2");
    EXPECT_THAT(slides.Played(), ElementsAre(u"f.avi", u"b", u"g.AVI", u"c"));
    EXPECT_THAT(slides.From(), ElementsAre(kOtherFrom, kFrom, kBlankField, kBlankField));
    EXPECT_EQ(slides.app.state.SlideListEnd, 5);
    document::RemoveSlide(slides.app, 1);  // the film has none
    EXPECT_THAT(slides.List1(), ElementsAre(u"b", u"c"));
    EXPECT_THAT(slides.Played(), ElementsAre(u"b", u"g.AVI", u"c"));
    EXPECT_THAT(slides.From(), ElementsAre(kFrom, kBlankField, kBlankField));
    EXPECT_EQ(slides.app.state.SlideListEnd, 4);
    EXPECT_TRUE(document::UndoSlideRows(slides.app));
    EXPECT_THAT(slides.List1(), ElementsAre(u"a", u"b", u"c")) << "a person can have it back";
    EXPECT_FALSE(document::UndoSlideRows(slides.app));
}

TEST(SlideRows, ANewDocumentHasNothingToUndo) {
    Slides slides;
    slides.WithFilms();
    document::AppendRows(slides.list, {document::SlideRow(u"d")});
    document::ClearSlides(slides.app);
    EXPECT_THAT(slides.List1(), IsEmpty());
    EXPECT_THAT(slides.List2(), IsEmpty());
    EXPECT_EQ(slides.Count(), u"0");
    EXPECT_THAT(slides.Played(), IsEmpty());
    EXPECT_THAT(slides.From(), IsEmpty());
    EXPECT_THAT(slides.To(), IsEmpty());
    EXPECT_EQ(slides.app.state.SlideListEnd, 0);
    EXPECT_FALSE(document::UndoSlideRows(slides.app));
}

TEST(SlideRows, OpeningWithinAStepCanBeTakenBack) {
    Slides slides;
    slides.Read(With(FullDocument(), 27, {u"C:\\a.jpg", u"C:\\b.jpg"}));
    slides.app.state.DocumentFileDate = u"then";
    slides.PutText(u"D:\\other.kvs", TextOf(With(FullDocument(), 27, {u"c.jpg", u"d.jpg"})));
    {
        const document::UndoStep opening(slides.list);
        slides.app.state.BaseFolder = u"D:\\";
        document::ReadShowDocument(slides.app, u"D:\\other.kvs");
    }
    EXPECT_THAT(slides.List1(), ElementsAre(u"D:\\c.jpg", u"D:\\d.jpg"));
    EXPECT_EQ(slides.app.windows.form1.Caption(), u"ｽﾗｲﾄﾞ - D:\\other.kvs");
    EXPECT_TRUE(document::UndoSlideRows(slides.app));
    EXPECT_THAT(slides.List1(), ElementsAre(u"C:\\a.jpg", u"C:\\b.jpg"));
    EXPECT_THAT(slides.List2(), ElementsAre(kRow, kBlankRow));
    EXPECT_THAT(slides.Played(), ElementsAre(u"C:\\a.jpg", u"C:\\b.jpg"));
    EXPECT_EQ(slides.From().front(), kFrom);
    EXPECT_EQ(slides.app.state.DocumentPath, kPath);
    EXPECT_EQ(slides.app.state.DocumentName, u"test.kvs");
    EXPECT_EQ(slides.app.state.BaseFolder, kBase);
    EXPECT_EQ(slides.app.state.DocumentFileDate, u"then");
    EXPECT_EQ(slides.app.windows.form1.Caption(), Text(u"ｽﾗｲﾄﾞ - ") + kPath);
    EXPECT_TRUE(document::RedoSlideRows(slides.app));
    EXPECT_THAT(slides.List1(), ElementsAre(u"D:\\c.jpg", u"D:\\d.jpg"));
    EXPECT_THAT(slides.Played(), ElementsAre(u"D:\\c.jpg", u"D:\\d.jpg"));
    EXPECT_EQ(slides.app.state.DocumentName, u"other.kvs");
    EXPECT_EQ(slides.app.windows.form1.Caption(), u"ｽﾗｲﾄﾞ - D:\\other.kvs");
}

TEST(SlideRows, ABareNameIsCompletedForTheShowOnly) {
    Slides slides;
    slides.app.state.AppFolder = u"C:\\app\\";
    {
        document::SlideIntake intake(slides.app);
        intake.Add(u"mp4.bmp");
        intake.Add(u"D:\\b.jpg");
    }
    EXPECT_EQ(document::CompleteSlidePath(slides.app, 1), u"C:\\app\\mp4.bmp");
    EXPECT_EQ(document::CompleteSlidePath(slides.app, 2), u"D:\\b.jpg");
    EXPECT_THAT(slides.Played(), ElementsAre(u"C:\\app\\mp4.bmp", u"D:\\b.jpg"));
    EXPECT_THAT(slides.List1(), ElementsAre(u"mp4.bmp", u"D:\\b.jpg"));
}

/// a, b, c as rows and slides.
struct Edited : Slides {
    Edited() {
        document::AppendRows(
            list, {document::SlideRow(u"a"), document::SlideRow(u"b"), document::SlideRow(u"c")});
        document::CommitSlides(app);
    }
};

TEST(SlideRows, ASlideTakesItsOwnRowAlongAfterAnUndo) {
    Edited slides;
    document::RemoveSlide(slides.app, 2);  // b
    ASSERT_TRUE(document::UndoSlideRows(slides.app));
    document::RemoveSlide(slides.app, 2);  // c
    EXPECT_THAT(slides.Played(), ElementsAre(u"a"));
    EXPECT_THAT(slides.List1(), ElementsAre(u"a", u"b"));
}

TEST(SlideRows, ASlideTakesItsOwnRowAlongWhileRowsAreEdited) {
    Edited inserted;
    document::InsertRows(inserted.list, 0, {document::SlideRow(u"x")});
    document::RemoveSlide(inserted.app, 2);
    EXPECT_THAT(inserted.Played(), ElementsAre(u"a", u"c"));
    EXPECT_THAT(inserted.List1(), ElementsAre(u"x", u"a", u"c"));

    Edited moved;
    document::MoveRows(moved.list, {2}, 0);
    document::RemoveSlide(moved.app, 3);
    EXPECT_THAT(moved.Played(), ElementsAre(u"a", u"b"));
    EXPECT_THAT(moved.List1(), ElementsAre(u"a", u"b"));

    Edited gone;
    document::RemoveRows(gone.list, {1});
    document::RemoveSlide(gone.app, 2);
    EXPECT_THAT(gone.Played(), ElementsAre(u"a", u"c"));
    EXPECT_THAT(gone.List1(), ElementsAre(u"a", u"c"));
}

TEST(SlideRows, MoreRowsThanSlidesCanBe) {
    Slides slides;
    document::AppendRows(slides.list, std::vector<model::ListRow>(40000, document::SlideRow(u"a")));
    document::CommitSlides(slides.app);
    EXPECT_EQ(slides.app.state.SlideListEnd, model::kSlideListLast + 1);
    EXPECT_EQ(slides.app.state.SlideList.Count(), model::kSlideListLast);
}

TEST(SlideRows, FilmsWithoutARowComeBackWithTheirDocument) {
    Slides slides;
    slides.WithFilms();
    document::RebuildSchedule(slides.app);
    document::CountSlides(slides.app);
    {
        const document::UndoStep step(slides.list);
        document::ClearSlides(slides.app);
    }
    EXPECT_THAT(slides.Played(), IsEmpty());
    EXPECT_EQ(slides.app.state.SlideListEnd, 0);
    ASSERT_TRUE(document::UndoSlideRows(slides.app));
    EXPECT_THAT(slides.Played(), ElementsAre(u"f.avi", u"a", u"b", u"g.AVI", u"c"));
    EXPECT_THAT(slides.From(),
                ElementsAre(kOtherFrom, kBlankField, kFrom, kBlankField, kBlankField));
    EXPECT_EQ(slides.app.state.SlideListEnd, 6);
    ASSERT_TRUE(document::RedoSlideRows(slides.app));
    EXPECT_THAT(slides.Played(), IsEmpty());
    EXPECT_EQ(slides.app.state.SlideListEnd, 0);
}

TEST(SlideRows, TakingBackAClearingLeavesTheShowAlone) {
    Edited slides;
    slides.app.state.DocumentPath = u"C:\\test.kvs";
    document::RemoveRows(slides.list, {0});  // not committed
    {
        const document::UndoStep clearing(slides.list);
        document::ClearRows(slides.list);
        slides.app.state.DocumentPath.clear();
    }
    for (const auto back : {document::UndoSlideRows, document::RedoSlideRows}) {
        ASSERT_TRUE(back(slides.app));
        EXPECT_THAT(slides.Played(), ElementsAre(u"a", u"b", u"c"));
        EXPECT_EQ(slides.app.state.SlideListEnd, 4);
    }
}

}  // namespace
}  // namespace document_tests
