// The scripted person: does what a script says when its time has come.
#pragma once

#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "adapters/robot/script.h"
#include "adapters/robot/trace_expectations.h"
#include "adapters/robot/trace_record.h"
#include "adapters/tracing/window_tracer.h"
#include "adapters/virtual/virtual_dialogs.h"
#include "adapters/virtual/virtual_loop.h"
#include "model/application.h"

namespace robot {

/// How the robot looks at the program.
struct Eyes {
    /// Saves what a person would see of the window as a picture; false when it cannot.
    std::function<bool(model::Window&, const std::string& file)> shot;
    /// Two pictures of the same size and pixels; false also when one cannot be read.
    std::function<bool(const std::string&, const std::string&)> same;
};

/// Acts as a person can: what stands on a hidden or disabled control, on a window that is not
/// shown or lies under a modal one, has no effect. An action that cannot be done at all (a row
/// that is not there, a picture that cannot be saved) is a fault of the script: it is reported and
/// ends the run.
class ScriptedUser : public virtual_adapter::Actions {
public:
    struct Surroundings {
        virtual_adapter::VirtualLoop& loop;
        virtual_adapter::VirtualDialogs& dialogs;
        tracing::WindowTracer& windows;
        TraceRecord& trace;
        std::ostream& out;  // printed values
        std::ostream& err;  // failed expectations and faults
    };

    ScriptedUser(std::vector<Action> script, std::string fileName, Surroundings surroundings);

    /// Gives the program to act on. Throws ScriptError when a line names what it does not have.
    void Attach(model::Application& application, Eyes eyes);

    /// See Robot::ExitStatus. Tells, once, about the expectations that were never reached or do
    /// not hold at the end.
    int ExitStatus(int programs);

    std::optional<double> NextDue() const override;
    bool NextComesDuring() const override;
    void RunNext() override;
    void End() override;

private:
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
    void Judge(const Action& action);
    void JudgeEnd(int programs);
    void Fail(const Action& action, const std::string& reason);
    void SaveShot(const Action& action, const std::string& file);
    void Shot(const Action& action);
    void Golden(const Action& action);
    bool CanUse(const model::Window& window) const;
    bool CanUse(const model::Window& window, const model::Control& control) const;
    std::string Place(const Action& action) const;
    [[noreturn]] void Fault(const Action& action, const std::string& reason);

    std::vector<Action> script_;
    std::string fileName_;
    Surroundings around_;
    model::Application* application_ = nullptr;
    Eyes eyes_;
    TraceExpectations expectations_;
    size_t atEnd_;  // from this line on what is expected at the end of the run
    size_t next_ = 0;
    double previousRun_ = 0;
    bool ending_ = false;
    bool judged_ = false;  // what is expected at the end
    int status_ = 0;
};

}  // namespace robot
