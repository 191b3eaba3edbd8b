// uautst.dat and link documents; the points of coordinate files.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "document/cutout_points.h"
#include "document/link_document.h"
#include "model/windows/link_list.h"
#include "model/windows/main_window.h"
#include "state_support.h"

namespace document_tests {
namespace {

using ::testing::ElementsAre;

constexpr const char16_t* kLinkState = u"C:\\app\\uautst.dat";
constexpr const char16_t* kWindowCaption = u"ＫＶＳリンク（＊．ｋｖｓ ファイルを選択して下さい）";
const Text kLinkStateText =
    u"KVSV3\r\n 1 \r\n 0 \r\n 1 \r\n全部.kvl\r\n 2 \r\nC:\\show\\a.kvs\r\nb.kvs\r\n";

struct LinkProgram : StateProgram {
    model::Form9& form9 = app.windows.form9;
    void ReadLinks(TextView content) {
        PutText(kLinkState, content);
        document::ReadLinkStateFile(app);
    }
    std::vector<Text> Links() const { return RowsOf(app.windows.form9.List1); }
};

TEST(LinkState, ReadsFlagsNameAndList) {
    LinkProgram program;
    program.app.state.LinkRepeat = 77;
    program.ReadLinks(kLinkStateText);
    EXPECT_EQ(program.State().LinkAutoFlag, 1);
    EXPECT_EQ(program.State().LinkRepeat, 0);
    EXPECT_EQ(program.State().LinkCheck3, 1);
    EXPECT_EQ(program.form9.Check1.Value, 1);
    EXPECT_EQ(program.form9.Check2.Value, 0);
    EXPECT_EQ(program.form9.Check3.Value, 1);
    EXPECT_EQ(program.form9.Caption(), u"ＫＶＳリンク - 全部.kvl");
    EXPECT_EQ(program.form9.Label4.Caption(), u"2");
    EXPECT_THAT(program.Links(), ElementsAre(u"C:\\show\\a.kvs", u"C:\\app\\b.kvs"));
    EXPECT_TRUE(program.dialogs.messages.empty());
}

TEST(LinkState, IsWrittenByteForByte) {
    LinkProgram program;
    document::WriteLinkStateFile(program.app);
    EXPECT_EQ(program.Written(kLinkState), "KVSV3\r\n 0 \r\n 0 \r\n 0 \r\n\r\n 0 \r\n");
    program.ReadLinks(kLinkStateText);
    document::WriteLinkStateFile(program.app);
    Text expected = kLinkStateText;
    expected.replace(expected.find(u"b.kvs"), 5, u"C:\\app\\b.kvs");
    EXPECT_EQ(program.Written(kLinkState), text::EncodeFile(expected, program.codePage));
}

TEST(LinkState, WithoutANameTheCaptionStays) {
    LinkProgram program;
    program.ReadLinks(u"KVSV3\r\n 1 \r\n 0 \r\n 0 \r\n\r\n 0 \r\n");
    EXPECT_EQ(program.form9.Caption(), kWindowCaption);
    EXPECT_EQ(program.State().LinkAutoFlag, 1);
}

TEST(LinkState, AnotherTagOrNoFileChangesNothing) {
    for (const char16_t* tag : {u"KVSV2", u"KVSV33", u"kvsv3", u"", u"WAV3.4"}) {
        LinkProgram program;
        program.form9.List1.AddItem(u"C:\\old.kvs");
        program.ReadLinks(tag + kLinkStateText.substr(5));
        EXPECT_EQ(program.State().LinkAutoFlag, 0) << text::ToUtf8(tag);
        EXPECT_THAT(program.Links(), ElementsAre(u"C:\\old.kvs"));
        EXPECT_EQ(program.form9.Caption(), kWindowCaption);
        program.files.Remove(kLinkState);
        document::ReadLinkStateFile(program.app);
        EXPECT_TRUE(program.dialogs.messages.empty());
    }
}

TEST(LinkState, EveryTruncationIsSilent) {
    const LinkProgram coder;
    const std::string whole = text::EncodeFile(kLinkStateText, coder.codePage);
    for (size_t size = 0; size <= whole.size(); ++size) {
        LinkProgram program;
        program.files.Put(kLinkState, whole.substr(0, size));
        document::ReadLinkStateFile(program.app);
        ASSERT_LE(program.Links().size(), 2u);
        ASSERT_EQ(program.form9.Check1.Value, program.State().LinkAutoFlag) << size;
        ASSERT_TRUE(program.dialogs.messages.empty()) << size;
    }
    LinkProgram cut;
    cut.ReadLinks(u"KVSV3\r\n 1 \r\n 1 \r\n 0 \r\nx\r\n 2000000000 \r\nC:\\a.kvs\r\n");
    EXPECT_EQ(cut.State().LinkRepeat, 1);
    EXPECT_THAT(cut.Links(), ElementsAre(u"C:\\a.kvs"));
}

TEST(LinkState, TakesNoMoreThanARunCanHold) {
    LinkProgram program;
    Text content = u"KVSV3\r\n 1 \r\n 0 \r\n 0 \r\n\r\n 40000 \r\n";
    for (int i = 0; i < 40000; ++i) {
        content += u"C:\\a.kvs\r\n";
    }
    program.ReadLinks(content);
    EXPECT_EQ(program.Links().size(), static_cast<size_t>(model::kLinkListLast));
}

TEST(LinkDocument, IsWrittenByteForByte) {
    LinkProgram program;
    program.form9.List1.AddItem(u"C:\\show\\一.kvs");
    program.form9.List1.AddItem(u"/home/b.kvs");
    program.form9.List1.AddItem(u"");
    document::WriteLinkDocument(program.app, u"C:\\save\\all");
    const Text path = u"C:\\save\\all.kvl";
    EXPECT_EQ(program.Written(path),
              text::EncodeFile(u"1vue3167\r\nC:\\save\\all.kvl\r\n 3 \r\nC:\\show\\一.kvs\r\n"
                               u"/home/b.kvs\r\n\r\n",
                               program.codePage));
    EXPECT_EQ(program.form9.Caption(), u"ＫＶＳリンク - " + path);
    EXPECT_EQ(program.State().LinkDocumentPath, path);
    EXPECT_EQ(program.State().LinkDocumentName, u"all.kvl");
    EXPECT_EQ(program.app.windows.form1.MousePointer, model::kPointerNormal);

    program.app.state.DistributionSaveFlag = 1;
    document::WriteLinkDocument(program.app, u"C:\\save\\b.x");
    EXPECT_EQ(
        program.Written(u"C:\\save\\b.x"),
        text::EncodeFile(u"1vue3167\r\nb.x\r\n 3 \r\n一.kvs\r\nb.kvs\r\n\r\n", program.codePage));
    EXPECT_EQ(program.Links()[0], u"C:\\show\\一.kvs");
}

TEST(LinkDocument, ComesBackAsItWasWritten) {
    LinkProgram first;
    first.form9.List1.AddItem(u"C:\\show\\一.kvs");
    first.form9.List1.AddItem(u"D:\\二.kvs");
    document::WriteLinkDocument(first.app, u"C:\\save\\all.kvl");
    LinkProgram second;
    second.files.Put(u"C:\\save\\all.kvl", first.Written(u"C:\\save\\all.kvl"));
    document::ReadLinkDocument(second.app, u"C:\\save\\all.kvl");
    EXPECT_EQ(second.Links(), first.Links());
    EXPECT_EQ(second.form9.Caption(), u"ＫＶＳリンク - C:\\save\\all.kvl");
    EXPECT_EQ(second.State().LinkDocumentPath, u"C:\\save\\all.kvl");
    EXPECT_EQ(second.State().LinkDocumentName, u"all.kvl");
}

TEST(LinkDocument, AFailedWriteIsReportedAndChangesNothing) {
    for (const bool opening : {true, false}) {
        LinkProgram program;
        program.files.writeError = u"失敗";
        program.files.writeFailsWhileOpening = opening;
        document::WriteLinkDocument(program.app, u"C:\\save\\all.kvl");
        ASSERT_EQ(program.dialogs.messages.size(), 1u);
        EXPECT_EQ(program.dialogs.messages[0].text, u"失敗");
        EXPECT_EQ(program.dialogs.messages[0].flags, opening ? 0 : 48);
        EXPECT_EQ(program.form9.Caption(), kWindowCaption);
        EXPECT_EQ(program.State().LinkDocumentPath, u"");
        EXPECT_EQ(program.app.windows.form1.MousePointer, model::kPointerNormal);
    }
}

std::vector<std::pair<int, int>> Points(TextView content) {
    std::vector<std::pair<int, int>> pairs;
    const auto points = document::ReadCutoutPoints(content);
    EXPECT_TRUE(points);
    for (const document::CutoutPoint& point :
         points.value_or(std::vector<document::CutoutPoint>())) {
        pairs.emplace_back(point.x, point.y);
    }
    return pairs;
}
using Pairs = std::vector<std::pair<int, int>>;

TEST(CutoutPoints, AreReadInPairs) {
    EXPECT_EQ(Points(u"KVS_PICTYPE_DATA\r\n10,20\r\n 30 , 40 \r\n-5,0\r\n"),
              (Pairs{{10, 20}, {30, 40}, {-5, 0}}));
    EXPECT_EQ(Points(u"  KVS_PICTYPE_DATA  ,1,2,3,4"), (Pairs{{1, 2}, {3, 4}}));
    EXPECT_EQ(Points(u"KVS_PICTYPE_DATA"), Pairs());
}

TEST(CutoutPoints, ABlankFirstFieldHasNoPartner) {
    EXPECT_EQ(Points(u"KVS_PICTYPE_DATA\r\n1,2\r\n   \r\n\r\n3,4\r\n,5,6\r\n"),
              (Pairs{{1, 2}, {3, 4}, {5, 6}}));
    EXPECT_EQ(Points(u"KVS_PICTYPE_DATA\r\n1,2\r\n3\r\n"), (Pairs{{1, 2}}));
}

TEST(CutoutPoints, NumbersOutOfRangeAndWordsCountZero) {
    EXPECT_EQ(Points(u"KVS_PICTYPE_DATA\r\nx,7\r\n99999999999,-99999999999\r\n"),
              (Pairs{{0, 7}, {0, 0}}));
}

TEST(CutoutPoints, StopAtTheirLimit) {
    Text content = u"KVS_PICTYPE_DATA\r\n";
    for (int i = 0; i < 5001; ++i) {
        content += text::FromUtf8(std::to_string(i)) + u",1\r\n";
    }
    const Pairs points = Points(content);
    ASSERT_EQ(points.size(), 5000u);
    EXPECT_EQ(points.back().first, 4999);
}

TEST(CutoutPoints, AnotherHeaderIsRefused) {
    for (const char16_t* content : {u"", u"   ", u"KVS_PICTYPE_DATA2\r\n1,2\r\n", u"1,2\r\n",
                                    u"kvs_pictype_data\r\n1,2\r\n"}) {
        EXPECT_FALSE(document::ReadCutoutPoints(content)) << text::ToUtf8(content);
    }
}

}  // namespace
}  // namespace document_tests
