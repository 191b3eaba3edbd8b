// What the commands on the rows of a list window share: how they are reached, and work that takes
// long.
#pragma once

#include <functional>
#include <optional>
#include <unordered_map>
#include <vector>

#include "authoring/shared/list_window.h"
#include "authoring/shared/long_work.h"
#include "model/menu.h"

namespace authoring {

/// The entry carries the command out, unless it stops a search or a ListWork. `keys` as
/// MenuEntry::Shortcut.
void AttachCommand(const ListWindow& window, model::MenuEntry& entry, TextView keys,
                   std::function<void()> command);

/// Long work of a list that is seen and stopped as a search is: the window's `stop` says so,
/// `doing` says what is done and how far it is, and the window's commands stop it.
class ListWork {
public:
    ListWork(const ListWindow& window, Text doing);
    ~ListWork();
    ListWork(const ListWork&) = delete;
    ListWork& operator=(const ListWork&) = delete;

    /// As LongWork.
    bool GoOn(int64_t done, int64_t whole);
    bool Stopped() const { return work_.Stopped(); }
    platform::Report Report() { return work_.Report(); }

private:
    ListWindow window_;
    Text doing_;
    double shownAt_ = -1e9;  // milliseconds
    LongWork work_;
};

/// The window's `stop` is called 中止, or seen at all, while work runs.
void ShowStop(const ListWindow& window, bool runs);

using FactsOfFiles = std::unordered_map<Text, platform::FileFacts>;

/// Asks about the files and waits for the answers as a part of the work. Nothing when it was
/// stopped.
std::optional<FactsOfFiles> AskFacts(Application& app, ListWork& work, std::vector<Text> paths,
                                     platform::FileInquiry::What what);

}  // namespace authoring
