#include "authoring/shared/list_filter.h"

#include <algorithm>
#include <deque>
#include <memory>
#include <string>

#include "text/search_fold.h"

namespace authoring {

namespace {

/// Keeps count of the rows that are seen, however the list changes.
class FilteredRows : public model::Listener {
public:
    /// Lives in a handler of the box and so longer than the list.
    FilteredRows(model::ListBox& rows, model::TextBox& filter, model::Label& seenCount,
                 TextView unit)
        : rows_(rows), filter_(filter), seenCount_(seenCount), unit_(unit) {
        rows_.Listen(this);
    }

    /// The box has another text.
    void Follow() {
        const Text sought = text::SearchFold(filter_.Content());
        following_ = true;
        if (sought.empty()) {
            rows_.ShowOnly({});
        } else {
            rows_.ShowOnly([sought](const Text& row) {
                return text::SearchFold(row).find(sought) != Text::npos;
            });
        }
        following_ = false;
        CountAnew();
        ShowBeginning();
    }

    void RowsChanged(model::Control&, const model::RowChange& change) override {
        if (following_ || filter_.Content().empty()) {
            return;
        }
        if (change.kind == model::RowChange::Cleared) {
            Emptied();
            return;
        }
        const auto first = seen_.begin() + change.row;
        switch (change.kind) {
            case model::RowChange::Inserted:
                seen_.insert(first, static_cast<size_t>(change.count), false);
                Look(change.row, change.count);
                break;
            case model::RowChange::Removed:
                count_ -= std::count(first, first + change.count, true);
                seen_.erase(first, first + change.count);
                break;
            default:
                Look(change.row, change.count);
                break;
        }
        ShowCount();
    }

private:
    /// What was sought belonged to the rows that are gone.
    void Emptied() {
        if (rows_.ListCount() == 0) {
            filter_.Content = Text();
            Follow();
        } else {
            CountAnew();
        }
    }

    void CountAnew() {
        seen_.assign(static_cast<size_t>(rows_.ListCount()), false);
        count_ = 0;
        if (!filter_.Content().empty()) {
            Look(0, rows_.ListCount());
        }
        ShowCount();
    }

    /// The current row, or else the first one that is seen.
    void ShowBeginning() {
        const int current = rows_.ListIndex;
        const auto first = std::find(seen_.begin(), seen_.end(), true);
        if (current >= 0 && rows_.Seen(current)) {
            rows_.TopIndex = current;
        } else if (first != seen_.end()) {
            rows_.TopIndex = static_cast<int>(first - seen_.begin());
        }
    }

    void Look(int first, int count) {
        for (int row = first; row < first + count; ++row) {
            const bool seen = rows_.Seen(row);
            const bool before = seen_[static_cast<size_t>(row)];
            count_ += static_cast<int>(seen) - static_cast<int>(before);
            seen_[static_cast<size_t>(row)] = seen;
        }
    }

    void ShowCount() {
        const bool filtered = !filter_.Content().empty();
        seenCount_.Caption =
            filtered ? u"（" + text::FromUtf8(std::to_string(count_)) + Text(unit_) + u"を表示）"
                     : Text();
        seenCount_.Visible = filtered;
    }

    model::ListBox& rows_;
    model::TextBox& filter_;
    model::Label& seenCount_;
    const TextView unit_;
    std::deque<bool> seen_;
    std::ptrdiff_t count_ = 0;
    bool following_ = false;
};

}  // namespace

void AttachFilter(const ListWindow& window, model::TextBox& filter, model::Label& seenCount,
                  TextView unit) {
    const auto rows = std::make_shared<FilteredRows>(window.list.rows, filter, seenCount, unit);
    rows->Follow();
    filter.Change = [rows, window] {
        rows->Follow();
        if (SelectedRows(window.list.rows).empty()) {
            window.deselected(window.app);
        } else {
            window.follow(window.app);
        }
    };
    filter.KeyDown = [&filter](int key) {
        if (key == model::kKeyEscape) {
            filter.Enter({});
        }
    };
}

}  // namespace authoring
