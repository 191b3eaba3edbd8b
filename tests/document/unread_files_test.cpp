// State files that could not be read to their end are set aside, not replaced.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "state_support.h"

namespace document_tests {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

const Text kSoundList = u"C:\\app\\wavlist.dat", kLinks = u"C:\\app\\uautst.dat";
const Text kMark = u".kept-2026-03-05";

struct KeepingProgram : StateProgram {
    KeepingProgram() { loop.start = platform::FromCalendar({2026, 3, 5, 23, 59, 0}); }

    void ReadAll() {
        document::ReadSoundListFile(app);
        document::ReadLinkStateFile(app);
        document::ReadStateFile(app);
        dialogs.messages.clear();  // what the platform says of the sound list is not looked at
    }
    void WriteAll() {
        document::WriteLinkStateFile(app);
        document::WriteStateFile(app);
        document::WriteSoundListFile(app);
    }
    std::vector<std::string> Told() const {
        std::vector<std::string> told;
        for (const auto& box : dialogs.messages) {
            told.push_back(text::ToUtf8(box.text));
        }
        return told;
    }
    std::string ContentOf(const Text& path) const {
        const auto* file = files.Get(path);
        return file ? file->content : "missing";
    }
};

TEST(UnreadFiles, UnreadableOnesAreSetAsideOnceAndReported) {
    KeepingProgram program;
    const Text state = kStatePath;
    for (const Text& path : {state, kLinks, kSoundList}) {
        program.files.Put(path, "old " + text::ToUtf8(path));
        program.files.MakeUnreadable(path);
    }
    program.ReadAll();
    program.WriteAll();
    EXPECT_THAT(program.Told(), ElementsAre(HasSubstr("uautst.dat.kept-2026-03-05"),
                                            HasSubstr("autstart.dat.kept-2026-03-05"),
                                            HasSubstr("wavlist.dat.kept-2026-03-05")));
    for (const Text& path : {state, kLinks, kSoundList}) {
        EXPECT_EQ(program.ContentOf(path + kMark), "old " + text::ToUtf8(path));
    }
    EXPECT_TRUE(program.ContentOf(state).starts_with("V2.1a3567893sp6\r\n"));
    program.dialogs.messages.clear();
    program.WriteAll();
    EXPECT_THAT(program.Told(), IsEmpty());
}

TEST(UnreadFiles, AnotherKeptFileStays) {
    KeepingProgram program;
    program.files.Put(kStatePath, "now");
    program.files.MakeUnreadable(kStatePath);
    program.files.Put(Text(kStatePath) + kMark, "of this morning");
    program.ReadAll();
    program.WriteAll();
    EXPECT_EQ(program.ContentOf(Text(kStatePath) + kMark), "of this morning");
    EXPECT_EQ(program.ContentOf(Text(kStatePath) + kMark + u"-2"), "now");
}

TEST(UnreadFiles, WhatCannotBeSetAsideIsNotReplaced) {
    KeepingProgram program;
    program.files.Put(kStatePath, "old");
    program.files.MakeUnreadable(kStatePath);
    program.files.setAsideError = u"許可がありません。";
    program.ReadAll();
    EXPECT_FALSE(document::WriteStateFile(program.app));
    EXPECT_THAT(program.Told(), ElementsAre(HasSubstr("許可がありません。")));
    EXPECT_EQ(program.ContentOf(kStatePath), "old");
}

TEST(UnreadFiles, MissingEmptyAndWholeOnesAreReplacedWithoutAWord) {
    struct Row {
        Text path;
        Text content;
    };
    for (const Row& row : {Row{kStatePath, u""},
                           {kStatePath, TextOf(FullState())},
                           {kStatePath, u" 0 \r\n"},  // the oldest form: a number and no more
                           {kStatePath, TextOf(Before(FullState(), "TextOriginScreen"))},
                           {kStatePath, TextOf(Before(FullState(), "Mp3LinkedWavFlag"))},
                           {kStatePath, TextOf(Before(FullState(), "MonitorIndex"))},
                           {kSoundList, u"WAV3.4\r\n 1 \r\na.wav\r\n"},
                           {kSoundList, u"WAV3.4\r\n 0 \r\n"},
                           {kSoundList, u"WAV3.4\r\n 1 \r\na.wav\r\n \r\n\r\n"},
                           {kLinks, u"KVSV3\r\n 1 \r\n 0 \r\n 0 \r\n\r\n 1 \r\nb.kvs\r\n"}}) {
        KeepingProgram program;
        program.PutText(row.path, row.content);
        program.ReadAll();
        EXPECT_THAT(program.State().UnreadFiles, IsEmpty()) << text::ToUtf8(row.content);
        program.WriteAll();
        EXPECT_THAT(program.Told(), IsEmpty());
        EXPECT_EQ(program.files.Get(row.path + kMark), nullptr);
    }
    KeepingProgram none;
    none.ReadAll();
    none.WriteAll();
    EXPECT_THAT(none.Told(), IsEmpty());
}

TEST(UnreadFiles, DamagedAndForeignOnesAreSetAside) {
    Text manyLinks = u"KVSV3\r\n 1 \r\n 0 \r\n 0 \r\n\r\n 1011 \r\n";
    for (int i = 0; i < 1011; ++i) {
        manyLinks += u"b.kvs\r\n";
    }
    struct Row {
        Text path;
        Text content;
    };
    for (const Row& row : {Row{kStatePath, u"hello\r\n 1 \r\n"},
                           {kStatePath, u" 0 \r\nrest\r\n"},
                           {kStatePath, TextOf(Before(FullState(), "SoundMode"))},
                           {kStatePath, TextOf(With(FullState(), "RepeatFlag", u"often"))},
                           {kStatePath, TextOf(FullState()) + u"of a later version\r\n"},
                           {kSoundList, u"WAV3.4\r\n 1 \r\na.wav\r\nb.wav\r\n"},
                           {kLinks, u"KVSV3\r\n 1 \r\n 0 \r\n 0 \r\n\r\n 0 \r\nb.kvs\r\n"},
                           {kSoundList, u"WAV3.3\r\n 1 \r\na.wav\r\n"},
                           {kSoundList, u"WAV3.4\r\n 2 \r\na.wav\r\n"},
                           {kLinks, u"KVSV4\r\n 1 \r\n"},
                           {kLinks, u"KVSV3\r\n 1 \r\n 0 \r\n 0 \r\n\r\n 2 \r\nb.kvs\r\n"},
                           {kLinks, manyLinks}}) {
        KeepingProgram program;
        program.PutText(row.path, row.content);
        const std::string before = program.ContentOf(row.path);
        program.ReadAll();
        EXPECT_THAT(program.Told(), IsEmpty()) << "reading is silent";
        program.WriteAll();
        EXPECT_EQ(program.Told().size(), 1u) << text::ToUtf8(row.content);
        EXPECT_EQ(program.ContentOf(row.path + kMark), before);
    }
}

TEST(UnreadFiles, ReadAgainWholeTheyAreReplaced) {
    KeepingProgram program;
    program.PutText(kStatePath, u"hello\r\n");
    program.ReadAll();
    program.PutText(kStatePath, TextOf(FullState()));
    document::ReadStateFile(program.app);
    program.WriteAll();
    EXPECT_THAT(program.Told(), IsEmpty());
}

}  // namespace
}  // namespace document_tests
