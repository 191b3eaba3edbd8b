// mutation_run COUNT FOLDER…: damages the sample pictures of some folders in many ways and has each
// decoded in the sandbox, by the real client and processes. The same damage in every run, and as
// much of it for every kind. Fails when a kind has no sample that decodes, when an answer does not
// come within the limit or many come near it, when an intact picture does not decode, or when
// anything is left behind. What crashes a decoder is no failure: the sandbox is there for it.
#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "adapters/sandbox/client.h"
#include "adapters/sandbox/kind.h"

namespace {

namespace fs = std::filesystem;
using sandbox::Kind;
using sandbox::Outcome;

constexpr int kLimitMilliseconds = 10000;
/// What the system needs beside the limit, on a busy machine.
constexpr int kGraceMilliseconds = 20000;
/// Answers that took longer than this are few: the whole run has a time, too.
constexpr int kSlowMilliseconds = 3000;
constexpr int kMostSlow = 12;
/// The only sample that is not to decode: a drawing that does not say where it is.
constexpr std::string_view kUnreadable = "eps_no_box.eps";
/// What is damaged lies in the headers mostly.
constexpr size_t kHeadBytes = 128;

struct Sample {
    std::string name;
    std::string bytes;
    Kind kind = Kind::None;
};

struct Random {
    uint32_t state = 2026;
    uint32_t Below(size_t bound) {
        state = state * 1664525u + 1013904223u;
        return static_cast<uint32_t>((uint64_t{state >> 8} * bound) >> 24);
    }
};

Kind KindOf(const std::string& bytes, const std::string& name) {
    const std::string_view all = bytes;
    if (name.ends_with(".svg")) {
        return Kind::Svg;
    }
    // Of the toolkit's own kinds, those that it does not read well.
    if (name.starts_with("tif_tiled_")) {
        return Kind::Tif;
    }
    if (name == "bmp_16.bmp" || name == "bmp_555.bmp" || name == "bmp_565.bmp") {
        return Kind::Bmp;
    }
    return sandbox::KindOf(all.substr(0, sandbox::kStartBytes),
                           all.substr(all.size() - std::min(all.size(), sandbox::kEndBytes)), name);
}

void ReadSamples(const fs::path& folder, std::vector<Sample>& samples) {
    for (const auto& entry : fs::directory_iterator(folder)) {
        if (!entry.is_regular_file()) {
            continue;
        }
        std::ifstream file(entry.path(), std::ios::binary);
        Sample sample{
            entry.path().filename(), {std::istreambuf_iterator<char>(file), {}}, Kind::None};
        sample.kind = KindOf(sample.bytes, sample.name);
        if (sample.kind != Kind::None) {
            samples.push_back(std::move(sample));
        }
    }
    std::sort(samples.begin(), samples.end(),
              [](const Sample& a, const Sample& b) { return a.name < b.name; });
}

size_t Place(const std::string& bytes, Random& random) {
    return random.Below(random.Below(2) == 0 ? std::min(bytes.size(), kHeadBytes) : bytes.size());
}

std::string Flipped(std::string bytes, Random& random) {
    for (uint32_t i = 0, count = 1 + random.Below(8); i < count; ++i) {
        char& byte = bytes[Place(bytes, random)];
        byte = static_cast<char>(byte ^ 1 << random.Below(8));
    }
    return bytes;
}

std::string Cut(const std::string& bytes, Random& random) {
    return bytes.substr(0, 1 + random.Below(bytes.size()));
}

/// Numbers as sizes are written, small or large end first, with what breaks arithmetic.
std::string BlownUp(std::string bytes, Random& random) {
    constexpr uint32_t kValues[] = {0xFFFFFFFF, 0x7FFFFFFF, 0x80000000, 0xFFFF, 0x7FFF,
                                    0x8000,     0x10000,    0,          30000,  0x4000};
    const uint32_t value = kValues[random.Below(std::size(kValues))];
    const bool wide = random.Below(2) == 0, largeFirst = random.Below(2) == 0;
    const size_t length = wide ? 4 : 2;
    const size_t at = Place(bytes, random);
    for (size_t i = 0; i < length && at + i < bytes.size(); ++i) {
        bytes[at + i] = static_cast<char>(value >> 8 * (largeFirst ? length - 1 - i : i));
    }
    return bytes;
}

/// The start of one and the end of another.
std::string Spliced(const std::string& first, const std::string& second, Random& random) {
    return Cut(first, random) + second.substr(random.Below(second.size()));
}

std::string Repeated(const std::string& bytes, Random& random) {
    const size_t at = random.Below(bytes.size());
    std::string result = bytes;
    for (uint32_t i = 0, count = 1 + random.Below(20); i < count; ++i) {
        result.insert(at, bytes.substr(at, 64));
    }
    return result;
}

std::string Damaged(const Sample& sample, const std::vector<Sample>& all, Random& random) {
    switch (random.Below(6)) {
        case 0:
        case 1:
            return Flipped(sample.bytes, random);
        case 2:
            return Cut(sample.bytes, random);
        case 3:
            return BlownUp(sample.bytes, random);
        case 4:
            return Spliced(sample.bytes, all[random.Below(all.size())].bytes, random);
        default:
            return Repeated(sample.bytes, random);
    }
}

sandbox::Descriptor FileOf(const std::string& bytes) {
    sandbox::Descriptor file(memfd_create("damaged", MFD_CLOEXEC));
    if (write(file.Get(), bytes.data(), bytes.size()) != static_cast<ssize_t>(bytes.size())) {
        std::perror("memfd");
        std::exit(2);
    }
    return file;
}

long Entries(const char* folder) {
    return std::distance(fs::directory_iterator(folder), fs::directory_iterator());
}

struct Run {
    bool Fail(const std::string& what) {
        std::printf("FAILED: %s\n", what.c_str());
        failed = true;
        return false;
    }

    /// Each intact sample still decodes as it did before any damage was done.
    void CheckIntact(const Sample& sample) {
        if (client.Decode(sample.kind, FileOf(sample.bytes).Get(), {}).outcome !=
            Outcome::Decoded) {
            Fail(sample.name + " no longer decodes");
        }
    }

    void DecodeDamaged(const std::string& name, Kind kind, const std::string& bytes) {
        const auto start = std::chrono::steady_clock::now();
        const sandbox::Result result = client.Decode(kind, FileOf(bytes).Get(), {});
        const double took =
            std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
                .count();
        longest = std::max(longest, took);
        ++outcomes[result.outcome];
        slow += took > kSlowMilliseconds;
        if (took > kLimitMilliseconds + kGraceMilliseconds) {
            Fail(name + " damaged: no answer within the limit");
        }
        if (result.pixels &&
            result.pixels->pixels.size() !=
                static_cast<size_t>(result.size.width) * static_cast<size_t>(result.size.height)) {
            Fail(name + " damaged: not as many pixels as its size says");
        }
        const bool served = result.outcome == Outcome::Decoded || result.outcome == Outcome::Failed;
        if (!served) {
            std::printf("%s damaged: outcome %d after %.0f ms\n", name.c_str(),
                        static_cast<int>(result.outcome), took);
        }
        if (result.outcome == Outcome::Lied || result.outcome == Outcome::Missing) {
            Fail(name + " damaged: no right answer");
        }
    }

    sandbox::Client client{{"", {}, kLimitMilliseconds}};
    std::map<Outcome, int> outcomes;
    double longest = 0;
    int slow = 0;
    bool failed = false;
};

using Samples = std::map<Kind, std::vector<Sample>>;

/// The samples by kind, all of which decode undamaged. A kind without any fails the run.
Samples Decodable(Run& run, const std::vector<Sample>& all) {
    Samples samples;
    for (const Sample& sample : all) {
        const auto outcome = run.client.Decode(sample.kind, FileOf(sample.bytes).Get(), {}).outcome;
        if (outcome == Outcome::Decoded) {
            samples[sample.kind].push_back(sample);
        } else if (sample.name != kUnreadable) {
            run.Fail(sample.name + " does not decode");
        }
    }
    for (int kind = 1; kind <= sandbox::kLastKind; ++kind) {
        if (!samples.contains(static_cast<Kind>(kind))) {
            run.Fail("no sample of kind " + std::to_string(kind));
        }
    }
    return samples;
}

/// The kinds in turn: each has its share, however many samples it has.
void RunAll(Run& run, const Samples& samples, const std::vector<Sample>& all, int count) {
    constexpr int kBatch = 50;
    Random random;
    auto kind = samples.begin();
    for (int i = 0; i < count && run.slow <= kMostSlow; ++i) {
        const Sample& sample = kind->second[random.Below(kind->second.size())];
        run.DecodeDamaged(sample.name, sample.kind, Damaged(sample, all, random));
        if (i % kBatch == kBatch - 1) {
            run.CheckIntact(kind->second[0]);
        }
        kind = std::next(kind) == samples.end() ? samples.begin() : std::next(kind);
    }
    if (run.slow > kMostSlow) {
        run.Fail(std::to_string(run.slow) + " answers took very long");
    }
}

}  // namespace

int main(int argc, char** argv) {
    const int count = argc > 2 ? std::atoi(argv[1]) : 0;
    if (count <= 0) {
        return 2;
    }
    const long descriptors = Entries("/proc/self/fd");
    bool failed = false;
    {
        Run run;
        std::vector<Sample> all;
        for (int i = 2; i < argc; ++i) {
            ReadSamples(argv[i], all);
        }
        const Samples samples = Decodable(run, all);
        if (samples.empty()) {
            return 1;
        }
        RunAll(run, samples, all, count);
        for (const auto& [kind, some] : samples) {
            for (const Sample& sample : some) {
                run.CheckIntact(sample);
            }
        }
        std::printf(
            "%d damaged files of %zu samples of %zu kinds: %d decoded, %d failed, %d died, "
            "%d late; %d slow, longest %.0f ms\n",
            count, all.size(), samples.size(), run.outcomes[Outcome::Decoded],
            run.outcomes[Outcome::Failed], run.outcomes[Outcome::Died], run.outcomes[Outcome::Late],
            run.slow, run.longest);
        failed = run.failed;
    }
    if (Entries("/proc/self/fd") != descriptors) {
        std::puts("FAILED: descriptors are left open");
        failed = true;
    }
    std::ifstream children("/proc/self/task/" + std::to_string(getpid()) + "/children");
    if (std::string child; children >> child) {
        std::printf("FAILED: process %s is left\n", child.c_str());
        failed = true;
    }
    return failed ? 1 : 0;
}
