// What a script expects of the trace.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "adapters/robot/script.h"
#include "adapters/robot/trace_record.h"

namespace robot {

/// A script's expectations in their order. Slides and sounds are listed in the order in which they
/// come, each line goes on where the one before it ended; when the run has ended they must have
/// told all.
class TraceExpectations {
public:
    explicit TraceExpectations(const TraceRecord& record) : record_(record) {}

    /// Looks at what has happened so far. What is wrong, or empty when it is as expected.
    std::string Judge(const Action& action);
    /// At the end of the run: what was shown or heard and not listed. Empty when nothing was.
    std::string Untold() const;

private:
    /// Something that came at its time, as a script writes it.
    struct Moment {
        double milliseconds = 0;
        Text words;
        bool operator==(const Moment&) const = default;
    };
    struct Told {
        bool any = false;  // the script lists them
        size_t count = 0;
    };

    std::string JudgeEvent(const Action& action) const;
    static std::string JudgeMoments(const std::vector<Moment>& wanted,
                                    const std::vector<Moment>& came, Told& told);
    static std::string UntoldOf(const std::vector<Moment>& came, const Told& told,
                                std::string_view what);
    std::vector<Moment> Slides() const;
    std::vector<Moment> Sounds() const;

    const TraceRecord& record_;
    Told slides_, sounds_;
};

}  // namespace robot
