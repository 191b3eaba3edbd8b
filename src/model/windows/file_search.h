// Form18 and Form19: what kinds of files a search of a folder tree is to look for.
#pragma once

#include <cstddef>

#include "model/controls.h"
#include "model/window.h"

namespace model {

/// Their boxes by index, a caption each.
constexpr TextView kPictureTypes[] = {
    u"BMP", u"JPG", u"JFF", u"JTF", u"TIF", u"TGA", u"PCX", u"CAL", u"MAC", u"IMG", u"MSP", u"WPG",
    u"RAS", u"PCT", u"PCD", u"EPS", u"PSD", u"CMP", u"PNG", u"MP4", u"WMV", u"MOV", u"AVI"};
constexpr TextView kSoundTypes[] = {u"WAV", u"MID", u"MP3"};

template <size_t count>
void CaptionBoxes(ControlArray<CheckBox>& boxes, const TextView (&captions)[count]) {
    for (size_t i = 0; i < count; ++i) {
        boxes(static_cast<int>(i)).Caption = Text(captions[i]);
    }
}

struct Form18 : Window {  // pictures and films, for the slide list
    Form18() : Window("Form18", u"画像・動画ﾌｧｲﾙ検索") {
        Width = 7200;  // 480 x 350 pixels
        Height = 5250;
        CaptionBoxes(Check1, kPictureTypes);
        EnterPresses = &Command3;
        EscPresses = &Command4;
    }

    Label Label1{this, "Label1", u"選択されたフォルダ以下を検索し、ｽﾗｲﾄﾞﾘｽﾄに登録します。"};
    Frame Frame1{this, "Frame1", u"画像"};
    Frame Frame2{this, "Frame2", u"（動画）"};  // the last four
    ControlArray<CheckBox> Check1{this, "Check1", 0, 23};
    CheckBox Check2{this, "Check2", u"WINDOWSフォルダ内も検索あり"};
    Button Command1{this, "Command1", u"全て検索"};  // ticks all
    Button Command2{this, "Command2", u"クリア"};
    Button Command3{this, "Command3", u"検索開始"};
    Button Command4{this, "Command4", u"キャンセル"};
};

struct Form19 : Window {  // sounds, for the sound list
    Form19() : Window("Form19", u"音声ﾌｧｲﾙ検索") {
        Width = 6000;  // 400 x 170 pixels
        Height = 2550;
        CaptionBoxes(Check1, kSoundTypes);
        EnterPresses = &Command3;
        EscPresses = &Command4;
    }

    Label Label1{this, "Label1", u"選択されたフォルダ以下を検索し、ﾘｽﾄに登録します。"};
    ControlArray<CheckBox> Check1{this, "Check1", 0, 3};
    CheckBox Check2{this, "Check2", u"WINDOWSフォルダ内も検索あり"};
    Button Command3{this, "Command3", u"検索開始"};
    Button Command4{this, "Command4", u"キャンセル"};
};

}  // namespace model
