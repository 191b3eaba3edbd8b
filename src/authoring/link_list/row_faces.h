// What is seen of the shows in Form9's list: first picture, name, count and length.
#pragma once

#include <functional>

#include "model/application.h"

namespace authoring {

/// Gives List1 its faces and Length its words. The answer is called when documents may have changed
/// on the disk: it looks at all of them again.
std::function<void()> AttachLinkFaces(model::Application& app);

}  // namespace authoring
