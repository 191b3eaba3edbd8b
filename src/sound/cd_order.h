// Which track of an audio CD comes next.
#pragma once

#include <vector>

namespace sound {

enum class CdOrder { Tracks, Random, Program };

/// What a track is wanted for.
enum class CdMoment {
    Begin,   // a show begins
    Resume,  // it goes on after a pause
    Ended,   // the track that played has ended
    Again    // the disc stood still: the same track once more
};

struct CdSituation {
    CdOrder order = CdOrder::Tracks;
    CdMoment moment = CdMoment::Begin;
    int tracks = 0;             // on the disc
    bool repeatsTrack = false;  // in the order of tracks: the same one again and again
    int beginning = 1;          // a track of the disc
    int paused = 0;             // track of the pause
    int last = 0;               // track that was started last, 0 none
    double draw = 0;            // 0 <= draw < 1, for the random order
    std::vector<int> program{};
    int position = 0;         // entries of the program that have had their turn
    bool stopsAtEnd = false;  // of the program: the show
    bool inChain = false;     // of documents, which only the last of its slides ends
};

struct CdTurn {
    int track = 0;  // 0: the disc stays silent
    int position = 0;
    bool endsShow = false;
};

/// Entries of the program that the disc does not have are passed over.
CdTurn NextCdTurn(const CdSituation& situation);

}  // namespace sound
