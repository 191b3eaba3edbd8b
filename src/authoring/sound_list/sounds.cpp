#include "authoring/sound_list/sounds.h"

#include "document/sound_rows.h"
#include "model/windows/sound_list.h"
#include "text/paths.h"

namespace authoring {

namespace {

bool IsSound(TextView path) {
    const Text kind = text::KindOf(path);
    return kind == u"WAV" || kind == u"MID" || kind == u"MP3";
}

model::ListRow SoundRow(Text path) {
    return {std::move(path), {}};
}

}  // namespace

ListWindow Sounds(Application& app) {
    model::Form10& form10 = app.windows.form10;
    return {.app = app,
            .window = form10,
            .list = document::SoundRows(app),
            .limit = app.state.SoundListLimit,
            .dirty = nullptr,
            .searching = app.state.SoundSearchActive,
            .full = app.state.SoundSearchStop,
            .fullTitle = u"ﾊﾟﾗﾋﾟｺ",
            .insert = form10.Check2,
            .doing = form10.Label1,
            .stop = form10.Command8,
            .stopCaption = u"検索",
            .takes = IsSound,
            .rowOf = SoundRow,
            .follow = FollowSoundSelection,
            .deselected = FollowSoundSelection};
}

void FollowSoundSelection(Application& app) {
    model::Form10& form10 = app.windows.form10;
    form10.Command6.Enabled = !form10.Timer1.Enabled && !SelectedRows(form10.List1).empty();
}

}  // namespace authoring
