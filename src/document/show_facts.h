// What a list says of a show beside its name, without opening it.
#pragma once

#include "text/text.h"

namespace document {

struct ShowFacts {
    bool accepted = false;  // begins as a show document does, down to its last slide
    int pictures = 0;
    int films = 0;
    double intervalMs = 0;
    Text first;  // path of the first slide as it is written; empty: none
};

/// Reads the text of a show document as far as its slides go.
ShowFacts FactsOfShow(Text content);

}  // namespace document
