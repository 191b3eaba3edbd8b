// The show state: the one record of settings, lists and run flags that every routine works on.
// Its fields stand in settings.def and run_state.def, each once.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>
#include <variant>
#include <vector>

#include "platform/canvas.h"
#include "platform/event_loop.h"
#include "text/text.h"

namespace model {

/// Highest index that SlideList and LinkList can hold.
constexpr int kSlideListLast = 30010;
constexpr int kLinkListLast = 1010;
/// Entries after which adding is refused.
constexpr int kSlideListLimit = 30000;
/// Monitors that the table holds; those beyond are not used.
constexpr int kMonitorsMost = 11;

/// Texts from index 1; index 0 exists and is not used. Reading an index that was never set gives
/// the empty text.
class TextArray {
public:
    explicit TextArray(int last) : last_(last) {}
    const Text& operator()(int index) const;
    /// False, and nothing set, for an index below 0 or above the last one.
    bool Set(int index, Text value);
    void Erase() { values_.clear(); }
    int Last() const { return last_; }
    /// Highest index that was set, 0 when none.
    int Used() const { return values_.empty() ? 0 : static_cast<int>(values_.size()) - 1; }
    /// Highest index whose text is not empty, 0 when none.
    int Count() const;
    /// Takes one element out; those above it come down by one.
    void Remove(int index);

private:
    int last_;
    std::vector<Text> values_;
};

struct ShowState {
#define SETTING(type, name, start, fresh, kept, lowest, highest) type name{};
#define RUN_FIELD(type, name) type name{};
#include "model/run_state.def"
#include "model/settings.def"
#undef SETTING
#undef RUN_FIELD

    TextArray SlideList{kSlideListLast};
    TextArray ScheduleFrom{kSlideListLast};  // "YYYY/MM/DD hh:mm", each part may be blank
    TextArray ScheduleTo{kSlideListLast};
    TextArray CdProgram{32767};
    TextArray SoundList{32767};
    TextArray LinkList{kLinkListLast};

    /// Jump values of the macro menus 1 to 5, and which of them stand on the screen.
    std::array<int16_t, 64> MenuJump{}, MenuActive{};

    /// What a click on the macro object of that index does: slides to jump, 0 none, and the full
    /// path of a file to play, empty none.
    std::array<int16_t, 64> CutoutJump{};
    std::array<Text, 64> CutoutAction;
    /// Which objects exist, and their shapes: 0 rectangle, 1 ellipse, 2 diamond, 3 star, 4 heart,
    /// 999 by the coordinate file.
    std::array<int16_t, 64> CutoutActive{}, CutoutType{};
    /// The coordinate file named for an object; outlives the slide.
    std::array<Text, 64> CutoutDataFile;
    /// Bounding box of a polygon in the object's own pixels; 9999, 9999, 0, 0 without one.
    std::array<int16_t, 64> CutoutMinX{}, CutoutMinY{}, CutoutMaxX{}, CutoutMaxY{};
    /// Full path of an object's picture, for the trace.
    std::array<Text, 64> CutoutPicture;

    /// The monitors by number, in twips; zeros after the last one.
    std::array<int32_t, kMonitorsMost> MonitorLeft{}, MonitorTop{}, MonitorRight{}, MonitorBottom{};
    int MonitorCount = 0;
    /// Far edges of them all, in twips.
    int32_t MonitorsRight = 0, MonitorsBottom = 0;

    /// State files (full paths) that are there and were not read to their end: they are not
    /// replaced but set aside.
    std::vector<Text> UnreadFiles;
    /// The state files were read and the exit has not written them: this record is what they shall
    /// hold.
    bool StateAtHand = false;

    /// Moment the schedule is compared with: taken at START and whenever slide 1 comes up.
    platform::DateTime ShowDateTime;

    /// Bitmap that the effects copy from; set while EffectDcValid is 1.
    platform::BitmapPtr EffectDc;
};

/// A field of any of the kinds that the record holds.
using FieldPointer = std::variant<int16_t ShowState::*, int32_t ShowState::*, double ShowState::*,
                                  Text ShowState::*>;

enum class Kept { Document, State, Link };

struct Setting {
    std::string_view name;
    FieldPointer field;
    std::variant<double, Text> start, fresh;
    bool unchangedByNew;
    Kept kept;
    int lowest, highest;  // what the dialogs allow; 0, 0 for texts
};

struct RunField {
    std::string_view name;
    FieldPointer field;
};

const std::vector<Setting>& Settings();
const std::vector<RunField>& RunFields();

/// Null where no field has that name.
const FieldPointer* FindField(std::string_view name);

/// Value of a field, numbers as doubles.
std::variant<double, Text> ReadField(const ShowState& state, const FieldPointer& field);

/// Sets a field; a number must be whole and fit where the field is one. False otherwise.
bool WriteField(ShowState& state, const FieldPointer& field,
                const std::variant<double, Text>& value);

/// Every setting to its value at program start.
void SetStartDefaults(ShowState& state);
/// Every setting but the unchanged ones to its value for a new document.
void SetNewDefaults(ShowState& state);
/// What becomes zero at the very start of the main window, before the start defaults.
void ZeroReset(ShowState& state);

/// True within a step whose show has ended, also where another one was started in the same wait:
/// nothing of the step may touch that one.
bool StepOutlived(const ShowState& state);

/// TextOriginScreen as a macro sets it: until RestoreTextOrigin, and never saved.
void SetTextOriginOfRun(ShowState& state, int16_t origin);
/// The setting's own value comes back after what a macro set.
void RestoreTextOrigin(ShowState& state);
/// A person chooses the setting, also while a macro's value is in force: it holds and is saved.
void ChooseTextOrigin(ShowState& state, int16_t origin);
/// The value to save.
int16_t OwnTextOrigin(const ShowState& state);

/// Start and end of a schedule row of 30 columns: "date time" of columns 1-15 and 16-30.
Text ScheduleFromOfRow(TextView row);
Text ScheduleToOfRow(TextView row);
/// 30 blanks: no schedule.
Text BlankScheduleRow();

}  // namespace model
