#include "authoring/slide_list/linked_work.h"
#include "model/windows/recording.h"

namespace authoring {

void StopLinkedWork(Application& app) {
    app.windows.form20.Unload();
}

}  // namespace authoring
