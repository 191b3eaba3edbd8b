// What a browser of files asks of the file system. Paths are given and answered as documents hold
// them; names of what is hidden are left out.
#pragma once

#include <cstddef>
#include <functional>
#include <vector>

#include "text/text.h"

namespace platform {

/// A place from which a person may want to start browsing.
struct Place {
    enum Kind {
        Home,
        Desktop,
        Pictures,
        Music,
        Videos,
        Document,  // where the open document lies
        Last,      // the folder that was taken last
        Used,      // one that is taken often
        Disk,
        Drive,
        Root
    } kind = Home;
    Text path;   // full
    Text label;  // in the user's language
};

/// What a search of a tree finds in one folder.
struct FolderContent {
    Text identity;                     // as Folders::Identity; empty where it cannot be read
    std::vector<Text> folders, files;  // bare names, in natural order
};

class Folders {
public:
    virtual ~Folders() = default;

    /// True for an existing folder.
    virtual bool IsFolder(TextView path) = 0;

    /// Bare names of the folder's subfolders, in natural order; none where it cannot be read.
    virtual std::vector<Text> Subfolders(TextView path) = 0;

    /// Bare names of the folder's plain files that match one of the patterns ("*.jpg;*.png",
    /// without case; "*.*" is every file), in natural order; none where it cannot be read.
    virtual std::vector<Text> Files(TextView path, TextView patterns) = 0;

    /// The same text for the same folder, by whatever links it was reached; empty where there is
    /// none. What walks a tree enters a folder once by it.
    virtual Text Identity(TextView path) = 0;

    /// Subfolders and matching files at once, of the files the first `mostFiles` in their order, in
    /// memory that does not grow with what else the folder holds. While a large folder is read
    /// `goOn` is asked every few milliseconds; it may throw, and false ends the reading with what
    /// was found so far.
    virtual FolderContent Read(TextView path, TextView patterns, size_t mostFiles,
                               const std::function<bool()>& goOn) = 0;

    /// The user's home folder, where browsers open.
    virtual Text Home() = 0;

    /// The folder that holds the users' home folders.
    virtual Text HomeFolders() = 0;

    /// Where a browser's list of places leads to, home first.
    virtual std::vector<Place> Places() = 0;
};

}  // namespace platform
