#include "app/slide_count.h"

#include <algorithm>
#include <string>

#include "model/windows/main_window.h"
#include "model/windows/slide_list.h"

namespace app {

namespace {

/// In a show the list that is played counts: it holds entries that the window's list leaves out.
Text Words(const Application& app) {
    const int shown = app.windows.form1.ShownSlide;
    const int listed = app.windows.form3.List1.ListCount();
    if (shown > 0) {
        const int played = std::max(app.state.SlideListEnd - 1, shown);
        return text::FromUtf8(std::to_string(shown) + " / " + std::to_string(played));
    }
    return listed > 0 ? text::FromUtf8(std::to_string(listed)) + u" 枚" : Text();
}

}  // namespace

SlideCount::SlideCount(Application& application) : application_(application) {
    application_.windows.form1.Listen(this);
    application_.windows.form3.List1.Listen(this);
}

SlideCount::~SlideCount() {
    application_.windows.form1.Unlisten(this);
    application_.windows.form3.List1.Unlisten(this);
}

void SlideCount::PropertyChanged(model::Control&, model::PropertyBase& property) {
    model::Form1& form1 = application_.windows.form1;
    if (&property == &form1.ShownSlide ||
        (&property == &form1.MousePointer && form1.MousePointer == model::kPointerNormal)) {
        form1.SlideCount.Caption = Words(application_);
    }
}

void SlideCount::RowsChanged(model::Control&, const model::RowChange&) {
    model::Form1& form1 = application_.windows.form1;
    if (form1.MousePointer == model::kPointerNormal) {
        form1.SlideCount.Caption = Words(application_);
    }
}

}  // namespace app
