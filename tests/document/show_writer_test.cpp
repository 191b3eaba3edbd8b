// Writing show documents: the bytes, the identity, what a failure leaves.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "document_support.h"
#include "model/windows/main_window.h"
#include "model/windows/slide_list.h"

namespace document_tests {
namespace {

using ::testing::ElementsAre;

constexpr const char16_t* kTarget = u"C:\\save\\new.kvs";

std::string Written(const Program& program, TextView path = kTarget) {
    const auto* file = program.files.Get(path);
    return file ? file->content : "no file";
}

void AddSlide(Program& program, const char16_t* path, const Text& row = kBlankRow) {
    program.app.windows.form3.List1.AddItem(path);
    program.app.windows.form3.List2.AddItem(row);
}

TEST(ShowWriter, TextOriginIsTheSettingsOwn) {
    Program program;
    AddSlide(program, u"C:\\pic\\a.jpg");
    document::WriteShowDocument(program.app, kTarget);
    const std::string before = Written(program);
    model::SetTextOriginOfRun(program.app.state, 1);
    document::WriteShowDocument(program.app, kTarget);
    EXPECT_EQ(Written(program), before);
    // The next document's own.
    document::ReadShowDocument(program.app, kTarget);
    EXPECT_EQ(program.app.state.TextOriginScreen, 0);
    EXPECT_EQ(program.app.state.TextOriginByMacro, 0);
}

TEST(ShowWriter, WritesStartDefaultsByteForByte) {
    Program program;
    AddSlide(program, u"C:\\pic\\a.jpg");
    document::WriteShowDocument(program.app, kTarget);
    EXPECT_EQ(Written(program),
              "21vue3167893\r\n"
              "C:\\save\\new.kvs\r\n"
              " 3000 \r\n"  // interval
              " 0 \r\n"     // repeat
              " 7 \r\n"     // sound mode
              "*.wav\r\n"   // default effect sound
              "\r\n"        // WAV
              " 9 \r\n"     // effects and speeds
              "-30 \r\n"
              " 9 \r\n"
              "-30 \r\n"
              " 10 \r\n"  // slits
              " 10 \r\n"
              " 1 \r\n"   // CD repeat
              "1\r\n"     // CD track
              " 10 \r\n"  // mosaic
              " 10 \r\n"
              " 1 \r\n"  // text macro
              "\r\n"     // MIDI
              " 1 \r\n"  // sync
              " 1 \r\n"  // linked sound position
              " 1 \r\n"  // random
              " 0 \r\n"  // CD order
              " 0 \r\n"  // linked folder
              "\r\n"
              " 1 \r\n"  // slides
              "C:\\pic\\a.jpg\r\n"
              "480\r\n"
              " 0 \r\n"  // overlay
              " 0 \r\n"
              " 0 \r\n"  // CD programme
              " 0 \r\n"  // text origin
              " 1 \r\n"  // CD plus linked WAV
              " 0 \r\n"  // CD programme stop
              " 0 \r\n"  // overlay background
              " 0 \r\n"  // picture position
              " 0 \r\n"  // sound list
              " 0 \r\n"  // linked WAV during MIDI
              "\r\n"     // MP3
              " 0 \r\n"  // MP3 mode
              " 1 \r\n"  // always full screen
              " 0 \r\n"  // fixed speed
              " 0 \r\n"  // load mode
              " 0 \r\n"  // linked WAV during MP3
              " 0 \r\n"  // linked WAV during the sound list
              "-                              \r\n");
}

TEST(ShowWriter, WritesTheNewestFormAsItWasRead) {
    Program program;
    program.Read(FullDocument());
    document::WriteShowDocument(program.app, kTarget);
    const Text expected = TextOf(With(FullDocument(), 2, {kTarget}));
    EXPECT_EQ(Written(program), text::EncodeFile(expected, program.codePage));
}

TEST(ShowWriter, UsesTheCodePageOrUtf8WithAMark) {
    Program program;
    AddSlide(program, u"C:\\表.jpg");
    document::WriteShowDocument(program.app, kTarget);
    EXPECT_NE(Written(program).find("C:\\\x95\x5C.jpg\r\n"), std::string::npos);
    AddSlide(program, u"C:\\한.jpg");
    document::WriteShowDocument(program.app, kTarget);
    EXPECT_TRUE(
        Written(program).starts_with("\xEF\xBB\xBF"
                                     "21vue3167893\r\n"));
    EXPECT_NE(Written(program).find("C:\\한.jpg\r\n"), std::string::npos);
}

TEST(ShowWriter, Mp3IsWrittenAsSevenAndStaysEight) {
    Program program;
    program.app.state.SoundMode = 8;
    document::WriteShowDocument(program.app, kTarget);
    EXPECT_EQ(program.State().SoundMode, 8);
    EXPECT_EQ(program.State().Mp3ModeFlag, 1);
    EXPECT_NE(Written(program).find(" 3000 \r\n 0 \r\n 7 \r\n"), std::string::npos);
    EXPECT_NE(Written(program).find("\r\n 0 \r\n\r\n 1 \r\n 1 \r\n"), std::string::npos);
    program.app.state.SoundMode = 7;
    document::WriteShowDocument(program.app, kTarget);
    EXPECT_EQ(program.State().Mp3ModeFlag, 0);
}

TEST(ShowWriter, ADistributionSaveDropsFoldersAndTheLinkedFolder) {
    Program program;
    program.Read(FullDocument());
    program.app.state.DistributionSaveFlag = 1;
    document::WriteShowDocument(program.app, kTarget);
    Lines expected = FullDocument();
    expected = With(expected, 2, {u"new.kvs"});
    expected = With(expected, 6, {u"def.wav"});
    expected = With(expected, 7, {u"back.wav"});
    expected = With(expected, 19, {u"m.mid"});
    expected = With(expected, 24, {u" 0 "});
    expected = With(expected, 25, {u""});
    expected = With(expected, 27, {u"一.jpg", u"二.png"});
    expected = With(expected, 40, {u"list.mp3"});
    expected = With(expected, 42, {u"song.mp3"});
    EXPECT_EQ(Written(program), text::EncodeFile(TextOf(expected), program.codePage));
    EXPECT_EQ(program.State().LinkedFolderFlag, 0);
    EXPECT_EQ(program.State().LinkedFolder, u"");
    // The record's other names keep their folders.
    EXPECT_EQ(program.State().MidiFile, u"C:\\snd\\m.mid");
    EXPECT_THAT(program.List1(), ElementsAre(u"C:\\pic\\一.jpg", u"C:\\pic\\二.png"));
}

TEST(ShowWriter, TakesTheIdentityAndRebuildsTheSchedule) {
    Program program;
    AddSlide(program, u"C:\\a.jpg", kRow);
    program.app.state.ScheduleFrom.Set(2, u"stale");
    program.app.state.ResumeIndex = 5;
    program.files.clock = platform::FromCalendar({2024, 12, 31, 23, 59, 58});
    document::WriteShowDocument(program.app, u"C:\\save\\new");
    const Text path = u"C:\\save\\new.kvs";
    EXPECT_EQ(program.State().DocumentPath, path);
    EXPECT_EQ(program.State().DocumentName, u"new.kvs");
    EXPECT_EQ(program.State().DocumentFileDate, u"2024/12/31 23:59:58");
    EXPECT_EQ(program.app.windows.form1.Caption(), u"ｽﾗｲﾄﾞ - " + path);
    EXPECT_EQ(program.app.windows.form1.MousePointer, model::kPointerNormal);
    EXPECT_EQ(program.State().ScheduleFrom(1), u"2026/01/02 10:30");
    EXPECT_EQ(program.State().ScheduleTo(1), u"2026/12/31 23:59");
    EXPECT_EQ(program.State().ScheduleFrom(2), u"");
    EXPECT_EQ(program.State().ResumeIndex, 5);
}

TEST(ShowWriter, SlidesAfterAnAviKeepTheirSchedule) {
    Program program;
    const Text filmRow = u"2030/02/0304:05" + Text(15, u' ');
    Lines lines = With(FullDocument(), 26, {u" 3 "});
    lines = With(lines, 27, {u"C:\\b.avi", u"C:\\a.jpg", u"C:\\c.jpg"});
    program.Read(With(lines, 49, {u"-" + filmRow, u"-" + kBlankRow, u"-" + kRow}));
    document::WriteShowDocument(program.app, kTarget);
    lines = With(lines, 2, {kTarget});
    lines = With(lines, 26, {u" 2 "});
    lines = With(lines, 27, {u"C:\\a.jpg", u"C:\\c.jpg"});
    lines = With(lines, 49, {u"-" + kBlankRow, u"-" + kRow});
    EXPECT_EQ(Written(program), text::EncodeFile(TextOf(lines), program.codePage));
    EXPECT_EQ(program.State().ScheduleFrom(1), u"2030/02/03 04:05");
    EXPECT_EQ(program.State().ScheduleFrom(2), Text(16, u' '));
    EXPECT_EQ(program.State().ScheduleFrom(3), u"2026/01/02 10:30");
    EXPECT_EQ(program.State().SlideList(1), u"C:\\b.avi");
}

TEST(ShowWriter, ListsThatWereEditedGiveTheirRowsInOrder) {
    Program program;
    program.app.state.SlideList.Set(1, u"C:\\old.avi");
    AddSlide(program, u"C:\\a.jpg", kBlankRow);
    AddSlide(program, u"C:\\b.jpg", kRow);
    document::WriteShowDocument(program.app, kTarget);
    EXPECT_EQ(program.State().ScheduleFrom(1), Text(16, u' '));
    EXPECT_EQ(program.State().ScheduleFrom(2), u"2026/01/02 10:30");
    EXPECT_EQ(program.State().ScheduleFrom(3), u"");
}

TEST(ShowWriter, AddsTheExtensionOnlyWhereNoneStands) {
    Program program;
    for (const char16_t* path : {u"C:\\s\\a.kvs", u"C:\\s\\b.x", u"C:\\s\\c.txt"}) {
        document::WriteShowDocument(program.app, path);
        EXPECT_EQ(program.State().DocumentPath, path);
    }
    document::WriteShowDocument(program.app, u"C:\\s\\d.html");  // the point is the fifth from last
    EXPECT_EQ(program.State().DocumentPath, u"C:\\s\\d.html.kvs");
}

TEST(ShowWriter, AFailureShowsItsWordsAndChangesNothing) {
    Program program;
    program.Read(FullDocument());
    program.app.state.SoundMode = 8;
    program.app.state.DistributionSaveFlag = 1;
    const std::string before = Written(program, kPath);
    const Text caption = program.app.windows.form1.Caption;
    const Text date = program.State().DocumentFileDate;
    program.files.writeError = u"ディスクの空き領域が不足しています。";
    document::WriteShowDocument(program.app, kTarget);
    ASSERT_EQ(program.dialogs.messages.size(), 1u);
    EXPECT_EQ(program.dialogs.messages[0].text, u"ディスクの空き領域が不足しています。");
    EXPECT_EQ(program.dialogs.messages[0].flags, 48);
    EXPECT_EQ(program.dialogs.messages[0].title, u"ファイルの保存");
    EXPECT_EQ(Written(program, kPath), before);
    EXPECT_EQ(program.files.Get(kTarget), nullptr);
    EXPECT_EQ(program.State().SoundMode, 8);
    EXPECT_EQ(program.State().LinkedFolder, u"C:\\linked");
    EXPECT_EQ(program.State().DocumentPath, kPath);
    EXPECT_EQ(program.State().DocumentFileDate, date);
    EXPECT_EQ(program.app.windows.form1.Caption(), caption);
    EXPECT_EQ(program.app.windows.form1.MousePointer, model::kPointerNormal);
}

TEST(ShowWriter, AFileThatCannotBeOpenedShowsItsWordsAlone) {
    Program program;
    program.Read(FullDocument());
    program.files.writeError = u"フォルダが見つかりません。";
    program.files.writeFailsWhileOpening = true;
    document::WriteShowDocument(program.app, kTarget);
    ASSERT_EQ(program.dialogs.messages.size(), 1u);
    EXPECT_EQ(program.dialogs.messages[0].text, u"フォルダが見つかりません。");
    EXPECT_EQ(program.dialogs.messages[0].flags, 0);
    EXPECT_EQ(program.dialogs.messages[0].title, u"");
    EXPECT_EQ(program.State().DocumentPath, kPath);
    EXPECT_EQ(program.app.windows.form1.MousePointer, model::kPointerNormal);
}

/// Each setting of the table by itself, at both ends of its range.
TEST(ShowWriter, EverySettingOfADocumentComesBack) {
    for (const model::Setting& setting : model::Settings()) {
        if (setting.kept != model::Kept::Document) {
            continue;
        }
        std::vector<std::variant<double, Text>> values{Text(u"C:\\値\\" + Text(3, u'x'))};
        if (std::holds_alternative<double>(setting.start)) {
            values = {static_cast<double>(setting.lowest), static_cast<double>(setting.highest)};
        }
        for (const auto& value : values) {
            SCOPED_TRACE(setting.name);
            Program writer;
            model::SetNewDefaults(writer.app.state);
            ASSERT_TRUE(model::WriteField(writer.app.state, setting.field, value));
            AddSlide(writer, u"C:\\a.jpg");
            document::WriteShowDocument(writer.app, kTarget);
            Program reader;
            PoisonSettings(reader.app.state);
            reader.files.Put(kTarget, Written(writer));
            reader.app.state.BaseFolder = u"C:\\save\\";
            document::ReadShowDocument(reader.app, kTarget);
            ASSERT_TRUE(reader.Accepted());
            for (const model::Setting& other : model::Settings()) {
                if (other.kept == model::Kept::Document) {
                    EXPECT_EQ(model::ReadField(reader.State(), other.field),
                              model::ReadField(writer.State(), other.field))
                        << other.name;
                }
            }
        }
    }
}

TEST(ShowWriter, TheLongestIntervalComesBack) {
    Program program;
    program.Read(With(FullDocument(), 3, {u" 2147483647 "}));
    document::WriteShowDocument(program.app, kTarget);
    document::ReadShowDocument(program.app, kTarget);
    ASSERT_TRUE(program.Accepted());
    EXPECT_EQ(program.State().SlideIntervalSec, 2147484);
}

}  // namespace
}  // namespace document_tests
