// How a person has arranged windows, from one run to the next: layout.dat of the program folder.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "model/application.h"

namespace authoring {

/// As long as it lives the given windows keep their size, whether they are maximised, how their
/// panes share the room, and which of their lists are grids. It is brought back when a window is
/// loaded, ahead of its own handler, and written whenever one goes away. What cannot be written is
/// not kept, and values that make no sense are not taken.
class WindowMemory : public model::Listener {
public:
    WindowMemory(model::Application& app, std::vector<model::Window*> windows);
    ~WindowMemory() override;
    WindowMemory(const WindowMemory&) = delete;
    WindowMemory& operator=(const WindowMemory&) = delete;

    void PropertyChanged(model::Control& control, model::PropertyBase& property) override;

private:
    using Kept = std::map<std::string, Text>;  // by "Form3.Panes1.Sizes"

    Kept Read();
    void Write(const Kept& kept);
    void BringBack(model::Window& window, const Kept& kept);
    void Note(const model::Window& window, Kept& kept);

    model::Application& app_;
    std::vector<model::Window*> windows_;
};

}  // namespace authoring
