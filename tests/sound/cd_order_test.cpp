// Which track comes next, by every branch of the decision.
#include "sound/cd_order.h"

#include <gtest/gtest.h>

namespace {

using sound::CdMoment;
using sound::CdOrder;
using sound::CdSituation;
using sound::NextCdTurn;

constexpr CdMoment kMoments[] = {CdMoment::Begin, CdMoment::Resume, CdMoment::Ended,
                                 CdMoment::Again};

TEST(CdOfTracks, GoesOnTrackByTrackAndThenFromTheBeginning) {
    struct Row {
        int beginning, last, next;
    };
    for (const Row& row : {Row{1, 1, 2},
                           {1, 2, 3},
                           {1, 3, 1},
                           {2, 2, 3},
                           {2, 3, 2},
                           {3, 3, 3},
                           {2, 0, 2},
                           {2, 1, 2},
                           {2, 7, 2}}) {
        const CdSituation now{
            .moment = CdMoment::Ended, .tracks = 3, .beginning = row.beginning, .last = row.last};
        EXPECT_EQ(NextCdTurn(now).track, row.next) << row.beginning << " " << row.last;
    }
}

TEST(CdOfTracks, BeginsWithTheBeginningWhateverPlayedBefore) {
    for (const bool repeats : {false, true}) {
        const CdSituation now{
            .tracks = 3, .repeatsTrack = repeats, .beginning = 2, .paused = 1, .last = 3};
        EXPECT_EQ(NextCdTurn(now).track, 2);
    }
}

TEST(CdOfTracks, ARepeatedTrackComesAgainAndAgain) {
    for (const CdMoment moment : {CdMoment::Resume, CdMoment::Ended, CdMoment::Again}) {
        for (const int last : {1, 2, 3}) {
            const CdSituation now{
                .moment = moment, .tracks = 3, .repeatsTrack = true, .paused = 3, .last = last};
            EXPECT_EQ(NextCdTurn(now).track, last);
        }
    }
    const CdSituation unknown{
        .moment = CdMoment::Resume, .tracks = 3, .repeatsTrack = true, .paused = 3};
    EXPECT_EQ(NextCdTurn(unknown).track, 3);
}

TEST(CdOfTracks, GoesOnWithTheTrackOfThePause) {
    for (const int paused : {1, 2, 3}) {
        const CdSituation now{.moment = CdMoment::Resume, .tracks = 3, .paused = paused, .last = 1};
        EXPECT_EQ(NextCdTurn(now).track, paused);
    }
    const CdSituation otherDisc{
        .moment = CdMoment::Resume, .tracks = 3, .beginning = 2, .paused = 9, .last = 9};
    EXPECT_EQ(NextCdTurn(otherDisc).track, 2);
}

TEST(CdOfTracks, TheProgramHasNoPart) {
    CdSituation now{.moment = CdMoment::Ended, .tracks = 3, .last = 1};
    now.program = {3};
    now.position = 1;
    now.stopsAtEnd = true;
    EXPECT_EQ(NextCdTurn(now).track, 2);
    EXPECT_EQ(NextCdTurn(now).position, 1);
    EXPECT_FALSE(NextCdTurn(now).endsShow);
}

TEST(CdAtRandom, DrawsAnyTrack) {
    struct Row {
        double draw;
        int track;
    };
    for (const CdMoment moment : {CdMoment::Begin, CdMoment::Resume, CdMoment::Ended}) {
        for (const Row& row :
             {Row{0, 1}, {0.33, 1}, {0.34, 2}, {0.66, 2}, {0.67, 3}, {0.9999, 3}}) {
            const CdSituation now{.order = CdOrder::Random,
                                  .moment = moment,
                                  .tracks = 3,
                                  .repeatsTrack = true,
                                  .beginning = 2,
                                  .paused = 1,
                                  .last = 1,
                                  .draw = row.draw};
            EXPECT_EQ(NextCdTurn(now).track, row.track) << row.draw;
        }
    }
}

TEST(CdThatStoodStill, PlaysTheSameTrackInEveryOrder) {
    for (const CdOrder order : {CdOrder::Tracks, CdOrder::Random, CdOrder::Program}) {
        CdSituation now{
            .order = order, .moment = CdMoment::Again, .tracks = 3, .last = 2, .draw = 0.9};
        now.program = {2, 3};
        now.position = 1;
        EXPECT_EQ(NextCdTurn(now).track, 2);
        EXPECT_EQ(NextCdTurn(now).position, 1);
        now.last = 9;  // another disc: as any end
        EXPECT_EQ(NextCdTurn(now).track, order == CdOrder::Tracks ? 1 : 3);
    }
}

CdSituation Program(std::vector<int> entries, int position) {
    CdSituation now{.order = CdOrder::Program,
                    .moment = CdMoment::Ended,
                    .tracks = 3,
                    .repeatsTrack = true,
                    .last = 1};
    now.program = std::move(entries);
    now.position = position;
    return now;
}

TEST(CdByProgram, GoesFromEntryToEntryAndRoundAgain) {
    struct Row {
        int position, track, positionAfter;
    };
    for (const CdMoment moment : {CdMoment::Begin, CdMoment::Resume, CdMoment::Ended}) {
        for (const Row& row : {Row{0, 3, 1}, {1, 1, 2}, {2, 1, 3}, {3, 3, 1}, {8, 3, 1}}) {
            CdSituation now = Program({3, 1, 1}, row.position);
            now.moment = moment;
            EXPECT_EQ(NextCdTurn(now).track, row.track);
            EXPECT_EQ(NextCdTurn(now).position, row.positionAfter);
            EXPECT_FALSE(NextCdTurn(now).endsShow);
        }
    }
}

TEST(CdByProgram, ItsEndEndsTheShowOrInAChainTheMusic) {
    for (const bool chain : {false, true}) {
        CdSituation now = Program({3, 1}, 1);
        now.stopsAtEnd = true;
        now.inChain = chain;
        EXPECT_EQ(NextCdTurn(now).track, 1);
        EXPECT_FALSE(NextCdTurn(now).endsShow);
        now.position = 2;
        EXPECT_EQ(NextCdTurn(now).track, 0);
        EXPECT_EQ(NextCdTurn(now).position, 2);
        EXPECT_EQ(NextCdTurn(now).endsShow, !chain);
    }
}

TEST(CdByProgram, EntriesThatTheDiscLacksArePassedOver) {
    EXPECT_EQ(NextCdTurn(Program({4, 0, -1, 2}, 0)).track, 2);
    EXPECT_EQ(NextCdTurn(Program({4, 0, -1, 2}, 0)).position, 4);
    EXPECT_EQ(NextCdTurn(Program({2, 4}, 1)).track, 2);
    EXPECT_EQ(NextCdTurn(Program({4, 5}, 0)).track, 0);
    EXPECT_EQ(NextCdTurn(Program({4, 5}, 1)).track, 0);
    CdSituation ends = Program({2, 4}, 1);
    ends.stopsAtEnd = true;
    EXPECT_TRUE(NextCdTurn(ends).endsShow);
}

TEST(CdByProgram, AnEmptyOneIsSilent) {
    for (const CdMoment moment : kMoments) {
        CdSituation now = Program({}, 0);
        now.moment = moment;
        now.last = 0;
        now.stopsAtEnd = true;
        EXPECT_EQ(NextCdTurn(now).track, 0);
        EXPECT_FALSE(NextCdTurn(now).endsShow);
    }
}

}  // namespace
