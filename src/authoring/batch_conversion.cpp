#include "authoring/batch_conversion.h"

#include <algorithm>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "authoring/shared/browser_memory.h"
#include "authoring/shared/file_browser.h"
#include "authoring/shared/linked_files.h"
#include "authoring/shared/long_work.h"
#include "authoring/slide_list/selection.h"
#include "model/monitors.h"
#include "model/windows/batch_conversion.h"
#include "model/windows/slide_list.h"
#include "text/numbers.h"
#include "text/paths.h"

namespace authoring {

namespace {

using platform::Conversion;
using platform::Converted;
using platform::Outcome;

constexpr int kQuality = 90;
constexpr platform::Size kFrame{1280, 720};
constexpr size_t kEnding = 4;  // characters that a kind's own ending replaces, by plain count
constexpr TextView kErrorTitle = u"変換コピーエラー";
constexpr int kKeyEscape = 27;

struct KindRow {
    model::OptionButton model::Form16::*option;
    Conversion::Kind kind;
    TextView ending;  // empty: the name stays
};
constexpr KindRow kKinds[] = {{&model::Form16::nasi, Conversion::Same, u""},
                              {&model::Form16::JPEG, Conversion::Jpeg, u".jpg"},
                              {&model::Form16::BMP, Conversion::Bmp, u".bmp"},
                              {&model::Form16::PNG, Conversion::Png, u".png"}};

const KindRow& ChosenKind(model::Form16& form16) {
    for (const KindRow& row : kKinds) {
        if ((form16.*row.option).Value) {
            return row;
        }
    }
    return kKinds[0];
}

Text NumberText(int64_t number) {
    return text::FromUtf8(std::to_string(number));
}

std::vector<Text> SlidesToConvert(Application& app) {
    std::vector<Text> slides;
    for (const int row : SelectedSlides(app)) {
        slides.push_back(app.windows.form3.List1.List(row));
    }
    return slides;
}

/// The window while a run goes on; however that ends, it is ready for the next one.
class RunningWindow {
public:
    RunningWindow(model::Form16& form16, bool& goesOn) : form16_(form16), goesOn_(goesOn) {
        goesOn_ = true;
        Enable(false);
        form16_.Label6.Caption = Text();
        form16_.Label6.Visible = true;
    }
    ~RunningWindow() {
        form16_.Text2.Content = Text();
        form16_.Label6.Visible = false;
        Enable(true);
        form16_.Command2.SetFocus();
        goesOn_ = false;
    }
    RunningWindow(const RunningWindow&) = delete;
    RunningWindow& operator=(const RunningWindow&) = delete;

private:
    void Enable(bool on) {
        for (model::VisibleControl* control : std::initializer_list<model::VisibleControl*>{
                 &form16_.Command1, &form16_.Command2, &form16_.Drive1, &form16_.Dir1,
                 &form16_.Text1}) {
            control->Enabled = on;
        }
    }

    model::Form16& form16_;
    bool& goesOn_;
};

/// How a run goes on after a file.
enum class Next { File, End, Broken };

class ConversionRun {
public:
    ConversionRun(Application& app, bool& goesOn)
        : app_(app),
          form16_(app.windows.form16),
          goesOn_(goesOn),
          folder_(text::WithSeparator(form16_.Text1.Content())),
          work_(app, {form16_, &form16_.Label2, nullptr, &form16_.Command3},
                [this] { return StopAsked(); }) {}

    /// False where it broke off, which was said.
    bool Run(const std::vector<Text>& slides) {
        const auto count = static_cast<int64_t>(slides.size());
        Next next = Next::File;
        ForEachPiece(work_, count, [&](int64_t i) {
            next = ConvertSlide(slides[static_cast<size_t>(i)]);
            return next == Next::File;
        });
        return next != Next::Broken;
    }

    Text Report() const {
        Text report = work_.Stopped() ? u"変換コピーを中止しました。\r\n" : u"";
        report += NumberText(copied_) + u"個の画像を変換コピーしました。";
        const struct {
            int64_t number;
            TextView words;
        } rows[] = {{linked_, u"連動ファイル："},
                    {asTheyAre_, u"縮小できない形式のため、そのままコピーした画像："},
                    {replaced_, u"同じ名前のため、この実行中に上書きされた画像："},
                    {missing_, u"見つからなかったファイル："},
                    {failed_, u"コピーできなかったファイル："}};
        for (const auto& row : rows) {
            if (row.number > 0) {
                report += u"\r\n" + Text(row.words) + NumberText(row.number);
            }
        }
        return report;
    }

    bool CopiedAny() const { return copied_ > 0; }

private:
    bool Ask(TextView question, TextView title) {
        return app_.platform.dialogs.Message(question, platform::kYesNoQuestion, title) ==
               platform::Answer::Yes;
    }

    bool StopAsked() {
        if (!goesOn_) {
            goesOn_ = !Ask(u"変換コピーを中止しますか ?", u"変換コピー中止");
        }
        return !goesOn_;
    }

    Next AskAfterFailure(TextView target) {
        ++failed_;
        const bool goesOn =
            Ask(Text(target) + u"\r\n変換コピーできませんでした。\r\n継続しますか ?", kErrorTitle);
        return goesOn ? Next::File : Next::End;
    }

    /// Where the folder takes no file the next ones would fail, too: that is said once.
    Next AfterFailedWrite(TextView target) {
        const Text folder = text::WithoutSeparator(folder_);
        const bool takesFiles =
            app_.platform.folders.IsFolder(folder) && app_.platform.fileChanges.CanWrite(folder);
        return takesFiles ? AskAfterFailure(target) : Break(target);
    }

    Next Break(TextView target) {
        app_.platform.dialogs.Message(
            Text(target) + u"\r\n変換コピーできません。\r\nコピー先フォルダを変更してください。",
            platform::kPlain, kErrorTitle);
        return Next::Broken;
    }

    /// What this run made of another source is never replaced unasked.
    bool MayReplace(TextView source, TextView target) {
        return (form16_.Check1.Value == 1 && !IsMadeOfAnother(source, target)) ||
               !app_.platform.files.Exists(target) ||
               Ask(Text(target) + u"\r\nこのファイルはすでに存在します。\r\n上書きしますか ?",
                   u"コピー");
    }

    bool IsMadeOfAnother(TextView source, TextView target) {
        platform::Files& files = app_.platform.files;
        const auto made = madeOf_.find(files.Find(target).value_or(std::string()));
        return made != madeOf_.end() && made->second != files.Find(source);
    }

    void NoteMade(TextView source, TextView target) {
        platform::Files& files = app_.platform.files;
        madeOf_[files.Find(target).value_or(std::string())] = files.Find(source);
    }

    bool IsSameFile(TextView a, TextView b) {
        platform::Files& files = app_.platform.files;
        return text::Upper(a) == text::Upper(b) || files.Find(a) == files.Find(b);
    }

    /// A file that is named as a JPEG and is none is not looked at any further.
    bool IsFalseJpeg(const Text& source) {
        const bool named =
            text::KindOf(source) == u"JPG" || text::Upper(text::Right(source, kEnding)) == u"JPEG";
        return named && !app_.platform.files.BeginsWith(source, "\xFF\xD8");
    }

    Next ConvertSlide(const Text& source) {
        if (text::IsVideoKind(source)) {
            return Next::File;
        }
        if (app_.platform.files.Dir(source).empty()) {
            ++missing_;
            return Next::File;
        }
        const KindRow& kind = ChosenKind(form16_);
        Text name = text::BareName(source);
        form16_.Text2.Content = name;
        if (!kind.ending.empty()) {
            name.resize(name.size() - std::min(kEnding, name.size()));
            name += kind.ending;
        }
        const Text target = folder_ + name;
        const bool keepsKind = kind.kind == Conversion::Same;
        if (keepsKind && IsSameFile(source, target)) {
            return Next::File;
        }
        form16_.Label6.Caption = u"コピー進捗：" + NumberText(++number_);
        if (!MayReplace(source, target)) {
            return Next::File;
        }
        if (!keepsKind && IsFalseJpeg(source)) {
            return AskAfterFailure(target);
        }
        const Next next = WritePicture(source, target, kind.kind);
        return next == Next::File && made_ == target && form16_.Check3.Value == 1
                   ? CopyLinkedFiles(source, target)
                   : next;
    }

    Next WritePicture(const Text& source, const Text& target, Conversion::Kind kind) {
        made_.clear();
        const bool reduces = form16_.Check2.Value == 1;
        replaces_ = IsMadeOfAnother(source, target);
        if (kind == Conversion::Same && !reduces) {
            return CopyPicture(source, target, false);
        }
        platform::FileError error;
        const Conversion conversion{
            kind, reduces ? platform::FitFunction(ReducedSize) : platform::FitFunction(), kQuality};
        const Converted made =
            app_.platform.imaging.Convert(source, target, conversion, work_.Report(), error);
        switch (made) {
            case Converted::Done:
                Count(source, target);
                return Next::File;
            case Converted::Stopped:
                return Next::End;
            case Converted::NoWriter:
            case Converted::Needless:
                return CopyPicture(source, target, made == Converted::NoWriter);
            case Converted::Unreadable:
                return AskAfterFailure(target);
            case Converted::Failed:
                break;
        }
        return AfterFailedWrite(target);
    }

    Next CopyPicture(const Text& source, const Text& target, bool forWantOfWriter) {
        const Next next = Copy(source, target);
        if (lastCopied_) {
            Count(source, target);
            asTheyAre_ += forWantOfWriter ? 1 : 0;
        }
        return next;
    }

    Next Copy(const Text& source, const Text& target) {
        platform::FileError error;
        const Outcome outcome =
            app_.platform.fileChanges.Copy(source, target, work_.Report(), error);
        lastCopied_ = outcome == Outcome::Done;
        return outcome == Outcome::Failed    ? AfterFailedWrite(target)
               : outcome == Outcome::Stopped ? Next::End
                                             : Next::File;
    }

    void Count(const Text& source, const Text& target) {
        made_ = target;
        ++copied_;
        replaced_ += replaces_ ? 1 : 0;
        NoteMade(source, target);
    }

    Next CopyLinkedFiles(const Text& source, const Text& target) {
        Next next = Next::File;
        for (const LinkedFile& file : linkedFiles_.Of(source)) {
            const Text linkedTarget = LinkedNameBeside(target, file);
            if (next != Next::File || IsSameFile(file.path, linkedTarget) ||
                !MayReplace(file.path, linkedTarget)) {
                continue;
            }
            next = Copy(file.path, linkedTarget);
            if (lastCopied_) {
                ++linked_;
                NoteMade(file.path, linkedTarget);
            }
        }
        return next;
    }

    Application& app_;
    model::Form16& form16_;
    bool& goesOn_;
    const Text folder_;
    LongWork work_;
    LinkedFiles linkedFiles_{app_};
    int64_t number_ = 0, copied_ = 0, linked_ = 0, asTheyAre_ = 0, replaced_ = 0, missing_ = 0,
            failed_ = 0;
    bool lastCopied_ = false;
    bool replaces_ = false;  // what the run made of another source
    Text made_;              // the picture that was just written
    /// What the run made, and of which file; both as they are on disk.
    std::map<std::string, std::optional<std::string>> madeOf_;
};

bool RefusesFolder(Application& app, const Text& folder) {
    if (!folder.empty() && !IsRefusedFolder(app, folder)) {
        return false;
    }
    app.platform.dialogs.Message(folder +
                                     u"\r\nこのフォルダ直下へは変換コピーできません。"
                                     u"\r\nコピー先フォルダを選択してください。",
                                 platform::kExclamation, u"コピー先フォルダ未選択");
    return true;
}

void ShowNumber(Application& app) {
    app.windows.form16.Label5.Caption =
        NumberText(static_cast<int64_t>(SelectedSlides(app).size()));
}

void Command1_Click(Application& app, bool& goesOn) {
    model::Form16& form16 = app.windows.form16;
    const Text folder = form16.Text1.Content;
    Text report;
    {
        const RunningWindow window(form16, goesOn);
        if (RefusesFolder(app, folder)) {
            return;
        }
        ShowNumber(app);
        ConversionRun run(app, goesOn);
        if (!run.Run(SlidesToConvert(app))) {
            return;
        }
        if (run.CopiedAny()) {
            RememberFolder(app, text::WithoutSeparator(folder));
        }
        report = run.Report();
    }
    app.platform.dialogs.Message(report, platform::kInformation, u"変換コピー");
}

void Form_Activate(Application& app, bool goesOn) {
    if (!goesOn) {
        model::CentreOnMonitor(app, app.windows.form16);
        ShowNumber(app);
    }
}

/// A folder that is dropped anywhere on the window becomes the target.
void TakeDrop(Application& app, const std::vector<Text>& paths, bool goesOn) {
    const auto folder = std::find_if(paths.begin(), paths.end(), [&](const Text& path) {
        return app.platform.folders.IsFolder(path);
    });
    if (!goesOn && folder != paths.end()) {
        app.windows.form16.Dir1.Path = *folder;
    }
}

}  // namespace

platform::Size ReducedSize(platform::Size own) {
    const double factor =
        std::min(double(kFrame.width) / own.width, double(kFrame.height) / own.height);
    if (factor >= 1) {
        return own;
    }
    const auto scaled = [factor](int side) {
        return std::max(1, static_cast<int>(text::RoundHalfEven(factor * side)));
    };
    return {scaled(own.width), scaled(own.height)};
}

void OpenBatchConversion(Application& app) {
    model::Form16& form16 = app.windows.form16;
    if (form16.Visible && !form16.Command2.Enabled) {
        return;  // it is at work
    }
    form16.Hide();  // one that stands somewhere below comes to the top
    for (const KindRow& row : kKinds) {
        (form16.*row.option).Value = row.kind == Conversion::Same;
    }
    form16.Check1.Value = 0;
    form16.Check2.Value = 1;
    form16.Check3.Value = 0;
    form16.Text2.Content = Text();
    OpenBrowser(app, form16.Drive1, form16.Dir1, app.platform.folders.Home());
    form16.Show();
}

void AttachBatchConversion(Application& app) {
    model::Form16& form16 = app.windows.form16;
    const auto goesOn = std::make_shared<bool>(false);  // false in a run: a stop is asked for
    const auto running = [&form16] { return !form16.Command2.Enabled; };
    AttachBrowser(form16.Drive1, form16.Dir1,
                  [&form16] { form16.Text1.Content = form16.Dir1.Path(); });
    form16.OnActivate = [&app, running] { Form_Activate(app, running()); };
    form16.OnQueryUnload = [goesOn, running](bool& stay) {
        stay = running();  // the run asks; afterwards the window can be closed
        *goesOn = false;
    };
    form16.OnUnload = [&app] { app.state.CopyWindowOpen = 0; };
    form16.Command1.Click = [&app, goesOn] { Command1_Click(app, *goesOn); };
    form16.Command2.Click = [&app, &form16] {
        app.windows.SetPointer(model::kPointerNormal);
        form16.Hide();
    };
    form16.Command3.Click = [goesOn] { *goesOn = false; };
    form16.KeyDown = [goesOn](int key) { *goesOn = *goesOn && key != kKeyEscape; };
    for (model::VisibleControl* target :
         std::initializer_list<model::VisibleControl*>{&form16, &form16.Text1, &form16.Dir1}) {
        target->FilesDropped = [&app, running](const std::vector<Text>& paths) {
            TakeDrop(app, paths, running());
        };
    }
}

}  // namespace authoring
