#include "document/main_caption.h"

#include "model/windows/control_box.h"
#include "model/windows/main_window.h"

namespace document {

namespace {

constexpr TextView kBeforePath = u"ｽﾗｲﾄﾞ - ";

}  // namespace

void ShowDocumentCaption(Application& app) {
    const Text& path = app.state.DocumentPath;
    app.windows.form1.Caption =
        path.empty() ? Text(model::Form1::kFirstCaption) : Text(kBeforePath) + path;
}

void ShowSlideCaption(Application& app) {
    app.windows.slidescreen2.Caption = app.state.CurrentName;
    app.windows.form1.Caption = app.state.CurrentName;
}

Text NameInCaption(const Application& app) {
    return text::Mid(app.windows.form1.Caption(), kBeforePath.size() + 1);
}

}  // namespace document
