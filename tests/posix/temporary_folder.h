// A folder that is gone with its content when the test ends.
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include <stdlib.h>

#include "text/text.h"

class TemporaryFolder {
public:
    TemporaryFolder() {
        std::string pattern =
            (std::filesystem::temp_directory_path() / "parapico-test-XXXXXX").string();
        path_ = mkdtemp(pattern.data()) != nullptr ? pattern : std::string();
    }
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    /// Native path of something in the folder; of the folder itself for "".
    std::string Path(const std::string& name = "") const {
        return name.empty() ? path_ : path_ + "/" + name;
    }
    /// The same as the program's text.
    Text TextPath(const std::string& name = "") const { return text::FromUtf8(Path(name)); }

    /// Makes the file and the folders above it.
    void Put(const std::string& name, const std::string& content) const {
        std::filesystem::create_directories(std::filesystem::path(Path(name)).parent_path());
        std::ofstream(Path(name), std::ios::binary) << content;
    }
    std::string Content(const std::string& name) const {
        std::ifstream file(Path(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    }
    size_t Count(const std::string& name = "") const {
        const std::filesystem::directory_iterator entries(Path(name));
        return static_cast<size_t>(std::distance(begin(entries), end(entries)));
    }

private:
    std::string path_;
};
