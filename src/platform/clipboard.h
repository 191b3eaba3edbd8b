// The desktop's clipboard. Whatever is put there replaces what it held.
#pragma once

#include <vector>

#include "platform/canvas.h"
#include "text/text.h"

namespace platform {

class Clipboard {
public:
    virtual ~Clipboard() = default;

    virtual void PutText(TextView text) = 0;
    virtual void PutPicture(const BitmapPtr& picture) = 0;
    /// Full paths: file managers take the files, text fields a line for each.
    virtual void PutFiles(const std::vector<Text>& paths) = 0;

    /// Empty where it holds no text.
    virtual Text GetText() = 0;
    /// Files of this machine that were copied somewhere; empty where it holds none.
    virtual std::vector<Text> GetFiles() = 0;
};

}  // namespace platform
