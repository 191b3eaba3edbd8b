// From a path of a document to the file on this machine.
#pragma once

#include <sys/stat.h>

#include <chrono>
#include <map>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "text/text.h"

namespace posix_adapter {

/// Text with letters of one case only: Latin (narrow, full-width, with accents), Greek, Cyrillic
/// and Roman numerals.
Text FoldCase(TextView value);

class PathFinder {
public:
    /// `programFolder`: native path of the folder that may hold the drive table "drives.conf".
    explicit PathFinder(std::string programFolder);

    /// Native path of what exists under this path; nullopt when nothing does.
    std::optional<std::string> Find(TextView path);

    /// As Find; parts from the first missing one on are appended as they are written. Empty
    /// when the path has no place on this machine (a drive that the table lacks).
    std::string Target(TextView path);

    /// The program made this file in a folder that had last changed at `before`. What is known of
    /// the folder then stays of use for a second, so that many files can be made in it without
    /// reading it each time; what others put there meanwhile is found under its exact name only.
    void Added(const std::string& nativePath, const timespec& before);

private:
    /// Where a walk starts, and what it goes through.
    struct Route {
        std::string root;  // no '/' at its end but for "/" itself
        std::vector<Text> parts;
        bool folderMeant = false;  // ended in a separator
    };
    struct Listing {
        timespec changed{};
        bool settled = false;  // an equal time stamp can hide no change
        bool grown = false;    // by files of the program since it was right
        std::chrono::steady_clock::time_point rightAt;
        std::unordered_map<std::u16string, std::string> names;  // by folded name
    };

    std::optional<Route> MakeRoute(TextView path, bool backslashParts);
    std::optional<std::string> Walk(const Route& route);
    /// Name on disk of a part, exact or without case; nullopt when the folder has none.
    std::optional<std::string> NameIn(const std::string& folder, const Text& part);
    const Listing* List(const std::string& folder, const Text& wanted);
    static bool IsRecent(const Listing& listing);
    std::optional<std::string> DriveRoot(char16_t letter);
    void ReadDrives();

    std::string programFolder_;
    std::map<char16_t, std::string> drives_;  // by upper-case letter
    timespec drivesChanged_{};
    std::unordered_map<std::string, Listing> listings_;
};

}  // namespace posix_adapter
