// A case for every word of the language: a macro, and what it must have changed.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <set>

#include "macro/keywords.h"
#include "macro_support.h"
#include "model/controls.h"
#include "model/windows/main_window.h"
#include "model/windows/picture_holder.h"

namespace {

using macro_tests::MacroShow;

struct Case {
    const char16_t* word;
    const char16_t* macro;
    bool (*changed)(MacroShow&);
    void (*before)(MacroShow&) = [](MacroShow&) {};
};

bool Drew(MacroShow& show, bool (*is)(const fakes::FakeTextRenderer::Line&)) {
    const auto& drawn = show.fake.textRenderer.drawn;
    return std::any_of(drawn.begin(), drawn.end(), is);
}

bool Asked(MacroShow& show, std::string_view operation) {
    const auto& log = show.fake.imaging.log;
    return std::find(log.begin(), log.end(), operation) != log.end();
}

void FullScreen(MacroShow& show) {
    show.GoFullScreen();
}

/// The show is stopped while the macro waits for a choice.
void StopLater(MacroShow& show) {
    show.fake.loop.At(500, [&show] { show.state.StopRequest = 1; });
}

platform::Canvas& Canvas(MacroShow& show) {
    return show.form1.Picture1.canvas;
}

using Line = fakes::FakeTextRenderer::Line;
using Show = MacroShow;

// In the order in which lines are tested for them.
const Case kCases[] = {
    {u"RGB", u"RGB(1,2,3)", [](Show& s) { return Canvas(s).color == 0x030201; }},
    {u"BORDERCOLOR", u"BorderColor=3", [](Show& s) { return s.state.BorderColorIndex == 3; }},
    {u"LINESPACE", u"LineSpace=7", [](Show& s) { return s.state.LineSpaceExtra == 7; }},
    {u"MOVIE", u"Movie(\"C:\\show\\a.mp4\",2)", [](Show& s) { return s.fake.video.looping; }},
    {u"BORDERLESS", u"Borderless=1", [](Show& s) { return s.state.OverlayFrameOff == 1; }},
    {u"BACKCOLOR", u"BackColor=\"10aB30\"",
     [](Show& s) { return s.state.OverlayBackText == u"10aB30"; }},
    {u"TAB", u"Tab=4\r\n[テキスト]\r\na\tb",
     [](Show& s) { return Drew(s, [](const Line& l) { return l.text == u"a   b"; }); }},
    {u"PICRESIZE", u"PicResize=50", [](Show& s) { return s.state.PictureScale == 0.5; }},
    {u"MP3VOL", u"MP3Vol=40", [](Show& s) { return s.state.Mp3VolumeOffset == 600; }},
    {u"MP3DOWN", u"MP3Down", [](Show& s) { return s.state.Mp3VolumeOffset == 100; }},
    {u"MP3UP", u"MP3Up", [](Show& s) { return s.state.Mp3VolumeOffset == 200; },
     [](Show& s) { s.state.Mp3VolumeOffset = 300; }},
    {u"INTERVAL", u"Interval=7",
     [](Show& s) { return s.form1.Timer1.Interval() == 7000 && s.state.SlideIntervalSec == 7; }},
    {u"POSITION", u"Position=10.20",
     [](Show& s) {
         return s.state.PicturePositionFixed == 1 && s.state.PicturePositionXFactor == 0.1 &&
                s.state.PicturePositionYFactor == 0.2;
     }},
    {u"DOWNSIZE", u"DownSize=5", [](Show& s) { return s.state.OverlaySize == 5; }},
    {u"FADEOUT", u"FadeOut=0", [](Show& s) { return s.state.SoundVolumeRestart == 1; }},
    {u"TELOP", u"Telop(1,2,\"run\")",
     [](Show& s) {
         return s.form1.Label1.Visible && s.state.TelopText == u"run" && s.state.TelopStep == 2;
     }},
    {u"CURSOR", u"Cursor=0", [](Show& s) { return s.state.MacroCursorHidden == 1; }, FullScreen},
    {u"ENDTIME", u"EndTime=2",
     [](Show& s) { return s.Now() == 2000 && s.state.MacroEndShow == 1; }},
    {u"MOVX", u"MovX=9", [](Show& s) { return Canvas(s).penX == 9; }},
    {u"MOVY", u"MovY=9", [](Show& s) { return Canvas(s).penY == 9; }},
    {u"SOUNDSET", u"SoundSet=8", [](Show& s) { return s.state.SoundMode == 8; }},
    {u"LOOP", u"Loop=3\r\nMovX=5\r\nEndLoop", [](Show& s) { return Canvas(s).penX == 15; }},
    {u"ENDLOOP", u"Loop=2\r\nMovX=5\r\nEndLoop\r\nMovX=1",
     [](Show& s) { return Canvas(s).penX == 11; }},
    {u"PICPBDATA", u"PicPBData(3,\"a.dat\")",
     [](Show& s) {
         return s.state.CutoutDataFile[3] == u"C:\\show\\A.DAT" && s.state.PicPbType == 999;
     }},
    {u"PICPBTYPE", u"PicPBType=2", [](Show& s) { return s.state.PicPbType == 2; }},
    {u"GRAD", u"Grad(0,0,0,200,0,0,\"xy\")",
     [](Show& s) {
         return Drew(s, [](const Line& l) { return l.text == u"x" && l.color == 100; }) &&
                Drew(s, [](const Line& l) { return l.text == u"y" && l.color == 200; });
     }},
    {u"STOPWAV", u"StopWav",
     [](Show& s) { return !s.fake.sound.played.empty() && !s.fake.sound.played[0].first; }},
    {u"KSPSET", u"KSPSet=1",
     [](Show& s) { return s.state.EffectSpeedFixed == 1 && s.state.ShowEffectSpeed == -30; },
     [](Show& s) { s.state.EffectSpeedFixed = 0; }},
    {u"OVERPIC", u"OverPic=-1", [](Show& s) { return s.state.OverPicMode == -1; }},
    {u"KOUKASP", u"KoukaSP=5", [](Show& s) { return s.state.ShowEffectSpeed == 5; }},
    {u"DELKOUKASP", u"DelKoukaSP=5", [](Show& s) { return s.state.EraseEffectSpeed == 5; }},
    {u"KOUKA", u"Kouka=3", [](Show& s) { return s.state.ShowEffect == 2; }},
    {u"DELKOUKA", u"DelKouka=3", [](Show& s) { return s.state.EraseEffect == 2; }},
    {u"//", u"//CurrentX=5", [](Show& s) { return s.Words() == std::vector<std::string>{"1 //"}; }},
    {u"SAVEPIC", u"SavePic", [](Show& s) { return s.screen.P3.canvas.Point(9, 9) == 0x123456; },
     [](Show& s) {
         s.GoFullScreen();
         s.screen.P2.canvas.Fill(0x123456);
     }},
    {u"CTRLBOX", u"CtrlBox=1", [](Show& s) { return s.state.ControlBoxFlag == 0; },
     [](Show& s) { s.state.ControlBoxFlag = 1; }},
    {u"PICRND", u"PicRnd=1", [](Show& s) { return s.state.PicturePosition == 1; },
     [](Show& s) { s.state.PicturePosition = 0; }},
    {u"TEXTOUT", u"TextOut(20,10,90,\"up\")",
     [](Show& s) {
         return Drew(s, [](const Line& l) { return l.turn && l.text.starts_with(u"up"); });
     }},
    {u"SOUNDEND", u"SoundEnd=0", [](Show& s) { return s.state.SoundSyncFlag == 1; },
     [](Show& s) { s.state.SoundSyncFlag = 0; }},
    {u"PLAYWAV", u"PlayWav(\"a.wav\",2)",
     [](Show& s) {
         const std::pair<std::optional<Text>, int> looping{u"C:\\show\\A.WAV", 11};
         return s.fake.sound.played == std::vector{looping};
     }},
    {u"SLEEP", u"Sleep=1", [](Show& s) { return s.Now() == 1000; }},
    {u"PICPB", u"PicPB02(0,\"a.bmp\",\"\")",
     [](Show& s) { return s.state.CutoutActive[2] == 1 && s.form1.Picture2(2).Visible; }},
    {u"MOVPB", u"PicPB2(0,\"a.bmp\",\"\")\r\nMovPB02(6,4,10)",
     [](Show& s) { return s.form1.Picture2(2).Left == 6 && s.form1.Picture2(2).Top == 4; }},
    {u"SCREENXY", u"ScreenXY=1",
     [](Show& s) { return s.state.TextOriginScreen == 1 && s.screen.P2.canvas.penX == 0; },
     FullScreen},
    {u"BIT", u"Bit", [](Show& s) { return Asked(s, "colors 1"); }},
    {u"REVERSE", u"Reverse", [](Show& s) { return Asked(s, "reverse"); }},
    {u"FLIP", u"Flip", [](Show& s) { return Asked(s, "flip"); }},
    {u"PENCIL", u"Pencil",
     [](Show& s) { return Asked(s, "edges 8") && Asked(s, "gray") && Asked(s, "invert"); }},
    {u"METAL", u"Metal", [](Show& s) { return Asked(s, "emboss 0 700") && Asked(s, "gray"); }},
    {u"MOSAIC", u"Mosaic", [](Show& s) { return Asked(s, "mosaic 8"); }},
    {u"GRAYSCALE", u"GrayScale", [](Show& s) { return Asked(s, "gray"); }},
    {u"SHELL", u"Shell=\"C:\\a.exe\"",
     [](Show& s) {
         return s.fake.system.started.size() == 1 && s.fake.system.started[0].first == u"C:\\a.exe";
     }},
    {u"FONTNAME", u"FontName=\"Mincho\"", [](Show& s) { return Canvas(s).font.name == u"Mincho"; }},
    {u"CLS", u"Cls", [](Show& s) { return s.screen.P2.canvas.Point(9, 9) == 0x123456; },
     [](Show& s) {
         s.GoFullScreen();
         s.screen.P4.canvas.Fill(0x123456);
     }},
    {u"OVERLAP", u"Overlap=2", [](Show& s) { return s.state.OverlayMode == 2; }},
    {u"WINSTATE", u"WinState=2", [](Show& s) { return s.form1.WindowState == 2; }},
    {u"SIZECTRL", u"SizeCtrl=2", [](Show& s) { return s.state.SizeAdjust == 1; },
     [](Show& s) { s.state.SizeAdjust = 0; }},
    {u"MENU", u"Menu3(2,\"go\")",
     [](Show& s) {
         return s.state.MenuJump[3] == 2 && s.form1.menu3.Visible &&
                s.form1.menu3.Caption() == u"go";
     },
     StopLater},
    {u"LOCK", u"Lock=1", [](Show& s) { return s.state.MacroWaitClick == 1; }},
    {u"END", u"End=1", [](Show& s) { return s.state.ShowAbort == 1 && s.state.MacroEndShow == 1; }},
    {u"DELAY", u"Delay=0.5\r\n[テキスト]\r\nx", [](Show& s) { return s.Now() >= 500; }},
    {u"SKIP", u"Skip=1",
     [](Show& s) { return s.state.SlideIndex == 2 && s.state.MacroEndShow == 1; }},
    {u"YESNOPB", u"YesNoPB(2,0)",
     [](Show& s) { return s.state.SlideIndex == 2 && s.state.MacroEndShow == 1; },
     [](Show& s) { s.fake.loop.At(100, [&s] { s.state.MacroNextPressed = 1; }); }},
    {u"FONTITALIC", u"FontItalic=1", [](Show& s) { return Canvas(s).font.italic; }},
    {u"FONTBOLD", u"FontBold=1", [](Show& s) { return Canvas(s).font.bold; }},
    {u"FONTUNDERLINE", u"FontUnderLine=1", [](Show& s) { return Canvas(s).font.underline; }},
    {u"QBCOLOR", u"QBColor=4", [](Show& s) { return Canvas(s).color == 0x000080; }},
    {u"FONTSIZE", u"FontSize=33", [](Show& s) { return Canvas(s).font.sizePoints == 33; }},
    {u"FONTNO", u"FontNo=2", [](Show& s) { return Canvas(s).font.name == u"ＭＳ 明朝"; }},
    {u"CURRENTX", u"CurrentX=12", [](Show& s) { return Canvas(s).penX == 12; }},
    {u"CURRENTY", u"CurrentY=12", [](Show& s) { return Canvas(s).penY == 12; }},
    {u"KAGE", u"Kage=1\r\n[テキスト]\r\nx",
     [](Show& s) { return Drew(s, [](const Line& l) { return l.x == 5 && l.y == 3; }); }},
    {u"ZUREX", u"Kage=1\r\nZureX=9\r\n[テキスト]\r\nx",
     [](Show& s) { return Drew(s, [](const Line& l) { return l.x == 9 && l.y == 3; }); }},
    {u"ZUREY", u"Kage=1\r\nZureY=-2\r\n[テキスト]\r\nx",
     [](Show& s) { return Drew(s, [](const Line& l) { return l.x == 5 && l.y == -2; }); }},
};

std::unique_ptr<MacroShow> Ready(const Case& row) {
    auto show = std::make_unique<MacroShow>();
    show->fake.PutPicture(u"C:\\show\\a.bmp", 10, 8);
    show->app.windows.form4.Lead1.imaging->Load(u"C:\\show\\a.bmp", nullptr);
    row.before(*show);
    return show;
}

TEST(EveryWord, ChangesWhatItIsThereFor) {
    for (const Case& row : kCases) {
        SCOPED_TRACE(text::ToUtf8(row.word));
        const auto show = Ready(row);
        EXPECT_FALSE(row.changed(*show)) << "the case proves nothing";
        show->Play(row.macro);
        EXPECT_TRUE(row.changed(*show));
        const auto words = show->Words();
        EXPECT_TRUE(std::any_of(words.begin(), words.end(), [&](const std::string& word) {
            return word.ends_with(" " + text::ToUtf8(row.word));
        })) << "the trace names the word";
    }
}

TEST(EveryWord, LineOfAnUnknownWordChangesNone) {
    for (const Case& row : kCases) {
        SCOPED_TRACE(text::ToUtf8(row.word));
        const auto show = Ready(row);
        show->fake.loop.Run(1);
        // A blank before every line: none is a word, and no text has begun.
        Text macro = u" " + Text(row.macro);
        for (size_t at = macro.find(u'\n'); at != Text::npos; at = macro.find(u'\n', at + 1)) {
            macro.insert(at + 1, u" ");
        }
        show->Play(macro);
        EXPECT_TRUE(show->Words().empty());
    }
}

TEST(EveryWord, YesAndNoStandSideBySide) {
    MacroShow show;
    const auto place = [](const model::Button& button) {
        return std::vector<int>{button.Left, button.Width / platform::kTwipsPerPixel};
    };
    StopLater(show);
    show.Play(u"CurrentX=10\r\nYesNoPB(1,1)");
    for (const auto& [yes, no] : {std::pair{&show.screen.Command1, &show.screen.Command2},
                                  std::pair{&show.form1.Command8, &show.form1.Command9}}) {
        EXPECT_GT(place(*yes)[1], 0);
        EXPECT_EQ(place(*no)[0], place(*yes)[0] + place(*yes)[1] + 4);
    }
}

TEST(EveryWord, HasACase) {
    std::set<Text> cases;
    for (const Case& row : kCases) {
        EXPECT_TRUE(cases.insert(row.word).second) << text::ToUtf8(row.word) << " twice";
    }
    for (const macro::Keyword& keyword : macro::Keywords()) {
        EXPECT_TRUE(cases.contains(Text(keyword.name)))
            << "no case for " << text::ToUtf8(keyword.name);
    }
    EXPECT_EQ(cases.size(), macro::Keywords().size());
}

}  // namespace
