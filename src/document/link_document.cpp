#include "document/link_document.h"

#include "document/document_file.h"
#include "document/line_reader.h"
#include "document/line_writer.h"
#include "document/link_rows.h"
#include "model/windows/link_list.h"
#include "model/windows/main_window.h"
#include "text/paths.h"

namespace document {

namespace {

constexpr TextView kTag = u"1vue3167";

void ReadLinks(Application& app, LineReader& reader) {
    auto& state = app.state;
    const Text first(reader.Item());
    const Text tag = first.starts_with(u"vue") ? first : text::Mid(first, 2, 7);
    if (tag != u"vue2" && !tag.starts_with(u"vue3")) {
        throw ReadFailure{};
    }
    ClearRows(LinkRows(app));
    reader.Line();  // the document's own name
    std::vector<model::ListRow> rows;
    const auto append = [&] { AppendRows(LinkRows(app), std::move(rows)); };
    try {
        const int32_t count = reader.Int32();
        for (int32_t i = 1; i <= count; ++i) {
            Text path = text::WithFolder(state.BaseFolder, reader.Line());
            if (!state.LinkList.Set(i, path)) {
                throw ReadFailure{};
            }
            rows.push_back({std::move(path), {}});
        }
    } catch (const ReadFailure&) {
        append();
        throw;
    }
    append();
}

void TakeIdentity(Application& app, TextView path) {
    app.state.LinkDocumentPath = path;
    app.state.LinkDocumentName = app.platform.files.Dir(path);
    ShowLinkCaption(app);
}

}  // namespace

bool ReadLinkDocument(Application& app, TextView path) {
    auto content = OpenDocument(app, path);
    if (!content) {
        return false;
    }
    auto& pointer = app.windows.form1.MousePointer;
    pointer = model::kPointerBusy;
    LineReader reader(std::move(*content));
    const UndoStep step(LinkRows(app));
    try {
        ReadLinks(app, reader);
    } catch (const ReadFailure&) {
        RefuseDocument(app, path);
        pointer = model::kPointerNormal;
        EndIfLoadingFromStart(app);
        return false;
    }
    TakeIdentity(app, path);
    pointer = model::kPointerNormal;
    return true;
}

bool WriteLinkDocument(Application& app, TextView requestedPath) {
    const bool distribution = app.state.DistributionSaveFlag == 1;
    const auto name = [&](TextView path) {
        return distribution ? text::BareName(path) : Text(path);
    };
    const Text path = text::WithDefaultExtension(requestedPath, u".kvl");
    const auto& list = app.windows.form9.List1;
    LineWriter lines;
    lines.Line(kTag);
    lines.Line(name(path));
    lines.Number(list.ListCount());
    for (const Text& row : list.Rows()) {
        lines.Line(name(row));
    }
    const bool saved = SaveDocumentFile(app, path, lines.Content());
    if (saved) {
        TakeIdentity(app, path);
    }
    app.windows.form1.MousePointer = model::kPointerNormal;
    return saved;
}

}  // namespace document
