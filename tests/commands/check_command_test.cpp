// --check as a person calls it: exit status, what is printed, show documents with their slides.
#include "adapters/commands/check_command.h"

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <sstream>

#include "adapters/posix/iconv_code_page.h"
#include "posix/temporary_folder.h"

namespace {

struct CheckCommand : testing::Test {
    TemporaryFolder folder;
    std::ostringstream out, err;

    int Run(std::vector<std::string> arguments) {
        out.str("");
        err.str("");
        arguments.insert(arguments.begin(), "--check");
        return commands::RunCheckCommand(arguments, out, err);
    }
    /// A file of the code page.
    std::string Put(const std::string& name, TextView content) {
        folder.Put(name, *posix_adapter::IconvCodePage().Encode(content));
        return folder.Path(name);
    }
    std::string PutShow(TextView slides, int count) {
        return Put("show.kvs", u"vue2\r\nshow.kvs\r\n 3000 \r\n 0 \r\n 7 \r\n*.wav\r\n " +
                                   text::FromUtf8(std::to_string(count)) + u" \r\n" + Text(slides));
    }
    QJsonArray Json() {
        QJsonParseError error;
        const auto json = QJsonDocument::fromJson(QByteArray::fromStdString(out.str()), &error);
        EXPECT_EQ(error.error, QJsonParseError::NoError) << out.str();
        EXPECT_TRUE(json.isArray());
        return json.array();
    }
};

TEST_F(CheckCommand, SoundMacroFileIsStatusZeroAndSaysNothing) {
    const std::string file = Put("umi.txt", u"QBColor=15\r\n[テキスト]\r\n海\r\n");
    EXPECT_EQ(Run({file}), 0);
    EXPECT_EQ(out.str(), "");
    EXPECT_EQ(Run({"--json", file}), 0);
    EXPECT_TRUE(Json().isEmpty());
}

TEST_F(CheckCommand, FindingIsALineWithFileLineAndColumn) {
    const std::string file = Put("umi.txt", u"Tab=8\r\n\r\nQBColor=16\r\n");
    EXPECT_EQ(Run({file}), 1);
    EXPECT_EQ(out.str(), file +
                             ":3:9: QBCOLORの値 16 が範囲（0～15）の外です → 10 になります（0～15 "
                             "の数にしてください）\n");
    EXPECT_EQ(err.str(), "");
}

TEST_F(CheckCommand, JsonHoldsTheSameFieldsWhateverTheNames) {
    const std::string file = Put("\"海\\\n.txt", u"QBColor=16\r\nFontName=\"\x0001\r\n");
    EXPECT_EQ(Run({"--json", file}), 1);
    const QJsonArray rows = Json();
    ASSERT_EQ(rows.size(), 2);
    const QJsonObject first = rows[0].toObject();
    EXPECT_EQ(first["file"].toString().toStdString(), file);
    EXPECT_EQ(first["line"].toInt(), 1);
    EXPECT_EQ(first["column"].toInt(), 9);
    EXPECT_EQ(first["effect"].toString(), QStringLiteral("10 になります"));
    EXPECT_EQ(first["remedy"].toString(), QStringLiteral("0～15 の数にしてください"));
    EXPECT_EQ(first["kind"].toString(), QStringLiteral("range"));
    EXPECT_TRUE(first["wrong"].toString().startsWith(QStringLiteral("QBCOLOR")));
    EXPECT_EQ(rows[1].toObject()["line"].toInt(), 2);
}

TEST_F(CheckCommand, ScreenOfTextsCanBeNamed) {
    const std::string file = Put("umi.txt", u"QBColor=15\r\nCurrentY=1500\r\n[テキスト]\r\n海\r\n");
    EXPECT_EQ(Run({file}), 1);
    EXPECT_NE(out.str().find("1920×1080"), std::string::npos);
    EXPECT_EQ(Run({"--screen", "3840x2160", file}), 0);
    for (const char* size : {"", "3840", "0x0", "3840x2160x", "ax1"}) {
        EXPECT_EQ(Run({"--screen", size, file}), 2) << size;
    }
    EXPECT_EQ(Run({file, "--screen"}), 2);
}

TEST_F(CheckCommand, SeveralFilesAreOneReport) {
    const std::string sound = Put("a.txt", u"Tab=8\r\n");
    const std::string odd = Put("b.txt", u"Tab=1\r\n");
    EXPECT_EQ(Run({sound, odd, odd}), 1);
    const std::string line =
        odd +
        ":1:5: TABの値 1 が範囲（2～10）の外です → 2 になります（2～10 の数にしてください）\n";
    EXPECT_EQ(out.str(), line + line);
}

TEST_F(CheckCommand, WrongUsageAndUnreadableFilesAreStatusTwo) {
    EXPECT_EQ(Run({}), 2);
    EXPECT_NE(err.str().find("usage:"), std::string::npos);
    EXPECT_EQ(Run({"--json"}), 2);
    EXPECT_EQ(Run({"--loud", "x.txt"}), 2);
    EXPECT_EQ(Run({""}), 2);
    for (const char* name : {"missing.txt", "missing.kvs", ""}) {
        const std::string path = folder.Path(name);
        EXPECT_EQ(Run({path}), 2) << path;
        EXPECT_NE(err.str().find(path), std::string::npos);
    }
    // What could be read is reported all the same.
    const std::string odd = Put("b.txt", u"Tab=1\r\n");
    EXPECT_EQ(Run({folder.Path("missing.txt"), odd}), 2);
    EXPECT_NE(out.str().find("TAB"), std::string::npos);
}

TEST_F(CheckCommand, ShowTellsMissingPicturesAtTheirLines) {
    Put("a.png", u"");
    const std::string show = PutShow(u"a.png\r\nない絵.jpg\r\nない.mp4\r\na.png\r\n", 4);
    EXPECT_EQ(Run({"--json", show}), 1);
    const QJsonArray rows = Json();
    ASSERT_EQ(rows.size(), 2);
    EXPECT_EQ(rows[0].toObject()["file"].toString().toStdString(), show);
    EXPECT_EQ(rows[0].toObject()["line"].toInt(), 9);
    EXPECT_TRUE(rows[0].toObject()["wrong"].toString().contains(QStringLiteral("ない絵.jpg")));
    EXPECT_EQ(rows[0].toObject()["effect"].toString(), QStringLiteral("続けるかどうかを尋ねます"));
    EXPECT_EQ(rows[1].toObject()["line"].toInt(), 10);
    EXPECT_EQ(rows[1].toObject()["effect"].toString(), QStringLiteral("知らせたあと次へ進みます"));
}

TEST_F(CheckCommand, ShowLooksThroughEverySlidesMacroWithItsPlace) {
    Put("a.png", u"");
    Put("b.png", u"");
    // Two slides: one before the first is the last, one before the last is none.
    const std::string first = Put("a.txt", u"Menu1(1,\"次\")\r\nYesNoPB(0,-1)\r\n");
    const std::string second = Put("b.txt", u"PlayWav(\"x.wav\",0)\r\nMenu1(1,\"次\")\r\n");
    const std::string show = PutShow(u"a.png\r\nb.png\r\n", 2);
    EXPECT_EQ(Run({show}), 1);
    EXPECT_EQ(out.str(), first +
                             ":2:11: YESNOPBの移動先がスライドリストの外です → "
                             "最初のスライドへ移ります（移動数を直してください）\n" +
                             second +
                             ":1:10: 「x.wav」がありません → "
                             "表示も再生もされません（名前を直すか、ファイルを画像と同じフォルダに"
                             "置いてください）\n" +
                             second +
                             ":2:7: MENUの移動先がスライドリストの外です → "
                             "最後のスライドへ移ります（移動数を直してください）\n");
    // Outside a show nobody knows where the jumps lead.
    EXPECT_EQ(Run({first}), 0);
}

TEST_F(CheckCommand, FilmsCountAsSlidesAndHaveNoMacro) {
    for (const char* name : {"a.avi", "b.mp4", "c.png"}) {
        Put(name, u"");
    }
    Put("a.txt", u"はじめに\r\n");
    Put("b.txt", u"撮影の記録\r\n");
    // The third of three slides.
    const std::string macro = Put("c.txt", u"YesNoPB(-2,1)\r\n");
    EXPECT_EQ(Run({PutShow(u"a.avi\r\nb.mp4\r\nc.png\r\n", 3)}), 1);
    EXPECT_EQ(out.str(), macro +
                             ":1:12: YESNOPBの移動先がスライドリストの外です → "
                             "最後のスライドへ移ります（移動数を直してください）\n");
}

TEST_F(CheckCommand, LinkDocumentStandsForItsShows) {
    const std::string macro = Put("a.txt", u"Tab=1\r\n");
    Put("a.png", u"");
    PutShow(u"a.png\r\n", 1);
    const std::string links =
        Put("all.kvl", u"1vue3167\r\nall.kvl\r\n 2 \r\nない.kvs\r\nshow.kvs\r\n");
    EXPECT_EQ(Run({"--json", links}), 1);
    const QJsonArray rows = Json();
    ASSERT_EQ(rows.size(), 2);
    EXPECT_EQ(rows[0].toObject()["file"].toString().toStdString(), links);
    EXPECT_EQ(rows[0].toObject()["line"].toInt(), 4);
    EXPECT_EQ(rows[0].toObject()["effect"].toString(),
              QStringLiteral("知らせたあと次の文書へ進みます"));
    EXPECT_EQ(rows[1].toObject()["file"].toString().toStdString(), macro);
    EXPECT_EQ(Run({Put("bad.kvl", u"これは文書ではありません\r\n")}), 1);
    EXPECT_NE(out.str().find("この文書は読めません"), std::string::npos);
}

TEST_F(CheckCommand, DocumentThatCannotBeReadIsAFinding) {
    EXPECT_EQ(Run({Put("bad.kvs", u"これは文書ではありません\r\n")}), 1);
    EXPECT_NE(out.str().find("この文書は読めません"), std::string::npos);
}

TEST_F(CheckCommand, NothingIsWritten) {
    Put("a.png", u"");
    const std::string show = PutShow(u"a.png\r\n", 1);
    EXPECT_EQ(Run({show}), 0);
    EXPECT_EQ(folder.Count(), 2u);
}

}  // namespace
