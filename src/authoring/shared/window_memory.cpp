#include "authoring/shared/window_memory.h"

#include <algorithm>

#include "document/line_reader.h"
#include "document/line_writer.h"
#include "model/list_controls.h"
#include "model/monitors.h"
#include "model/panes.h"

namespace authoring {

namespace {

constexpr TextView kTag = u"layout1";
constexpr size_t kLongestFile = 1u << 16;  // bytes
constexpr int kMostEntries = 500;
constexpr size_t kLongestSizes = 200;  // characters
constexpr int kSmallestSide = 1500;    // twips

Text FilePath(const Application& app) {
    return app.state.AppFolder + u"layout.dat";
}

/// Whole number from `least` to `most`; `least` - 1 for anything else.
int WholeNumber(const Text& words, int least, int most) {
    int number = 0;
    for (const char16_t c : words) {
        if (c < u'0' || c > u'9' || number > most) {
            return least - 1;
        }
        number = number * 10 + (c - u'0');
    }
    return words.empty() || number < least || number > most ? least - 1 : number;
}

bool IsListOfNumbers(const Text& words) {
    return !words.empty() && words.size() <= kLongestSizes &&
           words.find_first_not_of(u"0123456789,") == Text::npos;
}

Text ToText(int number) {
    return text::FromUtf8(std::to_string(number));
}

std::string Key(const model::Control& control, const model::PropertyBase& property) {
    const std::string own(property.Name());
    return control.Kind() == model::ControlKind::Window
               ? control.Name() + "." + own
               : control.Parent().Name() + "." + control.Name() + "." + own;
}

}  // namespace

WindowMemory::WindowMemory(model::Application& app, std::vector<model::Window*> windows)
    : app_(app), windows_(std::move(windows)) {
    for (model::Window* window : windows_) {
        window->Listen(this);
    }
}

WindowMemory::~WindowMemory() {
    for (model::Window* window : windows_) {
        window->Unlisten(this);
    }
}

void WindowMemory::PropertyChanged(model::Control& control, model::PropertyBase& property) {
    model::Window& window = control.Parent();
    if (&property == &window.Loaded && window.Loaded) {
        BringBack(window, Read());
    } else if (&property == &window.Visible && !window.Visible) {
        const Kept before = Read();
        Kept kept = before;
        Note(window, kept);
        if (kept != before) {
            Write(kept);
        }
    }
}

WindowMemory::Kept WindowMemory::Read() {
    std::string bytes;
    platform::FileError error;
    if (!app_.platform.files.Exists(FilePath(app_)) ||
        !app_.platform.files.Read(FilePath(app_), bytes, error, kLongestFile)) {
        return {};
    }
    document::LineReader reader(text::DecodeFile(bytes, app_.platform.codePage));
    Kept kept;
    try {
        if (reader.Line() != kTag) {
            return {};
        }
        const int count = std::min<int>(reader.Count16(), kMostEntries);
        for (int i = 0; i < count; ++i) {
            const std::string key = text::ToUtf8(reader.Line());
            kept[key] = reader.Line();
        }
    } catch (const document::ReadFailure&) {
        return {};
    }
    return kept;
}

void WindowMemory::Write(const Kept& kept) {
    document::LineWriter writer;
    writer.Line(kTag);
    writer.Number(static_cast<double>(kept.size()));
    for (const auto& [key, value] : kept) {
        writer.Line(text::FromUtf8(key));
        writer.Line(value);
    }
    platform::FileError ignored;
    app_.platform.files.Write(FilePath(app_),
                              text::EncodeFile(writer.Content(), app_.platform.codePage), ignored);
}

void WindowMemory::BringBack(model::Window& window, const Kept& kept) {
    const auto value = [&](const model::Control& control, const model::PropertyBase& property) {
        const auto found = kept.find(Key(control, property));
        return found == kept.end() ? Text() : found->second;
    };
    const platform::Rect monitor = model::MonitorTwips(app_, model::MonitorOfMainWindow(app_));
    const int width = WholeNumber(value(window, window.Width), kSmallestSide, monitor.width);
    const int height = WholeNumber(value(window, window.Height), kSmallestSide, monitor.height);
    if (width >= kSmallestSide && height >= kSmallestSide) {
        window.Width = width;
        window.Height = height;
    }
    if (value(window, window.WindowState) == ToText(model::kWindowMaximised)) {
        window.WindowState = model::kWindowMaximised;
    }
    for (model::Control* control : window.Controls()) {
        if (auto* panes = dynamic_cast<model::Panes*>(control)) {
            const Text sizes = value(*panes, panes->Sizes);
            if (IsListOfNumbers(sizes)) {
                panes->Sizes = sizes;
            }
        } else if (auto* list = dynamic_cast<model::ListBox*>(control)) {
            list->AsGrid = value(*list, list->AsGrid) == ToText(1);
        }
    }
}

void WindowMemory::Note(const model::Window& window, Kept& kept) {
    // The size that a maximised window goes back to was noted before.
    if (window.WindowState == model::kWindowNormal) {
        kept[Key(window, window.Width)] = ToText(window.Width);
        kept[Key(window, window.Height)] = ToText(window.Height);
    }
    if (window.WindowState != model::kWindowMinimised) {
        kept[Key(window, window.WindowState)] = ToText(window.WindowState);
    }
    for (const model::Control* control : window.Controls()) {
        if (const auto* panes = dynamic_cast<const model::Panes*>(control)) {
            kept[Key(*panes, panes->Sizes)] = panes->Sizes;
        } else if (const auto* list = dynamic_cast<const model::ListBox*>(control);
                   list && list->face) {
            kept[Key(*list, list->AsGrid)] = ToText(list->AsGrid ? 1 : 0);
        }
    }
}

}  // namespace authoring
