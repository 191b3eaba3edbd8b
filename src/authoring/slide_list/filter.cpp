#include "authoring/slide_list/filter.h"

#include <algorithm>
#include <deque>
#include <memory>
#include <string>

#include "authoring/slide_list/preview.h"
#include "authoring/slide_list/selection.h"
#include "model/windows/slide_list.h"
#include "text/search_fold.h"

namespace authoring {

namespace {

using model::Application;

/// Keeps count of the rows that are seen, however the list changes.
class FilteredRows : public model::Listener {
public:
    /// Lives in a handler of the box and so longer than the list.
    explicit FilteredRows(model::Form3& form3) : form3_(form3) { form3_.List1.Listen(this); }

    /// The box has another text.
    void Follow() {
        const Text sought = text::SearchFold(form3_.Filter.Content());
        following_ = true;
        if (sought.empty()) {
            form3_.List1.ShowOnly({});
        } else {
            form3_.List1.ShowOnly([sought](const Text& row) {
                return text::SearchFold(row).find(sought) != Text::npos;
            });
        }
        following_ = false;
        CountAnew();
        ShowBeginning();
    }

    void RowsChanged(model::Control&, const model::RowChange& change) override {
        if (following_ || form3_.Filter.Content().empty()) {
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
        if (form3_.List1.ListCount() == 0) {
            form3_.Filter.Content = Text();
            Follow();
        } else {
            CountAnew();
        }
    }

    void CountAnew() {
        seen_.assign(static_cast<size_t>(form3_.List1.ListCount()), false);
        count_ = 0;
        if (!form3_.Filter.Content().empty()) {
            Look(0, form3_.List1.ListCount());
        }
        ShowCount();
    }

    /// The current row, or else the first one that is seen.
    void ShowBeginning() {
        const int current = form3_.List1.ListIndex;
        const auto first = std::find(seen_.begin(), seen_.end(), true);
        if (current >= 0 && form3_.List1.Seen(current)) {
            form3_.List1.TopIndex = current;
        } else if (first != seen_.end()) {
            form3_.List1.TopIndex = static_cast<int>(first - seen_.begin());
        }
    }

    void Look(int first, int count) {
        for (int row = first; row < first + count; ++row) {
            const bool seen = form3_.List1.Seen(row);
            const bool before = seen_[static_cast<size_t>(row)];
            count_ += static_cast<int>(seen) - static_cast<int>(before);
            seen_[static_cast<size_t>(row)] = seen;
        }
    }

    void ShowCount() {
        const bool filtered = !form3_.Filter.Content().empty();
        form3_.SeenCount.Caption =
            filtered ? u"（" + text::FromUtf8(std::to_string(count_)) + u"枚を表示）" : Text();
        form3_.SeenCount.Visible = filtered;
    }

    model::Form3& form3_;
    std::deque<bool> seen_;
    std::ptrdiff_t count_ = 0;
    bool following_ = false;
};

}  // namespace

void AttachFilter(Application& app) {
    model::Form3& form3 = app.windows.form3;
    const auto rows = std::make_shared<FilteredRows>(form3);
    rows->Follow();
    form3.Filter.Change = [&app, rows] {
        rows->Follow();
        if (SelectedSlides(app).empty()) {
            DisableSlideButtons(app);
            ClearPreview(app);
        } else {
            FollowSelection(app);
        }
    };
    form3.Filter.KeyDown = [&form3](int key) {
        if (key == model::kKeyEscape) {
            form3.Filter.Enter({});
        }
    };
}

}  // namespace authoring
