#include "adapters/robot/options.h"

#include <algorithm>
#include <charconv>
#include <string_view>

namespace robot {

namespace {

template <class Number>
bool ReadNumber(std::string_view from, Number& number) {
    const char* end = from.data() + from.size();
    const auto read = std::from_chars(from.data(), end, number);
    return !from.empty() && read.ec == std::errc() && read.ptr == end;
}

/// "WxH[,WxH…]", each side from 1 to 32767 pixels.
bool ReadScreens(std::string_view from, std::vector<platform::Rect>& screens) {
    constexpr int kLargestSide = 32767;
    screens.clear();
    while (true) {
        const std::string_view one = from.substr(0, from.find(','));
        const size_t by = one.find('x');
        platform::Rect screen;
        if (by == std::string_view::npos || !ReadNumber(one.substr(0, by), screen.width) ||
            !ReadNumber(one.substr(by + 1), screen.height) || screen.Empty() ||
            std::max(screen.width, screen.height) > kLargestSide) {
            return false;
        }
        screens.push_back(screen);
        if (one.size() == from.size()) {
            return true;
        }
        from.remove_prefix(one.size() + 1);
    }
}

/// "m:ss[,m:ss…]", up to 99 tracks of up to 99 minutes, none without a length.
bool ReadTracks(std::string_view from, std::vector<int>& seconds) {
    constexpr int kMostTracks = 99, kMostMinutes = 99, kSecondsPerMinute = 60;
    seconds.clear();
    while (true) {
        const std::string_view one = from.substr(0, from.find(','));
        const size_t colon = one.find(':');
        unsigned minutes = 0, rest = 0;
        if (colon == std::string_view::npos || colon + 3 != one.size() ||
            !ReadNumber(one.substr(0, colon), minutes) ||
            !ReadNumber(one.substr(colon + 1), rest) || minutes > kMostMinutes ||
            rest >= kSecondsPerMinute || minutes + rest == 0 || seconds.size() == kMostTracks) {
            return false;
        }
        seconds.push_back(static_cast<int>(minutes * kSecondsPerMinute + rest));
        if (one.size() == from.size()) {
            return true;
        }
        from.remove_prefix(one.size() + 1);
    }
}

/// "YYYY-MM-DD hh:mm[:ss]".
bool ReadMoment(const std::string& from, platform::DateTime& moment) {
    Text text = text::FromUtf8(from);
    if (text.find(u'/') != Text::npos) {
        return false;
    }
    std::replace(text.begin(), text.end(), u'-', u'/');
    return text.find(u'/') != Text::npos && platform::ReadDateTime(text, moment);
}

/// Takes one option with its value. False with `error` set for an unknown or wrong one.
bool ReadOption(const std::string& name, const std::string& value, RobotOptions& options,
                std::string& error) {
    bool good = true;
    if (name == "--robot") {
        options.script = value;
    } else if (name == "--trace") {
        options.trace = value;
    } else if (name == "--app-folder") {
        options.appFolder = value;
    } else if (name == "--seed") {
        good = ReadNumber(value, options.seed);
    } else if (name == "--now") {
        good = ReadMoment(value, options.now);
    } else if (name == "--screen") {
        good = ReadScreens(value, options.screens);
    } else if (name == "--cd") {
        good = ReadTracks(value, options.cd);
    } else if (name == "--prepare") {
        good = value == "on" || value == "off";
        options.prepare = value == "on";
    } else {
        error = "unknown option: " + name;
        return false;
    }
    if (!good || value.empty()) {
        error = "wrong value for " + name + ": " + value;
        return false;
    }
    return true;
}

}  // namespace

std::optional<RobotOptions> ParseRobotArguments(const std::vector<std::string>& arguments,
                                                std::string& error) {
    RobotOptions options;
    bool onlyDocument = false;
    bool anyDocument = false;
    for (size_t i = 0; i < arguments.size(); ++i) {
        const std::string& word = arguments[i];
        if (onlyDocument || !word.starts_with("--")) {
            if (anyDocument) {
                error = "more than one document: " + word;
                return std::nullopt;
            }
            options.document = word;
            anyDocument = true;
        } else if (word == "--") {
            onlyDocument = true;
        } else if (word == "--title") {
            options.title = true;
        } else if (i + 1 == arguments.size()) {
            error = "the value is missing: " + word;
            return std::nullopt;
        } else if (!ReadOption(word, arguments[++i], options, error)) {
            return std::nullopt;
        }
    }
    if (options.script.empty()) {
        error = "the script is missing: --robot SCRIPT";
        return std::nullopt;
    }
    return options;
}

}  // namespace robot
