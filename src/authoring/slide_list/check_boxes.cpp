#include "authoring/slide_list/check_boxes.h"

#include "model/windows/slide_list.h"

namespace authoring {

namespace {

struct Box {
    model::CheckBox model::Form3::*box;
    int16_t model::ShowState::*flag;
    TextView note, title;  // of a box that is ticked; empty: none
};

constexpr Box kBoxes[] = {
    {&model::Form3::Check1, &model::ShowState::ListShowPicture, u"", u""},
    {&model::Form3::Check2, &model::ShowState::ListDblClickRecord,
     u"スライドリストをダブルクリックすると画像連動効果音が録音できます。", u"効果音録音あり"},
    {&model::Form3::Check3, &model::ShowState::ListDblClickWallpaper,
     u"スライドリストをダブルクリックすると壁紙の変更ができます。", u"壁紙変更あり"},
    {&model::Form3::Check4, &model::ShowState::ListDblClickText,
     u"スライドリストをダブルクリックすると画像連動テキストが作成できます。", u"テキスト作成あり"},
    {&model::Form3::Check5, &model::ShowState::ListDblClickStart,
     u"スライドリストをダブルクリックするとパラピコの指定画面スタートができます。", u"パラピコ"},
};

void Box_Click(Application& app, const Box& box) {
    const int value = (app.windows.form3.*box.box).Value;
    app.state.*box.flag = static_cast<int16_t>(value);
    if (value == 1 && !box.note.empty() && app.state.SlideListDirty == 1) {
        app.platform.dialogs.Message(box.note, platform::kPlain, box.title);
    }
}

}  // namespace

void ShowCheckBoxes(Application& app) {
    for (const Box& box : kBoxes) {
        (app.windows.form3.*box.box).Value = app.state.*box.flag;
    }
}

void AttachCheckBoxes(Application& app) {
    for (const Box& box : kBoxes) {
        (app.windows.form3.*box.box).Click = [&app, &box] { Box_Click(app, box); };
    }
}

}  // namespace authoring
