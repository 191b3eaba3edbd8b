// What the windows share in which a person builds a list of files: slides, shows, sounds.
#pragma once

#include <optional>
#include <vector>

#include "document/row_edits.h"
#include "model/application.h"
#include "model/controls.h"

namespace authoring {

/// One of these windows. It names what belongs to the application, and can be kept as long as that.
struct ListWindow {
    Application& app;
    model::Window& window;
    document::EditedList list;
    const int16_t& limit;     // rows that the list can hold
    int16_t* dirty;           // set with each change; null where nothing asks for it
    int16_t& searching;       // 1 while a search or other long work runs; who clears it stops it
    int16_t& full;            // 1 = adding found the list full
    TextView fullTitle;       // of the box that says so
    model::CheckBox& insert;  // what is added comes in front of the selected row
    /// While work runs `doing` is seen, and `stop` is called 中止. `stopCaption` is its name else;
    /// a button without one is seen during work only.
    model::Label& doing;
    model::Button& stop;
    TextView stopCaption;
    bool (*takes)(TextView path);  // of the kinds that a drop and the clipboard bring
    model::ListRow (*rowOf)(Text path);
    void (*follow)(Application& app);      // buttons and preview become those of the selection
    void (*deselected)(Application& app);  // nothing is selected any more
};

/// Rows that are selected and seen, from the top.
std::vector<int> SelectedRows(const model::ListBox& list);

/// The one row of these where there is exactly one.
std::optional<int> OnlySelectedRow(const model::ListBox& list);

/// The same; otherwise a warning under that title says that one has to be chosen.
std::optional<int> AskForOneRow(Application& app, const model::ListBox& list, TextView title);

/// True when a search or other work of the list runs, which then ends: whoever was pressed does
/// nothing else. The first line of most buttons and menu entries of these windows.
bool StoppedWork(const ListWindow& window);

/// The rows are others from now on.
void NoteChange(const ListWindow& window);

/// Words that pass after a while; the same ones once more are news, too.
void SayDone(model::Label& notice, Text words);

}  // namespace authoring
