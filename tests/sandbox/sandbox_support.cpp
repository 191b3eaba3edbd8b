#include "sandbox/sandbox_support.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/mman.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <thread>

namespace {

/// What the system says of a process.
struct Standing {
    int id = 0, parent = 0, group = 0;
    char state = 0;
};

void ForEachProcess(const std::function<void(const Standing&)>& see) {
    for (const auto& entry : std::filesystem::directory_iterator("/proc")) {
        const std::string name = entry.path().filename();
        if (name.find_first_not_of("0123456789") != std::string::npos) {
            continue;
        }
        if (FILE* file = std::fopen((entry.path() / "stat").c_str(), "r")) {
            Standing one;
            if (std::fscanf(file, "%d (%*[^)]) %c %d %d", &one.id, &one.state, &one.parent,
                            &one.group) == 4) {
                see(one);
            }
            std::fclose(file);
        }
    }
}

bool Comes(const std::function<bool()>& condition) {
    for (int i = 0; i < 20000; ++i) {
        if (condition()) {
            return true;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    return false;
}

}  // namespace

sandbox::Descriptor FileOf(const std::string& content) {
    sandbox::Descriptor file(memfd_create("file", MFD_CLOEXEC));
    EXPECT_EQ(write(file.Get(), content.data(), content.size()),
              static_cast<ssize_t>(content.size()));
    return file;
}

int OpenDescriptors() {
    int count = 0;
    for ([[maybe_unused]] const auto& entry :
         std::filesystem::directory_iterator("/proc/self/fd")) {
        ++count;
    }
    return count;
}

std::vector<pid_t> Children() {
    std::vector<pid_t> result;
    ForEachProcess([&](const Standing& one) {
        if (one.parent == getpid()) {
            result.push_back(one.id);
        }
    });
    return result;
}

bool IsGone(pid_t process) {
    return Comes([=] {
        bool found = false;
        ForEachProcess(
            [&](const Standing& one) { found = found || (one.id == process && one.state != 'Z'); });
        return !found;
    });
}

bool GroupIsGone(pid_t group) {
    return Comes([=] {
        bool found = false;
        ForEachProcess([&](const Standing& one) {
            found = found || (one.group == group && one.state != 'Z');
        });
        return !found;
    });
}
