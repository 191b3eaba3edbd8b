#include "app/play_menu.h"

#include "model/controls.h"
#include "model/menu.h"
#include "model/windows/main_window.h"

namespace app {

namespace {

using model::Form1;

struct Row {
    model::MenuEntry Form1::*entry;
    model::Button Form1::*button;
};

constexpr Row kRows[] = {
    {&Form1::mnuSTART, &Form1::Command1},     {&Form1::mnuPAUSE, &Form1::Command2},
    {&Form1::mnuSTOP, &Form1::Command3},      {&Form1::mnuPREVIOUS, &Form1::Command5},
    {&Form1::mnuNEXT, &Form1::Command7},      {&Form1::mnuFULL, &Form1::Command4},
    {&Form1::mnuLIST, &Form1::Command6},      {&Form1::mnuSOUNDS, &Form1::Command10},
    {&Form1::mnuSCHEDULE, &Form1::Command11},
};

}  // namespace

PlayMenu::PlayMenu(Application& application) : application_(application) {
    Form1& form1 = application_.windows.form1;
    for (const Row& row : kRows) {
        model::Button& button = form1.*row.button;
        (form1.*row.entry).Click = [&button] {
            if (button.Reachable()) {
                button.Click();
            }
        };
        button.Listen(this);
        PropertyChanged(button, button.Enabled);
    }
}

PlayMenu::~PlayMenu() {
    for (const Row& row : kRows) {
        (application_.windows.form1.*row.button).Unlisten(this);
    }
}

void PlayMenu::PropertyChanged(model::Control& control, model::PropertyBase&) {
    Form1& form1 = application_.windows.form1;
    for (const Row& row : kRows) {
        model::Button& button = form1.*row.button;
        if (&button == &control) {
            (form1.*row.entry).Enabled = button.Reachable();
        }
    }
}

}  // namespace app
