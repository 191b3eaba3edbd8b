// The files that belong to a slide by its name: its text, its sounds, its coordinate files.
#pragma once

#include <cstddef>
#include <map>
#include <set>
#include <vector>

#include "model/application.h"

namespace authoring {

struct LinkedFile {
    Text path;
    size_t cut = 0;  // of the slide's last characters that `ending` stands in place of
    Text ending;
};

/// Lists each folder's coordinate files once, so it serves one piece of work.
class LinkedFiles {
public:
    explicit LinkedFiles(model::Application& app) : app_(app) {}

    /// Those of the slide that are there, by the settings in force.
    std::vector<LinkedFile> Of(TextView slide);

private:
    const std::set<Text>& DataFilesIn(const Text& folder);

    model::Application& app_;
    std::map<Text, std::set<Text>> dataFiles_;  // by folder: names in upper case
};

/// The name that such a file has beside a slide of that name.
Text LinkedNameBeside(TextView slide, const LinkedFile& file);

}  // namespace authoring
