// The end that comes from outside: signals, the session's end, a lost display, an uncaught
// exception.
#pragma once

#include <QObject>
#include <functional>
#include <memory>

#include "adapters/posix/end_signals.h"
#include "adapters/qt/gate.h"

class QSocketNotifier;

namespace qt_adapter {

/// How a program is left when it is asked to end from outside. No box asks anything then.
struct Ending {
    std::function<void()> leave;  // by an exception, once everything is saved
    std::function<void()> save;   // and goes on
};

/// While one lives: SIGTERM, SIGINT, SIGHUP and the session's command to end leave from whatever
/// the program does, a box included; a box that the leaving itself brought up is closed by the next
/// signal. A session that wants everything saved saves, as it may go on after all. At most one at a
/// time, with an application object.
class EndWatch : public QObject {
public:
    EndWatch(Gate& gate, Ending ending);
    ~EndWatch() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void SignalCame();
    /// False while the logic cannot be reached.
    bool Leave();
    void Save();

    Gate& gate_;
    Ending ending_;
    posix_adapter::EndSignals signals_;
    std::unique_ptr<QSocketNotifier> notifier_;
    std::unique_ptr<Gate::Unattended> alone_;  // once the program was asked to end
};

/// To be called where the process is about to end below the program, from any thread: saves by the
/// watch that lives, once. Another thread than the program's waits until that one looks after its
/// events, for some seconds at most.
void SaveAtLast();

}  // namespace qt_adapter
