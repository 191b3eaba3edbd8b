// Looks through a macro file for what its writer cannot have meant. The player itself is silent
// about all of it.
#pragma once

#include <string>
#include <vector>

#include "platform/files.h"
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
    platform::System* programs = nullptr;  // who finds them; null: nobody is asked
};

/// Findings in the order of their lines. Reads no file but asks whether named ones exist.
std::vector<Finding> CheckMacro(platform::Files& files, const CheckedSlide& slide, TextView source);

}  // namespace macro
