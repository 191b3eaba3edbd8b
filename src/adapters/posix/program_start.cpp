#include "adapters/posix/program_start.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <fstream>

#include "adapters/posix/descriptor.h"
#include "adapters/posix/posix_files.h"
#include "adapters/posix/settings_file.h"

namespace posix_adapter {

namespace {

constexpr const char* kAlwaysAllowed = "programs.conf";

bool CanRun(const std::string& path) {
    return access(path.c_str(), X_OK) == 0;
}

/// Empty when there is no such program.
std::string InSearchPath(const std::string& name) {
    if (name.find('/') != std::string::npos) {
        return name;
    }
    const char* value = std::getenv("PATH");
    const std::string folders = value != nullptr ? value : "/usr/local/bin:/usr/bin:/bin";
    for (size_t at = 0; at <= folders.size();) {
        const size_t end = std::min(folders.find(':', at), folders.size());
        const std::string path = folders.substr(at, end - at) + "/" + name;
        // An empty entry would mean the current folder: nobody's choice here.
        if (end > at && CanRun(path)) {
            return path;
        }
        at = end + 1;
    }
    return {};
}

/// In the second child: only calls that are safe after a fork of a program with threads.
[[noreturn]] void BecomeProgram(const char* path, char* const* arguments, int report) {
    sigset_t none;
    sigemptyset(&none);
    sigprocmask(SIG_SETMASK, &none, nullptr);
    const int nothing = open("/dev/null", O_RDWR);
    if (nothing >= 0) {
        dup2(nothing, STDIN_FILENO);
    }
    execv(path, arguments);
    const int error = errno;
    [[maybe_unused]] const ssize_t told = write(report, &error, sizeof error);
    _exit(127);
}

std::string KeyOf(TextView commandLine, TextView document) {
    return text::ToUtf8(document) + '\t' + text::ToUtf8(commandLine);
}

}  // namespace

std::vector<std::string> SplitCommandLine(const std::string& commandLine) {
    std::vector<std::string> words;
    bool inWord = false;
    bool quoted = false;
    for (const char c : commandLine) {
        if (c == ' ' && !quoted) {
            inWord = false;
            continue;
        }
        if (!inWord) {
            words.emplace_back();
            inWord = true;
        }
        if (c == '"') {
            quoted = !quoted;
        } else {
            words.back() += c;
        }
    }
    return words;
}

bool StartProgram(const std::vector<std::string>& words) {
    const std::string path = words.empty() ? std::string() : InSearchPath(words.front());
    int ends[2];
    if (path.empty() || pipe2(ends, O_CLOEXEC) != 0) {
        return false;
    }
    const Descriptor reading(ends[0]);
    Descriptor writing(ends[1]);
    std::vector<char*> arguments;
    for (const std::string& word : words) {
        arguments.push_back(const_cast<char*>(word.c_str()));
    }
    arguments.push_back(nullptr);
    // A grandchild belongs to nobody here, so that no zombie stays.
    const pid_t child = fork();
    if (child == 0) {
        setsid();
        if (const pid_t program = fork(); program != 0) {
            _exit(program > 0 ? 0 : 1);
        }
        BecomeProgram(path.c_str(), arguments.data(), writing.Get());
    }
    writing.Close();
    int status = 1;
    while (child > 0 && waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
    if (status != 0) {
        return false;
    }
    // The pipe closes by itself when the program has begun; otherwise the error stands in it.
    int error = 0;
    ssize_t got = 0;
    do {
        got = read(reading.Get(), &error, sizeof error);
    } while (got < 0 && errno == EINTR);
    return got == 0;
}

bool ProgramPermission::Allows(TextView commandLine, TextView document,
                               const std::function<platform::ProgramAnswer(TextView)>& ask) {
    const std::string rule = UserSetting(folder_, "programs");
    if (rule == "allow" || rule == "deny") {
        return rule == "allow";
    }
    const std::string key = KeyOf(commandLine, document);
    std::ifstream allowed(folder_ + kAlwaysAllowed);
    for (std::string line; std::getline(allowed, line);) {
        if (line == key) {
            return true;
        }
    }
    if (const auto known = answered_.find(key); known != answered_.end()) {
        return known->second;
    }
    if (!ask) {
        return false;
    }
    const platform::ProgramAnswer answer = ask(commandLine);
    if (answer == platform::ProgramAnswer::Always && !document.empty()) {
        Remember(key);
    }
    return answered_[key] = answer != platform::ProgramAnswer::No;
}

void ProgramPermission::Remember(const std::string& line) {
    // Names with these would allow something else, too.
    if (line.find('\n') != std::string::npos || std::count(line.begin(), line.end(), '\t') != 1) {
        return;
    }
    std::ifstream before(folder_ + kAlwaysAllowed, std::ios::binary);
    std::string content{std::istreambuf_iterator<char>(before), std::istreambuf_iterator<char>()};
    content += (content.empty() || content.ends_with('\n') ? "" : "\n") + line + "\n";
    ReplaceFile(folder_ + kAlwaysAllowed, content);
}

}  // namespace posix_adapter
