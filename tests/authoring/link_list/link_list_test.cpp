// The window of the list of shows.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "authoring/link_list/window.h"
#include "document/link_rows.h"
#include "model/windows/link_list.h"
#include "model/windows/main_window.h"
#include "support/fake_platform.h"

namespace authoring {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct LinkList : testing::Test, fakes::FakePlatform {
    model::ShowState& state = app.state;
    model::Form9& form9 = app.windows.form9;

    void SetUp() override {
        AttachLinkList(app);
        app.windows.form1.Show();
        form9.Show();
    }
    void FillWith(int count) {
        std::vector<model::ListRow> rows;
        for (int i = 0; i < count; ++i) {
            rows.push_back({u"/s/" + text::FromUtf8(std::to_string(i)) + u".kvs", {}});
        }
        document::AppendRows(document::LinkRows(app), std::move(rows));
        document::ForgetSteps(document::LinkRows(app));
    }
    std::vector<Text> Rows() const {
        return {form9.List1.Rows().begin(), form9.List1.Rows().end()};
    }
    /// Titles and texts of all boxes so far, which are forgotten.
    std::vector<Text> TakeMessages() {
        std::vector<Text> told;
        for (const auto& message : dialogs.messages) {
            told.push_back(message.title + u"|" + message.text);
        }
        dialogs.messages.clear();
        return told;
    }
    /// A show document of these slides, as the program writes it down to them.
    static std::string Show(int milliseconds, const std::vector<std::string>& slides) {
        std::string lines = "21vue3167893\r\nshow.kvs\r\n " + std::to_string(milliseconds) +
                            " \r\n 1 \r\n 0 \r\n*.wav\r\n";
        lines += "\r\n 0 \r\n 5 \r\n 0 \r\n 5 \r\n 1 \r\n 1 \r\n 0 \r\n1\r\n";  // vue3
        lines += " 1 \r\n 1 \r\n";                                              // vue31
        lines += " 0 \r\n";                                                     // vue316
        lines += "\r\n 0 \r\n";                                                 // vue3167
        lines += " 0 \r\n1\r\n 0 \r\n 0 \r\n\r\n";                              // vue31678
        lines += " " + std::to_string(slides.size()) + " \r\n";
        for (const std::string& slide : slides) {
            lines += slide + "\r\n";
        }
        return lines;
    }
};

TEST_F(LinkList, The999thRowIsAddedAndReportedFullAtOnce) {
    FillWith(997);
    files.Put(u"/d/a.kvs", "x");
    form9.Dir1.Open(u"/d");
    form9.File1.Choose({0});
    EXPECT_EQ(form9.List1.ListCount(), 998);
    EXPECT_THAT(TakeMessages(), IsEmpty());
    form9.File1.Choose({0});
    EXPECT_EQ(form9.List1.ListCount(), 999);
    EXPECT_THAT(TakeMessages(), ElementsAre(u"ＫＶＳリンク|これ以上登録できません"));
    form9.Command3.Press();
    EXPECT_THAT(TakeMessages(), ElementsAre(u"ＫＶＳリンク|これ以上登録できません"));
    form9.List1.Drop({u"/d/a.kvs"});
    EXPECT_THAT(TakeMessages(), ElementsAre(u"ＫＶＳリンクリスト|これ以上登録できません"));
    EXPECT_EQ(form9.List1.ListCount(), 999);
    EXPECT_EQ(form9.Label4.Caption(), u"999");
}

TEST_F(LinkList, APasteFillsTheListUnderItsOwnTitle) {
    FillWith(997);
    form9.List1.SelectRows(0, 4, true);
    form9.mnuCOPY.Choose();
    form9.List1.SelectRows(0, 4, false);
    form9.mnuPASTE.Choose();
    EXPECT_EQ(form9.List1.ListCount(), 999);
    EXPECT_THAT(TakeMessages(), ElementsAre(u"ＫＶＳリンク|これ以上登録できません"));
}

TEST_F(LinkList, ADropTakesShowsOnly) {
    form9.List1.Drop({u"/x/b.KVS", u"/x/c.kvl", u"/x/a.png", u"/x/kvs", u"/x/a.kvs"});
    EXPECT_THAT(Rows(), ElementsAre(u"/x/b.KVS", u"/x/kvs", u"/x/a.kvs"));  // by three letters
    EXPECT_THAT(TakeMessages(), IsEmpty());
}

TEST_F(LinkList, RowsSayWhatTheirShowsAre) {
    files.Put(u"/s/two.kvs", Show(3000, {"a.png", "/f/b.JPG", "c.mp4"}));
    files.Put(u"/s/none.kvs", Show(5000, {}));
    files.Put(u"/s/picture.kvs", "\x89PNG");
    files.Put(u"/s/cut.kvs", Show(3000, {"a.png", "b.png"}).substr(0, 30));
    form9.List1.Drop(
        {u"/s/two.kvs", u"/s/none.kvs", u"/s/picture.kvs", u"/s/gone.kvs", u"/s/cut.kvs"});
    const model::RowFace two = form9.List1.face(0);
    EXPECT_EQ(two.title, u"two.kvs");
    EXPECT_EQ(two.detail, u"/s");
    EXPECT_EQ(two.file, u"/s/a.png");
    EXPECT_EQ(two.aside, u"3 枚・約 6 秒＋動画 1 本");
    EXPECT_EQ(two.marks, 0U);
    EXPECT_EQ(form9.List1.face(1).aside, u"0 枚");
    EXPECT_EQ(form9.List1.face(1).file, u"");
    EXPECT_EQ(form9.List1.face(2).marks, model::kMarkRefused);
    EXPECT_EQ(form9.List1.face(3).marks, model::kMarkMissing);
    EXPECT_EQ(form9.List1.face(4).marks, model::kMarkRefused);
}

TEST_F(LinkList, TheLengthIsThatOfAllShowsOnceAllAreKnown) {
    files.Put(u"/s/a.kvs", Show(3000, {"a.png", "b.png"}));
    files.Put(u"/s/b.kvs", Show(60000, {"a.png", "c.avi"}));
    fileInquiry.late = true;
    form9.List1.Drop({u"/s/a.kvs", u"/s/b.kvs", u"/s/a.kvs"});
    EXPECT_EQ(form9.Length.Caption(), u"～");
    EXPECT_EQ(form9.List1.face(0).aside, u"～");
    fileInquiry.Answer();
    EXPECT_EQ(form9.Length.Caption(), u"約 1 分 12 秒＋動画 1 本");  // 6 + 60 + 6 s
    EXPECT_THAT(fileInquiry.asked, ElementsAre(u"/s/a.kvs", u"/s/b.kvs"));
}

TEST_F(LinkList, ShowsThatChangedAreLookedAtAgainWhenTheWindowComesBack) {
    files.Put(u"/s/a.kvs", Show(3000, {"a.png"}));
    form9.List1.Drop({u"/s/a.kvs"});
    files.Put(u"/s/a.kvs", Show(3000, {"a.png", "b.png"}));
    form9.Hide();
    form9.Show();
    EXPECT_EQ(form9.List1.face(0).aside, u"2 枚・約 6 秒");
}

TEST_F(LinkList, KeysInsertModeAndFilterWorkAsInTheSlideList) {
    FillWith(3);
    form9.List1.PressKey(model::kKeyInsert);
    EXPECT_EQ(form9.Check4.Value, 1);
    form9.Filter.Enter(u"1");
    EXPECT_EQ(form9.SeenCount.Caption(), u"（1件を表示）");
    form9.List1.Choose({0, 1, 2});
    form9.List1.PressKey(model::kKeyDelete);
    EXPECT_THAT(Rows(), ElementsAre(u"/s/0.kvs", u"/s/2.kvs"));
}

}  // namespace
}  // namespace authoring
