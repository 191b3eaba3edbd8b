// Time and waiting. One thread runs the logic; waits are loops of PumpEvents and Sleep that poll
// flags, and handlers run inside PumpEvents.
#pragma once

#include <cstdint>
#include <functional>

#include "text/text.h"

namespace platform {

/// Thrown to leave the program from any depth. Adapters hold it while their toolkit's frames
/// return, and the pumping call of the logic below throws it again. Only the program's outermost
/// frame catches it for good.
struct ProgramEnd {
    int exitStatus = 0;
};

/// A moment of local time. Comparable, in seconds of an arbitrary epoch.
struct DateTime {
    int64_t seconds = 0;  // since 1970-01-01 00:00:00, counted in local time
    friend auto operator<=>(const DateTime&, const DateTime&) = default;
};

struct CalendarTime {
    int year = 1970, month = 1, day = 1;  // month and day from 1
    int hour = 0, minute = 0, second = 0;
};

/// Conversions without a clock. FromCalendar takes values beyond their range (32 January).
DateTime FromCalendar(const CalendarTime& value);
CalendarTime ToCalendar(DateTime value);

/// "YYYY/MM/DD".
Text DateText(DateTime value);
/// "YYYY/MM/DD hh:mm:ss": the string form in which file dates are kept and compared.
Text DateTimeText(DateTime value);
/// Reads "YYYY/MM/DD", "YYYY/MM/DD hh:mm[:ss]", "hh:mm[:ss]" (alone: on day 0, 1899-12-30), one or
/// two digits each for month, day and hour. False where it is no date; `value` then stays.
bool ReadDateTime(TextView from, DateTime& value);

class EventLoop {
public:
    virtual ~EventLoop() = default;

    /// Runs every handler that is due (input, timers, paint), then returns. May throw ProgramEnd.
    virtual void PumpEvents() = 0;

    /// Passes `milliseconds` without running handlers. 0 gives up the processor.
    virtual void Sleep(int milliseconds) = 0;

    /// Seconds since midnight, with at least millisecond resolution; falls back at midnight.
    virtual double Timer() = 0;

    virtual DateTime Now() = 0;

    /// Milliseconds that never fall back, for pacing and for the trace. 0 at program start.
    virtual double Milliseconds() = 0;

    /// Uniform random number, 0 <= r < 1.
    virtual double Rnd() = 0;

    /// Calls `tick` every `milliseconds` (at least 1) from now on, from inside a pump, until
    /// CancelTimer. Setting a timer that runs starts its interval anew. `key` names it.
    /// Missed ticks are not made up for: the next one comes a whole interval later.
    virtual void SetTimer(const void* key, int milliseconds, std::function<void()> tick) = 0;
    virtual void CancelTimer(const void* key) = 0;

    /// Waits, running handlers, until `done` answers true; asked after every handler. For modal
    /// windows and for the program's idle state. May throw ProgramEnd.
    virtual void RunUntil(const std::function<bool()>& done) = 0;
};

}  // namespace platform
