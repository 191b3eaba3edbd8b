#include "adapters/confine/file_rules.h"

#include <fcntl.h>
#include <linux/landlock.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cstdlib>
#include <span>
#include <string>

namespace confine {

using sandbox::Descriptor;

namespace {

// Rights that came with later versions of the kernel than the system's headers know.
constexpr uint64_t kTruncate = uint64_t{1} << 14;       // 3
constexpr uint64_t kDeviceCommand = uint64_t{1} << 15;  // 5
constexpr uint64_t kFirstRights = (uint64_t{1} << 13) - 1;
constexpr uint64_t kNetworkRights = 3;        // 4: bind and connect
constexpr uint64_t kScopeSocketsSignals = 3;  // 6: nothing goes to processes outside

/// As the kernel has it from version 6 on; before, it takes the beginning.
struct Ruleset {
    uint64_t files = 0, network = 0, scoped = 0;
};

constexpr uint64_t kReadFile = LANDLOCK_ACCESS_FS_READ_FILE;
constexpr uint64_t kRead = kReadFile | LANDLOCK_ACCESS_FS_READ_DIR;
constexpr uint64_t kRun = kReadFile | LANDLOCK_ACCESS_FS_EXECUTE;

struct Rule {
    const char* path;
    uint64_t rights;
};

/// What Ghostscript needs. Paths that a system lacks are left out, here and below.
constexpr Rule kEpsRules[] = {
    {"/usr/bin/gs", kRun},
    {"/lib64/ld-linux-x86-64.so.2", kRun},
    {"/lib/ld-linux-aarch64.so.1", kRun},
    {"/usr/share/ghostscript", kRead},
    {"/var/lib/ghostscript", kRead},
    {"/usr/share/poppler", kRead},
    {"/usr/share/color", kRead},
    {"/etc/papersize", kReadFile},
    {"/etc/paperspecs", kReadFile},
    {"/dev/null", kReadFile},
    {"/dev/urandom", kReadFile},
};

/// Libraries and fonts, for all drawings.
constexpr Rule kDrawingRules[] = {
    {"/etc/ld.so.cache", kReadFile},
    {"/usr/lib", kRead},
    {"/lib", kRead},
    {"/lib64", kRead},
    {"/usr/share/fonts", kRead},
    {"/usr/local/share/fonts", kRead},
    {"/usr/share/fontconfig", kRead},
    {"/etc/fonts", kRead},
    {"/var/cache/fontconfig", kRead},
};

/// The user's own fonts, below the home folder.
constexpr Rule kHomeRules[] = {
    {"/.fonts", kRead},
    {"/.local/share/fonts", kRead},
    {"/.config/fontconfig", kRead},
    {"/.cache/fontconfig", kRead},
};

long KernelVersion() {
    return syscall(SYS_landlock_create_ruleset, nullptr, 0, LANDLOCK_CREATE_RULESET_VERSION);
}

Descriptor MakeRuleset(long version) {
    Ruleset rules;
    rules.files = kFirstRights | (version >= 2 ? LANDLOCK_ACCESS_FS_REFER : 0) |
                  (version >= 3 ? kTruncate : 0) | (version >= 5 ? kDeviceCommand : 0);
    rules.network = version >= 4 ? kNetworkRights : 0;
    rules.scoped = version >= 6 ? kScopeSocketsSignals : 0;
    const size_t size = version >= 6 ? 24 : version >= 4 ? 16 : 8;
    return Descriptor(static_cast<int>(syscall(SYS_landlock_create_ruleset, &rules, size, 0)));
}

bool Add(const Descriptor& ruleset, const std::string& path, uint64_t rights) {
    const Descriptor place(open(path.c_str(), O_PATH | O_CLOEXEC));
    if (!place.Valid()) {
        return true;
    }
    landlock_path_beneath_attr beneath{};
    beneath.allowed_access = rights;
    beneath.parent_fd = place.Get();
    return syscall(SYS_landlock_add_rule, ruleset.Get(), LANDLOCK_RULE_PATH_BENEATH, &beneath, 0) ==
           0;
}

bool Add(const Descriptor& ruleset, const std::string& folder, std::span<const Rule> rules) {
    bool done = true;
    for (const Rule& rule : rules) {
        done = done && Add(ruleset, folder + rule.path, rule.rights);
    }
    return done;
}

bool AddRole(const Descriptor& ruleset, sandbox::Role role) {
    switch (role) {
        case sandbox::Role::Raster:
            return true;
        case sandbox::Role::Eps:
            return Add(ruleset, "", kDrawingRules) && Add(ruleset, "", kEpsRules);
        case sandbox::Role::Svg: {
            const char* home = std::getenv("HOME");
            return Add(ruleset, "", kDrawingRules) &&
                   (home == nullptr || Add(ruleset, home, kHomeRules));
        }
    }
    return false;
}

}  // namespace

bool ConfineFiles(sandbox::Role role) {
    const long version = KernelVersion();
    if (version < 1) {
        return true;
    }
    const Descriptor ruleset = MakeRuleset(version);
    return ruleset.Valid() && AddRole(ruleset, role) &&
           syscall(SYS_landlock_restrict_self, ruleset.Get(), 0) == 0;
}

}  // namespace confine
