// How long the pieces are, each and all together.
#include "authoring/sound_list/lengths.h"

#include "sound_list_support.h"

namespace authoring {
namespace {

struct SoundLengthsTest : SoundListTest {
    void Know(const Text& path, double seconds, bool exact = true) {
        files.Put(path, "x");
        fileInquiry.lengths[path] = {seconds, exact};
        fileInquiry.wholeLengths[path] = {seconds + (exact ? 0 : 10), true};
    }
    size_t Asked(const Text& path) const {
        return static_cast<size_t>(
            std::count(fileInquiry.asked.begin(), fileInquiry.asked.end(), path));
    }
};

TEST(LengthText, RoundedToSeconds) {
    EXPECT_EQ(LengthText(0), u"0:00");
    EXPECT_EQ(LengthText(0.5), u"0:01");
    EXPECT_EQ(LengthText(59.4), u"0:59");
    EXPECT_EQ(LengthText(59.6), u"1:00");
    EXPECT_EQ(LengthText(3599.7), u"1:00:00");
    EXPECT_EQ(LengthText(24.0 * 3600), u"24:00:00");
}

TEST_F(SoundLengthsTest, OfEachPieceAndOfAll) {
    Know(u"C:\\a.wav", 65);
    Know(u"C:\\b.wav", 3600);
    Fill({u"C:\\a.wav", u"C:\\b.wav", u"C:\\a.wav", u"C:\\gone.wav"});
    EXPECT_EQ(Aside(0), u"1:05");
    EXPECT_EQ(Aside(1), u"1:00:00");
    EXPECT_EQ(Aside(3), u"");
    EXPECT_EQ(form10.Length.Caption(), u"合計 1:02:10");
    form10.List1.Choose({0, 1});
    form10.Command5.Press();
    EXPECT_EQ(form10.Length.Caption(), u"合計 1:05");
    form10.Undo.Press();
    EXPECT_EQ(form10.Length.Caption(), u"合計 1:02:10");
    ClearSoundList(app);
    EXPECT_EQ(form10.Length.Caption(), u"");
}

TEST_F(SoundLengthsTest, UncertainUntilTheFileWasReadWhole) {
    Know(u"C:\\a.mp3", 50, false);
    Know(u"C:\\b.wav", 5);
    fileInquiry.late = true;
    Fill({u"C:\\a.mp3", u"C:\\b.wav"});
    EXPECT_EQ(Aside(0), u"～");
    EXPECT_EQ(form10.Length.Caption(), u"合計 ～");
    fileInquiry.AnswerOne();
    EXPECT_EQ(Aside(0), u"～0:50");
    EXPECT_EQ(form10.Length.Caption(), u"合計 ～0:50");
    fileInquiry.Answer();
    EXPECT_EQ(Aside(0), u"1:00");
    EXPECT_EQ(form10.Length.Caption(), u"合計 1:05");
}

TEST_F(SoundLengthsTest, ARowIsDrawnAnewWhenItsAnswerComes) {
    struct Faces : model::Listener {
        std::vector<int> rows;
        void RowsChanged(model::Control&, const model::RowChange& change) override {
            if (change.kind == model::RowChange::Replaced) {
                rows.push_back(change.row);
            }
        }
    } faces;
    Know(u"C:\\a.wav", 1);
    fileInquiry.late = true;
    Fill({u"C:\\b.wav", u"C:\\a.wav"});
    Aside(1);
    form10.List1.Listen(&faces);
    fileInquiry.Answer();
    form10.List1.Unlisten(&faces);
    EXPECT_THAT(faces.rows, testing::Contains(1));
}

TEST_F(SoundLengthsTest, AFileIsAskedOnceUntilTheWindowIsComeBackTo) {
    Know(u"C:\\a.wav", 1);
    Know(u"C:\\b.wav", 2);
    Fill({u"C:\\a.wav", u"C:\\a.wav", u"C:\\b.wav"});
    EXPECT_EQ(Asked(u"C:\\a.wav"), 1u);
    form10.mnuREVERSE.Choose();
    EXPECT_EQ(Asked(u"C:\\a.wav"), 1u);
    Know(u"C:\\a.wav", 7);
    form10.OnActivate();
    EXPECT_EQ(Aside(0), u"0:02");
    Aside(2);
    EXPECT_EQ(Aside(2), u"0:07");
    EXPECT_EQ(form10.Length.Caption(), u"合計 0:16");
}

TEST_F(SoundLengthsTest, APieceThatIsGoneBeforeItsAnswer) {
    Know(u"C:\\a.wav", 1);
    fileInquiry.late = true;
    Fill({u"C:\\a.wav"});
    ClearSoundList(app);
    Fill({u"C:\\a.wav"});
    fileInquiry.Answer();
    EXPECT_EQ(Aside(0), u"0:01");
    EXPECT_EQ(form10.Length.Caption(), u"合計 0:01");
}

}  // namespace
}  // namespace authoring
