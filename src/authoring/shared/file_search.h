// The dialogs that ask which kinds of files a search of a folder tree is to look for: Form18
// (pictures and films) and Form19 (sounds).
//
// A search shows one of them as a modal window and reads SearchPattern afterwards: "*.BMP;*.PNG" in
// the order of the boxes; empty where there is nothing to search.
#pragma once

#include "model/application.h"

namespace authoring {

void AttachFileSearch(model::Application& app);

}  // namespace authoring
