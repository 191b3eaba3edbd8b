// Boxes that ask the user and wait.
#pragma once

#include <optional>
#include <vector>

#include "text/text.h"

namespace platform {

/// Flags of a message box, added up: kind of buttons plus icon.
enum MessageFlags : int {
    kPlain = 0,
    kYesNo = 4,
    kStop = 16,
    kQuestion = 32,
    kExclamation = 48,
    kInformation = 64,
    kYesNoQuestion = 36,
};

enum class Answer { Ok, Cancel, Yes, No };

class Dialogs {
public:
    virtual ~Dialogs() = default;

    /// Shows the text (lines parted by CR LF) and waits for a button. Closing a yes/no box by its
    /// frame answers No. Handlers of timers may run meanwhile.
    virtual Answer Message(TextView text, int flags, TextView title) = 0;

    /// One line of input. Nullopt on cancel.
    virtual std::optional<Text> Input(TextView prompt, TextView title, TextView initial) = 0;

    struct FileRequest {
        bool save = false;
        Text title;
        Text filter;   // "caption|pattern|caption|pattern"
        Text initial;  // name or pattern shown at first
        /// Folder shown at first; empty, or one that is gone: that of `initial`, else that of the
        /// last file chosen.
        Text folder;
    };
    /// Full path chosen; nullopt on cancel. Does not ask before replacing unless save.
    virtual std::optional<Text> ChooseFile(const FileRequest& request) = 0;
    /// Full paths of one or several files to open, in the order of the dialog; none on cancel.
    virtual std::vector<Text> ChooseFiles(const FileRequest& request) = 0;
    /// Full path of a folder; nullopt on cancel. Filter and initial name do not count.
    virtual std::optional<Text> ChooseFolder(const FileRequest& request) = 0;
};

}  // namespace platform
