// Every setting's values at program start and in a new document, and where it is kept.
#include <gtest/gtest.h>

#include <map>
#include <optional>
#include <set>

#include "model/application.h"

namespace model {
namespace {

using Held = std::variant<double, Text>;

struct Row {
    const char* name;
    Held start;
    std::optional<Held> fresh;  // nothing: a new document leaves it alone
    Kept kept;
};

const std::vector<Row> kTable{
    {"SlideIntervalSec", 3.0, 3.0, Kept::Document},
    {"RepeatFlag", 0.0, 0.0, Kept::Document},
    {"RandomFlag", 1.0, 1.0, Kept::Document},
    {"SoundMode", 7.0, 6.0, Kept::Document},
    {"DefaultEffectSound", Text(u"*.wav"), Text(u"*.wav"), Kept::Document},
    {"WavFile", Text(), Text(), Kept::Document},
    {"MidiFile", Text(), Text(), Kept::Document},
    {"Mp3File", Text(), Text(), Kept::Document},
    {"MidiLinkedWavFlag", 0.0, 0.0, Kept::Document},
    {"Mp3LinkedWavFlag", 0.0, 0.0, Kept::Document},
    {"SoundListCheck5", 0.0, 1.0, Kept::Document},
    {"SoundListCheck6", 0.0, 0.0, Kept::State},
    {"SoundListUsed", 0.0, 1.0, Kept::Document},
    {"SoundSyncFlag", 1.0, 0.0, Kept::Document},
    {"LinkedSoundPosition", 1.0, 0.0, Kept::Document},
    {"TextMacroFlag", 1.0, 0.0, Kept::Document},
    {"LinkedFolderFlag", 0.0, 0.0, Kept::Document},
    {"LinkedFolder", Text(), Text(), Kept::Document},
    {"ShowEffect", 9.0, 9.0, Kept::Document},
    {"EraseEffect", 9.0, 9.0, Kept::Document},
    {"ShowEffectSpeed", -30.0, -30.0, Kept::Document},
    {"EraseEffectSpeed", -30.0, -30.0, Kept::Document},
    {"EffectSpeedFixed", 0.0, 0.0, Kept::Document},
    {"ShowSlitCount", 10.0, 10.0, Kept::Document},
    {"EraseSlitCount", 10.0, 10.0, Kept::Document},
    {"ShowMosaicCount", 10.0, 20.0, Kept::Document},
    {"EraseMosaicCount", 10.0, 20.0, Kept::Document},
    {"EffectSpeedTrim", 5.0, 5.0, Kept::State},
    {"OverlayMode", 0.0, 0.0, Kept::Document},
    {"OverlaySize", 0.0, 0.0, Kept::Document},
    {"OverlayBackColor", 0.0, 0.0, Kept::Document},
    {"PicturePosition", 0.0, 0.0, Kept::Document},
    {"LoadMode", 0.0, 0.0, Kept::Document},
    {"AlwaysFullFlag", 1.0, 1.0, Kept::Document},
    {"CdOrder", 0.0, 0.0, Kept::Document},
    {"CdRepeatFlag", 1.0, 1.0, Kept::Document},
    {"CdTrackSetting", Text(u"1"), Text(u"1"), Kept::Document},
    {"CdPlusLinkedWav", 1.0, 1.0, Kept::Document},
    {"CdProgramStop", 0.0, 0.0, Kept::Document},
    {"TextOriginScreen", 0.0, 0.0, Kept::Document},
    {"AutoStartFlag", 1.0, 1.0, Kept::State},
    {"ControlBoxFlag", 1.0, 0.0, Kept::State},
    {"ControlBoxPos", 0.0, std::nullopt, Kept::State},
    {"SizeAdjust", 1.0, 0.0, Kept::State},
    {"ListErrorDelete", 0.0, 0.0, Kept::State},
    {"StartOption", 0.0, 0.0, Kept::State},
    {"ResumeIndex", 0.0, 0.0, Kept::State},
    {"FullStartConfirm", 0.0, 1.0, Kept::State},
    {"AllowDuplicate", 0.0, 0.0, Kept::State},
    {"UserHeaderFlag", 0.0, 1.0, Kept::State},
    {"ListShowPicture", 1.0, 1.0, Kept::State},
    {"ListDblClickRecord", 0.0, 1.0, Kept::State},
    {"ListDblClickWallpaper", 0.0, 0.0, Kept::State},
    {"ListDblClickText", 0.0, 0.0, Kept::State},
    {"ListDblClickStart", 0.0, 0.0, Kept::State},
    {"MosaicDelayUnit", 0.0, std::nullopt, Kept::State},
    {"LinkAutoFlag", 0.0, 0.0, Kept::Link},
    {"LinkRepeat", 0.0, 1.0, Kept::Link},
    {"LinkCheck3", 0.0, std::nullopt, Kept::Link},
};

/// A value that no setting starts with and no new document has.
constexpr double kOtherNumber = 77;
const Text kOtherText = u"other";

void SetEverythingOther(ShowState& state) {
    for (const Setting& setting : Settings()) {
        if (!WriteField(state, setting.field, kOtherNumber)) {
            ASSERT_TRUE(WriteField(state, setting.field, kOtherText)) << setting.name;
        }
    }
}

Held Other(const Held& like) {
    return std::holds_alternative<Text>(like) ? Held(kOtherText) : Held(kOtherNumber);
}

Held Read(const ShowState& state, const char* name) {
    const FieldPointer* field = FindField(name);
    return field ? ReadField(state, *field) : Held(Text(u"no such field"));
}

TEST(Settings, AreTheNamedOnesAndEachOnce) {
    std::set<std::string_view> expected, found;
    for (const Row& row : kTable) {
        EXPECT_TRUE(expected.insert(row.name).second) << row.name;
    }
    for (const Setting& setting : Settings()) {
        EXPECT_TRUE(found.insert(setting.name).second) << setting.name;
    }
    EXPECT_EQ(found, expected);
}

TEST(Settings, EachHasItsStartAndNewValueAndItsPlace) {
    std::map<std::string_view, const Setting*> table;
    for (const Setting& setting : Settings()) {
        table[setting.name] = &setting;
    }
    for (const Row& row : kTable) {
        SCOPED_TRACE(row.name);
        ASSERT_TRUE(table.contains(row.name));
        const Setting& setting = *table[row.name];
        EXPECT_EQ(setting.start, row.start);
        EXPECT_EQ(setting.unchangedByNew, !row.fresh.has_value());
        if (row.fresh) {
            EXPECT_EQ(setting.fresh, *row.fresh);
        }
        EXPECT_EQ(setting.kept, row.kept);
        // A default must be a value that the dialogs allow.
        if (const double* start = std::get_if<double>(&row.start)) {
            EXPECT_LE(setting.lowest, *start);
            EXPECT_GE(setting.highest, *start);
        }
    }
}

TEST(Settings, StartDefaultsReachEveryField) {
    ShowState state;
    SetEverythingOther(state);
    SetStartDefaults(state);
    for (const Row& row : kTable) {
        EXPECT_EQ(Read(state, row.name), row.start) << row.name;
    }
}

TEST(Settings, NewDefaultsReachEveryFieldButTheUnchanged) {
    ShowState state;
    SetEverythingOther(state);
    SetNewDefaults(state);
    for (const Row& row : kTable) {
        EXPECT_EQ(Read(state, row.name), row.fresh.value_or(Other(row.start))) << row.name;
    }
}

TEST(Settings, DefaultsLeaveTheRunAlone) {
    ShowState state;
    state.SlideIndex = 4;
    state.DocumentPath = u"C:\\a.kvs";
    state.SlideList.Set(1, u"a.png");
    SetStartDefaults(state);
    SetNewDefaults(state);
    EXPECT_EQ(state.SlideIndex, 4);
    EXPECT_EQ(state.DocumentPath, u"C:\\a.kvs");
    EXPECT_EQ(state.SlideList(1), u"a.png");
}

TEST(Settings, ZeroResetTouchesItsFieldsOnly) {
    const std::set<std::string_view> zeroed{
        "AutoStartFlag",    "ShowEffect",      "EraseEffect",        "ShowSlitCount",
        "EraseSlitCount",   "EffectSpeedTrim", "CdRepeatFlag",       "ShowMosaicCount",
        "EraseMosaicCount", "MosaicDelayUnit", "ListDblClickRecord", "ListDblClickWallpaper",
        "ListDblClickText", "TextMacroFlag",   "SoundSyncFlag",      "RepeatFlag",
        "SoundMode",        "LinkAutoFlag",    "LinkRepeat",         "LinkCheck3"};
    ShowState state;
    SetEverythingOther(state);
    ZeroReset(state);
    for (const Row& row : kTable) {
        const std::string_view name = row.name;
        const Held expected = zeroed.contains(name)        ? Held(0.0)
                              : name == "ShowEffectSpeed"  ? Held(-30.0)
                              : name == "EraseEffectSpeed" ? Held(-30.0)
                              : name == "ListShowPicture"  ? Held(1.0)
                                                           : Other(row.start);
        EXPECT_EQ(Read(state, row.name), expected) << name;
    }
}

}  // namespace
}  // namespace model
