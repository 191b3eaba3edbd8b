// All windows of the program.
#pragma once

#include <array>
#include <memory>
#include <string_view>

#include "model/window.h"

namespace model {

// Each source includes the headers of the windows whose controls it uses.
struct Form1;
struct Form2;
struct Form3;
struct Form4;
struct Form5;
struct Form6;
struct Form7;
struct Form8;
struct Form9;
struct Form10;
struct Form11;
struct Form12;
struct Form13;
struct Form14;
struct Form15;
struct Form16;
struct Form17;
struct Form18;
struct Form19;
struct Form20;
struct Form21;
struct Form22;
struct Form23;
struct Form24;
struct RelinkPreview;
struct Slidescreen;
struct Slidescreen2;

class Windows {
    struct Made;
    std::unique_ptr<Made> made_;

public:
    Windows();
    ~Windows();

    Form1& form1;
    Form2& form2;
    Form3& form3;
    Form4& form4;
    Form5& form5;
    Form6& form6;
    Form7& form7;
    Form8& form8;
    Form9& form9;
    Form10& form10;
    Form11& form11;
    Form12& form12;
    Form13& form13;
    Form14& form14;
    Form15& form15;
    Form16& form16;
    Form17& form17;
    Form18& form18;
    Form19& form19;
    Form20& form20;
    Form21& form21;
    Form22& form22;
    Form23& form23;
    Form24& form24;
    RelinkPreview& relinkPreview;
    Slidescreen& slidescreen;
    Slidescreen2& slidescreen2;

    /// The mouse pointer is one for the whole program; its shape also serves as a guard.
    void SetPointer(MousePointerShape shape);
    int Pointer() const;
    /// One count for the whole program: up by 1 to show the pointer, down by 1 to hide it; it is
    /// seen unless the count is below 0. Answers the new count.
    int ShowCursor(bool show);
    /// Calls ShowCursor until the pointer is seen (or unseen); not at all when it is already.
    void ForceCursor(bool seen);

    /// In declaration order.
    std::array<Window*, 27> All();
    /// By name, without case; null when there is none.
    Window* Find(std::string_view name);
};

}  // namespace model
