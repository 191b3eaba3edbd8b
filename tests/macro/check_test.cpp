// What the check of a macro file finds, and that it finds nothing in a sound one.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "macro/check.h"
#include "support/fake_platform.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct Check : testing::Test {
    fakes::FakePlatform fake;
    macro::CheckedSlide slide{u"C:\\show\\", 2, 5};

    /// "line:column wrong → effect"
    std::vector<std::string> Of(TextView source) {
        std::vector<std::string> found;
        for (const macro::Finding& finding : macro::CheckMacro(fake.files, slide, source)) {
            found.push_back(std::to_string(finding.line) + ":" + std::to_string(finding.column) +
                            " " + text::ToUtf8(finding.wrong) + " → " +
                            text::ToUtf8(finding.effect));
        }
        return found;
    }
    std::string One(TextView source) {
        const auto found = Of(source);
        return found.size() == 1 ? found[0] : std::to_string(found.size()) + " findings";
    }
};

TEST_F(Check, ProgramsThatAreNowhereAreFound) {
    fake.PutPicture(u"C:\\show\\a.bmp", 5, 5);
    EXPECT_THAT(Of(u"Shell=\"gone.exe\"\r\n"), IsEmpty()) << "nobody to ask";
    slide.programs = &fake.system;
    fake.system.found = {u"there x", u"there.exe"};
    EXPECT_THAT(Of(u"Shell=\"there x\"\r\nPicPB01(0,\"a.bmp\",\"there.exe\")\r\n"), IsEmpty());
    EXPECT_EQ(One(u"Shell=\"gone.exe -x\"\r\n"),
              "1:8 プログラム「gone.exe -x」が見つかりません → 何も起動しません");
    EXPECT_EQ(One(u"PicPB01(0,\"a.bmp\",\"gone.exe\")\r\n"),
              "1:20 プログラム「gone.exe」が見つかりません → 何も起動しません");
    fake.files.Put(u"C:\\show\\gone.exe", "x");
    EXPECT_THAT(Of(u"PicPB01(0,\"a.bmp\",\"gone.exe\")\r\n"), IsEmpty()) << "beside the slide";
}

TEST_F(Check, SoundMacroHasNoFindings) {
    fake.PutPicture(u"C:\\show\\a.bmp", 5, 5);
    EXPECT_THAT(Of(u"//=====\r\nQBColor=15       //[文字色](0-15)\r\n //(0-黒)\r\n\r\n"
                   u"Skip=0\r\nYesNoPB(0,0)\r\nLock=0\r\nEnd=0\r\nTab=8   //x\r\nDelay=0.1\r\n"
                   u"PicPB01(1,\"a.bmp\",\"\")\r\nLoop=2\r\nCls\r\nEndLoop\r\n"
                   u"[テキスト]        //x\r\nこんにちは\r\nhello\r\nCurrentY = 100\r\n"),
                IsEmpty());
}

TEST_F(Check, UnknownWordsNameTheNearest) {
    EXPECT_EQ(One(u"\r\nCurentX=5\r\n"),
              "2:1 「CurentX」は命令ではありません（もしかして: CURRENTX） → この行は無視されます");
    EXPECT_EQ(One(u"ざるそば\r\n"), "1:1 「ざるそば」は命令ではありません → この行は無視されます");
    EXPECT_EQ(One(u"［テキスト］\r\n"),
              "1:1 「［テキスト］」は命令ではありません（もしかして: [テキスト]） → "
              "この行は無視されます");
}

TEST_F(Check, BlankAheadOfAWord) {
    EXPECT_EQ(One(u" Delay=1\r\n"), "1:2 「DELAY」の前に空白があります → この行は無視されます");
    EXPECT_EQ(One(u"[テキスト]\r\n\tDelay=1\r\n"),
              "2:2 「DELAY」の前に空白があります → 命令ではなく文字として表示されます");
    EXPECT_THAT(Of(u"[テキスト]\r\n  Delays happen\r\n"), IsEmpty());
}

TEST_F(Check, TextsThatBeginLikeAWord) {
    EXPECT_EQ(One(u"[テキスト]\r\nTablet\r\n"),
              "2:1 「TAB」で始まる文です → 命令として扱われ、文字は表示されません");
    EXPECT_EQ(One(u"[テキスト]\r\nEndless love\r\n"),
              "2:1 「END」で始まる文です → 命令として扱われ、文字は表示されません");
    EXPECT_THAT(Of(u"[テキスト]\r\nTab=4\r\nCls\r\nMovX =3\r\n"), IsEmpty());
}

TEST_F(Check, NumbersOutsideTheirRanges) {
    EXPECT_EQ(One(u"QBColor=16\r\n"), "1:9 QBCOLORの値 16 が範囲（0～15）の外です → 10 になります");
    EXPECT_EQ(One(u"LineSpace=99 //x\r\n"),
              "1:11 LINESPACEの値 99 が範囲（0～20）の外です → 20 になります");
    EXPECT_EQ(One(u"Sleep=61\r\n"),
              "1:7 SLEEPの値 61 が範囲（0～60）の外です → この行は無視されます");
    EXPECT_EQ(One(u"FontNo=7\r\n"),
              "1:8 FONTNOの値 7 が範囲（0～2）の外です → この値では何も変わりません");
    EXPECT_EQ(One(u"FontItalic=99999\r\n"),
              "1:12 FONTITALICの値が大きすぎます → "
              "[テキスト] の前ではマクロがここで終わり、後ではこの行が捨てられます");
    EXPECT_EQ(One(u"GRAD(300,2,3,4,5,-6,\"x\")\r\nCls\r\n"), "2 findings");
    EXPECT_EQ(One(u"TextOut(20,10,380,\"x\")\r\n"),
              "1:15 TEXTOUTの値 380 が範囲（0～360）の外です → 360 になります");
}

TEST_F(Check, NumbersThatAreReadOtherwise) {
    EXPECT_EQ(One(u"CurrentX=123456\r\n"),
              "1:10 CURRENTXの値は「=」から5文字までです → 12345 として扱われます");
    EXPECT_EQ(One(u"Delay=many\r\n"), "1:7 DELAYの値が数ではありません → 0 として扱われます");
    EXPECT_EQ(One(u"Delay\r\n"), "1:6 DELAYに「=」がありません → 値は 0 として扱われます");
}

TEST_F(Check, QuotedTexts) {
    EXPECT_EQ(One(u"FontName=ＭＳ 明朝\r\n"),
              "1:9 FONTNAMEに \"～\" で囲んだ文字がありません → 何もしません");
    EXPECT_EQ(One(u"BackColor=\"FFF\"\r\n"),
              "1:12 BACKCOLORの色が6文字ではありません → 000000 になります");
}

TEST_F(Check, Loops) {
    EXPECT_EQ(One(u"EndLoop\r\n"), "1:1 ENDLOOPの前にLOOPがありません → 何もしません");
    EXPECT_EQ(One(u"Cls\r\nLoop=3\r\n"), "2:1 LOOPにENDLOOPがありません → 繰り返しません");
}

TEST_F(Check, FilesThatAreNotThere) {
    EXPECT_EQ(One(u"PlayWav(\"x.wav\",0)\r\n"),
              "1:10 「x.wav」がありません → 表示も再生もされません");
    EXPECT_EQ(One(u"PicPB1(0,\"D:\\pics\\a.bmp\",\"\")\r\n"),
              "1:11 「D:\\pics\\a.bmp」がありません → 表示も再生もされません");
    EXPECT_EQ(One(u"Movie(\"D://a.mp4\",0)\r\n"),
              "1:10 ファイル名の中に「//」があります → そこから後ろは注釈として捨てられます");
    EXPECT_THAT(Of(u"PicPB1(0,\"\",\"\")\r\n"), IsEmpty());
}

TEST_F(Check, NumbersOfPiecesAndMenus) {
    EXPECT_EQ(One(u"PicPB63(0,\"\",\"\")\r\n"),
              "1:6 切取画像の番号は0～62です → 何も表示されません");
    EXPECT_EQ(One(u"Menu6(1,\"x\")\r\n"),
              "1:5 メニュー番号は1～5です → ボタンは出ず、このスライドは止めるまで待ち続けます");
}

TEST_F(Check, JumpsOutOfTheList) {
    // Slide 2 of 5: 3 slides ahead is the last one; SKIP goes one further than its number.
    EXPECT_THAT(Of(u"Menu1(3,\"x\")\r\nYesNoPB(-1,0)\r\nYesNoPB(0,3)\r\nSkip=2\r\n"), IsEmpty());
    EXPECT_EQ(One(u"Menu1(4,\"x\")\r\n"),
              "1:7 MENUの移動先がスライドリストの外です → 最後のスライドへ移ります");
    EXPECT_EQ(One(u"Skip=3\r\n"),
              "1:1 SKIPの移動先がスライドリストの外です → 最後のスライドへ移ります");
    EXPECT_EQ(One(u"YesNoPB(-2,0)\r\n"),
              "1:9 YESNOPBの移動先がスライドリストの外です → 最初のスライドへ移ります");
    slide = {u"C:\\show\\", 0, 0};
    EXPECT_THAT(Of(u"Skip=300\r\n"), IsEmpty());
}

TEST_F(Check, AnyTextIsTaken) {
    Text hostile;
    for (int i = 0; i < 60000; ++i) {
        hostile += static_cast<char16_t>((i * 7919) >> 2);
    }
    Of(hostile);
    for (const char16_t* line : {u"RGB(", u"GRAD(,,,,,,,", u"PICPB", u"PICPBDATA(", u"SKIP",
                                 u"SKIP=", u"MENU", u"=", u"\"", u"FONTNAME=\"", u"MOVPB99"}) {
        Of(line);
    }
}

}  // namespace
