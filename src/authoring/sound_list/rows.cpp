#include "authoring/sound_list/rows.h"

#include "authoring/shared/list_clipboard.h"
#include "authoring/shared/list_filter.h"
#include "authoring/shared/list_history.h"
#include "authoring/shared/list_rows.h"
#include "authoring/shared/list_search.h"
#include "authoring/shared/list_sorting.h"
#include "authoring/sound_list/sounds.h"
#include "model/windows/file_search.h"
#include "model/windows/sound_list.h"

namespace authoring {

namespace {

constexpr TextView kDropFullTitle = u"WAV,MID,MP3リスト";
constexpr int kKeyInsert = 45, kKeyDelete = 46;

/// Folders are not entered, and are no pieces either, whatever their names end in.
void AddDropped(const ListWindow& sounds, std::vector<Text> paths) {
    std::erase_if(paths, [&](const Text& path) {
        return sounds.takes(path) && sounds.app.platform.folders.IsFolder(path);
    });
    AddDroppedFiles(sounds, paths, kDropFullTitle);
}

void Command4_Click(const ListWindow& sounds) {
    if (!StoppedWork(sounds) && sounds.list.rows.ListCount() > 0 &&
        AskToClear(sounds, u"ＷＡＶ、ＭＩＤ、ＭＰ３リストをすべて消去しますか ?")) {
        document::ClearRows(sounds.list);
        FollowSoundSelection(sounds.app);
    }
}

void Command5_Click(const ListWindow& sounds) {
    if (!StoppedWork(sounds)) {
        RemoveSelectedRows(sounds);
        FollowSoundSelection(sounds.app);
    }
}

void Move(const ListWindow& sounds, int direction, TextView title) {
    if (!StoppedWork(sounds)) {
        MoveSelectedRow(sounds, direction, title);
    }
}

void GoBack(const ListWindow& sounds, bool (*back)(const document::EditedList& list)) {
    if (!StoppedWork(sounds) && back(sounds.list)) {
        FollowSoundSelection(sounds.app);
    }
}

void AttachAdding(const ListWindow& sounds) {
    model::Form10& form10 = sounds.app.windows.form10;
    form10.File1.Click = [sounds, &form10] { AddClickedFile(sounds, form10.File1); };
    form10.Command3.Click = [sounds, &form10] { AddFolderFiles(sounds, ShownFiles(form10.File1)); };
    form10.List1.FilesDropped = [sounds](const std::vector<Text>& paths) {
        AddDropped(sounds, paths);
    };
    AttachTreeSearch({.list = sounds,
                      .dir = form10.Dir1,
                      .files = form10.File1,
                      .pattern = kSoundPatterns,
                      .dialog = sounds.app.windows.form19,
                      .searched = form10.Searched,
                      .found = form10.Found,
                      .unit = u"曲"});
}

void AttachChanging(const ListWindow& sounds) {
    model::Form10& form10 = sounds.app.windows.form10;
    form10.Command4.Click = [sounds] { Command4_Click(sounds); };
    form10.Command5.Click = [sounds] { Command5_Click(sounds); };
    form10.Command11.Click = [sounds] { Move(sounds, -1, u"↑移動不可"); };
    form10.Command12.Click = [sounds] { Move(sounds, 1, u"↓移動不可"); };
    form10.List1.Click = [&app = sounds.app] { FollowSoundSelection(app); };
    form10.List1.RowsDragged = [sounds](int before) { MoveDraggedRows(sounds, before); };
    form10.List1.KeyDown = [&form10](int code) {
        if (code == kKeyInsert) {
            form10.Check2.Press();
        } else if (code == kKeyDelete) {
            form10.Command5.Press();
        }
    };
    AttachHistory(
        {form10.history, form10.Undo, form10.Redo, form10.mnuUNDO, form10.mnuREDO},
        [sounds] { GoBack(sounds, document::Undo); }, [sounds] { GoBack(sounds, document::Redo); });
    // As the button, which is disabled while a piece is previewed.
    AttachClipboardRows(
        sounds, {form10.mnuCUT, form10.mnuCOPY, form10.mnuPASTE, form10.mnuREMOVE, form10.mnuALL},
        [&form10] { form10.Command5.Press(); });
    AttachSorting(sounds, {form10.mnuSORTNAME, form10.mnuSORTDATE, form10.mnuSORTFOLDER,
                           form10.mnuSHUFFLE, form10.mnuREVERSE, nullptr});
    AttachFilter(sounds, form10.Filter, form10.SeenCount, u"曲");
}

}  // namespace

void AttachSoundRows(model::Application& app) {
    const ListWindow sounds = Sounds(app);
    AttachAdding(sounds);
    AttachChanging(sounds);
}

}  // namespace authoring
