// How long the pieces of the sound list are, each and all together. It is found out by the way:
// first by the files' beginnings, then, where those do not say it, by reading them whole.
#pragma once

#include <cstdint>
#include <deque>
#include <optional>
#include <unordered_map>
#include <vector>

#include "model/application.h"

namespace authoring {

/// "3:25", "1:02:03": rounded to seconds.
Text LengthText(double seconds);

/// Keeps `Length` of Form10 true, however the list changes.
class SoundLengths : public model::Listener {
public:
    explicit SoundLengths(model::Application& app);
    ~SoundLengths() override;
    SoundLengths(const SoundLengths&) = delete;
    SoundLengths& operator=(const SoundLengths&) = delete;

    /// What stands beside a row; with "～" as long as it is reckoned from the file's size or not
    /// known yet. The row is drawn anew when it turns out otherwise.
    Text Of(int row);

    /// Files may be others by now: rows that are drawn ask again. What is known meanwhile stays.
    void AskAgain();

    void RowsChanged(model::Control& control, const model::RowChange& change) override;

private:
    struct Piece {
        int rows = 0;        // that hold it
        bool asked = false;  // an answer is on its way
        bool read = false;   // one has come
        bool whole = false;  // the file was read whole
        int64_t age = 0;     // of `read`: as in age_
        std::optional<platform::PieceLength> length;
        int64_t size = 0;  // of the file that was read
        std::optional<platform::DateTime> changed;
        std::vector<int> waiting;  // rows that were drawn meanwhile, as they were numbered then
    };
    using Pieces = std::unordered_map<Text, Piece>;
    using Entry = Pieces::value_type;

    Entry* Hold(int row);
    void Release(Entry* piece);
    void Count(const Piece& piece, int rows);
    void Ask(std::vector<Text> paths, platform::FileInquiry::What what);
    void AskOf(int first, int count);
    void Take(const Text& path, const platform::FileFacts& facts, bool whole);
    void SayLength(bool atOnce);

    model::Application& app_;
    Pieces pieces_;                // by full path
    std::deque<Entry*> rowPiece_;  // of each row
    std::vector<Text> vague_;      // to be read whole once the rest is known
    int64_t pending_ = 0;          // answers that are still to come
    int64_t age_ = 0;
    double seconds_ = 0;   // of all rows
    int64_t unknown_ = 0;  // rows whose length is not known exactly, and can be
    double saidAt_ = 0;    // milliseconds
};

}  // namespace authoring
