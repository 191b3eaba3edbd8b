// The search for missing files through a folder.
#pragma once

#include <vector>

#include "authoring/shared/list_work.h"
#include "authoring/slide_list/relink_match.h"

namespace authoring {

/// Goes through the folder and all below it: by name, then, for those that were not found so, by
/// size and beginning where these are known. What was found when it was stopped counts.
Findings SearchFolder(Application& app, ListWork& work, const Text& folder,
                      const std::vector<Text>& missing);

/// The missing files that lie where the moves lead, the first move that does.
Findings FollowMoves(Application& app, ListWork& work, const std::vector<FolderMove>& moves,
                     const std::vector<Text>& missing);

}  // namespace authoring
