#include "model/windows.h"

#include <algorithm>

#include "model/windows/background_sound.h"
#include "model/windows/batch_conversion.h"
#include "model/windows/cd_program.h"
#include "model/windows/control_box.h"
#include "model/windows/declared_windows.h"
#include "model/windows/file_search.h"
#include "model/windows/link_list.h"
#include "model/windows/linked_folder.h"
#include "model/windows/linked_sound.h"
#include "model/windows/main_window.h"
#include "model/windows/picture_holder.h"
#include "model/windows/recording.h"
#include "model/windows/relink_preview.h"
#include "model/windows/slide_list.h"
#include "model/windows/slide_screen.h"
#include "model/windows/sound_list.h"
#include "model/windows/text_display.h"
#include "model/windows/video_window.h"

namespace model {

namespace {

/// Twips: 80 × 28 pixels, no higher than a line of a slide's text, so that menus stack.
void SizeMacroButton(Button& button) {
    button.Width = 1200;
    button.Height = 420;
}

}  // namespace

struct Windows::Made {
    Form1 form1;
    Form2 form2;
    Form3 form3;
    Form4 form4;
    Form5 form5;
    Form6 form6;
    Form7 form7;
    Form8 form8;
    Form9 form9;
    Form10 form10;
    Form11 form11;
    Form12 form12;
    Form13 form13;
    Form14 form14;
    Form15 form15;
    Form16 form16;
    Form17 form17;
    Form18 form18;
    Form19 form19;
    Form20 form20;
    Form21 form21;
    Form22 form22;
    Form23 form23;
    Form24 form24;
    RelinkPreview relinkPreview;
    Slidescreen slidescreen;
    Slidescreen2 slidescreen2;
};

Form1::Form1() : Window("Form1", Text(kFirstCaption)) {
    Width = 12600;  // a preview of 800 × 450 pixels, the screens' own proportions
    Height = 8800;
    for (Button* button : {&Command8, &Command9, &menu1, &menu2, &menu3, &menu4, &menu5}) {
        button->Visible = false;
        SizeMacroButton(*button);
    }
    for (auto& slot : Picture2) {
        slot->Visible = false;
    }
    Picture3.Visible = false;
    Label1.Visible = false;
    mnuNEW.Shortcut = u"Ctrl+N";
    mnuOPEN.Shortcut = u"Ctrl+O";
    mnuSAVE.Shortcut = u"Ctrl+S";
    nmuEND.Shortcut = u"Ctrl+Q";
    mnuFULL.Shortcut = u"F5";
    // Never both enabled.
    mnuSTART.Shortcut = u"Space";
    mnuPAUSE.Shortcut = u"Space";
    mnuPREVIOUS.Shortcut = u"Left";
    mnuNEXT.Shortcut = u"Right";
}

Slidescreen::Slidescreen() : Window("Slidescreen", u"パラピコ") {
    for (Button* button : {&Command1, &Command2, &menu1, &menu2, &menu3, &menu4, &menu5}) {
        SizeMacroButton(*button);
    }
}

std::array<Window*, 27> Windows::All() {
    return {&form1,  &form2,  &form3,  &form4,         &form5,       &form6,       &form7,
            &form8,  &form9,  &form10, &form11,        &form12,      &form13,      &form14,
            &form15, &form16, &form17, &form18,        &form19,      &form20,      &form21,
            &form22, &form23, &form24, &relinkPreview, &slidescreen, &slidescreen2};
}

Windows::Windows()
    : made_(std::make_unique<Made>()),
      form1(made_->form1),
      form2(made_->form2),
      form3(made_->form3),
      form4(made_->form4),
      form5(made_->form5),
      form6(made_->form6),
      form7(made_->form7),
      form8(made_->form8),
      form9(made_->form9),
      form10(made_->form10),
      form11(made_->form11),
      form12(made_->form12),
      form13(made_->form13),
      form14(made_->form14),
      form15(made_->form15),
      form16(made_->form16),
      form17(made_->form17),
      form18(made_->form18),
      form19(made_->form19),
      form20(made_->form20),
      form21(made_->form21),
      form22(made_->form22),
      form23(made_->form23),
      form24(made_->form24),
      relinkPreview(made_->relinkPreview),
      slidescreen(made_->slidescreen),
      slidescreen2(made_->slidescreen2) {}

Windows::~Windows() = default;

void Windows::SetPointer(MousePointerShape shape) {
    for (Window* window : {static_cast<Window*>(&form1), static_cast<Window*>(&slidescreen),
                           static_cast<Window*>(&slidescreen2)}) {
        window->MousePointer = shape;
    }
}

int Windows::Pointer() const {
    return form1.MousePointer;
}

int Windows::ShowCursor(bool show) {
    const int count = form1.CursorCount + (show ? 1 : -1);
    for (Window* window : {static_cast<Window*>(&form1), static_cast<Window*>(&slidescreen),
                           static_cast<Window*>(&slidescreen2), static_cast<Window*>(&form24)}) {
        window->CursorCount = count;
    }
    return count;
}

void Windows::ForceCursor(bool seen) {
    while ((form1.CursorCount >= 0) != seen) {
        ShowCursor(seen);
    }
}

Window* Windows::Find(std::string_view name) {
    const auto lower = [](std::string_view text) {
        std::string result(text);
        for (char& c : result) {
            c = c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c;
        }
        return result;
    };
    for (Window* window : All()) {
        if (lower(window->Name()) == lower(name)) {
            return window;
        }
    }
    return nullptr;
}

}  // namespace model
