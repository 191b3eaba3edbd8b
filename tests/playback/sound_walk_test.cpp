// What is heard in every sound mode on the ways that a show can take. Pieces are endless here, so
// that whatever falls silent was stopped.
#include <gtest/gtest.h>

#include <map>

#include "document/show_document.h"
#include "full_screen_support.h"
#include "model/windows/control_box.h"
#include "model/windows/main_window.h"
#include "model/windows/slide_list.h"
#include "model/windows/video_window.h"
#include "text/paths.h"

namespace playback_tests {
namespace {

constexpr int kEscape = 27;

/// Files heard at each place, "background linked". "6+" is mode 6 with linked sounds on top.
struct Row {
    const char* mode;
    const char* first;        // slide 1, from START
    const char* second;       // slide 2, by the timer
    const char* paused;       // PAUSE at slide 2
    const char* third;        // slide 3, START after the PAUSE
    const char* besideFilm;   // slide 2 is a film
    const char* afterFilm;    // slide 3
    const char* besideFirst;  // slide 1 is a film
    const char* afterFirst;   // slide 2
};

constexpr Row kRows[] = {
    {"0", "vue1.wav", "vue1.wav", "vue1.wav", "vue1.wav", "vue1.wav", "vue1.wav", "", "vue1.wav"},
    {"1", "1.wav", "2.wav", "", "3.wav", "f.wav", "3.wav", "f.wav", "2.wav"},
    {"2", "", "", "", "", "", "", "", ""},
    {"2+", "1.wav", "2.wav", "", "3.wav", "1.wav", "3.wav", "", "2.wav"},
    {"3", "b.wav", "b.wav", "", "b.wav", "b.wav", "b.wav", "b.wav", "b.wav"},
    {"4", "b.mid", "b.mid", "", "b.mid", "b.mid", "b.mid", "b.mid", "b.mid"},
    {"4+", "b.mid 1.wav", "b.mid 2.wav", "", "b.mid 3.wav", "b.mid 1.wav", "b.mid 3.wav", "b.mid",
     "b.mid 2.wav"},
    {"5", "1.mid", "2.mid", "", "3.mid", "1.mid", "3.mid", "", "2.mid"},
    {"6", "l1.wav", "l1.wav", "", "l2.wav", "l1.wav", "l2.wav", "", "l1.wav"},
    {"6+", "l1.wav 1.wav", "l1.wav 2.wav", "", "l2.wav 3.wav", "f.wav", "l2.wav 3.wav", "f.wav",
     "l1.wav 2.wav"},
    {"7", "", "", "", "", "", "", "", ""},
    {"8", "b.mp3", "b.mp3", "b.mp3", "b.mp3", "b.mp3", "b.mp3", "", "b.mp3"},
    {"8+", "b.mp3 1.wav", "b.mp3 2.wav", "b.mp3 2.wav", "b.mp3 3.wav", "f.wav", "b.mp3 3.wav",
     "f.wav", "b.mp3 2.wav"},
    {"9", "1.mp3", "2.mp3", "", "3.mp3", "f.mp3", "3.mp3", "f.mp3", "2.mp3"},
};

/// Every slide has linked sounds of all kinds. Nothing waits for a sound.
class SoundShow : public Show {
public:
    model::Slidescreen2& box = windows.slidescreen2;
    Text besideFilm;  // heard while the film played

    explicit SoundShow(const std::string& mode, int slides = 3) : Show(slides) {
        const bool linked = mode.ends_with('+');
        state.SoundMode = static_cast<int16_t>(mode[0] - '0');
        state.CdPlusLinkedWav = linked ? 0 : 1;
        state.MidiLinkedWavFlag = state.Mp3LinkedWavFlag = state.SoundListCheck5 = linked ? 1 : 0;
        state.SoundSyncFlag = 1;
        state.ShowEffect = 11;
        state.EraseEffect = 12;
        state.WavFile = u"C:\\s\\b.wav";
        state.MidiFile = u"C:\\s\\b.mid";
        state.Mp3File = u"C:\\s\\b.mp3";
        SetList({u"C:\\s\\l1.wav", u"C:\\s\\l2.wav", u"C:\\s\\l3.wav"});
        for (const Text& path :
             {Text(u"C:\\app\\vue1.wav"), state.WavFile, state.MidiFile, state.Mp3File}) {
            files.Put(path, "sound");
        }
        for (const TextView name : {u"1", u"2", u"3", u"f"}) {
            PutLinked(u"C:\\pic\\" + Text(name));
        }
        sound.answer = [this](TextView command) { return Answer(Text(command)); };
        loop.SetTimer(&besideFilm, 100, [this] {
            if (windows.form24.Visible) {
                besideFilm = Heard();
            }
        });
    }
    void SetList(const Texts& list) {
        state.SoundListCount = static_cast<int16_t>(list.size());
        for (size_t i = 0; i < list.size(); ++i) {
            state.SoundList.Set(static_cast<int>(i) + 1, list[i]);
            files.Put(list[i], "sound");
        }
    }
    void PutLinked(const Text& stem) {
        for (const TextView extension : {u".wav", u".mid", u".mp3"}) {
            files.Put(stem + Text(extension), "sound");
        }
    }
    /// A film in the slide's place.
    void MakeFilm(int slide) {
        state.SlideList.Set(slide, u"C:\\pic\\f.mp4");
        files.Put(u"C:\\pic\\f.mp4", "film");
    }
    /// Names of what plays, the main channel's first.
    Text Heard() const {
        Text names;
        for (const TextView alias : {u"wav", u"mid", u"mp3", u"wav_ren"}) {
            const auto piece = pieces_.find(Text(alias));
            if (piece != pieces_.end() && piece->second.playing) {
                names += (names.empty() ? u"" : u" ") + text::BareName(piece->second.file);
            }
        }
        return names;
    }
    std::string HeardNow() const { return text::ToUtf8(Heard()); }
    /// Until the slide stands; fades take their time.
    void RunTo(int slide) {
        for (int i = 0; i < 200 && (Shown().empty() || Shown().back() != slide); ++i) {
            loop.Run(100);
        }
        ASSERT_EQ(Shown().back(), slide);
    }
    /// True when the act sends nothing to the sound.
    template <class Act>
    bool LeavesSoundAlone(Act act) {
        sound.commands.clear();
        sound.played.clear();
        act();
        return sound.commands.empty() && sound.played.empty();
    }

private:
    struct Piece {
        Text file;
        bool playing = false;
    };
    Text Answer(const Text& command) {
        const Text verb = command.substr(0, command.find(u' '));
        if (verb == u"open") {
            const size_t end = command.rfind(u'"');
            // An alias that is open is not opened again.
            pieces_.try_emplace(command.substr(command.rfind(u' ') + 1),
                                Piece{command.substr(6, end - 6)});
            return {};
        }
        const Text rest = command.substr(std::min(command.size(), verb.size() + 1));
        const auto piece = pieces_.find(rest.substr(0, rest.find(u' ')));
        if (piece == pieces_.end()) {
            return {};
        }
        if (verb == u"play" || verb == u"stop") {
            piece->second.playing = verb == u"play";
        } else if (verb == u"close") {
            pieces_.erase(piece);
        } else if (verb == u"status") {
            return piece->second.playing ? u"playing" : u"stopped";
        }
        return {};
    }
    std::map<Text, Piece> pieces_;
};

TEST(SoundWalk, OutOfARunningShowToTheFullScreenAndBack) {
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.mode);
        SoundShow show(row.mode);
        show.Start();
        EXPECT_EQ(show.HeardNow(), row.first);
        show.RunTo(2);
        EXPECT_EQ(show.HeardNow(), row.second);
        EXPECT_TRUE(show.LeavesSoundAlone([&] { show.form1.Command4.Click(); }));
        EXPECT_EQ(show.HeardNow(), row.second);
        EXPECT_TRUE(show.LeavesSoundAlone([&] { show.screen.KeyDown(kEscape); }));
        EXPECT_FALSE(show.screen.Loaded);
        EXPECT_EQ(show.HeardNow(), row.second);
    }
}

TEST(SoundWalk, OutOfAPausedShowToTheFullScreenAndOnByItsBox) {
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.mode);
        SoundShow show(row.mode);
        show.state.ControlBoxFlag = 0;
        show.Start();
        show.RunTo(2);
        show.Pause();
        EXPECT_EQ(show.HeardNow(), row.paused);
        EXPECT_TRUE(show.LeavesSoundAlone([&] { show.form1.Command4.Click(); }));
        EXPECT_EQ(show.HeardNow(), row.paused);
        show.box.Command2.Click();
        EXPECT_EQ(show.Shown().back(), 3);
        EXPECT_EQ(show.HeardNow(), row.third);
        show.box.Command3.Click();
        EXPECT_EQ(show.HeardNow().empty(), std::string(row.paused).empty());
        EXPECT_TRUE(show.LeavesSoundAlone([&] { show.screen.KeyDown(kEscape); }));
        EXPECT_FALSE(show.screen.Loaded);
    }
}

TEST(SoundWalk, PauseAndStartInTheWindow) {
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.mode);
        SoundShow show(row.mode);
        show.Start();
        show.RunTo(2);
        show.Pause();
        show.Start();
        EXPECT_EQ(show.HeardNow(), row.third);
        show.Stop();
        EXPECT_EQ(show.HeardNow(), "");
    }
}

TEST(SoundWalk, AFilmInTheMiddle) {
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.mode);
        SoundShow show(row.mode);
        show.MakeFilm(2);
        show.Start();
        show.RunTo(3);
        EXPECT_EQ(text::ToUtf8(show.besideFilm), row.besideFilm);
        EXPECT_EQ(show.HeardNow(), row.afterFilm);
    }
}

TEST(SoundWalk, AFilmFirstInTheWindowAndInTheFullScreen) {
    for (const bool fullScreen : {false, true}) {
        for (const Row& row : kRows) {
            SCOPED_TRACE(std::string(row.mode) + (fullScreen ? " in full screen" : ""));
            SoundShow show(row.mode);
            show.MakeFilm(1);
            if (fullScreen) {
                StartInScreen(show);
            } else {
                show.Start();
            }
            EXPECT_EQ(text::ToUtf8(show.besideFilm), row.besideFirst);
            show.RunTo(2);
            EXPECT_EQ(show.HeardNow(), row.afterFirst);
        }
    }
}

TEST(SoundWalk, TheBoxStartsOntoAFilm) {
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.mode);
        SoundShow show(row.mode);
        show.MakeFilm(2);
        show.state.ControlBoxFlag = 0;
        show.Start();
        show.form1.Command4.Click();
        show.box.Command3.Click();
        show.box.Command2.Click();
        show.RunTo(3);
        EXPECT_EQ(show.HeardNow(), row.afterFilm);
    }
}

TEST(SoundWalk, RoundAgainAfterTheLastSlide) {
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.mode);
        SoundShow show(row.mode, 2);
        show.state.RepeatFlag = 0;
        show.Start();
        show.RunTo(2);
        show.RunTo(1);
        EXPECT_EQ(show.HeardNow(), row.first);
    }
}

/// An MP3 of the list fades before a film; a film that is missing then must not keep it silent.
TEST(SoundWalk, AListMp3ComesBackAfterAFilm) {
    for (const char* mode : {"6", "6+"}) {
        for (const bool missing : {false, true}) {
            SCOPED_TRACE(std::string(mode) + (missing ? " missing" : ""));
            SoundShow show(mode);
            show.MakeFilm(2);
            show.SetList({u"C:\\s\\l1.mp3", u"C:\\s\\l2.mp3"});
            show.files.Remove(u"C:\\pic\\f.wav");
            if (missing) {
                show.files.Remove(u"C:\\pic\\f.mp4");
            }
            show.Start();
            show.RunTo(3);
            EXPECT_EQ(show.besideFilm, u"");
            EXPECT_EQ(show.HeardNow(), mode == std::string("6") ? "l2.mp3" : "l2.mp3 3.wav");
        }
    }
}

TEST(SoundWalk, AMissingFilmFirstKeepsTheBackgroundForOnePictureOnly) {
    for (const char* mode : {"6", "8"}) {
        SCOPED_TRACE(mode);
        SoundShow show(mode);
        show.MakeFilm(1);
        show.files.Remove(u"C:\\pic\\f.mp4");
        show.Start();
        show.RunTo(2);
        EXPECT_EQ(show.HeardNow(), mode == std::string("6") ? "l1.wav" : "b.mp3");
    }
}

TEST(SoundWalk, WhatCannotBePlayedOfTheListCostsOnePictureOnly) {
    struct Setting {
        const char* mode;
        const char16_t* entry;
        bool exists;
    };
    for (const Setting& setting : {Setting{"6", u"C:\\s\\gone.wav", false},
                                   {"6+", u"C:\\s\\gone.wav", false},
                                   {"6+", u"", false},
                                   {"6+", u"C:\\s\\a.ogg", true},
                                   {"6", u"C:\\s\\a.ogg", true}}) {
        SCOPED_TRACE(std::string(setting.mode) + " " + text::ToUtf8(setting.entry));
        SoundShow show(setting.mode);
        show.SetList({u"C:\\s\\l1.wav", setting.entry, u"C:\\s\\l3.wav"});
        if (!setting.exists) {
            show.files.Remove(setting.entry);
        }
        show.state.SoundListPos = 1;
        show.state.RestartSoundFlag = 1;
        show.Step(1);  // finds the entry that cannot be played
        EXPECT_EQ(show.state.SoundListPos, 2);
        show.Step(2);
        EXPECT_EQ(show.state.SoundListPos, 3);
        EXPECT_EQ(show.HeardNow(), setting.mode == std::string("6") ? "l3.wav" : "l3.wav 2.wav");
    }
}

TEST(SoundWalk, LinkedMidiWithoutAFileTakesNoMp3OfTheSameName) {
    SoundShow show("5");
    show.state.ControlBoxFlag = 0;
    show.files.Remove(u"C:\\pic\\3.mid");
    show.Start();
    show.RunTo(2);
    show.form1.Command4.Click();
    show.box.Command3.Click();
    show.box.Command2.Click();
    EXPECT_EQ(show.Shown().back(), 3);
    EXPECT_EQ(show.HeardNow(), "");
}

TEST(SoundWalk, TheFullScreenKeepsWhatARunningShowWantsOfItsSound) {
    for (const bool running : {true, false}) {
        SoundShow show("8");
        show.Start();
        if (!running) {
            show.Pause();
        }
        for (int16_t model::ShowState::*field :
             {&model::ShowState::RestartSoundFlag, &model::ShowState::RestartSoundMacro,
              &model::ShowState::Mp3VolumeOffset, &model::ShowState::SoundListStarted}) {
            show.state.*field = 1;
        }
        show.state.PictureScale = 2;
        show.form1.Command4.Click();
        const int16_t kept = running ? 1 : 0;
        EXPECT_EQ(show.state.RestartSoundFlag, kept);
        EXPECT_EQ(show.state.RestartSoundMacro, kept);
        EXPECT_EQ(show.state.Mp3VolumeOffset, kept);
        EXPECT_EQ(show.state.SoundListStarted, kept);
        EXPECT_EQ(show.state.PictureScale, 0);
    }
}

TEST(SoundWalk, EscapeInAFadeGivesThePieceItsVolumeBack) {
    SoundShow show("9");
    show.Start();
    show.form1.Command4.Click();
    show.state.Mp3VolumeOffset = 200;
    show.loop.After(4050, [&] { show.screen.KeyDown(kEscape); });
    show.loop.Run(4200);
    EXPECT_EQ(show.HeardNow(), "1.mp3");
    const Texts sent = show.CommandsFrom(u"setaudio mp3 volume to");
    ASSERT_GE(sent.size(), 2u);
    EXPECT_EQ(sent[sent.size() - 2], u"setaudio mp3 volume to 580");  // eleven steps of 20
    EXPECT_EQ(sent.back(), u"setaudio mp3 volume to 800");
    EXPECT_EQ(show.state.StepBusy, 0);
    EXPECT_FALSE(show.screen.Loaded);
}

/// Two documents in a chain, with sounds beside every slide.
class ChainShow : public SoundShow {
public:
    ChainShow(const std::string& mode, const Texts& firstSlides,
              const Texts& secondSlides = {u"1.png"})
        : SoundShow(mode, 0) {
        PutDocument(u"a", firstSlides);
        PutDocument(u"b", secondSlides);
        state.LinkEnd = 3;
        state.LinkRunning = 1;
        state.ControlBoxFlag = 0;
    }
    void Run() {
        playback::PlaceFullScreen(app);
        screen.Show();
    }
    void RunToSecond() {
        for (int i = 0; i < 200 && state.BaseFolder != u"C:\\b\\"; ++i) {
            loop.Run(100);
        }
        ASSERT_EQ(state.BaseFolder, u"C:\\b\\");
    }
    /// The list goes on with its next entry.
    std::string InSecond(const std::string& heard) const {
        return state.SoundMode == 6 ? "l2" + heard.substr(2) : heard;
    }

private:
    /// With the settings of this show.
    void PutDocument(const Text& name, const Texts& slides) {
        const Text folder = u"C:\\" + name + u"\\";
        form3.List1.Clear();
        form3.List2.Clear();
        for (const Text& slide : slides) {
            AddSlide(folder + slide);
            if (text::IsVideoKind(slide)) {
                files.Put(folder + slide, "film");
            } else {
                PutPicture(folder + slide, 10, 10);
            }
            PutLinked(folder + slide.substr(0, slide.size() - 4));
        }
        document::WriteShowDocument(app, folder + name + u".kvs");
        state.LinkList.Set(name == u"a" ? 1 : 2, folder + name + u".kvs");
    }
};

TEST(SoundWalk, OverTheBorderOfAChain) {
    for (const Row& row : kRows) {
        for (const bool film : {false, true}) {
            SCOPED_TRACE(std::string(row.mode) + (film ? " after a film" : ""));
            ChainShow show(row.mode, film ? Texts{u"1.png", u"2.mp4"} : Texts{u"1.png"});
            show.Run();
            ASSERT_EQ(show.state.BaseFolder, u"C:\\a\\");
            EXPECT_EQ(show.HeardNow(), row.first);
            show.RunToSecond();
            EXPECT_EQ(show.HeardNow(), show.InSecond(row.first));
            EXPECT_EQ(show.state.SoundListPos, show.state.SoundMode == 6 ? 2 : 0);
        }
    }
}

TEST(SoundWalk, OverTheBorderOfAChainOntoAFilm) {
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.mode);
        ChainShow show(row.mode, {u"1.png"}, {u"1.mp4", u"2.png"});
        show.Run();
        show.RunToSecond();
        show.RunTo(2);
        EXPECT_EQ(show.HeardNow(), show.InSecond(row.afterFirst));
    }
}

TEST(SoundWalk, OverTheBorderLinkedMidiTakesNoMp3) {
    ChainShow show("5", {u"1.png"});
    show.files.Remove(u"C:\\b\\1.mid");
    show.Run();
    show.RunToSecond();
    EXPECT_EQ(show.HeardNow(), "");
}

}  // namespace
}  // namespace playback_tests
