// One state file with a value of its own on every line, and a program to read it in.
#pragma once

#include "document/state_files.h"
#include "document_support.h"
#include "text/numbers.h"

namespace document_tests {

constexpr const char16_t* kStatePath = u"C:\\app\\autstart.dat";

/// A line with the field it belongs to; "" for lines that are no field.
struct StateLine {
    std::string field;
    Text content;
};
using StateLines = std::vector<StateLine>;

/// Today's form, with values that differ from every default and from each other where they can.
inline StateLines FullState() {
    return {{"tag", u"V2.1a3567893sp6"},
            {"RandomFlag", u" 0 "},
            {"CdOrder", u" 2 "},
            {"LinkedFolderFlag", u" 1 "},
            {"LinkedFolder", u"C:\\linked"},
            {"StartOption", u" 1 "},
            {"ResumeIndex", u" 17 "},
            {"OverlayMode", u" 2 "},
            {"OverlaySize", u" 3 "},
            {"AutoStartFlag", u" 0 "},
            {"ControlBoxFlag", u" 0 "},
            {"LinkedSoundPosition", u" 0 "},
            {"SizeAdjust", u" 2 "},
            {"ListDblClickStart", u" 1 "},
            {"ListErrorDelete", u" 1 "},
            {"ShowEffect", u" 4 "},
            {"ShowEffectSpeed", u"-5 "},
            {"EraseEffect", u" 12 "},
            {"EraseEffectSpeed", u" 6 "},
            {"ShowSlitCount", u" 21 "},
            {"EraseSlitCount", u" 22 "},
            {"EffectSpeedTrim", u" 7 "},
            {"WavFile", u"C:\\snd\\a,b.wav"},
            {"CdRepeatFlag", u" 0 "},
            {"CdTrackSetting", u"3-5"},
            {"ShowMosaicCount", u" 31 "},
            {"EraseMosaicCount", u" 32 "},
            {"ListShowPicture", u" 0 "},
            {"MosaicDelayUnit", u" 1234 "},
            {"ListDblClickRecord", u" 1 "},
            {"ListDblClickWallpaper", u" 1 "},
            {"ListDblClickText", u" 1 "},
            {"TextMacroFlag", u" 0 "},
            {"MidiFile", u"m.mid"},
            {"ReservedStateText", u"控え"},
            {"SoundSyncFlag", u" 0 "},
            {"DocumentPath", u"C:\\show\\表.kvs"},
            {"interval", u" 9000 "},
            {"RepeatFlag", u" 1 "},
            {"SoundMode", u" 3 "},
            {"DefaultEffectSound", u"C:\\snd\\def.wav"},
            {"slides", u" 2 "},
            {"slide", u"C:\\pic\\一.jpg"},
            {"slide", u"C:\\pic\\x.avi"},
            {"CdProgramCount", u" 2 "},
            {"programme", u"4"},
            {"programme", u"7"},
            {"TextOriginScreen", u" 1 "},
            {"CdPlusLinkedWav", u" 0 "},
            {"CdProgramStop", u" 1 "},
            {"FullStartConfirm", u" 1 "},
            {"AllowDuplicate", u" 1 "},
            {"OverlayBackColor", u" 6 "},
            {"PicturePosition", u" 0 "},
            {"SoundListUsed", u" 1 "},
            {"MidiLinkedWavFlag", u" 1 "},
            {"Mp3File", u"C:\\snd\\song.mp3"},
            {"Mp3ModeFlag", u" 0 "},
            {"AlwaysFullFlag", u" 0 "},
            {"EffectSpeedFixed", u" 1 "},
            {"LoadMode", u" 1 "},
            {"Mp3LinkedWavFlag", u" 1 "},
            {"SoundListCheck5", u" 1 "},
            {"ControlBoxPos", u" 1 "},
            {"SoundListCheck6", u" 1 "},
            {"row", u"-" + kRow},
            {"row", u"-" + kBlankRow},
            {"MonitorIndex", u" 1 "},
            {"UserHeaderFlag", u" 1 "}};
}

inline Text TextOf(const StateLines& lines) {
    Text result;
    for (const StateLine& line : lines) {
        result += line.content + u"\r\n";
    }
    return result;
}

/// Place of the first line of that name; after the last when there is none.
inline size_t PlaceOf(const StateLines& lines, const std::string& field) {
    size_t place = 0;
    while (place < lines.size() && lines[place].field != field) {
        ++place;
    }
    return place;
}

/// The lines before the first of that name.
inline StateLines Before(StateLines lines, const std::string& field) {
    lines.resize(PlaceOf(lines, field));
    return lines;
}

inline StateLines With(StateLines lines, const std::string& field, const Text& content) {
    lines.at(PlaceOf(lines, field)).content = content;
    return lines;
}

/// Value of a line as the field of that name should hold it.
inline std::variant<double, Text> Expected(const StateLine& line) {
    const model::FieldPointer* field = model::FindField(line.field);
    if (field && std::holds_alternative<Text model::ShowState::*>(*field)) {
        return line.content;
    }
    return text::Val(line.content).value_or(-99);
}

struct StateProgram : Program {
    StateProgram() {
        monitors.monitors = {{0, 0, 1920, 1080}, {1920, 40, 1280, 1024}};
        PutText(u"C:\\show\\表.kvs", u"any");
    }
    void Read(const StateLines& lines) { ReadText(TextOf(lines)); }
    void ReadText(TextView content) {
        PutText(kStatePath, content);
        document::ReadStateFile(app);
    }
    std::string Written(TextView path = kStatePath) const {
        const auto* file = files.Get(path);
        return file ? file->content : "no file";
    }
};

}  // namespace document_tests
