// Folders of this machine, for browsers.
#pragma once

#include <vector>

#include "platform/files.h"
#include "platform/folders.h"

namespace posix_adapter {

class PosixFolders : public platform::Folders {
public:
    /// Finds paths, drives among them, by `files`.
    explicit PosixFolders(platform::Files& files) : files_(files) {}

    bool IsFolder(TextView path) override;
    std::vector<Text> Subfolders(TextView path) override;
    std::vector<Text> Files(TextView path, TextView patterns) override;
    Text Identity(TextView path) override;
    platform::FolderContent Read(TextView path, TextView patterns, size_t mostFiles,
                                 const std::function<bool()>& goOn) override;
    Text Home() override;
    Text HomeFolders() override;
    /// Home, the desktop's own folders, disks that are plugged in, the drives of the table, and the
    /// root of all.
    std::vector<platform::Place> Places() override;

private:
    std::vector<Text> Names(TextView path, bool folders);

    platform::Files& files_;
};

/// True when the bare name matches one of the patterns, parted by ";": '*' stands for any
/// characters, '?' for one; without case. "*.*" and "*" are every name.
bool MatchesPatterns(TextView name, TextView patterns);

}  // namespace posix_adapter
