// What a window has found out of files, so that it need not ask again at every look.
#pragma once

#include <deque>
#include <unordered_map>
#include <vector>

#include "text/text.h"

namespace model {

struct KnownFile {
    bool there = false;     // as far as it is known
    bool fresh = false;     // nothing has happened since that could have changed it
    bool asked = false;     // an answer is on its way
    std::vector<int> rows;  // that wait for it, as they were numbered then
};

/// By full path.
struct KnownFiles {
    std::unordered_map<Text, KnownFile> files;
    std::deque<Text> order;  // the oldest first
};

}  // namespace model
