#include "macro/macro_text.h"

#include <algorithm>
#include <optional>

#include "macro/macro.h"
#include "text/paths.h"

namespace macro {

namespace {

constexpr const char16_t* kTemplate[] = {
    u"//=======画像連動テキスト表示パラメータ==============================",
    u"QBColor=15       //[文字色](0-15)",
    u" //(0-黒 1-青 2-緑 3-シアン 4-赤 5-マゼンタ 6-黄色 7-白)",
    u" //(8-灰色 9-明るい青 10-明るい緑 11-明るいシアン)",
    u" //(12-明るい赤 13-明るいマゼンタ 14-明るい黄色 15-明るい白)",
    u"FontSize=20      //[文字サイズ]",
    u"FontNo=1         //[フォント](0=SYSTEM,1=ＭＳゴシック,2=ＭＳ明朝)",
    u"FontName=\"\"      //[フォント名指定] FontName=\"フォント名\"",
    u"FontItalic=0     //[斜体](0=なし,1=あり)",
    u"FontBold=0       //[太字](0=なし,1=あり)",
    u"FontUnderLine=0  //[下線](0=なし,1=あり)",
    u"Kage=2           //[影](0=なし,1=影, 2=黒輪郭, 3=白輪郭)",
    u"ZureX=2          //[影ずれ幅 X]",
    u"ZureY=2          //[影ずれ幅 Y]",
    u"BorderColor=0    //[輪郭色](0=標準,1-15=QBColor)",
    u"CurrentX=0       //[表示開始座標X]",
    u"CurrentY=0       //[表示開始座標Y]",
    u"Delay=0.1        //[遅延タイム](0.0-60.0秒)",
    u"Skip=0           //[画面スキップ数]",
    u"YesNoPB(0,0)     //[Yes/Noボタン](Yesの画面移動数，Noの画面移動数)",
    u"Lock=0           //[操作ロック](1=ロック,2=解除)",
    u"End=0            //[終了](0=しない,1=終了,2=全終了)",
    u"Tab=8            //Tab幅文字数(2-10文字分)",
    u"LineSpace=5      //行間隔(0-20)",
    u"//===================================================================",
    u"[テキスト]        //以下にメッセージを記入して下さい",
};
constexpr TextView kLineEnd = u"\r\n";

Text TemplateText() {
    Text text;
    for (const char16_t* line : kTemplate) {
        text += line;
        text += kLineEnd;
    }
    return text;
}

/// The person's own header, its lines ended anew; nullopt where none is in use.
std::optional<Text> HeaderText(Application& app) {
    std::string bytes;
    platform::FileError error;
    if (app.state.UserHeaderFlag != 0 ||
        !app.platform.files.Read(app.state.AppFolder + u"header.txt", bytes, error)) {
        return std::nullopt;
    }
    const Text content = text::DecodeHandWrittenFile(bytes, app.platform.codePage);
    Text text;
    for (TextView rest = content; !rest.empty();) {
        const size_t end = rest.find_first_of(kLineEnd);
        text += rest.substr(0, end);
        text += kLineEnd;
        rest.remove_prefix(std::min(end, rest.size()));
        rest.remove_prefix(rest.starts_with(kLineEnd) ? 2 : rest.empty() ? 0 : 1);
    }
    return text;
}

Text NewMacroText(Application& app, TextView path) {
    const model::ShowState& state = app.state;
    const Text text = HeaderText(app).value_or(TemplateText());
    if (!state.PendingMacroText.empty()) {
        return text + state.PendingMacroText + Text(kLineEnd);
    }
    // To be overwritten by the first line of text, so no line end follows it.
    return state.UserHeaderFlag == 1 ? text + text::Upper(text::BareName(path)) : text;
}

bool Refuse(Application& app) {
    app.platform.dialogs.Message(u"テキストファイルが作成できません。", platform::kExclamation,
                                 u"テキストファイル作成不可");
    return false;
}

}  // namespace

bool EditMacroText(Application& app, TextView slide) {
    const Text path = MacroFile(app, slide);
    const bool pending = !app.state.PendingMacroText.empty();
    if (path.empty()) {
        return Refuse(app);
    }
    if (pending || !app.platform.files.Exists(path)) {
        platform::FileError error;
        const Text text = NewMacroText(app, path);
        if (!app.platform.files.Write(path, text::EncodeFile(text, app.platform.codePage), error)) {
            return Refuse(app);
        }
    }
    if (!pending && !app.platform.system.OpenText(path)) {
        app.platform.dialogs.Message(path + u"\r\nを開く編集ソフトが見つかりません。",
                                     platform::kExclamation, u"テキスト編集");
    }
    return true;
}

}  // namespace macro
