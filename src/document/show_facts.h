// What a list says of a show beside its name, without opening it.
#pragma once

#include "text/text.h"

namespace document {

struct ShowFacts {
    bool accepted = false;  // a show document that can be opened; all else is 0 where it is not
    int pictures = 0;
    int films = 0;
    double intervalMs = 0;
    Text first;  // path of the first slide as it is written; empty: none
};

/// Reads the text of a show document and accepts what ReadShowDocument does.
ShowFacts FactsOfShow(Text content);

}  // namespace document
