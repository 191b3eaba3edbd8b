// The scripted person: does what a script says when its time has come.
#pragma once

#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "adapters/robot/script.h"
#include "adapters/tracing/window_tracer.h"
#include "adapters/virtual/virtual_dialogs.h"
#include "adapters/virtual/virtual_loop.h"
#include "model/application.h"

namespace robot {

/// Saves what a person would see of the window as a picture; false when it cannot.
using ShotFunction = std::function<bool(model::Window&, const std::string& file)>;

/// Acts as a person can: what stands on a hidden or disabled control, on a window that is not
/// shown or lies under a modal one, has no effect. An action that cannot be done at all (a row
/// that is not there, a picture that cannot be saved) is a fault of the script: it is told and
/// ends the run.
class ScriptedUser : public virtual_adapter::Actions {
public:
    struct Surroundings {
        virtual_adapter::VirtualLoop& loop;
        virtual_adapter::VirtualDialogs& dialogs;
        tracing::WindowTracer& windows;
        platform::Trace& trace;
        std::ostream& out;  // printed values
        std::ostream& err;  // failed expectations and faults
    };

    ScriptedUser(std::vector<Action> script, std::string fileName, Surroundings surroundings)
        : script_(std::move(script)), fileName_(std::move(fileName)), around_(surroundings) {}

    /// Gives the program to act on. Throws ScriptError when a line names what it does not have.
    void Attach(model::Application& application, ShotFunction shot);

    /// 0 every expectation held, 1 one did not or was never reached, 2 the script is at fault.
    /// Tells, once, about the expectations that were never reached.
    int ExitStatus();

    std::optional<double> NextDue() const override;
    bool NextComesDuring() const override;
    void RunNext() override;
    void End() override;

private:
    void Check(const Action& action);
    void CheckMenuEntry(const Action& action);
    void Run(const Action& action);
    bool Act(const Action& action, model::Window& window, model::VisibleControl& target);
    bool Mouse(const Action& action, model::Window& window, model::VisibleControl& target);
    bool Key(const Action& action, model::VisibleControl& target);
    void Menu(const Action& action);
    bool Select(const Action& action, model::VisibleControl& target);
    bool Set(const Action& action, model::VisibleControl& target);
    void TraceUnheard(const Action& action);
    void Print(const Action& action);
    void Expect(const Action& action);
    void Shot(const Action& action);
    bool CanUse(const model::Window& window) const;
    bool CanUse(const model::Window& window, const model::Control& control) const;
    std::string Place(const Action& action) const;
    [[noreturn]] void Fault(const Action& action, const std::string& reason);

    std::vector<Action> script_;
    std::string fileName_;
    Surroundings around_;
    model::Application* application_ = nullptr;
    ShotFunction shot_;
    size_t next_ = 0;
    double previousRun_ = 0;
    bool ending_ = false;
    bool leftOverTold_ = false;
    int status_ = 0;
};

}  // namespace robot
