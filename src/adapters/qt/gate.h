// The one way between the toolkit's frames and the program's logic. Exceptions must not cross the
// toolkit: the gate keeps the one that a handler threw, makes every waiting box and loop return,
// and throws it again below them.
#pragma once

#include <exception>
#include <functional>
#include <vector>

class QDialog;

namespace qt_adapter {

class Gate {
public:
    /// Calls into the logic from an event, a signal or a timer. Does nothing while an exception is
    /// on its way out, or while muted: false then. Never throws.
    bool Guarded(const std::function<void()>& call);

    /// Calls into the toolkit from the logic; handlers may run inside. Throws what a handler threw,
    /// also one that was kept from before: then `wait` is not called.
    void Wait(const std::function<void()>& wait);

    /// Runs the box until it is closed. Throws as Wait does, after closing the box. Rejected at
    /// once while nobody is there to answer.
    int Exec(QDialog& dialog);

    /// Closes every box that stands, as by its frame.
    void CloseBoxes();

    /// Throws what a handler threw, if anything.
    void Check();

    /// An exception is on its way out: loops must return.
    bool Leaving() const { return static_cast<bool>(pending_); }

    /// While one lives no person is there: no box comes up, each counts as closed by its frame.
    class Unattended {
    public:
        explicit Unattended(Gate& gate) : gate_(gate) { ++gate_.unattended_; }
        Unattended(const Unattended&) = delete;
        Unattended& operator=(const Unattended&) = delete;
        ~Unattended() { --gate_.unattended_; }

    private:
        Gate& gate_;
    };
    bool NobodyThere() const { return unattended_ > 0; }

    /// While one lives nothing reaches the logic.
    class Mute {
    public:
        explicit Mute(Gate& gate) : gate_(gate) { ++gate_.muted_; }
        Mute(const Mute&) = delete;
        Mute& operator=(const Mute&) = delete;
        ~Mute() { --gate_.muted_; }

    private:
        Gate& gate_;
    };

private:
    std::exception_ptr pending_;
    std::vector<QDialog*> boxes_;
    int waits_ = 0;  // calls into the toolkit that have not returned
    int muted_ = 0;
    int unattended_ = 0;
};

}  // namespace qt_adapter
