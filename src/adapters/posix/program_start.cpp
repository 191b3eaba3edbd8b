#include "adapters/posix/program_start.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <fstream>
#include <sstream>
#include <vector>

#include "adapters/posix/descriptor.h"
#include "adapters/posix/posix_files.h"
#include "adapters/posix/settings_file.h"

namespace posix_adapter {

namespace {

constexpr const char* kAlwaysAllowed = "programs.conf";

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

/// Of one document, one program and its arguments, which hold no quotes.
std::string LineOf(const FoundProgram& program, TextView document) {
    std::string line = text::ToUtf8(document) + '\t' + program.path + '\t';
    for (const std::string& argument : program.arguments) {
        line += '"' + argument + '"';
    }
    return line;
}

platform::ProgramQuestion QuestionOf(const FoundProgram& program) {
    platform::ProgramQuestion question;
    question.program = text::FromUtf8(program.path);
    for (const std::string& argument : program.arguments) {
        question.arguments.push_back(text::FromUtf8(argument));
    }
    return question;
}

}  // namespace

bool StartProgram(const FoundProgram& program) {
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0) {
        return false;
    }
    const Descriptor reading(ends[0]);
    Descriptor writing(ends[1]);
    std::vector<char*> arguments{const_cast<char*>(program.path.c_str())};
    for (const std::string& argument : program.arguments) {
        arguments.push_back(const_cast<char*>(argument.c_str()));
    }
    arguments.push_back(nullptr);
    // A grandchild belongs to nobody here, so that no zombie stays.
    const pid_t child = fork();
    if (child == 0) {
        setsid();
        if (const pid_t second = fork(); second != 0) {
            _exit(second > 0 ? 0 : 1);
        }
        BecomeProgram(program.path.c_str(), arguments.data(), writing.Get());
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

platform::ProgramAnswer ProgramPermission::Allows(const FoundProgram& program, TextView document,
                                                  const Ask& ask) {
    using platform::ProgramAnswer;
    constexpr int kMostQuestions = 3;  // in a row, before there are ways out
    const std::string rule = UserSetting(folder_, "programs");
    const std::string line = LineOf(program, document);
    if (rule == "allow" || allowedForShow_.contains(line) ||
        (rule != "deny" && AlwaysAllowed(line))) {
        return ProgramAnswer::Yes;
    }
    if (rule == "deny" || noMore_ || !ask) {
        return ProgramAnswer::No;
    }
    platform::ProgramQuestion question = QuestionOf(program);
    question.manyAsked = questions_ >= kMostQuestions;
    ++questions_;
    const ProgramAnswer answer = ask(question);
    switch (answer) {
        case ProgramAnswer::No:
        case ProgramAnswer::Yes:
            return answer;
        case ProgramAnswer::Always:
            if (!document.empty()) {
                Remember(line);
            }
            [[fallthrough]];
        case ProgramAnswer::ForShow:
            allowedForShow_.insert(line);
            questions_ = 0;
            return ProgramAnswer::Yes;
        case ProgramAnswer::NoMore:
            noMore_ = true;
            return ProgramAnswer::No;
        case ProgramAnswer::EndShow:
            noMore_ = true;  // until it is over
            return answer;
    }
    return ProgramAnswer::No;
}

void ProgramPermission::ForgetShow() {
    allowedForShow_.clear();
    questions_ = 0;
    noMore_ = false;
}

bool ProgramPermission::AlwaysAllowed(const std::string& line) const {
    std::ifstream allowed(folder_ + kAlwaysAllowed);
    for (std::string known; std::getline(allowed, known);) {
        if (known == line) {
            return true;
        }
    }
    return false;
}

void ProgramPermission::Remember(const std::string& line) {
    // Names with these would allow something else, too.
    if (line.find('\n') != std::string::npos || std::count(line.begin(), line.end(), '\t') != 2) {
        return;
    }
    const std::string file = folder_ + kAlwaysAllowed;
    std::ifstream before(file, std::ios::binary);
    std::ostringstream read;
    read << before.rdbuf();
    std::string content = read.str();
    struct stat status {};
    if (stat(file.c_str(), &status) == 0 && content.size() != static_cast<size_t>(status.st_size)) {
        return;  // what is there and cannot be read is not replaced
    }
    content += (content.empty() || content.ends_with('\n') ? "" : "\n") + line + "\n";
    ReplaceFile(file, content);
}

}  // namespace posix_adapter
