#include "app/radio_choices.h"

#include "model/effect_speed.h"

namespace app {

const std::vector<RadioChoice>& RadioChoices() {
    using S = model::ShowState;
    static const std::vector<RadioChoice> table{
        {&S::RepeatFlag,
         0,
         {},
         u"繰り返し",
         u"スライド表示が最終になると再び最初から繰り返します。\r\n（ＫＶＳリンクは除く）"},
        // A random show cannot stop by itself.
        {&S::RepeatFlag, 1, {{&S::RandomFlag, 1}}, u"", u""},
        {&S::RandomFlag,
         0,
         {{&S::RepeatFlag, 0}},
         u"ランダム実行",
         u"スライドリストをランダムに実行します。\r\n（ＫＶＳリンクでは実行されません。）"},
        {&S::SoundSyncFlag,
         0,
         {},
         u"画像連動効果音同期設定",
         u"画像連動効果音(WAV)再生において\r\n"
         u"再生時間がスライド間隔以上の場合、再生が終了するまで次画面に移行しません。"},
        {&S::AutoStartFlag,
         0,
         {},
         u"オートスタート",
         u"パラピコ再立ち上げ時に自動的にスライド画面全体表示スタート待ちになります。\r\n"
         u"（この設定はＫＶＳファイルに保存されません）"},
        {&S::ControlBoxFlag,
         0,
         {},
         u"コントロールＢＯＸ",
         u"画面全体表示において、ｺﾝﾄﾛｰﾙBOXが表示されます。\r\n"
         u"（この設定はＫＶＳファイルには保存されません）"},
        {&S::ControlBoxFlag,
         1,
         {},
         u"コントロールＢＯＸ",
         u"画面全体表示において、ｺﾝﾄﾛｰﾙBOXが消去されます。"},
        {&S::SizeAdjust,
         0,
         {},
         u"全画面サイズ調整",
         u"画面サイズに収まるように縮小調整が行われます。\r\n"
         u"（この設定はＫＶＳファイルには保存されません）"},
        {&S::SizeAdjust,
         1,
         {},
         u"全画面サイズ調整",
         u"画面サイズの横幅に合わせて縮小調整が行われます。\r\n"
         u"（この設定はＫＶＳファイルには保存されません）"},
        {&S::ListErrorDelete,
         1,
         {},
         u"リスト（エラー）削除",
         u"スライド実行中に読込みエラーが発生した場合、エラーファイルはリストより自動的に削除されま"
         u"す。\r\n（この設定はＫＶＳファイルには保存されません）"},
        {&S::StartOption, 0, {{&S::ResumeIndex, 0}}, u"", u""},
        {&S::StartOption,
         1,
         {},
         u"スタートオプション",
         u"パラピコを前回終了位置より継続スタートします。\r\n"
         u"（この設定はＫＶＳファイルに保存されません）"},
        {&S::EffectSpeedFixed,
         1,
         {{&S::ShowEffectSpeed, model::kFixedEffectSpeed},
          {&S::EraseEffectSpeed, model::kFixedEffectSpeed}},
         u"",
         u""},
        {&S::CdRepeatFlag,
         0,
         {},
         u"繰り返し",
         u"設定されたトラック（１曲）を繰り返します。\r\n"
         u"（曲順設定がランダムまたはプログラムの場合は無効です。）"},
    };
    return table;
}

}  // namespace app
