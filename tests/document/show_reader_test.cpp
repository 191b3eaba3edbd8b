// Reading show documents: the lines of each version, what is converted, what is left.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "document/slide_rows.h"
#include "document_support.h"
#include "model/windows/background_sound.h"
#include "model/windows/main_window.h"
#include "model/windows/slide_list.h"
#include "model/windows/slide_screen.h"
#include "model/windows/sound_list.h"

namespace document_tests {
namespace {

using ::testing::ElementsAre;

using FieldValue = std::variant<double, Text>;

struct Expectation {
    int line;
    const char* field;
    FieldValue inDocument;
};

/// What FullDocument puts where.
const std::vector<Expectation>& Expectations() {
    static const std::vector<Expectation> table{
        {3, "SlideIntervalSec", 7.0},
        {4, "RepeatFlag", 1.0},
        {5, "SoundMode", 3.0},
        {6, "DefaultEffectSound", Text(u"C:\\snd\\def.wav")},
        {7, "WavFile", Text(u"C:\\snd\\back.wav")},
        {8, "ShowEffect", 2.0},
        {9, "ShowEffectSpeed", -5.0},
        {10, "EraseEffect", 12.0},
        {11, "EraseEffectSpeed", 4.0},
        {12, "ShowSlitCount", 21.0},
        {13, "EraseSlitCount", 22.0},
        {14, "CdRepeatFlag", 0.0},
        {15, "CdTrackSetting", Text(u"3-5")},
        {16, "ShowMosaicCount", 31.0},
        {17, "EraseMosaicCount", 32.0},
        {18, "TextMacroFlag", 0.0},
        {19, "MidiFile", Text(u"C:\\snd\\m.mid")},
        {20, "SoundSyncFlag", 0.0},
        {21, "LinkedSoundPosition", 0.0},
        {22, "RandomFlag", 1.0},
        {23, "CdOrder", 2.0},
        {24, "LinkedFolderFlag", 1.0},
        {25, "LinkedFolder", Text(u"C:\\linked")},
        {26, "SlideListEnd", 3.0},
        {29, "OverlayMode", 2.0},
        {30, "OverlaySize", 3.0},
        {31, "CdProgramCount", 2.0},
        {33, "TextOriginScreen", 1.0},
        {34, "CdPlusLinkedWav", 0.0},
        {35, "CdProgramStop", 1.0},
        {36, "OverlayBackColor", 6.0},
        {37, "PicturePosition", 0.0},
        {38, "SoundListUsed", 1.0},
        {39, "SoundListCount", 1.0},
        {41, "MidiLinkedWavFlag", 1.0},
        {42, "Mp3File", Text(u"C:\\snd\\song.mp3")},
        {43, "Mp3ModeFlag", 0.0},
        {44, "AlwaysFullFlag", 0.0},
        {45, "EffectSpeedFixed", 0.0},
        {46, "LoadMode", 1.0},
        {47, "Mp3LinkedWavFlag", 1.0},
        {48, "SoundListCheck5", 1.0},
    };
    return table;
}

/// What a field becomes where the file ended before its line; OverlayMode is 2 then.
FieldValue DefaultAtEnd(const std::string& field) {
    if (field == "CdPlusLinkedWav" || field == "PicturePosition" || field == "AlwaysFullFlag") {
        return 1.0;
    }
    return field == "Mp3File" ? FieldValue(Text()) : FieldValue(0.0);
}

TEST(ShowReader, TakesEveryLineOfTheNewestForm) {
    Program program;
    PoisonSettings(program.app.state);
    program.Read(FullDocument());
    ASSERT_TRUE(program.Accepted());
    for (const Expectation& expected : Expectations()) {
        EXPECT_EQ(Value(program, expected.field), expected.inDocument) << expected.field;
    }
    EXPECT_THAT(program.List1(), ElementsAre(u"C:\\pic\\一.jpg", u"C:\\pic\\二.png"));
    EXPECT_THAT(program.List2(), ElementsAre(kRow, kBlankRow));
    EXPECT_EQ(program.State().SlideList(1), u"C:\\pic\\一.jpg");
    EXPECT_EQ(program.State().SlideList(2), u"C:\\pic\\二.png");
    EXPECT_EQ(program.State().SlideList(3), u"");
    EXPECT_EQ(program.State().ScheduleFrom(1), u"2026/01/02 10:30");
    EXPECT_EQ(program.State().ScheduleTo(1), u"2026/12/31 23:59");
    EXPECT_EQ(program.State().ScheduleFrom(2), Text(16, u' '));
    EXPECT_EQ(program.State().CdProgram(1), u"4");
    EXPECT_EQ(program.State().CdProgram(2), u"7");
    EXPECT_EQ(program.State().SoundList(1), u"C:\\snd\\list.mp3");
    EXPECT_EQ(program.app.windows.form1.Timer1.Interval, 7000);
}

TEST(ShowReader, LeavesSettingsThatNoDocumentHolds) {
    Program program;
    PoisonSettings(program.app.state);
    program.Read(FullDocument());
    for (const model::Setting& setting : model::Settings()) {
        if (setting.kept != model::Kept::Document && setting.name != "ResumeIndex") {
            EXPECT_EQ(model::ReadField(program.State(), setting.field), FieldValue(77.0))
                << setting.name;
        }
    }
    EXPECT_EQ(program.State().ResumeIndex, 0);
}

TEST(ShowReader, TakesTheIdentityAtTheEnd) {
    Program program;
    program.files.clock = platform::FromCalendar({2025, 3, 4, 5, 6, 7});
    program.PutText(u"C:\\Show\\Test.KVS", TextOf(FullDocument()));
    program.app.state.BaseFolder = kBase;
    program.app.windows.form3.Command16.Enabled = true;
    program.app.windows.form3.Command17.Enabled = true;
    document::ReadShowDocument(program.app, kPath);
    EXPECT_EQ(program.State().DocumentPath, kPath);
    EXPECT_EQ(program.State().DocumentName, u"Test.KVS");  // as the disk spells it
    EXPECT_EQ(program.State().DocumentFileDate, u"2025/03/04 05:06:07");
    EXPECT_EQ(program.app.windows.form1.Caption(), u"ｽﾗｲﾄﾞ - C:\\show\\test.kvs");
    EXPECT_EQ(program.app.windows.form1.MousePointer, model::kPointerNormal);
    EXPECT_FALSE(program.app.windows.form3.Command16.Enabled);
    EXPECT_FALSE(program.app.windows.form3.Command17.Enabled);
}

TEST(ShowReader, MayEndAfterEachLaterLine) {
    // In the middle of a group, or with entries missing that a count announced.
    const std::vector<int> refusedAfter{28, 29, 31, 38, 39};
    const Lines full = FullDocument();
    for (int last = 28; last <= 48; ++last) {
        if (last == 32 || last == 40) {
            continue;  // the entries of a list, cut together with its count
        }
        SCOPED_TRACE(last);
        int kept = last;
        Lines lines = UpTo(full, last);
        const bool refused =
            std::find(refusedAfter.begin(), refusedAfter.end(), last) != refusedAfter.end();
        Program program;
        PoisonSettings(program.app.state);
        program.Read(lines);
        EXPECT_EQ(program.Refused(), refused);
        EXPECT_EQ(program.Accepted(), !refused);
        if (refused) {
            continue;
        }
        for (const Expectation& expected : Expectations()) {
            if (expected.line <= kept) {
                EXPECT_EQ(Value(program, expected.field), expected.inDocument) << expected.field;
            } else if (std::string(expected.field) != "SoundListCount") {
                EXPECT_EQ(Value(program, expected.field), DefaultAtEnd(expected.field))
                    << expected.field;
            }
        }
        EXPECT_THAT(program.List2(), ElementsAre(kBlankRow, kBlankRow));
    }
}

TEST(ShowReader, MayEndAfterTheEntriesOfALaterList) {
    for (int last : {32, 40}) {
        Program program;
        program.Read(UpTo(FullDocument(), last));
        EXPECT_TRUE(program.Accepted()) << last;
    }
}

TEST(ShowReader, RefusesAFileThatEndsBeforeItsSlides) {
    for (int last = 0; last <= 26; ++last) {
        Program program;
        program.Read(UpTo(FullDocument(), last));
        EXPECT_TRUE(program.Refused()) << last;
        EXPECT_EQ(program.app.windows.form1.MousePointer, model::kPointerNormal);
    }
}

TEST(ShowReader, EndRightAfterTheSlidesConvertsTheOldSpeeds) {
    struct Case {
        const char16_t* old;
        int converted;
    };
    // old + 6 - floor(old × 0.7), at most 10
    for (const Case& c : {Case{u"-30", -3}, Case{u"0", 6}, Case{u"10", 9}, Case{u"-999", -293},
                          Case{u"13", 10}, Case{u"100", 10}, Case{u"-1", 6}, Case{u"1", 7}}) {
        Program program;
        program.app.state.OverlayMode = 3;
        program.app.state.OverlaySize = 3;
        int groundsTold = 0;
        program.app.windows.slidescreen.GroundChanged = [&] { ++groundsTold; };
        Lines lines = UpTo(FullDocument(), 27);
        lines = With(lines, 9, {c.old});
        lines = With(lines, 11, {c.old});
        program.Read(lines);
        ASSERT_TRUE(program.Accepted());
        EXPECT_EQ(program.State().ShowEffectSpeed, c.converted);
        EXPECT_EQ(program.State().EraseEffectSpeed, c.converted);
        EXPECT_EQ(program.State().OverlayMode, 0);
        EXPECT_EQ(program.State().OverlaySize, 0);
        EXPECT_EQ(program.State().PicturePosition, 0);
        EXPECT_EQ(groundsTold, 1);
    }
}

struct TagCase {
    const char16_t* tag;
    bool accepted;
    int lastEarlyLine;  // of the lines 7 to 25 the document holds those up to this one
};

TEST(ShowReader, TakesTheBlocksThatTheTagNames) {
    const std::vector<TagCase> cases{
        {u"vue2", true, 6},        {u"vue3", true, 15},          {u"vue31", true, 17},
        {u"vue316", true, 18},     {u"vue3167", true, 20},       {u"vue31678", true, 25},
        {u"1vue2", true, 6},       {u"1vue3", true, 15},         {u"1vue31", true, 17},
        {u"1vue316", true, 18},    {u"1vue3167", true, 20},      {u"1vue31678", true, 25},
        {u"21vue31678", true, 25}, {u"21vue316789", true, 25},   {u"21vue3167893", true, 25},
        {u"vue3167893", true, 25}, {u"1vue316789", true, 25},    {u"vue32", true, 15},
        {u"vue", false, 0},        {u"vue1", false, 0},          {u"vue22", false, 0},
        {u"21vue31", false, 0},    {u"21vue2", false, 0},        {u"", false, 0},
        {u"1vue", false, 0},       {u"21vue31678930", false, 0}, {u"Vue3", false, 0},
        {u" vue3167", true, 20},   {u"xvue2", true, 6},          {u"KVSV3", false, 0},
    };
    for (const TagCase& c : cases) {
        SCOPED_TRACE(text::ToUtf8(c.tag));
        Program program;
        PoisonSettings(program.app.state);
        Lines lines = With(FullDocument(), 1, {c.tag});
        if (c.accepted) {
            lines = Without(lines, c.lastEarlyLine + 1, 25);
        }
        program.Read(lines);
        EXPECT_EQ(program.Accepted(), c.accepted);
        EXPECT_EQ(program.Refused(), !c.accepted);
        if (!c.accepted) {
            continue;
        }
        for (const Expectation& expected : Expectations()) {
            const std::string field = expected.field;
            FieldValue value = expected.inDocument;
            if (expected.line > c.lastEarlyLine && expected.line <= 25) {
                value = std::holds_alternative<Text>(value) ? FieldValue(Text(u"poison"))
                                                            : FieldValue(77.0);
                if (field == "RandomFlag" || field == "LinkedSoundPosition") {
                    value = 1.0;
                }
            }
            if (field == "SoundMode" && c.lastEarlyLine == 6) {
                value = 7.0;
            }
            if (field == "CdProgramCount" && c.lastEarlyLine < 25) {
                value = 0.0;  // CdOrder is 77
            }
            EXPECT_EQ(Value(program, field), value) << field;
        }
    }
}

TEST(ShowReader, OldSoundModesBecomeNone) {
    struct Case {
        const char16_t *tag, *mode;
        int lastEarlyLine, expected;
    };
    for (const Case& c : {Case{u"21vue31678", u" 6 ", 25, 7}, Case{u"21vue316789", u" 6 ", 25, 6},
                          Case{u"21vue3167893", u" 6 ", 25, 6}, Case{u"1vue316789", u" 6 ", 25, 7},
                          Case{u"1vue316", u" 4 ", 18, 7}, Case{u"1vue3167", u" 4 ", 20, 4},
                          Case{u"1vue3", u" 3 ", 15, 3}, Case{u"vue2", u" 0 ", 6, 7},
                          Case{u"21vue3167893", u" 4 ", 25, 4}}) {
        Program program;
        Lines lines = With(With(FullDocument(), 1, {c.tag}), 5, {c.mode});
        program.Read(Without(lines, c.lastEarlyLine + 1, 25));
        ASSERT_TRUE(program.Accepted());
        EXPECT_EQ(program.State().SoundMode, c.expected) << text::ToUtf8(c.tag);
    }
}

TEST(ShowReader, OverlaySizeNeedsAnOverlayInDocumentsBeforeTheNewest) {
    for (const char16_t* tag : {u"21vue3167893", u"21vue316789"}) {
        Program program;
        program.Read(With(With(FullDocument(), 1, {tag}), 29, {u" 0 "}));
        EXPECT_EQ(program.State().OverlaySize, Text(tag) == u"21vue3167893" ? 3 : 0);
        Program overlaid;
        overlaid.Read(With(FullDocument(), 1, {tag}));
        EXPECT_EQ(overlaid.State().OverlaySize, 3);
    }
}

TEST(ShowReader, PicturePositionFollowsTheOverlayWhereItsLineIsMissing) {
    for (int mode : {0, 1}) {
        Program program;
        const Text line = mode ? u" 1 " : u" 0 ";
        program.Read(UpTo(With(FullDocument(), 29, {line}), 36));
        EXPECT_EQ(program.State().PicturePosition, mode);
    }
}

TEST(ShowReader, IntervalsAreRoundedToSecondsAndNeverBelowOne) {
    struct Case {
        const char16_t* line;
        int seconds, timer;
    };
    for (const Case& c : {Case{u" 3000 ", 3, 3000}, Case{u"-5", 1, 1000}, Case{u" 999 ", 1, 1000},
                          Case{u" 1499 ", 1, 1499}, Case{u" 1500 ", 2, 1500},
                          Case{u" 2500 ", 2, 2500}, Case{u" 3500 ", 4, 3500},
                          Case{u" 2147483647 ", 2147484, 2147483647}, Case{u"", 1, 1000}}) {
        Program program;
        program.Read(With(FullDocument(), 3, {c.line}));
        ASSERT_TRUE(program.Accepted());
        EXPECT_EQ(program.State().SlideIntervalSec, c.seconds);
        EXPECT_EQ(program.app.windows.form1.Timer1.Interval, c.timer);
    }
}

TEST(ShowReader, RandomShowsRepeatAndAnEmptyMarkIsListOrder) {
    Program random;
    random.Read(With(FullDocument(), 22, {u" 0 "}));
    EXPECT_EQ(random.State().RandomFlag, 0);
    EXPECT_EQ(random.State().RepeatFlag, 0);
    Program unmarked;
    unmarked.app.state.RandomFlag = 0;
    unmarked.Read(With(FullDocument(), 22, {u""}));
    EXPECT_EQ(unmarked.State().RandomFlag, 1);
    EXPECT_EQ(unmarked.State().RepeatFlag, 1);
}

TEST(ShowReader, AProgramSurvivesOnlyInProgramOrder) {
    for (const char16_t* order : {u" 0 ", u" 1 "}) {
        Program program;
        program.Read(With(FullDocument(), 23, {order}));
        ASSERT_TRUE(program.Accepted());
        EXPECT_EQ(program.State().CdProgramCount, 0);
        EXPECT_EQ(program.State().CdProgram(1), u"");
    }
}

TEST(ShowReader, NamesWithoutFolderTakeTheBaseFolder) {
    Program program;
    Lines lines = FullDocument();
    lines = With(lines, 6, {u"a.wav"});
    lines = With(lines, 7, {u"b.wav"});
    lines = With(lines, 19, {u"c.mid"});
    lines = With(lines, 27, {u"d.jpg", u"sub\\e.jpg"});
    lines = With(lines, 40, {u"f.mp3"});
    lines = With(lines, 42, {u"g.mp3"});
    program.Read(lines);
    EXPECT_EQ(program.State().DefaultEffectSound, u"C:\\show\\a.wav");
    EXPECT_EQ(program.State().WavFile, u"C:\\show\\b.wav");
    EXPECT_EQ(program.State().MidiFile, u"C:\\show\\c.mid");
    EXPECT_EQ(program.app.windows.form8.Text1.Content(), u"C:\\show\\c.mid");
    EXPECT_THAT(program.List1(), ElementsAre(u"C:\\show\\d.jpg", u"sub\\e.jpg"));
    EXPECT_EQ(program.State().SoundList(1), u"C:\\show\\f.mp3");
    EXPECT_EQ(program.State().Mp3File, u"C:\\show\\g.mp3");
}

TEST(ShowReader, EmptySoundNamesStayEmptyAndNoDefaultSoundStays) {
    Program program;
    program.app.windows.form8.Text1.Content = u"before";
    Lines lines = With(FullDocument(), 6, {u"*.wav"});
    for (int line : {7, 19, 42}) {
        lines = With(lines, line, {u""});
    }
    program.Read(lines);
    ASSERT_TRUE(program.Accepted());
    EXPECT_EQ(program.State().DefaultEffectSound, u"*.wav");
    EXPECT_EQ(program.State().WavFile, u"");
    EXPECT_EQ(program.State().MidiFile, u"");
    EXPECT_EQ(program.State().Mp3File, u"");
    EXPECT_EQ(program.app.windows.form8.Text1.Content(), u"before");
}

TEST(ShowReader, AviSlidesStayOutOfTheLists) {
    Program program;
    Lines lines = With(FullDocument(), 26, {u" 3 "});
    lines = With(lines, 27, {u"C:\\a.jpg", u"C:\\b.aVi", u"C:\\c.jpg"});
    const Text ownRow = u"2030/02/0304:052031/06/0708:09";
    lines = With(lines, 49, {u"-" + kBlankRow, u"-" + ownRow, u"-" + kRow});
    program.Read(lines);
    ASSERT_TRUE(program.Accepted());
    EXPECT_THAT(program.List1(), ElementsAre(u"C:\\a.jpg", u"C:\\c.jpg"));
    EXPECT_EQ(program.State().SlideList(2), u"C:\\b.aVi");
    EXPECT_EQ(program.State().SlideListEnd, 4);
    EXPECT_THAT(program.List2(), ElementsAre(kBlankRow, kRow));  // rows stay with their slides
    const Text none(16, u' ');
    const Text from[]{none, u"2030/02/03 04:05", u"2026/01/02 10:30", u""};
    const Text to[]{none, u"2031/06/07 08:09", u"2026/12/31 23:59", u""};
    for (int i = 1; i <= 4; ++i) {
        EXPECT_EQ(program.State().ScheduleFrom(i), from[i - 1]) << i;
        EXPECT_EQ(program.State().ScheduleTo(i), to[i - 1]) << i;
    }
    EXPECT_EQ(document::RowOfSlide(program.app, 1), 0);
    EXPECT_EQ(document::RowOfSlide(program.app, 2), std::nullopt);
    EXPECT_EQ(document::RowOfSlide(program.app, 3), 1);
    EXPECT_EQ(document::RowOfSlide(program.app, 4), std::nullopt);
}

TEST(ShowReader, AviSlidesOfAnOldDocumentHaveNoSchedule) {
    Program program;
    Lines lines = With(FullDocument(), 26, {u" 2 "});
    lines = With(lines, 27, {u"C:\\b.avi", u"C:\\c.jpg"});
    program.Read(UpTo(lines, 48));
    ASSERT_TRUE(program.Accepted());
    EXPECT_EQ(program.State().ScheduleFrom(1), Text(16, u' '));
    EXPECT_EQ(program.State().ScheduleTo(2), Text(16, u' '));
}

TEST(ShowReader, Mp3IsModeSevenWithAMark) {
    Program program;
    program.Read(With(With(FullDocument(), 5, {u" 7 "}), 43, {u" 1 "}));
    EXPECT_EQ(program.State().SoundMode, 8);
    EXPECT_EQ(program.State().Mp3ModeFlag, 1);
}

TEST(ShowReader, FixedSpeedForcesBothSpeeds) {
    Program program;
    program.Read(With(FullDocument(), 45, {u" 1 "}));
    EXPECT_EQ(program.State().ShowEffectSpeed, -30);
    EXPECT_EQ(program.State().EraseEffectSpeed, -30);
}

TEST(ShowReader, RowsMayStandWhereTheTwoFlagsCameLater) {
    Program program;
    PoisonSettings(program.app.state);
    program.Read(Without(FullDocument(), 47, 48));
    ASSERT_TRUE(program.Accepted());
    EXPECT_EQ(program.State().Mp3LinkedWavFlag, 0);
    EXPECT_EQ(program.State().SoundListCheck5, 0);
    EXPECT_THAT(program.List2(), ElementsAre(kRow, kBlankRow));
}

TEST(ShowReader, AFirstRowThatEndsTheFileIsLost) {
    Program program;
    Lines lines = With(With(FullDocument(), 26, {u" 1 "}), 27, {u"C:\\a.jpg"});
    program.Read(Without(With(lines, 49, {u"-" + kRow}), 47, 48));
    ASSERT_TRUE(program.Accepted());
    EXPECT_THAT(program.List2(), ElementsAre(kBlankRow));
    EXPECT_EQ(program.State().ScheduleFrom(1), Text(16, u' '));
}

TEST(ShowReader, ItemsEndAtACommaAndLinesDoNot) {
    Program program;
    Lines lines = With(FullDocument(), 25, {u"  C:\\linked,2020"});
    program.Read(With(lines, 27, {u" C:\\pic\\a,b.jpg", u"C:\\pic\\c.jpg"}));
    ASSERT_TRUE(program.Accepted());
    EXPECT_EQ(program.State().LinkedFolder, u"C:\\linked");
    EXPECT_THAT(program.List1(), ElementsAre(u" C:\\pic\\a,b.jpg", u"C:\\pic\\c.jpg"));
}

TEST(ShowReader, NumbersMayStandWithOrWithoutBlanksAndSeveralOnALine) {
    Program program;
    Lines lines = FullDocument();
    lines = With(lines, 8, {u"2"});
    lines = With(lines, 9, {u"   -5   , +12"});
    lines = Without(lines, 10, 10);
    lines = With(lines, 12, {u"20.5"});  // half to even
    lines = With(lines, 13, {u"21.5"});
    program.Read(lines);
    ASSERT_TRUE(program.Accepted());
    EXPECT_EQ(program.State().ShowEffect, 2);
    EXPECT_EQ(program.State().ShowEffectSpeed, -5);
    EXPECT_EQ(program.State().EraseEffect, 12);
    EXPECT_EQ(program.State().ShowSlitCount, 20);
    EXPECT_EQ(program.State().EraseSlitCount, 22);
}

TEST(ShowReader, LinesMayEndInAnyWay) {
    for (const char16_t* end : {u"\r\n", u"\n", u"\r"}) {
        Program program;
        Text content;
        for (const Line& line : FullDocument()) {
            content += line.content + end;
        }
        program.ReadText(content.substr(0, content.size() - Text(end).size()));
        EXPECT_TRUE(program.Accepted());
        EXPECT_THAT(program.List2(), ElementsAre(kRow, kBlankRow));
    }
}

TEST(ShowReader, ACarriedSoundListIsKeptInTheProgramFolder) {
    Program program;
    program.app.windows.form10.List1.AddItem(u"old");
    program.Read(FullDocument());
    EXPECT_EQ(Program::RowsOf(program.app.windows.form10.List1),
              std::vector<Text>{u"C:\\snd\\list.mp3"});
    EXPECT_EQ(program.app.windows.form10.Label4.Caption(), u"1");
    const auto* file = program.files.Get(u"C:\\app\\wavlist.dat");
    ASSERT_NE(file, nullptr);
    EXPECT_EQ(file->content, "WAV3.4\r\n 1 \r\nC:\\snd\\list.mp3\r\n");
    EXPECT_EQ(program.State().ReadingDocument, 0);
}

TEST(ShowReader, WithoutASoundListTheProgramsOwnStays) {
    Program program;
    program.app.state.SoundList.Set(1, u"own.wav");
    program.app.state.SoundListCount = 1;
    program.Read(Without(With(FullDocument(), 38, {u" 0 "}), 39, 40));
    ASSERT_TRUE(program.Accepted());
    EXPECT_EQ(program.State().SoundList(1), u"own.wav");
    EXPECT_EQ(program.State().SoundListCount, 1);
    EXPECT_TRUE(program.files.written.empty());
}

TEST(ShowReader, TellsOfAnotherGroundOnceItsSettingsStand) {
    Program program;
    int told = 0;
    program.app.windows.slidescreen.GroundChanged = [&] {
        ++told;
        EXPECT_EQ(program.State().OverlayMode, 2);
        EXPECT_EQ(program.State().OverlayBackColor, 6);
    };
    program.Read(FullDocument());
    EXPECT_EQ(told, 1);
    program.ReadText(u"vue\r\n");
    EXPECT_EQ(told, 1) << "a refused document brings none";
}

TEST(ShowReader, ReadsWhatACodePageCannotHoldFromUtf8) {
    Program program;
    const Text name = u"C:\\pic\\café😀.jpg";
    program.Read(With(FullDocument(), 27, {name, u"C:\\pic\\～.jpg"}));
    EXPECT_TRUE(program.files.Get(kPath)->content.starts_with("\xEF\xBB\xBF"));
    EXPECT_THAT(program.List1(), ElementsAre(name, u"C:\\pic\\～.jpg"));
}

}  // namespace
}  // namespace document_tests
