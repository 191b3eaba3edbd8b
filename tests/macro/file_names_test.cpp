// The files that a macro names.
#include "macro/file_names.h"

#include <gtest/gtest.h>

#include "support/fake_platform.h"

namespace macro {
namespace {

struct FileNames : testing::Test {
    fakes::FakePlatform around;

    /// "name=path" each; '?' after one that may well be no file.
    std::vector<std::string> Named(TextView source) {
        std::vector<std::string> result;
        for (const FileName& name :
             FilesNamed(around.files, u"D:\\show\\", u"D:\\docs\\", source)) {
            result.push_back(text::ToUtf8(source.substr(name.at, name.length)) + "=" +
                             text::ToUtf8(name.path) + (name.needed ? "" : "?"));
        }
        return result;
    }
};

using List = std::vector<std::string>;

TEST_F(FileNames, OfEachWordThatNamesFiles) {
    EXPECT_EQ(Named(u"PicPB3(0,\"a b.png\")\r\n"), List{"a b.png=D:\\show\\a b.png"});
    EXPECT_EQ(Named(u"PicPB62(1,\"D:\\x\\a.png\" , \"b.wav\") // \"c\"\r\n"),
              (List{"D:\\x\\a.png=D:\\x\\a.png", "b.wav=D:\\show\\b.wav"}));
    EXPECT_EQ(Named(u"picpbdata(3,\"a_Pb03.dat\")"), List{"a_Pb03.dat=D:\\show\\a_Pb03.dat"});
    EXPECT_EQ(Named(u"PICPBDATA(3, cut.dat )"), List{"cut.dat=D:\\show\\cut.dat"});
    EXPECT_EQ(Named(u"PlayWav(\"a.wav\",1)"), List{"a.wav=D:\\show\\a.wav"});
    EXPECT_EQ(Named(u"MOVIE(\"D:\\f\\a.mp4\")"), List{"D:\\f\\a.mp4=D:\\f\\a.mp4"});
}

TEST_F(FileNames, StandForWhatThePlayerFinds) {
    around.files.Put(u"D:\\show\\sub\\a.png", "");
    around.files.Put(u"D:\\show\\m.mp4", "");
    EXPECT_EQ(Named(u"PICPB0(0,\"sub\\a.png\")"), List{"sub\\a.png=D:\\show\\sub\\a.png"});
    EXPECT_EQ(Named(u"PICPB0(0,\"sub\\b.png\")"), List{"sub\\b.png=sub\\b.png"});
    EXPECT_EQ(Named(u"MOVIE(\"m.mp4\",0)"), List{"m.mp4=D:\\show\\m.mp4"});
    EXPECT_EQ(Named(u"MOVIE(\"gone.mp4\",0)"), List{"gone.mp4=gone.mp4"});
}

TEST_F(FileNames, AProgramOnlyWhereItStandsBesideTheDocument) {
    around.files.Put(u"D:\\docs\\tool.exe", "");
    EXPECT_EQ(Named(u"SHELL=\"tool.exe\""), List{"tool.exe=D:\\docs\\tool.exe?"});
    EXPECT_EQ(Named(u"SHELL=\"other.exe\"\nSHELL=\"C:\\bin\\x.exe\""), List{});
}

TEST_F(FileNames, NoneInCommentsTextsOrEmptyNames) {
    EXPECT_EQ(Named(u"//PICPB0(0,\"a.png\")\r\n PICPB0(0,\"a.png\")\r\n[テキスト]\r\n"
                    u"\"a.png\"\r\nPICPB0(0,\"\")\r\nFONTNAME=\"a.png\"\r\nPICPB0(0,\"a"),
              List{});
    EXPECT_EQ(Named(u"PICPB0(0,\"http://a.png\")"), List{}) << "the player cuts it there, too";
    EXPECT_EQ(Named(u""), List{});
}

TEST_F(FileNames, InTheTextTheWordsCountToo) {
    EXPECT_EQ(Named(u"[テキスト]\nPICPB0(0,\"a.png\")\nabc\nPLAYWAV(\"b.wav\",0)"),
              (List{"a.png=D:\\show\\a.png", "b.wav=D:\\show\\b.wav"}));
}

}  // namespace
}  // namespace macro
