// Lists of rows: list and combo boxes, and the three lists of a file browser.
#pragma once

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "model/control.h"
#include "platform/canvas.h"
#include "platform/folders.h"
#include "platform/thumbnails.h"

namespace model {

/// Values of ListBox::MultiSelect.
constexpr int kSelectOne = 0, kSelectMany = 2;  // many: with Ctrl and Shift, as in file managers

/// Marks beside a row.
enum RowMark : unsigned {
    kMarkMissing = 1,  // its file is not there
    kMarkText = 2,     // a linked text is
    kMarkSound = 4,    // a linked sound is
    kMarkFilm = 8,
    kMarkRefused = 16  // its file is there but not what it should be
};

/// What is seen of a row in place of its text.
struct RowFace {
    Text file;    // of which a thumbnail is shown; empty: none
    Text title;   // stands out
    Text detail;  // second line
    Text aside;   // at the far edge; may be empty
    unsigned marks = 0;
};

/// Rows from 0. Every change is announced, one of several rows that follow each other at once.
class ListBox : public VisibleControl {
public:
    ListBox(Window* window, std::string name, int multiSelect = kSelectOne);
    Property<int> ListIndex{*this, "ListIndex", -1};  // current row, -1 none
    Property<int> TopIndex{*this, "TopIndex"};
    Property<int> MultiSelect;
    /// Room for a picture before the text of each row, in pixels; 0: none.
    Property<int> PictureWidth{*this, "PictureWidth"};
    Property<int> PictureHeight{*this, "PictureHeight"};
    /// Rows are shown by what it answers, asked again and again for those that are in sight and for
    /// no others, so it must be quick. Without it they are shown by their text.
    std::function<RowFace(int row)> face;
    /// For the faces; outlives the window's use. Without it they have no thumbnails.
    platform::Thumbnails* thumbnails = nullptr;
    /// Faces stand as pictures beside each other, not as lines below each other.
    Property<bool> AsGrid{*this, "AsGrid", false};
    /// A person dragged the selected rows in front of that row; ListCount is the end.
    Event<int> RowsDragged;

    int ListCount() const { return static_cast<int>(rows_.size()); }
    /// Empty text for a row that is not there.
    const Text& List(int row) const;
    const std::deque<Text>& Rows() const { return rows_; }
    void AddItem(Text row);
    void AddItem(Text row, int before);
    /// Nothing happens for a row that is not there.
    void RemoveItem(int row);
    void SetRow(int row, Text value);
    /// The picture stands in the middle of the room and is cut off where it is larger. Null: none.
    void SetRowPicture(int row, platform::BitmapPtr picture);
    /// `face` answers something else for these rows from now on.
    void FacesChanged(int first, int count);
    /// Only rows for whose text it answers true are seen, and only these can a person choose or
    /// drag. Nothing else changes: numbers, current row and selection stay. Empty: all rows.
    void ShowOnly(std::function<bool(const Text& row)> seen);
    /// For a row that is there.
    bool Seen(int row) const { return !seen_ || seen_(List(row)); }
    /// Null for a row without a picture or that is not there.
    platform::BitmapPtr RowPicture(int row) const;
    /// In front of row `before`, none of them selected. ListIndex stays the number that it is.
    void InsertRows(int before, std::vector<Text> rows);
    /// Takes out `count` rows from `first` on, which are all there, and answers them.
    std::vector<Text> RemoveRows(int first, int count);
    /// Row first + i becomes what row from[i] is now, its selection and picture with it. `from`
    /// holds each of the rows from `first` on once.
    void Reorder(int first, const std::vector<int>& from);
    void Clear();
    bool Selected(int row) const;
    void Select(int row, bool on) { SelectRows(row, 1, on); }
    /// Those of the rows that are there.
    void SelectRows(int first, int count, bool on);
    int SelCount() const;
    std::vector<int> SelectedRows() const;

    /// A person selects exactly these rows (the last one only where one can be selected); the last
    /// becomes the current one. Rows that are not there or not seen are left out. False unless
    /// Reachable.
    bool Choose(const std::vector<int>& rows);
    /// A person drags the selected rows. True when RowsDragged was heard.
    bool DragTo(int before);

protected:
    ListBox(Window* window, ControlKind kind, std::string name, int multiSelect);
    /// What a press on the chosen row does: a click.
    virtual void OnChosen() { Click(); }

private:
    std::deque<Text> rows_;
    std::deque<bool> selected_;
    std::deque<platform::BitmapPtr> pictures_;  // empty until a row has one
    std::function<bool(const Text& row)> seen_;
};

/// A list that is folded up to its current row.
class ComboBox : public ListBox {
public:
    ComboBox(Window* window, std::string name);
};

/// Bare names of the files of a folder, in natural order.
class FileList : public ListBox, private Listener {
public:
    FileList(Window* window, std::string name, int multiSelect = kSelectOne);
    Property<Text> Path{*this, "Path"};
    Property<Text> Pattern{*this, "Pattern", u"*.*"};  // "*.jpg;*.png"; "*.*" is every file
    Property<bool> Pictures{*this, "Pictures"};        // rows are shown with thumbnails
    Event<> PicturesChanged;                           // by a person
    /// Given at start-up; outlives the window's use. Without it the list stays empty.
    platform::Folders* folders = nullptr;

    /// Reads the folder anew.
    void Refresh();
    /// A person chooses between thumbnails and names alone. False unless Reachable.
    bool ShowPictures(bool on);

protected:
    /// Enter presses the current row.
    bool OnKey(int code) override;

private:
    void PropertyChanged(Control& control, PropertyBase& property) override;
};

/// Where a browser stands among folders: Path, and its subfolders' full paths as rows.
class FolderList : public ListBox, private Listener {
public:
    FolderList(Window* window, std::string name);
    Property<Text> Path{*this, "Path"};
    Event<> Change;  // Path is another one, whoever changed it
    platform::Folders* folders = nullptr;

    /// A person opens the folder. False, and nothing happens, where there is none or unless
    /// Reachable.
    bool Open(TextView path);
    /// Reads the subfolders anew; the current one stays the current one.
    void Refresh();

protected:
    void OnChosen() override;
    /// F5 reads anew.
    bool OnKey(int code) override;

private:
    void PropertyChanged(Control& control, PropertyBase& property) override;
};

/// The places from which a browser starts: Drive is the chosen one's path. Rows are all paths.
class DriveList : public ListBox, private Listener {
public:
    DriveList(Window* window, std::string name);
    Property<Text> Drive{*this, "Drive"};
    Event<> Change;  // Drive is another one, or a person chose it once more
    platform::Folders* folders = nullptr;

    /// A person chooses a place, or the one that the path lies in. As FolderList::Open.
    bool Open(TextView path);
    /// Reads the places anew. `own` stand after the desktop's own folders and before the disks;
    /// what is a place already is left out of them.
    void Refresh(const std::vector<platform::Place>& own = {});
    const std::vector<platform::Place>& Places() const { return places_; }
    /// Row of the place that the folder is or lies in, of several the nearest; -1 for none. The
    /// folders of a person's habit count for themselves only, not for what lies in them.
    int RowOf(TextView folder) const;

protected:
    void OnChosen() override;

private:
    void PropertyChanged(Control& control, PropertyBase& property) override;

    std::vector<platform::Place> places_;
};

}  // namespace model
