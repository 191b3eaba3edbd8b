#include "platform/audio_disc.h"

#include <gtest/gtest.h>

namespace platform {
namespace {

/// Tracks of 2 s, 90 s and 1 s.
TrackTable ThreeTracks() {
    return TrackTable({{0, 150}, {150, 6750}, {6900, 75}});
}

TEST(TrackTable, KnowsTheTrackOfASector) {
    const TrackTable disc = ThreeTracks();
    EXPECT_EQ(disc.Count(), 3);
    EXPECT_EQ(disc.End(), 6975);
    EXPECT_EQ(disc.TrackAt(0), 1);
    EXPECT_EQ(disc.TrackAt(149), 1);
    EXPECT_EQ(disc.TrackAt(150), 2);
    EXPECT_EQ(disc.TrackAt(6899), 2);
    EXPECT_EQ(disc.TrackAt(6900), 3);
    EXPECT_EQ(disc.TrackAt(9999), 3);
}

TEST(TrackTable, TellsPlacesByTracksAndOnTheDisc) {
    const TrackTable disc = ThreeTracks();
    EXPECT_EQ(disc.PositionText(0, true), u"01:00:00:00");
    EXPECT_EQ(disc.PositionText(150 + 61 * 75 + 74, true), u"02:01:01:74");
    EXPECT_EQ(disc.PositionText(150 + 61 * 75 + 74, false), u"01:03:74");
}

TEST(TrackTable, AnswersWhatADriveIsAsked) {
    const TrackTable disc = ThreeTracks();
    struct Row {
        const char16_t* question;
        const char16_t* answer;
    };
    for (const Row& row : {Row{u"number of tracks", u"3"},
                           {u"current track", u"2"},
                           {u"position", u"02:00:02:01"},
                           {u"length track 1", u"00:02:00"},
                           {u"length track 2", u"01:30:00"},
                           {u"length track 3", u"00:01:00"},
                           {u"length track 0", u""},
                           {u"length track 4", u""},
                           {u"length track x", u""},
                           {u"length", u""},
                           {u"", u""}}) {
        EXPECT_EQ(disc.Status(row.question, 150 + 151, true), row.answer)
            << text::ToUtf8(row.question);
    }
    EXPECT_EQ(disc.Status(u"position", 301, false), u"00:04:01");
}

TEST(TrackTable, ReadsWhatIsToBePlayed) {
    struct Row {
        const char16_t* range;
        bool byTracks;
        int start, end;
    };
    const TrackTable disc = ThreeTracks();
    for (const Row& row : {Row{u"1", true, 0, 6975},
                           {u" 2 to 3", true, 150, 6900},
                           {u"2:01 to 2:01:30:10", true, 150 + 4500, 150 + 6750 + 10},
                           {u"1 to 1", true, 0, 0},
                           {u"0", false, 0, 6975},
                           {u"1:30", false, 6750, 6975}}) {
        const auto range = disc.Range(row.range, row.byTracks);
        ASSERT_TRUE(range) << text::ToUtf8(row.range);
        EXPECT_EQ(range->start, row.start) << text::ToUtf8(row.range);
        EXPECT_EQ(range->end, row.end) << text::ToUtf8(row.range);
    }
    for (const char16_t* range :
         {u"", u"0", u"4", u"x", u"-1", u"2:100", u"2 to 1", u"1 to 4", u"3:00:01"}) {
        EXPECT_FALSE(disc.Range(range, true)) << text::ToUtf8(range);
    }
    EXPECT_FALSE(disc.Range(u"1:33", false)) << "6975 sectors are 93 s";
}

}  // namespace
}  // namespace platform
