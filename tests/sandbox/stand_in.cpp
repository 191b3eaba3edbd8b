// Stands in for the decoder's process, well-behaved or not: its second argument says how. A picture
// it answers with is 2 × 1 pixels.
#include <fcntl.h>
#include <signal.h>
#include <sys/mman.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cstring>
#include <string>
#include <thread>

#include "adapters/confine/limits.h"
#include "adapters/confine/serve.h"
#include "adapters/sandbox/process.h"
#include "adapters/sandbox/transfer.h"

namespace {

using sandbox::Answer;
using sandbox::Descriptor;
using sandbox::kProcessSocket;
using sandbox::Request;

constexpr std::array<uint32_t, 2> kPixels = {0xFF102030u, 0x00405060u};

Request NextRequest() {
    const sandbox::Received received = sandbox::Receive(kProcessSocket, -1);
    const auto request = sandbox::ParseRequest(received.Bytes(), received.descriptors.size());
    if (!request) {
        _exit(0);
    }
    return *request;
}

Answer GoodAnswer(const Request& request) {
    Answer answer;
    answer.serial = request.serial;
    answer.what = request.task == sandbox::kMeasure ? sandbox::kMeasured : sandbox::kDecoded;
    answer.bitsPerPixel = 8;
    answer.width = 2;
    answer.height = 1;
    return answer;
}

void SendAnswer(const Answer& answer) {
    const Descriptor pixels = sandbox::MakePixels(kPixels);
    sandbox::Send(kProcessSocket, sandbox::BytesOf(answer), pixels.Get());
}

/// Any bytes with any number of descriptors.
void SendRaw(const void* bytes, size_t size, std::initializer_list<int> descriptors) {
    alignas(cmsghdr) std::array<uint8_t, 1024> control{};
    iovec part{const_cast<void*>(bytes), size};
    msghdr header{};
    header.msg_iov = &part;
    header.msg_iovlen = 1;
    if (descriptors.size() != 0) {
        header.msg_control = control.data();
        header.msg_controllen = CMSG_SPACE(descriptors.size() * sizeof(int));
        cmsghdr* rights = CMSG_FIRSTHDR(&header);
        rights->cmsg_level = SOL_SOCKET;
        rights->cmsg_type = SCM_RIGHTS;
        rights->cmsg_len = CMSG_LEN(descriptors.size() * sizeof(int));
        std::memcpy(CMSG_DATA(rights), descriptors.begin(), descriptors.size() * sizeof(int));
    }
    sendmsg(kProcessSocket, &header, MSG_NOSIGNAL);
}

void AnswerWith(const std::string& manner, const Request& request) {
    Answer answer = GoodAnswer(request);
    const Descriptor pixels = sandbox::MakePixels(kPixels);
    const int memory = pixels.Get();
    if (manner == "no descriptor") {
        SendRaw(&answer, sizeof answer, {});
    } else if (manner == "two descriptors") {
        SendRaw(&answer, sizeof answer, {memory, memory});
    } else if (manner == "many descriptors") {
        SendRaw(&answer, sizeof answer,
                {memory, memory, memory, memory, memory, memory, memory, memory, memory, memory,
                 memory, memory, memory, memory, memory, memory, memory, memory, memory, memory});
    } else if (manner == "pipe") {
        int ends[2];
        SendRaw(&answer, sizeof answer, {pipe(ends) == 0 ? ends[0] : -1});
    } else if (manner == "plain file") {
        const std::string name = "/tmp/parapico-stand-in-" + std::to_string(getpid());
        const Descriptor file(open(name.c_str(), O_CREAT | O_RDWR | O_EXCL, 0600));
        unlink(name.c_str());
        const bool written = write(file.Get(), kPixels.data(), 8) == 8;
        SendRaw(&answer, sizeof answer, {written ? file.Get() : -1});
    } else if (manner == "garbage") {
        SendRaw("This is no answer.", 18, {memory});
    } else if (manner == "short") {
        SendRaw(&answer, sizeof answer - 1, {memory});
    } else if (manner == "long") {
        const std::array<char, 300> bytes{};
        SendRaw(bytes.data(), bytes.size(), {memory});
    } else if (manner == "twice") {
        SendAnswer(answer);
        SendAnswer(answer);
    } else if (manner == "half, then crash") {
        SendRaw(&answer, sizeof answer / 2, {});
        raise(SIGKILL);
    } else {
        if (manner == "other serial") {
            --answer.serial;
        } else if (manner == "larger") {
            answer.width = 100;
        } else if (manner == "smaller") {
            answer.width = 1;
        } else if (manner == "beyond the bound") {
            answer.width = answer.height = 40000;
        } else if (manner == "negative") {
            answer.width = answer.height = -1;
        } else if (manner == "odd depth") {
            answer.bitsPerPixel = 7;
        }
        SendAnswer(answer);
    }
}

/// The memory changes its size all the time while the program reads it.
void Shrinking(const Request& request) {
    constexpr int kSide = 2000;
    Answer answer = GoodAnswer(request);
    answer.width = answer.height = kSide;
    const Descriptor memory(memfd_create("shrinking", MFD_CLOEXEC | MFD_ALLOW_SEALING));
    bool going = ftruncate(memory.Get(), off_t{kSide} * kSide * 4) == 0;
    SendRaw(&answer, sizeof answer, {memory.Get()});
    for (int i = 0; going && i < 2000; ++i) {
        going = ftruncate(memory.Get(), 0) == 0 &&
                ftruncate(memory.Get(), off_t{kSide} * kSide * 4) == 0;
    }
}

/// Starts another process, tells its number in a pixel, and crashes on the second picture.
void WithChild() {
    const Answer answer = GoodAnswer(NextRequest());
    const pid_t child = fork();
    if (child == 0) {
        // A helper knows nothing of the socket.
        close(kProcessSocket);
        while (true) {
            pause();
        }
    }
    const std::array<uint32_t, 2> pixels = {static_cast<uint32_t>(child), 0};
    const Descriptor memory = sandbox::MakePixels(pixels);
    sandbox::Send(kProcessSocket, sandbox::BytesOf(answer), memory.Get());
    NextRequest();
    raise(SIGKILL);
}

constexpr size_t kMiB = size_t{1} << 20;

/// A program that goes on after its picture.
pid_t helper = -1;

/// The real frame around a decoder that does what the file says.
std::optional<sandbox::Picture> DecodeWord(sandbox::Kind, std::span<const uint8_t> file,
                                           platform::Size wanted) {
    static uint32_t decoded = 0;
    ++decoded;
    std::string word(file.begin(), file.end());
    if (word.starts_with("8BPS")) {
        word.erase(0, 4);  // what makes it a picture's file
    }
    if (word == "keep resident" || word == "keep addresses" || word == "keep little") {
        const size_t bytes = word == "keep resident"    ? confine::kMostKept + kMiB
                             : word == "keep addresses" ? confine::kMostKeptAddresses + kMiB
                                                        : confine::kMostKept / 4;
        void* const kept =
            mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
        if (kept == MAP_FAILED) {
            return std::nullopt;
        }
        if (word != "keep addresses") {
            std::memset(kept, 1, bytes);
        }
    } else if (word == "helper") {
        helper = fork();
        if (helper == 0) {
            while (true) {
                pause();
            }
        }
        return sandbox::Picture{{1, 1}, 24, {static_cast<uint32_t>(helper)}};
    } else if (word == "spin") {
        confine::AllowProcessorTime(1);
        while (true) {
            static volatile unsigned turns = 0;
            turns = turns + 1;
        }
    } else if (word == "crash") {
        raise(SIGSEGV);
    } else if (word == "throw") {
        throw std::runtime_error("damaged");
    } else if (word == "too few pixels") {
        return sandbox::Picture{{100, 100}, 24, {1, 2, 3}};
    } else if (word == "open") {
        const bool opened = open("/etc/passwd", O_RDONLY) >= 0;
        return sandbox::Picture{{1, 1}, 24, {opened ? 1u : 0u}};
    } else if (word == "count") {
        return sandbox::Picture{{1, 1}, 16, {decoded}};
    } else if (word == "wanted") {
        return sandbox::Picture{
            {1, 1}, 24, {static_cast<uint32_t>(wanted.width << 8 | wanted.height)}};
    } else if (word != "picture") {
        return std::nullopt;
    }
    return sandbox::Picture{{2, 1}, 4, {kPixels.begin(), kPixels.end()}};
}

/// Two numbers, in words.
std::optional<platform::Size> MeasureWord(sandbox::Kind, std::span<const uint8_t> file) {
    const std::string word(file.begin(), file.end());
    platform::Size size;
    return std::sscanf(word.c_str(), "%dx%d", &size.width, &size.height) == 2 ? std::optional(size)
                                                                              : std::nullopt;
}

int Limited(const std::string& roleName) {
    const sandbox::Role role = roleName == "eps"   ? sandbox::Role::Eps
                               : roleName == "svg" ? sandbox::Role::Svg
                                                   : sandbox::Role::Raster;
    confine::FollowProgram(role);
    confine::WatchMemory();
    return confine::LimitProcess(role)
               ? confine::Serve(kProcessSocket,
                                {role, {}, DecodeWord, MeasureWord, [] { return helper > 0; }})
               : 1;
}

}  // namespace

int main(int, char** argv) {
    const std::string manner = argv[2];
    if (manner == "limited") {
        _exit(Limited(argv[1]));
    }
    if (manner == "ends at once") {
        _exit(0);
    }
    if (manner == "with child") {
        WithChild();
    }
    while (true) {
        const Request request = NextRequest();
        if (manner == "crash") {
            raise(SIGSEGV);
        } else if (manner == "hang") {
            pause();
        } else if (manner == "close") {
            close(kProcessSocket);
            pause();
        } else if (manner == "shrinking") {
            Shrinking(request);
        } else {
            AnswerWith(manner, request);
        }
    }
}
