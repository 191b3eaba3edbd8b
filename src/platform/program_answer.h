// The question before a show starts a program, and what the person says to it.
#pragma once

#include <vector>

#include "text/text.h"

namespace platform {

struct ProgramQuestion {
    Text program;  // full native path of what would be started
    std::vector<Text> arguments;
    bool manyAsked =
        false;  // three questions in a row stood before: NoMore and EndShow are offered
};

enum class ProgramAnswer {
    No,       // not this time
    Yes,      // this time
    ForShow,  // this program with these arguments, until the show is over
    Always,   // this program with these arguments, whenever this document asks
    NoMore,   // nothing more that would have to be asked, until the show is over
    EndShow,  // the same, and the show ends
};

}  // namespace platform
