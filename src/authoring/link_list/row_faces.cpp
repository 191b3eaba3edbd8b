#include "authoring/link_list/row_faces.h"

#include <memory>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "authoring/slide_list/signs.h"
#include "document/show_facts.h"
#include "model/windows/link_list.h"
#include "text/paths.h"

namespace authoring {

namespace {

using document::ShowFacts;
using model::Application;

struct KnownShow {
    enum State { Unknown, Missing, Read } state = Unknown;
    bool asked = false;
    ShowFacts facts;
};

/// What is known of the shows, by path.
class LinkFaces : public model::Listener {
public:
    explicit LinkFaces(Application& app) : app_(app), form9_(app.windows.form9) {
        form9_.List1.Listen(this);
        RowsChanged(form9_.List1, {model::RowChange::Cleared, 0});
    }

    model::RowFace Face(int row) {
        const Text& path = form9_.List1.List(row);
        const auto found = shows_.find(path);
        model::RowFace face;
        face.title = text::BareName(path);
        face.detail = text::WithoutSeparator(text::FolderPart(path));
        if (found == shows_.end() || found->second.state == KnownShow::Unknown) {
            face.aside = u"～";
        } else if (found->second.state == KnownShow::Missing) {
            face.marks = model::kMarkMissing;
        } else if (!found->second.facts.accepted) {
            face.marks = model::kMarkRefused;
            face.aside = u"ショーではありません";
        } else {
            const ShowFacts& facts = found->second.facts;
            face.file = facts.first.empty() ? Text()
                                            : text::WithFolder(text::FolderPart(path), facts.first);
            const int slides = facts.pictures + facts.films;
            face.aside = text::FromUtf8(std::to_string(slides)) + u" 枚";
            if (slides > 0) {
                face.aside += u"・" + ShowLength(facts.pictures, facts.films, facts.intervalMs);
            }
        }
        return face;
    }

    /// Documents may have come, gone or changed.
    void AskAgain() {
        for (auto& [path, show] : shows_) {
            show.asked = false;
        }
        Look(0, form9_.List1.ListCount());
    }

    void RowsChanged(model::Control&, const model::RowChange& change) override {
        if (change.kind == model::RowChange::Cleared) {
            Look(0, form9_.List1.ListCount());
        } else if (change.kind != model::RowChange::Removed) {
            Look(change.row, change.count);
        }
        SayLength();
    }

private:
    void Look(int first, int count) {
        std::vector<Text> paths;
        for (int row = first; row < first + count; ++row) {
            const Text& path = form9_.List1.List(row);
            if (!std::exchange(shows_[path].asked, true)) {
                paths.push_back(path);
            }
        }
        if (!paths.empty()) {
            app_.platform.fileInquiry.Ask(
                this, std::move(paths), platform::FileInquiry::Content,
                [this](const Text& path, const platform::FileFacts& facts) { Take(path, facts); });
        }
    }

    void Take(const Text& path, const platform::FileFacts& facts) {
        KnownShow& show = shows_[path];
        show.state = facts.there ? KnownShow::Read : KnownShow::Missing;
        show.facts = {};
        if (facts.content) {
            show.facts =
                document::FactsOfShow(text::DecodeFile(*facts.content, app_.platform.codePage));
        }
        for (int row = 0; row < form9_.List1.ListCount(); ++row) {
            if (form9_.List1.List(row) == path) {
                form9_.List1.FacesChanged(row, 1);
            }
        }
        SayLength();
    }

    /// Of all shows that can be read, once all were looked at.
    void SayLength() {
        double milliseconds = 0;
        int pictures = 0, films = 0;
        bool known = true;
        for (const Text& path : form9_.List1.Rows()) {
            const KnownShow& show = shows_[path];
            known = known && show.state != KnownShow::Unknown;
            milliseconds += show.facts.pictures * show.facts.intervalMs;
            pictures += show.facts.pictures;
            films += show.facts.films;
        }
        form9_.Length.Caption =
            known ? ShowLength(pictures, films, pictures > 0 ? milliseconds / pictures : 0)
                  : Text(u"～");
    }

    Application& app_;
    model::Form9& form9_;
    std::unordered_map<Text, KnownShow> shows_;
};

}  // namespace

std::function<void()> AttachLinkFaces(Application& app) {
    model::Form9& form9 = app.windows.form9;
    const auto faces = std::make_shared<LinkFaces>(app);
    form9.List1.face = [faces](int row) { return faces->Face(row); };
    form9.List1.thumbnails = &app.platform.thumbnails;
    form9.mnuFACE.Click = [&form9](int index) { form9.List1.AsGrid = index == 1; };
    return [faces] { faces->AskAgain(); };
}

}  // namespace authoring
