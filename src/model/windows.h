// All windows of the program.
#pragma once

#include <array>
#include <string_view>

#include "model/windows/control_box.h"
#include "model/windows/declared_windows.h"
#include "model/windows/link_list.h"
#include "model/windows/linked_folder.h"
#include "model/windows/main_window.h"
#include "model/windows/picture_holder.h"
#include "model/windows/slide_list.h"
#include "model/windows/slide_screen.h"
#include "model/windows/sound_windows.h"
#include "model/windows/text_display.h"
#include "model/windows/video_window.h"

namespace model {

struct Windows {
    // Of hundreds of controls: made in one place and not in every source that has windows.
    Windows();
    ~Windows();

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
    Slidescreen slidescreen;
    Slidescreen2 slidescreen2;

    /// The mouse pointer is one for the whole program; its shape also serves as a guard.
    void SetPointer(MousePointerShape shape);
    int Pointer() const { return form1.MousePointer; }
    /// One count for the whole program: up by 1 to show the pointer, down by 1 to hide it; it is
    /// seen unless the count is below 0. Answers the new count.
    int ShowCursor(bool show);
    /// Calls ShowCursor until the pointer is seen (or unseen); not at all when it is already.
    void ForceCursor(bool seen);

    /// In declaration order.
    std::array<Window*, 26> All();
    /// By name, without case; null when there is none.
    Window* Find(std::string_view name);
};

}  // namespace model
