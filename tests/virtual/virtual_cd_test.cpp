// The drive of the virtual clock: what the commands of a show to cdaudio bring about.
#include <gtest/gtest.h>

#include "adapters/virtual/virtual_loop.h"
#include "adapters/virtual/virtual_sound.h"

namespace virtual_adapter {
namespace {

struct Drive {
    VirtualLoop loop;
    VirtualSound sound{loop};

    /// Tracks of 4 s, 60 s and 2 s.
    Drive() { sound.cd.Insert({4, 60, 2}); }
    void Send(const Text& command) { EXPECT_EQ(sound.MciSendString(command), u""); }
    void OpenByTracks() {
        Send(u"open cdaudio");
        Send(u"set cdaudio time format tmsf");
    }
    Text Ask(const Text& what) { return sound.MciSendString(u"status cdaudio " + what); }
};

constexpr const char16_t* kQuestions[] = {
    u"ready", u"mode", u"position", u"number of tracks", u"current track", u"length track 1"};

TEST(VirtualCd, AClosedDeviceAnswersNothing) {
    Drive drive;
    for (const char16_t* question : kQuestions) {
        EXPECT_EQ(drive.Ask(question), u"");
    }
    drive.OpenByTracks();
    drive.Send(u"close cdaudio");
    for (const char16_t* question : kQuestions) {
        EXPECT_EQ(drive.Ask(question), u"");
    }
}

TEST(VirtualCd, AnEmptyDriveIsNotReady) {
    Drive drive;
    drive.sound.cd.Insert({});
    drive.OpenByTracks();
    drive.Send(u"play cdaudio from 1");
    EXPECT_EQ(drive.Ask(u"ready"), u"false");
    EXPECT_EQ(drive.Ask(u"mode"), u"not ready");
    for (const char16_t* question : {u"position", u"number of tracks", u"current track"}) {
        EXPECT_EQ(drive.Ask(question), u"");
    }
}

TEST(VirtualCd, ATrackPlaysForItsLength) {
    Drive drive;
    drive.OpenByTracks();
    EXPECT_EQ(drive.Ask(u"ready"), u"true");
    EXPECT_EQ(drive.Ask(u"number of tracks"), u"3");
    EXPECT_EQ(drive.Ask(u"mode"), u"stopped");
    EXPECT_EQ(drive.Ask(u"position"), u"01:00:00:00");
    drive.Send(u"play cdaudio from 1 to 2");
    EXPECT_EQ(drive.Ask(u"mode"), u"playing");
    drive.loop.Sleep(3999);
    EXPECT_EQ(drive.Ask(u"mode"), u"playing");
    EXPECT_EQ(drive.Ask(u"position"), u"01:00:03:74");
    EXPECT_EQ(drive.Ask(u"current track"), u"1");
    drive.loop.Sleep(1);
    EXPECT_EQ(drive.Ask(u"mode"), u"stopped");
    drive.loop.Sleep(1000);
    EXPECT_EQ(drive.Ask(u"position"), u"02:00:00:00") << "it stands where the track ended";
}

TEST(VirtualCd, WithoutAnEndTheDiscPlaysToItsLastSector) {
    Drive drive;
    drive.OpenByTracks();
    drive.Send(u"play cdaudio from 2");
    drive.loop.Sleep(61000);
    EXPECT_EQ(drive.Ask(u"current track"), u"3");
    EXPECT_EQ(drive.Ask(u"mode"), u"playing");
    drive.loop.Sleep(1000);
    EXPECT_EQ(drive.Ask(u"mode"), u"stopped");
}

TEST(VirtualCd, AStopKeepsThePlaceAndACloseForgetsIt) {
    Drive drive;
    drive.OpenByTracks();
    drive.Send(u"play cdaudio from 2 to 3");
    drive.loop.Sleep(1500);
    drive.Send(u"stop cdaudio");
    EXPECT_EQ(drive.Ask(u"mode"), u"stopped");
    drive.loop.Sleep(1500);
    EXPECT_EQ(drive.Ask(u"position"), u"02:00:01:37");
    EXPECT_EQ(drive.Ask(u"current track"), u"2");
    drive.Send(u"open cdaudio");
    EXPECT_EQ(drive.Ask(u"position"), u"02:00:01:37") << "an open device stays as it is";
    drive.Send(u"close cdaudio");
    drive.Send(u"open cdaudio");
    EXPECT_EQ(drive.Ask(u"position"), u"00:00:00") << "on the disc, until the form is set";
}

TEST(VirtualCd, PlacesBeyondTheDiscPlayNothing) {
    for (const char16_t* range : {u"4", u"0", u"x", u"2 to 1"}) {
        Drive drive;
        drive.OpenByTracks();
        drive.Send(u"play cdaudio from " + Text(range));
        EXPECT_EQ(drive.Ask(u"mode"), u"stopped") << text::ToUtf8(range);
    }
}

}  // namespace
}  // namespace virtual_adapter
