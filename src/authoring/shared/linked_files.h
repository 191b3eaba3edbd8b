// The files that belong to a slide by its name: its text, its sounds, its coordinate files.
#pragma once

#include <cstddef>
#include <vector>

#include "model/application.h"

namespace authoring {

struct LinkedFile {
    Text path;
    size_t cut = 0;  // of the slide's last characters that `ending` stands in place of
    Text ending;
};

/// Those of the slide that are there, by the settings in force.
std::vector<LinkedFile> LinkedFiles(model::Application& app, TextView slide);

/// The name that such a file has beside a slide of that name.
Text LinkedNameBeside(TextView slide, const LinkedFile& file);

}  // namespace authoring
