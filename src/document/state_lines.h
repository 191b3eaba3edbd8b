// The lines of autstart.dat that hold one setting each, in the file's order: its reader and its
// writer walk the same tables.
#pragma once

#include "model/show_state.h"

namespace document {

constexpr TextView kStateTag = u"V2.1a3567893sp6";
/// Files with another first line are older still: that line is AutoStartFlag.
constexpr TextView kTaggedState = u"V2";

/// A line before the slides.
struct StateLine {
    const char16_t* block;  // the tags of files that hold the line begin so
    model::FieldPointer field;
    bool item = false;  // of a text: ends at a comma
};

/// Lines 2 to 36. The tag grew by a digit with each block of lines.
inline constexpr StateLine kStateHead[] = {
    {u"V2.1a3567893", &model::ShowState::RandomFlag},
    {u"V2.1a3567893", &model::ShowState::CdOrder},
    {u"V2.1a3567893", &model::ShowState::LinkedFolderFlag},
    {u"V2.1a3567893", &model::ShowState::LinkedFolder, true},
    {u"V2.1a3567893", &model::ShowState::StartOption},
    {u"V2.1a3567893", &model::ShowState::ResumeIndex},
    {u"V2.1a3567893", &model::ShowState::OverlayMode},
    {u"V2.1a3567893", &model::ShowState::OverlaySize},
    {u"V2", &model::ShowState::AutoStartFlag},
    {u"V2.1a356789", &model::ShowState::ControlBoxFlag},
    {u"V2.1a356789", &model::ShowState::LinkedSoundPosition},
    {u"V2.1a356789", &model::ShowState::SizeAdjust},
    {u"V2.1a356789", &model::ShowState::ListDblClickStart},
    {u"V2.1a356789", &model::ShowState::ListErrorDelete},
    {u"V2", &model::ShowState::ShowEffect},
    {u"V2", &model::ShowState::ShowEffectSpeed},
    {u"V2", &model::ShowState::EraseEffect},
    {u"V2", &model::ShowState::EraseEffectSpeed},
    {u"V2", &model::ShowState::ShowSlitCount},
    {u"V2", &model::ShowState::EraseSlitCount},
    {u"V2", &model::ShowState::EffectSpeedTrim},
    {u"V2", &model::ShowState::WavFile},
    {u"V2", &model::ShowState::CdRepeatFlag},
    {u"V2", &model::ShowState::CdTrackSetting},
    {u"V2.1", &model::ShowState::ShowMosaicCount},
    {u"V2.1", &model::ShowState::EraseMosaicCount},
    {u"V2.1", &model::ShowState::ListShowPicture},
    {u"V2.1a", &model::ShowState::MosaicDelayUnit},
    {u"V2.1a3", &model::ShowState::ListDblClickRecord},
    {u"V2.1a35", &model::ShowState::ListDblClickWallpaper},
    {u"V2.1a356", &model::ShowState::ListDblClickText},
    {u"V2.1a356", &model::ShowState::TextMacroFlag},
    {u"V2.1a3567", &model::ShowState::MidiFile},
    {u"V2.1a3567", &model::ShowState::ReservedStateText, true},
    {u"V2.1a3567", &model::ShowState::SoundSyncFlag},
};

/// A line after the CD programme. The file may end before any of them.
struct StateTailLine {
    model::FieldPointer field;
    int otherwise;  // where the file has ended; texts are empty
};

/// `otherwise` of PicturePosition: 1 with an overlay, 0 without.
constexpr int kByOverlayMode = -1;

inline constexpr StateTailLine kStateTail[] = {
    {&model::ShowState::TextOriginScreen, 0},
    {&model::ShowState::CdPlusLinkedWav, 1},
    {&model::ShowState::CdProgramStop, 0},
    {&model::ShowState::FullStartConfirm, 0},
    {&model::ShowState::AllowDuplicate, 0},
    {&model::ShowState::OverlayBackColor, 0},
    {&model::ShowState::PicturePosition, kByOverlayMode},
    {&model::ShowState::SoundListUsed, 0},
    {&model::ShowState::MidiLinkedWavFlag, 0},
    {&model::ShowState::Mp3File, 0},
    {&model::ShowState::Mp3ModeFlag, 0},
    {&model::ShowState::AlwaysFullFlag, 1},
    {&model::ShowState::EffectSpeedFixed, 0},
    {&model::ShowState::LoadMode, 0},
};

}  // namespace document
