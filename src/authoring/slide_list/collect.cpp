#include "authoring/slide_list/collect.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "authoring/shared/browser_memory.h"
#include "authoring/shared/file_browser.h"
#include "authoring/shared/list_work.h"
#include "authoring/slide_list/collect_plan.h"
#include "authoring/slide_list/slides.h"
#include "document/show_document.h"
#include "model/menu.h"
#include "model/windows/slide_list.h"
#include "text/paths.h"

namespace authoring {

namespace {

using platform::Outcome;

constexpr TextView kTitle = u"配布フォルダ";
constexpr TextView kUnnamed = u"スライドショー.kvs";
constexpr size_t kMostListed = 10;  // names in a box

Text NumberText(size_t number) {
    return text::FromUtf8(std::to_string(number));
}

/// The first of the names, a line each, and how many more there are.
Text Listed(const std::vector<Text>& names) {
    Text lines;
    for (size_t i = 0; i < std::min(names.size(), kMostListed); ++i) {
        lines += u"\r\n" + names[i];
    }
    if (names.size() > kMostListed) {
        lines += u"\r\nほか " + NumberText(names.size() - kMostListed) + u" 個";
    }
    return lines;
}

/// While it lives Form3 takes no input but a stop, and no other window that the rows or settings
/// could be changed in takes any.
class Alone {
public:
    explicit Alone(Application& app) {
        model::Form3& own = app.windows.form3;
        for (model::Control* control : own.Controls()) {
            auto* entry = dynamic_cast<model::MenuEntry*>(control);
            auto* seen = dynamic_cast<model::VisibleControl*>(control);
            if (seen != &own.Collect && seen != &own.Command8 && (entry || seen)) {
                Disable(entry ? entry->Enabled : seen->Enabled);
            }
        }
        const model::Window* const screens[] = {&own, app.windows.Find("Slidescreen"),
                                                app.windows.Find("Slidescreen2"),
                                                app.windows.Find("Form24")};
        for (model::Window* window : app.windows.All()) {
            if (std::find(std::begin(screens), std::end(screens), window) == std::end(screens)) {
                Disable(window->Enabled);
            }
        }
    }
    ~Alone() {
        for (model::Property<bool>* enabled : disabled_) {
            *enabled = true;
        }
    }
    Alone(const Alone&) = delete;
    Alone& operator=(const Alone&) = delete;

private:
    void Disable(model::Property<bool>& enabled) {
        if (enabled) {
            enabled = false;
            disabled_.push_back(&enabled);
        }
    }
    std::vector<model::Property<bool>*> disabled_;
};

class Collector {
public:
    Collector(Application& app, const Text& folder)
        : app_(app),
          folder_(text::WithSeparator(folder)),
          plan_(app),
          work_(Slides(app), u"作成中") {}

    /// What there is to say at the end.
    Text Run() {
        for (int64_t slide = 0; slide < plan_.Slides(); ++slide) {
            if (!work_.GoOn(slide, plan_.Slides())) {
                return Broken();
            }
            plan_.LookAt(slide);
        }
        plan_.Settle();
        const Text document = DocumentName();
        if (LiesAmongSources()) {
            return Text(folder_) +
                   u"\r\nこのフォルダには、集める元のファイルがあります。"
                   u"\r\n別のフォルダを選択してください。";
        }
        platform::FileError error;
        if (!app_.platform.fileChanges.MakeFolder(folder_, error)) {
            return Text(folder_) + u"\r\n" + error.message;
        }
        if (!MayReplace(document)) {
            return Broken();
        }
        int64_t done = 0;
        for (const CollectedFile& file : plan_.Files()) {
            if (!work_.GoOn(done++, static_cast<int64_t>(plan_.Files().size())) || !Take(file)) {
                return Broken();
            }
        }
        const Text content = document::TextOfCopiedShow(
            app_, folder_ + document, [this](const Text& path) { return plan_.NameOf(path); });
        if (!app_.platform.files.Write(folder_ + document,
                                       text::EncodeFile(content, app_.platform.codePage), error)) {
            return folder_ + document + u"\r\n" + error.message + u"\r\n" + Broken();
        }
        RememberFolder(app_, text::WithoutSeparator(folder_));
        return Report(document);
    }

private:
    bool Ask(const Text& question) {
        return app_.platform.dialogs.Message(question, platform::kYesNoQuestion, kTitle) ==
               platform::Answer::Yes;
    }

    /// A name in the folder; the open document itself is never replaced.
    Text DocumentName() {
        const Text& open = app_.state.DocumentName;
        const Text wanted = open.empty() ? Text(kUnnamed) : open;
        platform::Files& files = app_.platform.files;
        if (files.Exists(folder_ + wanted) &&
            files.Find(folder_ + wanted) == files.Find(app_.state.DocumentPath)) {
            plan_.Avoid(wanted);
        }
        return plan_.FreeName(wanted);
    }

    bool LiesAmongSources() {
        platform::Folders& folders = app_.platform.folders;
        const Text own = folders.Identity(text::WithoutSeparator(folder_));
        return !own.empty() &&
               std::any_of(plan_.Folders().begin(), plan_.Folders().end(), [&](const Text& folder) {
                   return folders.Identity(text::WithoutSeparator(folder)) == own;
               });
    }

    bool MayReplace(const Text& document) {
        std::vector<Text> present;
        const auto look = [&](const Text& name) {
            if (app_.platform.files.Exists(folder_ + name)) {
                present.push_back(name);
            }
        };
        look(document);
        for (const CollectedFile& file : plan_.Files()) {
            look(file.to);
        }
        return present.empty() ||
               Ask(folder_ + u"\r\nこのフォルダには、同じ名前のファイルがすでに " +
                   NumberText(present.size()) + u" 個あります。" + Listed(present) +
                   u"\r\n上書きしますか ?");
    }

    /// False where the work is to end.
    bool Take(const CollectedFile& file) {
        const Text target = folder_ + file.to;
        platform::FileError error;
        Outcome outcome = Outcome::Failed;
        std::string bytes;
        std::optional<Text> rewritten;
        if (!file.slideFolder.empty() && app_.platform.files.Read(file.from, bytes, error)) {
            rewritten =
                plan_.Rewritten(file, text::DecodeHandWrittenFile(bytes, app_.platform.codePage));
        }
        if (rewritten) {
            const std::string content = text::EncodeFile(*rewritten, app_.platform.codePage);
            outcome =
                app_.platform.files.Write(target, content, error) ? Outcome::Done : Outcome::Failed;
        } else {
            outcome = app_.platform.fileChanges.Copy(file.from, target, work_.Report(), error);
        }
        if (outcome == Outcome::Done) {
            ++copied_[file.kind];
            renamed_ += text::BareName(file.from) == file.to ? 0 : 1;
        } else if (outcome == Outcome::Failed) {
            failed_.push_back(file.from);
            return Ask(file.from + u"\r\nコピーできませんでした。\r\n" + error.message +
                       u"\r\n継続しますか ?");
        }
        return outcome != Outcome::Stopped;
    }

    size_t CopiedFiles() const {
        size_t sum = 0;
        for (const size_t number : copied_) {
            sum += number;
        }
        return sum;
    }

    Text Broken() const {
        return u"配布フォルダの作成を中止しました。\r\n" +
               (CopiedFiles() == 0
                    ? Text(u"何もコピーしていません。")
                    : folder_ + u"\r\nこのフォルダにコピーしたファイル：" +
                          NumberText(CopiedFiles()) + u"\r\nドキュメントは保存していません。");
    }

    Text Report(const Text& document) const {
        constexpr TextView kKinds[] = {u"画像・動画：", u"連動ファイル：", u"音声：",
                                       u"マクロのファイル："};
        Text report = u"配布フォルダを作りました。\r\n" + folder_ + document;
        for (size_t kind = 0; kind < std::size(kKinds); ++kind) {
            if (copied_[kind] > 0) {
                report += u"\r\n" + Text(kKinds[kind]) + NumberText(copied_[kind]);
            }
        }
        if (renamed_ > 0) {
            report += u"\r\n名前を変えたファイル：" + NumberText(renamed_);
        }
        const struct {
            const std::vector<Text>& names;
            TextView words;
        } lists[] = {{plan_.Missing(), u"見つからないファイル："},
                     {failed_, u"コピーできなかったファイル："}};
        for (const auto& list : lists) {
            if (!list.names.empty()) {
                report += u"\r\n\r\n" + Text(list.words) + NumberText(list.names.size()) +
                          Listed(list.names);
            }
        }
        return report;
    }

    Application& app_;
    const Text folder_;
    CollectPlan plan_;
    ListWork work_;
    size_t copied_[CollectedFile::Piece + 1] = {};
    size_t renamed_ = 0;
    std::vector<Text> failed_;
};

void Say(Application& app, const Text& words, int flags) {
    app.platform.dialogs.Message(words, flags, kTitle);
}

}  // namespace

void CollectShow(Application& app) {
    if (app.windows.form3.List1.ListCount() == 0) {
        Say(app, u"スライドリストがないので配布フォルダを作れません。", platform::kExclamation);
        return;
    }
    platform::Dialogs::FileRequest request;
    request.title = u"配布フォルダにするフォルダ";
    const auto folder = app.platform.dialogs.ChooseFolder(request);
    if (!folder) {
        return;
    }
    if (IsRefusedFolder(app, *folder) || !app.platform.fileChanges.CanWrite(*folder)) {
        Say(app, *folder + u"\r\nこのフォルダには作れません。\r\n別のフォルダを選択してください。",
            platform::kExclamation);
        return;
    }
    Text words;
    {
        const Alone alone(app);
        words = Collector(app, *folder).Run();
    }
    Say(app, words, platform::kInformation);
}

}  // namespace authoring
