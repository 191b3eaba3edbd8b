// New, open, save and distribution save of show documents.
#include "authoring/slide_list/documents.h"

#include <gtest/gtest.h>

#include "app/app_support.h"
#include "model/controls.h"
#include "model/windows/link_list.h"
#include "model/windows/main_window.h"
#include "model/windows/slide_list.h"
#include "model/windows/sound_list.h"

namespace authoring {
namespace {

using app_tests::ShowOf;
using platform::Answer;

constexpr const char16_t* kFilter = u"ｽﾗｲﾄﾞFiles (*.kvs)|*.kvs|すべてのﾌｧｲﾙ(*.*)|*.*";

struct Desk : fakes::FakePlatform {
    model::ShowState& state = app.state;
    model::Windows& windows = app.windows;
    model::Form3& form3 = app.windows.form3;

    Desk() { PutText(u"C:\\show\\two.kvs", ShowOf({u"a.png", u"D:\\p\\b.png"})); }
    bool Open(const Text& path) {
        dialogs.fileAnswers = {path};
        return OpenDocument(app);
    }
    std::vector<model::Button*> LinkedFileButtons() {
        return {&form3.Command16, &form3.Command17, &form3.Command18, &form3.Command19,
                &form3.Command20};
    }
    /// Line of a written document, counted from 1.
    Text LineOf(TextView path, int number) {
        Text content = text::DecodeFile(files.Get(path)->content, codePage);
        for (int i = 1; i < number; ++i) {
            content = content.substr(content.find(u"\r\n") + 2);
        }
        return content.substr(0, content.find(u"\r\n"));
    }
};

TEST(Open, AsksAndReadsTheChosenDocument) {
    Desk desk;
    for (model::Button* button : desk.LinkedFileButtons()) {
        button->Enabled = true;
    }
    EXPECT_TRUE(desk.Open(u"C:\\show\\two.kvs"));
    ASSERT_EQ(desk.dialogs.requests.size(), 1u);
    const auto& request = desk.dialogs.requests[0];
    EXPECT_FALSE(request.save);
    EXPECT_EQ(request.title, u"パラピコ　ファイルを開く");
    EXPECT_EQ(request.filter, kFilter);
    EXPECT_EQ(request.initial, u"*.kvs");
    EXPECT_EQ(desk.state.BaseFolder, u"C:\\show\\");
    EXPECT_EQ(desk.form3.List1.List(0), u"C:\\show\\a.png");
    EXPECT_EQ(desk.form3.List1.List(1), u"D:\\p\\b.png");
    EXPECT_EQ(desk.form3.Label4.Caption(), u"2");
    EXPECT_EQ(desk.state.DocumentName, u"two.kvs");
    for (model::Button* button : desk.LinkedFileButtons()) {
        EXPECT_FALSE(button->Enabled) << button->Name();
    }
}

TEST(Open, TheFirstPictureIsAskedForAndForgottenWithTheDocument) {
    Desk desk;
    desk.Open(u"C:\\show\\two.kvs");
    ASSERT_EQ(desk.imaging.wanted.size(), 1u);
    EXPECT_EQ(desk.imaging.wanted[0].path, u"C:\\show\\a.png");
    NewDocument(desk.app);
    EXPECT_TRUE(desk.imaging.wanted.empty());
}

TEST(Open, FolderEndsAfterTheLastSeparatorOrColon) {
    Desk desk;
    desk.PutText(u"E:x.kvs", ShowOf({u"a.png"}));
    desk.Open(u"E:x.kvs");
    EXPECT_EQ(desk.state.BaseFolder, u"E:");
    EXPECT_EQ(desk.form3.List1.List(0), u"E:a.png");
    desk.PutText(u"/home/me/x.kvs", ShowOf({u"a.png"}));
    desk.Open(u"/home/me/x.kvs");
    EXPECT_EQ(desk.form3.List1.List(0), u"/home/me/a.png");
}

TEST(Open, CancelChangesNothing) {
    Desk desk;
    desk.state.BaseFolder = u"D:\\";
    desk.form3.Command18.Enabled = true;
    EXPECT_FALSE(OpenDocument(desk.app));
    EXPECT_EQ(desk.state.BaseFolder, u"D:\\");
    EXPECT_TRUE(desk.form3.Command18.Enabled);
    EXPECT_TRUE(desk.files.read.empty());
}

TEST(Open, RefusedDocumentIsReportedAndMarked) {
    Desk desk;
    desk.PutText(u"C:\\show\\bad.kvs", u"vue\r\n");
    EXPECT_TRUE(desk.Open(u"C:\\show\\bad.kvs"));
    ASSERT_EQ(desk.dialogs.messages.size(), 1u);
    EXPECT_EQ(desk.dialogs.messages[0].text,
              u"C:\\show\\bad.kvs\r\nこのファイル名は適合しません。");
    EXPECT_EQ(desk.state.ShowAbort, 1);
    EXPECT_EQ(desk.state.DocumentPath, u"");
    EXPECT_EQ(desk.form3.Label4.Caption(), u"0");
}

TEST(Save, RefusedWithoutSlides) {
    for (const auto save : {SaveDocument, SaveForDistribution}) {
        Desk desk;
        save(desk.app);
        ASSERT_EQ(desk.dialogs.messages.size(), 1u);
        EXPECT_EQ(desk.dialogs.messages[0].text, u"スライドリストがないので保存できんません。");
        EXPECT_EQ(desk.dialogs.messages[0].title, u"ファイルの保存");
        EXPECT_EQ(desk.dialogs.messages[0].flags, 48);
        EXPECT_TRUE(desk.dialogs.requests.empty());
    }
}

TEST(Save, NewDocumentHasNoNameYet) {
    Desk desk;
    desk.form3.List1.AddItem(u"C:\\show\\a.png");
    desk.form3.List2.AddItem(model::BlankScheduleRow());
    desk.dialogs.fileAnswers = {Text(u"C:\\show\\new")};
    SaveDocument(desk.app);
    ASSERT_EQ(desk.dialogs.requests.size(), 1u);
    EXPECT_TRUE(desk.dialogs.requests[0].save);
    EXPECT_EQ(desk.dialogs.requests[0].title, u"パラピコ　ファイルの保存");
    EXPECT_EQ(desk.dialogs.requests[0].filter, kFilter);
    EXPECT_EQ(desk.dialogs.requests[0].initial, u"*.kvs");
    EXPECT_EQ(desk.state.DocumentPath, u"C:\\show\\new.kvs");
    EXPECT_EQ(desk.state.DocumentName, u"new.kvs");
    EXPECT_EQ(desk.windows.form1.Caption(), u"ｽﾗｲﾄﾞ - C:\\show\\new.kvs");
    EXPECT_EQ(desk.LineOf(u"C:\\show\\new.kvs", 27), u"C:\\show\\a.png");
}

/// Hears each change of a label's words.
struct SaidWords : model::Listener {
    explicit SaidWords(model::Label& label) : label_(label) { label_.Listen(this); }
    ~SaidWords() override { label_.Unlisten(this); }
    void PropertyChanged(model::Control&, model::PropertyBase&) override {
        if (!label_.Caption().empty()) {
            words.push_back(label_.Caption());
        }
    }
    std::vector<Text> words;

private:
    model::Label& label_;
};

TEST(Save, SaysSoEachTime) {
    Desk desk;
    desk.Open(u"C:\\show\\two.kvs");
    const SaidWords said(desk.form3.Notice);
    for (int i = 0; i < 2; ++i) {
        desk.dialogs.fileAnswers = {Text(u"C:\\show\\two.kvs")};
        SaveDocument(desk.app);
    }
    EXPECT_EQ(said.words, (std::vector<Text>(2, u"two.kvs に保存しました")));
    desk.dialogs.fileAnswers = {Text(u"C:\\show\\other.kvs")};
    desk.files.writeError = u"書けません";
    SaveDocument(desk.app);
    EXPECT_EQ(said.words.size(), 2u) << "a failure has its own box";
}

TEST(Save, OpenDocumentsNameIsOffered) {
    Desk desk;
    desk.Open(u"C:\\show\\two.kvs");
    desk.dialogs.fileAnswers = {std::optional<Text>()};
    SaveDocument(desk.app);
    EXPECT_EQ(desk.dialogs.requests.back().initial, u"C:\\show\\two.kvs");
    EXPECT_TRUE(desk.files.written.empty());  // cancelled
}

TEST(Save, ClearsTheMarkOfAnEarlierDistribution) {
    Desk desk;
    desk.Open(u"C:\\show\\two.kvs");
    desk.state.DistributionSaveFlag = 1;
    desk.dialogs.fileAnswers = {Text(u"C:\\show\\two.kvs")};
    SaveDocument(desk.app);
    EXPECT_EQ(desk.state.DistributionSaveFlag, 0);
    EXPECT_EQ(desk.LineOf(u"C:\\show\\two.kvs", 28), u"D:\\p\\b.png");
}

TEST(Save, WhatAnotherProgramWroteIsNotReplacedWithoutAQuestion) {
    Desk desk;
    desk.Open(u"C:\\show\\two.kvs");
    const Text theirs = ShowOf({u"c.png"});
    desk.PutText(u"C:\\show\\two.kvs", theirs);
    desk.dialogs.fileAnswers = {Text(u"C:\\show\\two")};
    desk.dialogs.answers = {Answer::No};
    SaveDocument(desk.app);
    ASSERT_EQ(desk.dialogs.messages.size(), 1u);
    EXPECT_EQ(desk.dialogs.messages[0].text,
              u"C:\\show\\two.kvs\r\nこのファイルは開いた後にほかで変更されています。\r\n"
              u"上書きしますか ?");
    EXPECT_EQ(desk.dialogs.messages[0].title, u"ファイルの保存");
    EXPECT_EQ(desk.dialogs.messages[0].flags, 36);
    EXPECT_TRUE(desk.files.written.empty());
    // Under another name there is nothing to ask.
    desk.dialogs.fileAnswers = {Text(u"C:\\show\\mine.kvs")};
    SaveDocument(desk.app);
    EXPECT_EQ(desk.dialogs.messages.size(), 1u);
    desk.Open(u"C:\\show\\two.kvs");
    desk.PutText(u"C:\\show\\two.kvs", theirs);
    for (int i = 0; i < 2; ++i) {
        desk.dialogs.fileAnswers = {Text(u"C:\\show\\two.kvs")};
        SaveDocument(desk.app);
        EXPECT_EQ(desk.dialogs.messages.size(), 2u) << "after a yes it is one's own again";
    }
}

TEST(Distribution, AsksThenWritesBareNames) {
    Desk desk;
    desk.Open(u"C:\\show\\two.kvs");
    desk.dialogs.fileAnswers = {Text(u"F:\\give.kvs")};
    SaveForDistribution(desk.app);
    ASSERT_EQ(desk.dialogs.messages.size(), 1u);
    EXPECT_EQ(desk.dialogs.messages[0].text,
              u"配布用ＫＶＳファイルを作成しますか？\r\n"
              u"配布用ＫＶＳファイルはスライドリストのパスが消去され、\r\n"
              u"ＫＶＳファイルを開いた時にスライドリストの画像パスが\r\n"
              u"ＫＶＳファイルのパスに変換されます。\r\n"
              u"ＫＶＳファイルと画像は同一フォルダに保存して下さい。");
    EXPECT_EQ(desk.dialogs.messages[0].flags, 36);
    EXPECT_EQ(desk.dialogs.messages[0].title, u"配布用ＫＶＳファイルの保存");
    EXPECT_EQ(desk.dialogs.requests.back().title, u"パラピコ　配布用ＫＶＳファイルの保存");
    EXPECT_EQ(desk.dialogs.requests.back().initial, u"C:\\show\\two.kvs");
    EXPECT_EQ(desk.state.DistributionSaveFlag, 1);
    EXPECT_EQ(desk.LineOf(u"F:\\give.kvs", 2), u"give.kvs");
    EXPECT_EQ(desk.LineOf(u"F:\\give.kvs", 27), u"a.png");
    EXPECT_EQ(desk.LineOf(u"F:\\give.kvs", 28), u"b.png");
    EXPECT_EQ(desk.form3.List1.List(1), u"D:\\p\\b.png");  // the list in memory keeps its paths
}

TEST(Distribution, NoEndsIt) {
    Desk desk;
    desk.Open(u"C:\\show\\two.kvs");
    desk.dialogs.answers = {Answer::No};
    SaveForDistribution(desk.app);
    EXPECT_EQ(desk.dialogs.requests.size(), 1u);  // that of the opening
    EXPECT_EQ(desk.state.DistributionSaveFlag, 0);
    EXPECT_TRUE(desk.files.written.empty());
}

TEST(New, AsksBeforeItForgets) {
    Desk desk;
    desk.Open(u"C:\\show\\two.kvs");
    desk.dialogs.answers = {Answer::No};
    EXPECT_FALSE(NewDocument(desk.app));
    ASSERT_EQ(desk.dialogs.messages.size(), 1u);
    EXPECT_EQ(desk.dialogs.messages[0].text, u"スライドリストとすべての設定を初期状態にしますか ?");
    EXPECT_EQ(desk.dialogs.messages[0].title, u"新規作成");
    EXPECT_EQ(desk.dialogs.messages[0].flags, 36);
    EXPECT_EQ(desk.form3.List1.ListCount(), 2);
    EXPECT_EQ(desk.state.DocumentName, u"two.kvs");
}

TEST(New, WritesTheStateAndReadsItBack) {
    Desk desk;
    desk.Open(u"C:\\show\\two.kvs");
    desk.state.ReservedStateText = u"kept";
    desk.files.read.clear();
    EXPECT_TRUE(NewDocument(desk.app));
    const Text path = u"C:\\app\\autstart.dat";
    EXPECT_EQ(desk.files.written, (std::vector<Text>{path, u"C:\\app\\wavlist.dat"}));
    EXPECT_EQ(desk.files.read, std::vector<Text>{path});
    EXPECT_EQ(desk.LineOf(path, 1), u"V2.1a3567893sp6");
    EXPECT_EQ(desk.LineOf(path, 37), u"");     // no document
    EXPECT_EQ(desk.LineOf(path, 40), u" 6 ");  // sound list
    EXPECT_EQ(desk.LineOf(path, 42), u" 0 ");  // no slide
    EXPECT_EQ(desk.state.ReservedStateText, u"kept");
    EXPECT_EQ(desk.state.SlideListEnd, 0);
    // The window goes back to the middle of its monitor.
    EXPECT_EQ(desk.windows.form1.Left, (1920 * 15 - desk.windows.form1.Width) / 2);
    EXPECT_TRUE(desk.windows.form1.mnuKOU(6).Checked);
}

TEST(New, LeavesAWindowThatIsMaximisedOrMinimisedWhereItIs) {
    for (const int state : {model::kWindowMinimised, model::kWindowMaximised}) {
        Desk desk;
        model::Form1& form1 = desk.windows.form1;
        form1.Left = 15;
        form1.Top = 30;
        form1.Show();
        form1.WindowState = state;
        NewDocument(desk.app);
        EXPECT_EQ(form1.Left, 15);
        EXPECT_EQ(form1.Top, 30);
    }
}

TEST(New, OldStateThatCouldNotBeReplacedStaysAway) {
    Desk desk;
    desk.Open(u"C:\\show\\two.kvs");
    document::WriteStateFile(desk.app);
    desk.files.writeError = u"書き込みできません。";
    NewDocument(desk.app);
    ASSERT_EQ(desk.dialogs.messages.size(), 2u);
    EXPECT_EQ(desk.dialogs.messages[1].text, u"書き込みできません。");
    EXPECT_EQ(desk.form3.List1.ListCount(), 0);
    EXPECT_EQ(desk.state.SoundMode, 6);
    EXPECT_EQ(desk.state.DocumentPath, u"");
    EXPECT_TRUE(desk.windows.form1.mnuKOU(6).Checked);
    EXPECT_EQ(desk.windows.Pointer(), model::kPointerNormal);
}

TEST(New, ForgetsTheDocument) {
    Desk desk;
    desk.Open(u"C:\\show\\two.kvs");
    desk.state.SlideListDirty = 1;
    desk.state.SoundList.Set(1, u"C:\\s.mp3");
    desk.windows.form10.List1.AddItem(u"C:\\s.mp3");
    desk.windows.form10.Label4.Caption = u"1";
    desk.state.SoundListCount = 1;
    desk.state.CdProgramCount = 2;
    desk.state.CdProgram.Set(1, u"4");
    desk.windows.form1.Timer1.Interval = 9000;
    NewDocument(desk.app);
    EXPECT_EQ(desk.form3.List1.ListCount(), 0);
    EXPECT_EQ(desk.form3.List2.ListCount(), 0);
    EXPECT_EQ(desk.form3.Label4.Caption(), u"0");
    EXPECT_EQ(desk.windows.form10.List1.ListCount(), 0);
    EXPECT_EQ(desk.windows.form10.Label4.Caption(), u"0");
    EXPECT_EQ(desk.state.SlideList(1), u"");
    EXPECT_EQ(desk.state.CdProgram(1), u"");
    EXPECT_EQ(desk.state.CdProgramCount, 0);
    EXPECT_EQ(desk.state.SoundListCount, 0);
    EXPECT_EQ(desk.state.SoundList(1), u"");
    EXPECT_EQ(desk.LineOf(u"C:\\app\\wavlist.dat", 2), u" 0 ");
    EXPECT_EQ(desk.state.SlideListDirty, 0);
    EXPECT_EQ(desk.state.SlideListEnd, 0);
    EXPECT_EQ(desk.state.DocumentPath, u"");
    EXPECT_EQ(desk.state.DocumentName, u"");
    EXPECT_EQ(desk.state.BaseFolder, u"");
    EXPECT_EQ(desk.state.DocumentFileDate, u"");
    EXPECT_EQ(desk.windows.form1.Caption(), u"ﾊﾟﾗﾋﾟｺ Win Ver.9.10");
    EXPECT_EQ(desk.windows.form1.Timer1.Interval, 3000);
    EXPECT_FALSE(desk.windows.form1.Command1.Enabled);
    EXPECT_FALSE(desk.windows.form1.Command4.Enabled);
    EXPECT_EQ(desk.windows.Pointer(), 0);
    for (model::Button* button : desk.LinkedFileButtons()) {
        EXPECT_FALSE(button->Enabled) << button->Name();
    }
}

TEST(New, BringsTheSettingsOfANewDocument) {
    Desk desk;
    desk.state.ControlBoxPos = 1;
    desk.state.LinkCheck3 = 1;
    desk.state.MosaicDelayUnit = 8;
    NewDocument(desk.app);
    for (const model::Setting& setting : model::Settings()) {
        if (!setting.unchangedByNew) {
            EXPECT_EQ(model::ReadField(desk.state, setting.field), setting.fresh) << setting.name;
        }
    }
    EXPECT_EQ(desk.state.SoundMode, 6);  // at a plain start it is 7
    EXPECT_EQ(desk.state.ControlBoxPos, 1);
    EXPECT_EQ(desk.state.LinkCheck3, 1);
    EXPECT_EQ(desk.state.MosaicDelayUnit, 8);
    model::Form1& form1 = desk.windows.form1;
    EXPECT_TRUE(form1.mnuKOU(6).Checked);
    EXPECT_TRUE(form1.mnuDOU(0).Checked);
    EXPECT_TRUE(form1.mnuTEXT(0).Checked);
    EXPECT_TRUE(form1.mnuCTL(0).Checked);
    EXPECT_TRUE(form1.mnuSTKAKU(1).Checked);
    EXPECT_EQ(desk.windows.form10.Check1.Value, 1);
    EXPECT_EQ(desk.windows.form10.Check5.Value, 1);
    EXPECT_EQ(desk.windows.form9.Check2.Value, 1);
}

}  // namespace
}  // namespace authoring
