// Signals that ask the program to end: it ends in order, as if its main window had been closed.
#pragma once

#include "adapters/posix/descriptor.h"

namespace posix_adapter {

/// While one lives SIGTERM, SIGINT and SIGHUP no longer end the process but make a descriptor
/// readable. One that was ignored at the start (nohup, a job in the background) stays ignored.
/// SIGPIPE is passed over: who reads the program's words may go away. Started programs get the
/// usual signals. At most one at a time.
class EndSignals {
public:
    EndSignals();
    /// From now on the signals end the process again.
    ~EndSignals();
    EndSignals(const EndSignals&) = delete;
    EndSignals& operator=(const EndSignals&) = delete;

    /// Readable as soon as a signal came; -1 where the system gave none.
    int Readable() const { return reading_.Get(); }
    /// Takes note of the signals that came.
    void Drain();

private:
    Descriptor reading_, writing_;
};

}  // namespace posix_adapter
