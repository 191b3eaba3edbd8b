#include "model/windows.h"

#include <algorithm>

namespace model {

namespace {

/// Twips: 80 × 28 pixels, no higher than a line of a slide's text, so that menus stack.
void SizeMacroButton(Button& button) {
    button.Width = 1200;
    button.Height = 420;
}

}  // namespace

Form1::Form1() : Window("Form1", u"ﾊﾟﾗﾋﾟｺ Win Ver.9.10") {
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

std::array<Window*, 26> Windows::All() {
    return {&form1,  &form2,  &form3,  &form4,       &form5,       &form6,  &form7,
            &form8,  &form9,  &form10, &form11,      &form12,      &form13, &form14,
            &form15, &form16, &form17, &form18,      &form19,      &form20, &form21,
            &form22, &form23, &form24, &slidescreen, &slidescreen2};
}

Windows::Windows() = default;

Windows::~Windows() = default;

void Windows::SetPointer(MousePointerShape shape) {
    for (Window* window : {static_cast<Window*>(&form1), static_cast<Window*>(&slidescreen),
                           static_cast<Window*>(&slidescreen2)}) {
        window->MousePointer = shape;
    }
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
