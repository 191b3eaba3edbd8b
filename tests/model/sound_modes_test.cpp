// The table of sound modes: what plays, when, and what a slide step does with it.
#include "model/sound_modes.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using model::ShowState;

/// The modes for which the question holds, as digits.
template <class Question>
std::string Modes(
    Question question, void (*set)(ShowState&) = [](ShowState&) {}) {
    std::string digits;
    for (int16_t mode = 0; mode <= 9; ++mode) {
        ShowState state;
        model::SetStartDefaults(state);
        state.SoundMode = mode;
        set(state);
        digits += question(state) ? std::to_string(mode) : std::string();
    }
    return digits;
}

void WithLinkedWavs(ShowState& state) {
    state.CdPlusLinkedWav = 0;
    state.MidiLinkedWavFlag = 1;
    state.Mp3LinkedWavFlag = 1;
    state.SoundListCheck5 = 1;
}

void WithoutLinkedWavs(ShowState& state) {
    state.CdPlusLinkedWav = 1;
    state.MidiLinkedWavFlag = 0;
    state.Mp3LinkedWavFlag = 0;
    state.SoundListCheck5 = 0;
}

TEST(SoundModes, ThoseWithASoundForEachPicture) {
    EXPECT_EQ(Modes(model::PlaysPerPicture, WithLinkedWavs), "01259");
    EXPECT_EQ(Modes(model::PlaysPerPicture, WithoutLinkedWavs), "0159");
}

TEST(SoundModes, ThoseWithAPieceOfTheirOwn) {
    EXPECT_EQ(Modes(model::PlaysPieces, WithLinkedWavs), "012345689");
    EXPECT_EQ(Modes(model::PlaysPieces, WithoutLinkedWavs), "01345689");
}

TEST(SoundModes, ThoseWithALinkedWavOnTop) {
    EXPECT_EQ(Modes(model::PlaysLinkedOnTop, WithLinkedWavs), "468");
    EXPECT_EQ(Modes(model::PlaysLinkedOnTop, WithoutLinkedWavs), "");
}

TEST(SoundModes, ThoseThatAStepWaitsFor) {
    EXPECT_EQ(Modes(model::SoundsWithPictures, WithLinkedWavs), "01245689");
    EXPECT_EQ(Modes(model::SoundsWithPictures, WithoutLinkedWavs), "01569");
}

TEST(SoundModes, ThoseThatPauseStops) {
    const auto stops = [](const ShowState& state) {
        return model::SoundModeInForce(state).pauseStops && model::PlaysPieces(state);
    };
    EXPECT_EQ(Modes(stops, WithLinkedWavs), "1234569");
    EXPECT_EQ(Modes(stops, WithoutLinkedWavs), "134569");
}

TEST(SoundModes, EachHasTheAliasOfItsPiece) {
    const Text expected[] = {u"",    u"wav", u"cdaudio", u"wav", u"mid",
                             u"mid", u"wav", u"",        u"mp3", u"mp3"};
    for (int mode = 0; mode <= 9; ++mode) {
        const char16_t* alias = model::RowOfSoundMode(mode).alias;
        EXPECT_EQ(alias == nullptr ? Text() : Text(alias), expected[mode]) << mode;
    }
}

TEST(SoundModes, ANumberThatIsNoModePlaysNothing) {
    for (const int mode : {-1, 10, 32767}) {
        EXPECT_EQ(model::RowOfSoundMode(mode).mode, 7) << mode;
    }
}

}  // namespace
