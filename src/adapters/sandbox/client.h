// The program's side of the sandbox: has pictures decoded that the toolkit does not read.
#pragma once

#include <atomic>
#include <optional>
#include <string>
#include <vector>

#include "adapters/sandbox/kind.h"
#include "adapters/sandbox/process.h"
#include "platform/imaging.h"

namespace sandbox {

struct ClientOptions {
    std::string program;                 // empty: each role's own
    std::vector<std::string> arguments;  // after the role's name
    /// For one picture, the start of the process included. Measuring has a third of it.
    int limitMilliseconds = 10000;
    /// Larger pictures are not taken over.
    int64_t mostPixels = kMostPixels;
};

/// What became of a picture. All but Decoded mean an unreadable file.
enum class Outcome {
    Decoded,  // or measured
    Failed,   // the decoder says so
    Died,     // its process crashed, ran out of time or memory, or closed
    Late,     // no answer within the limit
    Lied,     // an answer that is none
    Missing,  // no process can be started; standard error says so once for each executable
    Large,    // more than mostPixels
};

struct Result {
    Outcome outcome = Outcome::Missing;
    platform::BitmapPtr pixels;  // opaque; null unless Decoded
    int bitsPerPixel = 0;        // of the file: 1, 4, 8, 16, 24, 32, 48, 64
    platform::Size size;         // of the pixels, or of the drawing that was measured
};

/// Keeps one process for each role, started on first need, and again after one that did not serve.
/// Serves one thread; another thread has a client of its own. Its processes end with it, and with
/// the thread that it served.
class Client {
public:
    /// `giveUp`, where there is one, may be set by another thread: what is being waited for then
    /// comes late at once. It must outlive the client.
    explicit Client(ClientOptions options = {}, const std::atomic<bool>* giveUp = nullptr);
    ~Client();
    Client(const Client&) = delete;
    Client& operator=(const Client&) = delete;

    /// Decodes an open plain file, whatever its offset, which stays. `wanted` is for drawings only:
    /// the size to draw at, empty for the drawing's own. Waits for the limit at most. Never throws
    /// and raises no signal.
    Result Decode(Kind kind, int file, platform::Size wanted);

    /// The same for a drawing's own size (Svg); no pixels.
    Result Measure(Kind kind, int file);

private:
    Result Ask(Request& request, int file);
    Received Wait(int socket, int milliseconds) const;
    Result AnswerTo(const Request& request, int file);
    bool SendRequest(Role role, const Request& request, int file);
    void Forget(Role role);

    ClientOptions options_;
    const std::atomic<bool>* giveUp_;
    std::optional<Process> processes_[kRoles];
    uint32_t serial_ = 0;
};

}  // namespace sandbox
