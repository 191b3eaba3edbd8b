#include "adapters/decoder/ghostscript.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <chrono>
#include <cmath>
#include <ctime>
#include <string>
#include <utility>

#include "adapters/sandbox/transfer.h"

namespace decoder {

namespace {

using Bytes = std::span<const uint8_t>;
using platform::Size;
using sandbox::Descriptor;
using std::chrono::steady_clock;

/// Where the interpreter's messages go.
int Nowhere() {
    static const int fd = open("/dev/null", O_RDWR | O_CLOEXEC);
    return fd;
}

/// Without the envelope that holds a preview beside the drawing. Empty for a damaged envelope.
Bytes PostScriptOf(Bytes file) {
    constexpr std::array<uint8_t, 4> kEnvelope = {0xC5, 0xD0, 0xD3, 0xC6};
    constexpr size_t kHeadBytes = 30;
    if (file.size() < kHeadBytes || !std::equal(kEnvelope.begin(), kEnvelope.end(), file.begin())) {
        return file;
    }
    const auto little32 = [&](size_t at) {
        return size_t{file[at]} | size_t{file[at + 1]} << 8 | size_t{file[at + 2]} << 16 |
               size_t{file[at + 3]} << 24;
    };
    const size_t start = std::min(little32(4), file.size());
    return file.subspan(start, std::min(little32(8), file.size() - start));
}

std::optional<Box> BoxOf(Bytes postScript) {
    return BoundingBox({reinterpret_cast<const char*>(postScript.data()), postScript.size()});
}

/// In pixels of a point each.
Size OwnSize(const Box& box) {
    // What covers the smallest part of a pixel has it; a hundredth is the noise of the numbers.
    const auto pixels = [](double points) {
        return std::max(1, static_cast<int>(std::ceil(points - 0.01)));
    };
    return {pixels(box.right - box.left), pixels(box.top - box.bottom)};
}

std::string Decimal(double value) {
    std::array<char, 64> digits{};
    const auto [end, error] = std::to_chars(digits.data(), digits.data() + digits.size(), value,
                                            std::chars_format::fixed, 6);
    return error == std::errc{} ? std::string(digits.data(), end) : "0";
}

/// The box's lower left corner comes to the page's, and its size becomes `size`.
std::vector<std::string> CommandLine(const Box& box, Size size) {
    constexpr double kPointsPerInch = 72;
    const double across = kPointsPerInch * size.width / (box.right - box.left);
    const double down = kPointsPerInch * size.height / (box.top - box.bottom);
    return {"gs", "-q", "-dSAFER", "-dBATCH", "-dNOPAUSE", "-dNOPROMPT", "-sDEVICE=ppmraw",
            "-dTextAlphaBits=4", "-dGraphicsAlphaBits=4", "-dFIXEDMEDIA",
            // In memory whole, as there is no place for temporary files.
            "-dMaxBitmap=1000000000",
            // Only the picture comes out of the standard output.
            "-sstdout=%stderr", "-sOutputFile=%stdout",
            "-g" + std::to_string(size.width) + "x" + std::to_string(size.height),
            "-r" + Decimal(across) + "x" + Decimal(down), "-c",
            "<</Install {" + Decimal(-box.left) + " " + Decimal(-box.bottom) +
                " translate}>> setpagedevice",
            "-f", "-",
            // For drawings that leave showing the page to the one who shows them.
            "-c", "showpage"};
}

/// -1 where there is no interpreter. The child stays in the caller's group, so that who ends that
/// ends it too.
pid_t Start(std::vector<std::string> words, int input, int output) {
    std::vector<char*> arguments;
    for (std::string& word : words) {
        arguments.push_back(word.data());
    }
    arguments.push_back(nullptr);
    // Temporary files are the only ones that a drawing may write: there is no place for them.
    std::array<std::string, 3> settings = {"PATH=/usr/bin:/bin", "LC_ALL=C",
                                           "TMPDIR=/dev/null/none"};
    std::array<char*, 4> environment = {settings[0].data(), settings[1].data(), settings[2].data(),
                                        nullptr};
    posix_spawn_file_actions_t actions;
    if (posix_spawn_file_actions_init(&actions) != 0) {
        return -1;
    }
    bool started = true;
    for (const auto& [from, to] :
         {std::pair{input, STDIN_FILENO}, {output, STDOUT_FILENO}, {Nowhere(), STDERR_FILENO}}) {
        started = started && posix_spawn_file_actions_adddup2(&actions, from, to) == 0;
    }
    pid_t pid = -1;
    started = started && posix_spawn(&pid, "/usr/bin/gs", &actions, nullptr, arguments.data(),
                                     environment.data()) == 0;
    posix_spawn_file_actions_destroy(&actions);
    return started ? pid : -1;
}

/// The lines before the pixels, a comment among them.
size_t HeadEnd(Bytes output, Size size) {
    const std::string_view text(reinterpret_cast<const char*>(output.data()),
                                std::min<size_t>(output.size(), 1024));
    const std::string last =
        "\n" + std::to_string(size.width) + " " + std::to_string(size.height) + "\n255\n";
    const size_t at = text.starts_with("P6") ? text.find(last) : std::string_view::npos;
    return at == std::string_view::npos ? 0 : at + last.size();
}

constexpr size_t kMostHead = 256;

size_t PixelBytes(Size size) {
    return 3 * static_cast<size_t>(size.width) * static_cast<size_t>(size.height);
}

/// Reads the first page into `data`, which has room for it and its head and is shortened to what
/// came: less when the other side closes or time is up.
void ReadPage(int fd, Size size, std::chrono::milliseconds timeLimit, std::vector<uint8_t>& data) {
    const auto deadline = steady_clock::now() + timeLimit;
    const size_t pixelBytes = PixelBytes(size);
    size_t filled = 0;
    size_t head = 0;
    while (filled < (head == 0 ? data.size() : head + pixelBytes)) {
        const auto left =
            std::chrono::duration_cast<std::chrono::milliseconds>(deadline - steady_clock::now());
        pollfd waiting = {fd, POLLIN, 0};
        const int ready = poll(&waiting, 1, static_cast<int>(std::max<int64_t>(left.count(), 0)));
        if (ready < 0 && errno == EINTR) {
            continue;
        }
        const ssize_t count = ready > 0 ? read(fd, data.data() + filled, data.size() - filled) : 0;
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count <= 0) {
            break;
        }
        filled += static_cast<size_t>(count);
        head = head == 0 ? HeadEnd(Bytes(data).first(filled), size) : head;
    }
    data.resize(filled);
}

/// The interpreter that was started last and has not been seen to end; -1 for none.
pid_t running = -1;

/// It mostly ends by itself after its page, or when its output is no longer read.
void AwaitEnd() {
    constexpr int kTurns = 50;
    constexpr timespec kTurn{0, 1000000};
    for (int i = 0; i < kTurns && InterpreterLives(); ++i) {
        nanosleep(&kTurn, nullptr);
    }
}

std::optional<Picture> PictureOf(Bytes output, Size size) {
    const size_t head = HeadEnd(output, size);
    const size_t count = static_cast<size_t>(size.width) * static_cast<size_t>(size.height);
    if (head == 0 || output.size() - head < 3 * count) {
        return std::nullopt;
    }
    Picture picture{size, 24, {}};
    picture.pixels.resize(count);
    const uint8_t* from = output.data() + head;
    for (uint32_t& pixel : picture.pixels) {
        pixel = 0xFF000000u | uint32_t{from[0]} << 16 | uint32_t{from[1]} << 8 | from[2];
        from += 3;
    }
    return picture;
}

}  // namespace

void WarmUpGhostscript() {
    Nowhere();
}

bool InterpreterLives() {
    if (running > 0 && waitpid(running, nullptr, WNOHANG) != 0) {
        running = -1;
    }
    return running > 0;
}

std::optional<Size> MeasurePostScript(Bytes file) {
    const std::optional<Box> box = BoxOf(PostScriptOf(file));
    return box ? std::optional(OwnSize(*box)) : std::nullopt;
}

std::optional<Picture> DrawPostScript(Bytes file, Size wanted,
                                      std::chrono::milliseconds timeLimit) {
    const Bytes postScript = PostScriptOf(file);
    const std::optional<Box> box = BoxOf(postScript);
    if (!box) {
        return std::nullopt;
    }
    const Size size = wanted.Empty() ? OwnSize(*box) : wanted;
    if (int64_t{size.width} * size.height > kMostPixels) {
        return std::nullopt;
    }
    const Descriptor input = sandbox::MakeMemory("drawing", postScript);
    std::array<int, 2> ends = {-1, -1};
    if (input.Get() < 0 || Nowhere() < 0 || pipe2(ends.data(), O_CLOEXEC) != 0) {
        return std::nullopt;
    }
    Descriptor result(ends[0]);
    Descriptor output(ends[1]);
    // Allocated before the interpreter starts: if this failed later, nothing would wait for it.
    std::vector<uint8_t> read(PixelBytes(size) + kMostHead);
    running = Start(CommandLine(*box, size), input.Get(), output.Get());
    output.Close();
    if (running < 0) {
        return std::nullopt;
    }
    ReadPage(result.Get(), size, timeLimit, read);
    // Under the process's limits no single process can be killed: one that goes on is left to the
    // caller.
    result.Close();
    kill(running, SIGKILL);
    AwaitEnd();
    return PictureOf(read, size);
}

}  // namespace decoder
