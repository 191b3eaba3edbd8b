// Text as it is looked for.
#include "text/search_fold.h"

#include <gtest/gtest.h>

namespace text {
namespace {

TEST(SearchFold, CaseAndWidthDoNotCount) {
    EXPECT_EQ(SearchFold(u"abcXYZ01"), u"ABCXYZ01");
    EXPECT_EQ(SearchFold(u"ａｂｃＸＹＺ０１！～"), u"ABCXYZ01!~");
    EXPECT_EQ(SearchFold(u"ﾃｽﾄ　1"), u"テスト 1");
    EXPECT_EQ(SearchFold(u"｡｢ｦﾜﾝｰ"), u"。「ヲワンー");
    EXPECT_EQ(SearchFold(u"写真"), u"写真");
    EXPECT_EQ(SearchFold(u""), u"");
}

TEST(SearchFold, SoundMarksJoinTheirSound) {
    EXPECT_EQ(SearchFold(u"ﾊﾟﾗﾋﾟｺ"), u"パラピコ");
    EXPECT_EQ(SearchFold(u"ｶﾞｷﾞｸﾞｹﾞｺﾞ"), u"ガギグゲゴ");
    EXPECT_EQ(SearchFold(u"ﾂﾞﾃﾞﾎﾞｳﾞ"), u"ヅデボヴ");
    EXPECT_EQ(SearchFold(u"か\u3099は\u309Aう\u3099"), u"がぱゔ");
    EXPECT_EQ(SearchFold(u"カ\u3099"), u"ガ");
}

TEST(SearchFold, AMarkWithoutASoundForItStays) {
    EXPECT_EQ(SearchFold(u"ﾞa"), u"ﾞA") << "the first of all";
    EXPECT_EQ(SearchFold(u"ﾅﾞ").size(), 2u);
    EXPECT_EQ(SearchFold(u"ｶﾟ").size(), 2u);
    EXPECT_EQ(SearchFold(u"漢\u3099").size(), 2u);
}

}  // namespace
}  // namespace text
