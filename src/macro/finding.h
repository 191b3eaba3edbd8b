// What a check of macros is given, and what it finds.
#pragma once

#include "platform/imaging.h"
#include "platform/system.h"
#include "text/text.h"

namespace macro {

struct Finding {
    int line = 0, column = 0;  // from 1; a column is a character
    Text wrong;                // what is wrong
    Text effect;               // what will happen
    Text remedy;               // what to do about it
    const char* kind = "";     // name of the kind of mistake, for programs
};

/// The slide that the macro belongs to.
struct CheckedSlide {
    Text folder;                           // in front of names without one
    int index = 0, count = 0;              // its place, from 1, among how many; 0, 0: not known
    platform::Size screen{1920, 1080};     // pixels: where texts have to stay
    Text document = {};                    // beside which programs are looked for
    platform::System* programs = nullptr;  // finds them; null: they are not looked for
};

}  // namespace macro
