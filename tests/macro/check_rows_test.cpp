// What the check finds: one row a mistake, with the place of its finding and its kind.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "macro/check.h"
#include "support/fake_platform.h"

namespace {

struct Row {
    const char16_t* source;
    int line, column;
    const char* kind;
    const char16_t* says;  // part of what is wrong or of what will happen
};

struct CheckRows : testing::Test {
    fakes::FakePlatform fake;

    CheckRows() {
        for (const char16_t* name : {u"a.png", u"b.png", u"s.wav", u"f.mp4", u"p.dat", u"n.txt"}) {
            fake.files.Put(u"C:\\show\\" + Text(name), "");
        }
        fake.files.Put(u"C:\\show\\parts\\star.png", "");
    }
    std::vector<macro::Finding> Of(TextView source) {
        return macro::CheckMacro(fake.files, {u"C:\\show\\", 3, 9}, source);
    }
    void ExpectOne(const Row& row) {
        const auto found = Of(row.source);
        const std::string source = text::ToUtf8(row.source);
        std::string all;
        for (const auto& finding : found) {
            all += std::to_string(finding.line) + ":" + std::to_string(finding.column) + " " +
                   finding.kind + " " + text::ToUtf8(finding.wrong + u" → " + finding.effect) +
                   "\n";
        }
        ASSERT_EQ(found.size(), 1u) << source << "\n" << all;
        EXPECT_EQ(found[0].line, row.line) << source << "\n" << all;
        EXPECT_EQ(found[0].column, row.column) << source << "\n" << all;
        EXPECT_STREQ(found[0].kind, row.kind) << source << "\n" << all;
        EXPECT_NE((found[0].wrong + u"→" + found[0].effect).find(row.says), Text::npos)
            << source << "\n"
            << all;
        EXPECT_FALSE(found[0].remedy.empty()) << source;
    }
    void ExpectRows(const std::vector<Row>& rows) {
        for (const Row& row : rows) {
            ExpectOne(row);
        }
    }
    void ExpectSilent(const std::vector<const char16_t*>& sources) {
        for (const char16_t* source : sources) {
            for (const auto& finding : Of(source)) {
                ADD_FAILURE() << text::ToUtf8(source) << "\n" << text::ToUtf8(finding.wrong);
            }
        }
    }
};

TEST_F(CheckRows, NumbersAfterAnEqualsSign) {
    ExpectRows({
        {u"Delay", 1, 6, "equals", u"0 として"},
        {u"Kage 2 //影=3", 1, 5, "equals", u"値は 3 として"},
        {u"CurrentXY=5", 1, 9, "surplus", u"「Y」"},
        {u"Delay=many", 1, 7, "number", u"0 として"},
        {u"Delay=", 1, 7, "number", u"0 として"},
        {u"FontSize=２０", 1, 10, "number", u"24 として"},
        {u"Tab 8", 1, 4, "equals", u"値は 2 として"},
        {u"Delay=0,5", 1, 8, "number", u"「,5」は読まれません"},
        {u"Interval=3-5", 1, 11, "number", u"「-5」"},
        {u"Sleep=0.12345", 1, 7, "length", u".123 として"},
        {u"CurrentX=123456", 1, 10, "length", u"12345 として"},
        {u"Tab=1 0 //x", 1, 5, "comment", u"10 として"},
        {u"FontBold=0.6", 1, 10, "fraction", u"1 として"},
        {u"QBColor=3.7", 1, 9, "fraction", u"3 として"},
        {u"SoundSet=6.4", 1, 10, "fraction", u"6 として"},
        {u"Interval=2.4", 1, 10, "fraction", u"次のスライドからは 2 として"},
        {u"KoukaSP=-3.5", 1, 9, "fraction", u"-4 として"},
    });
}

TEST_F(CheckRows, NumbersBeyondTheirRanges) {
    ExpectRows({
        {u"LineSpace=99", 1, 11, "range", u"20 になります"},
        {u"BorderColor=16", 1, 13, "range", u"15 になります"},
        {u"Tab=1", 1, 5, "range", u"2 になります"},
        {u"PicResize=5", 1, 11, "range", u"10 になります"},
        {u"MP3Vol=101", 1, 8, "range", u"100 になります"},
        {u"Interval=0", 1, 10, "range", u"無視されます"},
        {u"FadeOut=51", 1, 9, "range", u"50 になります"},
        {u"EndTime=601", 1, 9, "range", u"無視されます"},
        {u"SoundSet=10", 1, 10, "range", u"無視されます"},
        {u"PicPBType=5", 1, 11, "range", u"0 になります"},
        {u"Kouka=12", 1, 7, "range", u"無視されます"},
        {u"DelKouka=13", 1, 10, "range", u"無視されます"},
        {u"KoukaSP=11", 1, 9, "range", u"無視されます"},
        {u"Sleep=61", 1, 7, "range", u"無視されます"},
        {u"Delay=-1", 1, 7, "range", u"無視されます"},
        {u"QBColor=16", 1, 9, "range", u"10 になります"},
        {u"FontSize=7", 1, 10, "range", u"24 になります"},
        {u"Kage=4", 1, 6, "range", u"0 になります"},
        {u"Overlap=9", 1, 9, "range", u"値は覚えられますが"},
        {u"ScreenXY=2", 1, 10, "range", u"座標原点は変わらず"},
        {u"FontItalic=99999", 1, 12, "range", u"マクロがここで終わり"},
        {u"MovY=40000", 1, 6, "range", u"マクロがここで終わり"},
    });
}

TEST_F(CheckRows, ValuesThatDoNothing) {
    ExpectRows({
        {u"KSPSet=2", 1, 8, "range", u"何も変わりません"},
        {u"OverPic=2", 1, 9, "range", u"何も変わりません"},
        {u"CtrlBox=2", 1, 9, "range", u"何も変わりません"},
        {u"PicRnd=2", 1, 8, "range", u"何も変わりません"},
        {u"SoundEnd=2", 1, 10, "range", u"何も変わりません"},
        {u"Cursor=2", 1, 8, "range", u"何も変わりません"},
        {u"SizeCtrl=3", 1, 10, "range", u"何も変わりません"},
        {u"Lock=3", 1, 6, "range", u"何も変わりません"},
        {u"End=3", 1, 5, "range", u"何も変わりません"},
        {u"FontNo=3", 1, 8, "range", u"何も変わりません"},
        {u"WinState=1", 1, 10, "no-effect", u"何もしません"},
        {u"DownSize=7", 1, 10, "no-effect", u"何もしません"},
        {u"DownSize=50", 1, 10, "no-effect", u"何もしません"},
        {u"Loop=0\nCls\nEndLoop", 1, 6, "no-effect", u"1回だけ"},
        {u"Cls=1", 1, 4, "surplus", u"値を取りません"},
        {u"MP3Up 20", 1, 7, "surplus", u"MP3UPとして"},
        {u"Flipper", 1, 5, "surplus", u"FLIPとして"},
        {u"PicPB1(0,\"a.png\",\"n.txt\")", 1, 19, "no-effect", u"クリックしても"},
    });
}

TEST_F(CheckRows, Position) {
    ExpectRows({
        {u"Position=1 //x.y", 1, 10, "comment", u"横1％、縦0％"},
        {u"Position=5.5 1", 1, 10, "comment", u"横5％、縦51％"},
        {u"Position=100.12345", 1, 10, "length", u"縦1234％"},
        {u"Position=50", 1, 10, "no-effect", u"PICRND=50"},
        {u"Position=150.20", 1, 10, "range", u"100 になります"},
        {u"Position=20.150", 1, 13, "range", u"100 になります"},
        {u"Position=a.b", 1, 10, "number", u"横0％、縦0％"},
    });
    ExpectSilent(
        {u"Position=50.50", u"Position=0", u"Position=1       //x.y", u"Position=100.100"});
}

TEST_F(CheckRows, QuotedValues) {
    ExpectRows({
        {u"FontName=ＭＳ 明朝", 1, 9, "quote", u"何もしません"},
        {u"FontName=\"ＭＳ 明朝", 1, 9, "quote", u"何もしません"},
        {u"FontName=ＭＳ //例 \"明朝\"", 1, 9, "quote", u"注釈の中の「明朝」"},
        {u"BackColor=\"FFF\"", 1, 12, "length", u"000000"},
        {u"BackColor=\"12345G\"", 1, 17, "number", u"別の色"},
    });
    ExpectSilent(
        {u"FontName=\"\"  //[フォント名指定] FontName=\"フォント名\"", u"BackColor=\"A0b1C2\""});
}

TEST_F(CheckRows, BracketsOfCalls) {
    ExpectRows({
        {u"RGB=255,0,0", 1, 4, "bracket", u"黒"},
        {u"[テキスト]\nRGB=255,0,0", 2, 4, "bracket", u"黒"},
        {u"RGB 255,0,0  //(赤)", 1, 4, "bracket", u"黒"},
        {u"RGB(255,0,0", 1, 12, "bracket", u"行の終わりまで"},
        {u"Grad 1,2,3,4,5,6,\"x\"", 1, 5, "bracket", u"黒"},
        {u"Grad(1,2,3,4,5,6,\"x\"", 1, 21, "bracket", u"行の終わりまで"},
        {u"PicPB1 0,\"a.png\"", 1, 6, "bracket", u"移動数は 0"},
        {u"PicPB1(0,\"a.png\"", 1, 17, "bracket", u"行の終わりまで"},
        {u"PicPB1(0,\"a.png\"  //絵)", 1, 17, "bracket", u"行の終わりまで"},
        {u"YesNoPB=1,0", 1, 8, "bracket", u"ボタンは出ません"},
        {u"TextOut 9,9,0,\"x\"", 1, 8, "bracket", u"書かれません"},
        {u"Telop=\"x\"", 1, 6, "bracket", u"止まります"},
        {u"Menu1=1,\"x\"", 1, 5, "bracket", u"名称のない"},
        {u"PicPBData 3,\"p.dat\"", 1, 10, "bracket", u"切取画像0"},
    });
    ExpectSilent({u"RGB(255,0,0)  //(赤", u"rgb ( 255 , 0 , 0 )"});
}

TEST_F(CheckRows, QuotesOfCalls) {
    ExpectRows({
        {u"PicPB1(0,a.png)", 1, 10, "quote", u"切取画像が消えます"},
        {u"PicPB1(0,\"a.png)", 1, 10, "quote", u"切取画像が消えます"},
        {u"PicPB1(0,a.png,\"s.wav\")", 1, 10, "quote", u"「s.wav」が画像として"},
        {u"PicPB1(0,\"a.png\",s.wav)", 1, 18, "quote", u"クリックしても"},
        {u"PicPB1(0,\"a.png\",\"s.wav)", 1, 18, "quote", u"クリックしても"},
        {u"Grad(1,2,3,4,5,6,夜明け)", 1, 18, "quote", u"最後の「)」まで"},
        {u"Grad(1,2,3,4,5,6,\"夜明け)", 1, 18, "quote", u"最後の「)」まで"},
        {u"Grad(1,2,3,4,5,6,\"夜\"明け)", 1, 21, "surplus", u"使われません"},
        {u"TextOut(9,9,0,夜)", 1, 15, "quote", u"最後の「)」まで"},
        {u"TextOut(9,9,0,\"a\"b\")", 1, 18, "surplus", u"使われません"},
        {u"Menu1(1,\"次)", 1, 9, "quote", u"最後の1文字"},
        {u"Menu1(1,次)", 1, 9, "quote", u"最後の「)」まで"},
        {u"Telop(1,1,文)", 1, 11, "quote", u"最後の「)」まで"},
        {u"Telop(1,1,\"a\"b\")", 1, 14, "surplus", u"全部が流れます"},
        {u"Telop(1,1,\"a\") (b)", 1, 15, "surplus", u"全部が流れます"},
        {u"Movie(f.mp4,0)", 1, 7, "quote", u"閉じられます"},
        {u"Movie()", 1, 7, "quote", u"閉じられます"},
        {u"PlayWav(s.wav)", 1, 9, "quote", u"鳴りません"},
        {u"PicPBData(3,\"p.dat)", 1, 13, "quote", u"最後の1文字"},
    });
}

TEST_F(CheckRows, CountsOfValues) {
    ExpectRows({
        {u"RGB(255,0)", 1, 5, "fields", u"0 として"},
        {u"RGB(1,2,3,4)", 1, 11, "surplus", u"多すぎます"},
        {u"RGB(,2,3)", 1, 5, "number", u"値がありません"},
        {u"Grad(255,0,0,\"x\")", 1, 6, "fields", u"書かれません"},
        {u"Grad(255,0,0,255,255,\"x\")", 1, 6, "fields", u"書かれません"},
        {u"TextOut(40,20,\"x\")", 1, 9, "fields", u"書かれません"},
        {u"YesNoPB(1)", 1, 9, "fields", u"0 として"},
        {u"YesNoPB(1,0,2)", 1, 13, "surplus", u"使われません"},
        {u"Menu1(1)", 1, 7, "fields", u"名称のない"},
        {u"Menu1(\"次へ\")", 1, 7, "fields", u"名称のない"},
        {u"PicPB1(\"a.png\")", 1, 8, "fields", u"0 として"},
        {u"PicPB1(0)", 1, 8, "fields", u"消えます"},
        {u"PicPB1(0,\"a.png\")\nMovPB1(5)", 2, 8, "fields", u"0 として"},
        {u"PicPBData(3)", 1, 11, "fields", u"座標データのない"},
        {u"Telop(\"a,b\")", 1, 7, "fields", u"「,」まで"},
        {u"Telop(5,\"a,b\")", 1, 9, "fields", u"「,」まで"},
    });
    ExpectSilent({u"Telop(\"文\")", u"Telop(5,\"文\")", u"Telop2(5,9,\"a,b\")", u"Telop(1,1,\"\")",
                  u"Telop1(\"\")", u"PlayWav(\"s.wav\")", u"Movie(\"\")",
                  u"PicPB1(0,\"a.png\")\nMovPB1(5,-5)\nMovPB1(RND+-, rnd,1000)"});
}

TEST_F(CheckRows, NumbersInCalls) {
    ExpectRows({
        {u"RGB(300,0,0)", 1, 5, "range", u"255 になります"},
        {u"RGB(1,-2,0)", 1, 7, "range", u"0 になります"},
        {u"RGB(1,red,0)", 1, 7, "number", u"0 として"},
        {u"RGB(1.6,0,0)", 1, 5, "fraction", u"2 として"},
        {u"Grad(1,2,3,4,5,600,\"x\")", 1, 16, "range", u"255 になります"},
        {u"TextOut(1000,0,0,\"x\")", 1, 9, "range", u"999 になります"},
        {u"TextOut(20,10,380,\"x\")", 1, 15, "range", u"360 になります"},
        {u"TextOut(20dot,10,0,\"x\")", 1, 9, "number", u"20 として"},
        {u"Telop(0,1,\"x\")", 1, 7, "range", u"1 になります"},
        {u"Telop(1,1001,\"x\")", 1, 9, "range", u"1000 になります"},
        {u"Movie(\"f.mp4\",3)", 1, 15, "range", u"表示されません"},
        {u"PlayWav(\"s.wav\",3)", 1, 17, "range", u"鳴りません"},
        {u"PicPB1(0,\"a.png\")\nMovPB1(1,1,5000)", 2, 12, "range", u"1000 になります"},
        {u"PicPB1(0,\"a.png\")\nMovPB1(1.5,1)", 2, 8, "fraction", u"2 として"},
        {u"PicPB1(0,\"a.png\")\nMovPB1(RAND,1)", 2, 8, "number", u"0 として"},
        {u"PicPB63(0,\"\",\"\")", 1, 6, "range", u"0～62"},
        {u"PicPB(0,\"a.png\")", 1, 6, "number", u"切取画像0"},
        {u"PicPB100(0,\"a.png\")", 1, 6, "number", u"切取画像10"},
        {u"PicPBData(63,\"p.dat\")", 1, 11, "range", u"何も表示されません"},
        {u"Menu6(1,\"x\")", 1, 5, "range", u"待ち続けます"},
        {u"Menu12(1,\"x\")", 1, 5, "surplus", u"メニュー1"},
        {u"Telop3(1,1,\"x\")", 1, 6, "surplus", u"「3」"},
    });
}

TEST_F(CheckRows, FilesAndCommentMarks) {
    ExpectRows({
        {u"Telop(1,1,\"見て http://a.jp\")", 1, 20, "comment", u"捨てられます"},
        {u"Telop(http://a.jp)", 1, 12, "comment", u"捨てられます"},
        {u"Movie(\"D://a.mp4\",0)", 1, 10, "comment", u"捨てられます"},
        {u"PicPB1(0,\"x//a.png\")", 1, 12, "comment", u"捨てられます"},
        {u"Movie(\"g.mp4\",0)", 1, 8, "file", u"「g.mp4」"},
        {u"PicPB1(0,\"parts\\moon.png\")", 1, 11, "file", u"moon.png"},
        {u"[テキスト]\n海 //注釈", 2, 3, "comment", u"そのまま表示"},
    });
    ExpectSilent({u"Movie(\"f.mp4\",0)", u"PicPB1(0,\"parts\\star.png\")",
                  u"TextOut(20,10,0,\"http://a.jp\")", u"[テキスト]\nhttp://a.jp を見る",
                  u"Telop(1,1,\"文\")  //流れる(文)"});
}

TEST_F(CheckRows, PiecesAndLoops) {
    ExpectRows({
        {u"MovPB1(5,5)", 1, 1, "piece", u"切取画像1は表示されていません"},
        {u"PicPB1(0,\"a.png\")\nMovPB02(5,5)", 2, 1, "piece", u"切取画像2"},
        {u"PicPB1(0,\"a.png\")\nPicPB1(0,\"\")\nMovPB1(5,5)", 3, 1, "piece", u"動かず"},
        {u"PicPBData(3,\"p.dat\")\nPicPB4(0,\"a.png\")", 2, 1, "piece", u"座標データがありません"},
        {u"EndLoop", 1, 1, "loop", u"何もしません"},
        {u"Cls\nLoop=3", 2, 1, "loop", u"繰り返しません"},
        {u"Loop=2\nLoop=3\nCls\nEndLoop", 2, 1, "loop", u"忘れられ"},
    });
    ExpectSilent({u"PicPBData(3,\"p.dat\")\nPicPB3(0,\"a.png\")\nPicPBType=0\nPicPB4(0,\"a.png\")",
                  u"Loop=3\nPicPB1(0,\"a.png\")\nMovPB1(1,1)\nEndLoop\nMovPB01(1,1)"});
}

TEST_F(CheckRows, LinesThatAreNotWhatTheyLook) {
    ExpectRows({
        {u"CurentX=5", 1, 1, "word", u"CURRENTX"},
        {u"ざるそば", 1, 1, "word", u"無視されます"},
        {u"［テキスト］", 1, 1, "word", u"[テキスト]"},
        {u" Delay=1", 1, 2, "indent", u"無視されます"},
        {u"[テキスト]\n\tDelay=1", 2, 2, "indent", u"文字として"},
        {u"[テキスト]\nTablet", 2, 1, "swallowed", u"表示されません"},
        {u"[テキスト]\nCurentY=100", 2, 1, "word", u"CURRENTY"},
        {u"[テキスト]\n //(0-黒)", 2, 2, "comment", u"そのまま表示"},
        {u"[テキスト]\n海\n[テキスト]", 3, 1, "mark", u"文字として"},
        {u"Skip=1\nCls", 2, 1, "unreached", u"実行されません"},
        {u"End=1\n\n//x\n[テキスト]\n海\n空", 5, 1, "unreached", u"ENDの後ろ"},
        {u"EndTime=3\nCls", 2, 1, "unreached", u"実行されません"},
        {u"YesNoPB(1,-1)\nCls", 2, 1, "unreached", u"実行されません"},
        {u"Kage=2\n[テキスト]\n海\n空", 3, 1, "colour", u"黒になります"},
        {u"Kage=1\nRGB(1,2,3)\nZureX=12\n[テキスト]\n海\nKage=2\n空", 3, 7, "range",
         u"10 になります"},
    });
    ExpectSilent({u"[テキスト]\nCurrent matters (2)", u"YesNoPB(1,0)\nCls", u"Skip=0\nCls",
                  u"Kage=2\nQBColor=1\n[テキスト]\n海", u"ZureX=12\nKage=1"});
}

TEST_F(CheckRows, TextsOffTheScreen) {
    // 20 points are 26.7 pixels at 96 pixels an inch: 40 lines end at 1066.7, the next leaves.
    Text lines = u"QBColor=15\n[テキスト]\n";
    for (int i = 0; i < 40; ++i) {
        lines += u"海\n";
    }
    EXPECT_THAT(Of(lines), testing::IsEmpty());
    EXPECT_EQ(Of(lines + u"空\n空\n").size(), 1u) << "told once";
    EXPECT_EQ(Of(lines + u"空\n").at(0).line, 43);
    ExpectRows({
        {u"CurrentY=1080\n[テキスト]\n海", 3, 1, "off-screen", u"見えません"},
        {u"CurrentY=-30\n[テキスト]\n海", 3, 1, "off-screen", u"見えません"},
        {u"CurrentX=1920\n[テキスト]\n海", 3, 1, "off-screen", u"見えません"},
        {u"CurrentX=1900\n[テキスト]\n海と空と山", 3, 1, "off-screen", u"はみ出した"},
        {u"Loop=20\nMovY=100\nGrad(1,2,3,4,5,6,\"海\")\nEndLoop", 3, 1, "off-screen", u"画面の外"},
        {u"CurrentY=2000\nTextOut(20,10,0,\"海\")", 2, 1, "off-screen", u"見えません"},
        {u"CurrentY=1100\nTelop(1,1,\"海\")", 2, 1, "off-screen", u"見えません"},
        {u"CurrentX=2000\nMenu1(1,\"次\")", 2, 1, "off-screen", u"押せません"},
        {u"CurrentY=1080\nYesNoPB(1,0)", 2, 1, "off-screen", u"押せません"},
    });
    ExpectSilent({u"CurrentX=2000\nCurrentY=-500\nPicPB1(0,\"a.png\")",
                  u"CurrentY=2000\nCls\n[テキスト]\n海", u"CurrentY=1085\nTextOut(90,0,90,\"海\")",
                  u"CurrentX=1920\n[テキスト]\nCurrentX=0\n海"});
    EXPECT_THAT(
        macro::CheckMacro(fake.files, {u"", 0, 0, {3840, 2160}}, u"CurrentY=2000\n[テキスト]\n海"),
        testing::IsEmpty());
}

}  // namespace
