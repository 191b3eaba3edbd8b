#include "authoring/slide_list/adding.h"

#include "authoring/shared/list_rows.h"
#include "authoring/slide_list/slides.h"
#include "model/windows/slide_list.h"

namespace authoring {

void AttachAdding(Application& app) {
    const ListWindow slides = Slides(app);
    model::Form3& form3 = app.windows.form3;
    form3.File1.Click = [slides, &form3] { AddClickedFile(slides, form3.File1); };
    form3.Command3.Click = [slides, &form3] { AddFolderFiles(slides, ShownFiles(form3.File1)); };
    form3.List1.FilesDropped = [slides](const std::vector<Text>& paths) {
        AddDroppedFiles(slides, paths);
    };
}

}  // namespace authoring
