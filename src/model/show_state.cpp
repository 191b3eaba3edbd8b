#include "model/show_state.h"

#include <cmath>
#include <limits>
#include <map>

#include "model/effect_speed.h"

namespace model {

namespace {

/// Marks a setting that a new document leaves alone.
constexpr double kUnchanged = std::numeric_limits<double>::infinity();

std::variant<double, Text> Default(int value) {
    return static_cast<double>(value);
}
std::variant<double, Text> Default(double value) {
    return value;
}
std::variant<double, Text> Default(const char16_t* value) {
    return Text(value);
}
bool IsUnchanged(const std::variant<double, Text>& value) {
    const double* number = std::get_if<double>(&value);
    return number && *number == kUnchanged;
}

}  // namespace

const Text& TextArray::operator()(int index) const {
    static const Text none;
    return index >= 0 && static_cast<size_t>(index) < values_.size()
               ? values_[static_cast<size_t>(index)]
               : none;
}

bool TextArray::Set(int index, Text value) {
    if (index < 0 || index > last_) {
        return false;
    }
    if (static_cast<size_t>(index) >= values_.size()) {
        values_.resize(static_cast<size_t>(index) + 1);
    }
    values_[static_cast<size_t>(index)] = std::move(value);
    return true;
}

int TextArray::Count() const {
    int count = Used();
    while (count > 0 && values_[static_cast<size_t>(count)].empty()) {
        --count;
    }
    return count;
}

void TextArray::Remove(int index) {
    if (index >= 0 && static_cast<size_t>(index) < values_.size()) {
        values_.erase(values_.begin() + index);
    }
}

const std::vector<Setting>& Settings() {
    static const std::vector<Setting> table{
#define SETTING(type, name, start, fresh, kept, lowest, highest)                                \
    {#name,      &ShowState::name, Default(start), Default(fresh), IsUnchanged(Default(fresh)), \
     Kept::kept, lowest,           highest},
#include "model/settings.def"
#undef SETTING
    };
    return table;
}

const std::vector<RunField>& RunFields() {
    static const std::vector<RunField> table{
#define RUN_FIELD(type, name) {#name, &ShowState::name},
#include "model/run_state.def"
#undef RUN_FIELD
    };
    return table;
}

const FieldPointer* FindField(std::string_view name) {
    static const std::map<std::string_view, const FieldPointer*> index = [] {
        std::map<std::string_view, const FieldPointer*> fields;
        for (const Setting& setting : Settings()) {
            fields[setting.name] = &setting.field;
        }
        for (const RunField& field : RunFields()) {
            fields[field.name] = &field.field;
        }
        return fields;
    }();
    const auto found = index.find(name);
    return found == index.end() ? nullptr : found->second;
}

std::variant<double, Text> ReadField(const ShowState& state, const FieldPointer& field) {
    return std::visit(
        [&](auto member) -> std::variant<double, Text> {
            using Type = std::remove_reference_t<decltype(state.*member)>;
            if constexpr (std::is_same_v<Type, const Text>) {
                return state.*member;
            } else {
                return static_cast<double>(state.*member);
            }
        },
        field);
}

bool WriteField(ShowState& state, const FieldPointer& field,
                const std::variant<double, Text>& value) {
    return std::visit(
        [&](auto member) {
            using Type = std::remove_reference_t<decltype(state.*member)>;
            if constexpr (std::is_same_v<Type, Text>) {
                const Text* source = std::get_if<Text>(&value);
                if (source) {
                    state.*member = *source;
                }
                return source != nullptr;
            } else {
                const double* number = std::get_if<double>(&value);
                if (!number) {
                    return false;
                }
                if constexpr (std::is_same_v<Type, double>) {
                    state.*member = *number;
                } else {
                    if (std::floor(*number) != *number ||
                        *number < std::numeric_limits<Type>::min() ||
                        *number > std::numeric_limits<Type>::max()) {
                        return false;
                    }
                    state.*member = static_cast<Type>(*number);
                }
                return true;
            }
        },
        field);
}

void SetStartDefaults(ShowState& state) {
    for (const Setting& setting : Settings()) {
        WriteField(state, setting.field, setting.start);
    }
    state.ListCheck1Flag = 1;
    state.TextOriginByMacro = 0;
}

void SetNewDefaults(ShowState& state) {
    for (const Setting& setting : Settings()) {
        if (!setting.unchangedByNew) {
            WriteField(state, setting.field, setting.fresh);
        }
    }
    state.ListCheck1Flag = 1;
    state.TextOriginByMacro = 0;
}

void ZeroReset(ShowState& state) {
    for (int16_t ShowState::*field :
         {&ShowState::AutoStartFlag,      &ShowState::ShowEffect,
          &ShowState::EraseEffect,        &ShowState::ShowSlitCount,
          &ShowState::EraseSlitCount,     &ShowState::EffectSpeedTrim,
          &ShowState::CdRepeatFlag,       &ShowState::ShowMosaicCount,
          &ShowState::EraseMosaicCount,   &ShowState::MosaicDelayUnit,
          &ShowState::ListDblClickRecord, &ShowState::ListDblClickWallpaper,
          &ShowState::ListDblClickText,   &ShowState::TextMacroFlag,
          &ShowState::SoundSyncFlag,      &ShowState::RepeatFlag,
          &ShowState::SoundMode,          &ShowState::LinkAutoFlag,
          &ShowState::LinkRepeat,         &ShowState::LinkCheck3}) {
        state.*field = 0;
    }
    state.ShowEffectSpeed = kFixedEffectSpeed;
    state.EraseEffectSpeed = kFixedEffectSpeed;
    state.ListShowPicture = 1;
}

bool StepOutlived(const ShowState& state) {
    return state.StepPhase == 2;
}

void SetTextOriginOfRun(ShowState& state, int16_t origin) {
    state.TextOriginOwn = OwnTextOrigin(state);
    state.TextOriginByMacro = 1;
    state.TextOriginScreen = origin;
}

void RestoreTextOrigin(ShowState& state) {
    state.TextOriginScreen = OwnTextOrigin(state);
    state.TextOriginByMacro = 0;
}

void ChooseTextOrigin(ShowState& state, int16_t origin) {
    state.TextOriginScreen = origin;
    state.TextOriginByMacro = 0;
}

int16_t OwnTextOrigin(const ShowState& state) {
    return state.TextOriginByMacro == 1 ? state.TextOriginOwn : state.TextOriginScreen;
}

Text ScheduleFromOfRow(TextView row) {
    return text::Mid(row, 1, 10) + u" " + text::Mid(row, 11, 5);
}

Text ScheduleToOfRow(TextView row) {
    return text::Mid(row, 16, 10) + u" " + text::Mid(row, 26, 5);
}

Text BlankScheduleRow() {
    return Text(30, u' ');
}

}  // namespace model
