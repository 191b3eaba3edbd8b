#include "macro/macro.h"

namespace macro {

void RunTextMacro(Application&) {}
void ResetTextSettings(Application&) {}

void ClearMacroObjects(Application& app) {
    model::Form1& form1 = app.windows.form1;
    model::Slidescreen& slidescreen = app.windows.slidescreen;
    for (model::Button* button :
         {&form1.Command8, &form1.Command9, &form1.menu1, &form1.menu2, &form1.menu3, &form1.menu4,
          &form1.menu5, &slidescreen.Command1, &slidescreen.Command2, &slidescreen.menu1,
          &slidescreen.menu2, &slidescreen.menu3, &slidescreen.menu4, &slidescreen.menu5}) {
        button->Visible = false;
    }
    app.state.CutoutJump.fill(0);
    app.state.CutoutAction.fill({});
    for (auto* slots : {&form1.Picture2, &slidescreen.Picture1}) {
        for (auto& slot : *slots) {
            slot->Visible = false;
            if (slot->Picture()) {
                slot->SetPicture(nullptr);
            }
        }
    }
}

}  // namespace macro
