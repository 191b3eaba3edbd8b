// autstart.dat: written to the byte, read at every age, silent about every fault.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

#include "model/controls.h"
#include "model/windows/background_sound.h"
#include "model/windows/main_window.h"
#include "model/windows/slide_list.h"
#include "model/windows/sound_list.h"
#include "model/windows/text_display.h"
#include "state_support.h"
#include "text/paths.h"

namespace document_tests {
namespace {

using ::testing::ElementsAre;

void ExpectFields(const Program& program, const StateLines& lines) {
    for (const StateLine& line : lines) {
        if (model::FindField(line.field)) {
            EXPECT_EQ(Value(program, line.field), Expected(line)) << line.field;
        }
    }
}

TEST(StateFile, TextOriginIsTheSettingsOwn) {
    StateProgram program;
    EXPECT_TRUE(document::WriteStateFile(program.app));
    const std::string before = program.Written();
    model::SetTextOriginOfRun(program.app.state, 1);
    EXPECT_TRUE(document::WriteStateFile(program.app));
    EXPECT_EQ(program.Written(), before);
}

TEST(StateFile, StartDefaultsAreWrittenByteForByte) {
    StateProgram program;
    program.app.windows.form3.List1.AddItem(u"C:\\pic\\a.jpg");
    program.app.windows.form3.List2.AddItem(kBlankRow);
    EXPECT_TRUE(document::WriteStateFile(program.app));
    EXPECT_EQ(program.Written(),
              "V2.1a3567893sp6\r\n"
              " 1 \r\n"         // random
              " 0 \r\n"         // CD order
              " 0 \r\n\r\n"     // linked folder
              " 0 \r\n 0 \r\n"  // start option, resume
              " 0 \r\n 0 \r\n"  // overlay
              " 1 \r\n"         // auto start
              " 1 \r\n"         // control box
              " 1 \r\n"         // linked sound position
              " 1 \r\n"         // size
              " 0 \r\n 0 \r\n"  // double click starts, error delete
              " 9 \r\n-30 \r\n 9 \r\n-30 \r\n 10 \r\n 10 \r\n"
              " 5 \r\n"                  // speed trim
              "\r\n 1 \r\n1\r\n"         // WAV, CD repeat, track
              " 10 \r\n 10 \r\n 1 \r\n"  // mosaic, picture beside the list
              " 0 \r\n"                  // mosaic delay
              " 0 \r\n 0 \r\n 0 \r\n"    // double clicks
              " 1 \r\n"                  // text macro
              "\r\n"                     // MIDI
              "\r\n"                     // means nothing
              " 1 \r\n"                  // sync
              "\r\n"                     // document
              " 3000 \r\n 0 \r\n 7 \r\n*.wav\r\n"
              " 1 \r\nC:\\pic\\a.jpg\r\n"
              " 0 \r\n"                       // programme
              " 0 \r\n 1 \r\n 0 \r\n"         // origin, CD plus, programme stop
              " 0 \r\n 0 \r\n"                // confirm, duplicate
              " 0 \r\n 0 \r\n 0 \r\n 0 \r\n"  // background, position, list, MIDI's WAV
              "\r\n 0 \r\n"                   // MP3
              " 1 \r\n 0 \r\n 0 \r\n"         // full, fixed speed, load mode
              " 0 \r\n 0 \r\n 0 \r\n 0 \r\n"  // MP3's WAV, list's WAV, box place, selected place
              "-                              \r\n"
              " 0 \r\n"    // monitor
              " 0 \r\n");  // header
}

TEST(StateFile, EveryLineIsReadAndWrittenBackAsItWas) {
    StateProgram program;
    PoisonSettings(program.app.state);
    program.Read(FullState());
    ExpectFields(program, FullState());
    EXPECT_EQ(program.State().SlideIntervalSec, 9);
    EXPECT_EQ(program.app.windows.form1.Timer1.Interval, 9000);
    EXPECT_THAT(program.List1(), ElementsAre(u"C:\\pic\\一.jpg", u"C:\\pic\\x.avi"));
    EXPECT_THAT(program.List2(), ElementsAre(kRow, kBlankRow));
    EXPECT_EQ(program.State().SlideList(2), u"C:\\pic\\x.avi");
    EXPECT_EQ(program.State().ScheduleFrom(1), u"2026/01/02 10:30");
    EXPECT_EQ(program.State().ScheduleTo(1), u"2026/12/31 23:59");
    EXPECT_EQ(program.State().CdProgram(2), u"7");
    EXPECT_EQ(program.app.windows.form3.Label4.Caption(), u"2");
    EXPECT_TRUE(program.dialogs.messages.empty());

    program.monitors.ofMainWindow = 1;
    EXPECT_TRUE(document::WriteStateFile(program.app));
    EXPECT_EQ(program.Written(), text::EncodeFile(TextOf(FullState()), program.codePage));
}

TEST(StateFile, HoldsEverySettingButTheLinkWindows) {
    const StateLines lines = FullState();
    for (const model::Setting& setting : model::Settings()) {
        const bool held = setting.name == "SlideIntervalSec" ||
                          PlaceOf(lines, std::string(setting.name)) < lines.size();
        EXPECT_EQ(held, setting.kept != model::Kept::Link) << setting.name;
    }
}

TEST(StateFile, TakesTheDocumentWithItsDateAndCaption) {
    StateProgram program;
    program.files.SetDate(u"C:\\show\\表.kvs", platform::FromCalendar({2024, 12, 31, 23, 59, 58}));
    program.Read(FullState());
    EXPECT_EQ(program.app.windows.form1.Caption(), u"ｽﾗｲﾄﾞ - C:\\show\\表.kvs");
    EXPECT_EQ(program.State().DocumentFileDate, u"2024/12/31 23:59:58");
    EXPECT_EQ(program.State().DocumentName, u"C:\\show\\表.kvs");

    StateProgram none;
    none.Read(With(FullState(), "DocumentPath", u""));
    EXPECT_EQ(none.app.windows.form1.Caption(), u"ﾊﾟﾗﾋﾟｺ Win Ver.9.10");
    EXPECT_EQ(none.State().DocumentFileDate, u"");

    StateProgram missing;
    missing.files.Remove(u"C:\\show\\表.kvs");
    missing.Read(FullState());
    EXPECT_EQ(missing.app.windows.form1.Caption(), u"ｽﾗｲﾄﾞ - C:\\show\\表.kvs");
    EXPECT_EQ(missing.State().DocumentFileDate, u"");
}

TEST(StateFile, MenusAndControlsFollow) {
    StateProgram program;
    program.Read(FullState());
    auto& windows = program.app.windows;
    model::Form1& form1 = windows.form1;
    EXPECT_TRUE(form1.mnuRANDFL(0).Checked);
    EXPECT_TRUE(form1.mnuKOU(3).Checked);
    EXPECT_TRUE(form1.mnuHKO(4).Checked);
    EXPECT_TRUE(form1.mnuKASANE(2).Checked);
    EXPECT_TRUE(form1.mnuCTL(0).Checked);
    EXPECT_TRUE(form1.mnuCTL_P(1).Checked);
    EXPECT_TRUE(form1.mnuSIZE(2).Checked);
    EXPECT_TRUE(form1.mnuLSAKU(1).Checked);
    EXPECT_TRUE(form1.mnuAUT(0).Checked);
    EXPECT_TRUE(form1.mnuSOP1(1).Checked);
    EXPECT_TRUE(form1.mnuSTKAKU(1).Checked);
    EXPECT_TRUE(form1.mnuJYUF(1).Checked);
    EXPECT_TRUE(form1.menuHEAD(1).Checked);
    EXPECT_FALSE(form1.mnuCDM.Visible);
    EXPECT_TRUE(form1.mnuKAHAI.Visible);
    EXPECT_FALSE(form1.mnuHKSP.Visible);
    EXPECT_FALSE(form1.mnuSKSP.Visible);
    EXPECT_EQ(windows.form3.Check1.Value, 0);
    for (const model::CheckBox* check :
         {&windows.form3.Check2, &windows.form3.Check3, &windows.form3.Check4,
          &windows.form3.Check5, &windows.form8.Check1, &windows.form17.Check1,
          &windows.form10.Check1, &windows.form10.Check5, &windows.form10.Check6}) {
        EXPECT_EQ(check->Value, 1) << check->Parent().Name() << check->Name();
    }
    EXPECT_FALSE(windows.form15.Option1.Value);
    EXPECT_TRUE(windows.form15.Option2.Value);
    EXPECT_EQ(form1.MousePointer, model::kPointerNormal);
}

TEST(StateFile, BareSlideNamesLieInTheProgramFolder) {
    StateProgram program;
    program.app.state.BaseFolder = u"C:\\show\\";
    program.Read(With(FullState(), "slide", u"bare.jpg"));
    EXPECT_EQ(program.State().SlideList(1), u"C:\\app\\bare.jpg");
    EXPECT_EQ(program.List1()[0], u"C:\\app\\bare.jpg");
    EXPECT_EQ(program.State().MidiFile, u"m.mid");  // slides only
}

TEST(StateFile, LinkedFolderAndReservedLineAreItems) {
    StateProgram program;
    program.Read(
        With(With(FullState(), "LinkedFolder", u"  C:\\a,b"), "ReservedStateText", u"  x y ,z"));
    EXPECT_EQ(program.State().LinkedFolder, u"C:\\a");
    EXPECT_EQ(program.State().ReservedStateText, u"x y ");
    EXPECT_EQ(program.State().WavFile, u"C:\\snd\\a,b.wav");
    EXPECT_EQ(program.State().UserHeaderFlag, 1);
}

TEST(StateFile, IntervalHasAFloorAndIsRoundedToSeconds) {
    const struct {
        const char16_t* line;
        int seconds, timer;
    } rows[] = {{u" 200 ", 1, 1000}, {u"-5 ", 1, 1000}, {u" 2500 ", 2, 2500}, {u" 3500 ", 4, 3500}};
    for (const auto& row : rows) {
        StateProgram program;
        program.Read(With(FullState(), "interval", row.line));
        EXPECT_EQ(program.State().SlideIntervalSec, row.seconds);
        EXPECT_EQ(program.app.windows.form1.Timer1.Interval, row.timer);
    }
}

TEST(StateFile, Mp3GoesOutAsSevenWithItsFlag) {
    StateProgram program;
    program.app.state.SoundMode = 8;
    document::WriteStateFile(program.app);
    EXPECT_EQ(program.State().SoundMode, 7);  // the reader or the exit follows
    EXPECT_EQ(program.State().Mp3ModeFlag, 1);
    document::ReadStateFile(program.app);
    EXPECT_EQ(program.State().SoundMode, 8);
    program.app.state.SoundMode = 3;
    document::WriteStateFile(program.app);
    document::ReadStateFile(program.app);
    EXPECT_EQ(program.State().SoundMode, 3);
    EXPECT_EQ(program.State().Mp3ModeFlag, 0);
}

TEST(StateFile, MosaicDelayIsTakenForAnAutomaticStartOnly) {
    StateProgram program;
    program.app.state.MosaicDelayUnit = 5;
    program.Read(With(FullState(), "AutoStartFlag", u" 1 "));
    EXPECT_EQ(program.State().MosaicDelayUnit, 5);
    EXPECT_EQ(program.State().ListDblClickRecord, 1);
    // A number too big for the field matters only where it is taken.
    program.Read(With(With(FullState(), "AutoStartFlag", u" 1 "), "MosaicDelayUnit", u" 99999 "));
    EXPECT_EQ(program.State().UserHeaderFlag, 1);
}

/// The fields that a tag's files lack, by the shortest tag that has them.
const std::vector<std::pair<Text, std::vector<std::string>>> kBlocks{
    {u"V2.1", {"ShowMosaicCount", "EraseMosaicCount", "ListShowPicture"}},
    {u"V2.1a", {"MosaicDelayUnit"}},
    {u"V2.1a3", {"ListDblClickRecord"}},
    {u"V2.1a35", {"ListDblClickWallpaper"}},
    {u"V2.1a356", {"ListDblClickText", "TextMacroFlag"}},
    {u"V2.1a3567", {"MidiFile", "ReservedStateText", "SoundSyncFlag"}},
    {u"V2.1a356789",
     {"ControlBoxFlag", "LinkedSoundPosition", "SizeAdjust", "ListDblClickStart",
      "ListErrorDelete"}},
    {u"V2.1a3567893",
     {"RandomFlag", "CdOrder", "LinkedFolderFlag", "LinkedFolder", "StartOption", "ResumeIndex",
      "OverlayMode", "OverlaySize"}}};

TEST(StateFile, OlderTagsLackTheirBlocks) {
    for (const Text& tag :
         {Text(u"V2"), Text(u"V2.0"), Text(u"V2.1"), Text(u"V2.1a"), Text(u"V2.1a3"),
          Text(u"V2.1a35"), Text(u"V2.1a356"), Text(u"V2.1a3567"), Text(u"V2.1a35678"),
          Text(u"V2.1a356789"), Text(u"V2.1a3567893"), Text(u"V2.1a3567893sp6")}) {
        StateProgram program;
        const model::ShowState before = program.app.state;
        StateLines lines = With(FullState(), "tag", tag);
        std::vector<std::string> lacking;
        for (const auto& [block, fields] : kBlocks) {
            if (!tag.starts_with(block)) {
                for (const std::string& field : fields) {
                    lines.erase(lines.begin() + static_cast<long>(PlaceOf(lines, field)));
                    lacking.push_back(field);
                }
            }
        }
        program.Read(lines);
        ExpectFields(program, lines);
        EXPECT_EQ(program.State().UserHeaderFlag, 1) << text::ToUtf8(tag);
        for (const std::string& field : lacking) {
            EXPECT_EQ(Value(program, field), model::ReadField(before, *model::FindField(field)))
                << text::ToUtf8(tag) << " " << field;
        }
    }
}

TEST(StateFile, TheOldestBeginWithTheAutoStartFlag) {
    StateProgram program;
    StateLines lines = FullState();
    const auto place = [&](const char* field) {
        return lines.begin() + static_cast<long>(PlaceOf(lines, field));
    };
    lines.erase(place("RandomFlag"), place("DocumentPath"));
    program.Read(With(lines, "tag", u" 0 "));
    EXPECT_EQ(program.State().AutoStartFlag, 0);
    EXPECT_EQ(program.State().ShowEffect, 9);
    EXPECT_EQ(program.List1().size(), 2u);
    EXPECT_EQ(program.State().DocumentPath, u"C:\\show\\表.kvs");
    EXPECT_EQ(program.State().UserHeaderFlag, 1);

    StateProgram alone;
    const model::ShowState before = alone.app.state;
    alone.ReadText(u"0\r\n");
    EXPECT_EQ(alone.State().AutoStartFlag, 0);
    EXPECT_TRUE(alone.app.windows.form1.mnuAUT(0).Checked);
    for (const model::Setting& setting : model::Settings()) {
        if (setting.name != "AutoStartFlag") {
            EXPECT_EQ(model::ReadField(alone.State(), setting.field),
                      model::ReadField(before, setting.field))
                << setting.name;
        }
    }
    EXPECT_TRUE(alone.dialogs.messages.empty());
}

TEST(StateFile, FilesThatEndEarlierTakeTheDefaults) {
    const std::vector<std::pair<std::string, double>> defaults{
        {"CdProgramCount", 0},    {"TextOriginScreen", 0}, {"CdPlusLinkedWav", 1},
        {"CdProgramStop", 0},     {"FullStartConfirm", 0}, {"AllowDuplicate", 0},
        {"OverlayBackColor", 0},  {"PicturePosition", 1},  {"SoundListUsed", 0},
        {"MidiLinkedWavFlag", 0}, {"Mp3ModeFlag", 0},      {"AlwaysFullFlag", 1},
        {"EffectSpeedFixed", 0},  {"LoadMode", 0},         {"Mp3LinkedWavFlag", 0},
        {"SoundListCheck5", 0},   {"ControlBoxPos", 0},    {"SoundListCheck6", 0},
        {"MonitorIndex", 0},      {"UserHeaderFlag", 0}};
    const StateLines full = FullState();
    for (const auto& [end, ignored] : defaults) {
        StateProgram program;
        PoisonSettings(program.app.state);
        program.app.state.MonitorIndex = 77;
        const StateLines lines = Before(full, end);
        program.Read(lines);
        ExpectFields(program, lines);
        for (const auto& [field, value] : defaults) {
            if (PlaceOf(full, field) >= lines.size()) {
                EXPECT_EQ(Value(program, field), (std::variant<double, Text>(value)))
                    << field << " of a file that ends before " << end;
            }
        }
        if (PlaceOf(full, "Mp3File") >= lines.size()) {
            EXPECT_EQ(program.State().Mp3File, u"");
        }
        EXPECT_EQ(program.List1().size(), 2u);
        EXPECT_EQ(program.List2()[1], kBlankRow);
        // Read to its end, and so the document is shown.
        EXPECT_EQ(program.app.windows.form1.Caption(), u"ｽﾗｲﾄﾞ - C:\\show\\表.kvs") << end;
    }
    StateProgram plain;
    plain.Read(Before(With(full, "OverlayMode", u" 0 "), "PicturePosition"));
    EXPECT_EQ(plain.State().PicturePosition, 0);
}

TEST(StateFile, RowsMayComeWithoutTheFlagsAheadOfThem) {
    StateProgram program;
    StateLines lines = FullState();
    const auto place = [&](const char* field) {
        return lines.begin() + static_cast<long>(PlaceOf(lines, field));
    };
    lines.erase(place("Mp3LinkedWavFlag"), place("row"));
    program.app.state.Mp3LinkedWavFlag = 1;
    program.app.state.ControlBoxPos = 1;
    program.Read(lines);
    EXPECT_EQ(program.State().Mp3LinkedWavFlag, 0);
    EXPECT_EQ(program.State().SoundListCheck5, 0);
    EXPECT_EQ(program.State().ControlBoxPos, 0);
    EXPECT_EQ(program.State().SoundListCheck6, 0);
    EXPECT_THAT(program.List2(), ElementsAre(kRow, kBlankRow));
    EXPECT_EQ(program.State().MonitorIndex, 1);
    // A first row that ends the file is not lost, the other stays blank.
    lines.resize(PlaceOf(lines, "row") + 1);
    StateProgram cut;
    cut.Read(lines);
    EXPECT_THAT(cut.List2(), ElementsAre(kRow, kBlankRow));
}

TEST(StateFile, CentresTheMainWindowOnItsMonitor) {
    const struct {
        const char16_t* index;
        int x, y, width, height;  // of the area in pixels
    } rows[] = {
        {u" 0 ", 0, 0, 1920, 1080},    {u" 1 ", 1920, 40, 1280, 1024},
        {u" 2 ", 0, 1080, 1920, 1080},  // left edge 0: the primary monitor's size
        {u" 3 ", 0, 0, 1920, 1080},     // gone
        {u"-1 ", 0, 0, 1920, 1080},    {u" 32767 ", 0, 0, 1920, 1080},
    };
    for (const auto& row : rows) {
        StateProgram program;
        program.monitors.monitors.push_back({0, 1080, 800, 600});
        program.app.windows.form1.Width = 12600;
        program.app.windows.form1.Height = 8800;
        program.Read(With(FullState(), "MonitorIndex", row.index));
        EXPECT_EQ(program.app.windows.form1.Left, row.x * 15 + (row.width * 15 - 12600) / 2);
        EXPECT_EQ(program.app.windows.form1.Top, row.y * 15 + (row.height * 15 - 8800) / 2);
    }
}

TEST(StateFile, WritesTheMonitorOfTheMainWindow) {
    for (const int number : {0, 1, -1, 11, 40000}) {
        StateProgram program;
        program.monitors.ofMainWindow = number;
        document::WriteStateFile(program.app);
        const std::string end = number == 1 ? " 1 \r\n 0 \r\n" : " 0 \r\n 0 \r\n";
        EXPECT_TRUE(program.Written().ends_with(end)) << number;
    }
}

TEST(StateFile, MissingAndUnreadableFilesAreSilent) {
    StateProgram program;
    PoisonSettings(program.app.state);
    const model::ShowState before = program.app.state;
    program.app.windows.SetPointer(model::kPointerBusy);
    document::ReadStateFile(program.app);
    program.Read(FullState());  // makes the file; then it is there and cannot be read
    program.app.state = before;
    program.files.MakeUnreadable(kStatePath);
    document::ReadStateFile(program.app);
    for (const model::Setting& setting : model::Settings()) {
        EXPECT_EQ(model::ReadField(program.State(), setting.field),
                  model::ReadField(before, setting.field));
    }
    EXPECT_TRUE(program.dialogs.messages.empty());
    EXPECT_EQ(program.app.windows.form1.MousePointer, model::kPointerNormal);
}

TEST(StateFile, WhatIsNoStateFileChangesNothing) {
    for (const char16_t* content :
         {u"", u"\r\n", u"vue3167\r\n1\r\n", u"hello\r\n 1 \r\n", u" V2.1\r\n", u"99999\r\n",
          u"1,2\r\n", u"&H1\r\n", u"\0\0\0\0"}) {
        StateProgram program;
        PoisonSettings(program.app.state);
        program.ReadText(content);
        EXPECT_EQ(program.State().AutoStartFlag, 77) << text::ToUtf8(content);
        EXPECT_EQ(program.State().ShowEffect, 77);
        EXPECT_TRUE(program.dialogs.messages.empty());
    }
}

TEST(StateFile, AFaultLeavesWhatStandsBeforeIt) {
    StateProgram program;
    const Text caption = program.app.windows.form1.Caption;
    program.app.windows.SetPointer(model::kPointerBusy);
    program.Read(With(FullState(), "RepeatFlag", u"often"));
    EXPECT_EQ(program.State().SlideIntervalSec, 9);
    EXPECT_EQ(program.State().RepeatFlag, 0);
    EXPECT_EQ(program.State().SoundMode, 7);
    EXPECT_TRUE(program.List1().empty());
    EXPECT_TRUE(program.app.windows.form1.mnuHKO(4).Checked);  // what was read is seen
    EXPECT_EQ(program.app.windows.form1.Caption(), caption);
    EXPECT_TRUE(program.dialogs.messages.empty());
    EXPECT_EQ(program.app.windows.form1.MousePointer, model::kPointerNormal);
}

TEST(StateFile, CountsAreNotBelieved) {
    for (const char16_t* count : {u" 2147483647 ", u" 30011 ", u"-3 ", u" 99999999999 "}) {
        for (const char* line : {"slides", "CdProgramCount"}) {
            StateProgram program;
            program.Read(With(FullState(), line, count));
            EXPECT_EQ(program.List1().size(), program.List2().size());
            EXPECT_LE(program.List1().size(), 70u);
            EXPECT_LE(program.State().CdProgramCount, 70);
            EXPECT_TRUE(program.dialogs.messages.empty());
        }
    }
}

TEST(StateFile, EveryTruncationKeepsTheListsInStep) {
    const StateProgram coder;
    const std::string whole = text::EncodeFile(TextOf(FullState()), coder.codePage);
    for (size_t size = 0; size <= whole.size(); ++size) {
        StateProgram program;
        program.files.Put(kStatePath, whole.substr(0, size));
        document::ReadStateFile(program.app);
        ASSERT_EQ(program.List1().size(), program.List2().size()) << size;
        ASSERT_EQ(program.State().CdProgram.Used(), program.State().CdProgramCount) << size;
        ASSERT_TRUE(program.dialogs.messages.empty()) << size;
        ASSERT_EQ(program.app.windows.form1.MousePointer, model::kPointerNormal);
    }
}

/// A text that one line can hold.
Text RandomText(std::mt19937& random, bool item) {
    static const Text letters = u"abcXYZ019 \\:/.-_表ソ한あｱ★,\"";
    Text result;
    for (unsigned i = random() % 12; i > 0; --i) {
        result += letters[random() % letters.size()];
    }
    if (item) {
        std::erase(result, u',');
        result = text::LTrim(result);
    }
    return result;
}

TEST(StateFile, RandomStatesComeBackAsTheyWere) {
    for (unsigned seed = 0; seed < 300; ++seed) {
        std::mt19937 random(seed);
        StateProgram first;
        model::ShowState& state = first.app.state;
        for (const model::Setting& setting : model::Settings()) {
            const bool item = setting.name == "LinkedFolder";
            if (!model::WriteField(state, setting.field, RandomText(random, item))) {
                model::WriteField(state, setting.field,
                                  static_cast<double>(static_cast<int16_t>(random())));
            }
        }
        state.AutoStartFlag = 0;  // so that the mosaic's unit is taken
        state.SlideIntervalSec = static_cast<int32_t>(random() % 100000 + 1);
        state.Mp3LinkedWavFlag = static_cast<int16_t>(random() % 32768);  // "-" would be a row
        state.SoundMode = static_cast<int16_t>(random() % 10);
        state.ReservedStateText = RandomText(random, true);
        state.DocumentPath = RandomText(random, false);
        for (unsigned i = 0; i < random() % 5; ++i) {
            first.app.windows.form3.List1.AddItem(u"C:\\" + RandomText(random, false));
            first.app.windows.form3.List2.AddItem(random() % 2 ? kRow : kBlankRow);
        }
        state.CdProgramCount = static_cast<int16_t>(random() % 4);
        for (int i = 1; i <= state.CdProgramCount; ++i) {
            state.CdProgram.Set(i, RandomText(random, false));
        }
        const int16_t soundMode = state.SoundMode;
        ASSERT_TRUE(document::WriteStateFile(first.app));
        StateProgram second;
        second.files.Put(kStatePath, first.Written());
        document::ReadStateFile(second.app);
        state.SoundMode = soundMode;
        for (const model::Setting& setting : model::Settings()) {
            if (setting.kept != model::Kept::Link) {
                ASSERT_EQ(model::ReadField(second.State(), setting.field),
                          model::ReadField(state, setting.field))
                    << setting.name << " of seed " << seed;
            }
        }
        ASSERT_EQ(second.State().DocumentPath, state.DocumentPath);
        ASSERT_EQ(second.State().ReservedStateText, state.ReservedStateText);
        ASSERT_EQ(second.List1(), first.List1());
        ASSERT_EQ(second.List2(), first.List2());
        for (int i = 1; i <= state.CdProgramCount; ++i) {
            ASSERT_EQ(second.State().CdProgram(i), state.CdProgram(i));
        }
        ASSERT_TRUE(document::WriteStateFile(second.app));
        ASSERT_EQ(second.Written(), first.Written());
    }
}

TEST(StateFile, AFailedWriteIsReportedAndKeepsTheOldFile) {
    StateProgram program;
    program.Read(FullState());
    const std::string before = program.Written();
    program.files.writeError = u"ディスクの空き領域が不足しています。";
    EXPECT_FALSE(document::WriteStateFile(program.app));
    ASSERT_EQ(program.dialogs.messages.size(), 1u);
    EXPECT_EQ(program.dialogs.messages[0].text, u"ディスクの空き領域が不足しています。");
    EXPECT_EQ(program.dialogs.messages[0].title, u"");
    EXPECT_EQ(program.dialogs.messages[0].flags, 0);
    EXPECT_EQ(program.Written(), before);
}

TEST(StateFile, AFileNameWithALineEndSpoilsNothingAfterIt) {
    StateProgram program;
    program.Read(FullState());
    program.app.windows.form3.List1.SetRow(0, u"/home/a\r\n 7 \nb.jpg");
    document::WriteStateFile(program.app);
    StateProgram second;
    second.files.Put(kStatePath, program.Written());
    document::ReadStateFile(second.app);
    EXPECT_EQ(second.List1()[0], u"/home/a   7  b.jpg");
    EXPECT_THAT(second.List2(), ElementsAre(kRow, kBlankRow));
    EXPECT_EQ(second.State().UserHeaderFlag, 1);
}

}  // namespace
}  // namespace document_tests
