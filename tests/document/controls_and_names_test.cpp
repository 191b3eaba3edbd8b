// Menu checks and controls that follow the settings; names of linked files; the sound list and
// link documents.
#include <gtest/gtest.h>

#include <set>

#include "document/link_document.h"
#include "document/linked_names.h"
#include "document/settings_to_controls.h"
#include "document/state_files.h"
#include "document_support.h"
#include "model/controls.h"
#include "model/windows/background_sound.h"
#include "model/windows/link_list.h"
#include "model/windows/main_window.h"
#include "model/windows/slide_list.h"
#include "model/windows/sound_list.h"
#include "model/windows/text_display.h"

namespace document_tests {
namespace {

TEST(SettingsToControls, EveryRadioMenuFollowsItsSetting) {
    const auto& menus = document::RadioMenus();
    for (const auto& menu : menus) {
        Program program;
        auto& array = program.app.windows.form1.*menu.menu;
        SCOPED_TRACE(array.Name());
        for (int value = 0; value < array.Count(); ++value) {
            program.app.state.*menu.field = static_cast<int16_t>(value);
            document::FollowAllSettings(program.app);
            for (int i = 0; i < array.Count(); ++i) {
                EXPECT_EQ(array(i).Checked, i == value);
            }
        }
        // A value that has no entry checks none.
        program.app.state.*menu.field = static_cast<int16_t>(array.Count());
        document::FollowAllSettings(program.app);
        for (int i = 0; i < array.Count(); ++i) {
            EXPECT_FALSE(array(i).Checked);
        }
    }
}

TEST(SettingsToControls, MenusCoverTheRangesOfTheirSettings) {
    Program program;
    for (const auto& menu : document::RadioMenus()) {
        auto& array = program.app.windows.form1.*menu.menu;
        for (const model::Setting& setting : model::Settings()) {
            const auto* field = std::get_if<int16_t model::ShowState::*>(&setting.field);
            if (field && *field == menu.field) {
                EXPECT_EQ(setting.highest, array.Count() - 1) << setting.name;
                EXPECT_EQ(setting.kept == model::Kept::Document, menu.keptInDocument)
                    << setting.name;
            }
        }
    }
}

TEST(SettingsToControls, DocumentsLeaveTheOtherMenusAlone) {
    Program program;
    auto& form1 = program.app.windows.form1;
    form1.mnuSIZE.Check(2);
    form1.mnuKOU.Check(0);
    document::FollowDocumentSettings(program.app);
    EXPECT_TRUE(form1.mnuSIZE(2).Checked);  // SizeAdjust is 1, but no document sets it
    EXPECT_TRUE(form1.mnuKOU(7).Checked);
}

TEST(SettingsToControls, MenusThatDependOnSettings) {
    Program program;
    auto& state = program.app.state;
    auto& form1 = program.app.windows.form1;
    const auto follow = [&] { document::FollowDocumentSettings(program.app); };
    for (int mode = 0; mode <= 9; ++mode) {
        state.SoundMode = static_cast<int16_t>(mode);
        for (int wav : {0, 1}) {
            state.CdPlusLinkedWav = static_cast<int16_t>(wav == 1 ? 0 : 1);
            state.MidiLinkedWavFlag = static_cast<int16_t>(wav);
            state.Mp3LinkedWavFlag = static_cast<int16_t>(wav);
            follow();
            const bool always = mode == 0 || mode == 1 || mode == 6;
            const bool sync = always || (wav == 1 && (mode == 2 || mode == 4 || mode == 8));
            EXPECT_EQ(form1.mnuDOUKI.Visible, sync) << mode;
            EXPECT_EQ(form1.mnuKOICHI.Visible, sync || mode == 5 || mode == 9) << mode;
            EXPECT_EQ(form1.mnuCDM.Visible, mode == 2);
            EXPECT_EQ(program.app.windows.form8.Check1.Value, wav);
            EXPECT_EQ(program.app.windows.form17.Check1.Value, wav);
        }
    }
    for (int fixed : {0, 1}) {
        state.EffectSpeedFixed = static_cast<int16_t>(fixed);
        state.OverlayMode = static_cast<int16_t>(fixed * 3);
        state.CdOrder = static_cast<int16_t>(fixed * 2);
        state.SoundListCheck5 = static_cast<int16_t>(fixed);
        follow();
        EXPECT_EQ(form1.mnuHKSP.Visible, fixed == 0);
        EXPECT_EQ(form1.mnuSKSP.Visible, fixed == 0);
        EXPECT_EQ(form1.mnuKAHAI.Visible, fixed == 1);
        EXPECT_EQ(form1.mnuCD.Visible, fixed == 0);
        EXPECT_EQ(form1.mnuCDRP.Visible, fixed == 0);
        EXPECT_EQ(program.app.windows.form10.Check5.Value, fixed);
    }
}

TEST(SettingsToControls, TheOtherControlsFollowTheStateFile) {
    for (int16_t value : {int16_t{0}, int16_t{1}}) {
        Program program;
        auto& state = program.app.state;
        state.ListShowPicture = state.ListDblClickRecord = state.ListDblClickWallpaper =
            state.ListDblClickText = state.ListDblClickStart = state.TextOriginScreen =
                state.SoundListCheck6 = state.LinkAutoFlag = state.LinkRepeat = state.LinkCheck3 =
                    value;
        document::FollowAllSettings(program.app);
        const auto& w = program.app.windows;
        for (const model::CheckBox* box :
             {&w.form3.Check1, &w.form3.Check2, &w.form3.Check3, &w.form3.Check4, &w.form3.Check5,
              &w.form10.Check6, &w.form9.Check1, &w.form9.Check2, &w.form9.Check3}) {
            EXPECT_EQ(box->Value, value) << box->Parent().Name() << "." << box->Name();
        }
        EXPECT_EQ(w.form15.Option1.Value, value == 0);
        EXPECT_EQ(w.form15.Option2.Value, value == 1);
    }
}

TEST(LinkedName, ReplacesThreeCharactersBesideThePicture) {
    Program program;
    EXPECT_EQ(document::LinkedName(program.app, u"C:\\a\\b.jpg", u"wav"), u"C:\\a\\b.wav");
    EXPECT_EQ(document::LinkedName(program.app, u"C:\\a\\x.jpeg", u"wav"), u"C:\\a\\x.jwav");
    EXPECT_EQ(document::LinkedName(program.app, u"/a/b.png", u"txt"), u"/a/b.txt");
    EXPECT_EQ(document::LinkedName(program.app, u"ab", u"mp3"), u"mp3");
    EXPECT_EQ(document::LinkedName(program.app, u"", u"mid"), u"mid");
}

TEST(LinkedName, TakesTheDisksSpellingIntoTheLinkedFolder) {
    Program program;
    program.PutPicture(u"C:\\a\\Photo.JPG", 1, 1);
    program.PutPicture(u"/home/u/絵.png", 1, 1);
    program.app.state.LinkedFolderFlag = 1;
    program.app.state.LinkedFolder = u"D:\\linked";
    EXPECT_EQ(document::LinkedName(program.app, u"C:\\A\\photo.jpg", u"txt"),
              u"D:\\linked\\Photo.txt");
    EXPECT_EQ(document::LinkedName(program.app, u"C:\\a\\gone.jpg", u"txt"), u"D:\\linked\\");
    program.app.state.LinkedFolder = u"/home/u/linked";
    EXPECT_EQ(document::LinkedName(program.app, u"/home/u/絵.png", u"mid"),
              u"/home/u/linked/絵.mid");
}

TEST(SoundListFile, ComesBackAsWritten) {
    Program program;
    auto& state = program.app.state;
    state.SoundList.Set(1, u"C:\\曲\\一.mp3");
    state.SoundList.Set(2, u"C:\\b.wav");
    state.SoundListCount = 2;
    document::WriteSoundListFile(program.app);
    EXPECT_EQ(program.files.Get(u"C:\\app\\wavlist.dat")->content,
              "WAV3.4\r\n 2 \r\nC:\\\x8B\xC8\\\x88\xEA.mp3\r\nC:\\b.wav\r\n");
    state.SoundList.Erase();
    state.SoundListCount = 0;
    document::ReadSoundListFile(program.app);
    EXPECT_EQ(state.SoundListCount, 2);
    EXPECT_EQ(state.SoundList(1), u"C:\\曲\\一.mp3");
    EXPECT_EQ(Program::RowsOf(program.app.windows.form10.List1),
              (std::vector<Text>{u"C:\\曲\\一.mp3", u"C:\\b.wav"}));
    EXPECT_EQ(program.app.windows.form10.Label4.Caption(), u"2");
}

TEST(SoundListFile, NamesWithoutFolderLieInTheProgramFolder) {
    Program program;
    program.app.state.BaseFolder = u"C:\\elsewhere\\";
    program.PutText(u"C:\\app\\wavlist.dat", u"WAV3.4 and more\r\n2\r\nPB.wav\r\nC:\\x.wav\r\n");
    document::ReadSoundListFile(program.app);
    EXPECT_EQ(program.State().SoundList(1), u"C:\\app\\PB.wav");
    EXPECT_EQ(program.State().SoundList(2), u"C:\\x.wav");
}

TEST(SoundListFile, AnotherTagOrNoFileLeavesTheListWithoutAWord) {
    for (const char16_t* content : {u"WAV3.3\r\n 1 \r\nC:\\x.wav\r\n", u"", u"missing"}) {
        Program program;
        if (Text(content) != u"missing") {
            program.PutText(u"C:\\app\\wavlist.dat", content);
        }
        program.app.state.SoundList.Set(1, u"C:\\kept.wav");
        program.app.state.SoundListCount = 1;
        document::ReadSoundListFile(program.app);
        EXPECT_EQ(program.State().SoundListCount, 1);
        EXPECT_EQ(program.State().SoundList(1), u"C:\\kept.wav");
        EXPECT_TRUE(program.dialogs.messages.empty());
    }
}

TEST(SoundListFile, AFileThatEndsEarlyGivesWhatItHolds) {
    Program program;
    program.PutText(u"C:\\app\\wavlist.dat", u"WAV3.4\r\n 30000 \r\nC:\\a.wav\r\n");
    document::ReadSoundListFile(program.app);
    EXPECT_EQ(program.State().SoundListCount, 1);
    EXPECT_TRUE(program.dialogs.messages.empty());
}

TEST(SoundListFile, FailuresShowThePlatformsWords) {
    Program program;
    program.PutText(u"C:\\app\\wavlist.dat", u"WAV3.4\r\n 0 \r\n");
    program.files.MakeUnreadable(u"C:\\app\\wavlist.dat");
    document::ReadSoundListFile(program.app);
    program.files.writeError = u"読み取り専用です。";
    document::WriteSoundListFile(program.app);
    ASSERT_EQ(program.dialogs.messages.size(), 3u);  // the second: it was set aside
    EXPECT_EQ(program.dialogs.messages[0].text, u"ファイルを読み込めません。");
    EXPECT_EQ(program.dialogs.messages[2].text, u"読み取り専用です。");
    EXPECT_EQ(program.dialogs.messages[2].flags, 0);
    EXPECT_EQ(program.dialogs.messages[2].title, u"");
}

struct LinkProgram : Program {
    void ReadLinks(TextView content) {
        PutText(u"C:\\show\\all.kvl", content);
        app.state.BaseFolder = kBase;
        document::ReadLinkDocument(app, u"C:\\show\\all.kvl");
    }
    std::vector<Text> Links() const { return RowsOf(app.windows.form9.List1); }
};

TEST(LinkDocument, ReadsItsEntries) {
    LinkProgram program;
    program.app.windows.form9.List1.AddItem(u"old");
    program.ReadLinks(u"1vue3167\r\nC:\\x,y.kvl\r\n 2 \r\nC:\\a,1.kvs\r\nb.kvs\r\n");
    EXPECT_EQ(program.Links(), (std::vector<Text>{u"C:\\a,1.kvs", u"C:\\show\\b.kvs"}));
    EXPECT_EQ(program.State().LinkList(2), u"C:\\show\\b.kvs");
    EXPECT_EQ(program.app.windows.form9.Caption(), u"ＫＶＳリンク - C:\\show\\all.kvl");
    EXPECT_EQ(program.app.windows.form1.MousePointer, model::kPointerNormal);
    EXPECT_TRUE(program.dialogs.messages.empty());
}

TEST(LinkDocument, RefusesOtherTagsAndBrokenFiles) {
    for (const char16_t* content : {u"", u"21vue3167893\r\nx\r\n0\r\n", u"WAV3.4\r\n",
                                    u"vue2\r\nx\r\n3\r\nC:\\a.kvs\r\n", u"vue3\r\nx\r\nmany\r\n"}) {
        LinkProgram program;
        program.ReadLinks(content);
        ASSERT_EQ(program.dialogs.messages.size(), 1u) << text::ToUtf8(content);
        EXPECT_EQ(program.dialogs.messages[0].text,
                  u"C:\\show\\all.kvl\r\nこのファイル名は適合しません。");
        EXPECT_EQ(program.app.windows.form1.MousePointer, model::kPointerNormal);
    }
    LinkProgram starting;
    starting.app.state.LoadingFromStart = 1;
    EXPECT_THROW(starting.ReadLinks(u"x\r\n"), platform::ProgramEnd);
}

TEST(LinkDocument, HoldsNoMoreThanItsArray) {
    for (int count : {1010, 1011}) {
        LinkProgram program;
        const std::string number = std::to_string(count);
        Text content = u"1vue3167\r\nx\r\n" + Text(number.begin(), number.end()) + u"\r\n";
        for (int i = 0; i < count; ++i) {
            content += u"a.kvs\r\n";
        }
        program.ReadLinks(content);
        EXPECT_EQ(program.dialogs.messages.size(), count == 1010 ? 0u : 1u);
    }
}

}  // namespace
}  // namespace document_tests
