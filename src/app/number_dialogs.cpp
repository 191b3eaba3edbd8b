#include "app/number_dialogs.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "model/windows/main_window.h"
#include "sound/cd.h"
#include "text/numbers.h"

namespace app {

namespace {

constexpr TextView kBadSetting = u"設定が不適切です";
constexpr int kMillisecondsPerSecond = 1000;

// Effects by their place in the menus.
constexpr int kHorizontalSlits = 6, kVerticalSlits = 7, kMosaic = 8, kAtRandom = 9, kInTurn = 10;

struct NumberQuestion {
    TextView title;
    TextView prompt;
    int16_t model::ShowState::*field;
};

constexpr NumberQuestion kShowSlits{u"画面表示効果スリット数",
                                    u"画面表示効果スリット数を設定してください。\r\n(２～１００）",
                                    &model::ShowState::ShowSlitCount};
constexpr NumberQuestion kShowMosaic{u"画面表示効果モザイク数",
                                     u"画面表示効果モザイク数を設定してください。\r\n(５～１００）",
                                     &model::ShowState::ShowMosaicCount};
constexpr NumberQuestion kEraseSlits{u"画面消去効果スリット数",
                                     u"画面消去効果スリット数を設定してください。\r\n(２～１００）",
                                     &model::ShowState::EraseSlitCount};
constexpr NumberQuestion kEraseMosaic{
    u"画面消去効果モザイク数", u"画面消去効果モザイク数を設定してください。\r\n(５～１００）",
    &model::ShowState::EraseMosaicCount};
constexpr NumberQuestion kShowSpeed{
    u"画面表示効果スピード",
    u"画面表示効果スピードを設定してください。\r\n(遅い   -999 ～ 10   速い)",
    &model::ShowState::ShowEffectSpeed};
constexpr NumberQuestion kEraseSpeed{
    u"画面消去効果スピード",
    u"画面消去効果スピードを設定してください。\r\n(遅い   -999 ～ 10   速い)",
    &model::ShowState::EraseEffectSpeed};
constexpr NumberQuestion kSpeedTrim{
    u"画面効果スピード補正",
    u"画面表示及び消去効果の低速スピード(1～5)の補正が必要な場合に設定してください。\r\n"
    u"(低　１～１０　高）\r\n●基準値 ５",
    &model::ShowState::EffectSpeedTrim};

const model::Setting& SettingOf(const model::FieldPointer& field) {
    return *std::find_if(model::Settings().begin(), model::Settings().end(),
                         [&](const model::Setting& setting) { return setting.field == field; });
}

Text Shown(double number) {
    return text::Trim(text::Str(number));
}

/// The number entered; nullopt for an empty entry or a cancel.
std::optional<double> Entered(Application& app, TextView prompt, TextView title, TextView initial) {
    const std::optional<Text> entry = app.platform.dialogs.Input(prompt, title, initial);
    if (!entry || entry->empty()) {
        return std::nullopt;
    }
    return text::SafeNumber(text::HalfWidthNumber(*entry));
}

void Ask(Application& app, const NumberQuestion& question) {
    const model::Setting& setting = SettingOf(question.field);
    int16_t& value = app.state.*question.field;
    // A document can hold a value that the box would refuse for ever.
    const Text initial = Shown(std::clamp<int>(value, setting.lowest, setting.highest));
    while (const auto number = Entered(app, question.prompt, question.title, initial)) {
        if (*number >= setting.lowest && *number <= setting.highest) {
            value = static_cast<int16_t>(std::trunc(*number));
            return;
        }
        app.platform.dialogs.Message(kBadSetting, platform::kExclamation, question.title);
    }
}

void AskCounts(Application& app, int effect, const NumberQuestion& slits,
               const NumberQuestion& mosaic) {
    const bool any = effect == kAtRandom || effect == kInTurn;
    if (any || effect == kHorizontalSlits || effect == kVerticalSlits) {
        Ask(app, slits);
    }
    if (any || effect == kMosaic) {
        Ask(app, mosaic);
    }
}

}  // namespace

void AskSlideInterval(Application& app) {
    const model::Setting& setting = SettingOf(&model::ShowState::SlideIntervalSec);
    const auto seconds = Entered(app, u"スライド間隔（秒）を設定してください。\r\n(１～６０秒）",
                                 u"スライド間隔", Shown(app.state.SlideIntervalSec));
    if (!seconds) {
        return;
    }
    if (*seconds < setting.lowest || *seconds > setting.highest) {
        app.platform.dialogs.Message(kBadSetting, platform::kExclamation, u"ｽﾗｲﾄﾞ間隔");
        return;
    }
    app.state.SlideIntervalSec = static_cast<int32_t>(text::RoundHalfEven(*seconds));
    app.windows.form1.Timer1.Interval =
        static_cast<int>(text::RoundHalfEven(*seconds * kMillisecondsPerSecond));
}

void AskShowEffectCounts(Application& app) {
    AskCounts(app, app.state.ShowEffect, kShowSlits, kShowMosaic);
}

void AskEraseEffectCounts(Application& app) {
    AskCounts(app, app.state.EraseEffect, kEraseSlits, kEraseMosaic);
}

void AskShowEffectSpeed(Application& app) {
    Ask(app, kShowSpeed);
}

void AskEraseEffectSpeed(Application& app) {
    Ask(app, kEraseSpeed);
}

void AskEffectSpeedTrim(Application& app) {
    Ask(app, kSpeedTrim);
}

void AskCdTrack(Application& app) {
    const int tracks = sound::LookAtDisc(app, false).tracks;
    if (tracks == 0) {
        sound::SayNoDisc(app);
        return;
    }
    constexpr TextView kTitle = u"ＣＤ再生トラック";
    const auto track =
        Entered(app,
                u"ＣＤ再生開始トラックを設定してください。\r\n( 1～" + Shown(tracks) +
                    u" )\r\n（曲順設定がランダムまたはプログラムの場合は無効です。）",
                kTitle, app.state.CdTrackSetting);
    if (!track) {
        return;
    }
    if (*track < 1 || *track > tracks) {
        app.platform.dialogs.Message(u"設定が不適切です。", platform::kExclamation, kTitle);
        return;
    }
    app.state.CdTrackSetting = Shown(std::trunc(*track));
}

}  // namespace app
