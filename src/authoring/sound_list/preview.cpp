#include "authoring/sound_list/preview.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <string>
#include <utility>

#include "authoring/sound_list/lengths.h"
#include "authoring/sound_list/sounds.h"
#include "model/windows/sound_list.h"
#include "sound/sound.h"
#include "text/numbers.h"
#include "text/paths.h"

namespace authoring {

namespace {

using model::Application;
using platform::FileFacts;
using platform::FileInquiry;

/// The steps of the arrow keys and of Page Up and Page Down, in milliseconds.
constexpr int kSmallStep = 5000, kLargeStep = 30000;
constexpr double kLongestMs = 24.0 * 3600 * 1000;

void EnableEditing(model::Form10& form10, bool on) {
    for (model::Button* button : {&form10.Command3, &form10.Command4, &form10.Command5,
                                  &form10.Command8, &form10.Command11, &form10.Command12}) {
        button->Enabled = on;
    }
}

/// Where the piece is, how long and how loud it is.
class Place : public model::Listener {
public:
    explicit Place(Application& app) : app_(app), form10_(app.windows.form10) {
        form10_.Position.SmallChange = kSmallStep;
        form10_.Position.LargeChange = kLargeStep;
        form10_.Position.Change = [this] { Moved(); };
        form10_.Timer1.Listen(this);
        Leave();
    }
    ~Place() override { app_.platform.fileInquiry.Forget(this); }
    Place(const Place&) = delete;
    Place& operator=(const Place&) = delete;

    void Follow(const Text& path) {
        app_.platform.sound.MciSendString(u"set wav time format milliseconds");
        const auto take = [this](const Text&, const FileFacts& facts) { Take(facts); };
        app_.platform.fileInquiry.Ask(this, {path}, FileInquiry::SoundLevels, take);
        app_.platform.fileInquiry.Ask(this, {path}, FileInquiry::WholeSoundLength, take);
    }

    void PropertyChanged(model::Control&, model::PropertyBase&) override {
        if (!form10_.Timer1.Enabled) {
            Leave();
        }
    }

    /// Asks the device.
    void Refresh() {
        const Text answer = app_.platform.sound.MciSendString(u"status wav position");
        if (!answer.empty()) {
            Show(static_cast<int>(std::clamp(text::SafeNumber(answer), 0.0, kLongestMs)));
        }
    }

private:
    void Leave() {
        app_.platform.fileInquiry.Forget(this);
        form10_.Position.Enabled = false;
        form10_.Position.SetLevels({});
        Show(0);
        form10_.Position.Max = 0;
        form10_.Elapsed.Caption = Text();
    }

    void Take(const FileFacts& facts) {
        if (!facts.levels.empty()) {
            form10_.Position.SetLevels(facts.levels);
        }
        if (facts.length) {
            form10_.Position.Max =
                static_cast<int>(std::min(std::ceil(facts.length->seconds * 1000), kLongestMs));
            form10_.Position.Enabled = true;
        }
    }

    void Show(int milliseconds) {
        showing_ = true;
        form10_.Position.Value = std::min(milliseconds, form10_.Position.Max());
        showing_ = false;
        const int whole = form10_.Position.Max;
        const double seconds = std::floor(milliseconds / 1000.0);
        form10_.Elapsed.Caption = whole > 0
                                      ? LengthText(seconds) + u" / " + LengthText(whole / 1000.0)
                                      : LengthText(seconds);
    }

    /// By a person.
    void Moved() {
        if (!showing_ && form10_.Timer1.Enabled) {
            const int milliseconds = form10_.Position.Value;
            app_.platform.sound.MciSendString(u"play wav from " +
                                              text::FromUtf8(std::to_string(milliseconds)));
            Show(milliseconds);
        }
    }

    Application& app_;
    model::Form10& form10_;
    bool showing_ = false;
};

void Poll(Application& app, Place& place) {
    if (app.platform.sound.MciSendString(u"status wav mode").starts_with(u"playing")) {
        place.Refresh();
    } else {
        EndSoundPreview(app);
    }
}

void Command6_Click(Application& app, Place& place) {
    model::Form10& form10 = app.windows.form10;
    const std::vector<int> selected = SelectedRows(form10.List1);
    if (StoppedWork(Sounds(app)) || selected.empty() || form10.Timer1.Enabled) {
        return;
    }
    const Text path = text::WithFolder(app.state.AppFolder, form10.List1.List(selected.front()));
    sound::StopSound(app);
    EnableEditing(form10, false);
    form10.Command7.Enabled = true;
    app.state.SoundPreviewFile = path;
    app.state.SoundPreviewFlag = 1;
    form10.Text1.Content = text::BareName(path);
    form10.Timer1.Enabled = true;
    FollowSoundSelection(app);
    if (app.platform.files.Readable(path) != 1) {
        EndSoundPreview(app);
        app.platform.dialogs.Message(u"ファイルが読み込めません。\r\nリストから削除して下さい。",
                                     platform::kExclamation, u"ファイル読込エラー");
        return;
    }
    sound::StartSound(app);
    if (!form10.Timer1.Enabled) {
        return;  // a box came up, and the piece was stopped meanwhile
    }
    form10.Label2.Visible = true;
    place.Follow(path);
    Poll(app, place);
}

}  // namespace

void EndSoundPreview(Application& app) {
    model::Form10& form10 = app.windows.form10;
    if (!form10.Timer1.Enabled) {
        return;
    }
    form10.Timer1.Enabled = false;
    app.state.SoundPreviewFlag = 0;
    sound::StopSound(app);
    if (app.state.ShowRunning == 1) {
        app.state.RestartSoundFlag = 1;  // the show's own piece, at its next picture
    }
    form10.Command7.Enabled = false;
    form10.Label2.Visible = false;
    EnableEditing(form10, true);
    FollowSoundSelection(app);
}

void AttachSoundPreview(Application& app) {
    model::Form10& form10 = app.windows.form10;
    const auto place = std::make_shared<Place>(app);
    form10.Label2.Visible = false;
    form10.Command7.Enabled = false;
    form10.Command6.Click = [&app, place] { Command6_Click(app, *place); };
    form10.Command7.Click = [&app, place] { EndSoundPreview(app); };
    form10.Timer1.Tick = [&app, place] { Poll(app, *place); };
}

}  // namespace authoring
