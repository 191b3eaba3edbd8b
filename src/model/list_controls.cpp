#include "model/list_controls.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "model/window.h"
#include "text/paths.h"

namespace model {

namespace {

/// Value first + i becomes what value from[i] is now.
template <class T>
void Permute(std::deque<T>& values, int first, const std::vector<int>& from) {
    std::vector<T> moved;
    moved.reserve(from.size());
    for (const int row : from) {
        moved.push_back(std::move(values[static_cast<size_t>(row)]));
    }
    std::move(moved.begin(), moved.end(), values.begin() + first);
}

}  // namespace

ListBox::ListBox(Window* window, std::string name, int multiSelect)
    : ListBox(window, ControlKind::ListBox, std::move(name), multiSelect) {}

ListBox::ListBox(Window* window, ControlKind kind, std::string name, int multiSelect)
    : VisibleControl(window, kind, std::move(name)),
      MultiSelect(*this, "MultiSelect", multiSelect) {}

const Text& ListBox::List(int row) const {
    static const Text none;
    return row >= 0 && row < ListCount() ? rows_[static_cast<size_t>(row)] : none;
}

void ListBox::AddItem(Text row) {
    AddItem(std::move(row), ListCount());
}

void ListBox::AddItem(Text row, int before) {
    before = std::clamp(before, 0, ListCount());
    rows_.insert(rows_.begin() + before, std::move(row));
    selected_.insert(selected_.begin() + before, false);
    if (!pictures_.empty()) {
        pictures_.insert(pictures_.begin() + before, nullptr);
    }
    AnnounceRows({RowChange::Inserted, before});
}

void ListBox::RemoveItem(int row) {
    if (row >= 0 && row < ListCount()) {
        RemoveRows(row, 1);
    }
}

void ListBox::InsertRows(int before, std::vector<Text> rows) {
    if (rows.empty()) {
        return;
    }
    before = std::clamp(before, 0, ListCount());
    rows_.insert(rows_.begin() + before, std::make_move_iterator(rows.begin()),
                 std::make_move_iterator(rows.end()));
    selected_.insert(selected_.begin() + before, rows.size(), false);
    if (!pictures_.empty()) {
        pictures_.insert(pictures_.begin() + before, rows.size(), nullptr);
    }
    AnnounceRows({RowChange::Inserted, before, static_cast<int>(rows.size())});
}

std::vector<Text> ListBox::RemoveRows(int first, int count) {
    const auto begin = rows_.begin() + first;
    std::vector<Text> removed(std::make_move_iterator(begin),
                              std::make_move_iterator(begin + count));
    if (count == 0) {
        return removed;
    }
    rows_.erase(begin, begin + count);
    selected_.erase(selected_.begin() + first, selected_.begin() + first + count);
    if (!pictures_.empty()) {
        pictures_.erase(pictures_.begin() + first, pictures_.begin() + first + count);
    }
    AnnounceRows({RowChange::Removed, first, count});
    if (ListIndex >= ListCount()) {
        ListIndex = ListCount() - 1;
    }
    return removed;
}

void ListBox::Reorder(int first, const std::vector<int>& from) {
    if (from.empty()) {
        return;
    }
    Permute(rows_, first, from);
    Permute(selected_, first, from);
    if (!pictures_.empty()) {
        Permute(pictures_, first, from);
    }
    AnnounceRows({RowChange::Replaced, first, static_cast<int>(from.size())});
}

void ListBox::SetRow(int row, Text value) {
    if (row >= 0 && row < ListCount()) {
        rows_[static_cast<size_t>(row)] = std::move(value);
        AnnounceRows({RowChange::Replaced, row});
    }
}

void ListBox::SetRowPicture(int row, platform::BitmapPtr picture) {
    if (row >= 0 && row < ListCount()) {
        pictures_.resize(rows_.size());
        pictures_[static_cast<size_t>(row)] = std::move(picture);
        AnnounceRows({RowChange::Replaced, row});
    }
}

void ListBox::FacesChanged(int first, int count) {
    if (count > 0) {
        AnnounceRows({RowChange::Replaced, first, count});
    }
}

void ListBox::ShowOnly(std::function<bool(const Text& row)> seen) {
    seen_ = std::move(seen);
    AnnounceRows({RowChange::Cleared, 0});
}

platform::BitmapPtr ListBox::RowPicture(int row) const {
    const bool there = row >= 0 && row < static_cast<int>(pictures_.size());
    return there ? pictures_[static_cast<size_t>(row)] : nullptr;
}

void ListBox::Clear() {
    rows_.clear();
    selected_.clear();
    pictures_.clear();
    AnnounceRows({RowChange::Cleared, 0});
    ListIndex = -1;
    TopIndex = 0;
}

bool ListBox::Selected(int row) const {
    return row >= 0 && row < ListCount() && selected_[static_cast<size_t>(row)];
}

void ListBox::SelectRows(int first, int count, bool on) {
    const auto begin = selected_.begin() + std::clamp(first, 0, ListCount());
    const auto end = selected_.begin() + std::clamp(first + count, 0, ListCount());
    if (begin < end && std::find(begin, end, !on) != end) {
        std::fill(begin, end, on);
        AnnounceRows({RowChange::Replaced, static_cast<int>(begin - selected_.begin()),
                      static_cast<int>(end - begin)});
    }
}

int ListBox::SelCount() const {
    return static_cast<int>(std::count(selected_.begin(), selected_.end(), true));
}

std::vector<int> ListBox::SelectedRows() const {
    std::vector<int> rows;
    for (int row = 0; row < ListCount(); ++row) {
        if (Selected(row)) {
            rows.push_back(row);
        }
    }
    return rows;
}

bool ListBox::Choose(const std::vector<int>& rows) {
    if (!Reachable()) {
        return false;
    }
    std::vector<bool> wanted(rows_.size(), false);
    int last = -1;
    for (const int row : rows) {
        if (row >= 0 && row < ListCount() && Seen(row)) {
            if (MultiSelect == kSelectOne && last >= 0) {
                wanted[static_cast<size_t>(last)] = false;
            }
            wanted[static_cast<size_t>(row)] = true;
            last = row;
        }
    }
    for (int row = 0; row < ListCount();) {
        const int first = row;
        const bool on = wanted[static_cast<size_t>(row)];
        while (row < ListCount() && wanted[static_cast<size_t>(row)] == on) {
            ++row;
        }
        SelectRows(first, row - first, on);
    }
    if (last >= 0) {
        ListIndex = last;
        OnChosen();
    }
    return true;
}

bool ListBox::DragTo(int before) {
    return Reachable() && SelCount() > 0 && RowsDragged(std::clamp(before, 0, ListCount()));
}

ComboBox::ComboBox(Window* window, std::string name)
    : ListBox(window, ControlKind::ComboBox, std::move(name), kSelectOne) {}

FileList::FileList(Window* window, std::string name, int multiSelect)
    : ListBox(window, ControlKind::FileList, std::move(name), multiSelect) {
    Listen(this);
}

void FileList::Refresh() {
    Clear();
    if (!folders || Path().empty()) {
        return;
    }
    for (Text& name : folders->Files(Path(), Pattern())) {
        AddItem(std::move(name));
    }
}

bool FileList::OnKey(int code) {
    return code == kKeyEnter ? Press() : ListBox::OnKey(code);
}

bool FileList::ShowPictures(bool on) {
    if (!Reachable()) {
        return false;
    }
    Pictures = on;
    PicturesChanged();
    return true;
}

void FileList::PropertyChanged(Control&, PropertyBase& property) {
    if (&property == &Path || &property == &Pattern) {
        Refresh();
    }
}

FolderList::FolderList(Window* window, std::string name)
    : ListBox(window, ControlKind::FolderList, std::move(name), kSelectOne) {
    Listen(this);
}

bool FolderList::Open(TextView path) {
    if (!Reachable() || (folders && !folders->IsFolder(path))) {
        return false;
    }
    Path = text::WithoutSeparator(path);
    return true;
}

void FolderList::Refresh() {
    const Text current = List(ListIndex);
    Clear();
    if (!folders || Path().empty()) {
        return;
    }
    const Text parent = text::WithSeparator(Path());
    for (const Text& name : folders->Subfolders(Path())) {
        AddItem(parent + name);
        if (!current.empty() && parent + name == current) {
            ListIndex = ListCount() - 1;
        }
    }
}

bool FolderList::OnKey(int code) {
    if (code != kKeyF5) {
        return ListBox::OnKey(code);
    }
    Refresh();
    return true;
}

void FolderList::OnChosen() {
    Open(Text(List(ListIndex)));
}

void FolderList::PropertyChanged(Control&, PropertyBase& property) {
    if (&property == &Path) {
        Refresh();
        Change();
    }
}

namespace {

bool IsDisk(const platform::Place& place) {
    return place.kind >= platform::Place::Disk;
}

bool IsHabit(const platform::Place& place) {
    return place.kind >= platform::Place::Document && place.kind < platform::Place::Disk;
}

}  // namespace

DriveList::DriveList(Window* window, std::string name)
    : ListBox(window, ControlKind::DriveList, std::move(name), kSelectOne) {
    Listen(this);
}

bool DriveList::Open(TextView path) {
    if (!Reachable() || (folders && !folders->IsFolder(path))) {
        return false;
    }
    const Text place = text::WithoutSeparator(path);
    if (Drive() == place) {
        Change();  // the browser went elsewhere, and comes back to the place
    }
    Drive = place;
    return true;
}

void DriveList::Refresh(const std::vector<platform::Place>& own) {
    Clear();
    places_.clear();
    if (folders) {
        places_ = folders->Places();
    }
    for (const platform::Place& place : own) {
        const bool known = std::any_of(places_.begin(), places_.end(),
                                       [&](const auto& one) { return one.path == place.path; });
        if (!known) {
            places_.insert(std::find_if(places_.begin(), places_.end(), IsDisk), place);
        }
    }
    for (const platform::Place& place : places_) {
        AddItem(place.path);
    }
    ListIndex = RowOf(Drive());
}

int DriveList::RowOf(TextView folder) const {
    const Text inside = text::WithSeparator(folder);
    int best = -1;
    for (int row = 0; row < static_cast<int>(places_.size()); ++row) {
        const platform::Place& place = places_[static_cast<size_t>(row)];
        const Text placeInside = text::WithSeparator(place.path);
        const bool holds = IsHabit(place) ? inside == placeInside : inside.starts_with(placeInside);
        if (holds && (best < 0 || place.path.size() > List(best).size())) {
            best = row;
        }
    }
    return best;
}

void DriveList::OnChosen() {
    Open(Text(List(ListIndex)));
}

void DriveList::PropertyChanged(Control&, PropertyBase& property) {
    if (&property == &Drive) {
        if (const int row = RowOf(Drive()); row >= 0) {
            ListIndex = row;
        }
        Change();
    }
}

}  // namespace model
