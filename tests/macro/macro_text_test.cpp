// The text file of a slide that is made for a person to write in.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "macro/check.h"
#include "macro/macro_text.h"
#include "support/fake_platform.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// One line an element; made into bytes of the code page with CR LF.
constexpr const char16_t* kTemplate =
    uR"(//=======画像連動テキスト表示パラメータ==============================
QBColor=15       //[文字色](0-15)
 //(0-黒 1-青 2-緑 3-シアン 4-赤 5-マゼンタ 6-黄色 7-白)
 //(8-灰色 9-明るい青 10-明るい緑 11-明るいシアン)
 //(12-明るい赤 13-明るいマゼンタ 14-明るい黄色 15-明るい白)
FontSize=20      //[文字サイズ]
FontNo=1         //[フォント](0=SYSTEM,1=ＭＳゴシック,2=ＭＳ明朝)
FontName=""      //[フォント名指定] FontName="フォント名"
FontItalic=0     //[斜体](0=なし,1=あり)
FontBold=0       //[太字](0=なし,1=あり)
FontUnderLine=0  //[下線](0=なし,1=あり)
Kage=2           //[影](0=なし,1=影, 2=黒輪郭, 3=白輪郭)
ZureX=2          //[影ずれ幅 X]
ZureY=2          //[影ずれ幅 Y]
BorderColor=0    //[輪郭色](0=標準,1-15=QBColor)
CurrentX=0       //[表示開始座標X]
CurrentY=0       //[表示開始座標Y]
Delay=0.1        //[遅延タイム](0.0-60.0秒)
Skip=0           //[画面スキップ数]
YesNoPB(0,0)     //[Yes/Noボタン](Yesの画面移動数，Noの画面移動数)
Lock=0           //[操作ロック](1=ロック,2=解除)
End=0            //[終了](0=しない,1=終了,2=全終了)
Tab=8            //Tab幅文字数(2-10文字分)
LineSpace=5      //行間隔(0-20)
//===================================================================
[テキスト]        //以下にメッセージを記入して下さい
)";

struct MacroText : testing::Test, fakes::FakePlatform {
    const Text slide = u"C:\\show\\umi01.jpg";
    const Text file = u"C:\\show\\umi01.txt";

    /// The text with CR LF in the place of LF, as bytes of the code page.
    std::string Bytes(TextView lines) {
        Text text;
        for (const char16_t c : lines) {
            text += c == u'\n' ? Text(u"\r\n") : Text(1, c);
        }
        return *codePage.Encode(text);
    }
    std::string Content() {
        const auto* found = files.Get(file);
        return found ? found->content : "no file";
    }
};

TEST_F(MacroText, TemplateWithTheNameInUpperCaseWithoutALineEnd) {
    app.state.UserHeaderFlag = 1;
    EXPECT_TRUE(macro::EditMacroText(app, slide));
    EXPECT_EQ(Content(), Bytes(kTemplate + Text(u"UMI01.TXT")));
    EXPECT_THAT(system.opened, ElementsAre(file));
    EXPECT_THAT(dialogs.messages, IsEmpty());
}

TEST_F(MacroText, TemplateIsTwentySixLinesThatTheCheckFindsSound) {
    app.state.UserHeaderFlag = 1;
    macro::EditMacroText(app, slide);
    const Text made = text::DecodeFile(Content(), codePage);
    EXPECT_EQ(std::count(made.begin(), made.end(), u'\n'), 26);
    EXPECT_THAT(macro::CheckMacro(files, {u"C:\\show\\", 1, 1}, made), IsEmpty());
}

TEST_F(MacroText, HeaderFileTakesTheTemplatesPlaceLineByLine) {
    app.state.UserHeaderFlag = 0;
    files.Put(u"C:\\app\\header.txt", Bytes(u"Kage=1\n") + "Tab=4\n\n" + Bytes(u"[テキスト]"));
    EXPECT_TRUE(macro::EditMacroText(app, slide));
    EXPECT_EQ(Content(), Bytes(u"Kage=1\nTab=4\n\n[テキスト]\n")) << "and no name after it";
    EXPECT_THAT(system.opened, ElementsAre(file));
}

TEST_F(MacroText, HeaderFileIsLeftAsideWhileNoneIsChosen) {
    app.state.UserHeaderFlag = 1;
    files.Put(u"C:\\app\\header.txt", "Kage=1\r\n");
    macro::EditMacroText(app, slide);
    EXPECT_EQ(Content(), Bytes(kTemplate + Text(u"UMI01.TXT")));
}

TEST_F(MacroText, WithoutAHeaderFileTheTemplateStandsAlone) {
    app.state.UserHeaderFlag = 0;
    macro::EditMacroText(app, slide);
    EXPECT_EQ(Content(), Bytes(kTemplate));
}

TEST_F(MacroText, PresentFileStaysAndIsOpened) {
    files.Put(file, "mine");
    EXPECT_TRUE(macro::EditMacroText(app, slide));
    EXPECT_EQ(Content(), "mine");
    EXPECT_THAT(files.written, IsEmpty());
    EXPECT_THAT(system.opened, ElementsAre(file));
}

TEST_F(MacroText, WaitingTextIsOneMoreLineAlsoOfAPresentFile) {
    app.state.UserHeaderFlag = 1;
    app.state.PendingMacroText = u"PicPB00(0,\"A.BMP\",\"\")";
    const std::string whole = Bytes(kTemplate + Text(u"PicPB00(0,\"A.BMP\",\"\")\n"));
    EXPECT_TRUE(macro::EditMacroText(app, slide));
    EXPECT_EQ(Content(), whole);
    files.Put(file, "mine");
    EXPECT_TRUE(macro::EditMacroText(app, slide));
    EXPECT_EQ(Content(), whole);
    EXPECT_THAT(system.opened, IsEmpty()) << "no editor for it";
}

TEST_F(MacroText, NamesOfTheFileAreThoseOfTheReader) {
    macro::EditMacroText(app, u"C:\\show\\photo.jpeg");
    EXPECT_TRUE(files.Exists(u"C:\\show\\photo..txt"));
    app.state.LinkedFolderFlag = 1;
    app.state.LinkedFolder = u"D:\\texts";
    macro::EditMacroText(app, slide);
    EXPECT_TRUE(files.Exists(u"D:\\texts\\umi01.txt"));
}

TEST_F(MacroText, FailureIsReportedAndNothingOpens) {
    files.writeError = u"full";
    EXPECT_FALSE(macro::EditMacroText(app, slide));
    EXPECT_FALSE(macro::EditMacroText(app, u"x"));
    ASSERT_EQ(dialogs.messages.size(), 2u);
    for (const auto& box : dialogs.messages) {
        EXPECT_EQ(box.text, u"テキストファイルが作成できません。");
        EXPECT_EQ(box.title, u"テキストファイル作成不可");
    }
    EXPECT_THAT(system.opened, IsEmpty());
}

TEST_F(MacroText, EditorThatDoesNotStartIsReported) {
    system.opens = false;
    EXPECT_TRUE(macro::EditMacroText(app, slide));
    ASSERT_EQ(dialogs.messages.size(), 1u);
    EXPECT_EQ(dialogs.messages[0].text, file + u"\r\nを開く編集ソフトが見つかりません。");
    EXPECT_EQ(dialogs.messages[0].title, u"テキスト編集");
}

}  // namespace
