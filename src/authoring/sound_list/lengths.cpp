#include "authoring/sound_list/lengths.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>

#include "model/windows/sound_list.h"
#include "text/paths.h"

namespace authoring {

namespace {

using model::Application;
using platform::FileFacts;
using platform::FileInquiry;

constexpr double kBetweenTexts = 100;  // milliseconds

Text TwoDigits(int64_t number) {
    const std::string digits = std::to_string(number);
    return text::FromUtf8(digits.size() < 2 ? "0" + digits : digits);
}

}  // namespace

Text LengthText(double seconds) {
    constexpr int64_t kMinute = 60, kHour = 60 * kMinute;
    const int64_t whole = std::llround(seconds);
    const Text minutes = whole >= kHour ? text::FromUtf8(std::to_string(whole / kHour)) + u":" +
                                              TwoDigits(whole % kHour / kMinute)
                                        : text::FromUtf8(std::to_string(whole / kMinute));
    return minutes + u":" + TwoDigits(whole % kMinute);
}

SoundLengths::SoundLengths(Application& app) : app_(app) {
    app_.windows.form10.List1.Listen(this);
    AskOf(0, app_.windows.form10.List1.ListCount());
    SayLength(true);
}

SoundLengths::~SoundLengths() {
    app_.platform.fileInquiry.Forget(this);
    app_.windows.form10.List1.Unlisten(this);
}

Text SoundLengths::Of(int row) {
    Entry& entry = *rowPiece_[static_cast<size_t>(row)];
    Piece& piece = entry.second;
    if (!piece.asked && piece.age != age_) {
        Ask({entry.first}, FileInquiry::SoundLength);
    }
    if (piece.asked &&
        std::find(piece.waiting.begin(), piece.waiting.end(), row) == piece.waiting.end()) {
        piece.waiting.push_back(row);
    }
    if (piece.length) {
        return (piece.length->exact ? u"" : u"～") + LengthText(piece.length->seconds);
    }
    return piece.read ? u"" : u"～";
}

void SoundLengths::AskAgain() {
    ++age_;
    model::ListBox& list = app_.windows.form10.List1;
    list.FacesChanged(0, list.ListCount());
}

void SoundLengths::RowsChanged(model::Control&, const model::RowChange& change) {
    const auto first = rowPiece_.begin() + change.row;
    const auto count = static_cast<size_t>(change.count);
    switch (change.kind) {
        case model::RowChange::Inserted:
            rowPiece_.insert(first, count, nullptr);
            AskOf(change.row, change.count);
            break;
        case model::RowChange::Removed: {
            const std::vector<Entry*> gone(first, first + change.count);
            rowPiece_.erase(first, first + change.count);
            for (Entry* const piece : gone) {
                Release(piece);
            }
            break;
        }
        case model::RowChange::Replaced:
            AskOf(change.row, change.count);
            break;
        case model::RowChange::Cleared: {
            const std::deque<Entry*> gone = std::exchange(rowPiece_, {});
            const int rows = app_.windows.form10.List1.ListCount();
            rowPiece_.assign(static_cast<size_t>(rows), nullptr);
            AskOf(0, rows);
            for (Entry* const piece : gone) {
                Release(piece);
            }
            break;
        }
    }
    SayLength(true);
}

/// Pieces that only changed their rows are held by the new one before the old one lets go.
void SoundLengths::AskOf(int first, int count) {
    std::vector<Text> unknown;
    std::vector<Entry*> former;
    for (int row = first; row < first + count; ++row) {
        Entry* const piece = Hold(row);
        former.push_back(std::exchange(rowPiece_[static_cast<size_t>(row)], piece));
        if (!piece->second.read && !std::exchange(piece->second.asked, true)) {
            unknown.push_back(piece->first);
        }
    }
    for (Entry* const piece : former) {
        if (piece) {
            Release(piece);
        }
    }
    if (!unknown.empty()) {
        Ask(std::move(unknown), FileInquiry::SoundLength);
    }
}

SoundLengths::Entry* SoundLengths::Hold(int row) {
    const Text& path = app_.windows.form10.List1.List(row);
    Entry& entry = *pieces_.try_emplace(text::WithFolder(app_.state.AppFolder, path)).first;
    ++entry.second.rows;
    Count(entry.second, 1);
    return &entry;
}

void SoundLengths::Release(Entry* piece) {
    Count(piece->second, -1);
    if (--piece->second.rows == 0) {
        pieces_.erase(Text(piece->first));
    }
}

/// Takes so many rows of the piece into what is known of all.
void SoundLengths::Count(const Piece& piece, int rows) {
    seconds_ += piece.length ? rows * piece.length->seconds : 0;
    unknown_ += piece.length ? (piece.length->exact ? 0 : rows) : (piece.read ? 0 : rows);
}

void SoundLengths::Ask(std::vector<Text> paths, FileInquiry::What what) {
    pending_ += static_cast<int64_t>(paths.size());
    for (const Text& path : paths) {
        if (const auto found = pieces_.find(path); found != pieces_.end()) {
            found->second.asked = true;
        }
    }
    const bool whole = what == FileInquiry::WholeSoundLength;
    app_.platform.fileInquiry.Ask(
        this, std::move(paths), what,
        [this, whole](const Text& path, const FileFacts& facts) { Take(path, facts, whole); });
}

void SoundLengths::Take(const Text& path, const FileFacts& facts, bool whole) {
    --pending_;
    if (const auto found = pieces_.find(path); found != pieces_.end()) {
        Piece& piece = found->second;
        const bool same = piece.read && piece.whole && !whole && piece.size == facts.size &&
                          piece.changed == facts.changed;
        piece.asked = false;
        piece.age = age_;
        if (!same) {
            Count(piece, -piece.rows);
            piece.read = true;
            piece.whole = whole;
            piece.length = facts.length;
            piece.size = facts.size;
            piece.changed = facts.changed;
            Count(piece, piece.rows);
            if (!whole && piece.length && !piece.length->exact) {
                vague_.push_back(path);
            }
        }
        model::ListBox& list = app_.windows.form10.List1;
        for (const int row : std::exchange(piece.waiting, {})) {
            // Rows that have moved meanwhile ask again when they are drawn in their new places.
            list.FacesChanged(row, row < list.ListCount() ? 1 : 0);
        }
    }
    if (pending_ == 0 && !vague_.empty()) {
        Ask(std::exchange(vague_, {}), FileInquiry::WholeSoundLength);
    }
    SayLength(pending_ == 0);
}

void SoundLengths::SayLength(bool atOnce) {
    const double now = app_.platform.loop.Milliseconds();
    if (!atOnce && now - saidAt_ < kBetweenTexts) {
        return;
    }
    saidAt_ = now;
    Text words;
    if (!rowPiece_.empty()) {
        words = u"合計 ";
        words += unknown_ > 0 ? u"～" : u"";
        words += seconds_ > 0 || unknown_ == 0 ? LengthText(seconds_) : Text();
    }
    app_.windows.form10.Length.Caption = words;
}

}  // namespace authoring
