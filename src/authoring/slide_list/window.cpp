#include "authoring/slide_list/window.h"

#include "authoring/slide_list/row_faces.h"

namespace authoring {

void AttachSlideList(model::Application& app) {
    AttachRowFaces(app);
}

}  // namespace authoring
