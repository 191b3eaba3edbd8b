// Form12: in which folder the files linked to a picture lie.
#include "authoring/settings/linked_folder.h"

#include <gtest/gtest.h>

#include "model/windows/linked_folder.h"
#include "support/fake_platform.h"

namespace authoring {
namespace {

struct LinkedFolder : testing::Test {
    fakes::FakePlatform around;
    model::ShowState& state = around.app.state;
    model::Form12& form12 = around.app.windows.form12;

    void SetUp() override {
        around.PutPicture(u"D:\\sounds\\a.jpg", 10, 10);
        AttachLinkedFolder(around.app);
    }
};

TEST_F(LinkedFolder, OpensAtHomeWithTheCheckOn) {
    form12.Show();
    EXPECT_EQ(form12.Check1.Value, 1);
    EXPECT_EQ(form12.Dir1.Path(), u"C:\\Users\\me");
    EXPECT_EQ(form12.Drive1.Drive(), u"C:\\Users\\me");
    EXPECT_EQ(form12.Text1.Content(), u"C:\\Users\\me");
    for (const model::VisibleControl* control : std::initializer_list<const model::VisibleControl*>{
             &form12.Text1, &form12.Dir1, &form12.Drive1}) {
        EXPECT_FALSE(control->Enabled);
    }
    // In the middle of 1920 x 1080 pixels: 600 x 460.
    EXPECT_EQ(form12.Left, 660 * 15);
    EXPECT_EQ(form12.Top, 310 * 15);
}

TEST_F(LinkedFolder, ShowsTheFolderInUse) {
    state.LinkedFolderFlag = 1;
    state.LinkedFolder = u"D:\\sounds";
    form12.Show();
    EXPECT_EQ(form12.Check1.Value, 0);
    EXPECT_EQ(form12.Dir1.Path(), u"D:\\sounds");
    EXPECT_EQ(form12.Text1.Content(), u"D:\\sounds");
    EXPECT_TRUE(form12.Dir1.Enabled);
}

TEST_F(LinkedFolder, KeepsTheTextOfAFolderThatIsGone) {
    state.LinkedFolderFlag = 1;
    state.LinkedFolder = u"D:\\gone";
    form12.Show();
    EXPECT_EQ(form12.Dir1.Path(), u"C:\\Users\\me");
    EXPECT_EQ(form12.Text1.Content(), u"D:\\gone");
}

TEST_F(LinkedFolder, CheckEnablesTheBrowser) {
    form12.Show();
    form12.Check1.Press();
    EXPECT_TRUE(form12.Text1.Enabled && form12.Dir1.Enabled && form12.Drive1.Enabled);
    form12.Check1.Press();
    EXPECT_FALSE(form12.Text1.Enabled || form12.Dir1.Enabled || form12.Drive1.Enabled);
}

TEST_F(LinkedFolder, TakesTheChosenFolder) {
    form12.Show();
    form12.Check1.Press();
    EXPECT_TRUE(form12.Drive1.Open(u"C:\\"));
    EXPECT_EQ(form12.Dir1.Path(), u"C:\\");
    EXPECT_EQ(form12.Text1.Content(), u"C:\\");
    EXPECT_TRUE(form12.Dir1.Open(u"D:\\sounds"));
    EXPECT_EQ(form12.Text1.Content(), u"D:\\sounds");
    form12.Command1.Press();
    EXPECT_EQ(state.LinkedFolderFlag, 1);
    EXPECT_EQ(state.LinkedFolder, u"D:\\sounds");
    EXPECT_FALSE(form12.Loaded);
    EXPECT_TRUE(around.dialogs.messages.empty());
}

TEST_F(LinkedFolder, APlaceThatIsChosenAgainLeadsBackToIt) {
    form12.Show();
    form12.Check1.Press();
    const Text home = form12.Drive1.Drive();
    EXPECT_TRUE(form12.Dir1.Open(u"D:\\sounds\\"));
    EXPECT_EQ(form12.Text1.Content(), u"D:\\sounds");
    EXPECT_TRUE(form12.Drive1.Open(home));
    EXPECT_EQ(form12.Dir1.Path(), home);
    EXPECT_EQ(form12.Text1.Content(), home);
}

TEST_F(LinkedFolder, TheTextCountsLessItsLastSeparator) {
    form12.Show();
    form12.Check1.Press();
    form12.Text1.Enter(u"D:\\other\\");
    form12.Command1.Press();
    EXPECT_EQ(state.LinkedFolder, u"D:\\other");
    EXPECT_EQ(state.LinkedFolderFlag, 1);
}

TEST_F(LinkedFolder, RefusesTheFolderOfHomesAndTheRoot) {
    for (const Text& refused : {Text(u"C:\\Users"), Text(u"C:\\")}) {
        state.LinkedFolderFlag = 1;
        state.LinkedFolder = u"D:\\sounds";
        form12.Show();
        form12.Dir1.Open(refused);
        form12.Command1.Press();
        ASSERT_EQ(around.dialogs.messages.size(), 1u);
        EXPECT_EQ(around.dialogs.messages[0].text,
                  refused +
                      u"\r\nこのフォルダは指定できません。\r\n"
                      u"再度チェックを外し、別のフォルダを指定してください。");
        EXPECT_EQ(around.dialogs.messages[0].flags, 48);
        EXPECT_EQ(around.dialogs.messages[0].title, u"フォルダ未指定");
        EXPECT_EQ(state.LinkedFolderFlag, 0);
        EXPECT_EQ(state.LinkedFolder, u"D:\\sounds");
        EXPECT_EQ(form12.Check1.Value, 1);
        EXPECT_FALSE(form12.Dir1.Enabled);
        EXPECT_TRUE(form12.Visible);
        form12.Unload();
        around.dialogs.messages.clear();
    }
}

TEST_F(LinkedFolder, TheStandardIsThePicturesOwnFolder) {
    state.LinkedFolderFlag = 1;
    state.LinkedFolder = u"D:\\sounds";
    form12.Show();
    form12.Check1.Press();
    form12.Command1.Press();
    EXPECT_EQ(state.LinkedFolderFlag, 0);
    EXPECT_FALSE(form12.Loaded);
}

TEST_F(LinkedFolder, CancelChangesNothing) {
    form12.Show();
    form12.Check1.Press();
    form12.Dir1.Open(u"D:\\sounds");
    form12.Command2.Press();
    EXPECT_EQ(state.LinkedFolderFlag, 0);
    EXPECT_EQ(state.LinkedFolder, u"");
    EXPECT_FALSE(form12.Loaded);
}

}  // namespace
}  // namespace authoring
