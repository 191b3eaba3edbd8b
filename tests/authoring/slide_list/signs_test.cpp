// What the slide list's window says of its list.
#include "authoring/slide_list/signs.h"

#include <gtest/gtest.h>

#include "document/interval.h"
#include "document/main_caption.h"
#include "document/slide_rows.h"
#include "model/windows/main_window.h"
#include "model/windows/slide_list.h"
#include "support/fake_platform.h"

namespace authoring {
namespace {

struct Signs : testing::Test {
    fakes::FakePlatform around;
    model::Application& app = around.app;
    model::Form3& form3 = app.windows.form3;
    model::ListBox& list = form3.List1;

    void SetUp() override { document::TakeInterval(app, 3000); }
    void Append(const Text& path, int times = 1) {
        document::AppendRows(document::SlideRows(app),
                             std::vector(static_cast<size_t>(times), document::SlideRow(path)));
    }
    Text Length() const { return form3.Length.Caption; }
};

TEST(ShowLength, IsSpokenOf) {
    EXPECT_EQ(ShowLength(0, 0, 3000), u"");
    EXPECT_EQ(ShowLength(1, 0, 3000), u"約 3 秒");
    EXPECT_EQ(ShowLength(20, 0, 3000), u"約 1 分");
    EXPECT_EQ(ShowLength(250, 0, 3000), u"約 12 分 30 秒");
    EXPECT_EQ(ShowLength(1200, 0, 3000), u"約 1 時間");
    EXPECT_EQ(ShowLength(1239, 0, 3000), u"約 1 時間 1 分");
    EXPECT_EQ(ShowLength(30000, 0, 60000), u"約 500 時間");
    EXPECT_EQ(ShowLength(30000, 0, 2147483647), u"約 17895697 時間 3 分");
    EXPECT_EQ(ShowLength(240, 2, 3000), u"約 12 分＋動画 2 本");
    EXPECT_EQ(ShowLength(0, 1, 3000), u"動画 1 本");
}

TEST_F(Signs, FollowRows) {
    const SlideListSigns signs(app);
    EXPECT_EQ(Length(), u"");
    Append(u"D:\\a.jpg", 20);
    EXPECT_EQ(Length(), u"約 1 分");
    EXPECT_EQ(form3.Label4.Caption(), u"20");
    Append(u"D:\\b.MP4", 2);
    EXPECT_EQ(Length(), u"約 1 分＋動画 2 本");
    document::RemoveRows(document::SlideRows(app), {0, 20});
    EXPECT_EQ(Length(), u"約 57 秒＋動画 1 本");
    EXPECT_EQ(form3.Label4.Caption(), u"20");
    document::MoveRows(document::SlideRows(app), {19}, 0);
    list.RemoveRows(0, 1);
    EXPECT_EQ(Length(), u"約 57 秒") << "the film had moved to the top";
    list.SetRow(3, u"D:\\c.mov");
    EXPECT_EQ(Length(), u"約 54 秒＋動画 1 本");
    list.ShowOnly([](const Text& row) { return row.ends_with(u"mov"); });
    EXPECT_EQ(Length(), u"約 54 秒＋動画 1 本") << "rows that are not seen are played, too";
    list.Clear();
    EXPECT_EQ(Length(), u"");
}

TEST_F(Signs, FollowTheInterval) {
    Append(u"D:\\a.jpg", 10);
    const SlideListSigns signs(app);
    EXPECT_EQ(Length(), u"約 30 秒") << "rows that were there before";
    document::TakeInterval(app, 8000);
    EXPECT_EQ(Length(), u"約 1 分 20 秒");
    app.windows.form1.Timer1.Interval = 1;
    EXPECT_EQ(Length(), u"約 1 分 20 秒") << "a show's own short ticks are no interval";
}

TEST_F(Signs, NameTheDocument) {
    const SlideListSigns signs(app);
    EXPECT_EQ(form3.Document.Caption(), u"");
    app.state.DocumentPath = u"D:\\show\\海.kvs";
    document::ShowDocumentCaption(app);
    EXPECT_EQ(form3.Document.Caption(), u"海.kvs");
    app.windows.form1.Caption = u"a.png";  // a slide of the show
    EXPECT_EQ(form3.Document.Caption(), u"海.kvs");
    app.state.DocumentPath.clear();
    document::ShowDocumentCaption(app);
    EXPECT_EQ(form3.Document.Caption(), u"");
}

TEST_F(Signs, CheckTheChoiceOfFaces) {
    const SlideListSigns signs(app);
    EXPECT_TRUE(form3.mnuFACE(0).Checked);
    list.AsGrid = true;
    EXPECT_TRUE(form3.mnuFACE(1).Checked);
    EXPECT_FALSE(form3.mnuFACE(0).Checked);
}

}  // namespace
}  // namespace authoring
