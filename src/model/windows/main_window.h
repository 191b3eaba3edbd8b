// Form1: the main window with the preview, the transport buttons and the menus.
#pragma once

#include "model/controls.h"
#include "model/menu.h"
#include "model/picture_controls.h"
#include "model/window.h"

namespace model {

struct Form1 : Window {
    /// While no document is open.
    static constexpr TextView kFirstCaption = u"ﾊﾟﾗﾋﾟｺ Win Ver.9.10";

    Form1();

    Property<int> ShownSlide{*this, "ShownSlide"};  // 1-based; 0 while no show is under way

    PictureBox Picture1{this, "Picture1"};                             // preview
    PictureBox Picture3{this, "Picture3"};                             // stands in for a video
    Label Label1{this, "Label1"};                                      // scrolling text
    Label SlideCount{this, "SlideCount"};                              // "3 / 12"
    ControlArray<PictureBox> Picture2{this, "Picture2", 0, 63, true};  // cut-out pieces

    Button Command1{this, "Command1", u"START"};
    Button Command2{this, "Command2", u"PAUSE"};
    Button Command3{this, "Command3", u"STOP"};
    Button Command4{this, "Command4", u"画面全体"};
    Button Command5{this, "Command5", u"前画面"};
    Button Command6{this, "Command6", u"スライドリスト"};  // opens Form3
    Button Command7{this, "Command7", u"次画面"};
    Button Command10{this, "Command10", u"サウンドリスト"};  // opens Form10
    Button Command11{this, "Command11", u"スケジュール"};    // opens Form22

    // Placed by macros.
    Button Command8{this, "Command8", u"Yes"};
    Button Command9{this, "Command9", u"No"};
    Button menu1{this, "menu1"};
    Button menu2{this, "menu2"};
    Button menu3{this, "menu3"};
    Button menu4{this, "menu4"};
    Button menu5{this, "menu5"};

    Timer Timer1{this, "Timer1", 3000};  // slide advance
    Timer Timer2{this, "Timer2"};        // one shot: clears the preview
    Timer Timer3{this, "Timer3"};        // ends a macro's wait
    Timer Timer4{this, "Timer4"};        // scrolls the text

    MenuEntry mnuFILE{this, "mnuFILE", u"ファイル(&F)"};
    MenuEntry mnuNEW{this, "mnuNEW", u"新規作成(&N)", &mnuFILE};
    MenuEntry mnuOPEN{this, "mnuOPEN", u"KVSﾌｧｲﾙを開く(&O)", &mnuFILE};
    MenuEntry mnuSAVE{this, "mnuSAVE", u"KVSﾌｧｲﾙを保存(&S)", &mnuFILE};
    MenuEntry mnuHAIHU{this, "mnuHAIHU", u"KVSﾌｧｲﾙを配布保存(&H)", &mnuFILE};
    MenuEntry nmuEND{this, "nmuEND", u"終了(&X)", &mnuFILE};

    // A radio array and the entry that holds it: where only the array has a name of its own, the
    // entry bears the same name without index.
    MenuEntry mnuOPTION{this, "mnuOPTION", u"設定(&S)"};
    MenuEntry mnuFULL_FLHead{this, "mnuFULL_FL", u"常に画面全体でスタート(&G)", &mnuOPTION};
    MenuArray mnuFULL_FL{this, "mnuFULL_FL", mnuFULL_FLHead, {u"あり", u"なし"}};
    MenuEntry mnuYOMIHead{this, "mnuYOMI", u"画像読込モード(&M)", &mnuOPTION};
    MenuArray mnuYOMI{this, "mnuYOMI", mnuYOMIHead, {u"互換モード", u"読込優先モード （標準）"}};
    MenuEntry mnuTIME{this, "mnuTIME", u"時間設定(&J)", &mnuOPTION};
    MenuEntry mnuKUFLHead{this, "mnuKUFL", u"繰り返し(&K)", &mnuOPTION};
    MenuArray mnuKUFL{this, "mnuKUFL", mnuKUFLHead, {u"あり", u"なし"}};
    MenuEntry mnuWAVLIST{this, "mnuWAVLIST", u"WAV,MID,MP3リスト", &mnuOPTION};
    MenuEntry mnuKOUHead{this, "mnuKOU", u"効果音設定(&S)", &mnuOPTION};
    MenuArray mnuKOU{this,
                     "mnuKOU",
                     mnuKOUHead,
                     {u"共通音再生", u"画像連動(WAV)再生", u"CD再生", u"WAV再生", u"MIDI再生",
                      u"画像連動(MIDI)再生", u"WAV,MID,MP3リスト再生", u"なし", u"ＭＰ３再生",
                      u"画像連動(MP３)再生"}};
    MenuEntry mnuDOUKI{this, "mnuDOUKI", u"効果音同期(&D)", &mnuOPTION};
    MenuArray mnuDOU{this, "mnuDOU", mnuDOUKI, {u"あり", u"なし"}};
    MenuEntry mnuKOICHI{this, "mnuKOICHI", u"画像連動効果音位置(&I)", &mnuOPTION};
    MenuArray mnuKOICHI1{this, "mnuKOICHI1", mnuKOICHI, {u"ﾃｷｽﾄ表示前に再生", u"ﾃｷｽﾄ表示後に再生"}};
    MenuEntry mnuTEXTHead{this, "mnuTEXT", u"テキスト表示マクロ(&T)", &mnuOPTION};
    MenuArray mnuTEXT{this, "mnuTEXT", mnuTEXTHead, {u"あり", u"なし"}};
    MenuEntry mnuRENF{this, "mnuRENF", u"画像連動フォルダ指定(&F)", &mnuOPTION};
    MenuEntry mnuRANDFLHead{this, "mnuRANDFL", u"ランダム実行(&R)", &mnuOPTION};
    MenuArray mnuRANDFL{this, "mnuRANDFL", mnuRANDFLHead, {u"あり", u"なし"}};

    MenuEntry mnuCOMMON{this, "mnuCOMMON", u"共通設定(&P)"};
    MenuEntry mnuAUTHead{this, "mnuAUT", u"オートスタート", &mnuCOMMON};
    MenuArray mnuAUT{this, "mnuAUT", mnuAUTHead, {u"あり", u"なし"}};
    MenuEntry mnuCTLHead{this, "mnuCTL", u"コントロールBOX", &mnuCOMMON};
    MenuArray mnuCTL{this, "mnuCTL", mnuCTLHead, {u"あり", u"なし"}};
    MenuEntry mnuCTL_PHead{this, "mnuCTL_P", u"コントロールBOX位置", &mnuCOMMON};
    MenuArray mnuCTL_P{this, "mnuCTL_P", mnuCTL_PHead, {u"右上", u"右下"}};
    MenuEntry mnuSIZEHead{this, "mnuSIZE", u"サイズ調整", &mnuCOMMON};
    MenuArray mnuSIZE{this, "mnuSIZE", mnuSIZEHead, {u"調整１", u"調整２", u"なし"}};
    MenuEntry mnuLSAKUHead{this, "mnuLSAKU", u"リスト（エラー）削除", &mnuCOMMON};
    MenuArray mnuLSAKU{this, "mnuLSAKU", mnuLSAKUHead, {u"手動", u"自動"}};
    MenuEntry mnuSOP1Head{this, "mnuSOP1", u"スタートオプション", &mnuCOMMON};
    MenuArray mnuSOP1{this, "mnuSOP1", mnuSOP1Head, {u"先頭よりスタート", u"継続スタート"}};
    MenuEntry mnuSTKAKUHead{this, "mnuSTKAKU", u"画面全体スタート確認", &mnuCOMMON};
    MenuArray mnuSTKAKU{this, "mnuSTKAKU", mnuSTKAKUHead, {u"あり", u"なし"}};
    MenuEntry mnuJYUFHead{this, "mnuJYUF", u"重複起動許可", &mnuCOMMON};
    MenuArray mnuJYUF{this, "mnuJYUF", mnuJYUFHead, {u"あり", u"なし"}};
    MenuEntry menuHEADHead{this, "menuHEAD", u"ユーザーマクロヘッダー", &mnuCOMMON};
    MenuArray menuHEAD{this, "menuHEAD", menuHEADHead, {u"ヘッダー選択", u"なし"}};

    MenuEntry mnuGKO{this, "mnuGKO", u"画面効果(&G)"};
    MenuEntry mnuHKOHead{this, "mnuHKO", u"画面表示効果(&H)", &mnuGKO};
    MenuArray mnuHKO{this,
                     "mnuHKO",
                     mnuHKOHead,
                     {u"①上から", u"②下から", u"③左から", u"④右から", u"⑤中央から", u"⑥外側から",
                      u"⑦横スリット", u"⑧縦スリット", u"⑨モザイク", u"ランダム", u"順次", u"なし"}};
    MenuEntry mnuSYOUKOHead{this, "mnuSYOUKO", u"画面消去効果(&D)", &mnuGKO};
    MenuArray mnuSYOUKO{
        this,
        "mnuSYOUKO",
        mnuSYOUKOHead,
        {u"①上から", u"②下から", u"③左から", u"④右から", u"⑤中央から", u"⑥外側から", u"⑦横スリット",
         u"⑧縦スリット", u"⑨モザイク", u"ランダム", u"順次", u"表示効果連動", u"なし"}};
    MenuEntry mnuKSPSELHead{this, "mnuKSPSEL", u"効果スピード(&S)", &mnuGKO};
    MenuArray mnuKSPSEL{this, "mnuKSPSEL", mnuKSPSELHead, {u"可変", u"固定"}};
    MenuEntry mnuHKSP{this, "mnuHKSP", u"表示効果スピード", &mnuGKO};
    MenuEntry mnuSKSP{this, "mnuSKSP", u"消去効果スピード", &mnuGKO};
    MenuEntry mnuHOSEI{this, "mnuHOSEI", u"画面効果スピード補正", &mnuGKO};

    MenuEntry mnuKASANEHead{this, "mnuKASANE", u"画像重ね合せ処理(&K)"};
    MenuArray mnuKASANE{this,
                        "mnuKASANE",
                        mnuKASANEHead,
                        {u"なし", u"重ね合せ（カラー）", u"重ね合せ（白黒化）",
                         u"重ね合せ（２値化）", u"重ね合せ（おまかせ）"}};
    MenuEntry mnuKAHAI{this, "mnuKAHAI", u"     画像重ね合せ背景色", &mnuKASANEHead};
    MenuArray mnuKAIRO{this,
                       "mnuKAIRO",
                       mnuKAHAI,
                       {u"濃い灰", u"薄い灰", u"黒", u"薄赤", u"薄茶", u"薄黄", u"薄緑", u"薄水色",
                        u"薄青", u"薄ピンク"}};
    MenuEntry mnuKASASHead{this, "mnuKASAS", u"画像サイズ", &mnuKASANEHead};
    MenuArray mnuKASAS{this,
                       "mnuKASAS",
                       mnuKASASHead,
                       {u"画面の１００％", u"画面の  ８０％", u"画面の  ６０％", u"画面の  ４０％",
                        u"画面の  ２０％", u"おまかせ", u"調整なし"}};

    MenuEntry mnuHICHIHead{this, "mnuHICHI", u"画像表示位置(&I)"};
    MenuArray mnuHICHI{this, "mnuHICHI", mnuHICHIHead, {u"中央", u"ランダム"}};
    MenuEntry mnuICHI{this, "mnuICHI", u"４画面(&M)"};
    MenuEntry mnuURU{this, "mnuURU", u"KVSリンク(&U)"};

    MenuEntry mnuCDM{this, "mnuCDM", u"CD再生(&C)"};
    MenuEntry mnuCDRNDHead{this, "mnuCDRND", u"曲順設定(&N)", &mnuCDM};
    MenuArray mnuCDRND{this, "mnuCDRND", mnuCDRNDHead, {u"トラック順", u"ランダム", u"プログラム"}};
    MenuEntry mnuCD{this, "mnuCD", u"トラック設定(&T)", &mnuCDM};
    MenuEntry mnuCDRP{this, "mnuCDRP", u"１曲リピート(&R)", &mnuCDM};
    MenuArray mnuCDR{this, "mnuCDR", mnuCDRP, {u"あり", u"なし"}};
    MenuEntry mnuCDWAVHead{this, "mnuCDWAV", u"ＣＤ＋画像連動(WAV)(&P)", &mnuCDM};
    MenuArray mnuCDWAV{this, "mnuCDWAV", mnuCDWAVHead, {u"あり", u"なし"}};

    // What the buttons do, once more: for the keyboard and for those who look in menus.
    MenuEntry mnuPLAY{this, "mnuPLAY", u"再生(&R)"};
    MenuEntry mnuSTART{this, "mnuSTART", u"START", &mnuPLAY};
    MenuEntry mnuPAUSE{this, "mnuPAUSE", u"PAUSE", &mnuPLAY};
    MenuEntry mnuSTOP{this, "mnuSTOP", u"STOP", &mnuPLAY};
    MenuEntry mnuPREVIOUS{this, "mnuPREVIOUS", u"前画面", &mnuPLAY};
    MenuEntry mnuNEXT{this, "mnuNEXT", u"次画面", &mnuPLAY};
    MenuEntry mnuFULL{this, "mnuFULL", u"画面全体", &mnuPLAY};
    MenuEntry mnuLIST{this, "mnuLIST", u"スライドリスト", &mnuPLAY};
    MenuEntry mnuSOUNDS{this, "mnuSOUNDS", u"サウンドリスト", &mnuPLAY};
    MenuEntry mnuSCHEDULE{this, "mnuSCHEDULE", u"スケジュール", &mnuPLAY};

    MenuEntry mnuHELP{this, "mnuHELP", u"説明(&H)"};
    MenuEntry mnuGAI{this, "mnuGAI", u"機能概要.txt", &mnuHELP};
    MenuEntry mnuREADME{this, "mnuREADME", u"Readme.txt", &mnuHELP};
    MenuEntry mnuSUB{this, "mnuSUB", u"マクロ.txt", &mnuHELP};
};

}  // namespace model
