// Command strings, taken apart.
#include "platform/sound_command.h"

#include <gtest/gtest.h>

namespace platform {
namespace {

TEST(SoundCommand, AnOpeningOfAFile) {
    for (const Text file : {u"C:\\s\\a b.wav", u"/s/say \"hi\".wav", u"/s/\"", u"\"",
                            u"/s/x\" type sequencer alias mid.wav"}) {
        const SoundCommand command =
            ParseSoundCommand(u"open \"" + file + u"\" type waveaudio alias wav_ren");
        EXPECT_EQ(command.verb, u"open");
        EXPECT_EQ(command.file, file);
        EXPECT_EQ(command.type, u"waveaudio");
        EXPECT_EQ(command.device, u"wav_ren");
    }
}

TEST(SoundCommand, WhatIsNoOpening) {
    for (const Text text : {u"open \"", u"open \"a.wav", u"open \"a.wav\"",
                            u"open \"a.wav\" alias x", u"open \"a.wav\" type waveaudio", u""}) {
        EXPECT_EQ(ParseSoundCommand(text).device, u"") << text::ToUtf8(text);
    }
}

TEST(SoundCommand, ANewRecording) {
    const SoundCommand command = ParseSoundCommand(u"open new type waveaudio alias Rec");
    EXPECT_EQ(command.verb, u"open new");
    EXPECT_EQ(command.type, u"waveaudio");
    EXPECT_EQ(command.device, u"Rec");
    EXPECT_EQ(command.file, u"");
    for (const Text text : {u"open new", u"open new type waveaudio", u"open new alias Rec"}) {
        EXPECT_EQ(ParseSoundCommand(text).device, u"") << text::ToUtf8(text);
    }
}

TEST(SoundCommand, ASaving) {
    for (const Text file : {u"C:\\s\\a b.wav", u"/s/say \"hi\".wav", u"/s/\"", u"\"", u""}) {
        const SoundCommand command = ParseSoundCommand(u"save Rec \"" + file + u"\"");
        EXPECT_EQ(command.verb, u"save");
        EXPECT_EQ(command.device, u"Rec");
        EXPECT_EQ(command.file, file);
    }
    for (const Text text : {u"save Rec", u"save Rec a.wav", u"save Rec \"a.wav", u"save"}) {
        EXPECT_EQ(ParseSoundCommand(text).verb, u"") << text::ToUtf8(text);
    }
}

TEST(SoundCommand, WordsOfTheOthers) {
    const SoundCommand command = ParseSoundCommand(u" setaudio  mp3 volume to  980 ");
    EXPECT_EQ(command.verb, u"setaudio");
    EXPECT_EQ(command.device, u"mp3");
    EXPECT_EQ(command.rest, u"volume to  980");
    EXPECT_EQ(ParseSoundCommand(u"open cdaudio").device, u"cdaudio");
}

TEST(SoundCommand, WholeNumbers) {
    EXPECT_EQ(WholeNumber(u"  980", -1), 980);
    for (const TextView none : {u"", u"-20", u"12x", u"1234567890"}) {
        EXPECT_EQ(WholeNumber(none, -1), -1);
    }
}

}  // namespace
}  // namespace platform
