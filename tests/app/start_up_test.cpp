// From the command line to the first user action.
#include <gtest/gtest.h>

#include "app_support.h"
#include "model/controls.h"
#include "model/picture_controls.h"
#include "model/windows/link_list.h"
#include "model/windows/main_window.h"
#include "model/windows/slide_list.h"
#include "model/windows/slide_screen.h"
#include "model/windows/sound_list.h"

namespace app_tests {
namespace {

constexpr int kTwips = 15;

TEST(StartUp, WithoutDocumentShowsTheMainWindow) {
    Program program;
    EXPECT_EQ(program.Run(), Program::kTimeOut);
    EXPECT_TRUE(program.form1.Visible);
    EXPECT_FALSE(program.windows.slidescreen.Visible);
    EXPECT_TRUE(program.around.dialogs.messages.empty());
    EXPECT_EQ(program.state.CommandLineKind, 0);
    EXPECT_EQ(program.state.SlideListEnd, 0);
    EXPECT_EQ(program.state.LoadingFromStart, 0);
    EXPECT_EQ(program.state.AppFolder, u"C:\\app\\");
}

TEST(StartUp, ButtonsWaitForSlides) {
    Program program;
    program.Run();
    model::Form1& form1 = program.form1;
    for (model::Button* button : {&form1.Command1, &form1.Command2, &form1.Command3,
                                  &form1.Command4, &form1.Command5, &form1.Command7}) {
        EXPECT_FALSE(button->Enabled) << button->Name();
    }
    for (model::Button* button : {&form1.Command6, &form1.Command10, &form1.Command11}) {
        EXPECT_TRUE(button->Enabled) << button->Name();
    }
}

TEST(StartUp, CentresTheWindowAndSizesThePreview) {
    Program program;
    program.around.monitors.monitors = {{0, 0, 1920, 1080}, {1920, 0, 1280, 1024}};
    program.form1.Width = 12600;
    program.form1.Height = 8800;
    program.Run();
    EXPECT_EQ(program.form1.Left, (1920 * kTwips - 12600) / 2);
    EXPECT_EQ(program.form1.Top, (1080 * kTwips - 8800) / 2);
    EXPECT_EQ(program.state.MainBottomMargin, 600);
    EXPECT_EQ(program.form1.Picture1.Width, 12600 - 600);
    EXPECT_EQ(program.form1.Picture1.Height, 8800 - 1450 - 600);
}

TEST(StartUp, PreviewFollowsTheWindow) {
    Program program;
    program.around.loop.At(10, [&] { program.form1.ResizeTo(9000, 7000); });
    program.Run();
    EXPECT_EQ(program.form1.Picture1.Width, 9000 - 600);
    EXPECT_EQ(program.form1.Picture1.Height, 7000 - 1450 - 600);
}

TEST(StartUp, SetsEveryStartDefaultWithItsMenuCheck) {
    Program program;
    for (const model::Setting& setting : model::Settings()) {
        if (!model::WriteField(program.state, setting.field, 77.0)) {
            model::WriteField(program.state, setting.field, Text(u"other"));
        }
    }
    program.form1.mnuKOU.Check(3);
    program.Run();
    for (const model::Setting& setting : model::Settings()) {
        EXPECT_EQ(model::ReadField(program.state, setting.field), setting.start) << setting.name;
    }
    model::Form1& form1 = program.form1;
    EXPECT_FALSE(form1.mnuKOU(3).Checked);
    EXPECT_TRUE(form1.mnuKOU(7).Checked);     // no sound
    EXPECT_TRUE(form1.mnuKUFL(0).Checked);    // repeat
    EXPECT_TRUE(form1.mnuRANDFL(1).Checked);  // list order
    EXPECT_TRUE(form1.mnuHKO(9).Checked);     // random effects
    EXPECT_TRUE(form1.mnuSYOUKO(9).Checked);
    EXPECT_TRUE(form1.mnuAUT(1).Checked);
    EXPECT_TRUE(form1.mnuSIZE(1).Checked);
    EXPECT_TRUE(form1.mnuFULL_FL(1).Checked);
    EXPECT_TRUE(form1.mnuSTKAKU(0).Checked);
    EXPECT_FALSE(form1.mnuCDM.Visible);
    EXPECT_FALSE(form1.mnuKAHAI.Visible);
    EXPECT_TRUE(form1.mnuHKSP.Visible);
    EXPECT_TRUE(form1.mnuSKSP.Visible);
    EXPECT_FALSE(form1.Timer1.Enabled);
    EXPECT_EQ(form1.Timer1.Interval, 3000);
}

TEST(StartUp, ClearsLabelsAndMacroSlots) {
    Program program;
    program.form1.Label1.Caption = u"old";
    program.windows.slidescreen.Label1.Caption = u"old";
    program.form1.Picture2(62).Visible = true;
    program.form1.Picture2(62).SetPicture(std::make_shared<platform::Bitmap>(1, 1));
    program.Run();
    EXPECT_EQ(program.form1.Label1.Caption(), u"");
    EXPECT_EQ(program.windows.slidescreen.Label1.Caption(), u"");
    for (auto& slot : program.form1.Picture2) {
        EXPECT_FALSE(slot->Visible) << slot->Name();
        EXPECT_EQ(slot->Picture(), nullptr) << slot->Name();
        EXPECT_NE(slot->BackColor, 0) << slot->Name();
    }
}

TEST(StartUp, ReadsTheVersionAfterTheImagingControlsName) {
    Program program;
    program.around.imaging.version = u"Imaging 1, 1996";
    program.Run();
    EXPECT_EQ(program.state.LeadVersion, 1996);
    Program nameless;
    nameless.around.imaging.version = u"none";
    nameless.Run();
    EXPECT_EQ(nameless.state.LeadVersion, 0);
}

TEST(StartUp, TellsOfAMonitorThatTheSystemCannotDescribe) {
    Program program;
    program.around.monitors.monitors = {{0, 0, 1280, 1024}, {}};
    program.Run();
    ASSERT_EQ(program.around.dialogs.messages.size(), 1u);
    EXPECT_EQ(program.around.dialogs.messages[0].text, u"APIｴﾗｰｺｰﾄﾞ = 0")
        << "no error of the system";
    EXPECT_EQ(program.around.dialogs.messages[0].flags, 16);
    EXPECT_EQ(program.state.MonitorCount, 2);
    EXPECT_EQ(program.state.MonitorRight[0], 19200);
    EXPECT_EQ(program.state.MonitorRight[1], 0);
}

TEST(StartUp, ReadsTheSoundListOfItsFolder) {
    Program program;
    program.around.PutText(u"C:\\app\\wavlist.dat", u"WAV3.4\r\n 2 \r\nC:\\s.mp3\r\nt.wav\r\n");
    program.Run();
    ASSERT_EQ(program.windows.form10.List1.ListCount(), 2);
    EXPECT_EQ(program.windows.form10.List1.List(0), u"C:\\s.mp3");
    EXPECT_EQ(program.state.ReadingDocument, 0);
}

TEST(StartUp, RefusedSecondInstanceEndsAfterTheFilesWereRead) {
    Program program;
    program.around.PutText(u"C:\\app\\wavlist.dat", u"WAV3.4\r\n 1 \r\nC:\\s.mp3\r\n");
    program.PutState(program.around, {.allowDuplicate = 1});
    program.system.previousInstance = true;
    EXPECT_EQ(program.Run(u"C:\\show\\two.kvs", true), 0);
    EXPECT_EQ(program.around.files.read,
              (std::vector<Text>{u"C:\\app\\wavlist.dat", u"C:\\app\\uautst.dat",
                                 u"C:\\app\\autstart.dat"}));
    EXPECT_TRUE(program.around.dialogs.messages.empty());
    EXPECT_TRUE(program.around.files.written.empty());
    EXPECT_FALSE(program.form1.Visible);
    EXPECT_FALSE(program.windows.slidescreen.Visible);
}

TEST(StartUp, AllowedSecondInstanceRuns) {
    Program program;
    program.system.previousInstance = true;
    EXPECT_EQ(program.Run(), Program::kTimeOut);
    EXPECT_TRUE(program.form1.Visible);
}

TEST(StartUp, FirstInstanceRunsWhateverTheSettingSays) {
    Program program;
    program.PutState(program.around, {.allowDuplicate = 1});
    EXPECT_EQ(program.Run(), Program::kTimeOut);
    EXPECT_TRUE(program.form1.Visible);
}

TEST(StartUp, DocumentGoesStraightToTheFullScreen) {
    Program program;
    program.around.loop.onPump = [&] { EXPECT_FALSE(program.form1.Visible); };
    EXPECT_EQ(program.Run(u"\"C:\\show\\two.kvs\"", true), Program::kTimeOut);
    EXPECT_TRUE(program.windows.slidescreen.Visible);
    EXPECT_EQ(program.state.BaseFolder, u"C:\\show\\");
    EXPECT_EQ(program.state.DocumentPath, u"C:\\show\\two.kvs");
    EXPECT_EQ(program.state.LoadingFromStart, 0);
    EXPECT_EQ(program.state.SlideListEnd, 3);
    EXPECT_EQ(program.state.FullScreenActive, 1);
    EXPECT_EQ(program.state.ShowRunning, 1);
    EXPECT_EQ(program.state.SlideIndex, 2);  // the next one to show
    EXPECT_EQ(program.state.SplashDone, 1);
    EXPECT_TRUE(program.around.textRenderer.drawn.empty());  // no title screen
    ASSERT_EQ(program.around.dialogs.messages.size(), 1u);
    EXPECT_EQ(program.around.dialogs.messages[0].text, u"スライド画面全体表示スタート");
    EXPECT_EQ(program.around.dialogs.messages[0].title, u"パラピコ");
    EXPECT_EQ(program.around.dialogs.messages[0].flags, 0);
    ASSERT_EQ(program.around.trace.Of("slide").size(), 1u);
    EXPECT_EQ(program.around.trace.Of("slide")[0].String("path"), u"C:\\show\\a.png");
}

TEST(StartUp, FullScreenCoversTheMainWindowsMonitor) {
    Program program;
    program.around.monitors.monitors = {{0, 0, 1920, 1080}, {1920, 0, 1280, 1024}};
    program.around.monitors.ofMainWindow = 1;
    program.Run(u"C:\\show\\two.kvs");
    const model::Slidescreen& slidescreen = program.windows.slidescreen;
    EXPECT_EQ(program.state.MonitorIndex, 1);
    EXPECT_EQ(slidescreen.Left, 1920 * kTwips);
    EXPECT_EQ(slidescreen.Top, 0);
    EXPECT_EQ(slidescreen.Width, 1280 * kTwips);
    EXPECT_EQ(slidescreen.Height, 1024 * kTwips);
    for (const model::PictureBox* layer : {&slidescreen.P2, &slidescreen.P3, &slidescreen.P4}) {
        EXPECT_EQ(layer->ScaleWidth(), 1280);
        EXPECT_EQ(layer->ScaleHeight(), 1024);
    }
}

TEST(StartUp, ComingBackFromTheFullScreenBringsNoTitle) {
    Program program;
    program.around.loop.At(10, [&] { program.windows.slidescreen.KeyDown(27); });
    program.around.loop.At(20, [&] {
        EXPECT_TRUE(program.form1.Visible);
        EXPECT_EQ(program.form1.Picture1.Width, 12600 - 600);
        EXPECT_EQ(program.state.IgnoreNextResize, 0);  // the first one was passed over
        program.form1.ResizeTo(9000, 7000);
        EXPECT_EQ(program.form1.Picture1.Width, 9000 - 600);
    });
    EXPECT_EQ(program.Run(u"C:\\show\\two.kvs", true), Program::kTimeOut);
    EXPECT_TRUE(program.around.textRenderer.drawn.empty());
}

TEST(StartUp, RefusedDocumentEndsTheProgramAfterTheMessage) {
    Program program;
    EXPECT_EQ(program.Run(u"C:\\show\\refused.kvs", true), 1);
    ASSERT_EQ(program.around.dialogs.messages.size(), 1u);
    EXPECT_EQ(program.around.dialogs.messages[0].text,
              u"C:\\show\\refused.kvs\r\nこのファイル名は適合しません。");
    EXPECT_EQ(program.around.dialogs.messages[0].flags, 48);
    EXPECT_EQ(program.around.dialogs.messages[0].title, u"ファイルを開く");
    EXPECT_FALSE(program.form1.Visible);
    EXPECT_FALSE(program.windows.slidescreen.Visible);
    EXPECT_TRUE(program.around.files.written.empty());
}

TEST(StartUp, RefusedLinkDocumentEndsTheProgramToo) {
    Program program;
    program.around.PutText(u"C:\\show\\bad.kvl", u"none\r\nx\r\n 0 \r\n");
    EXPECT_EQ(program.Run(u"C:\\show\\bad.kvl"), 1);
    EXPECT_EQ(program.around.dialogs.messages.size(), 1u);
    EXPECT_FALSE(program.windows.slidescreen.Visible);
}

TEST(StartUp, AMissingDocumentEndsTheProgramAfterTheMessage) {
    for (const char16_t* path : {u"C:\\show\\missing.kvs", u"C:\\show\\missing.kvl"}) {
        Program program;
        program.PutState(program.around, {.autoStart = 0, .slides = {u"C:\\show\\a.png"}});
        EXPECT_EQ(program.Run(path), 1);
        ASSERT_EQ(program.around.dialogs.messages.size(), 1u);
        EXPECT_EQ(program.around.dialogs.messages[0].text, u"ファイルが見つかりません。");
        EXPECT_EQ(program.around.dialogs.messages[0].title, u"");
        EXPECT_FALSE(program.form1.Visible);
        EXPECT_FALSE(program.windows.slidescreen.Visible);
        EXPECT_TRUE(program.around.files.written.empty());
    }
}

TEST(StartUp, AnEmptyLinkDocumentDoesNotPlayTheLastShow) {
    for (const int16_t autoStart : {0, 1}) {
        Program program;
        program.around.PutText(u"C:\\show\\none.kvl", u"1vue3167\r\nnone.kvl\r\n 0 \r\n");
        program.PutState(program.around, {.autoStart = autoStart, .slides = {u"C:\\show\\a.png"}});
        EXPECT_EQ(program.Run(u"C:\\show\\none.kvl"), Program::kTimeOut);
        EXPECT_TRUE(program.around.trace.Of("slide").empty());
        EXPECT_TRUE(program.form1.Visible);
    }
}

TEST(StartUp, OtherFilesLoadNothing) {
    Program program;
    EXPECT_EQ(program.Run(u"C:\\show\\a.png"), Program::kTimeOut);
    EXPECT_TRUE(program.form1.Visible);
    EXPECT_EQ(program.state.CommandLineKind, 0);
    EXPECT_EQ(program.state.BaseFolder, u"");
    EXPECT_TRUE(program.around.dialogs.messages.empty());
}

TEST(StartUp, LinkDocumentIsTakenOverWithoutItsAutoFlag) {
    Program program;
    program.around.PutText(u"C:\\show\\all.kvl",
                           u"1vue3167\r\nall.kvl\r\n 2 \r\none.kvs\r\nC:\\show\\two.kvs\r\n");
    EXPECT_EQ(program.Run(u"C:\\show\\all.kvl"), Program::kTimeOut);
    EXPECT_EQ(program.state.LinkAutoFlag, 0);
    EXPECT_EQ(program.state.LinkList(1), u"C:\\show\\one.kvs");
    EXPECT_EQ(program.state.LinkList(2), u"C:\\show\\two.kvs");
    EXPECT_EQ(program.state.LinkEnd, 3);
    EXPECT_EQ(program.state.LinkRunning, 1);
    EXPECT_EQ(program.state.LinkIndex, 2);  // the next document
    EXPECT_EQ(program.state.DocumentPath, u"C:\\show\\one.kvs");
    EXPECT_TRUE(program.windows.slidescreen.Visible);
    // A link run asks nobody whether it may start.
    EXPECT_TRUE(program.around.dialogs.messages.empty());
}

TEST(StartUp, EmptyLinkDocumentRunsNothing) {
    Program program;
    program.around.PutText(u"C:\\show\\none.kvl", u"1vue3167\r\nnone.kvl\r\n 0 \r\n");
    program.state.LinkList.Set(1, u"old");
    program.Run(u"C:\\show\\none.kvl");
    EXPECT_EQ(program.state.LinkList(1), u"");
    EXPECT_EQ(program.state.LinkEnd, 1);
    EXPECT_EQ(program.state.LinkRunning, 0);
    EXPECT_TRUE(program.windows.slidescreen.Visible);
}

TEST(StartUp, AutoStartNeedsSlides) {
    Program filled;
    filled.PutState(filled.around, {.autoStart = 0, .slides = {u"C:\\show\\a.png"}});
    EXPECT_EQ(filled.Run(u"", true), Program::kTimeOut);
    EXPECT_TRUE(filled.windows.slidescreen.Visible);
    EXPECT_FALSE(filled.form1.Visible);
    EXPECT_EQ(filled.state.SlideListEnd, 2);
    EXPECT_TRUE(filled.around.textRenderer.drawn.empty());

    Program empty;
    empty.PutState(empty.around, {.autoStart = 0});
    EXPECT_EQ(empty.Run(), Program::kTimeOut);
    EXPECT_TRUE(empty.form1.Visible);
    EXPECT_FALSE(empty.windows.slidescreen.Visible);
}

TEST(StartUp, BareAutoStartNumberStartsWithTheDefaults) {
    Program program;
    program.around.PutText(u"C:\\app\\autstart.dat", u" 0 \r\n");
    EXPECT_EQ(program.Run(), Program::kTimeOut);
    EXPECT_EQ(program.state.AutoStartFlag, 0);
    EXPECT_EQ(program.state.SoundMode, 7);
    EXPECT_TRUE(program.form1.Visible);
    EXPECT_TRUE(program.around.dialogs.messages.empty());
}

TEST(StartUp, StateComesBackWithItsListAndCaption) {
    Program program;
    program.PutState(program.around, {.slides = {u"C:\\show\\a.png", u"C:\\show\\b.png"}});
    program.Run();
    EXPECT_EQ(program.windows.form3.List1.ListCount(), 2);
    EXPECT_EQ(program.state.SlideListEnd, 3);
    EXPECT_TRUE(program.form1.Command1.Enabled);
    EXPECT_EQ(program.form1.Caption(), u"ｽﾗｲﾄﾞ - C:\\show\\two.kvs");
}

TEST(StartUp, DocumentOnTheCommandLineGoesBeforeTheStatesList) {
    Program program;
    program.PutState(program.around, {.slides = {u"C:\\show\\b.png"}});
    program.Run(u"C:\\show\\one.kvs");
    EXPECT_EQ(program.windows.form3.List1.ListCount(), 1);
    EXPECT_EQ(program.windows.form3.List1.List(0), u"C:\\show\\a.png");
    EXPECT_EQ(program.state.DocumentPath, u"C:\\show\\one.kvs");
}

TEST(StartUp, WindowStandsOnTheMonitorOfTheLastRun) {
    Program program;
    program.around.monitors.monitors = {{0, 0, 1920, 1080}, {1920, 0, 1280, 1024}};
    program.PutState(program.around, {.monitor = 1});
    program.Run();
    EXPECT_EQ(program.form1.Left, 1920 * kTwips + (1280 * kTwips - program.form1.Width) / 2);
    EXPECT_EQ(program.form1.Top, (1024 * kTwips - program.form1.Height) / 2);
}

TEST(StartUp, SlidesWithoutAutoStartWaitForStart) {
    Program program;
    program.system.asked = [&] {
        program.windows.form3.List1.AddItem(u"C:\\show\\a.png");
        program.state.SlideList.Set(1, u"C:\\show\\a.png");
    };
    program.Run();
    EXPECT_TRUE(program.form1.Visible);
    EXPECT_TRUE(program.form1.Command1.Enabled);
    EXPECT_TRUE(program.form1.Command4.Enabled);
    EXPECT_FALSE(program.form1.Command2.Enabled);
    EXPECT_EQ(program.state.SlideListEnd, 2);
}

TEST(StartUp, TheFirstPictureIsAskedForBeforeTheScreenComesUp) {
    Program program;
    program.Run(u"C:\\show\\two.kvs");
    ASSERT_GE(program.around.imaging.everWanted.size(), 2u);
    EXPECT_EQ(program.around.imaging.everWanted[0], u"C:\\show\\a.png");
    EXPECT_EQ(program.around.imaging.everWanted[1], u"C:\\show\\b.png") << "while the first stands";
}

TEST(StartUp, AListThatWaitsForStartHasItsFirstPictureAskedFor) {
    Program program;
    program.PutState(program.around, {.slides = {u"C:\\show\\b.png", u"C:\\show\\a.png"}});
    program.Run();
    ASSERT_EQ(program.around.imaging.wanted.size(), 1u);
    EXPECT_EQ(program.around.imaging.wanted[0].path, u"C:\\show\\b.png");
    Program without;
    without.Run();
    EXPECT_TRUE(without.around.imaging.everWanted.empty());
}

constexpr const char16_t* kLinkStateRest = u" \r\n 0 \r\n 0 \r\n\r\n 1 \r\nC:\\show\\two.kvs\r\n";

TEST(StartUp, LinkListStartsByItselfWithItsFlag) {
    Program program;
    program.around.PutText(u"C:\\app\\uautst.dat", Text(u"KVSV3\r\n 1") + kLinkStateRest);
    program.Run();
    EXPECT_EQ(program.state.LinkEnd, 2);
    EXPECT_EQ(program.state.LinkRunning, 1);
    EXPECT_TRUE(program.windows.slidescreen.Visible);

    Program waiting;
    waiting.around.PutText(u"C:\\app\\uautst.dat", Text(u"KVSV3\r\n 0") + kLinkStateRest);
    waiting.Run();
    EXPECT_EQ(waiting.windows.form9.List1.ListCount(), 1);
    EXPECT_EQ(waiting.state.LinkRunning, 0);
    EXPECT_EQ(waiting.state.LinkEnd, 0);
    EXPECT_TRUE(waiting.form1.Visible);
}

TEST(StartUp, ShowDocumentGoesBeforeTheLinkList) {
    Program program;
    program.around.PutText(u"C:\\app\\uautst.dat", Text(u"KVSV3\r\n 1") + kLinkStateRest);
    program.Run(u"C:\\show\\one.kvs");
    EXPECT_EQ(program.state.LinkRunning, 0);
    EXPECT_EQ(program.state.DocumentPath, u"C:\\show\\one.kvs");
}

TEST(StartUp, GarbageInTheProgramFolderStartsWithTheDefaults) {
    for (const char* content : {"", "\xFF\xFE\x00\x01", "V2.1a3567893sp6", "KVSV3", "WAV3.4",
                                "V2.1a3567893sp6\r\n x \r\n", "KVSV3\r\n 1"}) {
        Program program;
        for (const char16_t* name : {u"wavlist.dat", u"uautst.dat", u"autstart.dat"}) {
            program.around.files.Put(u"C:\\app\\" + Text(name), content);
        }
        EXPECT_EQ(program.Run(), Program::kTimeOut);
        EXPECT_TRUE(program.form1.Visible);
        EXPECT_TRUE(program.around.dialogs.messages.empty());
        EXPECT_EQ(program.state.AutoStartFlag, 1);
        EXPECT_EQ(program.state.ShowEffect, 9);
    }
}

TEST(StartUp, CdMenuStandsForCdSoundOnly) {
    Program program;
    Text document = ShowOf({u"a.png"});
    const Text none = u" 7 \r\n*.wav";
    document.replace(document.find(none), none.size(), u" 2 \r\n*.wav");
    program.around.PutText(u"C:\\show\\cd.kvs", document);
    program.Run(u"C:\\show\\cd.kvs");
    EXPECT_EQ(program.state.SoundMode, 2);
    EXPECT_TRUE(program.form1.mnuCDM.Visible);
}

}  // namespace
}  // namespace app_tests
