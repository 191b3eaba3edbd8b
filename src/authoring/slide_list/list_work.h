// What the commands on the rows of Form3 share: how they are reached, and work that takes long.
#pragma once

#include <functional>
#include <optional>
#include <unordered_map>
#include <vector>

#include "authoring/shared/long_work.h"
#include "model/application.h"
#include "model/menu.h"

namespace authoring {

/// The entry carries the command out, unless it stops a search or a ListWork. `keys` as
/// MenuEntry::Shortcut.
void AttachCommand(Application& app, model::MenuEntry& entry, TextView keys,
                   std::function<void(Application&)> command);

/// Long work of Form3 that is seen and stopped as a search is: Command8 says so, Label1 says what
/// is done and how far it is, and the window's commands stop it.
class ListWork {
public:
    ListWork(Application& app, Text doing);
    ~ListWork();
    ListWork(const ListWork&) = delete;
    ListWork& operator=(const ListWork&) = delete;

    /// As LongWork.
    bool GoOn(int64_t done, int64_t whole);
    bool Stopped() const { return work_.Stopped(); }
    platform::Report Report() { return work_.Report(); }

private:
    Application& app_;
    Text doing_;
    double shownAt_ = -1e9;  // milliseconds
    LongWork work_;
};

using FactsOfFiles = std::unordered_map<Text, platform::FileFacts>;

/// Asks about the files and waits for the answers as a part of the work. Nothing when it was
/// stopped.
std::optional<FactsOfFiles> AskFacts(Application& app, ListWork& work, std::vector<Text> paths,
                                     platform::FileInquiry::What what);

}  // namespace authoring
